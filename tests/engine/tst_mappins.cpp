#include "engine/mappins.h"

#include "engine/editsession.h"

#include <QtTest>

namespace {

using Files = QList<ExifFileInfoPtr>;
using Region = QList<double>;   // latitude, longitude, their spans; empty: left unchanged
using PinList = QList<QPointF>; // latitude, longitude

const QString Lat = MapPins::LatitudeKey;
const QString Lon = MapPins::LongitudeKey;
// The order the notifications go out in, and the order gpsValues() lists.
const QStringList FourKeys{Lon, MapPins::LongitudeRefKey, Lat, MapPins::LatitudeRefKey};

// The four GPS values in FourKeys order, comma-separated; an empty one leaves that key out.
ExifFileInfoPtr file(const QString &name, const QString &gps = {})
{
    QHash<QString, QString> tags{{u"IFD0:Make"_qs, u"Canon"_qs}};
    const QStringList values = gps.split(u',');
    for (qsizetype i = 0; i < values.size(); ++i) {
        if (!values.at(i).isEmpty())
            tags.insert(FourKeys.at(i), values.at(i));
    }
    auto info = std::make_shared<ExifFileInfo>(u"/photos/"_qs + name);
    info->setReadData(tags);
    return info;
}

QString gpsValues(const ExifFileInfo &info)
{
    QStringList values;
    for (const QString &key : FourKeys)
        values << info.exifValue(key);
    return values.join(u',');
}

// Every "ExifFilesUpdate" posted while it lives.
struct UpdateLog : QSignalSpy
{
    explicit UpdateLog(EditSession &session)
        : QSignalSpy(&session, &EditSession::exifFilesUpdated)
    {
    }
    ExifFilesUpdate update(qsizetype i) const { return at(i).at(0).value<ExifFilesUpdate>(); }
    QString keys() const
    {
        QStringList out;
        for (qsizetype i = 0; i < size(); ++i)
            out << update(i).xmlName;
        return out.join(u',');
    }
};

} // namespace

