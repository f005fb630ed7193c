#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

// Why a path given to "add files" did not become a row.
struct FileRejection
{
    enum class Reason { Unsupported, Unreadable, AlreadyInList, Hidden, Missing };
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

    // The user-visible text of a reason.
    static QString reasonText(FileRejection::Reason reason);
};
