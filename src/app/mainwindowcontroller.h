#pragma once

#include "app/filereadqueue.h"
#include "app/mainwindowmenus.h"
#include "app/tagsmithappdelegate.h"
#include "catalogue/exifsettings.h"
#include "engine/exifbackgroundrunner.h"
#include "engine/exiffileinfo.h"
#include "engine/exifrunner.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class AddFilesNote;
class ConfigurationViewController;
class EditSession;
class FileListModel;
class FileListView;
class IndeterminateProgressIndicatorCell;
class MainWindow;
class MapWindowController;
class PresetsWindowController;
class PreviewPanel;
class ProgressPanel;
class QMessageBox;
class QPushButton;
class QuickLookImageCache;
class ResultsWindowController;
struct ExifFilesUpdate;
class GeotagDialog;      // geotagging
class MetadataClipboard; // copy and paste
struct MetadataSelection;
class PasteMetadataDialog;

// The one main window: the list of files, the form for the selected ones, the commands, and
// the close / save / quit state machine.
class MainWindowController : public QObject, public AppMainWindow
{
    Q_OBJECT

public:
    // saveStatus values.
    enum SaveStatus { Idle = 0, QuitWaiting = 1, MayClose = 2, SavingToQuit = 3 };
    enum class CloseAnswer { Save, Cancel, DontSave };

    // A null runner makes the real one; tests pass a stand-in.
    explicit MainWindowController(TagsmithAppDelegate *delegate = nullptr,
                                  std::unique_ptr<ExifBackgroundRunner> runner = nullptr,
                                  ExifSettings &store = ExifSettings::instance(),
                                  bool debug = false);
    ~MainWindowController() override;

    // AppMainWindow
    QWidget *window() override;
    bool hasDiretyFiles() const override;
    void setSaveStatus(int status) override { m_saveStatus = status; }
    bool openFile(const QString &path) override;
    bool openFiles(const QStringList &paths, const QList<FileRejection> &rejected = {}) override
    {
        return addFiles(paths, rejected);
    }

    int saveStatus() const { return m_saveStatus; }
    bool isSaving() const { return m_saving; }
    // What "let the application terminate" and "cancel the quit" do; the delegate by default.
    void setTerminateReply(std::function<void(bool)> reply) { m_terminateReply = std::move(reply); }

    // Adding: paths of files or folders. True when some new record was made; the records are
    // read in the background and then appended and selected. rejected: paths turned away before
    // (names that cannot be opened), listed in the same note.
    bool addFiles(const QStringList &paths, const QList<FileRejection> &rejected = {});
    bool hasFileInList(const QString &path) const;
    bool waitForPendingReads(int timeoutMs = 30000);
    // Stops reading added files; the files read so far are added and selected.
    void cancelReading();
    FileReadQueue *readQueue() const { return m_readQueue; }

    const QList<ExifFileInfoPtr> &files() const;
    const QList<ExifFileInfoPtr> &currentFiles() const { return m_currentFiles; }
    QList<ExifFileInfoPtr> selectedFiles() const;
    void selectRows(const QList<int> &rows);

    // Commands.
    void openDocument();
    void processFiles();
    void removeAllMetadata();
    void removeMakerNotes();
    void reloadSelectedFiles();
    void removeFilesClick();
    // Clear List: asks first, like a removal, when any file has unsaved edits.
    void clearFilesClick();
    void clearAllFiles();
    void showConfigurations();
    void showMap();
    void showHideResultsWindow();
    void showHideQuickLook();
    void loadTestFiles();

    // Review of pending changes and taking back the last save (mainwindowreview.cpp).
    void reviewChanges();
    void revertLastSave();
    bool canRevertLastSave() const;

    // Copying metadata between files (mainwindowcopy.cpp).
    void copyMetadata();
    void pasteMetadata();
    bool hasCopiedMetadata() const;

    // Geotagging from track logs (mainwindowgeotag.cpp).
    void geotagFromTrackLog();

    // Presets.
    void updateConfigurations();
    const QStringList &configIds() const { return m_configIds; }
    void handleConfigurationClick(int tag);
    void applyConfiguration(const ExifConfiguration &configuration);
    static void applyConfiguration(const ExifConfiguration &configuration,
                                   const ExifFileInfoPtr &file);

