#include "engine/fileadmission.h"

#include <QFileInfo>

// Placeholder until admission is built; the "formats" work replaces this file.
bool FileAdmission::supportsFile(const QString &path)
{
    return supportedExtensions().contains(QFileInfo(path).suffix().toLower());
}

const QStringList &FileAdmission::supportedExtensions()
{
    static const QStringList extensions{QStringLiteral("jpg"), QStringLiteral("jpeg"),
                                        QStringLiteral("tif"), QStringLiteral("tiff")};
    return extensions;
}

FileAdmissionResult
FileAdmission::preprocessFilesToBeAdded(const QStringList &paths,
                                        const std::function<bool(const QString &)> &hasFileInList)
{
    FileAdmissionResult result;
    for (const QString &path : paths) {
        if (supportsFile(path) && !hasFileInList(path))
            result.accepted.append(path);
    }
    return result;
}

QString FileAdmission::reasonText(FileRejection::Reason)
{
    return {};
}
