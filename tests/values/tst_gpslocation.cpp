#include "values/gpslocation.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>

class TestGpsLocation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void format_data();
    void format();
    void gpsFormatStyles_data();
    void gpsFormatStyles();
    void formattedTextParsesBack();
};

namespace {
constexpr int Lat = GPSLocation::Latitude;
constexpr int Lon = GPSLocation::Longitude;
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

std::optional<GPSLocation> parseAs(int type, const QString &text)
{
    return type == Lat ? GPSLocation::initLatitudeWithString(text)
                       : GPSLocation::initLongitudeWithString(text);
}
} // namespace

void TestGpsLocation::parse_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("parses");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("hemisphere");

    QTest::newRow("dms with trailing N") << Lat << u"48°51'29.5\"N"_qs << true << 48.8581944 << 1;
    QTest::newRow("dms lower-case leading n")
        << Lat << u"n48°51'29.5\""_qs << true << 48.8581944 << 1;
    QTest::newRow("dms seconds out of range") << Lat << u"12°30'61\""_qs << true << NaN << 0;
    QTest::newRow("dms latitude degrees at most 3 digits")
        << Lat << u"1234°0'0\"N"_qs << false << 0.0 << 0;
    QTest::newRow("dms longitude degrees unlimited")
        << Lon << u"1234°0'0\"E"_qs << true << NaN << 1;
    QTest::newRow("dm decimal comma east") << Lon << u"2°21,05'E"_qs << true << 2.3508333 << 1;
    QTest::newRow("dm latitude beyond 90 south") << Lat << u"91°0'S"_qs << true << 91.0 << 2;
    QTest::newRow("dm degrees beyond 180") << Lat << u"181°0'"_qs << true << NaN << 0;
    QTest::newRow("dm minutes at bound 60") << Lat << u"12°60'"_qs << true << 13.0 << 0;
    QTest::newRow("dm too many degree digits")
        << Lat << u"99999999999999999999°0'"_qs << true << NaN << 0;
    QTest::newRow("inner blank rejected") << Lat << u"12° 30'"_qs << false << 0.0 << 0;
    QTest::newRow("blank after sign rejected") << Lat << u"- 12"_qs << false << 0.0 << 0;
    QTest::newRow("decimal plain") << Lat << u"12.5"_qs << true << 12.5 << 0;
    QTest::newRow("decimal trimmed with comma") << Lon << u" \t12,5\n"_qs << true << 12.5 << 0;
    QTest::newRow("minus latitude is south") << Lat << u"-33.8688"_qs << true << 33.8688 << 2;
    QTest::newRow("minus longitude is west") << Lon << u"-151.2093"_qs << true << 151.2093 << 2;
    QTest::newRow("plus latitude is north") << Lat << u"+48.5"_qs << true << 48.5 << 1;
    QTest::newRow("letter wins over minus") << Lat << u"-33.87N"_qs << true << 33.87 << 1;
    QTest::newRow("letter wins over plus") << Lon << u"+33.87W"_qs << true << 33.87 << 2;
    QTest::newRow("trailing letter wins over leading") << Lat << u"N12S"_qs << true << 12.0 << 2;
    QTest::newRow("bar in bracket is no letter") << Lat << u"12.5|"_qs << true << 12.5 << 0;
    QTest::newRow("bar keeps the sign") << Lat << u"-12.5|"_qs << true << 12.5 << 2;
    QTest::newRow("latitude refuses E") << Lat << u"48.5E"_qs << false << 0.0 << 0;
    QTest::newRow("empty") << Lat << QString() << false << 0.0 << 0;
}

void TestGpsLocation::parse()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    QFETCH(bool, parses);
    QFETCH(double, value);
    QFETCH(int, hemisphere);

    const std::optional<GPSLocation> location = parseAs(type, text);
    QCOMPARE(location.has_value(), parses);
    if (!parses)
        return;
    QCOMPARE(location->type(), type);
    if (std::isnan(value))
        QVERIFY2(std::isnan(location->doubleValue()),
                 qPrintable(QString::number(location->doubleValue())));
    else
        QVERIFY2(std::fabs(location->doubleValue() - value) < 1e-6,
                 qPrintable(QString::number(location->doubleValue(), 'f', 9)));
    QCOMPARE(location->latlong(), hemisphere);
}

