#pragma once

#include "engine/exiftoolpath.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

class ExifToolProcess;

// Makes one small preview of an image file, never larger than the box asked for. Formats Qt
// decodes are read at the reduced size directly; camera raw and Photoshop files, HEIF, AVIF and
// JPEG XL files, and whatever Qt cannot read, give the preview ExifTool finds embedded in them.
// Keeps an ExifTool process of its own, so one maker belongs to one thread: the one that made its
// first preview, which must outlive it.
class ThumbnailMaker
{
public:
    explicit ThumbnailMaker(QString exifToolProgram = exifToolPath());
    ~ThumbnailMaker();

    ThumbnailMaker(const ThumbnailMaker &) = delete;
    ThumbnailMaker &operator=(const ThumbnailMaker &) = delete;

    // A null image when the file has no preview that can be shown.
    QImage make(const QString &path, const QSize &box);

    // True for the files whose picture Qt cannot decode or would decode at full size only.
    static bool prefersEmbeddedPreview(const QString &path);
    // True for the files whose embedded preview comes first, with Qt's decoder as the fallback.
    static bool decodesAtFullSizeOnly(const QString &path);
    // The picture as it should be seen, for an EXIF orientation value 1 to 8.
    static QImage oriented(const QImage &image, int orientation);

private:
    QImage embeddedPreview(const QString &path, const QSize &box);

    QString m_exifToolProgram;
    std::unique_ptr<ExifToolProcess> m_exifTool;
};
