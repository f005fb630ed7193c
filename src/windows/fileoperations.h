#pragma once

#include "windows/commandstate.h"
#include "engine/exifbackgroundrunnerlistener.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class ExifBackgroundRunner;
class FileListPresenter;
class MainWindow;
class MainWindowMenus;
class ProgressPanel;

// The commands that write files in the background: Save, Remove All Metadata, Repair Maker
// Notes and Revert Last Save, with the progress panel while one runs.
class FileOperations : public QObject, public ExifBackgroundRunnerListener
{
    Q_OBJECT

public:
    FileOperations(MainWindow *window, MainWindowMenus *menus, FileListPresenter *list,
                   ExifBackgroundRunner &runner, QObject *parent);

    bool isSaving() const { return m_saving; }
    ProgressPanel *progressPanel() const;

    void processFiles();
    void removeAllMetadata();
    void removeMakerNotes();
    void revertLastSave();
    bool canRevertLastSave() const;
    void removeProgressPanel();
    void updateEnablement(const CommandState &state);

    // ExifBackgroundRunnerListener
    void fileToBeProcessed(const ExifFileInfoPtr &file, const ExifOperationStatus &status) override;
    void fileProcessed(const ExifFileInfoPtr &file, const ExifOperationStatus &status) override;
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &results) override;

Q_SIGNALS:
    void savingChanged(bool saving);
    // The batch ended; the progress panel stays until the window has taken the results.
    void batchFinished(const QHash<QString, ErrorMessagesPtr> &results);

private:
    // Starts a batch of operations the runner took; start returns how many.
    void runBatch(bool fadeIn, const std::function<qsizetype()> &start);
    QList<ExifFileInfoPtr> filesToRevert() const;

    MainWindow *m_window;
    MainWindowMenus *m_menus;
    FileListPresenter *m_list;
    ExifBackgroundRunner &m_runner;
    QPointer<ProgressPanel> m_progressPanel;
    bool m_saving = false;
};
