#include "app/filelistmodel.h"
#include "app/filelistview.h"
#include "app/mainwindowcontroller.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"
#include "editors/configurationviewcontroller.h"
#include "editors/exiffilesupdate.h"
#include "engine/exifbackgroundrunner.h"
#include "../support/fixtures.h"
#include "values/usersettings.h"
#include "windows/addfilesnote.h"
#include "windows/fileinfocell.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString Artist = u"IFD0:Artist"_s;

// Records what the window asks of the runner; the test plays the runner's finishProcessing.
class FakeRunner : public ExifBackgroundRunner
{
public:
    struct Call
    {
        QString kind;
        QStringList files;
        quint32 options = 0;
    };

    qsizetype saveFiles(const QList<ExifFileInfoPtr> &files, quint32 options) override
    {
        return record(u"save"_s, files, options);
    }
    qsizetype removeAllMetadata(const QList<ExifFileInfoPtr> &files, quint32 options) override
    {
        return record(u"remove"_s, files, options);
    }
    qsizetype removeMakerNotesFromFiles(const QList<ExifFileInfoPtr> &files,
                                        quint32 options) override
    {
        return record(u"makernotes"_s, files, options);
    }

    QList<Call> calls;

private:
    qsizetype record(const QString &kind, const QList<ExifFileInfoPtr> &files, quint32 options)
    {
        Call call{kind, {}, options};
        for (const ExifFileInfoPtr &file : files)
            call.files.append(QFileInfo(file->fileName()).fileName());
        calls.append(call);
        return files.size();
    }
};

QMessageBox *visibleBox(QWidget *window)
{
    for (QMessageBox *box : window->findChildren<QMessageBox *>()) {
        if (box->isVisible())
            return box;
    }
    return nullptr;
}

bool clickButton(QWidget *window, const QString &text)
{
    QMessageBox *box = visibleBox(window);
    if (!box)
        return false;
    for (QAbstractButton *button : box->buttons()) {
        if (button->text() == text) {
            button->click();
            return true;
        }
    }
    return false;
}

QStringList names(const QList<ExifFileInfoPtr> &files)
{
    QStringList result;
    for (const ExifFileInfoPtr &file : files)
        result.append(QFileInfo(file->fileName()).fileName());
    return result;
}

} // namespace

