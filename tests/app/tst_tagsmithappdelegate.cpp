#include "app/preferenceswindowcontroller.h"
#include "app/tagsmithappdelegate.h"
#include "catalogue/exifsettings.h"
#include "values/usersettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>

namespace {

class FakeMainWindow : public AppMainWindow
{
public:
    QWidget *window() override { return &m_window; }
    bool hasDiretyFiles() const override { return dirty; }
    void setSaveStatus(int status) override { saveStatus = status; }
    bool openFile(const QString &path) override
    {
        openedFiles.append(path);
        return true;
    }

    bool dirty = false;
    int saveStatus = 0;
    QStringList openedFiles;

private:
    QWidget m_window;
};

} // namespace

class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;

public Q_SLOTS:
    void handle(const QUrl &url) { urls.append(url); }
};

class TestTagsmithAppDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void hasArgument_data();
    void hasArgument();
    void startUpLoadsPresetsAndHandsOverFiles();
    void quitWaitsForTheMainWindowOnlyWithChanges_data();
    void quitWaitsForTheMainWindowOnlyWithChanges();
    void webPagesOpenInTheBrowser();
    void preferencesEditTheStoreAndOnlyHide();
    void preferencesShowUnknownNumbersByMeaning();
    void preferencesShowTheExifToolVersion_data();
    void preferencesShowTheExifToolVersion();

private:
    FakeMainWindow *startDelegate(TagsmithAppDelegate &delegate, const QStringList &arguments);

    QTemporaryDir m_dir;
    int m_storeNumber = 0;
};

void TestTagsmithAppDelegate::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(m_dir.isValid());
}

void TestTagsmithAppDelegate::init()
{
    UserSettings::setStoreFile(m_dir.filePath(QStringLiteral("store-%1.ini").arg(++m_storeNumber)));
}

void TestTagsmithAppDelegate::cleanupTestCase()
{
    UserSettings::setStoreFile(QString());
}

FakeMainWindow *TestTagsmithAppDelegate::startDelegate(TagsmithAppDelegate &delegate,
                                                       const QStringList &arguments)
{
    FakeMainWindow *fake = nullptr;
    delegate.setMainWindowFactory([&fake](TagsmithAppDelegate &) {
        auto window = std::make_unique<FakeMainWindow>();
        fake = window.get();
        return window;
    });
    delegate.applicationWillFinishLaunching(arguments);
    return fake;
}

void TestTagsmithAppDelegate::hasArgument_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("found");

    const QString program = QStringLiteral("/usr/bin/tagsmith");
    QTest::newRow("alone") << QStringList{program, QStringLiteral("-debug")} << true;
    QTest::newRow("among files") << QStringList{program, QStringLiteral("a.jpg"),
                                                QStringLiteral("-debug"), QStringLiteral("b.jpg")}
                                 << true;
    QTest::newRow("twice") << QStringList{program, QStringLiteral("-debug"),
                                          QStringLiteral("-debug")}
                           << true;
    QTest::newRow("as the program path") << QStringList{QStringLiteral("-debug")} << true;
    QTest::newRow("absent") << QStringList{program, QStringLiteral("a.jpg")} << false;
    QTest::newRow("capital D") << QStringList{program, QStringLiteral("-Debug")} << false;
    QTest::newRow("two dashes") << QStringList{program, QStringLiteral("--debug")} << false;
    QTest::newRow("with a value") << QStringList{program, QStringLiteral("-debug=1")} << false;
    QTest::newRow("with a blank") << QStringList{program, QStringLiteral("-debug ")} << false;
    QTest::newRow("inside a file name")
        << QStringList{program, QStringLiteral("/photos/-debug/a.jpg")} << false;
}

void TestTagsmithAppDelegate::hasArgument()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, found);

    QCOMPARE(TagsmithAppDelegate::hasArgument(QStringLiteral("-debug"), arguments), found);
}

void TestTagsmithAppDelegate::startUpLoadsPresetsAndHandsOverFiles()
{
    UserSettings::openStore()->setValue(QStringLiteral("settings-names"),
                                        QStringLiteral("configuration-4"));
    UserSettings::openStore()->setValue(
        QStringLiteral("configuration-4"),
        QStringLiteral("\n<configuration name=\"Rome\" identifier=\"configuration-4\">\n "
                       "<field-modification name=\"IPTC:City\">Roma</field-modification>\n"
                       "</configuration>"));

    TagsmithAppDelegate delegate;
    FakeMainWindow *fake =
        startDelegate(delegate, {QStringLiteral("tagsmith"), QStringLiteral("/photos/a.jpg"),
                                 QStringLiteral("-debug"), QStringLiteral("/photos/b b.nef")});

    QVERIFY(fake);
    QVERIFY(fake->window()->isVisible());
    QCOMPARE(fake->openedFiles,
             (QStringList{QStringLiteral("/photos/a.jpg"), QStringLiteral("/photos/b b.nef")}));
    const ExifConfigurationPtr preset =
        ExifSettings::instance().loadConfiguration(QStringLiteral("configuration-4"));
    QVERIFY(preset);
    QCOMPARE(preset->changedValues().value(QStringLiteral("IPTC:City")), QStringLiteral("Roma"));

    QVERIFY(delegate.debug());
}

