#include "windows/filelistpresenter.h"

#include "engine/filelistmodel.h"
#include "windows/filelistview.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowmenus.h"
#include "windows/windowsheets.h"
#include "controls/indeterminateprogressindicatorcell.h"
#include "editors/configurationviewcontroller.h"
#include "engine/editsession.h"
#include "engine/exifutil.h"
#include "engine/fileadmission.h"
#include "values/logging.h"
#include "windows/addfilesnote.h"
#include "windows/fileinfocell.h"
#include "windows/quicklookimagecache.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

FileListPresenter::FileListPresenter(const WindowContext &context,
                                     ConfigurationViewController *form, QObject *parent)
    : WindowPart(context, parent)
    , m_form(form)
    , m_imagesCache(new QuickLookImageCache(this))
    , m_readQueue(new FileReadQueue(this))
    , m_model(new FileListModel(this))
    , m_addFilesNote(new AddFilesNote(m_window->filesTable()))
{
    connect(m_readQueue, &FileReadQueue::batchRead, this, &FileListPresenter::handleBatchRead);
    connect(m_readQueue, &FileReadQueue::busyChanged, this,
            &FileListPresenter::handleReadingChanged);
    connect(m_readQueue, &FileReadQueue::progressChanged, this,
            [this](int read, int total) { m_window->showReadingProgress(read, total); });
    connect(m_window->cancelReadingButton(), &QPushButton::clicked, this,
            &FileListPresenter::cancelReading);

    FileListView *table = m_window->filesTable();
    table->setModel(m_model);
    table->setItemDelegate(new FileInfoCell(m_imagesCache, table));
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FileListPresenter::handleSelectionChanged);
    connect(table, &FileListView::filesDropped, this,
            [this](const QStringList &paths) { addFiles(paths); });

    using C = MainWindowMenus::Command;
    m_menus->onTriggered(C::Open, this, &FileListPresenter::openDocument);
    m_menus->onTriggered(C::Reload, this, &FileListPresenter::reloadSelectedFiles);
    m_menus->onTriggered(C::RemoveFiles, this, &FileListPresenter::removeFilesClick);
    m_menus->onTriggered(C::ClearFiles, this, &FileListPresenter::clearFilesClick);
    connect(m_menus->action(C::SelectAll), &QAction::triggered, table,
            &QAbstractItemView::selectAll);
    connect(m_window->addButton(), &QPushButton::clicked, this, &FileListPresenter::openDocument);
    connect(m_window->removeButton(), &QPushButton::clicked, this,
            &FileListPresenter::removeFilesClick);
    if (QPushButton *testFiles = m_window->loadTestFilesButton())
        connect(testFiles, &QPushButton::clicked, this, &FileListPresenter::loadTestFiles);
}

FileListView *FileListPresenter::view() const
{
    return m_window->filesTable();
}

const QList<ExifFileInfoPtr> &FileListPresenter::files() const
{
    return m_model->files();
}

bool FileListPresenter::hasFileInList(const QString &path) const
{
    return m_model->hasFileInList(path) || m_readQueue->isQueued(path);
}

bool FileListPresenter::addFiles(const QStringList &paths, const QList<FileRejection> &rejected)
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

bool FileListPresenter::waitForPendingReads(int timeoutMs)
{
    return m_readQueue->waitForIdle(timeoutMs);
}

void FileListPresenter::cancelReading()
{
    m_readQueue->cancel();
}

void FileListPresenter::handleBatchRead(const FileReadQueue::Batch &batch)
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
            localized(QStringLiteral("The files could not be read.")), QMessageBox::Ok, m_window);
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
    m_window->filesTable()->scrollTo(m_model->index(first));
    Q_EMIT filesChanged();
}

void FileListPresenter::handleReadingChanged(bool busy)
{
    IndeterminateProgressIndicatorCell *indicator = m_window->readingIndicator();
    indicator->setVisible(busy);
    m_window->readingBar()->setVisible(busy);
    if (busy) {
        indicator->startAnimation();
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    } else {
        indicator->stopAnimation();
        QGuiApplication::restoreOverrideCursor();
    }
}

void FileListPresenter::selectRows(const QList<int> &rows)
{
    // One range per run of neighbouring rows: a selection of thousands of single rows makes
    // every later selection query slow.
    QItemSelection selection;
    for (const auto &[first, last] : FileListModel::rowRuns(rows))
        selection.select(m_model->index(first), m_model->index(last));
    QItemSelectionModel *selectionModel = m_window->filesTable()->selectionModel();
    selectionModel->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty())
        selectionModel->setCurrentIndex(m_model->index(rows.first()),
                                        QItemSelectionModel::NoUpdate);
}

