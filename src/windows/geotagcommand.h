#pragma once

#include "windows/windowpart.h"

#include <QObject>
#include <QPointer>

class AuxiliaryWindows;
class EditSession;
class FileListPresenter;
class GeotagDialog;
class MainWindow;
class MainWindowMenus;

// Geotag from Track Log: the dialog over the selected files, its preview on the map.
class GeotagCommand : public WindowPart
{
    Q_OBJECT

public:
    GeotagCommand(const WindowContext &context, AuxiliaryWindows *windows, QObject *parent);

    void geotagFromTrackLog();
    void updateEnablement(const CommandState &state) override;

Q_SIGNALS:
    // Positions were written into the files' pending edits.
    void changed();

private:
    AuxiliaryWindows *m_windows;
    QPointer<GeotagDialog> m_dialog;
};
