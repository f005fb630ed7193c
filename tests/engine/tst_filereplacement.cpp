#include "engine/errormessages.h"
#include "engine/filereplacement.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

QStringList listing(const QString &root)
{
    QStringList names;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        names << it.next().mid(root.size());
    names.sort();
    return names;
}

QStringList aliasesInTemp()
{
    return QDir(QDir::tempPath())
        .entryList({QStringLiteral("tagsmith-alias-*")}, QDir::AllEntries | QDir::Hidden);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray title(const QString &path)
{
    return Fixtures::runExifTool({QStringLiteral("-s3"), QStringLiteral("-XMP:Title"), path})
        .out.trimmed();
}

struct Save
{
    bool prepared = false;
    Fixtures::ToolRun run;
    bool committed = false;
    ErrorMessages errors;
};

// What the save operation does with one file: ExifTool writes to the '%'-free output path,
// and only a successful run is put in place.
Save saveTitle(const QString &path, const QString &value)
{
    Save save;
    FileReplacement replacement(path);
    save.prepared = replacement.prepare();
    if (!save.prepared)
        return save;
    save.run = Fixtures::runExifTool({QStringLiteral("-o"), replacement.exifToolOutputPath(),
                                      QStringLiteral("-XMP:Title=") + value, path});
    if (save.run.ok())
        save.committed = replacement.commit(save.errors);
    return save;
}

QString makeJpeg(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    return Fixtures::makeImage(path, {QStringLiteral("-XMP:Title=old")});
}

bool isRoot()
{
    return ::geteuid() == 0;
}

} // namespace

class TestFileReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void percentNamesSaveInPlace_data();
    void percentNamesSaveInPlace();
    void keepsModeOwnerAndGroup_data();
    void keepsModeOwnerAndGroup();
    void keepsExtendedAttributes_data();
    void keepsExtendedAttributes();
    void symbolicLinkStaysALink();
    void hardLinkedPairIsSplitWithWarning();
    void refusesMissingOrEmptyNewFile_data();
    void refusesMissingOrEmptyNewFile();
    void refusesWhenOwnerCannotBeKept();
    void removesOnlyLeftoversOfStoppedRuns();
    void modificationTimeToTheNanosecond();
    void readOnlyFolderGivesClearError();
    void fullDiskKeepsOriginal();
};

void TestFileReplacement::percentNamesSaveInPlace_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("file");
    QTest::newRow("folder %d") << QStringLiteral("%d") << QStringLiteral("a.jpg");
    QTest::newRow("folder %f, file %f") << QStringLiteral("%f") << QStringLiteral("x%f.jpg");
    QTest::newRow("folder %c") << QStringLiteral("%c") << QStringLiteral("%c.jpg");
    QTest::newRow("width %-2f") << QStringLiteral("a%-2fb") << QStringLiteral("p%-2fq.jpg");
    QTest::newRow("100%done") << QStringLiteral("100%done") << QStringLiteral("100%done.jpg");
    QTest::newRow("every letter in the name")
        << QStringLiteral("plain") << QStringLiteral("%d%f%e%c%t%g%s%o.jpg");
}

void TestFileReplacement::percentNamesSaveInPlace()
{
    QFETCH(QString, folder);
    QFETCH(QString, file);
    QTemporaryDir root;
    const QString path = root.path() % QStringLiteral("/parent/") % folder % u'/' % file;
    QCOMPARE(makeJpeg(path), QString());
    const QStringList before = listing(root.path());
    const QStringList aliasesBefore = aliasesInTemp();
    const QStringList cwdBefore = listing(QDir::currentPath());

    const Save save = saveTitle(path, QStringLiteral("new"));
    QVERIFY(save.prepared);
    QVERIFY2(save.run.ok(), save.run.err.constData());
    QVERIFY(save.committed);

    QCOMPARE(title(path), QByteArray("new"));
    QCOMPARE(listing(root.path()), before);
    QCOMPARE(aliasesInTemp(), aliasesBefore);
    QCOMPARE(listing(QDir::currentPath()), cwdBefore);
}

void TestFileReplacement::keepsModeOwnerAndGroup_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<bool>("otherOwner");
    QTest::newRow("0640") << 0640u << false;
    QTest::newRow("0604") << 0604u << false;
    QTest::newRow("0600 of another user") << 0600u << true;
    QTest::newRow("setgid 02664 of another user") << 02664u << true;
}

