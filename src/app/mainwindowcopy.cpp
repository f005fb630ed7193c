// Copying one file's metadata and pasting it into others as pending edits.
#include "app/mainwindowcontroller.h"

#include "app/mainwindow.h"
#include "editors/configurationviewcontroller.h"
#include "engine/editsession.h"
#include "engine/metadataclipboard.h"
#include "windows/pastemetadatadialog.h"

void MainWindowController::copyMetadata()
{
    const QList<ExifFileInfoPtr> selected = selectedFiles();
    if (selected.size() != 1)
        return;
    // What the form shows, including a value still being typed.
    m_configController->commitPendingInput();
    if (!m_clipboard)
        m_clipboard = std::make_shared<MetadataClipboard>();
    m_clipboard->copyFrom(*selected.first());
    recheckUIEnablement();
}

void MainWindowController::pasteMetadata()
{
    if (!hasCopiedMetadata() || m_currentFiles.isEmpty())
        return;
    if (m_pasteDialog) {
        m_pasteDialog->raise();
        return;
    }
    m_pasteDialog =
        new PasteMetadataDialog(*m_clipboard, int(m_currentFiles.size()), m_window.get());
    m_pasteDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_pasteDialog, &PasteMetadataDialog::accepted, this,
            [this, dialog = m_pasteDialog] { pasteSelection(dialog->selection()); });
    m_pasteDialog->open();
}

void MainWindowController::pasteSelection(const MetadataSelection &selection)
{
    m_configController->commitPendingInput();
    QList<ExifFileInfoPtr> changedFiles;
    QStringList changedKeys;
    for (const ExifFileInfoPtr &file : std::as_const(m_currentFiles)) {
        const QStringList keys = m_clipboard->pasteInto(*file, selection);
        if (keys.isEmpty())
            continue;
        changedFiles.append(file);
        for (const QString &key : keys) {
            if (!changedKeys.contains(key))
                changedKeys.append(key);
        }
    }
    if (changedFiles.isEmpty())
        return;
    m_configController->setExifFiles(m_currentFiles);
    // Each changed field is announced, so the rows' marks, the map and dependent editors follow
    // as after any edit.
    for (const QString &key : std::as_const(changedKeys)) {
        m_session->post(key, changedFiles, m_clipboard->values().value(key), m_currentFiles, this);
    }
    recheckUIEnablement();
}

bool MainWindowController::hasCopiedMetadata() const
{
    return m_clipboard && !m_clipboard->isEmpty();
}
