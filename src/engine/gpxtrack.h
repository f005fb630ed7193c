#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// One timed position of a GPS log.
struct TrackPoint
{
    QDateTime time; // UTC
    double latitude = 0;
    double longitude = 0;
    std::optional<double> elevation;
};

// The timed points of one or more GPX files, merged and sorted by time. Track points, route
// points and waypoints all count; points without a time cannot be matched and are dropped.
struct GpxTrack
{
    QList<TrackPoint> points;
    // One line per file that could not be used; the others still contribute.
    QStringList errors;

    bool isEmpty() const { return points.isEmpty(); }

    static GpxTrack readFiles(const QStringList &paths);
    // The name is only used in error messages.
    static GpxTrack readData(const QByteArray &data, const QString &name);

    // GPX times: ISO 8601 with or without fractional seconds and zone; no zone means UTC.
    static QDateTime parseTime(const QString &text);
};
