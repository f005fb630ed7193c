#pragma once

#include <QString>
#include <QStringList>

// The kinds of file the program opens, told by the lower-cased extension of their name. The
// one place that says which files are camera raw files: adding files, sidecars, the check of a
// written file and the preferences all ask here.
class ImageFileTypes
{
public:
    // Everything that may be added to the list, camera raw formats included.
    static const QStringList &supportedExtensions();
    static const QStringList &cameraRawExtensions();

    static bool isSupportedFile(const QString &path);
    static bool isCameraRawFile(const QString &path);

    // Whether an IPTC-IIM record is at home in the file: JPEG and TIFF. Elsewhere ExifTool either
    // cannot write one (WebP, HEIC) or makes one no other program reads (PNG).
    static bool holdsIptcRecord(const QString &path);

    // Lower-cased, without the dot; empty when the name has none.
    static QString extensionOf(const QString &path);
};
