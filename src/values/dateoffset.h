#pragma once

#include "values/datecomponents.h"

#include <QDateTime>
#include <QString>

#include <array>

// Date offsets: a pending shift that a date field holds instead of a date while the user edits a
// batch of files, resolved per file against that file's own original value. Stored in compact
// form: a sign, then each non-zero unit as "1y" "2M" "3d" "4h" "5m" "6s" (M months, m minutes).

// True when the text holds a "+" or a "-" anywhere: such a value is a shift, not a date; except
// a date whose time ends in a zone ("2025:07:14 10:00:00+02:00", as XMP writes it).
bool isDateOffsetText(const QString &text);

// Never fails. Units are read as typed (a "-" inside the text negates only its number); era is 1
// for a leading "+" or no sign, 0 for a leading "-", and unset for a null or blank text.
DateComponents parseDateOffset(const QString &text);
// The same with hour, minute and second forced to 0.
DateComponents parseDateOffsetDateOnly(const QString &text);

// "+1y2d": the sign, then each non-zero unit's magnitude.
QString formatDateOffsetCompact(const DateComponents &offset, bool plus);
// "+1y 2d": the same with blanks between the units, trimmed; callers lower-case it for display.
QString formatDateOffsetDisplay(const DateComponents &offset, bool plus);
// ExifTool's shift value: "+Y:M:D hh:mm:ss" for a date-time field, "+Y:M:D" for a date field;
// "-" when the text holds no "+".
QString formatDateOffsetForWriting(const QString &offsetText, DateEditorType type);

// The offset with every unit's magnitude given sign (1 or -1); era is kept as it is.
DateComponents withUnitSign(DateComponents offset, int sign);

// The wall-clock reading (see datewallclock.h) that a value gives over an original date-time
// text, as ExifTool writes it: a shift is applied with the magnitudes of its units, all negated
// when the text holds no "+"; any other value is read as a date-time of its own. Invalid when the
// needed date does not parse.
QDateTime applyDateOffset(const QString &offsetText, const QString &originalText);

// An offset as the user edits it, one text cell each for the sign ("+" or "-") and the year,
// month, day, hour, minute and second.
using DateOffsetCells = std::array<QString, 7>;
// Sign "+" and the units' magnitudes.
DateOffsetCells dateOffsetCells(const DateComponents &offset);
// A unit cell moved one step by an arrow, left as it is where that would leave 0-99.
QString steppedOffsetCell(const QString &cell, int step);
// A digit typed into a unit cell: it starts a new number, or, typed soon after the previous one,
// shifts in like a two-digit counter ("1" "2" "3" ends as "23").
QString typedOffsetCell(const QString &cell, QChar digit, bool continuing);
// The offset the cells hold, era carrying the sign. A date field's cells leave the time units of
// kept as they are.
DateComponents dateOffsetFromCells(const DateOffsetCells &cells, DateEditorType type,
                                   DateComponents kept);
