#include "app/mainwindowcontroller.h"

#include "app/filelistmodel.h"
#include "app/filelistview.h"
#include "app/mainwindow.h"
#include "app/previewpanel.h"
#include "catalogue/stringtables.h"
#include "catalogue/ui/presetswindowcontroller.h"
#include "controls/indeterminateprogressindicatorcell.h"
#include "editors/configurationviewcontroller.h"
#include "engine/editsession.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exifutil.h"
#include "engine/fileadmission.h"
#include "windows/addfilesnote.h"
#include "windows/fileinfocell.h"
#include "windows/mapwindowcontroller.h"
#include "windows/quicklookimagecache.h"
#include "windows/resultswindowcontroller.h"
#include "values/logging.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>

namespace {

QString localized(const QString &key)
{
    return StringTables::instance().localizedString(key);
}

} // namespace

MainWindowController::MainWindowController(TagsmithAppDelegate *delegate,
                                           std::unique_ptr<ExifBackgroundRunner> runner,
                                           ExifSettings &store, bool debug)
    : m_delegate(delegate)
    , m_store(store)
    , m_debug(debug || (delegate && delegate->debug()))
    , m_runner(runner ? std::move(runner) : std::make_unique<ExifBackgroundRunner>())
{
    m_store.onPresetsChanged(this, [this] { updateConfigurations(); });
    connect(m_runner.get(), &ExifBackgroundRunner::fileStarted, this,
            &MainWindowController::handleFileStarted);
    connect(m_runner.get(), &ExifBackgroundRunner::fileFinished, this,
            &MainWindowController::handleFileFinished);
    connect(m_runner.get(), &ExifBackgroundRunner::batchFinished, this,
            &MainWindowController::handleBatchFinished);
    m_session = new EditSession(this);
    connect(m_session, &EditSession::exifFilesUpdated, this,
            &MainWindowController::handleExifFilesUpdate);
    m_imagesCache = new QuickLookImageCache(this);
    m_readQueue = new FileReadQueue(this);
    connect(m_readQueue, &FileReadQueue::batchRead, this, &MainWindowController::handleBatchRead);
    connect(m_readQueue, &FileReadQueue::busyChanged, this,
            &MainWindowController::handleReadingChanged);
    connect(m_readQueue, &FileReadQueue::progressChanged, this,
            [this](int read, int total) { m_window->showReadingProgress(read, total); });
    m_terminateReply = [this](bool terminate) {
        if (m_delegate)
            m_delegate->replyToApplicationShouldTerminate(terminate);
    };
    buildWindow();
}

MainWindowController::~MainWindowController()
{
    // The form's editors refer to the files; let them go before the window's widgets do.
    m_currentFiles.clear();
}

void MainWindowController::buildWindow()
{
    m_window = std::make_unique<MainWindow>(m_debug);
    m_window->setCloseHandler([this] { return windowShouldClose(); });
    m_filesTable = m_window->filesTable();
    m_processButton = m_window->processButton();
    m_readingIndicator = m_window->readingIndicator();
    connect(m_window->cancelReadingButton(), &QPushButton::clicked, this,
            &MainWindowController::cancelReading);

    m_model = new FileListModel(this);
    m_filesTable->setModel(m_model);
    m_filesTable->setItemDelegate(new FileInfoCell(m_imagesCache, m_filesTable));
    connect(m_filesTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindowController::handleSelectionChanged);
    connect(m_filesTable, &FileListView::filesDropped, this,
            [this](const QStringList &paths) { addFiles(paths); });
    connect(m_filesTable, &FileListView::showHideQuickLookRequested, this,
            &MainWindowController::showHideQuickLook);
    m_addFilesNote = new AddFilesNote(m_filesTable);

    m_configController = new ConfigurationViewController(this);
    m_configController->setEditSession(m_session);
    m_configController->setShowMapAction([this] { showMap(); });
    m_configController->createUserInterface();
    m_window->setFormArea(m_configController->scrollArea());

    m_menus = new MainWindowMenus(m_window->menuBar(), this);
    m_window->presetsButton()->setMenu(m_menus->configsMenu());
    connectCommands();
    updateConfigurations();
    recheckUIEnablement();
}

