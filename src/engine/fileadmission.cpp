#include "engine/fileadmission.h"

#include "values/imagefiletypes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

#include <unistd.h>

namespace {

struct Admission
{
    const std::function<bool(const QString &)> &hasFileInList;
    FileAdmissionResult result;
    QSet<QString> acceptedSet;
    QSet<QString> visitedFolders;

    void reject(const QString &path, FileRejection::Reason reason)
    {
        result.rejected.append({path, reason});
    }

    // What the kernel would allow this process, ACLs included, not what the mode bits suggest.
    static bool isReadable(const QString &path, int mode)
    {
        return ::access(QFile::encodeName(path).constData(), mode) == 0;
    }

    void addFile(const QString &path, const QFileInfo &info)
    {
        // A FIFO or device named like a photo would hang ExifTool on open.
        if (!info.isFile() || !FileAdmission::supportsFile(path))
            reject(path, FileRejection::Reason::Unsupported);
        else if (!isReadable(path, R_OK))
            reject(path, FileRejection::Reason::Unreadable);
        else if (acceptedSet.contains(path) || hasFileInList(path))
            reject(path, FileRejection::Reason::AlreadyInList);
        else {
            acceptedSet.insert(path);
            result.accepted.append(path);
        }
    }

    // parentFolder: the canonical path of the folder being scanned, empty for a path given.
    void addPath(const QString &path, const QString &parentFolder)
    {
        const QFileInfo info(path);
        if (!info.exists()) {
            reject(path, FileRejection::Reason::Missing);
            return;
        }
        if (!info.isDir()) {
            addFile(path, info);
            return;
        }
        if (!isReadable(path, R_OK | X_OK)) {
            reject(path, FileRejection::Reason::Unreadable);
            return;
        }
        const QString canonical = info.canonicalFilePath();
        if (!parentFolder.isEmpty()) {
            // A link back up the tree would otherwise be scanned forever.
            const bool isAncestor = parentFolder == canonical ||
                                    parentFolder.startsWith(canonical + u'/') ||
                                    canonical == u"/"_qs;
            if (isAncestor || visitedFolders.contains(canonical))
                return;
        } else if (visitedFolders.contains(canonical)) {
            reject(path, FileRejection::Reason::AlreadyInList);
            return;
        }
        visitedFolders.insert(canonical);
        scanFolder(path, canonical);
    }

    void scanFolder(const QString &folder, const QString &canonical)
    {
        QStringList entries = QDir(folder).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
        // Character order, not the locale's: the same folder gives the same rows everywhere.
        std::sort(entries.begin(), entries.end());
        const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + u'/';
        for (const QString &entry : std::as_const(entries)) {
            const QString path = prefix + entry;
            // Caches, trash and sidecar folders of other programs hide themselves this way.
            if (entry.startsWith(QLatin1Char('.')))
                reject(path, FileRejection::Reason::Hidden);
            else
                addPath(path, canonical);
        }
    }
};

} // namespace

bool FileAdmission::supportsFile(const QString &path)
{
    return ImageFileTypes::isSupportedFile(path);
}

const QStringList &FileAdmission::supportedExtensions()
{
    return ImageFileTypes::supportedExtensions();
}

FileAdmissionResult
FileAdmission::preprocessFilesToBeAdded(const QStringList &paths,
                                        const std::function<bool(const QString &)> &hasFileInList)
{
    Admission admission{hasFileInList, {}, {}, {}};
    for (const QString &path : paths)
        admission.addPath(path, {});
    return admission.result;
}

std::optional<FileRejection::Reason>
FileAdmission::rejectionAfterReading(const TagDictionary &record)
{
    if (!record.contains(QStringLiteral("File:FileType")))
        return FileRejection::Reason::Unreadable;
    const QString mimeType = record.value(QStringLiteral("File:MIMEType"));
    if (!mimeType.isEmpty() && !mimeType.startsWith(QStringLiteral("image/")) &&
        mimeType != QStringLiteral("application/vnd.adobe.photoshop"))
        return FileRejection::Reason::NotAnImage;
    return std::nullopt;
}

QString FileAdmission::reasonText(FileRejection::Reason reason)
{
    switch (reason) {
    case FileRejection::Reason::Unsupported:
        return QCoreApplication::translate("Localizable", "unsupported type");
    case FileRejection::Reason::Unreadable:
        return QCoreApplication::translate("Localizable", "unreadable");
    case FileRejection::Reason::AlreadyInList:
        return QCoreApplication::translate("Localizable", "already in the list");
    case FileRejection::Reason::Hidden:
        return QCoreApplication::translate("Localizable", "hidden");
    case FileRejection::Reason::Missing:
        return QCoreApplication::translate("Localizable", "not found");
    case FileRejection::Reason::NotAnImage:
        return QCoreApplication::translate("Localizable", "not an image");
    }
    return {};
}
