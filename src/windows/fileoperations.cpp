#include "windows/fileoperations.h"

#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowmenus.h"
#include "windows/windowsheets.h"
#include "engine/writequeue.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "engine/exifrunnerrevertoperation.h"
#include "engine/revertrecord.h"
#include "windows/progresspanel.h"

#include <QAction>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace {

const QString MimeTypeKey = QStringLiteral("File:MIMEType");

} // namespace

FileOperations::FileOperations(const WindowContext &context, WriteQueue &runner, QObject *parent)
    : WindowPart(context, parent)
    , m_runner(runner)
{
    using C = MainWindowMenus::Command;
    m_menus->onTriggered(C::Process, this, &FileOperations::processFiles);
    m_menus->onTriggered(C::RemoveAllMetadata, this, &FileOperations::removeAllMetadata);
    m_menus->onTriggered(C::RemoveMakerNotes, this, &FileOperations::removeMakerNotes);
    m_menus->onTriggered(C::RevertLastSave, this, &FileOperations::revertLastSave);
    connect(m_window->processButton(), &QPushButton::clicked, this, &FileOperations::processFiles);
    connect(&m_runner, &WriteQueue::fileStarted, this, &FileOperations::handleFileStarted);
    connect(&m_runner, &WriteQueue::fileFinished, this, &FileOperations::handleFileFinished);
    connect(&m_runner, &WriteQueue::batchFinished, this, &FileOperations::handleBatchFinished);
}

void FileOperations::runBatch(bool fadeIn, const std::function<qsizetype()> &start)
{
    m_saving = true;
    Q_EMIT savingChanged(true);
    if (start() <= 0)
        return;
    removeProgressPanel();
    m_progressPanel = new ProgressPanel(m_window->content());
    m_progressPanel->raise();
    m_progressPanel->show();
    if (fadeIn)
        m_progressPanel->fadeIn();
    else
        m_progressPanel->setOpacity(1.0);
}

ProgressPanel *FileOperations::progressPanel() const
{
    return m_progressPanel;
}

void FileOperations::removeProgressPanel()
{
    if (m_progressPanel) {
        m_progressPanel->hide();
        m_progressPanel->deleteLater();
        m_progressPanel = nullptr;
    }
}

void FileOperations::processFiles()
{
    if (m_saving)
        return;
    // A value still being typed is part of what the user asked to save.
    m_list->commitPendingInput();
    runBatch(false, [this] {
        return m_runner.saveFiles(m_list->files(), ExifOperationOption::ReReadFile);
    });
}

void FileOperations::removeAllMetadata()
{
    const QList<ExifFileInfoPtr> selected = m_list->selectedFiles();
    if (m_list->files().isEmpty() || m_saving || selected.isEmpty())
        return;
    static const QStringList plain{QStringLiteral("image/jpeg"), QStringLiteral("image/png"),
                                   QStringLiteral("image/gif"), QStringLiteral("image/webp")};
    int strippable = 0;
    bool needsStrongWarning = false;
    for (const ExifFileInfoPtr &file : selected) {
        const QString mime = file->exifValue(MimeTypeKey);
        if (!ExifRunnerRemoveMetadataOperation::canStrip(mime))
            continue;
        ++strippable;
        needsStrongWarning = needsStrongWarning || !plain.contains(mime);
    }
    const int kept = int(selected.size()) - strippable;
    if (strippable == 0) {
        QMessageBox *sheet =
            makeSheet(m_window, localized(QStringLiteral("Nothing to remove")),
                      tr("All metadata cannot be removed from the %n selected file(s) without "
                         "making them unreadable (camera raw files need their tags).",
                         nullptr, kept));
        sheet->addButton(QMessageBox::Ok);
        sheet->open();
        return;
    }

    QString informative = needsStrongWarning
                              ? localized(QStringLiteral("REMOVE_ALL_METADATA_WARNING2"))
                              : localized(QStringLiteral("All tags will be removed immediately."));
    if (kept > 0) {
        informative += u' ' + tr("%n other selected file(s) cannot lose all metadata and stay "
                                 "as they are.",
                                 nullptr, kept);
    }
    informative += u' ' + localized(QStringLiteral("Revert Last Save can put the files back as "
                                                   "they were until they are saved again."));
    QMessageBox *sheet = makeSheet(
        m_window, tr("Remove all metadata from %n file(s)?", nullptr, strippable), informative);
    QPushButton *remove =
        sheet->addButton(localized(QStringLiteral("Remove All Metadata")), QMessageBox::AcceptRole);
    QPushButton *cancel =
        sheet->addButton(localized(QStringLiteral("Don't Remove")), QMessageBox::RejectRole);
    // Enter must not strip thousands of files.
    sheet->setDefaultButton(cancel);
    sheet->setEscapeButton(cancel);
    connect(sheet, &QMessageBox::finished, this, [this, sheet, remove] {
        if (sheet->clickedButton() != remove)
            return;
        // All the selected files go: the ones that cannot be stripped are told why, each.
        const QList<ExifFileInfoPtr> current = m_list->selectedFiles();
        if (!current.isEmpty())
            runBatch(true, [this, current] {
                return m_runner.removeAllMetadata(current, ExifOperationOption::ReReadFile);
            });
    });
    sheet->open();
}

