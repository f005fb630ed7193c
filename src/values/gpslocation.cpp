#include "values/gpslocation.h"

#include "values/leadingnumber.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"

#include <QRegularExpression>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

struct Patterns
{
    QRegularExpression degMinSec[2];
    QRegularExpression degMin[2];
    QRegularExpression numeric[2];
};

QRegularExpression compiled(const QString &pattern)
{
    QRegularExpression expression(pattern);
    if (!expression.isValid()) {
        qCCritical(lcTagsmith).noquote() << expression.errorString();
        std::exit(1);
    }
    return expression;
}

// The "." that matches any character, the "|" inside brackets and the 3-digit limit on latitude
// degrees alone are long-standing behaviour of these patterns and are kept.
const Patterns &patterns()
{
    static const Patterns shared{
        {compiled(QStringLiteral(
             "^(E|W){0,1}(\\d+)°(\\d{1,2})'(\\d{0,2}.\\d+|\\d{1,2})\"([E|W]{0,1})$")),
         compiled(QStringLiteral(
             "^(N|S){0,1}(\\d{1,3})°(\\d{1,2})'(\\d{0,2}.\\d+|\\d{1,2})\"([N|S]{0,1})$"))},
        {compiled(QStringLiteral("^(E|W)?+(\\d+)°(\\d+.\\d+|.\\d+|\\d+)'(E|W)?+$")),
         compiled(QStringLiteral("^(N|S)?+(\\d+)°(\\d+.\\d+|.\\d+|\\d+)'(N|S)?+$"))},
        {compiled(QStringLiteral("^(E|W|\\+|-){0,1}(\\d+.\\d+|\\d+|.\\d+)([E|W]{0,1})$")),
         compiled(QStringLiteral("^(N|S|\\+|-){0,1}(\\d+.\\d+|\\d+|.\\d+)([N|S]{0,1})$"))}};
    return shared;
}

// The leading decimal number of a text, 0 when there is none; a group matched by "." may hold
// any character where the point should be.
double leadingDouble(const QString &text)
{
    qsizetype end = 0;
    auto digits = [&text, &end] {
        const qsizetype start = end;
        while (end < text.size() && text.at(end) >= u'0' && text.at(end) <= u'9')
            ++end;
        return end > start;
    };
    bool any = digits();
    if (end < text.size() && text.at(end) == u'.') {
        ++end;
        any = digits() || any;
        if (!any)
            return 0;
    }
    return any ? text.left(end).toDouble() : 0;
}

// The unescaped "." would let a blank stand for the point (12° 30'); typed coordinates never hold
// inner blanks, so such a text is refused before any pattern sees it.
QRegularExpressionMatch matchWhole(const QRegularExpression &pattern, const QString &prepared)
{
    for (QChar c : prepared) {
        if (c.isSpace())
            return {};
    }
    return pattern.match(prepared);
}

qint64 leadingInteger(const QString &text)
{
    qsizetype end = 0;
    while (end < text.size() && text.at(end) >= u'0' && text.at(end) <= u'9')
        ++end;
    bool ok = false;
    const qint64 value = text.left(end).toLongLong(&ok);
    // Too many digits must still fail the range check, not wrap to a small value.
    return ok || end == 0 ? value : std::numeric_limits<qint64>::max();
}

} // namespace

GPSLocation::GPSLocation(int type, double position, int latlong)
    : m_type(type)
    , m_latlong(latlong)
    , m_position(position)
{
}

std::optional<GPSLocation> GPSLocation::initLatitudeWithString(const QString &text)
{
    GPSLocation location(Latitude, 0, NoHemisphere);
    if (!location.parseGPS(text, Latitude))
        return std::nullopt;
    return location;
}

std::optional<GPSLocation> GPSLocation::initLongitudeWithString(const QString &text)
{
    GPSLocation location(Longitude, 0, NoHemisphere);
    if (!location.parseGPS(text, Longitude))
        return std::nullopt;
    return location;
}

