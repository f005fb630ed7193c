#include "engine/filelistmodel.h"
#include "windows/filelistview.h"
#include "windows/auxiliarywindows.h"
#include "windows/fileoperations.h"
#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowcontroller.h"
#include "windows/mainwindowmenus.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"
#include "editors/configurationviewcontroller.h"
#include "engine/editsession.h"
#include "editors/texteditor.h"
#include "engine/writequeue.h"
#include "engine/metadatareader.h"
#include "../support/fixtures.h"
#include "../support/teststore.h"
#include "values/usersettings.h"
#include "windows/addfilesnote.h"
#include "windows/fileinfocell.h"
#include "windows/resultswindow.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString Artist = u"IFD0:Artist"_s;
// A text row of its own: the artist's is part of the creators row.
const QString Software = u"IFD0:Software"_s;

QStringList names(const QList<ExifFileInfoPtr> &files)
{
    QStringList result;
    for (const ExifFileInfoPtr &file : files)
        result.append(QFileInfo(file->fileName()).fileName());
    return result;
}

// Records what the window asks of the runner ("kind options files"); the test plays
// the runner's batchFinished.
class FakeRunner : public WriteQueue
{
public:
    qsizetype saveFiles(const QList<ExifFileInfoPtr> &files, ExifOperationOption options) override
    {
        calls << u"save %1 %2"_s.arg(int(options)).arg(names(files).join(u','));
        return files.size();
    }
    qsizetype removeAllMetadata(const QList<ExifFileInfoPtr> &files,
                                ExifOperationOption options) override
    {
        calls << u"remove %1 %2"_s.arg(int(options)).arg(names(files).join(u','));
        return files.size();
    }
    QStringList calls;
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
    for (QAbstractButton *button : box ? box->buttons() : QList<QAbstractButton *>()) {
        if (button->text() == text) {
            button->click();
            return true;
        }
    }
    return false;
}

TextEditor *textRow(MainWindowController &window, const QString &key)
{
    for (FieldEditor *editor : window.configController()->fields()) {
        if (editor->field()->xmlName() == key)
            return qobject_cast<TextEditor *>(editor);
    }
    return nullptr;
}

} // namespace

