#pragma once

#include <QString>

#include <optional>

// Values of fields shown as a fraction, such as an exposure time: ExifTool reads and writes them
// as decimal numbers, the user reads and types "1/250".
class FractionValue
{
public:
    // A value below one as "1/" and its reciprocal, anything else as it stands. Zero and
    // negative values take the same path ("1/inf", "1/-2") rather than a special case.
    static QString displayText(const QString &value);
    // What a typed text stores: "a/b" the quotient with six decimals, a text without "/" as
    // it is; nullopt for more than one "/" and for a zero denominator. A piece that is no
    // number counts as zero.
    static std::optional<QString> storedText(const QString &typed);
};
