#include "windows/mappins.h"

#include "editors/exiffilesupdate.h"

#include <QtTest>

namespace {

using Tags = QHash<QString, QString>;
using Region = QList<double>;   // latitude, longitude, latitude span, longitude span; empty: none
using PinList = QList<QPointF>; // x latitude, y longitude

const QString Lat = MapPins::LatitudeKey;
const QString LatRef = MapPins::LatitudeRefKey;
const QString Lon = MapPins::LongitudeKey;
const QString LonRef = MapPins::LongitudeRefKey;

ExifFileInfoPtr file(const QString &name, const Tags &tags)
{
    auto info = std::make_shared<ExifFileInfo>(u"/photos/"_qs + name);
    info->setReadData(tags);
    return info;
}

Tags gps(const QString &lat, const QString &latRef, const QString &lon, const QString &lonRef)
{
    return {{Lat, lat}, {LatRef, latRef}, {Lon, lon}, {LonRef, lonRef}};
}

QStringList gpsValues(const ExifFileInfo &info)
{
    return {info.exifValue(Lon), info.exifValue(LonRef), info.exifValue(Lat),
            info.exifValue(LatRef)};
}

// Every "ExifFilesUpdate" posted while it lives.
struct UpdateLog
{
    UpdateLog()
    {
        connection = QObject::connect(&ExifFilesUpdateCenter::instance(),
                                      &ExifFilesUpdateCenter::exifFilesUpdated,
                                      [this](const ExifFilesUpdate &update) { updates << update; });
    }
    ~UpdateLog() { QObject::disconnect(connection); }
    QStringList keys() const
    {
        QStringList out;
        for (const ExifFilesUpdate &update : updates)
            out << update.xmlName;
        return out;
    }
    QList<ExifFilesUpdate> updates;
    QMetaObject::Connection connection;
};

const QStringList FourKeys{Lon, LonRef, Lat, LatRef};

} // namespace

class TestMapPins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pinFromFile_data();
    void pinFromFile();
    void framing_data();
    void framing();
    void showingFilesSetsPinsAndButtons();
    void addPinGivesCentreToFilesWithoutOne();
    void removePinClearsAllFourKeysFromEveryFile();
    void dragWritesSixDecimalsAndHemispheres_data();
    void dragWritesSixDecimalsAndHemispheres();
    void dragPostsFourNotificationsAndRebuilds();
    void rebuildsOnlyOnGpsUpdates();
};

void TestMapPins::pinFromFile_data()
{
    QTest::addColumn<Tags>("tags");
    QTest::addColumn<bool>("hasPin");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("north east") << gps(u"48.8584"_qs, u"N"_qs, u"2.2945"_qs, u"E"_qs) << true
                                << 48.8584 << 2.2945;
    QTest::newRow("south west") << gps(u"33.9"_qs, u"S"_qs, u"151.2"_qs, u"W"_qs) << true << -33.9
                                << -151.2;
    QTest::newRow("trailing text after the number")
        << gps(u"10.5 deg"_qs, u"N"_qs, u"+20.25x"_qs, u"E"_qs) << true << 10.5 << 20.25;
    QTest::newRow("lower-case latitude ref")
        << gps(u"10"_qs, u"n"_qs, u"20"_qs, u"E"_qs) << false << 0.0 << 0.0;
    QTest::newRow("lower-case longitude ref")
        << gps(u"10"_qs, u"N"_qs, u"20"_qs, u"w"_qs) << false << 0.0 << 0.0;
    QTest::newRow("spelled-out ref")
        << gps(u"10"_qs, u"North"_qs, u"20"_qs, u"E"_qs) << false << 0.0 << 0.0;
    QTest::newRow("refs swapped") << gps(u"10"_qs, u"E"_qs, u"20"_qs, u"N"_qs) << false << 0.0
                                  << 0.0;
    Tags noRef = gps(u"10"_qs, u"N"_qs, u"20"_qs, u"E"_qs);
    noRef.remove(LonRef);
    QTest::newRow("missing longitude ref") << noRef << false << 0.0 << 0.0;
    Tags noLatitude = gps(u"10"_qs, u"N"_qs, u"20"_qs, u"E"_qs);
    noLatitude.remove(Lat);
    QTest::newRow("missing latitude") << noLatitude << false << 0.0 << 0.0;
}

void TestMapPins::pinFromFile()
{
    QFETCH(Tags, tags);
    QFETCH(bool, hasPin);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    const std::optional<MapPin> pin = MapPins::createPointAnnotation(*file(u"a b.jpg"_qs, tags));
    QCOMPARE(pin.has_value(), hasPin);
    if (!pin)
        return;
    QCOMPARE(pin->fileName, u"/photos/a b.jpg"_qs);
    QCOMPARE(pin->title, u"a b.jpg"_qs);
    QCOMPARE(pin->latitude, latitude);
    QCOMPARE(pin->longitude, longitude);
}