void MainWindowController::connectCommands()
{
    using C = MainWindowMenus::Command;
    const auto on = [this](C command, void (MainWindowController::*handler)()) {
        connect(m_menus->action(command), &QAction::triggered, this, handler);
    };
    on(C::Open, &MainWindowController::openDocument);
    on(C::Process, &MainWindowController::processFiles);
    on(C::Reload, &MainWindowController::reloadSelectedFiles);
    on(C::RemoveFiles, &MainWindowController::removeFilesClick);
    on(C::ClearFiles, &MainWindowController::clearFilesClick);
    on(C::RemoveAllMetadata, &MainWindowController::removeAllMetadata);
    on(C::RemoveMakerNotes, &MainWindowController::removeMakerNotes);
    on(C::ShowConfigurations, &MainWindowController::showConfigurations);
    on(C::ShowMap, &MainWindowController::showMap);
    on(C::ShowResults, &MainWindowController::showHideResultsWindow);
    on(C::QuickLook, &MainWindowController::showHideQuickLook);
    on(C::ReviewChanges, &MainWindowController::reviewChanges);
    on(C::RevertLastSave, &MainWindowController::revertLastSave);
    on(C::CopyMetadata, &MainWindowController::copyMetadata);
    on(C::PasteMetadata, &MainWindowController::pasteMetadata);
    on(C::GeotagFromTrackLog, &MainWindowController::geotagFromTrackLog);
    connect(m_menus->action(C::SelectAll), &QAction::triggered, m_filesTable,
            &QAbstractItemView::selectAll);
    if (m_delegate) {
        connect(m_menus->action(C::Preferences), &QAction::triggered, m_delegate,
                &TagsmithAppDelegate::showPreferences);
        connect(m_menus->action(C::Quit), &QAction::triggered, m_delegate,
                &TagsmithAppDelegate::requestQuit);
        connect(m_menus->action(C::Help), &QAction::triggered, m_delegate,
                &TagsmithAppDelegate::showHelp);
        connect(m_menus->action(C::Support), &QAction::triggered, m_delegate,
                &TagsmithAppDelegate::openSupportPage);
        connect(m_menus->action(C::WebSite), &QAction::triggered, m_delegate,
                &TagsmithAppDelegate::openWebSite);
    }
    connect(m_window->addButton(), &QPushButton::clicked, this,
            &MainWindowController::openDocument);
    connect(m_window->removeButton(), &QPushButton::clicked, this,
            &MainWindowController::removeFilesClick);
    connect(m_processButton, &QPushButton::clicked, this, &MainWindowController::processFiles);
    connect(m_window->reviewButton(), &QPushButton::clicked, this,
            &MainWindowController::reviewChanges);
    connect(m_menus->configsMenu(), &QMenu::triggered, this, [this](QAction *action) {
        const int tag = action->data().toInt();
        if (tag >= 0)
            handleConfigurationClick(tag);
    });
    if (m_debug) {
        connect(m_window->loadTestFilesButton(), &QPushButton::clicked, this,
                &MainWindowController::loadTestFiles);
        connect(m_window->presetsQuickButton(), &QPushButton::clicked, this,
                &MainWindowController::showConfigurations);
        connect(m_window->resultsButton(), &QPushButton::clicked, this,
                &MainWindowController::showHideResultsWindow);
    }
}

QWidget *MainWindowController::window()
{
    return m_window.get();
}

const QList<ExifFileInfoPtr> &MainWindowController::files() const
{
    return m_model->files();
}

bool MainWindowController::hasDiretyFiles() const
{
    return ExifUtil::hasDiretyFiles(files());
}

