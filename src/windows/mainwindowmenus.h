#pragma once

#include <QAction>
#include <QHash>
#include <QObject>

class QMenu;
class QMenuBar;

// The main window's commands: menus, actions and their shortcuts, so every command can be
// reached from the keyboard. The part of the window that runs a command also enables it.
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

    // The presets menu's fixed item; presets are inserted below it.
    static constexpr int EditPresetsTag = -1;

    MainWindowMenus(QMenuBar *menuBar, QObject *parent = nullptr);

    QAction *action(Command command) const { return m_actions.value(command); }
    // Runs receiver's handler when the command is chosen.
    template <typename T> void onTriggered(Command command, T *receiver, void (T::*handler)()) const
    {
        connect(action(command), &QAction::triggered, receiver, handler);
    }
    QMenu *configsMenu() const { return m_configsMenu; }

private:
    QAction *add(QMenu *menu, Command command, const QString &text, const QKeySequence &shortcut);

    QHash<Command, QAction *> m_actions;
    QMenu *m_configsMenu = nullptr;
};
