#pragma once

#include <QHash>
#include <QObject>

class QAction;
class QMenu;
class QMenuBar;

// The main window's commands: menus, actions and their shortcuts, so every command can be
// reached from the keyboard. Which command is enabled is decided by isCommandEnabled.
class MainWindowMenus : public QObject
{
    Q_OBJECT

public:
    enum class Command {
        Open,
        Process,
        Reload,
        RemoveFiles,
        ClearFiles,
        RemoveAllMetadata,
        RemoveMakerNotes,
        SelectAll,
        ShowConfigurations,
        ShowMap,
        ShowResults,
        QuickLook,
        Preferences,
        Quit,
        Help,
        Support,
        WebSite,
        ReviewChanges,
        RevertLastSave,
        CopyMetadata,
        PasteMetadata,
        GeotagFromTrackLog,
    };

    // What enablement depends on.
    struct State
    {
        bool saving = false;
        bool hasFiles = false;
        bool hasSelection = false;
        // Some selected file's maker notes could not be read.
        bool selectionHasError = false;
        // Some selected file is a JPEG, TIFF or Photoshop file.
        bool selectionCanLoseMetadata = false;
        // Some file in the list has unsaved edits.
        bool hasModifiedFiles = false;
        // The last save of some listed file can be taken back.
        bool canRevertLastSave = false;
        // Metadata copied from a file waits to be pasted.
        bool hasCopiedMetadata = false;
        bool singleSelection = false;
    };

    // The presets menu's fixed item; presets are inserted below it.
    static constexpr int EditPresetsTag = -1;

    MainWindowMenus(QMenuBar *menuBar, QObject *parent = nullptr);

    QAction *action(Command command) const { return m_actions.value(command); }
    QMenu *configsMenu() const { return m_configsMenu; }

    static bool isCommandEnabled(Command command, const State &state);
    void updateEnablement(const State &state);

private:
    QAction *add(QMenu *menu, Command command, const QString &text, const QKeySequence &shortcut);

    QHash<Command, QAction *> m_actions;
    QMenu *m_configsMenu = nullptr;
};
