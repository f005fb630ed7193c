#include "engine/fileadmission.h"

#include "engine/exiffileinfo.h"
#include "engine/metadatareader.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString AdmitPaths = QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/admitpaths");

// One line per outcome, as the note lists them: "accepted PATH" or "<reason> PATH".
QStringList outcome(const FileAdmissionResult &result)
{
    QStringList lines;
    for (const QString &path : result.accepted)
        lines << u"accepted "_qs + path;
    for (const FileRejection &rejection : result.rejected)
        lines << FileAdmission::reasonText(rejection) + u' ' + rejection.path;
    return lines;
}

bool touch(const QString &path, mode_t mode = 0644)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.close();
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

} // namespace

class TestFileAdmission : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_root; // holds the tree "d"

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_root = m_dir.path();
        for (const char *name : {"d/PHOTO.JPG", "d/b/x.heic", "d/y.CR3", "d/notes.txt",
                                 "d/.hidden.jpg", "d/.cache/a.jpg", "d/z.jpg", "d/3fr/old.3fr"})
            QVERIFY(touch(m_root + u'/' + QString::fromLatin1(name)));
        // Opening a FIFO blocks until someone writes: ExifTool would hang on it.
        QCOMPARE(::mkfifo(QFile::encodeName(m_root + u"/d/b/pipe.jpg"_qs).constData(), 0644), 0);
        // A link back up the tree must not make the scan endless.
        QVERIFY(QFile::link(m_root + u"/d"_qs, m_root + u"/d/b/loop"_qs));
        QVERIFY(QFile::link(m_root + u"/d/gone.jpg"_qs, m_root + u"/d/b/dangling.jpg"_qs));

        // One file under five names: a hard link, a link to its folder, and a link after which
        // ".." leads into its folder rather than back.
        QVERIFY(touch(m_root + u"/same/d/a.jpg"_qs) && QDir().mkpath(m_root + u"/same/d/sub"_qs));
        QCOMPARE(::link(QFile::encodeName(m_root + u"/same/d/a.jpg"_qs).constData(),
                        QFile::encodeName(m_root + u"/same/d/hard.jpg"_qs).constData()),
                 0);
        QVERIFY(QFile::link(m_root + u"/same/d"_qs, m_root + u"/same/link"_qs));
        QVERIFY(QFile::link(m_root + u"/same/d/sub"_qs, m_root + u"/same/up"_qs));

        // Names made of raw bytes, as another system's archive or camera card may bring them.
        const QByteArray bytes = QFile::encodeName(m_root + u"/bytes/"_qs);
        QVERIFY(QDir().mkpath(m_root + u"/bytes"_qs));
        QCOMPARE(::mkdir(QByteArray(bytes + "fol\xe9").constData(), 0755), 0);
        for (const char *name : {"caf\xe9.jpg", "caf\xc3\xa9.jpg", "ok.jpg", "fol\xe9/in.jpg"}) {
            const int fd = ::open(QByteArray(bytes + name).constData(), O_CREAT | O_WRONLY, 0644);
            QVERIFY(fd >= 0);
            ::close(fd);
        }
    }

    void admitsWithReasons_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QStringList>("inList");
        QTest::addColumn<QStringList>("expected");

        // Entries come in byte order, so hidden ones (".") come first and capitals before
        // lower case; the folder "b" is expanded in its place.
        const QStringList folder =
            QStringLiteral(
                "accepted @/d/PHOTO.JPG|accepted @/d/b/x.heic|accepted @/d/y.CR3|hidden @/d/.cache|"
                "hidden @/d/.hidden.jpg|unsupported type @/d/3fr/old.3fr|"
                "not found @/d/b/dangling.jpg|unsupported type @/d/b/pipe.jpg|"
                "unsupported type @/d/notes.txt|already in the list @/d/z.jpg")
                .split(u'|');
        const QStringList none;
        QTest::newRow("folder") << QStringList{u"@/d"_qs} << QStringList{u"@/d/z.jpg"_qs} << folder;
        QTest::newRow("trailing slash")
            << QStringList{u"@/d/"_qs} << QStringList{u"@/d/z.jpg"_qs} << folder;
        QTest::newRow("one by one, in order")
            << u"@/d/y.CR3 @/nothing.jpg @/d/PHOTO.JPG @/d/y.CR3 @/d/notes.txt @/d/.hidden.jpg "
               u"@/d/z.jpg"_qs.split(u' ')
            << none
            << QStringLiteral("accepted @/d/y.CR3|accepted @/d/PHOTO.JPG|accepted @/d/.hidden.jpg|"
                              "accepted @/d/z.jpg|not found @/nothing.jpg|"
                              "already in the list @/d/y.CR3|unsupported type @/d/notes.txt")
                   .split(u'|');
        QTest::newRow("file, then its folder")
            << QStringList{u"@/d/b/x.heic"_qs, u"@/d/b"_qs, u"@/d/b"_qs} << none
            << QStringLiteral("accepted @/d/b/x.heic|not found @/d/b/dangling.jpg|"
                              "unsupported type @/d/b/pipe.jpg|already in the list @/d/b/x.heic|"
                              "already in the list @/d/b")
                   .split(u'|');

        QTest::newRow("other names, one add")
            << u"@/same/d/a.jpg @/same/d/./a.jpg @/same/link/a.jpg @/same/d/hard.jpg "
               u"@/same/up/../a.jpg @/same/d/sub/../a.jpg"_qs.split(u' ')
            << none
            << QStringLiteral("accepted @/same/d/a.jpg|"
                              "the same file as @/same/d/a.jpg @/same/d/./a.jpg|"
                              "the same file as @/same/d/a.jpg @/same/link/a.jpg|"
                              "the same file as @/same/d/a.jpg @/same/d/hard.jpg|"
                              "the same file as @/same/d/a.jpg @/same/up/../a.jpg|"
                              "the same file as @/same/d/a.jpg @/same/d/sub/../a.jpg")
                   .split(u'|');
        QTest::newRow("other names of a listed file")
            << u"@/same/link/a.jpg @/same/d/hard.jpg @/same/d/./a.jpg"_qs.split(u' ')
            << QStringList{u"@/same/d/a.jpg"_qs}
            << QStringLiteral("the same file as @/same/d/a.jpg, already in the list "
                              "@/same/link/a.jpg|"
                              "the same file as @/same/d/a.jpg, already in the list "
                              "@/same/d/hard.jpg|"
                              "the same file as @/same/d/a.jpg, already in the list "
                              "@/same/d/./a.jpg")
                   .split(u'|');
        QTest::newRow("folder of a file listed through a link")
            << QStringList{u"@/same/d"_qs} << QStringList{u"@/same/link/a.jpg"_qs}
            << QStringLiteral("the same file as @/same/link/a.jpg, already in the list "
                              "@/same/d/a.jpg|"
                              "the same file as @/same/link/a.jpg, already in the list "
                              "@/same/d/hard.jpg")
                   .split(u'|');
        // The row keeps the name given, cleaned; where ".." follows a link, the real path.
        QTest::newRow("relative and dot-dot after a link")
            << QStringList{u"same/up/../a.jpg"_qs, u"same/./link/"_qs} << none
            << QStringLiteral("accepted @/same/d/a.jpg|"
                              "the same file as @/same/d/a.jpg @/same/link/a.jpg|"
                              "the same file as @/same/d/a.jpg @/same/link/hard.jpg")
                   .split(u'|');
        const QString invalid = u"its name is not valid UTF-8, so it cannot be opened"_qs;
        QTest::newRow("names that are no UTF-8")
            << QStringList{u"@/bytes"_qs, u"@/bytes/caf\ufffd.jpg"_qs} << none
            << QStringList{u"accepted @/bytes/caf\u00e9.jpg"_qs, u"accepted @/bytes/ok.jpg"_qs,
                           invalid + u" @/bytes/caf\ufffd.jpg"_qs,
                           invalid + u" @/bytes/fol\ufffd"_qs,
                           invalid + u" @/bytes/caf\ufffd.jpg"_qs};
    }

    void admitsWithReasons()
    {
        QFETCH(QStringList, paths);
        QFETCH(QStringList, inList);
        QFETCH(QStringList, expected);
        paths.replaceInStrings(u"@"_qs, m_root);
        inList.replaceInStrings(u"@"_qs, m_root);
        expected.replaceInStrings(u"@"_qs, m_root);

        // Relative paths are the current folder's.
        const QString current = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_root));
        const FileAdmissionResult result = FileAdmission::preprocessFilesToBeAdded(paths, inList);
        QVERIFY(QDir::setCurrent(current));
        QCOMPARE(outcome(result), expected);
    }

    void commandLineNamesAreAbsoluteAndValid()
    {
        const QList<QByteArray> arguments{"a.jpg",      ".",           "/abs/b.nef",     "",
                                          "d/../c.jpg", "caf\xe9.jpg", "caf\xc3\xa9.jpg"};
        const FileAdmissionResult files =
            FileAdmission::commandLineFiles(arguments, u"/home/ann/shoot"_qs);
        QCOMPARE(files.accepted, QStringList({u"/home/ann/shoot/a.jpg"_qs, u"/home/ann/shoot/."_qs,
                                              u"/abs/b.nef"_qs, u"/home/ann/shoot/d/../c.jpg"_qs,
                                              u"/home/ann/shoot/caf\u00e9.jpg"_qs}));
        QCOMPARE(outcome({{}, files.rejected}),
                 QStringList{u"its name is not valid UTF-8, so it cannot be opened "
                             u"/home/ann/shoot/caf\ufffd.jpg"_qs});
    }

    void supportsByLowerCasedExtension_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isSupported");
        QTest::newRow("capitals") << u"/a/IMG_1.HEIC"_qs << true;
        QTest::newRow("no extension") << u"/a/jpg"_qs << false;
        QTest::newRow("dot in folder") << u"/a.jpg/readme"_qs << false;
        QTest::newRow("sidecar") << u"/a/IMG_1.xmp"_qs << false;
    }

    void supportsByLowerCasedExtension()
    {
        QFETCH(QString, path);
        QTEST(FileAdmission::supportsFile(path), "isSupported");
    }

    // Named like photos; what ExifTool finds inside decides.
    void contentDecidesAfterReading_data()
    {
        QTest::addColumn<QByteArray>("content"); // empty: a real JPEG
        QTest::addColumn<int>("reason");         // -1: kept
        QTest::newRow("photo") << QByteArray() << -1;
        QTest::newRow("text") << QByteArray("not an image\n")
                              << int(FileRejection::Reason::NotAnImage);
        QTest::newRow("unknown bytes") << QByteArray("\x00\x01\xfe\xff", 4).repeated(1024)
                                       << int(FileRejection::Reason::Unreadable);
    }

    void contentDecidesAfterReading()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir dir;
        const QString path = dir.filePath(u"IMG_1.jpg"_qs);
        if (content.isEmpty())
            QVERIFY(Fixtures::makeImage(path).isEmpty());
        else
            QVERIFY(Fixtures::writeBytes(path, content));
        auto file = std::make_shared<ExifFileInfo>(path);
        QVERIFY(MetadataReader().readRecord(file).ok());
        const auto reason = FileAdmission::rejectionAfterReading(file->originalExifData());
        QTEST(reason ? int(*reason) : -1, "reason");
    }

    // A file admitted that ExifTool cannot write would fail only at saving.
    void everySupportedExtensionIsWritableByExifTool()
    {
        const Fixtures::ToolRun run = Fixtures::runExifTool({u"-listwf"_qs});
        QVERIFY(run.ok());
        const QStringList writable =
            QString::fromUtf8(run.out).toLower().split(QRegularExpression(u"\\s+"_qs));
        for (const QString &extension : FileAdmission::supportedExtensions())
            QVERIFY2(writable.contains(extension), qPrintable(extension));
    }

    // Root reads everything, so unreadable files are only seen by an unprivileged user.
    void unreadableForThisUserIsRejected()
    {
        if (::geteuid() != 0)
            QSKIP("Needs root to run the check as the user nobody");
        if (QStandardPaths::findExecutable(u"setpriv"_qs).isEmpty())
            QSKIP("setpriv (util-linux) is not installed");
        QTemporaryDir dir;
        const QString root = dir.path();
        QVERIFY(QFile::setPermissions(root, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                QFile::ReadOther | QFile::ExeOther));
        QVERIFY(touch(root + u"/open.jpg"_qs, 0644));
        QVERIFY(touch(root + u"/secret.jpg"_qs, 0600));
        QVERIFY(touch(root + u"/locked/inside.jpg"_qs, 0644));
        QCOMPARE(::chmod(QFile::encodeName(root + u"/locked"_qs).constData(), 0700), 0);

        QProcess process;
        process.start(u"setpriv"_qs, {u"--reuid=nobody"_qs, u"--regid=nogroup"_qs,
                                      u"--clear-groups"_qs, AdmitPaths, root});
        if (!process.waitForFinished(30000) || process.exitCode() != 0)
            QSKIP(qPrintable(u"Cannot run as nobody here: "_qs +
                             QString::fromLocal8Bit(process.readAllStandardError())));
        const QStringList lines =
            QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines, QStringList({u"accepted "_qs + root + u"/open.jpg"_qs,
                                     u"unreadable "_qs + root + u"/locked"_qs,
                                     u"unreadable "_qs + root + u"/secret.jpg"_qs}));
    }
};

QTEST_GUILESS_MAIN(TestFileAdmission)
#include "tst_fileadmission.moc"
