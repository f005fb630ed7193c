#include "app/commandline.h"
#include "catalogue/preset.h"
#include "catalogue/presetstore.h"
#include "values/usersettings.h"

#include "../support/fixtures.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

// The program itself, as a shell would start it, with its settings in configHome.
Run runTagsmith(const QStringList &arguments, const QString &configHome, const QString &folder)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, configHome);
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"QT_QPA_PLATFORM"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(TAGSMITH_TEST_HELPERS_DIR "/../tagsmith"), arguments);
    if (!process.waitForFinished(120'000))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString tagOf(const QString &path, const QString &tag)
{
    return QString::fromUtf8(
        Fixtures::runExifTool({u"-s3"_s, u"-"_s + tag, u"--"_s, path}).out.trimmed());
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QString>("preset");
        QTest::addColumn<bool>("debug");

        using M = CommandLine::Mode;
        const auto row = [](const char *name, QStringList arguments, M mode, QStringList paths,
                            QString preset = {}, bool debug = false) {
            QTest::newRow(name) << (QStringList{u"tagsmith"_s} + arguments) << int(mode) << paths
                                << preset << debug;
        };
        row("nothing", {}, M::Window, {});
        row("relative file", {u"a.jpg"_s}, M::Window, {u"/home/u/a.jpg"_s});
        row("dot", {u"."_s}, M::Window, {u"/home/u/."_s});
        row("parent folder", {u"../p/b.nef"_s}, M::Window, {u"/home/u/../p/b.nef"_s});
        row("absolute kept", {u"/photos/c d.jpg"_s}, M::Window, {u"/photos/c d.jpg"_s});
        row("debug among files", {u"x.jpg"_s, u"-debug"_s}, M::Window, {u"/home/u/x.jpg"_s}, {},
            true);
        row("dash name after --", {u"--"_s, u"-x.jpg"_s, u"--help"_s}, M::Window,
            {u"/home/u/-x.jpg"_s, u"/home/u/--help"_s});
        row("a lone dash is a name", {u"-"_s}, M::Window, {u"/home/u/-"_s});
        row("help", {u"a.jpg"_s, u"--help"_s}, M::Help, {u"/home/u/a.jpg"_s});
        row("short help wins over version", {u"--version"_s, u"-h"_s}, M::Help, {});
        row("version", {u"--version"_s}, M::Version, {});
        row("preset", {u"--apply-preset"_s, u"Rome"_s, u"a.jpg"_s}, M::ApplyPreset,
            {u"/home/u/a.jpg"_s}, u"Rome"_s);
        row("preset with =", {u"--apply-preset=Ski trip"_s, u"/d"_s}, M::ApplyPreset, {u"/d"_s},
            u"Ski trip"_s);
        row("preset without files", {u"--apply-preset"_s, u"Rome"_s}, M::Error, {});
        row("preset without name", {u"--apply-preset"_s}, M::Error, {});
        row("unknown option", {u"a.jpg"_s, u"-x.jpg"_s}, M::Error, {});
    }

    void parse()
    {
        QFETCH(QStringList, arguments);
        const CommandLine line = CommandLine::parse(arguments, u"/home/u"_s);
        QTEST(int(line.mode), "mode");
        if (line.mode != CommandLine::Mode::Error) {
            QTEST(line.paths, "paths");
            QTEST(line.presetName, "preset");
            QTEST(line.debug, "debug");
        } else {
            QVERIFY(!line.errorText.isEmpty());
        }
    }

    // Qt's own options must not open a window for --help, nor make a file list fail.
    void headlessDecision_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("headless");
        QTest::newRow("files") << QStringList{u"t"_s, u"a.jpg"_s} << false;
        QTest::newRow("platform then files")
            << QStringList{u"t"_s, u"-platform"_s, u"offscreen"_s, u"a.jpg"_s} << false;
        QTest::newRow("style flag")
            << QStringList{u"t"_s, u"-style=fusion"_s, u"-reverse"_s} << false;
        QTest::newRow("help after platform")
            << QStringList{u"t"_s, u"-platform"_s, u"xcb"_s, u"--help"_s} << true;
        QTest::newRow("preset") << QStringList{u"t"_s, u"--apply-preset"_s, u"P"_s, u"a"_s} << true;
        QTest::newRow("bad option") << QStringList{u"t"_s, u"--bogus"_s} << true;
        QTest::newRow("help as a file name") << QStringList{u"t"_s, u"--"_s, u"--help"_s} << false;
    }

    void headlessDecision()
    {
        QFETCH(QStringList, arguments);
        QTEST(CommandLine::isHeadless(arguments), "headless");
    }

    // A value and a removal over three files, one of them read-only: the two others get
    // exactly the preset's changes, the read-only one is reported and left byte for byte.
    void applyPresetSavesWritableFilesAndReportsTheRest()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString configHome = dir.filePath(u"config"_s);
        // The preset goes to the store the started program will read.
        const QString ownStore = UserSettings::storeFile();
        UserSettings::setStoreFile(configHome + u"/Tagsmith/Tagsmith.ini"_s);
        {
            PresetStore store;
            store.initializeSettings();
            auto preset =
                std::make_shared<Preset>(store.findUnusedNewIdentifier(), u"Agency credit"_s);
            preset->changedValues().insert(u"IFD0:Artist"_s, u"Jane Doe"_s);
            preset->removedValues().insert(u"IFD0:ImageDescription"_s);
            store.saveConfiguration(preset);
        }
        UserSettings::setStoreFile(ownStore);

        const QString photos = dir.filePath(u"photos"_s);
        QVERIFY(QDir().mkpath(photos));
        const QStringList names{u"a.jpg"_s, u"b c.jpg"_s, u"locked.jpg"_s};
        for (const QString &name : names) {
            QCOMPARE(
                Fixtures::makeImage(photos + u'/' + name, {u"-IFD0:ImageDescription=Old caption"_s,
                                                           u"-IFD0:Make=Canon"_s}),
                QString());
        }
        const QString locked = photos + u"/locked.jpg"_s;
        QVERIFY(
            QFile::setPermissions(locked, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        const QByteArray lockedBytes = Fixtures::readBytes(locked);

        // Relative names, as typed in a shell.
        const Run run = runTagsmith(
            {u"--apply-preset"_s, u"Agency credit"_s, u"a.jpg"_s, u"b c.jpg"_s, u"locked.jpg"_s},
            configHome, photos);
        QCOMPARE(run.exitCode, 1);
        const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines.contains(photos + u"/a.jpg: saved"_s), qPrintable(run.out));
        QVERIFY2(lines.contains(photos + u"/b c.jpg: saved"_s), qPrintable(run.out));
        const QString lockedLine = lines.filter(locked).value(0);
        QVERIFY2(lockedLine.contains(u"read-only"_s), qPrintable(run.out + run.err));

        for (const QString &name : {u"a.jpg"_s, u"b c.jpg"_s}) {
            const QString path = photos + u'/' + name;
            QCOMPARE(tagOf(path, u"IFD0:Artist"_s), u"Jane Doe"_s);
            QCOMPARE(tagOf(path, u"IFD0:ImageDescription"_s), QString());
            QCOMPARE(tagOf(path, u"IFD0:Make"_s), u"Canon"_s);
        }
        QCOMPARE(Fixtures::readBytes(locked), lockedBytes);

        // Applied again, nothing is left to change in the two saved files.
        const Run again =
            runTagsmith({u"--apply-preset"_s, u"Agency credit"_s, u"a.jpg"_s}, configHome, photos);
        QCOMPARE(again.exitCode, 0);
        QCOMPARE(again.out, photos + u"/a.jpg: unchanged\n"_s);
    }

    void headlessRequestsNeedNoDisplay_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("expected");
        QTest::newRow("help") << QStringList{u"--help"_s} << 0 << u"--apply-preset NAME"_s;
        QTest::newRow("version") << QStringList{u"--version"_s} << 0 << u"ExifTool 13."_s;
        QTest::newRow("bad option") << QStringList{u"--bogus"_s} << 2 << u"--bogus"_s;
        QTest::newRow("no such preset")
            << QStringList{u"--apply-preset"_s, u"Nope"_s, u"x.jpg"_s} << 2 << u"Nope"_s;
    }

    void headlessRequestsNeedNoDisplay()
    {
        QFETCH(QStringList, arguments);
        QTemporaryDir dir;
        const Run run = runTagsmith(arguments, dir.path(), dir.path());
        QTEST(run.exitCode, "exitCode");
        QFETCH(QString, expected);
        const QString output = run.out + run.err;
        QVERIFY2(output.contains(expected), qPrintable(output));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
