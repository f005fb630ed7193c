#pragma once

#include "windows/windowpart.h"
#include "engine/filereadqueue.h"

#include <QObject>
#include <QStringList>

#include <functional>

class AddFilesNote;
class ConfigurationViewController;
class FileListModel;
class FileListView;
class MainWindow;
class MainWindowMenus;
class QuickLookImageCache;
struct ExifFilesUpdate;

// The list of files: adding (read in the background), reloading, removing and clearing, the
// selection and the files the form shows.
class FileListPresenter : public WindowPart
{
    Q_OBJECT

public:
    FileListPresenter(const WindowContext &context, ConfigurationViewController *form,
                      QObject *parent);

    FileListModel *model() const { return m_model; }
    FileReadQueue *readQueue() const { return m_readQueue; }
    AddFilesNote *addFilesNote() const { return m_addFilesNote; }
    QuickLookImageCache *imageCache() const { return m_imagesCache; }
    FileListView *view() const;

    const QList<ExifFileInfoPtr> &files() const;
    // The files the form shows: the selection when it last changed.
    const QList<ExifFileInfoPtr> &currentFiles() const { return m_currentFiles; }
    QList<ExifFileInfoPtr> selectedFiles() const;
    void selectRows(const QList<int> &rows);

    // Paths of files or folders. True when some new record was made; the records are read in
    // the background and then appended and selected. rejected: paths turned away before
    // (names that cannot be opened), listed in the same note.
    bool addFiles(const QStringList &paths, const QList<FileRejection> &rejected = {});
    bool hasFileInList(const QString &path) const;
    bool waitForPendingReads(int timeoutMs = 30000);
    // Stops reading added files; the files read so far are added and selected.
    void cancelReading();

    void openDocument();
    void reloadSelectedFiles();
    void removeFilesClick();
    // Clear List: asks first, like a removal, when any file has unsaved edits.
    void clearFilesClick();
    void clearAllFiles();
    void loadTestFiles();

    // Shows the current files in the form again, for changes its rows do not follow.
    void showCurrentFilesAgain();
    // Typed text still in a row becomes an edit of the current files.
    void commitPendingInput();
    void refreshAll();
    void refreshFiles(const QList<ExifFileInfoPtr> &files);
    void handleExifFilesUpdate(const ExifFilesUpdate &update);
    void updateEnablement(const CommandState &state) override;

Q_SIGNALS:
    // After the current files and the form changed.
    void selectionChanged();
    // Rows were added, removed, replaced or edited.
    void filesChanged();

private:
    void handleSelectionChanged();
    void handleBatchRead(const FileReadQueue::Batch &batch);
    void replaceReloadedFiles(const FileReadQueue::Batch &batch);
    void handleReadingChanged(bool busy);
    void removeFilesFromList(const QStringList &names);
    // Runs drop at once when none of the files has unsaved edits, otherwise after the user
    // agreed to lose them.
    void dropFilesAsking(const QList<ExifFileInfoPtr> &dropped, std::function<void()> drop);

    ConfigurationViewController *m_form;
    QuickLookImageCache *m_imagesCache;
    FileReadQueue *m_readQueue;
    FileListModel *m_model;
    AddFilesNote *m_addFilesNote;
    QList<ExifFileInfoPtr> m_currentFiles;
};
