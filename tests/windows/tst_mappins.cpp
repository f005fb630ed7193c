#include "windows/mappins.h"

#include "editors/exiffilesupdate.h"

#include <QtTest>

namespace {

using Files = QList<ExifFileInfoPtr>;
using Region = QList<double>;   // latitude, longitude, their spans; empty: left unchanged
using PinList = QList<QPointF>; // latitude, longitude

const QString Lat = MapPins::LatitudeKey;
const QString Lon = MapPins::LongitudeKey;
// The order the notifications go out in, and the order gpsValues() lists.
const QStringList FourKeys{Lon, MapPins::LongitudeRefKey, Lat, MapPins::LatitudeRefKey};

// The four GPS values in FourKeys order; an empty text leaves that key out.
ExifFileInfoPtr file(const QString &name, const QStringList &gps = {})
{
    QHash<QString, QString> tags{{u"IFD0:Make"_qs, u"Canon"_qs}};
    for (qsizetype i = 0; i < gps.size(); ++i) {
        if (!gps.at(i).isEmpty())
            tags.insert(FourKeys.at(i), gps.at(i));
    }
    auto info = std::make_shared<ExifFileInfo>(u"/photos/"_qs + name);
    info->setReadData(tags);
    return info;
}

QStringList gpsValues(const ExifFileInfo &info)
{
    QStringList values;
    for (const QString &key : FourKeys)
        values << info.exifValue(key);
    return values;
}

// Every "ExifFilesUpdate" posted while it lives.
struct UpdateLog : QSignalSpy
{
    UpdateLog()
        : QSignalSpy(&ExifFilesUpdateCenter::instance(), &ExifFilesUpdateCenter::exifFilesUpdated)
    {
    }
    ExifFilesUpdate update(qsizetype i) const { return at(i).at(0).value<ExifFilesUpdate>(); }
    QStringList keys() const
    {
        QStringList out;
        for (qsizetype i = 0; i < size(); ++i)
            out << update(i).xmlName;
        return out;
    }
};

} // namespace

class TestMapPins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pinFromFile_data();
    void pinFromFile();
    void framing_data();
    void framing();
    void addPinGivesCentreOnlyToFilesWithoutOne();
    void removePinClearsAllFourKeysFromEveryFile();
    void dragWritesSixDecimalsAndPostsInOrder_data();
    void dragWritesSixDecimalsAndPostsInOrder();
    void rebuildsOnlyOnGpsUpdates();
};

void TestMapPins::pinFromFile_data()
{
    QTest::addColumn<QStringList>("gps");
    QTest::addColumn<PinList>("pin");
    QTest::newRow("north east") << QStringList{u"2.2945"_qs, u"E"_qs, u"48.8584"_qs, u"N"_qs}
                                << PinList{{48.8584, 2.2945}};
    QTest::newRow("south west") << QStringList{u"151.2"_qs, u"W"_qs, u"33.9"_qs, u"S"_qs}
                                << PinList{{-33.9, -151.2}};
    QTest::newRow("lower-case n") << QStringList{u"20"_qs, u"E"_qs, u"10"_qs, u"n"_qs} << PinList{};
    QTest::newRow("lower-case w") << QStringList{u"20"_qs, u"w"_qs, u"10"_qs, u"N"_qs} << PinList{};
    QTest::newRow("refs swapped") << QStringList{u"20"_qs, u"N"_qs, u"10"_qs, u"E"_qs} << PinList{};
    QTest::newRow("no longitude ref") << QStringList{u"20"_qs, {}, u"10"_qs, u"N"_qs} << PinList{};
}

void TestMapPins::pinFromFile()
{
    QFETCH(QStringList, gps);
    QFETCH(PinList, pin);
    const std::optional<MapPin> made = MapPins::createPointAnnotation(*file(u"a b.jpg"_qs, gps));
    QCOMPARE(made.has_value(), !pin.isEmpty());
    if (made) {
        QCOMPARE(made->title, u"a b.jpg"_qs);
        QCOMPARE(QPointF(made->latitude, made->longitude), pin.first());
    }
}

