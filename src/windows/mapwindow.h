#pragma once

#include "engine/exiffileinfo.h"
#include "engine/gpxtrack.h"
#include "engine/mappins.h"

#include <QList>
#include <QWidget>

class EditSession;
class MapBridge;
class MapPins;
class QAbstractButton;
class QButtonGroup;
class QWebEngineView;

// The map of the selected files' GPS positions: pins to add, drag and remove, written into the
// files' current values (nothing reaches the disk before a save).
class MapWindow : public QWidget
{
    Q_OBJECT

public:
    // Pins are edits of session's files.
    explicit MapWindow(EditSession &session, QWidget *parent = nullptr);
    ~MapWindow() override;

    // Shows the window in front.
    void showWindow();
    // The main window's selection; rebuilds the pins and frames them.
    void setFiles(const QList<ExifFileInfoPtr> &files);
    const QList<ExifFileInfoPtr> &files() const { return m_files; }

    // A track log and the pins it proposes, drawn apart from the files' own pins and framed;
    // nothing is written into the files. Empty lists take the track away.
    void showTrack(const QList<TrackPoint> &points, const QList<MapPin> &proposed);
    void clearTrack() { showTrack({}, {}); }

    // The page shipped with the executable, in the build tree or an installed one.
    static QString pagePath();

    MapPins *pins() const { return m_pins; }
    MapBridge *bridge() const { return m_bridge; }
    QWebEngineView *mapView() const { return m_mapView; }
    QAbstractButton *addPinButton() const { return m_addPinButton; }
    QAbstractButton *removePinButton() const { return m_removePinButton; }
    QButtonGroup *mapTypeControl() const { return m_mapTypeControl; }

    // What "Remove Pin" does: names how many files lose their position and removes it from them
    // only when the user agrees (Cancel is the default).
    void confirmRemovePin();

Q_SIGNALS:
    // Pins were removed from these files: rows showing their other GPS values must follow.
    void pinsRemoved(const QList<ExifFileInfoPtr> &files);

private:
    void loadPage();
    void handleButtonsChanged(bool addEnabled, bool removeEnabled);

    QList<ExifFileInfoPtr> m_files;
    MapPins *m_pins;
    MapBridge *m_bridge;
    QWebEngineView *m_mapView = nullptr;
    QAbstractButton *m_addPinButton = nullptr;
    QAbstractButton *m_removePinButton = nullptr;
    QButtonGroup *m_mapTypeControl = nullptr;
};
