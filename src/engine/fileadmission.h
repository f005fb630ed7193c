#pragma once

#include "engine/tagdictionary.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// Why a path given to "add files" did not become a row.
struct FileRejection
{
    enum class Reason { Unsupported, Unreadable, AlreadyInList, Hidden, Missing, NotAnImage };
    QString path;
    Reason reason = Reason::Unsupported;
};

struct FileAdmissionResult
{
    // Files to read, in the order given (folders expanded in place).
    QStringList accepted;
    QList<FileRejection> rejected;
};

// Decides which of the paths the user adds become rows, and says why each other one did not.
class FileAdmission
{
public:
    // By lower-cased extension.
    static bool supportsFile(const QString &path);
    static const QStringList &supportedExtensions();

    // Expands folders (recursively, hidden entries inside them skipped), keeps the supported
    // files that are not yet in the list, and lists every other path with its reason.
    static FileAdmissionResult
    preprocessFilesToBeAdded(const QStringList &paths,
                             const std::function<bool(const QString &)> &hasFileInList);

    // After reading: why a file ExifTool read is no image it can write (a text file or one of
    // unknown format named like a photo), or none.
    static std::optional<FileRejection::Reason> rejectionAfterReading(const TagDictionary &record);

    // The user-visible text of a reason.
    static QString reasonText(FileRejection::Reason reason);
};
