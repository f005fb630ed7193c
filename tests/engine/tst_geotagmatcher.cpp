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
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<double>("altitude"); // NaN: none

        const double none = qQNaN();
        using S = GeotagStatus;
        QTest::newRow("exact point") << u"2024:05:01 23:50:00"_qs << QByteArray("UTC") << 0 << true
                                     << 30 << S::Exact << 48.1 << 11.1 << 600.0;
        QTest::newRow("interpolated across midnight")
            << u"2024:05:02 00:00:00"_qs << QByteArray("UTC") << 0 << true << 30 << S::Interpolated
            << 48.15 << 11.2 << 650.0;
        QTest::newRow("zone and a late camera")
            << u"2024:05:02 01:59:00"_qs << QByteArray("UTC+02:00") << 1 << true << 30
            << S::Interpolated << 48.15 << 11.2 << 650.0;
        QTest::newRow("fast camera, zone suffix ignored")
            << u"2024:05:02 00:05:00+05:00"_qs << QByteArray("UTC") << -5 << true << 30
            << S::Interpolated << 48.15 << 11.2 << 650.0;
        QTest::newRow("nearest without interpolation")
            << u"2024:05:01 23:55:00"_qs << QByteArray("UTC") << 0 << false << 30 << S::Nearest
            << 48.1 << 11.1 << 600.0;
        QTest::newRow("one point without elevation")
            << u"2024:05:02 00:15:00"_qs << QByteArray("UTC") << 0 << true << 30 << S::Interpolated
            << 48.25 << 11.4 << none;
        QTest::newRow("beyond the gap limit") << u"2024:05:01 23:00:00"_qs << QByteArray("UTC") << 0
                                              << true << 30 << S::InGap << 0.0 << 0.0 << none;
        QTest::newRow("gap allowed") << u"2024:05:01 22:55:00"_qs << QByteArray("UTC") << 0 << true
                                     << 120 << S::Interpolated << 48.05 << 11.05 << 550.0;
        QTest::newRow("before the track") << u"2024:03:30 23:59:59"_qs << QByteArray("UTC") << 0
                                          << true << 30 << S::BeforeTrack << 0.0 << 0.0 << none;
        QTest::newRow("after the track") << u"2024:05:02 00:20:01"_qs << QByteArray("UTC") << 0
                                         << true << 30 << S::AfterTrack << 0.0 << 0.0 << none;
        QTest::newRow("winter time, Berlin")
            << u"2024:03:31 01:30:00"_qs << QByteArray("Europe/Berlin") << 0 << true << 180
            << S::Interpolated << 50.25 << 10.0 << none;
        QTest::newRow("summer time, Berlin")
            << u"2024:03:31 03:30:00"_qs << QByteArray("Europe/Berlin") << 0 << true << 180
            << S::Interpolated << 50.75 << 10.0 << none;
        QTest::newRow("no capture time") << u"2024:05:02"_qs << QByteArray("UTC") << 0 << true << 30
                                         << S::NoCaptureTime << 0.0 << 0.0 << none;
    }
    void match()
    {
        QFETCH(QString, captured);
        QFETCH(QByteArray, zone);
        QFETCH(int, lateMinutes);
        QFETCH(bool, interpolate);
        QFETCH(int, maxGapMinutes);
        QFETCH(GeotagStatus, status);
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(double, altitude);

        GeotagOptions options;
        options.clock.zone = QTimeZone(zone);
        QVERIFY(options.clock.zone.isValid());
        options.clock.correctionSeconds = lateMinutes * 60;
        options.interpolate = interpolate;
        options.maxGapSeconds = maxGapMinutes * 60;
        const GeotagMatcher matcher(GpxTrack::readData(sampleTrack(), u"t.gpx"_qs).points, options);
        QCOMPARE(matcher.points().size(), 6);

        const GeotagMatch match = matcher.matchCaptureTime(captured);
        QCOMPARE(match.status, status);
        QCOMPARE(match.isMatched(), !GeotagMatcher::gpsValues(match).isEmpty());
        if (status == GeotagStatus::InGap)
            QCOMPARE(match.gapSeconds, 110 * 60);
        if (!match.isMatched())
            return;
        QVERIFY(qAbs(match.latitude - latitude) < 1e-9);
        QVERIFY(qAbs(match.longitude - longitude) < 1e-9);
        QCOMPARE(match.altitude.has_value(), !qIsNaN(altitude));
        if (match.altitude)
            QVERIFY(qAbs(*match.altitude - altitude) < 1e-9);
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

    // ExifTool's own geotagging is the reference for the position and the GPS date and time.
    void agreesWithExifTool()
    {
        QTemporaryDir dir;
        const QString gpx = dir.filePath(u"walk.gpx"_qs);
        const QString jpeg = dir.filePath(u"photo.jpg"_qs);
        QVERIFY(Fixtures::writeBytes(gpx, sampleTrack()));
        QCOMPARE(Fixtures::makeImage(jpeg, {u"-DateTimeOriginal=2024:05:02 02:04:37"_qs}),
                 QString());
        const Fixtures::ToolRun tagged =
            Fixtures::runExifTool({u"-overwrite_original"_qs, u"-geotag"_qs, gpx,
                                   u"-Geotime<${DateTimeOriginal}+02:00"_qs, jpeg});
        QVERIFY2(tagged.ok(), tagged.err.constData());
        const Fixtures::ToolRun read = Fixtures::runExifTool(
            {u"-n"_qs, u"-s3"_qs, u"-GPSLatitude"_qs, u"-GPSLongitude"_qs, u"-GPSAltitude"_qs,
             u"-GPSDateStamp"_qs, u"-GPSTimeStamp"_qs, jpeg});
        const QStringList reference = QString::fromUtf8(read.out).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(reference.size(), 5);

        GeotagOptions options;
        options.clock.zone = QTimeZone(2 * 3600);
        const GeotagMatcher matcher(GpxTrack::readFiles({gpx}).points, options);
        const GeotagMatch match = matcher.matchCaptureTime(u"2024:05:02 02:04:37"_qs);
        QCOMPARE(match.status, GeotagStatus::Interpolated);
        QVERIFY(qAbs(match.latitude - reference[0].toDouble()) < 1e-6);
        QVERIFY(qAbs(match.longitude - reference[1].toDouble()) < 1e-6);
        QVERIFY(qAbs(*match.altitude - reference[2].toDouble()) < 0.05);
        QHash<QString, QString> values;
        for (const auto &[key, value] : GeotagMatcher::gpsValues(match))
            values.insert(key, value);
        QCOMPARE(values.value(u"GPS:GPSDateStamp"_qs), reference[3]);
        QCOMPARE(values.value(u"GPS:GPSTimeStamp"_qs), reference[4]);
    }
};

QTEST_GUILESS_MAIN(TestGeotagMatcher)
#include "tst_geotagmatcher.moc"