std::optional<GPSLocation> GPSLocation::initWithString(const QString &text, int type)
{
    return type == Longitude ? initLongitudeWithString(text) : initLatitudeWithString(text);
}

GPSLocation GPSLocation::initLatitudeWithDouble(double value, int northSouth)
{
    return GPSLocation(Latitude, value, northSouth);
}

GPSLocation GPSLocation::initLongitudeWithDouble(double value, int eastWest)
{
    return GPSLocation(Longitude, value, eastWest);
}

bool GPSLocation::isInRange() const
{
    return !std::isnan(m_position);
}

double GPSLocation::signedValue() const
{
    return m_latlong == SouthOrWest ? -m_position : m_position;
}

QString GPSLocation::degreesText(double degrees)
{
    QString text = QString::number(degrees, 'f', 5);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text == u"-0" ? QStringLiteral("0") : text;
}

std::optional<double> GPSLocation::signedDegreesFromTags(const QString &degrees,
                                                         const QString &reference, int type)
{
    // Only the exact upper-case letters count, as ExifTool writes them.
    const bool latitude = type == Latitude;
    const QString positive = latitude ? QStringLiteral("N") : QStringLiteral("E");
    const QString negative = latitude ? QStringLiteral("S") : QStringLiteral("W");
    if (reference != positive && reference != negative)
        return std::nullopt;
    const double value = leadingNumber(degrees);
    return reference == negative ? -value : value;
}

QString GPSLocation::hemisphereLetter() const
{
    if (m_latlong != NorthOrEast && m_latlong != SouthOrWest)
        return {};
    if (m_type == Latitude)
        return m_latlong == NorthOrEast ? QStringLiteral("N") : QStringLiteral("S");
    return m_latlong == NorthOrEast ? QStringLiteral("E") : QStringLiteral("W");
}

bool GPSLocation::parseGPS(const QString &text, int longLat)
{
    Q_UNUSED(longLat) // the parsers follow the coordinate's own type
    const QString prepared = prepareInputString(text);
    return parseDegMinSecGPSString(prepared) || parseDegMinGPSString(prepared) ||
           parseNumericGPSString(prepared);
}

bool GPSLocation::parseDegMinSecGPSString(const QString &prepared)
{
    const auto match = matchWhole(patterns().degMinSec[m_type == Latitude], prepared);
    if (!match.hasMatch())
        return false;
    m_position =
        createGpsFloatNum1(leadingDouble(match.captured(2)), leadingDouble(match.captured(3)),
                           leadingDouble(match.captured(4)));
    m_latlong = hemisphereFrom(match.captured(1), match.captured(5));
    return true;
}

bool GPSLocation::parseDegMinGPSString(const QString &prepared)
{
    const auto match = matchWhole(patterns().degMin[m_type == Latitude], prepared);
    if (!match.hasMatch())
        return false;
    m_position = createGpsFloatNum1(double(leadingInteger(match.captured(2))),
                                    leadingDouble(match.captured(3)));
    m_latlong = hemisphereFrom(match.captured(1), match.captured(4));
    return true;
}

bool GPSLocation::parseNumericGPSString(const QString &prepared)
{
    const auto match = matchWhole(patterns().numeric[m_type == Latitude], prepared);
    if (!match.hasMatch())
        return false;
    m_position = leadingDouble(match.captured(2));
    m_latlong = hemisphereFrom(match.captured(1), match.captured(3));
    return true;
}

int GPSLocation::hemisphereFrom(const QString &leading, const QString &trailing) const
{
    const QChar positive = m_type == Latitude ? u'N' : u'E';
    const QChar negative = m_type == Latitude ? u'S' : u'W';
    // A letter wins, the trailing one before the leading one; without a letter a signed decimal
    // keeps its sign, as coordinates copied from web maps are written.
    for (const QString &group : {trailing, leading}) {
        if (group == positive)
            return NorthOrEast;
        if (group == negative)
            return SouthOrWest;
    }
    if (leading == u'+')
        return NorthOrEast;
    if (leading == u'-')
        return SouthOrWest;
    return NoHemisphere;
}

