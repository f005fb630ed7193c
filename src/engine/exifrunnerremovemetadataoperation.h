#pragma once

#include "engine/exifrunnerfilemodifiyoperation.h"

#include <QSet>
#include <QString>
#include <QStringList>

// Strips all metadata from a JPEG, TIFF or Photoshop file; other kinds of file are left alone.
class ExifRunnerRemoveMetadataOperation : public ExifRunnerFileModifiyOperation
{
public:
    ExifRunnerRemoveMetadataOperation(ExifFileInfoPtr efi, quint32 options);

    void run() override;

    // Only these are ever stripped; for any other type (PNG, raw...) ExifTool is not run.
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
