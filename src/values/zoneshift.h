#pragma once

#include "values/datecomponents.h"

#include <QString>

#include <optional>

// Time zones beside the dates: EXIF keeps a date's zone in a tag of its own ("+02:00"), so a
// shift of the clock can either leave the zone (the photo moves to another instant) or move it
// by the same amount (the same instant, told in another zone).

// The zone an XMP date value carries after its time ("+02:00", "-0530", "Z"), empty when the
// value names none.
QString dateZoneSuffix(const QString &value);
// The value without that zone, as the zone-less parsers and formatters take it.
QString withoutDateZone(const QString &value);

// The zone tag that belongs to a date tag, empty when it has none.
QString zoneTagForDateKey(const QString &dateKey);

// A zone text ("+02:00", "-05:30", "Z" for UTC) moved by the hours and minutes of a typed shift
// (era 0 is minus); days and larger units do not move a zone. Nothing for an unreadable zone or a
// result beyond the zones that exist (-12:00 to +14:00).
std::optional<QString> shiftZoneText(const QString &zone, const DateComponents &offset);
