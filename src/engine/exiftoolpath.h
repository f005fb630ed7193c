#pragma once

#include <QString>

// Where ExifTool is run from: $TAGSMITH_EXIFTOOL when set and not empty, otherwise the bundled
// copy at <directory of the executable>/Contents/Resources/exiftool/exiftool.
QString exifToolPath();