void FileOperations::removeMakerNotes()
{
    if (m_list->selectedFiles().isEmpty())
        return;
    QMessageBox *sheet = makeSheet(m_window, localized(QStringLiteral("dialog.fix-maker.title")),
                                   localized(QStringLiteral("dialog.fix-maker.into-text")));
    QPushButton *repair = sheet->addButton(localized(QStringLiteral("dialog.fix-maker.ok-button")),
                                           QMessageBox::AcceptRole);
    sheet->addButton(localized(QStringLiteral("dialog.fix-maker.cancel-button")),
                     QMessageBox::RejectRole);
    sheet->setDefaultButton(repair);
    connect(sheet, &QMessageBox::finished, this, [this, sheet, repair] {
        if (sheet->clickedButton() != repair || m_saving)
            return;
        const QList<ExifFileInfoPtr> current = m_list->selectedFiles();
        runBatch(true, [this, current] {
            return m_runner.removeMakerNotesFromFiles(current, ExifOperationOption::ReReadFile);
        });
    });
    sheet->open();
}

// The selected files with a record, or every listed one with a record when none is selected.
QList<ExifFileInfoPtr> FileOperations::filesToRevert() const
{
    const QList<ExifFileInfoPtr> selected = m_list->selectedFiles();
    QList<ExifFileInfoPtr> result;
    for (const ExifFileInfoPtr &file : selected.isEmpty() ? m_list->files() : selected) {
        if (RevertRecord::contains(file->fileName()))
            result.append(file);
    }
    return result;
}

void FileOperations::revertLastSave()
{
    if (m_saving)
        return;
    const QList<ExifFileInfoPtr> candidates = filesToRevert();
    if (candidates.isEmpty())
        return;
    QMessageBox *sheet = makeSheet(
        m_window,
        candidates.size() == 1
            ? tr("Revert the last save of \"%1\"?").arg(candidates.first()->fileName())
            : tr("Revert the last save of %1 files?").arg(candidates.size()),
        tr("The tags that save changed get back their previous values. A file changed since "
           "that save is left as it is."));
    QPushButton *revert = sheet->addButton(tr("Revert"), QMessageBox::AcceptRole);
    sheet->addButton(tr("Cancel"), QMessageBox::RejectRole);
    sheet->setDefaultButton(revert);
    connect(sheet, &QMessageBox::finished, this, [this, sheet, revert] {
        if (sheet->clickedButton() != revert || m_saving)
            return;
        QList<ExifRunnerOperationPtr> operations;
        for (const ExifFileInfoPtr &file : filesToRevert()) {
            if (auto operation =
                    ExifRunnerRevertOperation::create(file, ExifOperationOption::ReReadFile))
                operations.append(std::move(operation));
        }
        if (!operations.isEmpty()) {
            runBatch(false, [this, &operations] {
                return m_runner.queueOperations(std::move(operations));
            });
        }
    });
    sheet->open();
}

bool FileOperations::canRevertLastSave() const
{
    if (m_saving)
        return false;
    const QList<ExifFileInfoPtr> selected = m_list->selectedFiles();
    const QList<ExifFileInfoPtr> &candidates = selected.isEmpty() ? m_list->files() : selected;
    return std::any_of(candidates.cbegin(), candidates.cend(), [](const ExifFileInfoPtr &file) {
        return RevertRecord::contains(file->fileName());
    });
}

void FileOperations::handleFileStarted(const ExifFileInfoPtr &, const ExifOperationStatus &status)
{
    if (m_progressPanel)
        m_progressPanel->fileToBeProcessed(status);
}

void FileOperations::handleFileFinished(const ExifFileInfoPtr &file, const ExifOperationStatus &)
{
    if (file)
        m_list->refreshFiles({file});
}

void FileOperations::handleBatchFinished(const QHash<QString, ErrorMessagesPtr> &results)
{
    m_saving = false;
    Q_EMIT savingChanged(false);
    Q_EMIT batchFinished(results);
}

void FileOperations::updateEnablement(const CommandState &state)
{
    using C = MainWindowMenus::Command;
    bool selectionHasError = false;
    bool selectionCanLoseMetadata = false;
    for (const ExifFileInfoPtr &file : state.selected) {
        selectionHasError = selectionHasError || file->hasError();
        selectionCanLoseMetadata =
            selectionCanLoseMetadata ||
            ExifRunnerRemoveMetadataOperation::canStrip(file->exifValue(MimeTypeKey));
    }
    m_menus->action(C::Process)->setEnabled(!state.saving);
    m_menus->action(C::RemoveAllMetadata)->setEnabled(!state.saving && selectionCanLoseMetadata);
    m_menus->action(C::RemoveMakerNotes)->setEnabled(!state.saving && selectionHasError);
    m_menus->action(C::RevertLastSave)->setEnabled(!state.saving && canRevertLastSave());
}
