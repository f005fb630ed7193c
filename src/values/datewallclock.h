#pragma once

#include "values/datecomponents.h"

#include <QDateTime>
#include <QString>

// Arithmetic on metadata's wall-clock values. Those values name no zone, and ExifTool shifts
// them as plain wall-clock readings, so everything that shows or checks a shift does the same: a
// shift across a daylight-saving change neither loses nor gains an hour, and 02:30 on the night
// clocks spring forward stays a valid value. Dates here are QDateTimes in UTC used as zone-less
// readings.

// Out-of-range fields carry over (month 13 is January of the next year). Invalid when the year
// is out of the calendar's range.
QDateTime wallClockDate(const DateComponents &components);
// The value's date, parsed by the field's type; invalid when it does not parse.
QDateTime wallClockDate(const QString &value, DateEditorType type);
QString formatWallClockValue(const QDateTime &date, DateEditorType type);

// Years, then months (each clamping the day to the month's length), then days, then time.
QDateTime shiftWallClock(const QDateTime &date, const DateComponents &units);
// The shift a stored offset text means over a base date: its units' magnitudes, all negated
// when the text holds no "+"; the time units are dropped for a date field.
QDateTime applyOffsetText(const QDateTime &base, const QString &offsetText, DateEditorType type);

// The shift that takes `from` to `to`, as magnitudes with era 1 (later), 0 (earlier) or unset
// (equal), in the form a user would type it.
DateComponents wallClockOffset(const QDateTime &from, const QDateTime &to);
// "+1d 2h" for a label: the sign, then the shift's non-zero units; empty for no shift.
QString describeWallClockOffset(const QDateTime &from, const QDateTime &to);
