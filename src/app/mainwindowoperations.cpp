// The main window's background operations and its close / save / quit state machine.
#include "app/mainwindowcontroller.h"

#include "app/filelistmodel.h"
#include "app/mainwindow.h"
#include "catalogue/stringtables.h"
#include "catalogue/ui/presetswindowcontroller.h"
#include "editors/configurationviewcontroller.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exifrunnerremovemetadataoperation.h"
#include "values/tagsmithexception.h"
#include "windows/mapwindowcontroller.h"
#include "windows/progresspanel.h"
#include "windows/resultswindowcontroller.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace {

QString localized(const QString &key)
{
    return StringTables::instance().localizedString(key);
}

const QString MimeTypeKey = QStringLiteral("File:MIMEType");

} // namespace

QMessageBox *MainWindowController::makeSheet(const QString &text, const QString &informativeText)
{
    auto *sheet = new QMessageBox(m_window.get());
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setIcon(QMessageBox::Warning);
    sheet->setText(text);
    sheet->setInformativeText(informativeText);
    return sheet;
}

void MainWindowController::reply(bool terminate)
{
    if (m_terminateReply)
        m_terminateReply(terminate);
}

// --- Operations --------------------------------------------------------------------------------

void MainWindowController::processFiles()
{
    if (m_saving)
        return;
    // A value still being typed is part of what the user asked to save.
    m_configController->commitPendingInput();
    m_saving = true;
    recheckUIEnablement();
    if (m_runner->saveFiles(files(), ExifOperationOption::ReReadFile) > 0)
        showProgressPanel(false);
}

void MainWindowController::removeAllMetadata()
{
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    if (files().isEmpty() || m_saving || selected.isEmpty())
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
        QMessageBox *sheet = makeSheet(
            localized(QStringLiteral("Nothing to remove")),
            QCoreApplication::translate("MainWindowController",
                                        "All metadata cannot be removed from the %n selected "
                                        "file(s) without making them unreadable (camera raw "
                                        "files need their tags).",
                                        nullptr, kept));
        sheet->addButton(QMessageBox::Ok);
        sheet->open();
        return;
    }

    QString informative = needsStrongWarning
                              ? localized(QStringLiteral("REMOVE_ALL_METADATA_WARNING2"))
                              : localized(QStringLiteral("All tags will be removed immediately."));
    if (kept > 0) {
        informative += u' ' + QCoreApplication::translate(
                                  "MainWindowController",
                                  "%n other selected file(s) cannot lose all metadata and stay "
                                  "as they are.",
                                  nullptr, kept);
    }
    informative += u' ' + localized(QStringLiteral("Revert Last Save can put the files back as "
                                                   "they were until they are saved again."));
    QMessageBox *sheet = makeSheet(
        QCoreApplication::translate("MainWindowController", "Remove all metadata from %n file(s)?",
                                    nullptr, strippable),
        informative);
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
        const QList<ExifFileInfoPtr> current = selectedFiles();
        if (current.isEmpty())
            return;
        m_saving = true;
        recheckUIEnablement();
        if (m_runner->removeAllMetadata(current, ExifOperationOption::ReReadFile) > 0)
            showProgressPanel(true);
    });
    sheet->open();
}

void MainWindowController::removeMakerNotes()
{
    if (selectedFiles().isEmpty())
        return;
    QMessageBox *sheet = makeSheet(localized(QStringLiteral("dialog.fix-maker.title")),
                                   localized(QStringLiteral("dialog.fix-maker.into-text")));
    QPushButton *repair = sheet->addButton(localized(QStringLiteral("dialog.fix-maker.ok-button")),
                                           QMessageBox::AcceptRole);
    sheet->addButton(localized(QStringLiteral("dialog.fix-maker.cancel-button")),
                     QMessageBox::RejectRole);
    sheet->setDefaultButton(repair);
    connect(sheet, &QMessageBox::finished, this, [this, sheet, repair] {
        if (sheet->clickedButton() != repair || m_saving)
            return;
        const QList<ExifFileInfoPtr> current = selectedFiles();
        m_saving = true;
        recheckUIEnablement();
        if (m_runner->removeMakerNotesFromFiles(current, ExifOperationOption::ReReadFile) > 0)
            showProgressPanel(true);
    });
    sheet->open();
}

void MainWindowController::showProgressPanel(bool fadeIn)
{
    removeProgressPanel();
    m_progressPanel = new ProgressPanel(m_window->content());
    m_progressPanel->raise();
    m_progressPanel->show();
    if (fadeIn)
        m_progressPanel->fadeIn();
    else
        m_progressPanel->setOpacity(1.0);
}

void MainWindowController::removeProgressPanel()
{
    if (m_progressPanel) {
        m_progressPanel->hide();
        m_progressPanel->deleteLater();
        m_progressPanel = nullptr;
    }
}

void MainWindowController::handleFileStarted(const ExifFileInfoPtr &,
                                             const ExifOperationStatus &status)
{
    if (m_progressPanel)
        m_progressPanel->fileToBeProcessed(status);
}

void MainWindowController::handleFileFinished(const ExifFileInfoPtr &file,
                                              const ExifOperationStatus &)
{
    if (file)
        m_model->refreshFiles({file});
}

