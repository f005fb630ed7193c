#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <optional>

// One GPS coordinate, latitude or longitude, as the user types it and as the text editors show
// it. The value is a magnitude in degrees; the hemisphere lives in latlong, not in the sign.
class GPSLocation
{
public:
    static constexpr int Longitude = 0;
    static constexpr int Latitude = 1;
    static constexpr int NoHemisphere = 0;
    static constexpr int NorthOrEast = 1;
    static constexpr int SouthOrWest = 2;

    // Nothing when no accepted form matches; out-of-range parts give a NaN value instead.
    static std::optional<GPSLocation> initLatitudeWithString(const QString &text);
    static std::optional<GPSLocation> initLongitudeWithString(const QString &text);
    // Either of the above by type (Latitude or Longitude).
    static std::optional<GPSLocation> initWithString(const QString &text, int type);
    // Stored as given: no range check, no sign handling.
    static GPSLocation initLatitudeWithDouble(double value, int northSouth);
    static GPSLocation initLongitudeWithDouble(double value, int eastWest);

    double doubleValue() const { return m_position; }
    // False for the NaN that out-of-range minutes or seconds give.
    bool isInRange() const;
    // Negative in the southern and western hemispheres; a text without a letter or sign
    // counts as north or east.
    double signedValue() const;
    int type() const { return m_type; }
    int latlong() const { return m_latlong; }
    int northSouth() const { return m_latlong; }
    int eastWest() const { return m_latlong; }
    // "N", "S", "E" or "W", or empty when no hemisphere was given.
    QString hemisphereLetter() const;

    bool parseGPS(const QString &text, int longLat);
    bool parseDegMinSecGPSString(const QString &prepared);
    bool parseDegMinGPSString(const QString &prepared);
    bool parseNumericGPSString(const QString &prepared);

    static QString prepareInputString(const QString &text);
    static double createGpsFloatNum1(double degrees, double minutes);
    static double createGpsFloatNum1(double degrees, double minutes, double seconds);

    QString stringDM() const { return stringDMWithSide(true); }
    QString stringDMWithSide(bool side) const;
    QString stringDMS() const { return stringDMSWithSide(true); }
    QString stringDMSWithSide(bool side) const;
    // The text editors' style by the user setting GPS_FORMAT: 2 decimal degrees, 1 degrees and
    // decimal minutes, anything else degrees, minutes and seconds; never with the letter.
    QString stringForGpsFormat(int gpsFormat) const;

    // Degrees as the text editors write them to a file: at most five decimals, "." whatever
    // the locale, no grouping, no trailing zeros, never "-0".
    static QString degreesText(double degrees);
    // A coordinate as a file holds it, unsigned degrees beside a reference tag, in signed
    // degrees; nullopt unless the reference is exactly one of the type's two letters.
    static std::optional<double> signedDegreesFromTags(const QString &degrees,
                                                       const QString &reference, int type);

private:
    GPSLocation(int type, double position, int latlong);
    int hemisphereFrom(const QString &leading, const QString &trailing) const;

    int m_type = Latitude;
    int m_latlong = NoHemisphere;
    double m_position = 0;
};

// The four GPS tags of a position as a pin dragged on the map writes them: unsigned degrees with
// six decimals and a hemisphere letter, longitude first.
QList<QPair<QString, QString>> gpsPositionTags(double latitude, double longitude);

// Parser self-checks: throw a TagsmithException named "Error" when the text does not read as the
// expected value (within 0.001) and hemisphere.
void checkLatitude(const QString &text, double expected, int northSouth);
void checkLongitude(const QString &text, double expected, int eastWest);
