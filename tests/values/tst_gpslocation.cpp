#include "values/gpslocation.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>

namespace {
constexpr int Lat = GPSLocation::Latitude;
constexpr int Lon = GPSLocation::Longitude;
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr int Refused = -1;

std::optional<GPSLocation> parseAs(int type, const QString &text)
{
    return type == Lat ? GPSLocation::initLatitudeWithString(text)
                       : GPSLocation::initLongitudeWithString(text);
}

GPSLocation make(int type, double value, int hemisphere)
{
    return type == Lat ? GPSLocation::initLatitudeWithDouble(value, hemisphere)
                       : GPSLocation::initLongitudeWithDouble(value, hemisphere);
}
} // namespace

class TestGpsLocation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("hemisphere"); // 0 none, 1 N/E, 2 S/W

        auto row = [](const char *name, int type, const QString &text, double value, int side) {
            QTest::newRow(name) << type << text << value << side;
        };
        row("dms N", Lat, u"48°51'29.5\"N"_qs, 48.8581944, 1);
        row("dms leading n", Lat, u"n48°51'29.5\""_qs, 48.8581944, 1);
        row("dms seconds 61", Lat, u"12°30'61\""_qs, NaN, 0);
        row("dms 4-digit latitude", Lat, u"1234°0'0\"N"_qs, 0, Refused);
        row("dm decimal comma", Lon, u"2°21,05'E"_qs, 2.3508333, 1);
        row("dm minutes 60", Lat, u"12°60'"_qs, 13.0, 0);
        row("inner blank", Lat, u"12° 30'"_qs, 0, Refused);
        row("decimal trimmed", Lon, u" \t12,5\n"_qs, 12.5, 0);
        row("minus latitude south", Lat, u"-33.8688"_qs, 33.8688, 2);
        row("minus longitude west", Lon, u"-151.2093"_qs, 151.2093, 2);
        row("letter beats minus", Lat, u"-33.87N"_qs, 33.87, 1);
        row("trailing letter wins", Lat, u"N12S"_qs, 12.0, 2);
        row("bar keeps sign", Lat, u"-12.5|"_qs, 12.5, 2);
        row("latitude refuses E", Lat, u"48.5E"_qs, 0, Refused);
    }

    void parse()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(double, value);
        QFETCH(int, hemisphere);

        const std::optional<GPSLocation> location = parseAs(type, text);
        QCOMPARE(location ? location->latlong() : Refused, hemisphere);
        if (!location)
            return;
        QCOMPARE(location->type(), type);
        const double got = location->doubleValue();
        QVERIFY2(std::isnan(value) ? std::isnan(got) : std::fabs(got - value) < 1e-6,
                 qPrintable(QString::number(got, 'f', 9)));
    }

    void format_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("hemisphere");
        QTest::addColumn<QString>("dm");
        QTest::addColumn<QString>("dmNoSide");
        QTest::addColumn<QString>("dms");

        QTest::newRow("latitude 5 decimals") << Lat << 48.858194444444 << 1 << u"48°51.49167'N"_qs
                                             << u"48°51.492'"_qs << u"48°51'29.500\"N"_qs;
        QTest::newRow("longitude west") << Lon << 151.2093 << 2 << u"151°12.558'W"_qs
                                        << u"151°12.558'"_qs << u"151°12'33.480\"W"_qs;
        QTest::newRow("rounding to 60") << Lat << 12.99999999 << 0 << u"12°60.000'"_qs
                                        << u"12°60.000'"_qs << u"12°59'60.000\""_qs;
        QTest::newRow("negative double") << Lon << -12.5 << 0 << u"-12°-30.000'"_qs
                                         << u"-12°-30.000'"_qs << u"-12°-30'0.000\""_qs;
    }

    void format()
    {
        QFETCH(int, type);
        QFETCH(double, value);
        QFETCH(int, hemisphere);
        QFETCH(QString, dms);
        const GPSLocation location = make(type, value, hemisphere);
        QTEST(location.stringDM(), "dm");
        QCOMPARE(location.stringDMS(), dms);
        // The display styles leave the hemisphere to its own field.
        QTEST(location.stringForGpsFormat(1), "dmNoSide");
        QCOMPARE(location.stringForGpsFormat(0), dms.chopped(hemisphere ? 1 : 0));
    }

    // What a typed coordinate writes: the magnitude in the file, the side in the reference tag,
    // and a preset's signed number.
    void writtenForms_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("degrees");
        QTest::addColumn<QString>("letter");
        QTest::addColumn<double>("signedValue");
        const auto row = [](const char *name, int type, const QString &text, const char *degrees,
                            const char *letter, double value) {
            QTest::newRow(name) << type << text << QString::fromLatin1(degrees)
                                << QString::fromLatin1(letter) << value;
        };
        row("south by sign", Lat, u"-33.8688"_qs, "33.8688", "S", -33.8688);
        row("west by letter", Lon, u"151.2093W"_qs, "151.2093", "W", -151.2093);
        row("plus is north", Lat, u"+48.5"_qs, "48.5", "N", 48.5);
        row("no side counts as north", Lat, u"48.5"_qs, "48.5", "", 48.5);
        row("rounded to five decimals", Lon, u"2.123456E"_qs, "2.12346", "E", 2.123456);
        row("trailing zeros dropped", Lat, u"10.50000"_qs, "10.5", "", 10.5);
        row("whole degrees without point", Lat, u"45°0'0\"S"_qs, "45", "S", -45.0);
        row("dms to decimal", Lat, u"48°51'29.5\"N"_qs, "48.85819", "N", 48.8581944);
        row("zero", Lon, u"0"_qs, "0", "", 0.0);
        row("rounds up to the next degree", Lon, u"9.999999"_qs, "10", "", 9.999999);
    }
    void writtenForms()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(double, signedValue);
        const auto location = GPSLocation::initWithString(text, type);
        QVERIFY(location && location->isInRange());
        QCOMPARE(location->type(), type);
        QTEST(GPSLocation::degreesText(location->doubleValue()), "degrees");
        QTEST(location->hemisphereLetter(), "letter");
        QVERIFY(std::fabs(location->signedValue() - signedValue) < 1e-6);
    }

    void outOfRangePartsAreNoValue()
    {
        for (const QString &text : {u"12°61'"_qs, u"12°30'61\""_qs, u"181°0'"_qs}) {
            const auto location = GPSLocation::initWithString(text, Lon);
            QVERIFY2(location && !location->isInRange(), qPrintable(text));
        }
        QVERIFY(GPSLocation::initWithString(u"12.5"_qs, Lat)->isInRange());
    }

    void degreesTextNeverNegativeZero()
    {
        QCOMPARE(GPSLocation::degreesText(-0.000001), u"0"_qs);
        QCOMPARE(GPSLocation::degreesText(-0.0), u"0"_qs);
        QCOMPARE(GPSLocation::degreesText(-12.25), u"-12.25"_qs);
    }

    // A file's pair of tags as the map reads it: only ExifTool's exact letters give a position.
    void signedDegreesFromTags_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("degrees");
        QTest::addColumn<QString>("reference");
        QTest::addColumn<double>("value"); // NaN: no position
        const auto row = [](const char *name, int type, const char *degrees, const char *ref,
                            double value) {
            QTest::newRow(name) << type << QString::fromLatin1(degrees) << QString::fromLatin1(ref)
                                << value;
        };
        row("north", Lat, "48.8584", "N", 48.8584);
        row("south", Lat, "33.9", "S", -33.9);
        row("east", Lon, "2.2945", "E", 2.2945);
        row("west", Lon, "151.2", "W", -151.2);
        row("latitude with a longitude letter", Lat, "10", "E", NaN);
        row("lower case", Lon, "20", "w", NaN);
        row("padded letter", Lat, "10", "N ", NaN);
        row("word", Lat, "10", "North", NaN);
        row("no reference", Lat, "10", "", NaN);
        row("a signed value is negated like any other", Lat, "-12.5", "S", 12.5);
        row("trailing text ignored", Lon, "7.25 deg", "E", 7.25);
        row("no number is zero", Lat, "n/a", "N", 0.0);
    }
    void signedDegreesFromTags()
    {
        QFETCH(int, type);
        QFETCH(QString, degrees);
        QFETCH(QString, reference);
        QFETCH(double, value);
        const auto got = GPSLocation::signedDegreesFromTags(degrees, reference, type);
        QCOMPARE(got.has_value(), !std::isnan(value));
        if (got)
            QCOMPARE(*got, value);
    }

    // What the editors show must read back as the same coordinate: no hemisphere flipped, no
    // rounding beyond the printed precision; a signed decimal as web maps give it keeps its side.
    void formattedTextParsesBack()
    {
        QRandomGenerator random(4171);
        for (int i = 0; i < 2000; ++i) {
            const int type = i % 2 == 0 ? Lat : Lon;
            const double value = random.bounded(type == Lat ? 90.0 : 180.0);
            const int hemisphere = 1 + int(random.bounded(2));
            const GPSLocation location = make(type, value, hemisphere);
            const QString decimal = QString::asprintf("%f", value);
            const std::pair<QString, double> forms[] = {
                {location.stringDMS(), 0.0005 / 3600},
                {location.stringDM(), (type == Lat ? 0.000005 : 0.0005) / 60},
                {location.stringForGpsFormat(2) + location.hemisphereLetter(), 0.0000005},
                {(hemisphere == 2 ? u"-"_qs : u"+"_qs) + decimal, 0.0000005}};
            for (const auto &[text, tolerance] : forms) {
                const auto parsed = parseAs(type, text);
                QVERIFY2(parsed && std::fabs(parsed->doubleValue() - value) <= tolerance + 1e-12,
                         qPrintable(text + u" from "_qs + QString::number(value, 'f', 12)));
                QCOMPARE(parsed->latlong(), hemisphere);
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestGpsLocation)
#include "tst_gpslocation.moc"