bool MainWindowController::openFile(const QString &path)
{
    return addFiles({path});
}

bool MainWindowController::hasFileInList(const QString &path) const
{
    return m_model->hasFileInList(path) || m_readQueue->isQueued(path);
}

bool MainWindowController::addFiles(const QStringList &paths, const QList<FileRejection> &rejected)
{
    QStringList listed = m_readQueue->queuedPaths();
    for (const ExifFileInfoPtr &file : files())
        listed.append(file->fileName());
    const FileAdmissionResult admitted = FileAdmission::preprocessFilesToBeAdded(paths, listed);
    FileReadQueue::Batch batch;
    batch.rejected = rejected + admitted.rejected;
    // Admission has already dropped the other names of each file.
    for (const QString &path : admitted.accepted)
        batch.files.append(std::make_shared<ExifFileInfo>(path));
    if (batch.files.isEmpty()) {
        m_addFilesNote->showRejections(batch.rejected);
        return false;
    }
    m_readQueue->enqueue(std::move(batch));
    return true;
}

bool MainWindowController::waitForPendingReads(int timeoutMs)
{
    return m_readQueue->waitForIdle(timeoutMs);
}

void MainWindowController::cancelReading()
{
    m_readQueue->cancel();
}

void MainWindowController::handleBatchRead(const FileReadQueue::Batch &batch)
{
    if (batch.isReload) {
        replaceReloadedFiles(batch);
        return;
    }
    QList<ExifFileInfoPtr> valid;
    QList<FileRejection> rejected = batch.rejected;
    for (const ExifFileInfoPtr &file : batch.files) {
        if (!file->isValid()) {
            rejected.append({file->fileName(), batch.result.timedOut.contains(file->fileName())
                                                   ? FileRejection::Reason::TimedOut
                                                   : FileRejection::Reason::Unreadable});
        } else if (const auto reason =
                       FileAdmission::rejectionAfterReading(file->originalExifData())) {
            rejected.append({file->fileName(), *reason});
        } else if (!m_model->hasFileInList(file->fileName())) {
            // Another add may have brought the same path in the meantime.
            valid.append(file);
        }
    }
    if (!batch.result.ok()) {
        qCWarning(lcTagsmith).noquote() << batch.result.errorMessage;
        QMessageBox *alert = new QMessageBox(
            QMessageBox::Critical, localized(QStringLiteral("The files could not be read.")),
            localized(QStringLiteral("The files could not be read.")), QMessageBox::Ok,
            m_window.get());
        alert->setInformativeText(batch.result.errorMessage);
        alert->setAttribute(Qt::WA_DeleteOnClose);
        alert->setWindowModality(Qt::WindowModal);
        alert->open();
    }
    m_addFilesNote->showRejections(rejected);
    if (valid.isEmpty())
        return;
    const int first = int(files().size());
    m_model->appendFiles(valid);
    QList<int> rows;
    for (int row = first; row < files().size(); ++row)
        rows.append(row);
    selectRows(rows);
    m_filesTable->scrollTo(m_model->index(first));
}

void MainWindowController::handleReadingChanged(bool busy)
{
    m_readingIndicator->setVisible(busy);
    m_window->readingBar()->setVisible(busy);
    if (busy) {
        m_readingIndicator->startAnimation();
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    } else {
        m_readingIndicator->stopAnimation();
        QGuiApplication::restoreOverrideCursor();
    }
}

void MainWindowController::selectRows(const QList<int> &rows)
{
    // One range per run of neighbouring rows: a selection of thousands of single rows makes
    // every later selection query slow.
    QItemSelection selection;
    for (const auto &[first, last] : FileListModel::rowRuns(rows))
        selection.select(m_model->index(first), m_model->index(last));
    m_filesTable->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty())
        m_filesTable->selectionModel()->setCurrentIndex(m_model->index(rows.first()),
                                                        QItemSelectionModel::NoUpdate);
}