void TestMapPins::framing_data()
{
    QTest::addColumn<PinList>("pins");
    QTest::addColumn<Region>("region");
    QTest::newRow("none") << PinList{} << Region{};
    QTest::newRow("one") << PinList{{-12.5, 130}} << Region{-12.5, 130, 1, 1};
    // The longitude box starts at 90..-90, so it reaches 90 east though both pins lie further.
    QTest::newRow("two far east") << PinList{{35, 139}, {36, 140}} << Region{35.5, 115, 1, 50};
    QTest::newRow("many") << PinList{{-10, -100}, {20, 30}, {5, 50}} << Region{5, -25, 30, 150};
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

void TestMapPins::addPinGivesCentreOnlyToFilesWithoutOne()
{
    const auto pinned = file(u"a.jpg"_qs, {u"20"_qs, u"E"_qs, u"10"_qs, u"N"_qs});
    const auto bare = file(u"b.jpg"_qs);
    const auto noRef = file(u"c.jpg"_qs, {u"2"_qs, u"E"_qs, u"1"_qs, {}});
    MapPins pins;
    pins.setFiles({pinned, bare, noRef});
    QCOMPARE(pins.annotations().size(), 1);
    QVERIFY(pins.isAddEnabled());
    pins.setCenter(-48.5, -3.25);

    UpdateLog log;
    pins.addPin();
    QCOMPARE(gpsValues(*pinned), (QStringList{u"20"_qs, u"E"_qs, u"10"_qs, u"N"_qs}));
    const QStringList atCentre{u"3.250000"_qs, u"W"_qs, u"48.500000"_qs, u"S"_qs};
    QCOMPARE(gpsValues(*bare), atCentre);
    QCOMPARE(gpsValues(*noRef), atCentre);
    QCOMPARE(log.keys(), FourKeys);
    QCOMPARE(log.update(0).changedFiles, (Files{bare, noRef}));
    QCOMPARE(pins.annotations().size(), 3);
    QVERIFY(!pins.isAddEnabled());

    log.clear();
    pins.addPin();
    QVERIFY(log.isEmpty());
}

void TestMapPins::removePinClearsAllFourKeysFromEveryFile()
{
    const auto pinned = file(u"a.jpg"_qs, {u"20"_qs, u"E"_qs, u"10"_qs, u"N"_qs});
    const auto unpinned = file(u"b.jpg"_qs, {{}, {}, u"5"_qs, u"n"_qs});
    MapPins pins;
    pins.setFiles({pinned, unpinned});

    UpdateLog log;
    pins.removePin();
    for (const ExifFileInfoPtr &info : {pinned, unpinned}) {
        QCOMPARE(gpsValues(*info), QStringList(4));
        QCOMPARE(info->exifData().size(), 1);
    }
    QCOMPARE(log.keys(), FourKeys);
    QCOMPARE(log.update(0).changedFiles, (Files{pinned, unpinned}));
    QCOMPARE(log.update(0).newValue, QString());
    QVERIFY(!pins.isRemoveEnabled());
    QVERIFY(pins.isAddEnabled());
}

void TestMapPins::dragWritesSixDecimalsAndPostsInOrder_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QStringList>("written");
    QTest::newRow("12.5 south") << -12.5 << 30.0
                                << QStringList{u"30.000000"_qs, u"E"_qs, u"12.500000"_qs, u"S"_qs};
    QTest::newRow("north west, rounded")
        << 51.4778049 << -0.0014 << QStringList{u"0.001400"_qs, u"W"_qs, u"51.477805"_qs, u"N"_qs};
    QTest::newRow("origin") << 0.0 << 0.0
                            << QStringList{u"0.000000"_qs, u"E"_qs, u"0.000000"_qs, u"N"_qs};
}

void TestMapPins::dragWritesSixDecimalsAndPostsInOrder()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QStringList, written);
    const auto moved = file(u"a.jpg"_qs, {u"1"_qs, u"E"_qs, u"1"_qs, u"N"_qs});
    const auto other = file(u"b.jpg"_qs, {u"2"_qs, u"E"_qs, u"2"_qs, u"N"_qs});
    MapPins pins;
    pins.setFiles({moved, other});
    // A German locale must not turn the full stop into a comma.
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    UpdateLog log;
    pins.movePin(moved->fileName(), latitude, longitude);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(gpsValues(*moved), written);
    QCOMPARE(log.keys(), FourKeys);
    for (qsizetype i = 0; i < FourKeys.size(); ++i) {
        QCOMPARE(log.update(i).newValue, written.at(i));
        QCOMPARE(log.update(i).changedFiles, Files{moved});
        QCOMPARE(log.update(i).exifFiles, Files{moved});
    }
    // Its own posts rebuild the pins from the values just written.
    QVERIFY(qAbs(pins.annotations().value(moved->fileName()).latitude - latitude) < 1e-6);
}

void TestMapPins::rebuildsOnlyOnGpsUpdates()
{
    const auto info = file(u"a.jpg"_qs);
    MapPins pins;
    pins.setFiles({info});
    QSignalSpy rebuilt(&pins, &MapPins::pinsChanged);
    info->setExifData(file(u"a.jpg"_qs, {u"20"_qs, u"W"_qs, u"10"_qs, u"N"_qs})->exifData());

    ExifFilesUpdateCenter::instance().post(u"IFD0:Make"_qs, {info}, u"x"_qs, {info}, nullptr);
    QVERIFY(rebuilt.isEmpty());
    ExifFilesUpdateCenter::instance().post(Lon, {info}, u"20"_qs, {info}, nullptr);
    QCOMPARE(rebuilt.size(), 1);
    QCOMPARE(pins.annotations().value(info->fileName()).longitude, -20.0);
}

QTEST_GUILESS_MAIN(TestMapPins)
#include "tst_mappins.moc"
