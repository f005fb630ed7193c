#include "windows/preferenceswindow.h"
#include "app/application.h"
#include "catalogue/presetstore.h"
#include "values/debugmode.h"
#include "values/usersettings.h"

#include "../support/teststore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

class FakeMainWindow : public AppMainWindow
{
public:
    QWidget *window() override { return &widget; }
    bool hasModifiedFiles() const override { return dirty; }
    void quitRequested() override { saveStatus = 1; }
    bool openFile(const QString &path) override
    {
        openedFiles.append(path);
        return true;
    }
    bool openFiles(const QStringList &paths, const QList<FileRejection> &turnedAway) override
    {
        openedFiles.append(paths);
        rejected.append(turnedAway);
        return true;
    }

    bool dirty = false;
    int saveStatus = 0;
    QStringList openedFiles;
    QList<FileRejection> rejected;
    QWidget widget;
};

// arguments: a QStringList, or the bytes of a QList<QByteArray>.
template <typename Arguments = QStringList>
FakeMainWindow *start(Application &delegate, const Arguments &arguments)
{
    FakeMainWindow *fake = nullptr;
    delegate.setMainWindowFactory([&fake](Application &) {
        auto window = std::make_unique<FakeMainWindow>();
        fake = window.get();
        return window;
    });
    delegate.applicationWillFinishLaunching(arguments);
    return fake;
}

} // namespace

