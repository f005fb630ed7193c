#pragma once

#include <QHashFunctions>
#include <QtGlobal>

#include <optional>

// Whether a date field holds a date alone or a date with its time of day.
enum DateEditorType : quint32 {
    DateEditorTypeDate = 0,
    DateEditorTypeDateTime = 1,
};

// A date split into its Gregorian fields, or a date offset unit by unit. For an offset typed by
// the user the units are magnitudes and era carries the sign (1 plus, 0 minus); for the offset
// between two dates the units are signed and era is -1 or 1; era stays unset otherwise.
struct DateComponents
{
    std::optional<qint64> era;
    qint64 year = 0;
    qint64 month = 0;
    qint64 day = 0;
    qint64 hour = 0;
    qint64 minute = 0;
    qint64 second = 0;

    // The six units, without era: how the change model compares two values.
    bool hasSameUnits(const DateComponents &other) const
    {
        return year == other.year && month == other.month && day == other.day &&
               hour == other.hour && minute == other.minute && second == other.second;
    }
    bool isZero() const { return hasSameUnits(DateComponents{}); }

    friend bool operator==(const DateComponents &, const DateComponents &) = default;
};

inline size_t qHash(const DateComponents &c, size_t seed = 0)
{
    return qHashMulti(seed, c.era.value_or(-2), c.era.has_value(), c.year, c.month, c.day, c.hour,
                      c.minute, c.second);
}
