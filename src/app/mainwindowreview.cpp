// Reviewing what a save will write, and taking the last save back.
#include "app/mainwindowcontroller.h"

#include "app/mainwindow.h"
#include "editors/configurationviewcontroller.h"
#include "engine/exifrunnerrevertoperation.h"
#include "engine/revertrecord.h"
#include "windows/reviewchangeswindowcontroller.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

void MainWindowController::reviewChanges()
{
    if (m_saving)
        return;
    // A value still being typed is part of what a save would write.
    m_configController->commitPendingInput();
    if (!m_reviewWindow) {
        m_reviewWindow = new ReviewChangesWindowController(m_window.get());
        m_reviewWindow->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_reviewWindow, &ReviewChangesWindowController::saveRequested, this,
                &MainWindowController::processFiles);
    }
    m_reviewWindow->setFiles(files());
    m_reviewWindow->showWindow();
}

// The selected files with a record, or every listed one with a record when none is selected.
QList<ExifFileInfoPtr> MainWindowController::filesToRevert() const
{
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    QList<ExifFileInfoPtr> result;
    for (const ExifFileInfoPtr &file : selected.isEmpty() ? files() : selected) {
        if (RevertRecord::contains(file->fileName()))
            result.append(file);
    }
    return result;
}

void MainWindowController::revertLastSave()
{
    if (m_saving)
        return;
    const QList<ExifFileInfoPtr> candidates = filesToRevert();
    if (candidates.isEmpty())
        return;
    QMessageBox *sheet = makeSheet(
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
        if (operations.isEmpty())
            return;
        m_saving = true;
        recheckUIEnablement();
        if (m_runner->queueOperations(std::move(operations)) > 0)
            showProgressPanel(false);
    });
    sheet->open();
}

bool MainWindowController::canRevertLastSave() const
{
    if (m_saving)
        return false;
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    const QList<ExifFileInfoPtr> &candidates = selected.isEmpty() ? files() : selected;
    return std::any_of(candidates.cbegin(), candidates.cend(), [](const ExifFileInfoPtr &file) {
        return RevertRecord::contains(file->fileName());
    });
}
