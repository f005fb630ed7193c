#pragma once

#include "engine/fileidentity.h"

#include <QString>

#include <sys/stat.h>
#include <sys/types.h>

#include <ctime>
#include <optional>

class ErrorMessages;

// The file as it was just before it was replaced.
struct FileSnapshot
{
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
    nlink_t links = 1;
    timespec modified{};             // to the nanosecond
    std::optional<timespec> created; // where the file system keeps a birth time
};

// Everything between "ExifTool wrote a new file" and "the new file is the file": a scratch
// folder beside the file (same file system, so the swap is one rename), the temporary name,
// and the swap itself, which keeps the file the same file (mode, owner and group, extended
// attributes and ACLs, a symbolic link stays a link) and flushes it to disk. The original is
// never touched unless the swap completes. Whatever is left behind is removed on destruction.
class FileReplacement
{
public:
    explicit FileReplacement(QString path);
    ~FileReplacement();
    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;

    // Makes the scratch folder (removing ones left by crashed runs in the same folder) and
    // chooses the temporary name "exiftool_<counter>_<random>". False when no scratch place
    // could be made; errorString() says why, as a phrase to follow "could not be saved: ".
    bool prepare();

    // The file that gets the new content: the path itself, or a symbolic link's final target.
    const QString &targetPath() const { return m_targetPath; }
    // Where the new file really is.
    const QString &temporaryPath() const { return m_temporaryPath; }
    // The same place under a name without '%', for ExifTool's "-o", which expands '%'
    // sequences with no way to escape them.
    const QString &exifToolOutputPath() const { return m_exifToolOutputPath; }

    // The target as it was read. When set, commit() replaces the target only while it still
    // is exactly that file, and swaps the two atomically so that nothing another program does
    // to it in between is lost.
    void setExpectedIdentity(std::optional<FileIdentity> identity) { m_expected = identity; }
    // True after a commit() that found the target changed by someone else.
    bool targetChangedOutside() const { return m_changedOutside; }
    // Where commit() moves the file it replaces instead of letting it go, on the same file
    // system. After the commit, keptFile() says whether it is there.
    void setKeepsReplacedFileAt(const QString &path) { m_keepAt = path; }
    const QString &keptFile() const { return m_keptFile; }

    // Puts the temporary file in place of the target. False (with the reason in errors) when
    // it is missing or empty, when the original owner or attributes cannot be given to it, when
    // the target is no longer the expected file, when the new file cannot be flushed to disk, or
    // when the rename fails; the original is then untouched and the temporary file removed. A
    // target with other hard links is replaced all the same, with a warning.
    bool commit(ErrorMessages &errors);
    // The part of commit() before the flush: the checks, and the target's owner, mode and
    // attributes given to the new file. A staged file may then be flushed with others
    // (flushTogether) before its commit, which checks the target again.
    bool stage(ErrorMessages &errors);
    bool isStaged() const { return m_staged; }
    bool isCommitted() const { return m_committed; }
    // Starts writing the new file to disk without waiting, so that the flush commit() must
    // make is mostly done by then. Only a hint: nothing is promised until commit().
    void startFlush() const;
    // Flushes the new files of staged replacements, the calls issued together so that they
    // share the file system's journal commits instead of waiting for one each.
    static void flushTogether(const QList<FileReplacement *> &group);
    // When set, commit() leaves the flush of the target's folder to the caller, who flushes
    // each folder of a group once (flushFolder) after all of the group's renames.
    void setDefersFolderFlush(bool defers) { m_defersFolderFlush = defers; }
    QString targetFolder() const;
    // 0, or the error that kept the folder's entries from reaching the disk.
    static int flushFolder(const QString &folder);
    // The warning a file gets when the rename that saved it may not survive a power cut.
    static QString folderNotFlushedMessage(const QString &path, int error);
    // Removes the temporary file and the scratch folder.
    void discard();

    // Taken by commit() just before the swap.
    const std::optional<FileSnapshot> &originalState() const { return m_originalState; }

    QString errorString() const { return m_errorString; }

    // Scratch folders and files start with this, followed by the owner's process id.
    static inline const QString ScratchPrefix = QStringLiteral(".tagsmith-");

    struct Leftovers
    {
        int removed = 0; // scratch places of stopped runs, removed
        int inUse = 0;   // those of runs still going
    };
    // Removes the scratch places stopped runs left in folder.
    static Leftovers removeLeftovers(const QString &folder);

private:
    bool makeScratchDirectory(const QString &folder);
    bool makeOutputAlias();
    bool fail(ErrorMessages &errors, const QString &reason, int error);
    bool giveOriginalIdentity(int fd, ErrorMessages &errors);
    bool checkTarget(ErrorMessages &errors, struct statx &original);
    void flush();
    bool swapInto(const QByteArray &target, ErrorMessages &errors);
    bool reportChangedOutside(ErrorMessages &errors);

    QString m_path;
    QString m_targetPath;
    QString m_scratchDirectory;
    QString m_temporaryPath;
    QString m_exifToolOutputPath;
    QString m_aliasDirectory;
    // Held (flock) while the scratch places exist, so a later run can tell them from leftovers.
    int m_scratchLock = -1;
    int m_aliasLock = -1;
    std::optional<FileSnapshot> m_originalState;
    std::optional<FileIdentity> m_expected;
    QString m_keepAt;
    QString m_keptFile;
    bool m_changedOutside = false;
    QString m_errorString;
    bool m_staged = false;
    bool m_flushed = false;
    int m_flushError = 0;
    bool m_defersFolderFlush = false;
    bool m_committed = false;
};

// The error a file gets when it changed on disk after it was read, so it was not written.
QString changedOutsideMessage(const QString &path);

// Sets a file's modification time to the nanosecond (the access time is left alone).
bool setFileModificationTime(const QString &path, const timespec &time, QString *errorString);