class TestMainWindowController : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_number = 0;
    std::unique_ptr<ExifSettings> m_store;
    std::unique_ptr<MainWindowController> m_controller;
    FakeRunner *m_runner = nullptr;
    QList<bool> m_replies;

    MainWindowController &controller()
    {
        auto runner = std::make_unique<FakeRunner>();
        m_runner = runner.get();
        m_controller = std::make_unique<MainWindowController>(nullptr, std::move(runner), *m_store);
        m_controller->setTerminateReply([this](bool terminate) { m_replies.append(terminate); });
        m_controller->window()->show();
        return *m_controller;
    }

    QString image(const QString &name, const QStringList &arguments = {u"-Artist=Ann"_s})
    {
        const QString path = m_dir.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        const QString failure = Fixtures::makeImage(path, arguments);
        return failure.isEmpty() ? path : QString();
    }

    // Adds and waits for the read; the paths must be new.
    bool add(const QStringList &paths)
    {
        return m_controller->addFiles(paths) && m_controller->waitForPendingReads();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QVERIFY(m_dir.isValid());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }
    void init()
    {
        UserSettings::setStoreFile(m_dir.filePath(u"store-%1.ini"_s.arg(++m_number)));
        m_store = std::make_unique<ExifSettings>();
        m_replies.clear();
    }
    void cleanup()
    {
        m_controller.reset();
        m_store.reset();
    }
    void cleanupTestCase() { UserSettings::setStoreFile(QString()); }

    void closeAnswers_data()
    {
        QTest::addColumn<bool>("quit");
        QTest::addColumn<bool>("modified");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("saveFails");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QList<bool>>("replies");
        QTest::addColumn<int>("status");
        const QString none, save = u"Save"_s, cancel = u"Cancel"_s, dontSave = u"Don't Save"_s;
        // clang-format off
        QTest::newRow("clean close") << false << false << none << false << true << QList<bool>{} << 0;
        QTest::newRow("clean quit") << true << false << none << false << true << QList<bool>{true} << 1;
        QTest::newRow("don't save, close") << false << true << dontSave << false << true << QList<bool>{} << 0;
        QTest::newRow("don't save, quit") << true << true << dontSave << false << false << QList<bool>{true} << 1;
        QTest::newRow("cancel, close") << false << true << cancel << false << false << QList<bool>{} << 0;
        QTest::newRow("cancel, quit") << true << true << cancel << false << false << QList<bool>{false} << 0;
        QTest::newRow("save, close") << false << true << save << false << true << QList<bool>{} << 0;
        QTest::newRow("save, quit") << true << true << save << false << false << QList<bool>{true} << 3;
        // "Don't Exit" has always exited: the kept quirk of the failed-save alert.
        QTest::newRow("save fails, close") << false << true << save << true << true << QList<bool>{} << 0;
        QTest::newRow("save fails, quit") << true << true << save << true << false << QList<bool>{true} << 3;
        // clang-format on
    }

    void closeAnswers()
    {
        QFETCH(bool, quit);
        QFETCH(bool, modified);
        QFETCH(QString, answer);
        QFETCH(bool, saveFails);

        MainWindowController &window = controller();
        const QString path = image(u"close.jpg"_s);
        QVERIFY(add({path}));
        const ExifFileInfoPtr file = window.files().value(0);
        QVERIFY(file);
        if (modified)
            file->setExifValue(Artist, u"Bob"_s);
        if (quit)
            window.setSaveStatus(MainWindowController::QuitWaiting);

        window.window()->close();
        QCOMPARE(visibleBox(window.window()) != nullptr, modified);
        if (!answer.isEmpty()) {
            QVERIFY(clickButton(window.window(), answer));
            if (answer == u"Save"_s) {
                QCOMPARE(m_runner->calls.size(), 1);
                QCOMPARE(m_runner->calls.first().kind, u"save"_s);
                QCOMPARE(m_runner->calls.first().files, QStringList{u"close.jpg"_s});
                QCOMPARE(m_runner->calls.first().options, 1u);
                QVERIFY(window.isSaving());
                QHash<QString, ErrorMessagesPtr> results;
                auto messages = std::make_shared<ErrorMessages>(path);
                if (saveFails)
                    messages->addError(u"Error: disk full"_s);
                else
                    messages->addWarning(u"Warning: minor"_s);
                results.insert(path, messages);
                window.finishProcessing(results);
                if (saveFails)
                    QVERIFY(clickButton(window.window(), u"Don't Exit"_s));
            }
        }
        QTEST(!window.window()->isVisible(), "closed");
        QTEST(m_replies, "replies");
        QTEST(window.saveStatus(), "status");
    }

    // A close during a save waits for it and is then decided on what the save left.
    void quitWhileSavingWaitsForTheSave()
    {
        MainWindowController &window = controller();
        QVERIFY(add({image(u"busy.jpg"_s)}));
        const ExifFileInfoPtr file = window.files().value(0);
        file->setExifValue(Artist, u"Bob"_s);
        window.processFiles();
        QVERIFY(window.isSaving() && window.progressPanel());

        window.setSaveStatus(MainWindowController::QuitWaiting);
        window.window()->close();
        QVERIFY(window.window()->isVisible());
        QVERIFY(!visibleBox(window.window()));

        file->setReadData(file->exifData()); // what a successful save leaves
        window.finishProcessing({});
        QVERIFY(!window.isSaving());
        QVERIFY(!window.window()->isVisible());
        QCOMPARE(m_replies, QList<bool>{true});
    }

    void addingFolderTakesSupportedFilesAndSelectsThem()
    {
        MainWindowController &window = controller();
        // The first one comes by drag and drop.
        const QString first = image(u"first.jpg"_s);
        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(first)});
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &dropped, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(window.filesTable()->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QCoreApplication::sendEvent(window.filesTable()->viewport(), &drop);
        QVERIFY(drop.isAccepted());
        QVERIFY(window.waitForPendingReads());
        QCOMPARE(names(window.files()), QStringList{u"first.jpg"_s});
        const QString folder = m_dir.filePath(u"shoot"_s);
        QVERIFY(!image(u"shoot/a.jpg"_s).isEmpty());
        QVERIFY(!image(u"shoot/deeper/B.JPG"_s).isEmpty());
        QVERIFY(!image(u"shoot/c.png"_s, {}).isEmpty());
        QFile notes(m_dir.filePath(u"shoot/notes.txt"_s));
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("hello") == 5);
        notes.close();

        QVERIFY(add({folder}));
        QStringList rows = names(window.files());
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows.first(), u"first.jpg"_s);
        QStringList added = rows.mid(1);
        added.sort();
        QCOMPARE(added, (QStringList{u"B.JPG"_s, u"a.jpg"_s, u"c.png"_s}));
        QCOMPARE(names(window.selectedFiles()), rows.mid(1));
        QCOMPARE(names(window.configController()->exifFiles()), rows.mid(1));
        const QList<FileRejection> rejected = window.addFilesNote()->rejections();
        QCOMPARE(rejected.size(), 1);
        QCOMPARE(QFileInfo(rejected.first().path).fileName(), u"notes.txt"_s);
        QCOMPARE(rejected.first().reason, FileRejection::Reason::Unsupported);

        // The same file again keeps its one row, and the user is told why.
        QVERIFY(!window.addFiles({first}));
        QVERIFY(window.waitForPendingReads());
        QCOMPARE(window.files().size(), 4);
        QCOMPARE(window.addFilesNote()->rejections().value(0).reason,
                 FileRejection::Reason::AlreadyInList);
    }

    void presetsMenuIsSortedAndAppliesToTheSelection()
    {
        for (const QString &name : {u"b"_s, u"a"_s, u"c"_s}) {
            auto preset =
                std::make_shared<ExifConfiguration>(m_store->findUnusedNewIdentifier(), name);
            preset->changedValues().insert(Artist, u"Preset "_s + name);
            preset->removedValues().insert(u"IFD0:Software"_s);
            m_store->saveConfiguration(preset);
        }
        MainWindowController &window = controller();
        const auto presetTitles = [&window] {
            QStringList titles;
            for (QAction *action : window.menus()->configsMenu()->actions().mid(1))
                titles.append(action->text());
            return titles;
        };
        QCOMPARE(presetTitles(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));

        const QStringList tags{u"-Artist=Ann"_s, u"-Software=Editor"_s};
        QVERIFY(add({image(u"one.jpg"_s, tags), image(u"two.jpg"_s, tags)}));
        window.selectRows({1});
        QCOMPARE(window.model()->data(window.model()->index(1), FileInfoCell::ModifiedRole), false);
        window.menus()->configsMenu()->actions().at(1)->trigger();

        const ExifFileInfoPtr one = window.files().at(0), two = window.files().at(1);
        QCOMPARE(two->exifValue(Artist), u"Preset a"_s);
        QVERIFY(!two->hasExifValue(u"IFD0:Software"_s));
        QCOMPARE(one->exifValue(Artist), u"Ann"_s);
        const auto modified = [&window](int row) {
            return window.model()->data(window.model()->index(row), FileInfoCell::ModifiedRole);
        };
        QCOMPARE(modified(0), false);
        QCOMPARE(modified(1), true);
        QVERIFY(window.window()->isWindowModified());

        // An edit elsewhere reaches the list through the update notification.
        QSignalSpy changed(window.model(), &QAbstractItemModel::dataChanged);
        one->setExifValue(Artist, u"Carl"_s);
        ExifFilesUpdateCenter::instance().post(Artist, {one}, u"Carl"_s, {one}, nullptr);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(modified(0), true);

        // A preset saved later joins the menu in its place.
        m_store->saveConfiguration(
            std::make_shared<ExifConfiguration>(m_store->findUnusedNewIdentifier(), u"0"_s));
        QCOMPARE(presetTitles(), (QStringList{u"0"_s, u"a"_s, u"b"_s, u"c"_s}));
    }

    void removeAllMetadata_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("informativeText");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("removed");
        const QString plain = u"All tags will be removed imediatelly."_s;
        const QString strong =
            StringTables::instance().localizedString(u"REMOVE_ALL_METADATA_WARNING2"_s);
        const QString remove = u"Remove All Metadata"_s;
        QTest::newRow("only PNG: nothing happens")
            << QStringList{u"p.png"_s} << QString() << QString() << QStringList();
        QTest::newRow("JPEG and PNG: both go") << QStringList{u"j.jpg"_s, u"p.png"_s} << plain
                                               << remove << QStringList{u"j.jpg"_s, u"p.png"_s};
        QTest::newRow("TIFF gets the stronger warning")
            << QStringList{u"t.tif"_s} << strong << remove << QStringList{u"t.tif"_s};
        QTest::newRow("declined") << QStringList{u"j.jpg"_s} << plain << u"Don't Remove"_s
                                  << QStringList();
    }

    void removeAllMetadata()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, informativeText);
        QFETCH(QStringList, removed);
        MainWindowController &window = controller();
        QStringList paths;
        for (const QString &name : std::as_const(files))
            paths.append(image(name, {}));
        QVERIFY(add(paths));
        QCOMPARE(window.selectedFiles().size(), files.size());

        window.removeAllMetadata();
        QMessageBox *sheet = visibleBox(window.window());
        QCOMPARE(sheet ? sheet->informativeText() : QString(), informativeText);
        if (sheet) {
            QCOMPARE(sheet->text(), u"Do you want to remove all metadata?"_s);
            QFETCH(QString, answer);
            QVERIFY(clickButton(window.window(), answer));
        }
        QCOMPARE(m_runner->calls.size(), removed.isEmpty() ? 0 : 1);
        if (removed.isEmpty())
            return;
        QCOMPARE(m_runner->calls.first().kind, u"remove"_s);
        QCOMPARE(m_runner->calls.first().files, removed);
        QCOMPARE(m_runner->calls.first().options, 1u);
        QVERIFY(window.isSaving() && window.progressPanel());
        window.finishProcessing({});
        QVERIFY(!window.isSaving());
        QTRY_VERIFY(!window.progressPanel());
    }

    void fileListModelKeepsRowsConsistent()
    {
        FileListModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QList<ExifFileInfoPtr> files;
        for (int i = 0; i < 5; ++i) {
            files.append(std::make_shared<ExifFileInfo>(u"/photos/day %1/IMG_%1.jpg"_s.arg(i)));
            files.last()->setReadData({{Artist, u"Ann"_s}});
        }
        model.appendFiles(files.mid(0, 3));
        model.appendFiles(files.mid(3));
        model.removeRowsAt({3, 0, 3, 9});
        QCOMPARE(names(model.files()),
                 (QStringList{u"IMG_1.jpg"_s, u"IMG_2.jpg"_s, u"IMG_4.jpg"_s}));
        QCOMPARE(model.rowOf(u"/photos/day 4/IMG_4.jpg"_s), 2);

        auto fresh = std::make_shared<ExifFileInfo>(files.at(2)->fileName());
        fresh->setReadData({{Artist, u"Ann"_s}});
        fresh->setExifValue(Artist, u"Bob"_s);
        model.replaceFile(1, fresh);
        const QModelIndex row = model.index(1);
        QCOMPARE(row.data(Qt::DisplayRole), u"IMG_2.jpg"_s);
        QCOMPARE(row.data(FileInfoCell::SubtitleRole), u"/photos/day 2"_s);
        QCOMPARE(row.data(FileInfoCell::PathRole), fresh->fileName());
        QCOMPARE(row.data(FileInfoCell::ModifiedRole), true);
        QCOMPARE(model.index(0).data(FileInfoCell::ModifiedRole), false);
        model.setFiles({});
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_MAIN(TestMainWindowController)
#include "tst_mainwindowcontroller.moc"