    // Close and save.
    bool windowShouldClose();
    void handleCloseAnswer(CloseAnswer answer);
    void checkSaveStatusAfterSave(const QHash<QString, ErrorMessagesPtr> &results);

    void recheckUIEnablement();
    void updateWindowModified();

    FileListModel *model() const { return m_model; }
    FileListView *filesTable() const { return m_filesTable; }
    MainWindowMenus *menus() const { return m_menus; }
    ConfigurationViewController *configController() const { return m_configController; }
    // Where the form, the list, the map, geotagging and pasting announce their edits.
    EditSession *editSession() const { return m_session; }
    ProgressPanel *progressPanel() const;
    AddFilesNote *addFilesNote() const { return m_addFilesNote; }
    ResultsWindowController *resultsWindowController() const;
    MapWindowController *mapWindowController() const;
    PresetsWindowController *settingsWindowController() const;
    QPushButton *processButton() const { return m_processButton; }

private:
    void buildWindow();
    void connectCommands();
    void handleSelectionChanged();
    void removeFilesFromList(const QStringList &names);
    // Runs drop at once when none of the files has unsaved edits, otherwise after the user
    // agreed to lose them.
    void dropFilesAsking(const QList<ExifFileInfoPtr> &dropped, std::function<void()> drop);
    void handleBatchRead(const FileReadQueue::Batch &batch);
    void replaceReloadedFiles(const FileReadQueue::Batch &batch);
    void handleReadingChanged(bool busy);
    void handleExifFilesUpdate(const ExifFilesUpdate &update);
    void handleFileStarted(const ExifFileInfoPtr &file, const ExifOperationStatus &status);
    void handleFileFinished(const ExifFileInfoPtr &file, const ExifOperationStatus &status);
    void handleBatchFinished(const QHash<QString, ErrorMessagesPtr> &results);
    void showProgressPanel(bool fadeIn);
    void removeProgressPanel();
    void displayErrors(const QHash<QString, ErrorMessagesPtr> &results);
    void reloadMapFiles();
    void closeWindowNow();
    void reply(bool terminate);
    QMessageBox *makeSheet(const QString &text, const QString &informativeText);
    MainWindowMenus::State commandState() const;

    TagsmithAppDelegate *m_delegate;
    ExifSettings &m_store;
    bool m_debug;
    std::unique_ptr<ExifBackgroundRunner> m_runner;
    EditSession *m_session = nullptr;
    std::unique_ptr<MainWindow> m_window;
    QuickLookImageCache *m_imagesCache = nullptr;
    FileReadQueue *m_readQueue = nullptr;
    FileListModel *m_model = nullptr;
    FileListView *m_filesTable = nullptr;
    MainWindowMenus *m_menus = nullptr;
    ConfigurationViewController *m_configController = nullptr;
    AddFilesNote *m_addFilesNote = nullptr;
    IndeterminateProgressIndicatorCell *m_readingIndicator = nullptr;
    QPushButton *m_processButton = nullptr;
    QPointer<ProgressPanel> m_progressPanel;
    QPointer<ResultsWindowController> m_resultsWindowController;
    QPointer<MapWindowController> m_mapWindowController;
    QPointer<PresetsWindowController> m_settingsWindowController;
    QPointer<PreviewPanel> m_previewPanel;
    QPointer<QMessageBox> m_closeSheet;
    QList<ExifFileInfoPtr> m_currentFiles;
    QStringList m_configIds;
    std::function<void(bool)> m_terminateReply;
    int m_saveStatus = Idle;
    bool m_saving = false;
    // A close asked for while a batch ran; put again when it ends.
    bool m_closeAfterSaving = false;

    // Review and revert (mainwindowreview.cpp).
    QList<ExifFileInfoPtr> filesToRevert() const;
    QPointer<class ReviewChangesWindowController> m_reviewWindow;

    // Copy and paste (mainwindowcopy.cpp).
    void pasteSelection(const MetadataSelection &selection);
    // Shared only so the header needs no definition of the class.
    std::shared_ptr<MetadataClipboard> m_clipboard;
    QPointer<PasteMetadataDialog> m_pasteDialog;

    // Geotagging (mainwindowgeotag.cpp).
    QPointer<GeotagDialog> m_geotagDialog;
};
