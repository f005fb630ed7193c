#include "values/datewallclock.h"

#include "values/dateoffset.h"
#include "values/datevalue.h"

namespace {

constexpr qint64 SecondsPerDay = 24 * 60 * 60;

QDateTime shiftMonths(const QDateTime &date, qint64 months)
{
    return {date.date().addYears(int(months / 12)).addMonths(int(months % 12)), date.time(),
            Qt::UTC};
}

} // namespace

QDateTime wallClockDate(const DateComponents &c)
{
    const QDate january(int(c.year), 1, 1);
    if (!january.isValid())
        return {};
    const QDate day = january.addMonths(int(c.month - 1)).addDays(c.day - 1);
    if (!day.isValid())
        return {};
    return QDateTime(day, QTime(0, 0), Qt::UTC).addSecs((c.hour * 60 + c.minute) * 60 + c.second);
}

QDateTime wallClockDate(const QString &value, DateEditorType type)
{
    if (value.isEmpty())
        return {};
    const std::optional<DateComponents> components = parseDateValueOfType(value, type);
    return components ? wallClockDate(*components) : QDateTime();
}

QString formatWallClockValue(const QDateTime &date, DateEditorType type)
{
    const QDate d = date.date();
    const QTime t = date.time();
    if (type == DateEditorTypeDate)
        return QString::asprintf("%04d:%02d:%02d", d.year(), d.month(), d.day());
    return QString::asprintf("%04d:%02d:%02d %02d:%02d:%02d", d.year(), d.month(), d.day(),
                             t.hour(), t.minute(), t.second());
}

QDateTime shiftWallClock(const QDateTime &date, const DateComponents &units)
{
    if (!date.isValid())
        return {};
    const QDate day = date.date().addYears(int(units.year)).addMonths(int(units.month));
    return QDateTime(day.addDays(units.day), date.time(), Qt::UTC)
        .addSecs((units.hour * 60 + units.minute) * 60 + units.second);
}

QDateTime applyOffsetText(const QDateTime &base, const QString &offsetText, DateEditorType type)
{
    const DateComponents typed = type == DateEditorTypeDate ? parseDateOffsetDateOnly(offsetText)
                                                            : parseDateOffset(offsetText);
    return shiftWallClock(base, withUnitSign(typed, offsetText.contains(u'+') ? 1 : -1));
}

DateComponents wallClockOffset(const QDateTime &from, const QDateTime &to)
{
    DateComponents offset;
    if (!from.isValid() || !to.isValid() || from == to)
        return offset;
    const bool later = to > from;
    const QDateTime start = later ? from : to;
    const QDateTime end = later ? to : from;
    qint64 months = (qint64(end.date().year()) * 12 + end.date().month()) -
                    (qint64(start.date().year()) * 12 + start.date().month());
    while (months > 0 && shiftMonths(start, months) > end)
        --months;
    qint64 seconds = shiftMonths(start, months).secsTo(end);
    offset.era = later ? 1 : 0;
    offset.year = months / 12;
    offset.month = months % 12;
    offset.day = seconds / SecondsPerDay;
    seconds %= SecondsPerDay;
    offset.hour = seconds / 3600;
    offset.minute = seconds % 3600 / 60;
    offset.second = seconds % 60;
    return offset;
}

QString describeWallClockOffset(const QDateTime &from, const QDateTime &to)
{
    const DateComponents offset = wallClockOffset(from, to);
    if (!offset.era)
        return {};
    return formatDateOffsetDisplay(offset, *offset.era == 1);
}
