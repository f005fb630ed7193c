#include "values/zoneshift.h"

#include <QHash>
#include <QRegularExpression>

namespace {

// Only after a time of day, so that a date alone ("2024-05-01") never loses its day.
const QRegularExpression &zoneSuffixPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\d:\d{2}(?::\d{2}(?:\.\d+)?)?\s*(Z|[+-]\d{2}(?::?\d{2})?)\s*$)"));
    return pattern;
}

} // namespace

QString dateZoneSuffix(const QString &value)
{
    return zoneSuffixPattern().match(value).captured(1);
}

QString withoutDateZone(const QString &value)
{
    const QRegularExpressionMatch match = zoneSuffixPattern().match(value);
    if (!match.hasMatch())
        return value;
    return value.left(match.capturedStart(1)).trimmed();
}

QString zoneTagForDateKey(const QString &dateKey)
{
    static const QHash<QString, QString> zones{
        {QStringLiteral("ExifIFD:DateTimeOriginal"), QStringLiteral("ExifIFD:OffsetTimeOriginal")},
        {QStringLiteral("ExifIFD:CreateDate"), QStringLiteral("ExifIFD:OffsetTimeDigitized")},
        {QStringLiteral("IFD0:ModifyDate"), QStringLiteral("ExifIFD:OffsetTime")},
    };
    return zones.value(dateKey);
}

std::optional<QString> shiftZoneText(const QString &zone, const DateComponents &offset)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^\s*([+-])(\d{1,2}):?(\d{2})\s*$)"));
    const QRegularExpressionMatch match = pattern.match(zone);
    const bool utc = zone.trimmed() == u"Z";
    if (!match.hasMatch() && !utc)
        return std::nullopt;
    int minutes = utc ? 0 : match.captured(2).toInt() * 60 + match.captured(3).toInt();
    if (match.captured(1) == u"-")
        minutes = -minutes;
    const qint64 delta = offset.hour * 60 + offset.minute;
    const qint64 moved = minutes + (offset.era.value_or(1) >= 1 ? delta : -delta);
    if (moved < -12 * 60 || moved > 14 * 60)
        return std::nullopt;
    const qint64 magnitude = moved < 0 ? -moved : moved;
    return QStringLiteral("%1%2:%3")
        .arg(QChar(moved < 0 ? u'-' : u'+'))
        .arg(magnitude / 60, 2, 10, QLatin1Char('0'))
        .arg(magnitude % 60, 2, 10, QLatin1Char('0'));
}
