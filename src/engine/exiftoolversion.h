#pragma once

#include "engine/exiftoolpath.h"

#include <QString>

// The ExifTool a program runs, as the preferences window and the start-up log show it.
struct ExifToolVersion
{
    QString program;
    QString version;      // as ExifTool prints it ("13.59"), empty when it could not be asked
    QString errorMessage; // user-presentable, set when the version could not be asked

    bool isKnown() const { return !version.isEmpty(); }
    // Releases before 12.75 can corrupt some Sony ARW files when rewriting them.
    bool isOlderThanSafeRelease() const;
    // A visible warning about an unsafe release, empty when there is none to give.
    QString warning() const;
};

// Asks "-ver" of the ExifTool at `program`.
ExifToolVersion exifToolVersion(const QString &program = exifToolPath());

// Compares ExifTool version numbers ("12.57" < "12.75" < "13.59"); ExifTool always prints two
// decimals. False when either is not a version number.
bool isExifToolVersionOlder(const QString &version, const QString &than);
