#pragma once

#include "values/datecomponents.h"

#include <QDateTime>
#include <QString>

#include <optional>

// Absolute date values as metadata holds them ("2013:05:01" or "2013:05:01 14:22:10"), always in
// the Gregorian calendar and the local time zone; no zone text is ever written, and a zone an XMP
// value carries is left to values/zoneshift.h.

// Exactly six numbers (year, month, day, hour, minute, second) separated by blanks or colons,
// after an XMP zone suffix ("+02:00") is set aside: the fields are the wall-clock reading. No
// range checks: out-of-range fields roll over when turned into a date.
std::optional<DateComponents> parseDateTimeValue(const QString &text);
// Exactly three numbers (year, month, day); the time fields are 0.
std::optional<DateComponents> parseDateValue(const QString &text);
std::optional<DateComponents> parseDateValueOfType(const QString &text, DateEditorType type);

QString formatDateValue(const QDateTime &date);
QString formatDateTimeValue(const QDateTime &date);
// "%04li:%02li:%02li %02li:%02li:%02li" of the fields as they stand, without a calendar.
QString formatDateTimeComponents(const DateComponents &components);

// The local point in time named by the fields; out-of-range fields carry over (month 13 is
// January of the next year, hour 25 the next day). A wall time skipped by a daylight-saving
// change moves forward by the size of the gap. Invalid only outside the calendar's range.
QDateTime dateFromComponents(const DateComponents &components);
// The fields of the date as its own clock reads them: local time for a local date, the reading
// itself for a wall-clock one.
DateComponents componentsFromDate(const QDateTime &date);

// The write form of an absolute value of a date-only field: "%04d:%02d:%02d" of the first three
// colon-separated numbers before the first blank.
QString normalizeDateForWriting(const QString &text);

// The comparison rule of date fields for the change model. A null text is an absent value.
bool dateValuesEqual(const QString &newValue, const QString &oldValue, DateEditorType type);