void TestGpsLocation::format_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("hemisphere");
    QTest::addColumn<QString>("dm");
    QTest::addColumn<QString>("dmNoSide");
    QTest::addColumn<QString>("dms");

    QTest::newRow("latitude north, five decimals")
        << Lat << 48.858194444444 << 1 << u"48°51.49167'N"_qs << u"48°51.492'"_qs
        << u"48°51'29.500\"N"_qs;
    QTest::newRow("longitude east, three decimals")
        << Lon << 2.3508333333 << 1 << u"2°21.050'E"_qs << u"2°21.050'"_qs << u"2°21'3.000\"E"_qs;
    QTest::newRow("longitude west") << Lon << 151.2093 << 2 << u"151°12.558'W"_qs
                                    << u"151°12.558'"_qs << u"151°12'33.480\"W"_qs;
    QTest::newRow("no hemisphere prints no letter")
        << Lat << 48.858194444444 << 0 << u"48°51.492'"_qs << u"48°51.492'"_qs
        << u"48°51'29.500\""_qs;
    QTest::newRow("minutes rounded, degrees truncated")
        << Lat << 12.99999999 << 0 << u"12°60.000'"_qs << u"12°60.000'"_qs << u"12°59'60.000\""_qs;
    QTest::newRow("negative value from a double")
        << Lon << -12.5 << 0 << u"-12°-30.000'"_qs << u"-12°-30.000'"_qs << u"-12°-30'0.000\""_qs;
}

void TestGpsLocation::format()
{
    QFETCH(int, type);
    QFETCH(double, value);
    QFETCH(int, hemisphere);
    QFETCH(QString, dm);
    QFETCH(QString, dmNoSide);
    QFETCH(QString, dms);

    const GPSLocation location = type == Lat
                                     ? GPSLocation::initLatitudeWithDouble(value, hemisphere)
                                     : GPSLocation::initLongitudeWithDouble(value, hemisphere);
    QCOMPARE(location.stringDM(), dm);
    QCOMPARE(location.stringDMWithSide(false), dmNoSide);
    QCOMPARE(location.stringDMS(), dms);
}

void TestGpsLocation::gpsFormatStyles_data()
{
    QTest::addColumn<int>("gpsFormat");
    QTest::addColumn<QString>("text");

    QTest::newRow("2 decimal degrees") << 2 << u"48.858194"_qs;
    QTest::newRow("0 degrees minutes seconds") << 0 << u"48°51'29.500\""_qs;
    QTest::newRow("7 falls back to seconds") << 7 << u"48°51'29.500\""_qs;
}

void TestGpsLocation::gpsFormatStyles()
{
    QFETCH(int, gpsFormat);
    QFETCH(QString, text);
    QCOMPARE(GPSLocation::initLatitudeWithDouble(48.858194444444, 1).stringForGpsFormat(gpsFormat),
             text);
}

// What the editors show must read back as the same coordinate: no hemisphere flipped, no
// rounding beyond the printed precision.
void TestGpsLocation::formattedTextParsesBack()
{
    QRandomGenerator random(4171);
    for (int i = 0; i < 2000; ++i) {
        const int type = i % 2 == 0 ? Lat : Lon;
        const double value = random.bounded(type == Lat ? 90.0 : 180.0);
        const int hemisphere = 1 + int(random.bounded(2));
        const GPSLocation location = type == Lat
                                         ? GPSLocation::initLatitudeWithDouble(value, hemisphere)
                                         : GPSLocation::initLongitudeWithDouble(value, hemisphere);
        const struct
        {
            QString text;
            double tolerance;
        } forms[] = {
            {location.stringDMS(), 0.0005 / 3600 + 1e-12},
            {location.stringDM(), (type == Lat ? 0.000005 : 0.0005) / 60 + 1e-12},
            {QString::asprintf("%f", value) + location.hemisphereLetter(), 0.0000005 + 1e-12}};
        for (const auto &form : forms) {
            const auto parsed = parseAs(type, form.text);
            QVERIFY2(parsed, qPrintable(form.text));
            QVERIFY2(std::fabs(parsed->doubleValue() - value) <= form.tolerance,
                     qPrintable(form.text + u" from "_qs + QString::number(value, 'f', 12)));
            QCOMPARE(parsed->latlong(), hemisphere);
        }
        // A signed decimal, as web maps give it, keeps its hemisphere.
        const QString sign = hemisphere == 2 ? u"-"_qs : u"+"_qs;
        const auto signedParse = parseAs(type, sign + QString::asprintf("%f", value));
        QVERIFY(signedParse);
        QCOMPARE(signedParse->latlong(), hemisphere);
    }
}

QTEST_GUILESS_MAIN(TestGpsLocation)
#include "tst_gpslocation.moc"
