#include "engine/fileadmission.h"

#include "engine/metadatareader.h"
#include "engine/fileidentity.h"
#include "engine/filekey.h"
#include "engine/filereplacement.h"
#include "values/imagefiletypes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <optional>

#include <dirent.h>
#include <unistd.h>

namespace {

// A folder's entries as the bytes they are named with: Qt's own listings leave out, without a
// word, the names it cannot decode. In byte order, so the same folder gives the same rows
// everywhere.
std::optional<QList<QByteArray>> entryNames(const QString &folder)
{
    DIR *dir = ::opendir(QFile::encodeName(folder).constData());
    if (!dir)
        return std::nullopt;
    QList<QByteArray> names;
    while (const dirent *entry = ::readdir(dir)) {
        const QByteArray name(entry->d_name);
        if (name != ".." && name != ".")
            names.append(name);
    }
    ::closedir(dir);
    std::sort(names.begin(), names.end());
    return names;
}

struct Admission
{
    const QStringList &listedFiles;
    FileAdmissionResult result;
    QSet<QString> acceptedNames;
    QHash<FileKey, QString> acceptedKeys;
    QSet<QString> visitedFolders;
    // Looked at only once a file is about to be accepted.
    bool isListIndexed = false;
    QSet<QString> listedNames;
    QHash<FileKey, QString> listedKeys;

    void reject(const QString &path, FileRejection::Reason reason, const QString &sameAs = {})
    {
        result.rejected.append({path, reason, sameAs});
    }

    // What the kernel would allow this process, ACLs included, not what the mode bits suggest.
    static bool isReadable(const QString &path, int mode)
    {
        return ::access(QFile::encodeName(path).constData(), mode) == 0;
    }

    // The files' inodes are taken now, not when they were read: a save gives a file a new one.
    void indexList()
    {
        if (isListIndexed)
            return;
        isListIndexed = true;
        listedNames = QSet<QString>(listedFiles.cbegin(), listedFiles.cend());
        for (const QString &name : listedFiles) {
            const FileKey key = FileKey::of(name);
            if (!listedKeys.contains(key))
                listedKeys.insert(key, name);
        }
    }

    // shown: the path as given, which the note names; path: the name the row would keep.
    void addFile(const QString &path, const QString &shown, const QFileInfo &info)
    {
        // A FIFO or device named like a photo would hang ExifTool on open.
        if (!info.isFile() || !ImageFileTypes::isSupportedFile(path)) {
            reject(shown, FileRejection::Reason::Unsupported);
            return;
        }
        if (!isReadable(path, R_OK)) {
            reject(shown, FileRejection::Reason::Unreadable);
            return;
        }
        indexList();
        const bool isAccepted = acceptedNames.contains(path);
        if (isAccepted || listedNames.contains(path)) {
            if (shown == path)
                reject(shown, FileRejection::Reason::AlreadyInList);
            else
                reject(shown,
                       isAccepted ? FileRejection::Reason::SameFile
                                  : FileRejection::Reason::SameFileInList,
                       path);
            return;
        }
        const FileKey key = FileKey::of(path);
        if (const auto same = acceptedKeys.constFind(key); same != acceptedKeys.cend()) {
            reject(shown, FileRejection::Reason::SameFile, same.value());
        } else if (const auto listed = listedKeys.constFind(key); listed != listedKeys.cend()) {
            reject(shown, FileRejection::Reason::SameFileInList, listed.value());
        } else {
            acceptedNames.insert(path);
            acceptedKeys.insert(key, path);
            result.accepted.append(path);
        }
    }

    // parentFolder: the canonical path of the folder being scanned, empty for a path given.
    void addPath(const QString &path, const QString &parentFolder, const QString &shown)
    {
        const QFileInfo info(path);
        if (!info.exists()) {
            // Qt decodes a name that is no UTF-8 with replacement characters, which name nothing.
            reject(shown, path.contains(QChar::ReplacementCharacter)
                              ? FileRejection::Reason::InvalidName
                              : FileRejection::Reason::Missing);
            return;
        }
        if (!info.isDir()) {
            addFile(path, shown, info);
            return;
        }
        if (!isReadable(path, R_OK | X_OK)) {
            reject(shown, FileRejection::Reason::Unreadable);
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
            reject(shown, FileRejection::Reason::AlreadyInList);
            return;
        }
        visitedFolders.insert(canonical);
        scanFolder(path, canonical);
    }