void MainWindowController::handleBatchFinished(const QHash<QString, ErrorMessagesPtr> &results)
{
    m_saving = false;
    if (m_saveStatus == MayClose || m_saveStatus == SavingToQuit) {
        checkSaveStatusAfterSave(results);
        if (m_saveStatus != Idle)
            return;
    }
    removeProgressPanel();
    m_model->refreshAll();
    m_configController->setExifFiles(m_currentFiles);
    updateWindowModified();
    recheckUIEnablement();

    quint64 problems = 0;
    for (const ErrorMessagesPtr &messages : results) {
        if (messages)
            problems += messages->errorsCount() + messages->warnsCount();
    }
    if (problems > 0)
        displayErrors(results);

    if (m_closeAfterSaving) {
        m_closeAfterSaving = false;
        m_window->close();
    }
}

// --- Close, save, quit -------------------------------------------------------------------------

bool MainWindowController::windowShouldClose()
{
    if (m_saving) {
        // Asked again when the batch ends, when the files' state is known.
        m_closeAfterSaving = true;
        return false;
    }
    if (m_saveStatus == MayClose) {
        m_saveStatus = Idle;
        return true;
    }
    if (!hasDiretyFiles()) {
        if (m_saveStatus == QuitWaiting)
            reply(true);
        return true;
    }
    if (m_closeSheet)
        return false;
    m_closeSheet =
        makeSheet(localized(QStringLiteral("Save changes to modified files?")),
                  localized(QStringLiteral("If you don't save the changes, they will be lost")));
    // One role for all three keeps them in this order on every desktop.
    QPushButton *save =
        m_closeSheet->addButton(localized(QStringLiteral("Save")), QMessageBox::ActionRole);
    QPushButton *cancel =
        m_closeSheet->addButton(localized(QStringLiteral("Cancel")), QMessageBox::ActionRole);
    QPushButton *dontSave =
        m_closeSheet->addButton(localized(QStringLiteral("Don't Save")), QMessageBox::ActionRole);
    m_closeSheet->setDefaultButton(save);
    m_closeSheet->setEscapeButton(cancel);
    QMessageBox *sheet = m_closeSheet;
    connect(sheet, &QMessageBox::finished, this, [this, sheet, save, dontSave] {
        const QAbstractButton *clicked = sheet->clickedButton();
        handleCloseAnswer(clicked == save       ? CloseAnswer::Save
                          : clicked == dontSave ? CloseAnswer::DontSave
                                                : CloseAnswer::Cancel);
    });
    m_closeSheet->open();
    return false;
}

void MainWindowController::handleCloseAnswer(CloseAnswer answer)
{
    switch (answer) {
    case CloseAnswer::DontSave:
        if (m_saveStatus != Idle) {
            reply(true);
            return;
        }
        m_saveStatus = MayClose;
        m_model->setFiles({});
        m_currentFiles.clear();
        m_configController->setExifFiles({});
        closeWindowNow();
        return;
    case CloseAnswer::Cancel: {
        const bool quitWaiting = m_saveStatus != Idle;
        m_saveStatus = Idle;
        if (quitWaiting)
            reply(false);
        return;
    }
    case CloseAnswer::Save:
        m_saveStatus = m_saveStatus != Idle ? SavingToQuit : MayClose;
        processFiles();
        return;
    }
    throw TagsmithException(TagsmithException::LogicError,
                            QStringLiteral("Unknown button return: %1").arg(int(answer)));
}

void MainWindowController::closeWindowNow()
{
    m_saveStatus = MayClose;
    m_window->close();
}

void MainWindowController::checkSaveStatusAfterSave(const QHash<QString, ErrorMessagesPtr> &results)
{
    const bool failed =
        std::any_of(results.cbegin(), results.cend(),
                    [](const ErrorMessagesPtr &m) { return m && m->errorsCount(); });
    if (!failed) {
        if (m_saveStatus == MayClose)
            closeWindowNow();
        else
            reply(true);
        return;
    }
    auto *alert = new QMessageBox(m_window.get());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setWindowModality(Qt::ApplicationModal);
    alert->setIcon(QMessageBox::Critical);
    alert->setText(localized(QStringLiteral("SAVE_FAILED_DLG_MSG")));
    alert->setInformativeText(localized(QStringLiteral("SAVE_FAILED_DLG_INFO")));
    QPushButton *dontExit =
        alert->addButton(localized(QStringLiteral("Don't Exit")), QMessageBox::RejectRole);
    alert->addButton(localized(QStringLiteral("Exit")), QMessageBox::AcceptRole);
    alert->setDefaultButton(dontExit);
    connect(alert, &QMessageBox::finished, this, [this, alert, dontExit, results] {
        // The answer has always been compared with 1000, the first-button code of a newer alert
        // form that this one never returns (it gives 1 and 0), so both buttons act as "Exit".
        // Kept as users know it.
        constexpr int firstButtonReturn = 1000;
        const int answer = alert->clickedButton() == dontExit ? 1 : 0;
        if (answer == firstButtonReturn) {
            const bool quitWaiting = m_saveStatus == SavingToQuit;
            m_saveStatus = Idle;
            if (quitWaiting)
                reply(false);
            displayErrors(results);
            return;
        }
        if (m_saveStatus == MayClose)
            closeWindowNow();
        else
            reply(true);
    });
    alert->open();
}

ProgressPanel *MainWindowController::progressPanel() const
{
    return m_progressPanel;
}

ResultsWindowController *MainWindowController::resultsWindowController() const
{
    return m_resultsWindowController;
}

MapWindowController *MainWindowController::mapWindowController() const
{
    return m_mapWindowController;
}

PresetsWindowController *MainWindowController::settingsWindowController() const
{
    return m_settingsWindowController;
}