QList<ExifFileInfoPtr> FileListPresenter::selectedFiles() const
{
    QModelIndexList indexes = m_window->filesTable()->selectionModel()->selectedRows();
    std::sort(indexes.begin(), indexes.end(),
              [](const QModelIndex &a, const QModelIndex &b) { return a.row() < b.row(); });
    QList<ExifFileInfoPtr> selected;
    for (const QModelIndex &index : std::as_const(indexes))
        selected.append(m_model->fileAt(index.row()));
    return selected;
}

void FileListPresenter::handleSelectionChanged()
{
    // Typed text still in a row belongs to the files it was typed for.
    m_form->commitPendingInput();
    m_currentFiles = selectedFiles();
    m_form->setExifFiles(m_currentFiles);
    Q_EMIT selectionChanged();
}

void FileListPresenter::showCurrentFilesAgain()
{
    m_form->setExifFiles(m_currentFiles);
}

void FileListPresenter::commitPendingInput()
{
    m_form->commitPendingInput();
}

void FileListPresenter::refreshAll()
{
    m_model->refreshAll();
}

void FileListPresenter::refreshFiles(const QList<ExifFileInfoPtr> &files)
{
    m_model->refreshFiles(files);
}

void FileListPresenter::handleExifFilesUpdate(const ExifFilesUpdate &update)
{
    if (!update.exifFiles.isEmpty())
        m_model->refreshFiles(update.exifFiles);
    Q_EMIT filesChanged();
}

void FileListPresenter::openDocument()
{
    auto *dialog = new QFileDialog(m_window, localized(QStringLiteral("Add Files")));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Qt's own dialog: the native one cannot pick files and folders together.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this,
            [this, dialog] { addFiles(dialog->selectedFiles()); });
    dialog->open();
}

void FileListPresenter::reloadSelectedFiles()
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

void FileListPresenter::replaceReloadedFiles(const FileReadQueue::Batch &batch)
{
    QList<int> goneRows;
    for (const ExifFileInfoPtr &fresh : batch.files) {
        const int row = m_model->rowOf(fresh->fileName());
        if (row < 0)
            continue; // removed from the list while it was read
        m_model->replaceFile(row, fresh);
        m_imagesCache->removeImage(fresh->fileName());
        if (!fresh->isValid())
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
    Q_EMIT filesChanged();
}

void FileListPresenter::removeFilesClick()
{
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    QStringList names;
    for (const ExifFileInfoPtr &file : selected)
        names.append(file->fileName());
    if (!names.isEmpty())
        dropFilesAsking(selected, [this, names] { removeFilesFromList(names); });
}

void FileListPresenter::clearFilesClick()
{
    dropFilesAsking(files(), [this] { clearAllFiles(); });
}

void FileListPresenter::dropFilesAsking(const QList<ExifFileInfoPtr> &dropped,
                                        std::function<void()> drop)
{
    // Typed text still in a row is an edit of these files too.
    commitPendingInput();
    int edited = 0;
    for (const ExifFileInfoPtr &file : dropped)
        edited += isExifFileModified(*file) ? 1 : 0;
    if (edited == 0) {
        drop();
        return;
    }
    QMessageBox *sheet = makeSheet(
        m_window, tr("Remove %n file(s) with unsaved changes from the list?", nullptr, edited),
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

void FileListPresenter::removeFilesFromList(const QStringList &names)
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
    m_window->filesTable()->selectionModel()->clearSelection();
    m_model->removeRowsAt(rows);
    m_currentFiles.clear();
    m_form->clearEditors();
    Q_EMIT filesChanged();
}

void FileListPresenter::clearAllFiles()
{
    m_model->setFiles({});
    m_currentFiles.clear();
    m_form->setExifFiles({});
    m_imagesCache->removeAll();
    Q_EMIT filesChanged();
}

void FileListPresenter::loadTestFiles()
{
    clearAllFiles();
    const QString bundle = QCoreApplication::applicationDirPath();
    QStringList paths;
    for (const char *name : {"IMG_0031.JPG", "IMG_0032.JPG", "IMG_0033.JPG"})
        paths.append(bundle + QStringLiteral("/Contents/Resources/test-images/") +
                     QString::fromLatin1(name));
    addFiles(paths);
}

void FileListPresenter::updateEnablement(const CommandState &state)
{
    using C = MainWindowMenus::Command;
    const bool selection = !state.saving && !state.selected.isEmpty();
    for (C command : {C::Open, C::ClearFiles, C::SelectAll})
        m_menus->action(command)->setEnabled(!state.saving);
    m_menus->action(C::Reload)->setEnabled(selection);
    m_menus->action(C::RemoveFiles)->setEnabled(selection);
    m_window->removeButton()->setEnabled(selection);
}