QString GPSLocation::prepareInputString(const QString &text)
{
    return text.trimmed().replace(u',', u'.').toUpper();
}

double GPSLocation::createGpsFloatNum1(double degrees, double minutes)
{
    if (degrees > 180 || degrees < 0 || minutes > 60 || minutes < 0)
        return std::numeric_limits<double>::quiet_NaN();
    return degrees + minutes / 60;
}

double GPSLocation::createGpsFloatNum1(double degrees, double minutes, double seconds)
{
    if (degrees > 180 || degrees < 0 || minutes > 60 || minutes < 0 || seconds > 60 || seconds < 0)
        return std::numeric_limits<double>::quiet_NaN();
    return degrees + (seconds / 60 + minutes) / 60;
}

QString GPSLocation::stringDMWithSide(bool side) const
{
    const int degrees = int(m_position);
    const double minutes = (m_position - degrees) * 60;
    const QString letter = hemisphereLetter();
    if (side && !letter.isEmpty()) {
        // Latitudes get five decimals of minutes and longitudes three; kept as users know it.
        const char *format = m_type == Latitude ? "%i°%.5f'" : "%i°%.3f'";
        return QString::asprintf(format, degrees, minutes) + letter;
    }
    return QString::asprintf("%i°%.3f'", degrees, minutes);
}

QString GPSLocation::stringDMSWithSide(bool side) const
{
    const int degrees = int(m_position);
    const double minutes = (m_position - degrees) * 60;
    const int wholeMinutes = int(minutes);
    const double seconds = (minutes - wholeMinutes) * 60;
    const QString text = QString::asprintf("%i°%i'%.3f\"", degrees, wholeMinutes, seconds);
    return side ? text + hemisphereLetter() : text;
}

QString GPSLocation::stringForGpsFormat(int gpsFormat) const
{
    switch (gpsFormat) {
    case 2:
        return QString::asprintf("%f", m_position);
    case 1:
        return stringDMWithSide(false);
    default:
        return stringDMSWithSide(false);
    }
}

namespace {

void checkCoordinate(const std::optional<GPSLocation> &location, double expected, int hemisphere,
                     const QString &hemisphereReason)
{
    const QString name = QStringLiteral("Error");
    if (!location)
        throw TagsmithException(name, QStringLiteral("Cannot read value"));
    if (!(std::fabs(location->doubleValue() - expected) <= 0.001))
        throw TagsmithException(name, QStringLiteral("Invalid double value"));
    if (location->latlong() != hemisphere)
        throw TagsmithException(name, hemisphereReason);
}

} // namespace

void checkLatitude(const QString &text, double expected, int northSouth)
{
    checkCoordinate(GPSLocation::initLatitudeWithString(text), expected, northSouth,
                    QStringLiteral("Invalid north south"));
}

void checkLongitude(const QString &text, double expected, int eastWest)
{
    checkCoordinate(GPSLocation::initLongitudeWithString(text), expected, eastWest,
                    QStringLiteral("Invalid east west"));
}

QList<QPair<QString, QString>> gpsPositionTags(double latitude, double longitude)
{
    const auto degrees = [](double value) { return QString::number(std::abs(value), 'f', 6); };
    return {
        {QStringLiteral("GPS:GPSLongitude"), degrees(longitude)},
        {QStringLiteral("GPS:GPSLongitudeRef"),
         longitude >= 0 ? QStringLiteral("E") : QStringLiteral("W")},
        {QStringLiteral("GPS:GPSLatitude"), degrees(latitude)},
        {QStringLiteral("GPS:GPSLatitudeRef"),
         latitude >= 0 ? QStringLiteral("N") : QStringLiteral("S")},
    };
}
