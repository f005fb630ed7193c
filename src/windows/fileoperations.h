#pragma once

#include "windows/windowpart.h"
#include "engine/exifoperationstatus.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class WriteQueue;
class FileListPresenter;
class MainWindow;
class MainWindowMenus;
class ProgressPanel;

// The commands that write files in the background: Save, Remove All Metadata, Repair Maker
// Notes and Revert Last Save, with the progress panel while one runs.
class FileOperations : public WindowPart
{
    Q_OBJECT

public:
    FileOperations(const WindowContext &context, WriteQueue &runner, QObject *parent);

    bool isSaving() const { return m_saving; }
    ProgressPanel *progressPanel() const;

    void processFiles();
    void removeAllMetadata();
    void removeMakerNotes();
    void revertLastSave();
    bool canRevertLastSave() const;
    void removeProgressPanel();
    void updateEnablement(const CommandState &state) override;

Q_SIGNALS:
    void savingChanged(bool saving);
    // The batch ended; the progress panel stays until the window has taken the results.
    void batchFinished(const QHash<QString, ErrorMessagesPtr> &results);

private:
    void handleFileStarted(const ExifFileInfoPtr &file, const ExifOperationStatus &status);
    void handleFileFinished(const ExifFileInfoPtr &file, const ExifOperationStatus &status);
    void handleBatchFinished(const QHash<QString, ErrorMessagesPtr> &results);
    // Starts a batch of operations the runner took; start returns how many.
    void runBatch(bool fadeIn, const std::function<qsizetype()> &start);
    QList<ExifFileInfoPtr> filesToRevert() const;

    WriteQueue &m_runner;
    QPointer<ProgressPanel> m_progressPanel;
    bool m_saving = false;
};