class TestApplication : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { useFreshSettingsStore(); }

    void hasArgument_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("found");
        const auto row = [](const char *name, QStringList arguments, bool found) {
            QTest::newRow(name) << arguments << found;
        };
        row("among files", {u"tagsmith"_s, u"a.jpg"_s, u"-debug"_s, u"b.jpg"_s}, true);
        row("as program path", {u"-debug"_s}, true);
        row("capital", {u"tagsmith"_s, u"-Debug"_s}, false);
        row("with value", {u"tagsmith"_s, u"-debug=1"_s}, false);
        row("in a path", {u"tagsmith"_s, u"/photos/-debug/a.jpg"_s}, false);
    }

    void hasArgument()
    {
        QFETCH(QStringList, arguments);
        QTEST(Application::hasArgument(u"-debug"_s, arguments), "found");
    }

    void startUpLoadsPresetsAndHandsOverFiles()
    {
        UserSettings::setValue(u"settings-names"_s, u"configuration-4"_s);
        UserSettings::setValue(u"configuration-4"_s,
                               u"<configuration name=\"Rome\" identifier=\"configuration-4\">"
                               "<field-modification name=\"IPTC:City\">Roma</field-modification>"
                               "</configuration>"_s);

        Application delegate;
        FakeMainWindow *fake =
            start(delegate, {u"tagsmith"_s, u"/photos/a.jpg"_s, u"-debug"_s, u"/photos/b b.nef"_s});
        QVERIFY(fake && fake->window()->isVisible());
        QCOMPARE(fake->openedFiles, (QStringList{u"/photos/a.jpg"_s, u"/photos/b b.nef"_s}));
        const auto preset = PresetStore::instance().loadConfiguration(u"configuration-4"_s);
        QVERIFY(preset);
        QCOMPARE(preset->changedValues().value(u"IPTC:City"_s), u"Roma"_s);
        QVERIFY(delegate.debug() && DebugMode::isEnabled());
    }

    // A shell hands over names relative to its folder, as bytes that need not be UTF-8.
    void commandLineNamesAreTheCurrentFoldersAndMayBeNoUtf8()
    {
        const QString current = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_dir.path()));
        Application delegate;
        FakeMainWindow *fake =
            start(delegate, QList<QByteArray>{"tagsmith", "a.jpg", ".", "caf\xe9.jpg", "-debug"});
        const QString here = QDir::currentPath();
        QVERIFY(QDir::setCurrent(current));
        QVERIFY(fake && delegate.debug());
        QCOMPARE(fake->openedFiles, (QStringList{here + u"/a.jpg"_s, here + u"/."_s}));
        QCOMPARE(fake->rejected.size(), 1);
        QCOMPARE(fake->rejected.first().path, here + u"/caf\ufffd.jpg"_s);
        QCOMPARE(fake->rejected.first().reason, FileRejection::Reason::InvalidName);
    }

    // With unsaved changes the main window is asked to close, so that it can put its question.
    void quitWaitsForTheMainWindowOnlyWithChanges()
    {
        for (const bool dirty : {false, true}) {
            Application delegate;
            FakeMainWindow *fake = start(delegate, {u"tagsmith"_s});
            fake->dirty = dirty;
            QCOMPARE(delegate.applicationShouldTerminate(),
                     dirty ? Application::TerminateReply::TerminateLater
                           : Application::TerminateReply::TerminateNow);
            QCOMPARE(fake->saveStatus, dirty ? 1 : 0);
            QCOMPARE(fake->window()->isVisible(), !dirty);
        }
    }

    void preferencesEditTheStoreAndOnlyHide()
    {
        Application delegate;
        delegate.showPreferences();
        QPointer<PreferencesWindow> window = delegate.preferencesWindow();
        QVERIFY(window && window->isVisible());
        auto *box = window->findChild<QComboBox *>(UserSettings::FileCreateDate);
        QVERIFY(box);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(UserSettings::value(UserSettings::FileCreateDate).toInt(), 1);
        QTest::mouseClick(window->findChild<QCheckBox *>(UserSettings::ForceFixBase),
                          Qt::LeftButton);
        QCOMPARE(UserSettings::value(UserSettings::ForceFixBase).toBool(), true);
        window->close();

        // Changed elsewhere while hidden: the next opening shows the store, not the old state.
        UserSettings::setValue(UserSettings::ForceFixBase, false);
        delegate.showPreferences();
        QCOMPARE(delegate.preferencesWindow(), window.data());
        QVERIFY(!window->findChild<QCheckBox *>(UserSettings::ForceFixBase)->isChecked());
    }

    void preferencesShowUnknownNumbersByMeaning()
    {
        UserSettings::setValue(UserSettings::GpsFormat, 7);
        UserSettings::setValue(UserSettings::FileModifyDate, 9);
        PreferencesWindow window;
        window.showWindow();
        QCOMPARE(window.findChild<QComboBox *>(UserSettings::GpsFormat)->currentData().toInt(), 0);
        QCOMPARE(window.findChild<QComboBox *>(UserSettings::FileModifyDate)->currentData().toInt(),
                 2);
        // Showing them is no reason to rewrite what the user stored.
        QCOMPARE(QSettings(UserSettings::storeFile(), QSettings::IniFormat)
                     .value(UserSettings::FileModifyDate)
                     .toInt(),
                 9);
    }

    void preferencesShowTheExifToolVersion_data()
    {
        QTest::addColumn<QString>("printed"); // empty: the bundled ExifTool
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("warns");
        QTest::newRow("bundled") << QString() << u"13.59"_s << false;
        QTest::newRow("old release") << u"12.57"_s << u"12.57"_s << true;
    }

    void preferencesShowTheExifToolVersion()
    {
        QFETCH(QString, printed);
        QFETCH(QString, shown);
        QFETCH(bool, warns);
        QString program = exifToolPath();
        if (!printed.isEmpty()) {
            QFile script(program = m_dir.filePath(u"exiftool-"_s + printed));
            QVERIFY(script.open(QIODevice::WriteOnly));
            script.write("#!/bin/sh\necho " + printed.toLatin1() + "\n");
            script.close();
            script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        PreferencesWindow window(program);
        window.showWindow();
        auto *version = window.findChild<QLabel *>(u"exifToolVersion"_s);
        auto *warning = window.findChild<QLabel *>(u"warning"_s);
        QVERIFY(version && warning);
        QTRY_VERIFY_WITH_TIMEOUT(version->text().contains(shown), 20000);
        QCOMPARE(warning->isVisible(), warns);
    }
};

QTEST_MAIN(TestApplication)
#include "tst_application.moc"
