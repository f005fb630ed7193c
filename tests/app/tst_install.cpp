#include "catalogue/preset.h"
#include "catalogue/presetstore.h"
#include "engine/exiftoolpath.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDirIterator>
#include <QImage>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int exitCode = -1;
    QString output;
};

Run run(const QString &program, const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
        int timeoutMs = 300'000)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        return {-1, QString::fromUtf8(process.readAll())};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAll())};
}

} // namespace

// The build installed as a distribution would install it, into a staging folder.
class TestInstall : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_root; // the staged /usr

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DESTDIR"_s, m_dir.path());
        const Run install =
            run(QStringLiteral(TAGSMITH_CMAKE_COMMAND),
                {u"--install"_s, QStringLiteral(TAGSMITH_BINARY_DIR), u"--prefix"_s, u"/usr"_s},
                environment);
        QVERIFY2(install.exitCode == 0, qPrintable(install.output));
        m_root = m_dir.filePath(u"usr"_s);
    }

    void filesAreInTheirFhsPlaces_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *path :
             {"bin/tagsmith", "libexec/tagsmith/exiftool/exiftool",
              "libexec/tagsmith/exiftool/lib/Image/ExifTool.pm", "share/tagsmith/map/page/map.html",
              "share/tagsmith/map/page/map.js", "share/tagsmith/map/leaflet/leaflet.js",
              "share/tagsmith/map/leaflet/leaflet.css",
              "share/applications/org.tagsmith.Tagsmith.desktop",
              "share/icons/hicolor/scalable/apps/org.tagsmith.Tagsmith.svg",
              "share/icons/hicolor/48x48/apps/org.tagsmith.Tagsmith.png",
              "share/icons/hicolor/128x128/apps/org.tagsmith.Tagsmith.png",
              "share/icons/hicolor/256x256/apps/org.tagsmith.Tagsmith.png",
              "share/metainfo/org.tagsmith.Tagsmith.metainfo.xml", "share/doc/tagsmith/copyright",
              "share/doc/tagsmith/changelog.gz", "share/man/man1/tagsmith.1.gz"}) {
            QTest::newRow(path) << QString::fromLatin1(path);
        }
    }

    void filesAreInTheirFhsPlaces()
    {
        QFETCH(QString, path);
        QVERIFY2(QFileInfo(m_root + u'/' + path).isFile(), qPrintable(path));
    }

    // Nothing of the build tree's layout, and nothing outside the usual top folders.
    void nothingElseIsInstalled()
    {
        const QStringList allowedTops{u"bin"_s, u"libexec"_s, u"share"_s};
        QDirIterator it(m_root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString relative = it.next().mid(m_root.size() + 1);
            QVERIFY2(allowedTops.contains(relative.section(u'/', 0, 0)), qPrintable(relative));
            QVERIFY2(!relative.contains(u"Contents/Resources"_s), qPrintable(relative));
        }
        QCOMPARE(QDir(m_root + u"/bin"_s).entryList(QDir::Files), QStringList{u"tagsmith"_s});
    }

    void iconsHaveTheirSizes_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("48") << 48;
        QTest::newRow("128") << 128;
        QTest::newRow("256") << 256;
    }

    void iconsHaveTheirSizes()
    {
        QFETCH(int, size);
        const QImage icon(m_root +
                          u"/share/icons/hicolor/%1x%1/apps/org.tagsmith.Tagsmith.png"_s.arg(size));
        QCOMPARE(icon.size(), QSize(size, size));
        // Drawn, not an empty square.
        QVERIFY(icon.pixelColor(size / 2, size / 2).alpha() > 0);
    }

    // The installed program finds what it ships relative to itself, and runs its ExifTool.
    void installedProgramFindsItsExifToolAndMap()
    {
        const QString bin = m_root + u"/bin"_s;
        QCOMPARE(BundledPaths::exifTool(bin), m_root + u"/libexec/tagsmith/exiftool/exiftool"_s);
        QCOMPARE(BundledPaths::mapPage(bin), m_root + u"/share/tagsmith/map/page/map.html"_s);

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TAGSMITH_EXIFTOOL"_s);
        const Run version = run(bin + u"/tagsmith"_s, {u"--version"_s}, environment);
        QCOMPARE(version.exitCode, 0);
        QVERIFY2(version.output.contains(u"(%1/libexec/tagsmith/exiftool/exiftool)"_s.arg(m_root)),
                 qPrintable(version.output));
        QVERIFY2(version.output.contains(u"ExifTool 13."_s), qPrintable(version.output));
        QVERIFY2(
            version.output.contains(u"Map page: %1/share/tagsmith/map/page/map.html"_s.arg(m_root)),
            qPrintable(version.output));
        QCOMPARE(QFileInfo(m_root + u"/libexec/tagsmith/exiftool/exiftool"_s).isExecutable(), true);
    }

    // The installed program reads and writes a photo with its own ExifTool, without a window.
    void installedProgramSavesAPhoto()
    {
        QTemporaryDir dir;
        const QString configHome = dir.filePath(u"config"_s);
        // The preset goes to the store the started program will read.
        const QString ownStore = UserSettings::storeFile();
        UserSettings::setStoreFile(configHome + u"/Tagsmith/Tagsmith.ini"_s);
        {
            PresetStore store;
            store.initializeSettings();
            auto preset = std::make_shared<Preset>(store.findUnusedNewIdentifier(), u"Credit"_s);
            preset->changedValues().insert(u"IFD0:Artist"_s, u"Jane Doe"_s);
            store.saveConfiguration(preset);
        }
        UserSettings::setStoreFile(ownStore);
        const QString photo = dir.filePath(u"a.jpg"_s);
        QCOMPARE(Fixtures::makeImage(photo), QString());

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TAGSMITH_EXIFTOOL"_s);
        environment.remove(u"DISPLAY"_s);
        environment.insert(u"XDG_CONFIG_HOME"_s, configHome);
        const Run apply = run(m_root + u"/bin/tagsmith"_s,
                              {u"--apply-preset"_s, u"Credit"_s, photo}, environment);
        QVERIFY2(apply.exitCode == 0, qPrintable(apply.output));
        QCOMPARE(apply.output, photo + u": saved\n"_s);
        QCOMPARE(Fixtures::runExifTool({u"-s3"_s, u"-IFD0:Artist"_s, photo}).out.trimmed(),
                 QByteArray("Jane Doe"));
    }

    // Started offscreen with a photo, the installed window reads it with its own ExifTool and
    // stays up; a missing ExifTool or map page would be logged on start.
    void installedWindowOpensAFile()
    {
        QTemporaryDir photos;
        const QString photo = photos.filePath(u"a.jpg"_s);
        QCOMPARE(Fixtures::makeImage(photo, {u"-IFD0:Artist=Ann"_s}), QString());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"TAGSMITH_EXIFTOOL"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"XDG_CONFIG_HOME"_s, photos.filePath(u"config"_s));
        environment.insert(u"XDG_DATA_HOME"_s, photos.filePath(u"data"_s));
        QProcess window;
        window.setProcessEnvironment(environment);
        window.setProcessChannelMode(QProcess::MergedChannels);
        window.start(m_root + u"/bin/tagsmith"_s, {u"-debug"_s, photo});
        QVERIFY(window.waitForStarted());
        QVERIFY(!window.waitForFinished(4000));
        window.kill();
        window.waitForFinished();
        const QString log = QString::fromUtf8(window.readAll());
        QVERIFY2(log.contains(
                     u"ExifTool: %1/libexec/tagsmith/exiftool/exiftool, version 13."_s.arg(m_root)),
                 qPrintable(log));
    }

    void desktopEntryAndMetainfoValidate_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("desktop-file-validate")
            << u"desktop-file-validate"_s
            << QStringList{u"share/applications/org.tagsmith.Tagsmith.desktop"_s};
        QTest::newRow("appstreamcli")
            << u"appstreamcli"_s
            << QStringList{u"validate"_s, u"--no-net"_s,
                           u"share/metainfo/org.tagsmith.Tagsmith.metainfo.xml"_s};
    }

    void desktopEntryAndMetainfoValidate()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        const QString path = QStandardPaths::findExecutable(program);
        if (path.isEmpty())
            QSKIP(
                qPrintable(program + u" is not installed (scripts/install-deps.sh installs it)"_s));
        for (QString &argument : arguments) {
            if (argument.startsWith(u"share/"_s))
                argument = m_root + u'/' + argument;
        }
        const Run check = run(path, arguments);
        QVERIFY2(check.exitCode == 0, qPrintable(check.output));
    }
};

QTEST_GUILESS_MAIN(TestInstall)
#include "tst_install.moc"