void TestFileReplacement::keepsModeOwnerAndGroup()
{
    QFETCH(uint, mode);
    QFETCH(bool, otherOwner);
    if (otherOwner && !isRoot())
        QSKIP("Giving a file to another user needs root");
    QTemporaryDir root;
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    const QByteArray name = QFile::encodeName(path);
    const uid_t owner = otherOwner ? 4321 : ::geteuid();
    const gid_t group = otherOwner ? 5432 : ::getegid();
    QCOMPARE(::chown(name.constData(), owner, group), 0);
    QCOMPARE(::chmod(name.constData(), mode), 0);
    struct stat st = {};
    QCOMPARE(::stat(name.constData(), &st), 0);
    const ino_t oldInode = st.st_ino;

    const Save save = saveTitle(path, QStringLiteral("new"));
    QVERIFY(save.committed);
    QCOMPARE(::stat(name.constData(), &st), 0);
    QVERIFY(st.st_ino != oldInode);
    QCOMPARE(uint(st.st_mode & 07777), mode);
    QCOMPARE(st.st_uid, owner);
    QCOMPARE(st.st_gid, group);
}

void TestFileReplacement::keepsExtendedAttributes_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("user attribute") << QByteArray("user.x") << QByteArray("kept\0value", 10);

    // A POSIX ACL as the kernel stores it: version 2, then (tag, permissions, id) entries.
    QByteArray acl;
    auto add32 = [&acl](quint32 v) { acl.append(reinterpret_cast<const char *>(&v), 4); };
    auto entry = [&](quint16 tag, quint16 permissions, quint32 id) {
        acl.append(reinterpret_cast<const char *>(&tag), 2);
        acl.append(reinterpret_cast<const char *>(&permissions), 2);
        add32(id);
    };
    add32(2);
    entry(0x01, 6, 0xffffffff); // owner rw
    entry(0x02, 4, 4321);       // user 4321 r
    entry(0x04, 4, 0xffffffff); // group r
    entry(0x10, 4, 0xffffffff); // mask r
    entry(0x20, 0, 0xffffffff); // others none
    QTest::newRow("ACL") << QByteArray("system.posix_acl_access") << acl;
    QTest::newRow("trusted attribute") << QByteArray("trusted.t") << QByteArray("root only");
}

void TestFileReplacement::keepsExtendedAttributes()
{
    QFETCH(QByteArray, attribute);
    QFETCH(QByteArray, value);
    QTemporaryDir root;
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    const QByteArray name = QFile::encodeName(path);
    if (::setxattr(name.constData(), attribute.constData(), value.constData(), value.size(), 0) !=
        0) {
        QSKIP(qPrintable(
            QStringLiteral("This file system or user refuses %1: %2")
                .arg(QString::fromLatin1(attribute), QString::fromLocal8Bit(strerror(errno)))));
    }
    struct stat before = {};
    QCOMPARE(::stat(name.constData(), &before), 0);

    const Save save = saveTitle(path, QStringLiteral("new"));
    QVERIFY(save.committed);
    QByteArray kept(4096, '\0');
    const ssize_t size = ::getxattr(name.constData(), attribute.constData(), kept.data(), 4096);
    QVERIFY2(size >= 0, strerror(errno));
    kept.resize(size);
    QCOMPARE(kept, value);
    struct stat after = {};
    QCOMPARE(::stat(name.constData(), &after), 0);
    QVERIFY(after.st_ino != before.st_ino);
    QCOMPARE(after.st_mode, before.st_mode);
}

void TestFileReplacement::symbolicLinkStaysALink()
{
    QTemporaryDir root;
    const QString real = root.path() % QStringLiteral("/store/real.jpg");
    QCOMPARE(makeJpeg(real), QString());
    QVERIFY(QDir().mkpath(root.path() % QStringLiteral("/links")));
    const QString link = root.path() % QStringLiteral("/links/link.jpg");
    QCOMPARE(::symlink("../store/real.jpg", QFile::encodeName(link).constData()), 0);
    const QStringList before = listing(root.path());

    const Save save = saveTitle(link, QStringLiteral("through link"));
    QVERIFY(save.committed);
    QCOMPARE(QFile::symLinkTarget(link), real);
    char text[64] = {};
    QCOMPARE(::readlink(QFile::encodeName(link).constData(), text, sizeof text - 1), 17);
    QCOMPARE(QByteArray(text), QByteArray("../store/real.jpg"));
    QCOMPARE(title(real), QByteArray("through link"));
    QCOMPARE(listing(root.path()), before);
}

