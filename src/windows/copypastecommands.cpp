#include "windows/copypastecommands.h"

#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowmenus.h"
#include "editors/configurationviewcontroller.h"
#include "engine/editsession.h"
#include "engine/metadataclipboard.h"
#include "windows/pastemetadatadialog.h"

#include <QAction>

CopyPasteCommands::CopyPasteCommands(const WindowContext &context, QObject *parent)
    : WindowPart(context, parent)
{
    using C = MainWindowMenus::Command;
    m_menus->onTriggered(C::CopyMetadata, this, &CopyPasteCommands::copyMetadata);
    m_menus->onTriggered(C::PasteMetadata, this, &CopyPasteCommands::pasteMetadata);
}

CopyPasteCommands::~CopyPasteCommands() = default;

void CopyPasteCommands::copyMetadata()
{
    const QList<ExifFileInfoPtr> selected = m_list->selectedFiles();
    if (selected.size() != 1)
        return;
    // What the form shows, including a value still being typed.
    m_list->commitPendingInput();
    if (!m_clipboard)
        m_clipboard = std::make_unique<MetadataClipboard>();
    m_clipboard->copyFrom(*selected.first());
    Q_EMIT changed();
}

void CopyPasteCommands::pasteMetadata()
{
    if (!hasCopiedMetadata() || m_list->currentFiles().isEmpty())
        return;
    if (m_pasteDialog) {
        m_pasteDialog->raise();
        return;
    }
    m_pasteDialog =
        new PasteMetadataDialog(*m_clipboard, int(m_list->currentFiles().size()), m_window);
    m_pasteDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_pasteDialog, &PasteMetadataDialog::accepted, this,
            [this, dialog = m_pasteDialog] { pasteSelection(dialog->selection()); });
    m_pasteDialog->open();
}

void CopyPasteCommands::pasteSelection(const MetadataSelection &selection)
{
    m_list->commitPendingInput();
    const QList<ExifFileInfoPtr> current = m_list->currentFiles();
    QList<ExifFileInfoPtr> changedFiles;
    QStringList changedKeys;
    for (const ExifFileInfoPtr &file : current) {
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
    m_list->showCurrentFilesAgain();
    // Each changed field is announced, so the rows' marks, the map and dependent editors follow
    // as after any edit.
    for (const QString &key : std::as_const(changedKeys)) {
        m_session.post(key, changedFiles, m_clipboard->values().value(key), current, this);
    }
    Q_EMIT changed();
}

bool CopyPasteCommands::hasCopiedMetadata() const
{
    return m_clipboard && !m_clipboard->isEmpty();
}

void CopyPasteCommands::updateEnablement(const CommandState &state)
{
    using C = MainWindowMenus::Command;
    m_menus->action(C::CopyMetadata)->setEnabled(!state.saving && state.selected.size() == 1);
    m_menus->action(C::PasteMetadata)
        ->setEnabled(!state.saving && !state.selected.isEmpty() && hasCopiedMetadata());
}