QList<ExifFileInfoPtr> MainWindowController::selectedFiles() const
{
    QModelIndexList indexes = m_filesTable->selectionModel()->selectedRows();
    std::sort(indexes.begin(), indexes.end(),
              [](const QModelIndex &a, const QModelIndex &b) { return a.row() < b.row(); });
    QList<ExifFileInfoPtr> selected;
    for (const QModelIndex &index : std::as_const(indexes))
        selected.append(m_model->fileAt(index.row()));
    return selected;
}

void MainWindowController::handleSelectionChanged()
{
    // Typed text still in a row belongs to the files it was typed for.
    m_configController->commitPendingInput();
    m_currentFiles = selectedFiles();
    if (m_previewPanel && m_previewPanel->isVisible())
        m_previewPanel->setFile(m_currentFiles.isEmpty() ? QString()
                                                         : m_currentFiles.first()->fileName());
    m_configController->setExifFiles(m_currentFiles);
    reloadMapFiles();
    recheckUIEnablement();
}

void MainWindowController::openDocument()
{
    auto *dialog = new QFileDialog(m_window.get(), localized(QStringLiteral("Add Files")));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Qt's own dialog: the native one cannot pick files and folders together.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this,
            [this, dialog] { addFiles(dialog->selectedFiles()); });
    dialog->open();
}

void MainWindowController::reloadSelectedFiles()
{
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    if (selected.isEmpty())
        return;
    // Read like added files, in the background with the same progress; the new records take
    // the old ones' rows when they are in.
    FileReadQueue::Batch batch;
    batch.isReload = true;
    for (const ExifFileInfoPtr &old : selected)
        batch.files.append(std::make_shared<ExifFileInfo>(old->fileName()));
    m_readQueue->enqueue(std::move(batch));
}

void MainWindowController::replaceReloadedFiles(const FileReadQueue::Batch &batch)
{
    QList<int> goneRows;
    QList<int> rows;
    for (const ExifFileInfoPtr &fresh : batch.files) {
        const int row = m_model->rowOf(fresh->fileName());
        if (row < 0)
            continue; // removed from the list while it was read
        m_model->replaceFile(row, fresh);
        m_imagesCache->removeImage(fresh->fileName());
        if (fresh->isValid())
            rows.append(row);
        else
            goneRows.append(row);
    }
    QList<FileRejection> rejected;
    for (const QString &path : batch.result.timedOut)
        rejected.append({path, FileRejection::Reason::TimedOut});
    if (!rejected.isEmpty())
        m_addFilesNote->showRejections(rejected);
    m_model->removeRowsAt(goneRows);
    // Rows after a removed one moved up.
    QList<int> kept;
    for (const ExifFileInfoPtr &fresh : batch.files) {
        if (fresh->isValid() && m_model->rowOf(fresh->fileName()) >= 0)
            kept.append(m_model->rowOf(fresh->fileName()));
    }
    selectRows(kept);
    handleSelectionChanged();
    updateWindowModified();
    recheckUIEnablement();
}

void MainWindowController::removeFilesClick()
{
    QStringList names;
    for (const ExifFileInfoPtr &file : selectedFiles())
        names.append(file->fileName());
    if (!names.isEmpty())
        dropFilesAsking(selectedFiles(), [this, names] { removeFilesFromList(names); });
}

void MainWindowController::clearFilesClick()
{
    dropFilesAsking(files(), [this] { clearAllFiles(); });
}

