#pragma once

#include "windows/windowpart.h"

#include <QObject>
#include <QPointer>

#include <memory>

class EditSession;
class FileListPresenter;
class MainWindow;
class MainWindowMenus;
class MetadataClipboard;
class PasteMetadataDialog;
struct MetadataSelection;

// Copy Metadata and Paste Metadata: one file's values copied, then pasted into the selection
// as pending edits.
class CopyPasteCommands : public WindowPart
{
    Q_OBJECT

public:
    CopyPasteCommands(const WindowContext &context, QObject *parent);
    ~CopyPasteCommands() override;

    void copyMetadata();
    void pasteMetadata();
    bool hasCopiedMetadata() const;
    void updateEnablement(const CommandState &state) override;

Q_SIGNALS:
    // The clipboard or the files' values changed.
    void changed();

private:
    void pasteSelection(const MetadataSelection &selection);

    std::unique_ptr<MetadataClipboard> m_clipboard;
    QPointer<PasteMetadataDialog> m_pasteDialog;
};