void TestTagsmithAppDelegate::quitWaitsForTheMainWindowOnlyWithChanges_data()
{
    QTest::addColumn<bool>("dirty");
    QTest::addColumn<TagsmithAppDelegate::TerminateReply>("reply");
    QTest::addColumn<int>("saveStatus");

    QTest::newRow("no changes") << false << TagsmithAppDelegate::TerminateReply::TerminateNow << 0;
    QTest::newRow("unsaved changes")
        << true << TagsmithAppDelegate::TerminateReply::TerminateLater << 1;
}

void TestTagsmithAppDelegate::quitWaitsForTheMainWindowOnlyWithChanges()
{
    QFETCH(bool, dirty);
    QFETCH(TagsmithAppDelegate::TerminateReply, reply);
    QFETCH(int, saveStatus);

    TagsmithAppDelegate delegate;
    FakeMainWindow *fake = startDelegate(delegate, {QStringLiteral("tagsmith")});
    fake->dirty = dirty;
    QCOMPARE(delegate.applicationShouldTerminate(), reply);
    QCOMPARE(fake->saveStatus, saveStatus);
    // The main window is asked to close so it can put its save question.
    QCOMPARE(fake->window()->isVisible(), !dirty);
}

void TestTagsmithAppDelegate::webPagesOpenInTheBrowser()
{
    UrlRecorder recorder;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), &recorder, "handle");

    TagsmithAppDelegate delegate;
    delegate.showHelp();
    delegate.openSupportPage();
    delegate.openWebSite();
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));

    QCOMPARE(recorder.urls, (QList<QUrl>{QUrl(QStringLiteral("https://tagsmith.org/help")),
                                         QUrl(QStringLiteral("https://tagsmith.org/support")),
                                         QUrl(QStringLiteral("https://tagsmith.org"))}));
}

void TestTagsmithAppDelegate::preferencesEditTheStoreAndOnlyHide()
{
    TagsmithAppDelegate delegate;
    delegate.showPreferences();
    QPointer<PreferencesWindowController> window = delegate.preferencesWindowController();
    QVERIFY(window && window->isVisible());

    for (const QString &key :
         {UserSettings::GpsFormat, UserSettings::FileModifyDate, UserSettings::FileCreateDate}) {
        auto *box = window->findChild<QComboBox *>(key);
        QVERIFY2(box, qPrintable(key));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(UserSettings::value(key).toInt(), 1);
    }
    for (const QString &key : {UserSettings::ForceFixBase, UserSettings::IgnoreMinorErrors}) {
        auto *flag = window->findChild<QCheckBox *>(key);
        QVERIFY2(flag, qPrintable(key));
        QTest::mouseClick(flag, Qt::LeftButton);
        QCOMPARE(UserSettings::value(key).toBool(), true);
    }

    window->close();

    // Changed elsewhere while hidden: the next opening shows the store, not the old state.
    UserSettings::setValue(UserSettings::ForceFixBase, false);
    delegate.showPreferences();
    QCOMPARE(delegate.preferencesWindowController(), window.data());
    QVERIFY(!window->findChild<QCheckBox *>(UserSettings::ForceFixBase)->isChecked());
}

void TestTagsmithAppDelegate::preferencesShowUnknownNumbersByMeaning()
{
    UserSettings::setValue(UserSettings::GpsFormat, 7);
    UserSettings::setValue(UserSettings::FileModifyDate, 9);

    PreferencesWindowController window;
    window.showWindow();
    QCOMPARE(window.findChild<QComboBox *>(UserSettings::GpsFormat)->currentData().toInt(), 0);
    QCOMPARE(window.findChild<QComboBox *>(UserSettings::FileModifyDate)->currentData().toInt(), 2);
    // Showing them is no reason to rewrite what the user stored.
    QCOMPARE(UserSettings::openStore()->value(UserSettings::GpsFormat).toInt(), 7);
    QCOMPARE(UserSettings::openStore()->value(UserSettings::FileModifyDate).toInt(), 9);
}

void TestTagsmithAppDelegate::preferencesShowTheExifToolVersion_data()
{
    QTest::addColumn<QString>("printedVersion");
    QTest::addColumn<QString>("shownVersion");
    QTest::addColumn<bool>("warns");

    QTest::newRow("bundled") << QString() << QStringLiteral("13.59") << false;
    QTest::newRow("old release") << QStringLiteral("12.57") << QStringLiteral("12.57") << true;
}

void TestTagsmithAppDelegate::preferencesShowTheExifToolVersion()
{
    QFETCH(QString, printedVersion);
    QFETCH(QString, shownVersion);
    QFETCH(bool, warns);

    QString program = exifToolPath();
    if (!printedVersion.isEmpty()) {
        program = m_dir.filePath(QStringLiteral("exiftool-%1").arg(printedVersion));
        QFile script(program);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho " + printedVersion.toLatin1() + "\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    PreferencesWindowController window(program);
    window.showWindow();
    auto *version = window.findChild<QLabel *>(QStringLiteral("exifToolVersion"));
    auto *warning = window.findChild<QLabel *>(QStringLiteral("warning"));
    QVERIFY(version && warning);
    QTRY_VERIFY_WITH_TIMEOUT(version->text().contains(shownVersion), 20000);
    QCOMPARE(warning->isVisible(), warns);
    if (warns)
        QVERIFY(warning->text().contains(QStringLiteral("ARW")));
}

QTEST_MAIN(TestTagsmithAppDelegate)
#include "tst_tagsmithappdelegate.moc"
