#include "engine/errormessages.h"
#include "engine/filereplacement.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
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
    return QDir::temp().entryList({u"tagsmith-alias-*"_qs}, QDir::AllEntries | QDir::Hidden);
}

QByteArray title(const QString &path)
{
    return Fixtures::runExifTool({u"-s3"_qs, u"-XMP:Title"_qs, path}).out.trimmed();
}

struct stat statOf(const QString &path)
{
    struct stat st = {};
    ::stat(QFile::encodeName(path).constData(), &st);
    return st;
}

// A JPEG titled "old" at root/name; empty when it could not be made.
QString photo(const QTemporaryDir &root, const QString &name = u"photo.jpg"_qs)
{
    const QString path = root.path() % u'/' % name;
    QDir().mkpath(QFileInfo(path).absolutePath());
    return Fixtures::makeImage(path, {u"-XMP:Title=old"_qs}).isEmpty() ? path : QString();
}

struct Save
{
    bool committed = false;
    QString prepareError;
    ErrorMessages errors;
};

// What a save does with one file: ExifTool writes to the '%'-free output path and only a
// successful run is put in place.
Save saveTitle(const QString &path, const QString &value = u"new"_qs)
{
    Save save;
    FileReplacement replacement(path);
    if (!replacement.prepare())
        save.prepareError = replacement.errorString();
    else if (Fixtures::runExifTool(
                 {u"-o"_qs, replacement.exifToolOutputPath(), u"-XMP:Title="_qs + value, path})
                 .ok())
        save.committed = replacement.commit(save.errors);
    return save;
}

} // namespace

class TestFileReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A temp folder of our own: tests running beside this one make and remove alias folders
    // in the shared one.
    void initTestCase()
    {
        QVERIFY(m_temp.isValid());
        qputenv("TMPDIR", QFile::encodeName(m_temp.path()));
    }

    void percentNamesSaveInPlace()
    {
        QTemporaryDir root;
        const QString path = photo(root, u"100%done/%d%f%c/x%f%-2c.jpg"_qs);
        QVERIFY(!path.isEmpty());
        const QStringList before = listing(root.path()), aliasesBefore = aliasesInTemp();

        QVERIFY(saveTitle(path).committed);
        QCOMPARE(title(path), QByteArray("new"));
        QCOMPARE(listing(root.path()), before);
        QCOMPARE(aliasesInTemp(), aliasesBefore);
    }

    void keepsIdentity_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<bool>("otherOwner");
        QTest::addColumn<QByteArray>("attribute");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("setgid of another user") << 02664u << true << QByteArray() << QByteArray();
        QTest::newRow("user attribute")
            << 0600u << false << QByteArray("user.x") << QByteArray("kept\0value", 10);
        // Kernel layout: version 2, then (tag, permissions, id): owner rw, user 4321 r, group r,
        // mask r, others none.
        QTest::newRow("ACL") << 0640u << true << QByteArray("system.posix_acl_access")
                             << QByteArray::fromHex(
                                    "02000000 01000600ffffffff 02000400e1100000 "
                                    "04000400ffffffff 10000400ffffffff 20000000ffffffff");
    }

    void keepsIdentity()
    {
        QFETCH(uint, mode);
        QFETCH(bool, otherOwner);
        QFETCH(QByteArray, attribute);
        QFETCH(QByteArray, value);
        if (otherOwner && ::geteuid() != 0)
            QSKIP("Giving a file to another user needs root");
        QTemporaryDir root;
        const QString path = photo(root);
        const QByteArray name = QFile::encodeName(path);
        QCOMPARE(::chown(name.constData(), otherOwner ? 4321 : ::geteuid(),
                         otherOwner ? 5432 : ::getegid()),
                 0);
        QCOMPARE(::chmod(name.constData(), mode), 0);
        if (!attribute.isEmpty() &&
            ::setxattr(name.constData(), attribute.constData(), value.constData(), value.size(), 0))
            QSKIP(qPrintable(u"This file system refuses "_qs + QString::fromLatin1(attribute)));
        const struct stat before = statOf(path);

        QVERIFY(saveTitle(path).committed);
        const struct stat after = statOf(path);
        QVERIFY(after.st_ino != before.st_ino);
        QCOMPARE(after.st_mode, before.st_mode);
        QCOMPARE(after.st_uid, before.st_uid);
        QCOMPARE(after.st_gid, before.st_gid);
        if (!attribute.isEmpty()) {
            QByteArray kept(4096, '\0');
            const ssize_t size =
                ::getxattr(name.constData(), attribute.constData(), kept.data(), 4096);
            QVERIFY2(size >= 0, strerror(errno));
            QCOMPARE(kept.left(size), value);
        }
    }

    void symbolicLinkStaysALink()
    {
        QTemporaryDir root;
        const QString real = photo(root, u"store/real.jpg"_qs);
        const QString link = root.path() % u"/link.jpg"_qs;
        QCOMPARE(::symlink("store/real.jpg", QFile::encodeName(link).constData()), 0);
        const QStringList before = listing(root.path());

        QVERIFY(saveTitle(link, u"via link"_qs).committed);
        QCOMPARE(QFileInfo(link).symLinkTarget(), real);
        QCOMPARE(title(real), QByteArray("via link"));
        QCOMPARE(listing(root.path()), before);
    }

    void hardLinkedPairIsSplitWithWarning()
    {
        QTemporaryDir root;
        const QString first = photo(root), second = root.path() % u"/second.jpg"_qs;
        QCOMPARE(
            ::link(QFile::encodeName(first).constData(), QFile::encodeName(second).constData()), 0);
        const QByteArray old = Fixtures::readBytes(second);

        const Save save = saveTitle(first);
        QVERIFY(save.committed);
        QCOMPARE(title(first), QByteArray("new"));
        QCOMPARE(Fixtures::readBytes(second), old);
        QCOMPARE(save.errors.errorsCount(), 0u);
        QCOMPARE(save.errors.warnsCount(), 1u);
        QVERIFY(save.errors.messages().constFirst().message().contains(u"hard link"_qs));
    }

    // Another user's file in a folder anyone may write to: the new file would be ours.
    void refusesWhenOwnerCannotBeKept()
    {
        if (::geteuid() != 0)
            QSKIP("Needs root to act as another user");
        QTemporaryDir root(u"/tmp/tagsmith-owner-XXXXXX"_qs);
        QCOMPARE(::chmod(QFile::encodeName(root.path()).constData(), 0777), 0);
        const QString path = photo(root);
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0644), 0);
        const QByteArray old = Fixtures::readBytes(path);
        const QStringList before = listing(root.path());

        const pid_t child = ::fork();
        if (child == 0) {
            if (::setgid(65534) != 0 || ::setuid(65534) != 0)
                ::_exit(2);
            FileReplacement replacement(path);
            QFile file(replacement.prepare() ? replacement.temporaryPath() : QString());
            if (!file.open(QIODevice::WriteOnly) || file.write("new bytes") != 9)
                ::_exit(3);
            file.close();
            ErrorMessages errors;
            const bool refused = !replacement.commit(errors) && errors.errorsCount() == 1 &&
                                 errors.messages().constFirst().message().contains(u"owner"_qs);
            ::_exit(refused ? 0 : 4);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
        QCOMPARE(Fixtures::readBytes(path), old);
        QCOMPARE(listing(root.path()), before);
    }

    void removesOnlyLeftoversOfStoppedRuns()
    {
        QTemporaryDir root;
        const QString path = photo(root);
        const pid_t dead = ::fork();
        if (dead == 0)
            ::_exit(0);
        QCOMPARE(::waitpid(dead, nullptr, 0), dead);
        const QString deadPrefix =
            root.path() % u'/' % FileReplacement::ScratchPrefix % QString::number(dead) % u'-';
        QVERIFY(QDir().mkpath(deadPrefix % u"abc/sub"_qs));
        QFile partial(deadPrefix % u"abc/exiftool_1_2"_qs);
        QVERIFY(partial.open(QIODevice::WriteOnly) && partial.write("half a file") > 0);
        partial.close();
        // Still locked: a recycled process id, or a run on another machine sharing the folder.
        const QString locked = deadPrefix % u"locked"_qs;
        QVERIFY(QDir().mkpath(locked));
        const int lockFd = ::open(QFile::encodeName(locked).constData(), O_RDONLY | O_DIRECTORY);
        QCOMPARE(::flock(lockFd, LOCK_EX), 0);
        const QString live =
            FileReplacement::ScratchPrefix % QString::number(::getppid()) % u"-live"_qs;
        QVERIFY(QDir(root.path()).mkpath(live));

        QVERIFY(FileReplacement(path).prepare());
        ::close(lockFd);
        QStringList kept{QFileInfo(locked).fileName(), live, u"photo.jpg"_qs};
        kept.sort();
        QCOMPARE(QDir(root.path())
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
                 kept);
    }

    void fullDiskKeepsOriginal()
    {
        QTemporaryDir root;
        const QByteArray disk = QFile::encodeName(root.path());
        if (::mount("tmpfs", disk.constData(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("A tiny tmpfs needs root and mount rights");
        auto unmount = qScopeGuard([&] { ::umount2(disk.constData(), MNT_DETACH); });
        const QString path = photo(root);
        const QByteArray old = Fixtures::readBytes(path);
        QFile filler(root.path() % u"/filler"_qs);
        QVERIFY(filler.open(QIODevice::WriteOnly));
        while (filler.write(QByteArray(1024, 'x')) == 1024 && filler.flush()) {
        }
        filler.close();
        const QStringList before = listing(root.path());

        const Save save = saveTitle(path, QString(8000, u'n'));
        QVERIFY(!save.committed);
        // The full disk may show only when ExifTool writes; if it shows earlier, we must say so.
        QVERIFY2(save.prepareError.isEmpty() ||
                     save.prepareError.contains(QString::fromLocal8Bit(strerror(ENOSPC))),
                 qPrintable(save.prepareError));
        QCOMPARE(Fixtures::readBytes(path), old);
        QCOMPARE(listing(root.path()), before);
    }

private:
    QTemporaryDir m_temp;
};

QTEST_GUILESS_MAIN(TestFileReplacement)
#include "tst_filereplacement.moc"
