#pragma once

#include "engine/exiffileinfo.h"
#include "engine/geotagmatcher.h"
#include "engine/gpxtrack.h"
#include "windows/geotagwriter.h"
#include "engine/mappins.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QTimeZone>

#include <optional>

class EditSession;
class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTreeWidget;

// Geotagging the given files from GPX track logs: the logs, how the camera's clock relates to
// them, and what each file would get. Nothing changes in the files until Apply, which posts the
// new positions in session.
class GeotagDialog : public QDialog
{
    Q_OBJECT

public:
    GeotagDialog(const QList<ExifFileInfoPtr> &files, EditSession &session,
                 QWidget *parent = nullptr);

    void setGpxFiles(const QStringList &paths);
    const QStringList &gpxFiles() const { return m_gpxFiles; }
    const GpxTrack &track() const { return m_track; }

    GeotagOptions options() const;
    // Every file with what it would get, in the files' order.
    const QList<FileMatch> &matches() const { return m_matches; }
    // The proposed positions as pins, for the map.
    QList<MapPin> proposedPins() const;
    // "48.150000, 11.200000, 650.0 m" or "not matched: ..." for the results list.
    static QString describe(const GeotagMatch &match);

    QComboBox *zoneCombo() const { return m_zoneCombo; }
    QLabel *zoneNote() const { return m_zoneNote; }
    QLabel *summaryLabel() const { return m_summary; }
    QRadioButton *lateButton() const { return m_lateButton; }
    QSpinBox *lateMinutes() const { return m_lateMinutes; }
    QComboBox *lateDirection() const { return m_lateDirection; }
    QRadioButton *referenceButton() const { return m_referenceButton; }
    QComboBox *referencePhoto() const { return m_referencePhoto; }
    QDateTimeEdit *referenceTime() const { return m_referenceTime; }
    QCheckBox *interpolateBox() const { return m_interpolate; }
    QSpinBox *maxGapMinutes() const { return m_maxGap; }
    QTreeWidget *resultsList() const { return m_results; }
    QLabel *trackLabel() const { return m_trackLabel; }
    QPushButton *previewButton() const { return m_previewButton; }
    QPushButton *applyButton() const { return m_applyButton; }

    // Writes the matched positions into the files' current values and closes.
    void apply();

Q_SIGNALS:
    void previewRequested(const QList<TrackPoint> &track, const QList<MapPin> &proposed);
    void applied(const QList<ExifFileInfoPtr> &changedFiles);

private:
    void onAddGpxFiles();
    void onRemoveGpxFiles();
    void handleReferencePhotoChanged();
    void rematch();
    // The zone typed or picked in the box; nullopt while none is (or it is not a zone).
    std::optional<QTimeZone> chosenZone() const;

    QList<ExifFileInfoPtr> m_files;
    QPointer<EditSession> m_session;
    QStringList m_gpxFiles;
    GpxTrack m_track;
    QList<FileMatch> m_matches;

    QListWidget *m_gpxList = nullptr;
    QLabel *m_trackLabel = nullptr;
    QComboBox *m_zoneCombo = nullptr;
    QLabel *m_zoneNote = nullptr;
    int m_filesWithoutZone = 0;
    QRadioButton *m_rightButton = nullptr;
    QRadioButton *m_lateButton = nullptr;
    QSpinBox *m_lateMinutes = nullptr;
    QComboBox *m_lateDirection = nullptr;
    QRadioButton *m_referenceButton = nullptr;
    QComboBox *m_referencePhoto = nullptr;
    QDateTimeEdit *m_referenceTime = nullptr;
    QCheckBox *m_interpolate = nullptr;
    QSpinBox *m_maxGap = nullptr;
    QTreeWidget *m_results = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_previewButton = nullptr;
    QPushButton *m_applyButton = nullptr;
};
