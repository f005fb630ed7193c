#pragma once

#include "windows/commandstate.h"

#include <QObject>
#include <QPointer>

class AuxiliaryWindows;
class EditSession;
class FileListPresenter;
class GeotagDialog;
class MainWindow;
class MainWindowMenus;

// Geotag from Track Log: the dialog over the selected files, its preview on the map.
class GeotagCommand : public QObject
{
    Q_OBJECT

public:
    GeotagCommand(MainWindow *window, MainWindowMenus *menus, FileListPresenter *list,
                  AuxiliaryWindows *windows, EditSession &session, QObject *parent);

    void geotagFromTrackLog();
    void updateEnablement(const CommandState &state);

Q_SIGNALS:
    // Positions were written into the files' pending edits.
    void changed();

private:
    MainWindow *m_window;
    MainWindowMenus *m_menus;
    FileListPresenter *m_list;
    AuxiliaryWindows *m_windows;
    EditSession &m_session;
    QPointer<GeotagDialog> m_dialog;
};