void TestFileReplacement::hardLinkedPairIsSplitWithWarning()
{
    QTemporaryDir root;
    const QString first = root.path() % QStringLiteral("/first.jpg");
    const QString second = root.path() % QStringLiteral("/second.jpg");
    QCOMPARE(makeJpeg(first), QString());
    QCOMPARE(::link(QFile::encodeName(first).constData(), QFile::encodeName(second).constData()),
             0);
    const QByteArray old = contents(second);

    const Save save = saveTitle(first, QStringLiteral("new"));
    QVERIFY(save.committed);
    QCOMPARE(title(first), QByteArray("new"));
    QCOMPARE(contents(second), old);
    QCOMPARE(save.errors.errorsCount(), 0u);
    QCOMPARE(save.errors.warnsCount(), 1u);
    QVERIFY(save.errors.messages().constFirst().message().contains(QStringLiteral("hard link")));
}

void TestFileReplacement::refusesMissingOrEmptyNewFile_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QByteArray() << QStringLiteral("wrote no new file");
    QTest::newRow("empty") << QByteArray("") << QStringLiteral("empty");
}

void TestFileReplacement::refusesMissingOrEmptyNewFile()
{
    QFETCH(QByteArray, written);
    QFETCH(QString, reason);
    QTemporaryDir root;
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    const QByteArray old = contents(path);
    const QStringList before = listing(root.path());

    FileReplacement replacement(path);
    QVERIFY(replacement.prepare());
    if (!written.isNull()) {
        QFile file(replacement.temporaryPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(written);
    }
    ErrorMessages errors;
    QVERIFY(!replacement.commit(errors));
    QCOMPARE(errors.errorsCount(), 1u);
    const QString message = errors.messages().constFirst().message();
    QVERIFY2(message.contains(reason) && message.contains(path), qPrintable(message));
    QCOMPARE(contents(path), old);
    QCOMPARE(listing(root.path()), before);
}

// Another user's file in a folder anyone may write to: the new file would be ours, so the save
// is refused rather than silently changing who owns the photo.
void TestFileReplacement::refusesWhenOwnerCannotBeKept()
{
    if (!isRoot())
        QSKIP("Needs root to act as another user");
    QTemporaryDir root(QStringLiteral("/tmp/tagsmith-owner-XXXXXX"));
    QCOMPARE(::chmod(QFile::encodeName(root.path()).constData(), 0777), 0);
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    const QByteArray old = contents(path);
    const QStringList before = listing(root.path());

    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgid(65534) != 0 || ::setuid(65534) != 0)
            ::_exit(2);
        FileReplacement replacement(path);
        if (!replacement.prepare())
            ::_exit(3);
        QFile file(replacement.temporaryPath());
        if (!file.open(QIODevice::WriteOnly) || file.write("new bytes") != 9)
            ::_exit(4);
        file.close();
        ErrorMessages errors;
        const bool committed = replacement.commit(errors);
        const bool clear =
            errors.errorsCount() == 1 &&
            errors.messages().constFirst().message().contains(QStringLiteral("owner"));
        ::_exit(!committed && clear ? 0 : 5);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
    QCOMPARE(contents(path), old);
    QCOMPARE(listing(root.path()), before);
}

