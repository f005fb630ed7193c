#include "engine/editsession.h"

EditSession::EditSession(QObject *parent)
    : QObject(parent)
{
}

void EditSession::post(const ExifFilesUpdate &update)
{
    Q_EMIT exifFilesUpdated(update);
}

void EditSession::post(const QString &xmlName, const QList<ExifFileInfoPtr> &changedFiles,
                       const std::optional<QString> &newValue,
                       const QList<ExifFileInfoPtr> &exifFiles, const void *source)
{
    post(ExifFilesUpdate{xmlName, changedFiles, newValue, exifFiles, source});
}
