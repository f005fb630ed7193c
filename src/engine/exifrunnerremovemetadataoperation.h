#pragma once

#include "engine/filerewriteoperation.h"

#include <QSet>
#include <QString>
#include <QStringList>

// Strips all metadata from a file of a type that stays whole without it (JPEG, TIFF, Photoshop,
// PNG, GIF, WebP, HEIF, AVIF, JPEG XL); a raw file, which needs its tags to be read at all, is
// left alone and reported. The file as it was is kept beside it until its next save, so Revert
// Last Save can put it back byte for byte.
class ExifRunnerRemoveMetadataOperation : public FileRewriteOperation
{
public:
    ExifRunnerRemoveMetadataOperation(ExifFileInfoPtr efi, ExifOperationOption options);

    void run() override;

    // Only these are ever stripped; for any other type (raw...) ExifTool is not run.
    static bool canStrip(const QString &mimeType);
    // ExifTool's arguments for stripping a file of this type, up to but without "-o" and the
    // paths; empty when the type is not stripped.
    static QStringList removeArguments(const QString &mimeType);

    static bool hasIFD0MinorWarning(const ErrorMessages &errors);
    static void removeIFD0MinorWarning(ErrorMessages &errors);
    // The keys a "remove everything" edit may remove: not the ones that describe the image
    // data itself.
    static QSet<QString> collectRemovableItems(const QStringList &keys);

protected:
    QStringList addRemoveArgs(QStringList arguments) const;
};