class TestMainWindowController : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<MainWindowController> m_controller;
    FakeRunner *m_runner = nullptr;
    QList<bool> m_replies;

    MainWindowController &controller()
    {
        auto runner = std::make_unique<FakeRunner>();
        m_runner = runner.get();
        m_controller = std::make_unique<MainWindowController>(std::move(runner), *m_store);
        m_controller->setTerminateReply([this](bool terminate) { m_replies.append(terminate); });
        m_controller->window()->show();
        return *m_controller;
    }

    QString image(const QString &name, const QStringList &arguments = {u"-Artist=Ann"_s})
    {
        const QString path = m_dir.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        return Fixtures::makeImage(path, arguments).isEmpty() ? path : QString();
    }

    bool add(const QStringList &paths)
    {
        return m_controller->fileList()->addFiles(paths) &&
               m_controller->fileList()->waitForPendingReads();
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
        useFreshSettingsStore();
        m_store = std::make_unique<PresetStore>();
        m_replies.clear();
    }
    void cleanup()
    {
        m_controller.reset();
        m_store.reset();
    }

    void closeAnswers_data()
    {
        QTest::addColumn<bool>("quit");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("failureAnswer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QList<bool>>("replies");
        QTest::addColumn<int>("status");
        const QString none, save = u"Save"_s, cancel = u"Cancel"_s, dontSave = u"Don't Save"_s;
        // clang-format off
        QTest::newRow("clean close") << false << none << none << true << QList<bool>{} << 0;
        QTest::newRow("clean quit") << true << none << none << true << QList<bool>{true} << 1;
        QTest::newRow("don't save, close") << false << dontSave << none << true << QList<bool>{} << 0;
        QTest::newRow("don't save, quit") << true << dontSave << none << false << QList<bool>{true} << 1;
        QTest::newRow("cancel, close") << false << cancel << none << false << QList<bool>{} << 0;
        QTest::newRow("cancel, quit") << true << cancel << none << false << QList<bool>{false} << 0;
        QTest::newRow("save, close") << false << save << none << true << QList<bool>{} << 0;
        QTest::newRow("save, quit") << true << save << none << false << QList<bool>{true} << 3;
        // After a failed save "Don't Exit" keeps the window and its edits; "Exit" goes on.
        QTest::newRow("save fails, close, don't exit") << false << save << u"Don't Exit"_s << false << QList<bool>{} << 0;
        QTest::newRow("save fails, quit, don't exit") << true << save << u"Don't Exit"_s << false << QList<bool>{false} << 0;
        QTest::newRow("save fails, close, exit") << false << save << u"Exit"_s << true << QList<bool>{} << 0;
        QTest::newRow("save fails, quit, exit") << true << save << u"Exit"_s << false << QList<bool>{true} << 3;
        // clang-format on
    }

    void closeAnswers()
    {
        QFETCH(bool, quit);
        QFETCH(QString, answer);
        const bool modified = !answer.isEmpty();
        QFETCH(QString, failureAnswer);
        const bool saveFails = !failureAnswer.isEmpty();

        MainWindowController &window = controller();
        const QString path = image(u"close.jpg"_s);
        QVERIFY(add({path}));
        if (modified)
            window.fileList()->files().value(0)->setExifValue(Artist, u"Bob"_s);
        if (quit)
            window.quitRequested();

        window.window()->close();
        QCOMPARE(visibleBox(window.window()) != nullptr, modified);
        if (modified) {
            QVERIFY(clickButton(window.window(), answer));
            if (answer == u"Save"_s) {
                QCOMPARE(m_runner->calls, QStringList{u"save 1 close.jpg"_s});
                QVERIFY(window.operations()->isSaving());
                auto messages = std::make_shared<ErrorMessages>(path);
                if (saveFails)
                    messages->addError(u"Error: disk full"_s);
                else
                    messages->addWarning(u"Warning: minor"_s);
                Q_EMIT m_runner->batchFinished({{path, messages}});
                if (saveFails)
                    QVERIFY(clickButton(window.window(), failureAnswer));
            }
        }
        QTEST(!window.window()->isVisible(), "closed");
        if (failureAnswer == u"Don't Exit"_s) {
            // The edit is still there to be saved again, and the reason is on screen.
            QVERIFY(window.hasModifiedFiles() && !window.operations()->progressPanel());
            ResultsWindow *results = window.auxiliaryWindows()->resultsWindow();
            QVERIFY(results && results->isVisible());
        }
        QTEST(m_replies, "replies");
        QTEST(window.saveStatus(), "status");
    }

    // A close during a save waits for it and is then decided on what the save left.
    void quitWhileSavingWaitsForTheSave()
    {
        MainWindowController &window = controller();
        QVERIFY(add({image(u"busy.jpg"_s)}));
        const ExifFileInfoPtr file = window.fileList()->files().value(0);
        file->setExifValue(Artist, u"Bob"_s);
        window.operations()->processFiles();
        QVERIFY(window.operations()->isSaving());
        window.quitRequested();
        window.window()->close();
        QVERIFY(window.window()->isVisible() && !visibleBox(window.window()));
        file->setReadData(file->exifData()); // what a successful save leaves
        Q_EMIT m_runner->batchFinished({});
        QVERIFY(!window.operations()->isSaving() && !window.window()->isVisible());
        QCOMPARE(m_replies, QList<bool>{true});
    }

    void addingFolderTakesSupportedFilesAndSelectsThem()
    {
        MainWindowController &window = controller();
        const QString first = image(u"first.jpg"_s);
        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(first)});
        QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &dropped, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(window.fileList()->view()->viewport(), &enter);
        QCoreApplication::sendEvent(window.fileList()->view()->viewport(), &drop);
        QVERIFY(enter.isAccepted() && drop.isAccepted() &&
                window.fileList()->waitForPendingReads());
        QCOMPARE(names(window.fileList()->files()), QStringList{u"first.jpg"_s});
        QVERIFY(!image(u"shoot/a.jpg"_s).isEmpty() && !image(u"shoot/deeper/B.JPG"_s).isEmpty());
        QVERIFY(!image(u"shoot/c.png"_s, {}).isEmpty());
        QFile notes(m_dir.filePath(u"shoot/notes.txt"_s));
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("hello") == 5);
        notes.close();

        QVERIFY(add({m_dir.filePath(u"shoot"_s)}));
        const QStringList rows = names(window.fileList()->files()), added = rows.mid(1);
        QStringList sorted = added;
        sorted.sort();
        QCOMPARE(rows.first(), u"first.jpg"_s);
        QCOMPARE(sorted, (QStringList{u"B.JPG"_s, u"a.jpg"_s, u"c.png"_s}));
        QCOMPARE(names(window.fileList()->selectedFiles()), added);
        QCOMPARE(names(window.configController()->exifFiles()), added);
        const QList<FileRejection> rejected = window.fileList()->addFilesNote()->rejections();
        QCOMPARE(rejected.size(), 1);
        QCOMPARE(rejected.first().reason, FileRejection::Reason::Unsupported);

        QVERIFY(!window.fileList()->addFiles({first}) && window.fileList()->waitForPendingReads());
        QCOMPARE(window.fileList()->files().size(), 4);
        QCOMPARE(window.fileList()->addFilesNote()->rejections().value(0).reason,
                 FileRejection::Reason::AlreadyInList);
    }

    // A relative name is the current folder's, as a shell gives it; and however a file is
    // named, it is one row, the note saying which names were merged into it.
    void eachFileIsOneRowWhateverItsName()
    {
        MainWindowController &window = controller();
        const QString photo = image(u"names/d/a.jpg"_s);
        QVERIFY(QFile::link(QFileInfo(photo).path(), m_dir.filePath(u"names/link"_s)));
        QCOMPARE(::link(QFile::encodeName(photo).constData(),
                        QFile::encodeName(m_dir.filePath(u"names/hard.jpg"_s)).constData()),
                 0);
        const QString current = QDir::currentPath();
        QVERIFY(QDir::setCurrent(QFileInfo(photo).path()));
        const bool isAdded = window.fileList()->addFiles({u"a.jpg"_s, u"../d/./a.jpg"_s}) &&
                             window.fileList()->waitForPendingReads();
        const QString here = QDir::currentPath();
        QVERIFY(QDir::setCurrent(current));
        QVERIFY(isAdded);
        QCOMPARE(window.fileList()->files().size(), 1);
        QCOMPARE(window.fileList()->files().first()->fileName(), here + u"/a.jpg"_s);
        QVERIFY(window.fileList()->files().first()->originalExifData().contains(Artist));
        QCOMPARE(
            window.fileList()->addFilesNote()->detailLines(),
            QStringList{here + u"/../d/./a.jpg \u2014 the same file as "_s + here + u"/a.jpg"_s});

        const QString names = QFileInfo(here).path();
        QVERIFY(!window.fileList()->addFiles({names + u"/link/a.jpg"_s, names + u"/hard.jpg"_s}));
        QVERIFY(window.fileList()->waitForPendingReads());
        QCOMPARE(window.fileList()->files().size(), 1);
        const QString inList =
            u" \u2014 the same file as "_s + here + u"/a.jpg, already in the list"_s;
        QCOMPARE(window.fileList()->addFilesNote()->detailLines(),
                 QStringList({names + u"/link/a.jpg"_s + inList, names + u"/hard.jpg"_s + inList}));
    }

    void presetsMenuIsSortedAndAppliesToTheSelection()
    {
        for (const QString &name : {u"b"_s, u"a"_s, u"c"_s}) {
            auto preset = std::make_shared<Preset>(m_store->findUnusedNewIdentifier(), name);
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
        QCOMPARE(presetTitles(), (QStringList{u"a (removes 1 tag)"_s, u"b (removes 1 tag)"_s,
                                              u"c (removes 1 tag)"_s}));

        const QStringList tags{u"-Artist=Ann"_s, u"-Software=Editor"_s};
        QVERIFY(add({image(u"one.jpg"_s, tags), image(u"two.jpg"_s, tags)}));
        window.fileList()->selectRows({1});
        window.menus()->configsMenu()->actions().at(1)->trigger();

        const ExifFileInfoPtr one = window.fileList()->files().at(0),
                              two = window.fileList()->files().at(1);
        QCOMPARE(two->exifValue(Artist), u"Preset a"_s);
        QVERIFY(!two->hasExifValue(u"IFD0:Software"_s));
        QCOMPARE(one->exifValue(Artist), u"Ann"_s);
        const auto modified = [&window](int row) {
            return window.fileList()->model()->index(row).data(FileInfoCell::ModifiedRole).toBool();
        };
        QVERIFY(!modified(0) && modified(1) && window.window()->isWindowModified());

        // An edit made elsewhere reaches the list only through the update notification.
        one->setExifValue(Artist, u"Carl"_s);
        window.editSession()->post(Artist, {one}, u"Carl"_s, {one}, nullptr);
        QVERIFY(modified(0));

        m_store->saveConfiguration(
            std::make_shared<Preset>(m_store->findUnusedNewIdentifier(), u"0"_s));
        QCOMPARE(presetTitles(), (QStringList{u"0"_s, u"a (removes 1 tag)"_s,
                                              u"b (removes 1 tag)"_s, u"c (removes 1 tag)"_s}));
    }

    void removeAllMetadata_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("informativeText"); // how it starts
        QTest::addColumn<QString>("answer");          // "Enter": the default button
        QTest::addColumn<QStringList>("calls");
        const QString plain = u"All tags will be removed immediately."_s;
        const QString strong =
            StringTables::instance().localizedString(u"REMOVE_ALL_METADATA_WARNING2"_s);
        const QString remove = u"Remove All Metadata"_s;
        const QStringList both{u"j.jpg"_s, u"p.png"_s}, none;
        // clang-format off
        QTest::newRow("PNG") << QStringList{u"p.png"_s} << u"Remove all metadata from 1 file?"_s
                             << plain << remove << QStringList{u"remove 1 p.png"_s};
        QTest::newRow("JPEG+PNG") << both << u"Remove all metadata from 2 files?"_s << plain
                                  << remove << QStringList{u"remove 1 j.jpg,p.png"_s};
        QTest::newRow("TIFF") << QStringList{u"t.tif"_s} << u"Remove all metadata from 1 file?"_s
                              << strong << remove << QStringList{u"remove 1 t.tif"_s};
        QTest::newRow("JPEG+raw") << QStringList{u"j.jpg"_s, u"r.dng"_s}
                                  << u"Remove all metadata from 1 file?"_s
                                  << plain + u" 1 other selected file cannot lose all metadata"_s
                                  << remove << QStringList{u"remove 1 j.jpg,r.dng"_s};
        QTest::newRow("raw only") << QStringList{u"r.dng"_s} << u"Nothing to remove"_s
                                  << u"All metadata cannot be removed from the selected file"_s
                                  << u"OK"_s << none;
        QTest::newRow("declined") << both << u"Remove all metadata from 2 files?"_s << plain
                                  << u"Don't Remove"_s << none;
        QTest::newRow("Enter declines") << both << u"Remove all metadata from 2 files?"_s << plain
                                        << u"Enter"_s << none;
        // clang-format on
    }

    void removeAllMetadata()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, informativeText);
        QFETCH(QString, answer);
        MainWindowController &window = controller();
        QStringList paths;
        for (const QString &name : std::as_const(files)) {
            if (name.endsWith(u".dng"_s)) {
                // A TIFF under a raw name is a raw file to ExifTool.
                const QString tiff = image(name.chopped(3) + u"tif"_s, {});
                QFile::remove(tiff.chopped(3) + u"dng"_s);
                QVERIFY(QFile::rename(tiff, tiff.chopped(3) + u"dng"_s));
                paths.append(tiff.chopped(3) + u"dng"_s);
            } else {
                paths.append(image(name, {}));
            }
        }
        QVERIFY(add(paths));

        window.operations()->removeAllMetadata();
        QMessageBox *sheet = visibleBox(window.window());
        QVERIFY(sheet);
        QTEST(sheet->text(), "text");
        QVERIFY2(sheet->informativeText().startsWith(informativeText),
                 qPrintable(sheet->informativeText()));
        if (answer == u"Enter") {
            QTest::keyClick(sheet, Qt::Key_Return);
            QTRY_VERIFY(!sheet->isVisible());
        } else {
            QVERIFY(clickButton(window.window(), answer));
        }
        QTEST(m_runner->calls, "calls");
        if (m_runner->calls.isEmpty())
            return;
        QVERIFY(window.operations()->isSaving() && window.operations()->progressPanel());
        Q_EMIT m_runner->batchFinished({});
        QVERIFY(!window.operations()->isSaving());
        QTRY_VERIFY(!window.operations()->progressPanel());
    }

    // However the save is reached, typed text is written and announced once.
    void saveCommitsTypedTextOnce_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("Save button clicked") << u"click"_s;
        QTest::newRow("Return, then Save button") << u"return+click"_s;
        QTest::newRow("Save command, focus stays") << u"command"_s;
    }
    void saveCommitsTypedTextOnce()
    {
        QFETCH(QString, how);
        MainWindowController &window = controller();
        QVERIFY(QTest::qWaitForWindowActive(window.window()));
        QVERIFY(add({image(u"typed.jpg"_s)}));
        window.fileList()->selectRows({0});
        TextEditor *row = textRow(window, Software);
        QVERIFY(row);
        QLineEdit *edit = row->editor();
        edit->setFocus();
        QTRY_VERIFY(edit->hasFocus());
        edit->selectAll();
        QTest::keyClicks(edit, u"Bob"_s);

        QSignalSpy updates(window.editSession(), &EditSession::exifFilesUpdated);
        QSignalSpy rowsChanged(window.fileList()->model(), &QAbstractItemModel::dataChanged);
        if (how.startsWith(u"return"))
            QTest::keyClick(edit, Qt::Key_Return);
        if (how.endsWith(u"click"))
            QTest::mouseClick(static_cast<MainWindow *>(window.window())->processButton(),
                              Qt::LeftButton);
        else
            window.menus()->action(MainWindowMenus::Command::Process)->trigger();
        // The focus leaving the row afterwards ends nothing new.
        window.fileList()->view()->setFocus();
        QApplication::processEvents();

        QCOMPARE(updates.size(), 1);
        QCOMPARE(updates.first().first().value<ExifFilesUpdate>().newValue.value_or(QString()),
                 u"Bob"_s);
        QCOMPARE(rowsChanged.size(), 1);
        QCOMPARE(m_runner->calls, QStringList{u"save 1 typed.jpg"_s});
        QCOMPARE(window.fileList()->files().value(0)->exifValue(Software), u"Bob"_s);
        Q_EMIT m_runner->batchFinished({});
    }

    // Files with unsaved edits leave the list only when the user says so; others go at once.
    void removingEditedFilesAsksFirst_data()
    {
        QTest::addColumn<QString>("command");    // "remove" the selection, or "clear" the list
        QTest::addColumn<QStringList>("edited"); // of a.jpg, b.jpg, c.jpg; all three selected
        QTest::addColumn<QString>("question");   // empty: no question
        QTest::addColumn<QString>("answer");     // "Enter": the default button
        QTest::addColumn<QStringList>("left");
        const QStringList all{u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s}, none;
        const QString one = u"Remove 1 file with unsaved changes from the list?"_s;
        const QString two = u"Remove 2 files with unsaved changes from the list?"_s;
        const QString three = u"Remove 3 files with unsaved changes from the list?"_s;
        const QString remove = u"Remove from List"_s;
        for (const QString &command : {u"remove"_s, u"clear"_s}) {
            const auto row = [&command](const char *name) -> QTestData & {
                return QTest::addRow("%s: %s", qPrintable(command), name) << command;
            };
            row("none edited") << none << QString() << QString() << none;
            row("one edited, removed") << QStringList{u"b.jpg"_s} << one << remove << none;
            row("two edited, cancelled")
                << QStringList{u"a.jpg"_s, u"c.jpg"_s} << two << u"Cancel"_s << all;
            row("Enter keeps them") << QStringList{u"a.jpg"_s} << one << u"Enter"_s << all;
            // Text typed into a row for the three files counts as their edit.
            row("typed, not confirmed") << QStringList{u"typed"_s} << three << u"Cancel"_s << all;
        }
    }
    void removingEditedFilesAsksFirst()
    {
        QFETCH(QString, command);
        QFETCH(QStringList, edited);
        QFETCH(QString, question);
        QFETCH(QString, answer);
        MainWindowController &window = controller();
        QVERIFY(add({image(u"a.jpg"_s), image(u"b.jpg"_s), image(u"c.jpg"_s)}));
        for (const ExifFileInfoPtr &file : window.fileList()->files()) {
            if (edited.contains(QFileInfo(file->fileName()).fileName()))
                file->setExifValue(Artist, u"Bob"_s);
        }
        window.fileList()->selectRows({0, 1, 2});
        if (edited.contains(u"typed"_s)) {
            QLineEdit *edit = textRow(window, Software)->editor();
            edit->setFocus();
            edit->selectAll();
            QTest::keyClicks(edit, u"Bob"_s);
        }

        window.menus()
            ->action(command == u"clear" ? MainWindowMenus::Command::ClearFiles
                                         : MainWindowMenus::Command::RemoveFiles)
            ->trigger();
        QMessageBox *sheet = visibleBox(window.window());
        QCOMPARE(sheet ? sheet->text() : QString(), question);
        if (sheet) {
            QCOMPARE(sheet->defaultButton()->text(), u"Cancel"_s);
            if (answer == u"Enter") {
                QTest::keyClick(sheet, Qt::Key_Return);
                QTRY_VERIFY(!sheet->isVisible());
            } else {
                QVERIFY(clickButton(window.window(), answer));
            }
        }
        QTEST(names(window.fileList()->files()), "left");
    }

    // Reload reads in the background like an add: the window keeps turning, the rows take the
    // files' new values and lose their edits, and a file ExifTool gets stuck on is reported.
    void reloadReadsInTheBackground()
    {
        MainWindowController &window = controller();
        const QString a = image(u"reload/a.jpg"_s), b = image(u"reload/b.jpg"_s);
        QVERIFY(add({a, b}));
        window.fileList()->selectRows({0, 1});
        window.fileList()->selectedFiles().first()->setExifValue(u"IFD0:Artist"_s, u"Typed"_s);
        QVERIFY(Fixtures::runExifTool({u"-overwrite_original"_s, u"-Artist=Outside"_s, a}).ok());
        QVERIFY(QFile::remove(b));
        QCOMPARE(::mkfifo(QFile::encodeName(b).constData(), 0644), 0);

        const int limit = MetadataReader::readTimeout();
        MetadataReader::setReadTimeout(2000);
        int ticks = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, this, [&ticks] { ++ticks; });
        ticker.start(20);
        window.fileList()->reloadSelectedFiles();
        QVERIFY(window.fileList()->readQueue()->isBusy());
        QVERIFY(window.fileList()->waitForPendingReads());
        const QStringList note = window.fileList()->addFilesNote()->detailLines();
        MetadataReader::setReadTimeout(limit);

        QVERIFY2(ticks > 30, qPrintable(QString::number(ticks))); // not frozen for 2 s
        QCOMPARE(window.fileList()->files().size(), 1);
        QCOMPARE(window.fileList()->selectedFiles().size(), 1);
        QCOMPARE(window.fileList()->selectedFiles().first()->exifValue(u"IFD0:Artist"_s),
                 u"Outside"_s);
        QVERIFY(!window.window()->isWindowModified());
        QCOMPARE(note, QStringList{b + u" \u2014 reading it took longer than 2 seconds"_s});
    }

    void fileListModelKeepsRowsConsistent()
    {
        FileListModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QList<ExifFileInfoPtr> files;
        for (int i = 0; i < 5; ++i) {
            files.append(std::make_shared<ExifFileInfo>(u"/photos/IMG_%1.jpg"_s.arg(i)));
            files.last()->setReadData({{Artist, u"Ann"_s}});
        }
        model.appendFiles(files.mid(0, 3));
        model.appendFiles(files.mid(3));
        model.removeRowsAt({3, 0, 3, 9}); // duplicates and rows past the end are ignored
        QCOMPARE(names(model.files()),
                 (QStringList{u"IMG_1.jpg"_s, u"IMG_2.jpg"_s, u"IMG_4.jpg"_s}));
        QCOMPARE(model.rowOf(u"/photos/IMG_4.jpg"_s), 2);

        auto fresh = std::make_shared<ExifFileInfo>(files.at(2)->fileName());
        fresh->setReadData({{Artist, u"Ann"_s}});
        fresh->setExifValue(Artist, u"Bob"_s);
        model.replaceFile(1, fresh);
        QCOMPARE(model.index(1).data(FileInfoCell::ModifiedRole), true);
        QCOMPARE(model.index(0).data(FileInfoCell::ModifiedRole), false);
        QCOMPARE(model.rowOf(fresh->fileName()), 1);
        QCOMPARE(model.rowOf(files.at(0)->fileName()), -1);

        // The replaced record repaints nothing; the three listed rows repaint as one run.
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.refreshFiles({files.at(4), files.at(2), files.at(1), fresh});
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 0);
        QCOMPARE(changed.at(0).at(1).toModelIndex().row(), 2);
    }
};

QTEST_MAIN(TestMainWindowController)
#include "tst_mainwindowcontroller.moc"
