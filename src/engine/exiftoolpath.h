#pragma once

#include <QString>

// Files that ship with the program are found relative to the executable: in the build tree
// beside it, under Contents/Resources/; in an installed tree in the FHS places, ExifTool under
// libexec/tagsmith/ and the map page under share/tagsmith/. The first place that holds the file
// wins; when none does, the build tree's path is given, so a message can name it.
namespace BundledPaths {

// The bundled ExifTool script.
QString exifTool(const QString &applicationDir);
// The map's page; Leaflet sits beside its folder, in ../leaflet.
QString mapPage(const QString &applicationDir);

} // namespace BundledPaths

// Where ExifTool is run from: $TAGSMITH_EXIFTOOL when set and not empty, otherwise the bundled
// copy beside the running executable.
QString exifToolPath();
