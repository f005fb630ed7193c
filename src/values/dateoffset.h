#pragma once

#include "values/datecomponents.h"

#include <QDateTime>
#include <QString>

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

// Calendar difference from current to original, signed units; era -1 when current is the later
// date, 1 when original is, unset when they are equal.
DateComponents offsetBetweenDates(const QDateTime &current, const QDateTime &original);
// "+1y 2d " style description of the difference from one date to another, not trimmed; no sign
// when they are equal.
QString describeOffsetBetweenDates(const QDateTime &from, const QDateTime &to);

// The date that a value gives over an original date-time text: a shift is applied with the
// magnitudes of its units, all negated when the text holds no "+"; any other value is read as a
// date-time of its own. Invalid when the needed date does not parse.
QDateTime applyDateOffset(const QString &offsetText, const QString &originalText);
