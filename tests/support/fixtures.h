#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Test images are made here, never taken from elsewhere: Qt draws a small picture, then the
// bundled ExifTool writes the metadata the test asks for.
namespace Fixtures {

// The bundled ExifTool that every test uses.
QString exifTool();

struct ToolRun
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
    bool ok() const { return exitCode == 0; }
};

// Runs the bundled ExifTool with an argument list (no shell).
ToolRun runExifTool(const QStringList &arguments);

// Writes a 64x48 picture in the format of the path's suffix (jpg, tif, png...) and then, when
// arguments are given, runs "exiftool -overwrite_original ARGS -- PATH" on it. Returns an empty
// text on success, otherwise what went wrong.
QString makeImage(const QString &path, const QStringList &exifToolArguments = {});

// A file's bytes, empty when it cannot be read; and a whole file written, true on success.
QByteArray readBytes(const QString &path);
bool writeBytes(const QString &path, const QByteArray &bytes);

} // namespace Fixtures
