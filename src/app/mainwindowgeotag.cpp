#include "app/mainwindowcontroller.h"

#include "app/mainwindow.h"
#include "editors/configurationviewcontroller.h"
#include "windows/geotagdialog.h"
#include "windows/mapwindowcontroller.h"

void MainWindowController::geotagFromTrackLog()
{
    // Typed text still in a row belongs to the files it was typed for.
    m_configController->commitPendingInput();
    const QList<ExifFileInfoPtr> files = selectedFiles();
    if (files.isEmpty())
        return;
    if (m_geotagDialog) {
        m_geotagDialog->raise();
        m_geotagDialog->activateWindow();
        return;
    }

    auto *dialog = new GeotagDialog(files, *m_session, m_window.get());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The files stay as they are (no removal, no reload) while their positions are chosen.
    dialog->setWindowModality(Qt::WindowModal);
    m_geotagDialog = dialog;
    connect(dialog, &GeotagDialog::previewRequested, this,
            [this](const QList<TrackPoint> &track, const QList<MapPin> &proposed) {
                showMap();
                m_mapWindowController->showTrack(track, proposed);
            });
    connect(dialog, &GeotagDialog::applied, this, [this](const QList<ExifFileInfoPtr> &changed) {
        // Only the coordinate rows follow the notifications; the others (altitude, GPS date and
        // time) are refreshed by showing the selection again.
        if (!changed.isEmpty())
            m_configController->setExifFiles(m_currentFiles);
        recheckUIEnablement();
    });
    connect(dialog, &QDialog::finished, this, [this] {
        if (m_mapWindowController)
            m_mapWindowController->clearTrack();
    });
    dialog->show();
}
