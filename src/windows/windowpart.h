#pragma once

#include "windows/commandstate.h"

#include <QObject>

class EditSession;
class FileListPresenter;
class MainWindow;
class MainWindowMenus;

// What the parts of the main window work with; all owned by the window.
struct WindowContext
{
    MainWindow *window = nullptr;
    MainWindowMenus *menus = nullptr;
    // Null for the list itself.
    FileListPresenter *list = nullptr;
    EditSession *session = nullptr;
};

// One part of the main window: runs some of its commands and decides when they are enabled.
class WindowPart : public QObject
{
    Q_OBJECT

public:
    WindowPart(const WindowContext &context, QObject *parent)
        : QObject(parent)
        , m_window(context.window)
        , m_menus(context.menus)
        , m_list(context.list)
        , m_session(*context.session)
    {
    }

    virtual void updateEnablement(const CommandState &state) = 0;

protected:
    MainWindow *const m_window;
    MainWindowMenus *const m_menus;
    FileListPresenter *const m_list;
    EditSession &m_session;
};