void TestMapPins::framing_data()
{
    QTest::addColumn<PinList>("pins");
    QTest::addColumn<Region>("region");
    QTest::newRow("none") << PinList{} << Region{};
    QTest::newRow("one: a degree each way") << PinList{{-12.5, 130}} << Region{-12.5, 130, 1, 1};
    // The longitude box starts at 90..-90, so it reaches 90 east although both pins lie
    // further east.
    QTest::newRow("two in the far east")
        << PinList{{35, 139}, {36, 140}} << Region{35.5, 115, 1, 50};
    QTest::newRow("two within the start box")
        << PinList{{10, -20}, {-30, 40}} << Region{-10, 10, 40, 60};
    QTest::newRow("many, one beyond 90 west")
        << PinList{{-10, -100}, {20, 30}, {5, 50}} << Region{5, -25, 30, 150};
    QTest::newRow("many at one place") << PinList{{1, 2}, {1, 2}, {1, 2}} << Region{1, 2, 0, 0};
}

void TestMapPins::framing()
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

void TestMapPins::showingFilesSetsPinsAndButtons()
{
    MapPins pins;
    QSignalSpy regions(&pins, &MapPins::regionChanged);
    QSignalSpy buttons(&pins, &MapPins::buttonsChanged);

    const auto pinned = file(u"a.jpg"_qs, gps(u"35"_qs, u"N"_qs, u"139"_qs, u"E"_qs));
    Tags noRef = gps(u"36"_qs, u"N"_qs, u"140"_qs, u"E"_qs);
    noRef.remove(LatRef);
    const auto unpinned = file(u"b.jpg"_qs, noRef);
    pins.setFiles({pinned, unpinned});
    QCOMPARE(pins.annotations().keys(), QStringList{pinned->fileName()});
    QVERIFY(pins.isAddEnabled());
    QVERIFY(pins.isRemoveEnabled());
    QCOMPARE(buttons.takeLast(), (QVariantList{true, true}));
    QCOMPARE(regions.size(), 1);

    // No pins: the map keeps its frame.
    pins.setFiles({unpinned});
    QVERIFY(pins.annotations().isEmpty());
    QCOMPARE(buttons.takeLast(), (QVariantList{true, false}));
    QCOMPARE(regions.size(), 1);
    QCOMPARE(pins.region()->latitude, 35.0);

    pins.setFiles({});
    QCOMPARE(buttons.takeLast(), (QVariantList{false, false}));
}

void TestMapPins::addPinGivesCentreToFilesWithoutOne()
{
    const auto pinned = file(u"a.jpg"_qs, gps(u"10"_qs, u"N"_qs, u"20"_qs, u"E"_qs));
    const auto bare = file(u"b.jpg"_qs, {{u"IFD0:Make"_qs, u"Canon"_qs}});
    const auto lowerCase = file(u"c.jpg"_qs, gps(u"1"_qs, u"s"_qs, u"2"_qs, u"E"_qs));
    MapPins pins;
    pins.setFiles({pinned, bare, lowerCase});
    pins.setCenter(-48.5, -3.25);

    UpdateLog log;
    pins.addPin();

    QCOMPARE(gpsValues(*pinned), (QStringList{u"20"_qs, u"E"_qs, u"10"_qs, u"N"_qs}));
    const QStringList atCentre{u"3.250000"_qs, u"W"_qs, u"48.500000"_qs, u"S"_qs};
    QCOMPARE(gpsValues(*bare), atCentre);
    QCOMPARE(gpsValues(*lowerCase), atCentre);
    QCOMPARE(bare->exifValue(u"IFD0:Make"_qs), u"Canon"_qs);

    QCOMPARE(log.keys(), FourKeys);
    const QList<ExifFileInfoPtr> changed{bare, lowerCase};
    QCOMPARE(log.updates.first().changedFiles, changed);
    QCOMPARE(log.updates.first().newValue, u"3.250000"_qs);
    QCOMPARE(pins.annotations().size(), 3);
    QVERIFY(!pins.isAddEnabled());

    // Everyone has a pin now: nothing to add, nothing posted.
    log.updates.clear();
    pins.addPin();
    QVERIFY(log.updates.isEmpty());
}

