#include "windows/mainwindowmenus.h"

#include "catalogue/stringtables.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

MainWindowMenus::MainWindowMenus(QMenuBar *menuBar, QObject *parent)
    : QObject(parent)
{
    using C = Command;
    QMenu *file = menuBar->addMenu(localized("&File"));
    add(file, C::Open, localized("Add Files…"), QKeySequence::Open);
    add(file, C::Process, localized("Save"), QKeySequence::Save);
    add(file, C::ReviewChanges, localized("Review Changes…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    add(file, C::Reload, localized("Reload Selected Files"), QKeySequence(Qt::CTRL | Qt::Key_R));
    file->addSeparator();
    add(file, C::RemoveFiles, localized("Remove from List"), QKeySequence::Delete);
    add(file, C::ClearFiles, localized("Clear List"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Delete));
    file->addSeparator();
    add(file, C::RemoveAllMetadata, localized("Remove All Metadata…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_X));
    add(file, C::RemoveMakerNotes, localized("Repair Maker Notes…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M));
    file->addSeparator();
    // Linux has no standard key for preferences; Ctrl+, is the common one.
    QAction *preferences = add(file, C::Preferences, localized("Preferences…"),
                               QKeySequence(Qt::CTRL | Qt::Key_Comma));
    preferences->setMenuRole(QAction::PreferencesRole);
    QAction *quit = add(file, C::Quit, localized("Quit Tagsmith"), QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);

    QMenu *edit = menuBar->addMenu(localized("&Edit"));
    // A focused text field takes the undo key first, so it undoes typing there.
    add(edit, C::RevertLastSave, localized("Revert Last Save"), QKeySequence::Undo);
    edit->addSeparator();
    add(edit, C::SelectAll, localized("Select All"), QKeySequence::SelectAll);
    edit->addSeparator();
    add(edit, C::CopyMetadata, localized("Copy Metadata"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    add(edit, C::PasteMetadata, localized("Paste Metadata…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V));
    edit->addSeparator();
    add(edit, C::GeotagFromTrackLog, localized("Geotag from Track Log…"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));

    m_configsMenu = menuBar->addMenu(localized("&Presets"));
    QAction *editPresets = add(m_configsMenu, C::ShowConfigurations, localized("Edit Presets…"),
                               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    editPresets->setData(EditPresetsTag);

    QMenu *window = menuBar->addMenu(localized("&Window"));
    add(window, C::QuickLook, localized("Preview"), QKeySequence(Qt::CTRL | Qt::Key_Y));
    add(window, C::ShowMap, localized("Map"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G));
    add(window, C::ShowResults, localized("Results"), QKeySequence(Qt::CTRL | Qt::Key_E));

    QMenu *help = menuBar->addMenu(localized("&Help"));
    add(help, C::Help, localized("Tagsmith Help"), QKeySequence::HelpContents);
    add(help, C::Support, localized("Tagsmith Support"), QKeySequence());
    add(help, C::WebSite, localized("Tagsmith Web Site"), QKeySequence());
}

QAction *MainWindowMenus::add(QMenu *menu, Command command, const QString &text,
                              const QKeySequence &shortcut)
{
    QAction *action = menu->addAction(text);
    action->setShortcut(shortcut);
    // Shortcuts work anywhere in the window, also while the form has the focus.
    action->setShortcutContext(Qt::WindowShortcut);
    m_actions.insert(command, action);
    return action;
}