class TestMapPins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pinFromFile_data()
    {
        QTest::addColumn<QString>("gps");
        QTest::addColumn<PinList>("pin");
        QTest::newRow("north east") << u"2.2945,E,48.8584,N"_qs << PinList{{48.8584, 2.2945}};
        QTest::newRow("south west") << u"151.2,W,33.9,S"_qs << PinList{{-33.9, -151.2}};
        QTest::newRow("lower n") << u"20,E,10,n"_qs << PinList{};
        QTest::newRow("lower w") << u"20,w,10,N"_qs << PinList{};
        QTest::newRow("no ref") << u"20,,10,N"_qs << PinList{};
    }

    void pinFromFile()
    {
        QFETCH(QString, gps);
        QFETCH(PinList, pin);
        const std::optional<MapPin> made =
            MapPins::createPointAnnotation(*file(u"a b.jpg"_qs, gps));
        QCOMPARE(made.has_value(), !pin.isEmpty());
        if (made) {
            QCOMPARE(made->title, u"a b.jpg"_qs);
            QCOMPARE(QPointF(made->latitude, made->longitude), pin.first());
        }
    }

    void framing_data()
    {
        QTest::addColumn<PinList>("pins");
        QTest::addColumn<Region>("region");
        QTest::newRow("none") << PinList{} << Region{};
        QTest::newRow("one") << PinList{{-12.5, 130}} << Region{-12.5, 130, 1, 1};
        // The longitude box starts at 90..-90, so it reaches 90 east though both pins lie further.
        QTest::newRow("two far east") << PinList{{35, 139}, {36, 140}} << Region{35.5, 115, 1, 50};
        QTest::newRow("many") << PinList{{-10, -100}, {20, 30}, {5, 50}} << Region{5, -25, 30, 150};
    }

    void framing()
    {
        QFETCH(PinList, pins);
        QFETCH(Region, region);
        QList<MapPin> mapPins;
        for (const QPointF &pin : pins)
            mapPins << MapPin{u"/p"_qs, u"p"_qs, pin.x(), pin.y()};
        const std::optional<MapRegion> framed = MapPins::regionForPins(mapPins);
        QCOMPARE(framed.has_value(), !region.isEmpty());
        if (framed) {
            QCOMPARE((Region{framed->latitude, framed->longitude, framed->latitudeSpan,
                             framed->longitudeSpan}),
                     region);
        }
    }

    void addPinGivesCentreOnlyToFilesWithoutOne()
    {
        const auto pinned = file(u"a.jpg"_qs, u"20,E,10,N"_qs);
        const auto bare = file(u"b.jpg"_qs);
        const auto noRef = file(u"c.jpg"_qs, u"2,E,1,"_qs);
        EditSession session;
        MapPins pins(session);
        pins.setFiles({pinned, bare, noRef});
        QVERIFY(pins.isAddEnabled());
        pins.setCenter(-48.5, -3.25);

        UpdateLog log(session);
        pins.addPin();
        QCOMPARE(gpsValues(*pinned), u"20,E,10,N"_qs);
        const QString atCentre = u"3.250000,W,48.500000,S"_qs;
        QCOMPARE(gpsValues(*bare), atCentre);
        QCOMPARE(gpsValues(*noRef), atCentre);
        QCOMPARE(log.keys(), FourKeys.join(u','));
        QCOMPARE(log.update(0).changedFiles, (Files{bare, noRef}));
        QVERIFY(!pins.isAddEnabled());

        log.clear();
        pins.addPin();
        QVERIFY(log.isEmpty());
    }

    // A removed pin takes the altitude and GPS time taken there with it; a file with none of
    // them is not touched.
    void removePinTakesAltitudeAndGpsTimeWithIt()
    {
        const auto pinned = file(u"a.jpg"_qs, u"20,E,10,N"_qs);
        TagDictionary tags = pinned->exifData();
        tags.insert(u"GPS:GPSAltitude"_qs, u"612.5"_qs);
        tags.insert(u"GPS:GPSAltitudeRef"_qs, u"0"_qs);
        tags.insert(u"GPS:GPSDateStamp"_qs, u"2024:05:01"_qs);
        tags.insert(u"GPS:GPSTimeStamp"_qs, u"23:50:00"_qs);
        pinned->setReadData(tags);
        const auto halfPinned = file(u"b.jpg"_qs, u",,5,n"_qs);
        const auto timeOnly = file(u"c.jpg"_qs);
        timeOnly->setReadData({{u"IFD0:Make"_qs, u"Canon"_qs}, {u"GPS:GPSTimeStamp"_qs, u"1"_qs}});
        const auto bare = file(u"d.jpg"_qs);
        EditSession session;
        MapPins pins(session);
        pins.setFiles({pinned, halfPinned, timeOnly, bare});
        const Files changed{pinned, halfPinned, timeOnly};
        QCOMPARE(pins.filesWithPinValues(), changed);

        UpdateLog log(session);
        pins.removePin();
        for (const ExifFileInfoPtr &info : {pinned, halfPinned, timeOnly, bare})
            QCOMPARE(info->exifData(), (TagDictionary{{u"IFD0:Make"_qs, u"Canon"_qs}}));
        const QStringList removed =
            FourKeys + QStringList{u"GPS:GPSAltitude"_qs, u"GPS:GPSAltitudeRef"_qs,
                                   u"GPS:GPSDateStamp"_qs, u"GPS:GPSTimeStamp"_qs};
        QCOMPARE(log.keys(), removed.join(u','));
        for (qsizetype i = 0; i < log.size(); ++i) {
            QCOMPARE(log.update(i).changedFiles, changed);
            QVERIFY(!log.update(i).newValue);
        }
        QVERIFY(!pins.isRemoveEnabled() && pins.isAddEnabled());

        log.clear();
        pins.removePin();
        QVERIFY(log.isEmpty());
    }

    void dragWritesSixDecimalsAndPostsInOrder_data()
    {
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<QString>("written");
        QTest::newRow("12.5 south") << -12.5 << 30.0 << u"30.000000,E,12.500000,S"_qs;
        QTest::newRow("north west, rounded")
            << 51.4778049 << -0.0014 << u"0.001400,W,51.477805,N"_qs;
    }

    void dragWritesSixDecimalsAndPostsInOrder()
    {
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(QString, written);
        const auto moved = file(u"a.jpg"_qs, u"1,E,1,N"_qs);
        const auto other = file(u"b.jpg"_qs, u"2,E,2,N"_qs);
        EditSession session;
        MapPins pins(session);
        pins.setFiles({moved, other});
        // A German locale must not turn the full stop into a comma.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

        UpdateLog log(session);
        pins.movePin(moved->fileName(), latitude, longitude);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(gpsValues(*moved), written);
        QCOMPARE(log.keys(), FourKeys.join(u','));
        for (qsizetype i = 0; i < FourKeys.size(); ++i) {
            QCOMPARE(log.update(i).newValue, written.section(u',', i, i));
            QCOMPARE(log.update(i).changedFiles, Files{moved});
        }
        // Its own posts rebuild the pins from the values just written.
        QVERIFY(qAbs(pins.annotations().value(moved->fileName()).latitude - latitude) < 1e-6);
    }

    void rebuildsOnlyOnGpsUpdates()
    {
        const auto info = file(u"a.jpg"_qs);
        EditSession session;
        MapPins pins(session);
        pins.setFiles({info});
        QSignalSpy rebuilt(&pins, &MapPins::pinsChanged);
        info->setExifData(file(u"a.jpg"_qs, u"20,W,10,N"_qs)->exifData());

        session.post(u"IFD0:Make"_qs, {info}, u"x"_qs, {info}, nullptr);
        QVERIFY(rebuilt.isEmpty());
        session.post(Lon, {info}, u"20"_qs, {info}, nullptr);
        QCOMPARE(rebuilt.size(), 1);
        QCOMPARE(pins.annotations().value(info->fileName()).longitude, -20.0);
    }
};

QTEST_GUILESS_MAIN(TestMapPins)
#include "tst_mappins.moc"
