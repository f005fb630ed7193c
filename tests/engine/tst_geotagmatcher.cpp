#include "engine/geotagmatcher.h"
#include "engine/gpxtrack.h"

#include "../support/fixtures.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray gpx11(const QByteArray &points)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<gpx version=\"1.1\" creator=\"test\" xmlns=\"http://www.topografix.com/GPX/1/1\">"
           "<trk><trkseg>" +
           points + "</trkseg></trk></gpx>\n";
}

QByteArray point(double lat, double lon, const char *time, const char *ele = nullptr)
{
    QByteArray text = "<trkpt lat=\"" + QByteArray::number(lat, 'f', 6) + "\" lon=\"" +
                      QByteArray::number(lon, 'f', 6) + "\">";
    if (ele)
        text += "<ele>" + QByteArray(ele) + "</ele>";
    return text + "<time>" + time + "</time></trkpt>";
}

// A night around the Berlin daylight-saving change, then a walk across midnight with a gap.
QByteArray sampleTrack()
{
    return gpx11(point(50.0, 10.0, "2024-03-31T00:00:00Z") +
                 point(51.0, 10.0, "2024-03-31T02:00:00Z") +
                 point(48.0, 11.0, "2024-05-01T22:00:00Z", "500") +
                 point(48.1, 11.1, "2024-05-01T23:50:00Z", "600") +
                 point(48.2, 11.3, "2024-05-02T00:10:00Z", "700") +
                 point(48.3, 11.5, "2024-05-02T00:20:00Z"));
}

// A match row; unless told otherwise the camera's clock is right and in UTC, and positions are
// interpolated across gaps of up to 30 minutes.
void row(const char *name, const QString &captured, GeotagStatus status, const QString &position,
         int lateMinutes = 0, const QByteArray &zone = "UTC", bool interpolate = true,
         int maxGapMinutes = 30)
{
    QTest::newRow(name) << captured << zone << lateMinutes << interpolate << maxGapMinutes << status
                        << position;
}

} // namespace

class TestGeotagMatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readGpx_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("firstTime");
        QTest::addColumn<QString>("error");

        QTest::newRow("1.1 track, out of order, fraction and zone")
            << gpx11(point(1, 2, "2024-05-01T12:00:05.250+02:00") +
                     point(1, 2, "2024-05-01T10:00:00Z"))
            << 2 << u"2024-05-01T10:00:00.000Z"_qs << QString();
        QTest::newRow("1.0 waypoints and route, untimed skipped")
            << QByteArray("<gpx version=\"1.0\" xmlns=\"http://www.topografix.com/GPX/1/0\">"
                          "<wpt lat=\"1\" lon=\"2\"><name>x</name></wpt>"
                          "<wpt lat=\"1\" lon=\"2\"><time>2024-05-01T09:00:00</time></wpt>"
                          "<rte><rtept lat=\"-3\" lon=\"-4\"><time>2024-05-01T09:30:00-01:30</time>"
                          "</rtept></rte></gpx>")
            << 2 << u"2024-05-01T09:00:00.000Z"_qs << QString();
        QTest::newRow("not GPX") << QByteArray("<kml><Placemark/></kml>") << 0 << QString()
                                 << u"not a GPX track log"_qs;
        QTest::newRow("binary") << QByteArray("\xff\xd8\xff\xe0 JFIF") << 0 << QString()
                                << u"not a GPX track log"_qs;
        QTest::newRow("no times") << gpx11("<trkpt lat=\"1\" lon=\"2\"><ele>3</ele></trkpt>") << 0
                                  << QString() << u"carry no times"_qs;
        QTest::newRow("truncated") << gpx11(point(1, 2, "2024-05-01T10:00:00Z")).left(150) << 0
                                   << QString() << u"damaged"_qs;
    }
    void readGpx()
    {
        QFETCH(QByteArray, data);
        QFETCH(int, count);
        QFETCH(QString, firstTime);
        QFETCH(QString, error);
        const GpxTrack track = GpxTrack::readData(data, u"/x/log.gpx"_qs);
        QCOMPARE(track.points.size(), count);
        if (count > 0)
            QCOMPARE(track.points.first().time.toString(Qt::ISODateWithMs), firstTime);
        if (error.isEmpty()) {
            QVERIFY(track.errors.isEmpty());
        } else {
            QCOMPARE(track.errors.size(), 1);
            QVERIFY2(track.errors.first().startsWith(u"log.gpx: "),
                     qPrintable(track.errors.first()));
            QVERIFY2(track.errors.first().contains(error), qPrintable(track.errors.first()));
        }
    }

    void mergesFilesInTimeOrder()
    {
        QTemporaryDir dir;
        const QString a = dir.filePath(u"a.gpx"_qs);
        const QString b = dir.filePath(u"b.gpx"_qs);
        QVERIFY(Fixtures::writeBytes(a, gpx11(point(1, 1, "2024-05-01T11:00:00Z"))));
        QVERIFY(Fixtures::writeBytes(
            b, gpx11(point(2, 2, "2024-05-01T10:00:00Z") + point(3, 3, "2024-05-01T12:00:00Z"))));
        const GpxTrack track = GpxTrack::readFiles({a, b, dir.filePath(u"missing.gpx"_qs)});
        QCOMPARE(track.points.size(), 3);
        QCOMPARE(track.points[0].latitude, 2.0);
        QCOMPARE(track.points[1].latitude, 1.0);
        QCOMPARE(track.errors.size(), 1);
        QVERIFY(track.errors.first().startsWith(u"missing.gpx: "));
    }

    void match_data()
    {
        QTest::addColumn<QString>("captured");
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<int>("lateMinutes");
        QTest::addColumn<bool>("interpolate");
        QTest::addColumn<int>("maxGapMinutes");
        QTest::addColumn<GeotagStatus>("status");
        QTest::addColumn<QString>("position"); // "latitude longitude altitude", "-": no altitude

        using S = GeotagStatus;
        row("exact point", u"2024:05:01 23:50:00"_qs, S::Exact, u"48.1 11.1 600"_qs);
        row("interpolated across midnight", u"2024:05:02 00:00:00"_qs, S::Interpolated,
            u"48.15 11.2 650"_qs);
        row("zone and a late camera", u"2024:05:02 01:59:00"_qs, S::Interpolated,
            u"48.15 11.2 650"_qs, 1, "UTC+02:00");
        row("fast camera, zone suffix ignored", u"2024:05:02 00:05:00+05:00"_qs, S::Interpolated,
            u"48.15 11.2 650"_qs, -5);
        row("nearest without interpolation", u"2024:05:01 23:55:00"_qs, S::Nearest,
            u"48.1 11.1 600"_qs, 0, "UTC", false);
        row("one point without elevation", u"2024:05:02 00:15:00"_qs, S::Interpolated,
            u"48.25 11.4 -"_qs);
        row("beyond the gap limit", u"2024:05:01 23:00:00"_qs, S::InGap, QString());
        row("gap allowed", u"2024:05:01 22:55:00"_qs, S::Interpolated, u"48.05 11.05 550"_qs, 0,
            "UTC", true, 120);
        row("before the track", u"2024:03:30 23:59:59"_qs, S::BeforeTrack, QString());
        row("after the track", u"2024:05:02 00:20:01"_qs, S::AfterTrack, QString());
        row("winter time, Berlin", u"2024:03:31 01:30:00"_qs, S::Interpolated, u"50.25 10 -"_qs, 0,
            "Europe/Berlin", true, 180);
        row("summer time, Berlin", u"2024:03:31 03:30:00"_qs, S::Interpolated, u"50.75 10 -"_qs, 0,
            "Europe/Berlin", true, 180);
        row("no capture time", u"2024:05:02"_qs, S::NoCaptureTime, QString());
    }
    void match()
    {
        QFETCH(QString, captured);
        QFETCH(QByteArray, zone);
        QFETCH(int, lateMinutes);
        QFETCH(bool, interpolate);
        QFETCH(int, maxGapMinutes);

        GeotagOptions options;
        options.clock.zone = QTimeZone(zone);
        QVERIFY(options.clock.zone.isValid());
        options.clock.correctionSeconds = lateMinutes * 60;
        options.interpolate = interpolate;
        options.maxGapSeconds = maxGapMinutes * 60;
        const GeotagMatcher matcher(GpxTrack::readData(sampleTrack(), u"t.gpx"_qs).points, options);
        QCOMPARE(matcher.points().size(), 6);

        const GeotagMatch match = matcher.matchCaptureTime(captured);
        QTEST(match.status, "status");
        QCOMPARE(match.isMatched(), !GeotagMatcher::gpsValues(match).isEmpty());
        if (match.status == GeotagStatus::InGap)
            QCOMPARE(match.gapSeconds, 110 * 60);
        // Nine digits show any slip of the interpolation yet hide the last bits of rounding.
        const auto number = [](double value) { return QString::number(value, 'g', 9); };
        const QString position =
            match.isMatched() ? number(match.latitude) + u' ' + number(match.longitude) + u' ' +
                                    (match.altitude ? number(*match.altitude) : u"-"_qs)
                              : QString();
        QTEST(position, "position");
    }

    void capturePrefersOriginalDateAndResolvesShifts()
    {
        ExifFileInfo file(u"/x/a.jpg"_qs);
        TagDictionary original{{u"ExifIFD:CreateDate"_qs, u"2024:05:01 08:00:00"_qs},
                               {u"ExifIFD:DateTimeOriginal"_qs, u"2024:05:01 10:00:00"_qs}};
        file.setReadData(original);
        QCOMPARE(GeotagMatcher::captureTime(file), u"2024:05:01 10:00:00"_qs);
        file.setExifValue(u"ExifIFD:DateTimeOriginal"_qs, u"+1d2h"_qs);
        QCOMPARE(GeotagMatcher::captureTime(file), u"2024:05:02 12:00:00"_qs);
        file.removeExifValue(u"ExifIFD:DateTimeOriginal"_qs);
        QCOMPARE(GeotagMatcher::captureTime(file), u"2024:05:01 08:00:00"_qs);
    }

    // Values are "KEY=VALUE" joined by "|".
    void recordedZone_data()
    {
        QTest::addColumn<QString>("values");
        QTest::addColumn<int>("offsetSeconds"); // -1: none
        QTest::newRow("original") << u"ExifIFD:OffsetTimeOriginal=-05:30|ExifIFD:OffsetTime=+01:00"_qs
                                  << -(5 * 3600 + 1800);
        QTest::newRow("modification's when no other") << u"ExifIFD:OffsetTime=+01:00"_qs << 3600;
        QTest::newRow("XMP date's zone")
            << u"XMP-exif:DateTimeOriginal=2024:05:01 10:00:00+09:00"_qs << 9 * 3600;
        QTest::newRow("a pending shift is no zone") << u"XMP-exif:DateTimeOriginal=+01:00"_qs << -1;
        QTest::newRow("none") << u"ExifIFD:DateTimeOriginal=2024:05:01 10:00:00"_qs << -1;
    }
    void recordedZone()
    {
        QFETCH(QString, values);
        QFETCH(int, offsetSeconds);
        ExifFileInfo file(u"/x/z.jpg"_qs);
        TagDictionary read;
        for (const QString &pair : values.split(u'|')) {
            const qsizetype equals = pair.indexOf(u'=');
            read.insert(pair.left(equals), pair.mid(equals + 1));
        }
        file.setReadData(read);
        const std::optional<QTimeZone> zone = GeotagMatcher::recordedZone(file);
        QCOMPARE(zone.has_value(), offsetSeconds != -1);
        if (zone)
            QCOMPARE(zone->offsetFromUtc(QDateTime::currentDateTimeUtc()), offsetSeconds);
    }
};

QTEST_GUILESS_MAIN(TestGeotagMatcher)
#include "tst_geotagmatcher.moc"
