#include "editors/exiffilesupdate.h"

ExifFilesUpdateCenter &ExifFilesUpdateCenter::instance()
{
    static ExifFilesUpdateCenter center;
    return center;
}

void ExifFilesUpdateCenter::post(const ExifFilesUpdate &update)
{
    Q_EMIT exifFilesUpdated(update);
}

void ExifFilesUpdateCenter::post(const QString &xmlName, const QList<ExifFileInfoPtr> &changedFiles,
                                 const std::optional<QString> &newValue,
                                 const QList<ExifFileInfoPtr> &exifFiles, const void *source)
{
    post(ExifFilesUpdate{xmlName, changedFiles, newValue, exifFiles, source});
}
