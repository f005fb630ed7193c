#pragma once

#include "engine/exiffileinfo.h"
#include "engine/gpxtrack.h"

#include <QDateTime>
#include <QList>
#include <QPair>
#include <QString>
#include <QTimeZone>

#include <optional>

// How the camera's clock relates to true time: the zone its readings are in and how far it was
// off. Cameras keep a bare wall-clock, so the zone decides the instant (named zones follow their
// daylight-saving rules).
struct CameraClock
{
    QTimeZone zone = QTimeZone::utc();
    // Added to every reading: positive when the camera was late (its clock behind).
    qint64 correctionSeconds = 0;

    // The correction from one photo of the GPS device's screen: what the camera recorded and the
    // time the screen showed, both as wall-clock readings in the same zone.
    static qint64 correctionFromReference(const QDateTime &cameraReading,
                                          const QDateTime &screenTime);

    // A wall-clock reading (its zone is ignored) as a UTC instant.
    QDateTime toUtc(const QDateTime &reading) const;
};

struct GeotagOptions
{
    CameraClock clock;
    // Off: the nearer of the two bracketing points is taken.
    bool interpolate = true;
    // Photos between two points further apart than this stay untagged.
    qint64 maxGapSeconds = 30 * 60;
    // A photo that records its own zone (recordedZone) is read in that zone, not the clock's.
    bool usePhotoZones = true;
};

enum class GeotagStatus {
    Exact,
    Interpolated,
    Nearest,
    NoCaptureTime,
    BeforeTrack,
    AfterTrack,
    InGap,
};

struct GeotagMatch
{
    GeotagStatus status = GeotagStatus::NoCaptureTime;
    // The photo's instant in UTC; invalid without a capture time.
    QDateTime utc;
    double latitude = 0;
    double longitude = 0;
    std::optional<double> altitude;
    // The distance between the bracketing points when the photo falls in a gap.
    qint64 gapSeconds = 0;

    bool isMatched() const
    {
        return status == GeotagStatus::Exact || status == GeotagStatus::Interpolated ||
               status == GeotagStatus::Nearest;
    }
};

class GeotagMatcher
{
public:
    // The points must be sorted by time, as GpxTrack gives them.
    GeotagMatcher(QList<TrackPoint> points, GeotagOptions options);

    GeotagMatch matchInstant(const QDateTime &utc) const;
    // A capture time as metadata holds it ("2024:05:01 10:00:00", any zone suffix ignored).
    GeotagMatch matchCaptureTime(const QString &wallClock) const;
    GeotagMatch matchFile(const ExifFileInfo &file) const;

    // The file's capture time as wall-clock text: DateTimeOriginal, else CreateDate, from the
    // current values, with a pending shift resolved against the original value. Empty if none.
    static QString captureTime(const ExifFileInfo &file);
    // The zone the camera recorded with the photo: OffsetTimeOriginal, else OffsetTime, else
    // the zone of the XMP capture date; nullopt when it carries none.
    static std::optional<QTimeZone> recordedZone(const ExifFileInfo &file);
    // The zone a file's capture time is read in under these options.
    QTimeZone zoneFor(const ExifFileInfo &file) const;
    // "2024:05:01 10:00:00" without a zone; invalid when the text is not a date-time.
    static QDateTime parseWallClock(const QString &text);

    // The tag assignments a match makes, in the order they are written.
    static QList<QPair<QString, QString>> gpsValues(const GeotagMatch &match);

    const QList<TrackPoint> &points() const { return m_points; }
    const GeotagOptions &options() const { return m_options; }

private:
    QList<TrackPoint> m_points;
    GeotagOptions m_options;
};