void TestFileReplacement::removesOnlyLeftoversOfStoppedRuns()
{
    QTemporaryDir root;
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    const pid_t dead = ::fork();
    if (dead == 0)
        ::_exit(0);
    QCOMPARE(::waitpid(dead, nullptr, 0), dead);

    const QString deadPrefix =
        root.path() % u'/' % FileReplacement::ScratchPrefix % QString::number(dead) % u'-';
    QVERIFY(QDir().mkpath(deadPrefix % QStringLiteral("abc/sub")));
    QFile partial(deadPrefix % QStringLiteral("abc/exiftool_1_2"));
    QVERIFY(partial.open(QIODevice::WriteOnly));
    partial.write("half a file");
    partial.close();
    QFile staleFile(deadPrefix % QStringLiteral("file"));
    QVERIFY(staleFile.open(QIODevice::WriteOnly));
    staleFile.close();
    // Still locked: a recycled process id, or a run on another machine sharing the folder.
    const QString locked = deadPrefix % QStringLiteral("locked");
    QVERIFY(QDir().mkpath(locked));
    const int lockFd = ::open(QFile::encodeName(locked).constData(), O_RDONLY | O_DIRECTORY);
    QVERIFY(lockFd >= 0);
    QCOMPARE(::flock(lockFd, LOCK_EX), 0);
    const QString live = root.path() % u'/' % FileReplacement::ScratchPrefix %
                         QString::number(::getppid()) % QStringLiteral("-live");
    QVERIFY(QDir().mkpath(live));

    {
        FileReplacement replacement(path);
        QVERIFY(replacement.prepare());
    }
    ::close(lockFd);
    QStringList left =
        QDir(root.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    QStringList kept{QFileInfo(locked).fileName(), QFileInfo(live).fileName(),
                     QStringLiteral("photo.jpg")};
    left.sort();
    kept.sort();
    QCOMPARE(left, kept);
}

void TestFileReplacement::modificationTimeToTheNanosecond()
{
    QTemporaryDir root;
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    const QByteArray name = QFile::encodeName(path);
    const timespec before[2] = {{1000000000, 111}, {1500000000, 987654321}};
    QCOMPARE(::utimensat(AT_FDCWD, name.constData(), before, 0), 0);

    FileReplacement replacement(path);
    QVERIFY(replacement.prepare());
    QVERIFY(QFile::copy(path, replacement.temporaryPath()));
    ErrorMessages errors;
    QVERIFY(replacement.commit(errors));
    QVERIFY(replacement.originalState());
    QCOMPARE(replacement.originalState()->modified.tv_sec, before[1].tv_sec);
    QCOMPARE(replacement.originalState()->modified.tv_nsec, before[1].tv_nsec);

    struct stat st = {};
    QCOMPARE(::stat(name.constData(), &st), 0);
    const timespec accessed = st.st_atim;
    const timespec wanted{1234567890, 123456789};
    QString error;
    QVERIFY(setFileModificationTime(path, wanted, &error));
    QCOMPARE(::stat(name.constData(), &st), 0);
    QCOMPARE(st.st_mtim.tv_sec, wanted.tv_sec);
    QCOMPARE(st.st_mtim.tv_nsec, wanted.tv_nsec);
    QCOMPARE(st.st_atim.tv_sec, accessed.tv_sec);
    QCOMPARE(st.st_atim.tv_nsec, accessed.tv_nsec);

    QVERIFY(!setFileModificationTime(root.path() % QStringLiteral("/gone.jpg"), wanted, &error));
    QVERIFY(error.contains(QStringLiteral("gone.jpg")));
}

void TestFileReplacement::readOnlyFolderGivesClearError()
{
    QTemporaryDir root;
    const QString source = root.path() % QStringLiteral("/source");
    const QString view = root.path() % QStringLiteral("/view");
    QCOMPARE(makeJpeg(source % QStringLiteral("/photo.jpg")), QString());
    QVERIFY(QDir().mkpath(view));
    const QByteArray src = QFile::encodeName(source), dst = QFile::encodeName(view);
    if (::mount(src.constData(), dst.constData(), nullptr, MS_BIND, nullptr) != 0)
        QSKIP("A read-only bind mount needs root and mount rights");
    auto unmount = qScopeGuard([&] { ::umount2(dst.constData(), MNT_DETACH); });
    QCOMPARE(::mount(nullptr, dst.constData(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr),
             0);
    const QString path = view % QStringLiteral("/photo.jpg");
    const QByteArray old = contents(path);

    FileReplacement replacement(path);
    QVERIFY(!replacement.prepare());
    QVERIFY2(replacement.errorString().contains(view) &&
                 replacement.errorString().contains(QString::fromLocal8Bit(strerror(EROFS))),
             qPrintable(replacement.errorString()));
    QCOMPARE(contents(path), old);
    QCOMPARE(listing(source), QStringList{QStringLiteral("/photo.jpg")});
}

void TestFileReplacement::fullDiskKeepsOriginal()
{
    QTemporaryDir root;
    const QByteArray disk = QFile::encodeName(root.path());
    if (::mount("tmpfs", disk.constData(), "tmpfs", 0, "size=64k") != 0)
        QSKIP("A tiny tmpfs needs root and mount rights");
    auto unmount = qScopeGuard([&] { ::umount2(disk.constData(), MNT_DETACH); });
    const QString path = root.path() % QStringLiteral("/photo.jpg");
    QCOMPARE(makeJpeg(path), QString());
    const QByteArray old = contents(path);
    QFile filler(root.path() % QStringLiteral("/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly));
    while (filler.write(QByteArray(1024, 'x')) == 1024 && filler.flush()) {
    }
    filler.close();
    const QStringList before = listing(root.path());

    FileReplacement replacement(path);
    if (replacement.prepare()) {
        const Fixtures::ToolRun run =
            Fixtures::runExifTool({QStringLiteral("-o"), replacement.exifToolOutputPath(),
                                   QStringLiteral("-XMP:Title=") + QString(8000, u'n'), path});
        QVERIFY(!run.ok());
        replacement.discard();
    } else {
        QVERIFY2(replacement.errorString().contains(QString::fromLocal8Bit(strerror(ENOSPC))),
                 qPrintable(replacement.errorString()));
    }
    QCOMPARE(contents(path), old);
    QCOMPARE(listing(root.path()), before);
}

QTEST_GUILESS_MAIN(TestFileReplacement)
#include "tst_filereplacement.moc"