void MainWindowController::dropFilesAsking(const QList<ExifFileInfoPtr> &dropped,
                                           std::function<void()> drop)
{
    // Typed text still in a row is an edit of these files too.
    m_configController->commitPendingInput();
    int edited = 0;
    for (const ExifFileInfoPtr &file : dropped)
        edited += isExifFileModified(*file) ? 1 : 0;
    if (edited == 0) {
        drop();
        return;
    }
    QMessageBox *sheet =
        makeSheet(QCoreApplication::translate(
                      "MainWindowController",
                      "Remove %n file(s) with unsaved changes from the list?", nullptr, edited),
                  localized(QStringLiteral("Their changes have not been saved and will be lost.")));
    QPushButton *remove =
        sheet->addButton(localized(QStringLiteral("Remove from List")), QMessageBox::AcceptRole);
    QPushButton *cancel = sheet->addButton(QMessageBox::Cancel);
    // Enter must not throw edits away.
    sheet->setDefaultButton(cancel);
    sheet->setEscapeButton(cancel);
    connect(sheet, &QMessageBox::finished, this, [sheet, remove, drop = std::move(drop)] {
        if (sheet->clickedButton() == remove)
            drop();
    });
    sheet->open();
}

void MainWindowController::removeFilesFromList(const QStringList &names)
{
    // By name: rows may have moved while the question was open.
    QList<int> rows;
    for (const QString &name : names) {
        const int row = m_model->rowOf(name);
        if (row < 0)
            continue;
        rows.append(row);
        m_imagesCache->removeImage(name);
    }
    // One selection change for the whole removal, not one per row.
    m_filesTable->selectionModel()->clearSelection();
    m_model->removeRowsAt(rows);
    m_currentFiles.clear();
    m_configController->clearEditors();
    updateWindowModified();
    recheckUIEnablement();
}

void MainWindowController::clearAllFiles()
{
    m_model->setFiles({});
    m_currentFiles.clear();
    m_configController->setExifFiles({});
    m_imagesCache->removeAll();
    updateWindowModified();
    recheckUIEnablement();
}

void MainWindowController::loadTestFiles()
{
    clearAllFiles();
    const QString bundle = QCoreApplication::applicationDirPath();
    QStringList paths;
    for (const char *name : {"IMG_0031.JPG", "IMG_0032.JPG", "IMG_0033.JPG"})
        paths.append(bundle + QStringLiteral("/Contents/Resources/test-images/") +
                     QString::fromLatin1(name));
    addFiles(paths);
}

MainWindowMenus::State MainWindowController::commandState() const
{
    MainWindowMenus::State state;
    state.saving = m_saving;
    state.hasFiles = !files().isEmpty();
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    state.hasSelection = !selected.isEmpty();
    state.singleSelection = selected.size() == 1;
    // Kept up to date on every edit, so no pass over all files here.
    state.hasModifiedFiles = m_window->isWindowModified();
    state.canRevertLastSave = canRevertLastSave();
    state.hasCopiedMetadata = hasCopiedMetadata();
    for (const ExifFileInfoPtr &file : selected) {
        state.selectionHasError = state.selectionHasError || file->hasError();
        state.selectionCanLoseMetadata =
            state.selectionCanLoseMetadata || ExifRunnerRemoveMetadataOperation::canStrip(
                                                  file->exifValue(QStringLiteral("File:MIMEType")));
    }
    return state;
}

void MainWindowController::recheckUIEnablement()
{
    const MainWindowMenus::State state = commandState();
    m_menus->updateEnablement(state);
    m_window->removeButton()->setEnabled(
        MainWindowMenus::isCommandEnabled(MainWindowMenus::Command::RemoveFiles, state));
    m_processButton->setEnabled(true);
    m_window->reviewButton()->setEnabled(
        MainWindowMenus::isCommandEnabled(MainWindowMenus::Command::ReviewChanges, state));
}

void MainWindowController::updateWindowModified()
{
    m_window->setWindowModified(hasDiretyFiles());
}

void MainWindowController::handleExifFilesUpdate(const ExifFilesUpdate &update)
{
    if (!update.exifFiles.isEmpty()) {
        m_model->refreshFiles(update.exifFiles);
        updateWindowModified();
    }
    recheckUIEnablement();
}
