#pragma once

#include "engine/tagdictionary.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Why a path given to "add files" did not become a row.
struct FileRejection
{
    enum class Reason {
        Unsupported,
        Unreadable,
        AlreadyInList,
        Hidden,
        Missing,
        NotAnImage,
        // Another name of a file added with it (a link, or "." and ".." in the path).
        SameFile,
        // Another name of a file in the list.
        SameFileInList,
        // Its bytes are no valid UTF-8, which is all Qt can name a file with.
        InvalidName,
        // ExifTool got stuck reading it (a stalled disk or network share, a damaged file).
        TimedOut
    };
    QString path;
    Reason reason = Reason::Unsupported;
    // The row's name, for the two reasons of the same file.
    QString sameAs = {};
};

struct FileAdmissionResult
{
    // Files to read, in the order given (folders expanded in place).
    QStringList accepted;
    QList<FileRejection> rejected;
};

// Decides which of the paths the user adds become rows, and says why each other one did not.
// A file is one row however it is named: by device and inode, against the paths added with it
// and the files in the list. A row keeps the first name given, made absolute and cleaned of "."
// and "..", so the user recognises it; links in it are kept, as saving through a link keeps it.
class FileAdmission
{
public:
    // By lower-cased extension.
    static bool supportsFile(const QString &path);
    static const QStringList &supportedExtensions();

    // Expands folders (recursively, hidden entries inside them skipped), keeps the supported
    // files that are not yet in the list, and lists every other path with its reason.
    // Relative paths are taken from the current folder. listedFiles: the names of the rows,
    // and of files on their way into the list.
    static FileAdmissionResult preprocessFilesToBeAdded(const QStringList &paths,
                                                        const QStringList &listedFiles);

    // The files named on a command line, as the bytes given: relative ones taken from
    // currentFolder, and those whose name is no UTF-8 rejected. Empty names are skipped.
    static FileAdmissionResult commandLineFiles(const QList<QByteArray> &names,
                                                const QString &currentFolder);

    // The name a row keeps for a path given.
    static QString rowName(const QString &path);

    // After reading: why a file ExifTool read is no image it can write (a text file or one of
    // unknown format named like a photo), or none.
    static std::optional<FileRejection::Reason> rejectionAfterReading(const TagDictionary &record);

    // The user-visible text of a reason, and of a rejection (which may name the row it joined).
    static QString reasonText(FileRejection::Reason reason);
    static QString reasonText(const FileRejection &rejection);
};
