#include "engine/geotagmatcher.h"

#include "values/dateoffset.h"
#include "values/gpslocation.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

QDateTime naive(const QDateTime &reading)
{
    return QDateTime(reading.date(), reading.time(), QTimeZone::utc());
}

GeotagMatch pointMatch(GeotagStatus status, const QDateTime &utc, const TrackPoint &point)
{
    GeotagMatch match;
    match.status = status;
    match.utc = utc;
    match.latitude = point.latitude;
    match.longitude = point.longitude;
    match.altitude = point.elevation;
    return match;
}

} // namespace

qint64 CameraClock::correctionFromReference(const QDateTime &cameraReading,
                                            const QDateTime &screenTime)
{
    return naive(cameraReading).secsTo(naive(screenTime));
}

QDateTime CameraClock::toUtc(const QDateTime &reading) const
{
    const QDateTime corrected = naive(reading).addSecs(correctionSeconds);
    return QDateTime(corrected.date(), corrected.time(), zone).toUTC();
}

GeotagMatcher::GeotagMatcher(QList<TrackPoint> points, GeotagOptions options)
    : m_points(std::move(points))
    , m_options(std::move(options))
{
}

GeotagMatch GeotagMatcher::matchInstant(const QDateTime &utc) const
{
    GeotagMatch match;
    match.utc = utc;
    if (!utc.isValid())
        return match;
    const auto next = std::lower_bound(
        m_points.cbegin(), m_points.cend(), utc,
        [](const TrackPoint &point, const QDateTime &time) { return point.time < time; });
    if (next != m_points.cend() && next->time == utc)
        return pointMatch(GeotagStatus::Exact, utc, *next);
    if (next == m_points.cbegin()) {
        match.status = GeotagStatus::BeforeTrack;
        return match;
    }
    if (next == m_points.cend()) {
        match.status = GeotagStatus::AfterTrack;
        return match;
    }

    const TrackPoint &before = *(next - 1);
    const TrackPoint &after = *next;
    const qint64 gapMs = before.time.msecsTo(after.time);
    if (gapMs > m_options.maxGapSeconds * 1000) {
        match.status = GeotagStatus::InGap;
        match.gapSeconds = gapMs / 1000;
        return match;
    }
    const double fraction = double(before.time.msecsTo(utc)) / double(gapMs);
    if (!m_options.interpolate)
        return pointMatch(GeotagStatus::Nearest, utc, fraction <= 0.5 ? before : after);

    match.status = GeotagStatus::Interpolated;
    match.latitude = before.latitude + (after.latitude - before.latitude) * fraction;
    // Across the antimeridian the short way round is the one travelled.
    double deltaLongitude = after.longitude - before.longitude;
    if (deltaLongitude > 180)
        deltaLongitude -= 360;
    else if (deltaLongitude < -180)
        deltaLongitude += 360;
    match.longitude = before.longitude + deltaLongitude * fraction;
    if (match.longitude > 180)
        match.longitude -= 360;
    else if (match.longitude < -180)
        match.longitude += 360;
    if (before.elevation && after.elevation)
        match.altitude = *before.elevation + (*after.elevation - *before.elevation) * fraction;
    return match;
}

GeotagMatch GeotagMatcher::matchCaptureTime(const QString &wallClock) const
{
    const QDateTime reading = parseWallClock(wallClock);
    if (!reading.isValid())
        return {};
    return matchInstant(m_options.clock.toUtc(reading));
}

GeotagMatch GeotagMatcher::matchFile(const ExifFileInfo &file) const
{
    const QDateTime reading = parseWallClock(captureTime(file));
    if (!reading.isValid())
        return {};
    CameraClock clock = m_options.clock;
    clock.zone = zoneFor(file);
    return matchInstant(clock.toUtc(reading));
}

QTimeZone GeotagMatcher::zoneFor(const ExifFileInfo &file) const
{
    if (m_options.usePhotoZones) {
        if (const std::optional<QTimeZone> zone = recordedZone(file))
            return *zone;
    }
    return m_options.clock.zone;
}

std::optional<QTimeZone> GeotagMatcher::recordedZone(const ExifFileInfo &file)
{
    static const QRegularExpression offset(QStringLiteral(R"(([+-])(\d{2}):(\d{2})\s*$)"));
    const EditedValues current = file.editedValues();
    const QString date = current.value(QStringLiteral("XMP-exif:DateTimeOriginal"));
    // A pending shift ("+1:00") is no zone.
    const QString candidates[] = {current.value(QStringLiteral("ExifIFD:OffsetTimeOriginal")),
                                  current.value(QStringLiteral("ExifIFD:OffsetTime")),
                                  parseWallClock(date).isValid() ? date : QString()};
    for (const QString &text : candidates) {
        const QRegularExpressionMatch match = offset.match(text);
        if (!match.hasMatch())
            continue;
        const int seconds = (match.captured(2).toInt() * 60 + match.captured(3).toInt()) * 60;
        const QTimeZone zone(match.captured(1) == u"-" ? -seconds : seconds);
        if (zone.isValid())
            return zone;
    }
    return std::nullopt;
}

QString GeotagMatcher::captureTime(const ExifFileInfo &file)
{
    static const QString keys[] = {
        QStringLiteral("ExifIFD:DateTimeOriginal"), QStringLiteral("XMP-exif:DateTimeOriginal"),
        QStringLiteral("ExifIFD:CreateDate"), QStringLiteral("XMP-xmp:CreateDate")};
    const EditedValues current = file.editedValues();
    for (const QString &key : keys) {
        const QString value = current.value(key);
        if (value.isEmpty())
            continue;
        if (!isDateOffsetText(value.left(1)))
            return value;
        // A shift the user has not saved yet still moves the photo along the track.
        const QDateTime shifted = applyDateOffset(value, file.originalExifData().value(key));
        if (shifted.isValid())
            return shifted.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    }
    return {};
}

QDateTime GeotagMatcher::parseWallClock(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\s*(\d{4}):(\d{2}):(\d{2})[ T](\d{2}):(\d{2}):(\d{2}))"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    const QDate date(match.captured(1).toInt(), match.captured(2).toInt(),
                     match.captured(3).toInt());
    const QTime time(match.captured(4).toInt(), match.captured(5).toInt(),
                     match.captured(6).toInt());
    if (!date.isValid() || !time.isValid())
        return {};
    return QDateTime(date, time, QTimeZone::utc());
}

QList<QPair<QString, QString>> GeotagMatcher::gpsValues(const GeotagMatch &match)
{
    if (!match.isMatched())
        return {};
    QList<QPair<QString, QString>> values = gpsPositionTags(match.latitude, match.longitude);
    if (match.altitude) {
        values << qMakePair(QStringLiteral("GPS:GPSAltitude"),
                            QString::number(std::abs(*match.altitude), 'f', 1));
        // 0 above sea level, 1 below, in ExifTool's numeric form.
        values << qMakePair(QStringLiteral("GPS:GPSAltitudeRef"),
                            *match.altitude >= 0 ? u"0"_qs : u"1"_qs);
    }
    const QDateTime utc = match.utc.toUTC();
    values << qMakePair(QStringLiteral("GPS:GPSDateStamp"),
                        utc.toString(QStringLiteral("yyyy:MM:dd")));
    values << qMakePair(QStringLiteral("GPS:GPSTimeStamp"),
                        utc.toString(QStringLiteral("HH:mm:ss")));
    return values;
}
