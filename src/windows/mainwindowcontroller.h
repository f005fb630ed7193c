#pragma once

#include "windows/appmainwindow.h"
#include "catalogue/presetstore.h"
#include "engine/closeflow.h"
#include "engine/writequeue.h"
#include "engine/exifoperationstatus.h"

#include <QHash>
#include <QPointer>

#include <functional>
#include <memory>

class AuxiliaryWindows;
class ConfigurationViewController;
class EditSession;
class FileListPresenter;
class FileOperations;
class MainWindow;
class MainWindowMenus;
class QMessageBox;
class WindowPart;

// The one main window: builds it, hands its parts to the objects that run its commands, keeps
// the modified mark and the commands' enablement current, and asks before closing.
class MainWindowController : public AppMainWindow
{
    Q_OBJECT

public:
    // A null runner makes the real one; tests pass a stand-in.
    explicit MainWindowController(std::unique_ptr<WriteQueue> runner = nullptr,
                                  PresetStore &store = PresetStore::instance(), bool debug = false);
    ~MainWindowController() override;

    // AppMainWindow
    QWidget *window() override;
    bool hasModifiedFiles() const override;
    void quitRequested() override { m_close.quitRequested(); }
    bool openFile(const QString &path) override;
    bool openFiles(const QStringList &paths, const QList<FileRejection> &rejected = {}) override;

    int saveStatus() const { return int(m_close.status()); }
    // What "let the application terminate" and "cancel the quit" do; nothing by default.
    void setTerminateReply(std::function<void(bool)> reply) { m_terminateReply = std::move(reply); }

    FileListPresenter *fileList() const { return m_list; }
    FileOperations *operations() const { return m_operations; }
    AuxiliaryWindows *auxiliaryWindows() const { return m_windows; }
    MainWindowMenus *menus() const { return m_menus; }
    ConfigurationViewController *configController() const { return m_form; }
    // Where the form, the list, the map, geotagging and pasting announce their edits.
    EditSession *editSession() const { return m_session; }

    void recheckUIEnablement();
    void updateWindowModified();

private:
    void buildParts(PresetStore &store);
    bool windowShouldClose();
    void askToSave();
    // Does what the close flow decided; true when the window may close now.
    bool takeStep(CloseFlow::Step step, const QHash<QString, ErrorMessagesPtr> &results = {});
    void handleBatchFinished(const QHash<QString, ErrorMessagesPtr> &results);
    void askAfterFailedSave(const QHash<QString, ErrorMessagesPtr> &results);
    // The end of a batch when no close waits on it.
    void finishBatch(const QHash<QString, ErrorMessagesPtr> &results);
    void reply(bool terminate);

    bool m_debug;
    std::unique_ptr<WriteQueue> m_runner;
    EditSession *m_session = nullptr;
    std::unique_ptr<MainWindow> m_window;
    MainWindowMenus *m_menus = nullptr;
    ConfigurationViewController *m_form = nullptr;
    FileListPresenter *m_list = nullptr;
    FileOperations *m_operations = nullptr;
    AuxiliaryWindows *m_windows = nullptr;
    // Each decides its own commands' enablement.
    QList<WindowPart *> m_parts;
    CloseFlow m_close;
    QPointer<QMessageBox> m_closeSheet;
    std::function<void(bool)> m_terminateReply;
};