    void scanFolder(const QString &folder, const QString &canonical)
    {
        const std::optional<QList<QByteArray>> entries = entryNames(folder);
        if (!entries) {
            reject(folder, FileRejection::Reason::Unreadable);
            return;
        }
        const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + u'/';
        for (const QByteArray &name : *entries) {
            const QString entry = QFile::decodeName(name);
            const QString path = prefix + entry;
            // Our own scratch and kept files are no news to the user.
            if (entry.startsWith(FileReplacement::ScratchPrefix))
                continue;
            // Caches, trash and sidecar folders of other programs hide themselves this way.
            if (entry.startsWith(QLatin1Char('.')))
                reject(path, FileRejection::Reason::Hidden);
            else if (QFile::encodeName(entry) != name)
                reject(path, FileRejection::Reason::InvalidName);
            else
                addPath(path, canonical, path);
        }
    }
};

QString absolutePath(const QString &path)
{
    return QDir::isRelativePath(path) ? QDir::currentPath() + u'/' + path : path;
}

bool hasParentStep(const QString &path)
{
    return path == u".."_qs || path.startsWith(u"../"_qs) || path.endsWith(u"/.."_qs) ||
           path.contains(u"/../"_qs);
}

} // namespace

bool FileAdmission::supportsFile(const QString &path)
{
    return ImageFileTypes::isSupportedFile(path);
}

const QStringList &FileAdmission::supportedExtensions()
{
    return ImageFileTypes::supportedExtensions();
}

FileAdmissionResult FileAdmission::preprocessFilesToBeAdded(const QStringList &paths,
                                                            const QStringList &listedFiles)
{
    Admission admission{listedFiles, {}, {}, {}, {}, false, {}, {}};
    for (const QString &path : paths)
        admission.addPath(rowName(path), {}, absolutePath(path));
    return admission.result;
}

FileAdmissionResult FileAdmission::commandLineFiles(const QList<QByteArray> &names,
                                                    const QString &currentFolder)
{
    FileAdmissionResult files;
    const QDir current(currentFolder);
    for (const QByteArray &name : names) {
        if (name.isEmpty())
            continue;
        const QString path = current.absoluteFilePath(QFile::decodeName(name));
        if (QFile::encodeName(QFile::decodeName(name)) == name)
            files.accepted.append(path);
        else
            files.rejected.append({path, FileRejection::Reason::InvalidName});
    }
    return files;
}

QString FileAdmission::rowName(const QString &path)
{
    if (path.isEmpty())
        return path;
    const QString absolute = absolutePath(path);
    const QString cleaned = QDir::cleanPath(absolute);
    if (!hasParentStep(absolute))
        return cleaned;
    // After a link, ".." leads to the parent of the link's target, not back where it started.
    const auto given = FileIdentity::of(absolute);
    const auto clean = FileIdentity::of(cleaned);
    if (!given || (clean && clean->isSameFile(*given)))
        return cleaned;
    char resolved[PATH_MAX];
    if (!::realpath(QFile::encodeName(absolute).constData(), resolved))
        return cleaned;
    return QFile::decodeName(resolved);
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
    return reasonText(FileRejection{{}, reason});
}

QString FileAdmission::reasonText(const FileRejection &rejection)
{
    const auto translated = [](const char *text) {
        return QCoreApplication::translate("Localizable", text);
    };
    switch (rejection.reason) {
    case FileRejection::Reason::Unsupported:
        return translated("unsupported type");
    case FileRejection::Reason::Unreadable:
        return translated("unreadable");
    case FileRejection::Reason::AlreadyInList:
        return translated("already in the list");
    case FileRejection::Reason::Hidden:
        return translated("hidden");
    case FileRejection::Reason::Missing:
        return translated("not found");
    case FileRejection::Reason::NotAnImage:
        return translated("not an image");
    case FileRejection::Reason::SameFile:
        return translated("the same file as %1").arg(rejection.sameAs);
    case FileRejection::Reason::SameFileInList:
        return translated("the same file as %1, already in the list").arg(rejection.sameAs);
    case FileRejection::Reason::InvalidName:
        return translated("its name is not valid UTF-8, so it cannot be opened");
    case FileRejection::Reason::TimedOut:
        return QCoreApplication::translate("Localizable",
                                           "reading it took longer than %n second(s)", nullptr,
                                           MetadataReader::readTimeout() / 1000);
    }
    return {};
}
