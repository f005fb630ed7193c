#include "values/zoneshift.h"

#include <QHash>
#include <QRegularExpression>

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
    if (!match.hasMatch())
        return std::nullopt;
    int minutes = match.captured(2).toInt() * 60 + match.captured(3).toInt();
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
