#include "windows/geotagcommand.h"

#include "windows/auxiliarywindows.h"
#include "windows/filelistpresenter.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowmenus.h"
#include "windows/geotagdialog.h"
#include "windows/mapwindow.h"

#include <QAction>

GeotagCommand::GeotagCommand(const WindowContext &context, AuxiliaryWindows *windows,
                             QObject *parent)
    : WindowPart(context, parent)
    , m_windows(windows)
{
    m_menus->onTriggered(MainWindowMenus::Command::GeotagFromTrackLog, this,
                         &GeotagCommand::geotagFromTrackLog);
}

void GeotagCommand::geotagFromTrackLog()
{
    // Typed text still in a row belongs to the files it was typed for.
    m_list->commitPendingInput();
    const QList<ExifFileInfoPtr> files = m_list->selectedFiles();
    if (files.isEmpty())
        return;
    if (m_dialog) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }

    auto *dialog = new GeotagDialog(files, m_session, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The files stay as they are (no removal, no reload) while their positions are chosen.
    dialog->setWindowModality(Qt::WindowModal);
    m_dialog = dialog;
    connect(dialog, &GeotagDialog::previewRequested, this,
            [this](const QList<TrackPoint> &track, const QList<MapPin> &proposed) {
                m_windows->showMap();
                m_windows->mapWindow()->showTrack(track, proposed);
            });
    connect(dialog, &GeotagDialog::applied, this, [this](const QList<ExifFileInfoPtr> &changed) {
        // Only the coordinate rows follow the notifications; the others (altitude, GPS date and
        // time) are refreshed by showing the selection again.
        if (!changed.isEmpty())
            m_list->showCurrentFilesAgain();
        Q_EMIT this->changed();
    });
    connect(dialog, &QDialog::finished, this, [this] {
        if (MapWindow *map = m_windows->mapWindow())
            map->clearTrack();
    });
    dialog->show();
}

void GeotagCommand::updateEnablement(const CommandState &state)
{
    m_menus->action(MainWindowMenus::Command::GeotagFromTrackLog)
        ->setEnabled(!state.saving && !state.selected.isEmpty());
}
