#include "engine/gpxtrack.h"

#include "values/trcontext.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimeZone>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace {

constexpr TrContext tr{"GpxTrack"};

bool isPointElement(QStringView name)
{
    return name == u"trkpt" || name == u"rtept" || name == u"wpt";
}

} // namespace

QDateTime GpxTrack::parseTime(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(
        R"(^\s*(\d{4})-(\d{2})-(\d{2})[T ](\d{2}):(\d{2}):(\d{2})(?:[.,](\d+))?\s*(Z|[+-]\d{2}(?::?\d{2})?)?\s*$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    const QDate date(match.captured(1).toInt(), match.captured(2).toInt(),
                     match.captured(3).toInt());
    // Leap seconds (":60") are folded into the next minute's first second.
    const int second = match.captured(6).toInt();
    int milliseconds = 0;
    if (const QString fraction = match.captured(7); !fraction.isEmpty())
        milliseconds = QString(fraction + u"00"_qs).left(3).toInt();
    const QTime time(match.captured(4).toInt(), match.captured(5).toInt(), std::min(second, 59),
                     milliseconds);
    if (!date.isValid() || !time.isValid())
        return {};

    int offsetSeconds = 0;
    if (const QString zone = match.captured(8); !zone.isEmpty() && zone != u"Z") {
        const QString digits = zone.mid(1).remove(QLatin1Char(':'));
        offsetSeconds = digits.left(2).toInt() * 3600 + digits.mid(2, 2).toInt() * 60;
        if (zone.startsWith(QLatin1Char('-')))
            offsetSeconds = -offsetSeconds;
    }
    QDateTime result(date, time, QTimeZone(offsetSeconds));
    if (second > 59)
        result = result.addSecs(1);
    return result.toUTC();
}

GpxTrack GpxTrack::readData(const QByteArray &data, const QString &name)
{
    GpxTrack track;
    QXmlStreamReader xml(data);
    bool sawGpx = false;
    int untimed = 0;
    // Elements of interest are never nested in one another, so one point at a time suffices.
    std::optional<TrackPoint> point;
    bool pointValid = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const QStringView element = xml.name();
            if (!sawGpx) {
                if (element != u"gpx")
                    break;
                sawGpx = true;
            } else if (isPointElement(element)) {
                bool latOk = false;
                bool lonOk = false;
                point = TrackPoint{};
                point->latitude = xml.attributes().value(QLatin1String("lat")).toDouble(&latOk);
                point->longitude = xml.attributes().value(QLatin1String("lon")).toDouble(&lonOk);
                pointValid = latOk && lonOk && std::abs(point->latitude) <= 90 &&
                             std::abs(point->longitude) <= 180;
            } else if (point && element == u"ele") {
                bool ok = false;
                const double elevation = xml.readElementText().trimmed().toDouble(&ok);
                if (ok)
                    point->elevation = elevation;
            } else if (point && element == u"time") {
                point->time = parseTime(xml.readElementText());
            }
        } else if (xml.isEndElement() && point && isPointElement(xml.name())) {
            // A point with an unreadable position is dropped without a word.
            if (pointValid && point->time.isValid())
                track.points << *point;
            else if (pointValid)
                ++untimed;
            point.reset();
        }
    }

    const QString file = QFileInfo(name).fileName();
    if (!sawGpx) {
        track.errors << file + tr(": this file is not a GPX track log.");
        return track;
    }
    if (xml.hasError()) {
        track.points.clear();
        track.errors << file + tr(": the GPX file is damaged (") + xml.errorString() +
                            tr(", line ") + QString::number(xml.lineNumber()) + tr(").");
        return track;
    }
    if (track.points.isEmpty()) {
        track.errors << file + (untimed > 0
                                    ? tr(": the GPX file's points carry no times, so photos "
                                         "cannot be matched to them.")
                                    : tr(": the GPX file holds no points."));
    }
    std::stable_sort(track.points.begin(), track.points.end(),
                     [](const TrackPoint &a, const TrackPoint &b) { return a.time < b.time; });
    return track;
}

GpxTrack GpxTrack::readFiles(const QStringList &paths)
{
    GpxTrack merged;
    for (const QString &path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            merged.errors << QFileInfo(path).fileName() + tr(": the file could not be opened (") +
                                 file.errorString() + tr(").");
            continue;
        }
        const GpxTrack one = readData(file.readAll(), path);
        merged.points << one.points;
        merged.errors << one.errors;
    }
    std::stable_sort(merged.points.begin(), merged.points.end(),
                     [](const TrackPoint &a, const TrackPoint &b) { return a.time < b.time; });
    return merged;
}
