#include "values/datevalue.h"

#include "values/dateoffset.h"
#include "values/leadinginteger.h"
#include "values/zoneshift.h"

#include <QStringList>
#include <QTimeZone>

#include <limits>

namespace {

constexpr qint64 msecsPerDay = 86400000;

QList<QStringView> dateValuePieces(const QString &text)
{
    QList<QStringView> pieces;
    qsizetype start = 0;
    auto isSeparator = [](QChar c) {
        return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u':';
    };
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || isSeparator(text.at(i))) {
            if (i > start)
                pieces.append(QStringView(text).mid(start, i - start));
            start = i + 1;
        }
    }
    return pieces;
}

qint64 floorDiv(qint64 a, qint64 b)
{
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)) ? 1 : 0);
}

// QDate has no year 0; we count years astronomically so that 0000 survives a round trip.
QDate makeDate(qint64 year, int month, int day)
{
    if (year < std::numeric_limits<int>::min() + 1 || year > std::numeric_limits<int>::max())
        return {};
    const int qtYear = year <= 0 ? int(year - 1) : int(year);
    return QDate(qtYear, month, day);
}

qint64 astronomicalYear(const QDate &date)
{
    return date.year() < 0 ? date.year() + 1 : date.year();
}

QDate addMonthsClamped(const QDate &date, qint64 months)
{
    const qint64 total = astronomicalYear(date) * 12 + (date.month() - 1) + months;
    const qint64 year = floorDiv(total, 12);
    const int month = int(total - year * 12) + 1;
    const QDate first = makeDate(year, month, 1);
    if (!first.isValid())
        return {};
    return first.addDays(qMin(date.day(), first.daysInMonth()) - 1);
}

// Local time of a wall-clock reading, resolving readings that a daylight-saving change skips.
QDateTime localDateTime(const QDate &date, qint64 msecsOfDay)
{
    const QDate day = date.addDays(floorDiv(msecsOfDay, msecsPerDay));
    const qint64 rest = msecsOfDay - floorDiv(msecsOfDay, msecsPerDay) * msecsPerDay;
    if (!day.isValid())
        return {};
    const QTime time = QTime::fromMSecsSinceStartOfDay(int(rest));
    QDateTime result(day, time, Qt::LocalTime);
    if (result.isValid())
        return result;
    // In the gap: read the wall time with the offset in force before the change.
    const qint64 wall = QDateTime(day, time, Qt::UTC).toMSecsSinceEpoch();
    const int before =
        QDateTime::fromMSecsSinceEpoch(wall - msecsPerDay, Qt::LocalTime).offsetFromUtc();
    return QDateTime::fromMSecsSinceEpoch(wall - qint64(before) * 1000, Qt::LocalTime);
}

} // namespace

namespace {

// The first count of year, month, day, hour, minute and second from pieces, when it has
// exactly that many.
std::optional<DateComponents> componentsOf(const QList<QStringView> &pieces, qsizetype count)
{
    if (pieces.size() != count)
        return std::nullopt;
    DateComponents c;
    qint64 *const units[] = {&c.year, &c.month, &c.day, &c.hour, &c.minute, &c.second};
    for (qsizetype i = 0; i < count; ++i)
        *units[i] = leadingInteger(pieces.at(i));
    return c;
}

} // namespace

std::optional<DateComponents> parseDateTimeValue(const QString &text)
{
    return componentsOf(dateValuePieces(withoutDateZone(text)), 6);
}

std::optional<DateComponents> parseDateValue(const QString &text)
{
    return componentsOf(dateValuePieces(text), 3);
}

std::optional<DateComponents> parseDateValueOfType(const QString &text, DateEditorType type)
{
    return type == DateEditorTypeDate ? parseDateValue(text) : parseDateTimeValue(text);
}

QString formatDateValue(const QDateTime &date)
{
    const DateComponents c = componentsFromDate(date);
    return QString::asprintf("%04lld:%02lld:%02lld", c.year, c.month, c.day);
}

QString formatDateTimeValue(const QDateTime &date)
{
    return formatDateTimeComponents(componentsFromDate(date));
}

QString formatDateTimeComponents(const DateComponents &c)
{
    return QString::asprintf("%04lld:%02lld:%02lld %02lld:%02lld:%02lld", c.year, c.month, c.day,
                             c.hour, c.minute, c.second);
}

QDateTime dateFromComponents(const DateComponents &c)
{
    const QDate january = makeDate(c.year, 1, 1);
    if (!january.isValid())
        return {};
    const QDate date = addMonthsClamped(january, c.month - 1).addDays(c.day - 1);
    if (!date.isValid())
        return {};
    const qint64 msecs = ((c.hour * 60 + c.minute) * 60 + c.second) * 1000;
    return localDateTime(date, msecs);
}

DateComponents componentsFromDate(const QDateTime &date)
{
    DateComponents c;
    c.year = astronomicalYear(date.date());
    c.month = date.date().month();
    c.day = date.date().day();
    c.hour = date.time().hour();
    c.minute = date.time().minute();
    c.second = date.time().second();
    return c;
}

QString normalizeDateForWriting(const QString &text)
{
    const QStringList pieces = text.section(u' ', 0, 0).split(u':');
    auto piece = [&pieces](int i) {
        return i < pieces.size() ? int(leadingInteger(pieces.at(i))) : 0;
    };
    return QString::asprintf("%04d:%02d:%02d", piece(0), piece(1), piece(2));
}

bool dateValuesEqual(const QString &newValue, const QString &oldValue, DateEditorType type)
{
    const auto newDate = newValue.isNull() ? std::nullopt : parseDateValueOfType(newValue, type);
    const auto oldDate = oldValue.isNull() ? std::nullopt : parseDateValueOfType(oldValue, type);
    // The zone is part of the value: adding, removing or changing one is an edit.
    if (newDate && oldDate) {
        // "+0200" and "+02:00" are one zone.
        auto zoneOf = [](const QString &value) {
            const QString zone = dateZoneSuffix(value);
            return shiftZoneText(zone, DateComponents{}).value_or(zone);
        };
        return newDate->hasSameUnits(*oldDate) && zoneOf(newValue) == zoneOf(oldValue);
    }
    if (newDate || oldDate)
        return false;
    // Only an absent value fails the offset parser. The sign is not compared, only the units.
    if (newValue.isNull() || oldValue.isNull())
        return newValue.isNull() && oldValue.isNull();
    const DateComponents newOffset =
        type == DateEditorTypeDate ? parseDateOffsetDateOnly(newValue) : parseDateOffset(newValue);
    const DateComponents oldOffset =
        type == DateEditorTypeDate ? parseDateOffsetDateOnly(oldValue) : parseDateOffset(oldValue);
    return newOffset.hasSameUnits(oldOffset);
}