void TestMapPins::removePinClearsAllFourKeysFromEveryFile()
{
    const auto pinned = file(u"a.jpg"_qs, gps(u"10"_qs, u"N"_qs, u"20"_qs, u"E"_qs));
    Tags partial{{Lat, u"5"_qs}, {LatRef, u"n"_qs}, {u"IFD0:Model"_qs, u"X"_qs}};
    const auto unpinned = file(u"b.jpg"_qs, partial);
    MapPins pins;
    pins.setFiles({pinned, unpinned});

    UpdateLog log;
    pins.removePin();

    for (const ExifFileInfoPtr &info : {pinned, unpinned}) {
        for (const QString &key : FourKeys)
            QVERIFY2(!info->hasExifValue(key), qPrintable(info->fileName() + u' ' + key));
    }
    QCOMPARE(unpinned->exifValue(u"IFD0:Model"_qs), u"X"_qs);
    QCOMPARE(log.keys(), FourKeys);
    for (const ExifFilesUpdate &update : std::as_const(log.updates)) {
        QCOMPARE(update.changedFiles.size(), 2);
        QCOMPARE(update.newValue, QString());
    }
    QVERIFY(pins.annotations().isEmpty());
    QVERIFY(!pins.isRemoveEnabled());
    QVERIFY(pins.isAddEnabled());
}

void TestMapPins::dragWritesSixDecimalsAndHemispheres_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QStringList>("written"); // longitude, its ref, latitude, its ref
    QTest::newRow("12.5 south") << -12.5 << 30.0
                                << QStringList{u"30.000000"_qs, u"E"_qs, u"12.500000"_qs, u"S"_qs};
    QTest::newRow("north west, rounded")
        << 51.4778049 << -0.0014 << QStringList{u"0.001400"_qs, u"W"_qs, u"51.477805"_qs, u"N"_qs};
    QTest::newRow("origin is north east")
        << 0.0 << 0.0 << QStringList{u"0.000000"_qs, u"E"_qs, u"0.000000"_qs, u"N"_qs};
    QTest::newRow("date line") << -89.999999 << -180.0
                               << QStringList{u"180.000000"_qs, u"W"_qs, u"89.999999"_qs, u"S"_qs};
}

void TestMapPins::dragWritesSixDecimalsAndHemispheres()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QStringList, written);
    const auto info = file(u"a.jpg"_qs, gps(u"1"_qs, u"N"_qs, u"1"_qs, u"E"_qs));
    MapPins pins;
    pins.setFiles({info});
    // A German locale must not turn the full stop into a comma.
    const QLocale previous;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    pins.movePin(info->fileName(), latitude, longitude);
    QLocale::setDefault(previous);
    QCOMPARE(gpsValues(*info), written);
}

void TestMapPins::dragPostsFourNotificationsAndRebuilds()
{
    const auto moved = file(u"a.jpg"_qs, gps(u"1"_qs, u"N"_qs, u"1"_qs, u"E"_qs));
    const auto other = file(u"b.jpg"_qs, gps(u"2"_qs, u"N"_qs, u"2"_qs, u"E"_qs));
    MapPins pins;
    pins.setFiles({moved, other});
    QSignalSpy rebuilt(&pins, &MapPins::pinsChanged);

    UpdateLog log;
    pins.movePin(moved->fileName(), -12.5, 7.25);

    QCOMPARE(log.keys(), FourKeys);
    const QStringList values{u"7.250000"_qs, u"E"_qs, u"12.500000"_qs, u"S"_qs};
    for (int i = 0; i < 4; ++i) {
        const ExifFilesUpdate &update = log.updates.at(i);
        QCOMPARE(update.newValue, values.at(i));
        QCOMPARE(update.changedFiles, QList<ExifFileInfoPtr>{moved});
        QCOMPARE(update.exifFiles, QList<ExifFileInfoPtr>{moved});
        QCOMPARE(update.source, &pins);
    }
    // Each of its own posts rebuilds the pins, from the values just written.
    QCOMPARE(rebuilt.size(), 4);
    QCOMPARE(pins.annotations().value(moved->fileName()).latitude, -12.5);
    QCOMPARE(pins.region()->latitude, -5.25);

    // A drag reported for a file no longer shown changes nothing.
    log.updates.clear();
    pins.movePin(u"/photos/gone.jpg"_qs, 3, 3);
    QVERIFY(log.updates.isEmpty());
}

void TestMapPins::rebuildsOnlyOnGpsUpdates()
{
    const auto info = file(u"a.jpg"_qs, {});
    MapPins pins;
    pins.setFiles({info});
    QSignalSpy rebuilt(&pins, &MapPins::pinsChanged);

    info->setExifValue(Lat, u"10"_qs);
    info->setExifValue(LatRef, u"N"_qs);
    info->setExifValue(Lon, u"20"_qs);
    info->setExifValue(LonRef, u"W"_qs);
    ExifFilesUpdateCenter::instance().post(u"ExifIFD:DateTimeOriginal"_qs, {info}, u"x"_qs, {info},
                                           nullptr);
    QVERIFY(rebuilt.isEmpty());
    ExifFilesUpdateCenter::instance().post(LonRef, {info}, u"W"_qs, {info}, nullptr);
    QCOMPARE(rebuilt.size(), 1);
    QCOMPARE(pins.annotations().value(info->fileName()).longitude, -20.0);
    QVERIFY(!pins.isAddEnabled());
}

QTEST_GUILESS_MAIN(TestMapPins)
#include "tst_mappins.moc"
