#include "engine/filereplacement.h"

#include "engine/errormessages.h"
#include "engine/scratchjournal.h"
#include "values/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <atomic>
#include <thread>

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <vector>

namespace {

std::atomic<quint32> temporaryFileCounter{0};

QString errorText(int error)
{
    char buffer[256];
    return QString::fromLocal8Bit(strerror_r(error, buffer, sizeof buffer));
}

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

void closeFd(int &fd)
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

// Never follows a symbolic link: a planted link must not lead the removal elsewhere.
void removeTreeAt(int parentFd, const char *name, int depth = 0)
{
    if (::unlinkat(parentFd, name, 0) == 0 || (errno != EISDIR && errno != EPERM))
        return;
    const int fd = ::openat(parentFd, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return;
    if (DIR *dir = ::fdopendir(fd)) {
        std::vector<QByteArray> names;
        while (const dirent *entry = ::readdir(dir)) {
            if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
                names.emplace_back(entry->d_name);
        }
        for (const QByteArray &child : names) {
            if (depth < 16)
                removeTreeAt(::dirfd(dir), child.constData(), depth + 1);
        }
        ::closedir(dir);
    } else {
        ::close(fd);
    }
    ::unlinkat(parentFd, name, AT_REMOVEDIR);
}

void removeTree(const QString &path)
{
    if (!path.isEmpty())
        removeTreeAt(AT_FDCWD, encoded(path).constData());
}

bool isProcessAlive(pid_t pid)
{
    return ::kill(pid, 0) == 0 || errno != ESRCH;
}

// A leftover is named "<prefix><pid>-…", its process is gone, and nobody holds its lock (the
// lock covers a recycled process id and a folder shared between machines).
FileReplacement::Leftovers removeLeftoversIn(const QString &folder, const QByteArray &prefix)
{
    FileReplacement::Leftovers found;
    const int folderFd = ::open(encoded(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folderFd < 0)
        return found;
    DIR *dir = ::fdopendir(folderFd);
    if (!dir) {
        ::close(folderFd);
        return found;
    }
    std::vector<QByteArray> stale;
    while (const dirent *entry = ::readdir(dir)) {
        const QByteArray name(entry->d_name);
        if (!name.startsWith(prefix))
            continue;
        bool isNumber = false;
        const qsizetype dash = name.indexOf('-', prefix.size());
        const pid_t pid = name.mid(prefix.size(), dash - prefix.size()).toInt(&isNumber);
        if (!isNumber || pid <= 0)
            continue;
        if (pid == ::getpid() || isProcessAlive(pid)) {
            ++found.inUse;
            continue;
        }
        const int fd = ::openat(::dirfd(dir), name.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
        if (fd < 0)
            continue;
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0)
            stale.push_back(name);
        else
            ++found.inUse;
        ::close(fd);
    }
    for (const QByteArray &name : stale) {
        qCInfo(lcTagsmith) << "Removing what a stopped save left behind:" << folder
                           << QString::fromLocal8Bit(name);
        removeTreeAt(::dirfd(dir), name.constData());
        ++found.removed;
    }
    ::closedir(dir);
    return found;
}

QString scratchTemplate(const QString &folder, const QString &prefix)
{
    return folder % u'/' % prefix % QString::number(::getpid()) % QStringLiteral("-XXXXXX");
}

// mkdtemp makes the folder 0700, so no other user can slip a file in.
QString makeLockedDirectory(const QString &pathTemplate, int &lockFd, int &error)
{
    QByteArray path = encoded(pathTemplate);
    if (!::mkdtemp(path.data())) {
        error = errno;
        return {};
    }
    lockFd = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lockFd < 0 || ::flock(lockFd, LOCK_EX) != 0) {
        error = errno;
        closeFd(lockFd);
        ::rmdir(path.constData());
        return {};
    }
    return QFile::decodeName(path);
}

// Keeps errno, so a message and its reason can be built in one expression.
QString translated(const char *text, int n = -1)
{
    const int error = errno;
    QString result = QCoreApplication::translate("Localizable", text, nullptr, n);
    errno = error;
    return result;
}

FileIdentity identityOf(const struct statx &st)
{
    const auto ns = [](const statx_timestamp &time) {
        return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
    };
    return {dev_t(makedev(st.stx_dev_major, st.stx_dev_minor)), ino_t(st.stx_ino),
            qint64(st.stx_size), ns(st.stx_mtime), ns(st.stx_ctime)};
}

} // namespace

FileReplacement::Leftovers FileReplacement::removeLeftovers(const QString &folder)
{
    return removeLeftoversIn(folder, encoded(ScratchPrefix));
}

FileReplacement::FileReplacement(QString path)
    : m_path(std::move(path))
{
}

FileReplacement::~FileReplacement()
{
    discard();
}

bool FileReplacement::prepare()
{
    discard();
    m_committed = false;
    m_staged = false;
    m_flushed = false;
    m_flushError = 0;
    m_changedOutside = false;
    m_keptFile.clear();
    m_originalState.reset();
    m_errorString.clear();

    const QString absolute = QFileInfo(m_path).absoluteFilePath();
    struct stat st = {};
    if (::lstat(encoded(absolute).constData(), &st) != 0) {
        m_errorString = translated("it cannot be found (%1)").arg(errorText(errno));
        return false;
    }
    m_targetPath = absolute;
    if (S_ISLNK(st.st_mode)) {
        // The link stays as it is; what it leads to gets the new content.
        char *resolved = ::realpath(encoded(absolute).constData(), nullptr);
        if (!resolved) {
            m_errorString =
                translated("the symbolic link leads to no file (%1)").arg(errorText(errno));
            return false;
        }
        m_targetPath = QFile::decodeName(resolved);
        ::free(resolved);
    }

    const QString folder = QFileInfo(m_targetPath).absolutePath();
    ScratchJournal::enter(folder);
    if (!makeScratchDirectory(folder))
        return false;
    m_temporaryPath = m_scratchDirectory % QStringLiteral("/exiftool_%1_%2")
                                               .arg(++temporaryFileCounter)
                                               .arg(QRandomGenerator::global()->generate());
    if (!m_scratchDirectory.contains(u'%')) {
        m_exifToolOutputPath = m_temporaryPath;
        return true;
    }
    if (!makeOutputAlias()) {
        discard();
        return false;
    }
    return true;
}

bool FileReplacement::makeScratchDirectory(const QString &folder)
{
    int error = 0;
    m_scratchDirectory =
        makeLockedDirectory(scratchTemplate(folder, ScratchPrefix), m_scratchLock, error);
    if (!m_scratchDirectory.isEmpty())
        return true;
    // The new file must be renamed into this folder, so a folder we cannot write to cannot be
    // saved into by any other road either.
    m_errorString =
        translated("its folder “%1” does not accept new files (%2)").arg(folder, errorText(error));
    return false;
}

// ExifTool expands '%' sequences in "-o" with no escape, so a folder named "100%done" would
// send the output elsewhere. A link in a private folder of a '%'-free temporary place reaches
// the same scratch folder under a clean name.
bool FileReplacement::makeOutputAlias()
{
    int error = ENOENT;
    for (const QString &base : {QDir::tempPath(), QStringLiteral("/tmp")}) {
        if (base.contains(u'%'))
            continue;
        const QString prefix = QStringLiteral("tagsmith-alias-");
        removeLeftoversIn(base, encoded(prefix));
        m_aliasDirectory = makeLockedDirectory(scratchTemplate(base, prefix), m_aliasLock, error);
        if (m_aliasDirectory.isEmpty())
            continue;
        const QString link = m_aliasDirectory % QStringLiteral("/d");
        if (::symlink(encoded(m_scratchDirectory).constData(), encoded(link).constData()) != 0) {
            error = errno;
            removeTree(m_aliasDirectory);
            closeFd(m_aliasLock);
            m_aliasDirectory.clear();
            continue;
        }
        m_exifToolOutputPath = link % u'/' % QFileInfo(m_temporaryPath).fileName();
        return true;
    }
    m_errorString =
        translated("no temporary folder could be made for ExifTool (%1)").arg(errorText(error));
    return false;
}

bool FileReplacement::fail(ErrorMessages &errors, const QString &reason, int error)
{
    QString text = translated("The file “%1” was not saved: %2. The original file is unchanged.")
                       .arg(m_path, reason);
    if (error != 0)
        text = translated("The file “%1” was not saved: %2 (%3). The original file is unchanged.")
                   .arg(m_path, reason, errorText(error));
    m_errorString = text;
    errors.addError(text);
    qCWarning(lcTagsmith) << text;
    discard();
    return false;
}

// Owner first: changing it clears the set-id bits, which the mode then restores. ACLs are the
// "system.posix_acl_*" attributes, so copying every attribute carries them too.
bool FileReplacement::giveOriginalIdentity(int fd, ErrorMessages &errors)
{
    const FileSnapshot &original = *m_originalState;
    struct stat current = {};
    if (::fstat(fd, &current) != 0)
        return fail(errors, translated("the new file cannot be examined"), errno);
    if ((current.st_uid != original.owner || current.st_gid != original.group) &&
        ::fchown(fd, original.owner, original.group) != 0) {
        return fail(errors,
                    translated("the new file cannot be given the original's owner and group"),
                    errno);
    }

    const QByteArray target = encoded(m_targetPath);
    ssize_t size = ::listxattr(target.constData(), nullptr, 0);
    QByteArray names;
    if (size > 0) {
        names.resize(size);
        size = ::listxattr(target.constData(), names.data(), names.size());
    }
    if (size < 0 && errno != ENOTSUP)
        return fail(errors, translated("the original's extended attributes cannot be read"), errno);
    for (const QByteArray &name : names.left(qMax<ssize_t>(size, 0)).split('\0')) {
        if (name.isEmpty())
            continue;
        QByteArray value;
        ssize_t length = ::getxattr(target.constData(), name.constData(), nullptr, 0);
        if (length > 0) {
            value.resize(length);
            length = ::getxattr(target.constData(), name.constData(), value.data(), value.size());
        }
        int error = length < 0 ? errno : 0;
        if (error == 0 && ::fsetxattr(fd, name.constData(), value.constData(), length, 0) != 0)
            error = errno;
        if (error == 0)
            continue;
        const QString attribute = QString::fromLocal8Bit(name);
        // Security labels are the system's to give; the file gets its own there.
        if (name.startsWith("security.")) {
            errors.addWarning(translated("The file “%1” lost its attribute “%2” when saved (%3).")
                                  .arg(m_path, attribute, errorText(error)));
            continue;
        }
        return fail(
            errors,
            translated("the new file cannot be given the original's attribute “%1”").arg(attribute),
            error);
    }

    if (::fchmod(fd, original.mode & 07777) != 0)
        return fail(errors, translated("the new file cannot be given the original's permissions"),
                    errno);
    return true;
}

bool FileReplacement::stage(ErrorMessages &errors)
{
    if (m_staged)
        return true;
    if (m_temporaryPath.isEmpty() || m_scratchLock < 0)
        return fail(errors, translated("no place was prepared for the new file"), 0);

    const int fd = ::open(encoded(m_temporaryPath).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return fail(errors, translated("ExifTool wrote no new file"), 0);
    struct FdCloser
    {
        int fd;
        ~FdCloser() { ::close(fd); }
    } closer{fd};

    struct stat written = {};
    if (::fstat(fd, &written) != 0)
        return fail(errors, translated("the new file cannot be examined"), errno);
    if (!S_ISREG(written.st_mode) || written.st_size == 0)
        return fail(errors, translated("the new file written by ExifTool is empty"), 0);

    struct statx original = {};
    if (!checkTarget(errors, original))
        return false;
    if (!S_ISREG(original.stx_mode))
        return fail(errors, translated("the original is no longer a regular file"), 0);
    FileSnapshot snapshot;
    snapshot.mode = original.stx_mode;
    snapshot.owner = original.stx_uid;
    snapshot.group = original.stx_gid;
    snapshot.links = original.stx_nlink;
    snapshot.modified = {static_cast<time_t>(original.stx_mtime.tv_sec),
                         static_cast<long>(original.stx_mtime.tv_nsec)};
    if (original.stx_mask & STATX_BTIME) {
        snapshot.created = timespec{static_cast<time_t>(original.stx_btime.tv_sec),
                                    static_cast<long>(original.stx_btime.tv_nsec)};
    }
    m_originalState = snapshot;

    if (!giveOriginalIdentity(fd, errors))
        return false;
    m_staged = true;
    return true;
}

bool FileReplacement::checkTarget(ErrorMessages &errors, struct statx &original)
{
    const QByteArray target = encoded(m_targetPath);
    if (::statx(AT_FDCWD, target.constData(), 0, STATX_BASIC_STATS | STATX_BTIME, &original) != 0) {
        if (m_expected)
            return reportChangedOutside(errors);
        return fail(errors, translated("the original file cannot be found any more"), errno);
    }
    if (m_expected && *m_expected != identityOf(original))
        return reportChangedOutside(errors);
    return true;
}

void FileReplacement::flush()
{
    if (m_flushed)
        return;
    m_flushed = true;
    const int fd = ::open(encoded(m_temporaryPath).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0 || ::fsync(fd) != 0)
        m_flushError = errno;
    if (fd >= 0)
        ::close(fd);
}

void FileReplacement::flushTogether(const QList<FileReplacement *> &group)
{
    std::atomic<qsizetype> next{0};
    const auto flushSome = [&group, &next] {
        for (qsizetype i = next++; i < group.size(); i = next++)
            group.at(i)->flush();
    };
    // A few flushes in flight are enough for the journal to take them in one commit.
    std::vector<std::thread> helpers;
    const qsizetype threads = std::min<qsizetype>(group.size(), 8);
    for (qsizetype i = 1; i < threads; ++i)
        helpers.emplace_back(flushSome);
    flushSome();
    for (std::thread &helper : helpers)
        helper.join();
}

QString FileReplacement::targetFolder() const
{
    return QFileInfo(m_targetPath).absolutePath();
}

int FileReplacement::flushFolder(const QString &folder)
{
    const int folderFd = ::open(encoded(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int error = 0;
    if (folderFd < 0 || ::fsync(folderFd) != 0)
        error = errno;
    if (folderFd >= 0)
        ::close(folderFd);
    return error;
}

QString FileReplacement::folderNotFlushedMessage(const QString &path, int error)
{
    return translated("The folder of “%1” could not be written to disk (%2).")
        .arg(path, errorText(error));
}

bool FileReplacement::commit(ErrorMessages &errors)
{
    if (m_staged) {
        // Time has passed since the stage: another program may have come by.
        struct statx current = {};
        if (!checkTarget(errors, current))
            return false;
    } else if (!stage(errors)) {
        return false;
    }
    flush();
    if (m_flushError != 0)
        return fail(errors, translated("the new file cannot be written to disk"), m_flushError);
    if (!swapInto(encoded(m_targetPath), errors))
        return false;
    m_committed = true;

    // Without this the rename itself may not survive a power cut.
    if (!m_defersFolderFlush) {
        if (const int error = flushFolder(targetFolder()))
            errors.addWarning(folderNotFlushedMessage(m_path, error));
    }

    const nlink_t links = m_originalState->links;
    if (links > 1) {
        errors.addWarning(translated("The file “%1” had %n other name(s) (hard links); they keep "
                                     "the content it had before this save.",
                                     static_cast<int>(links - 1))
                              .arg(m_path));
    }
    discard();
    return true;
}

// With an expected identity the two files change places in one step and the one taken out is
// checked: had another program replaced or rewritten the target since the check above, its
// file goes back where it was. Where the file system cannot exchange, a plain rename follows
// the check, which leaves only the moment between the two.
bool FileReplacement::swapInto(const QByteArray &target, ErrorMessages &errors)
{
    const QByteArray temporary = encoded(m_temporaryPath);
    if (m_expected) {
        if (::renameat2(AT_FDCWD, temporary.constData(), AT_FDCWD, target.constData(),
                        RENAME_EXCHANGE) == 0) {
            const std::optional<FileIdentity> displaced = FileIdentity::of(m_temporaryPath);
            // The exchange itself moves the change time; the rest must be as read.
            if (!displaced || !displaced->isSameFile(*m_expected) ||
                displaced->size != m_expected->size ||
                displaced->modifiedNs != m_expected->modifiedNs) {
                if (::renameat2(AT_FDCWD, temporary.constData(), AT_FDCWD, target.constData(),
                                RENAME_EXCHANGE) != 0) {
                    // Both files still exist; say where the other program's one is.
                    return fail(errors,
                                translated("it was changed by another program while it was being "
                                           "saved; its other version is at “%1”")
                                    .arg(m_temporaryPath),
                                errno);
                }
                return reportChangedOutside(errors);
            }
            if (m_keepAt.isEmpty() ||
                ::rename(temporary.constData(), encoded(m_keepAt).constData()) != 0)
                ::unlink(temporary.constData());
            else
                m_keptFile = m_keepAt;
            return true;
        }
        if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP)
            return fail(errors, translated("the new file cannot take the original's place"), errno);
    }
    const bool keeps =
        !m_keepAt.isEmpty() && ::link(target.constData(), encoded(m_keepAt).constData()) == 0;
    if (::rename(temporary.constData(), target.constData()) != 0) {
        if (keeps)
            ::unlink(encoded(m_keepAt).constData());
        return fail(errors, translated("the new file cannot take the original's place"), errno);
    }
    if (keeps)
        m_keptFile = m_keepAt;
    return true;
}

bool FileReplacement::reportChangedOutside(ErrorMessages &errors)
{
    m_changedOutside = true;
    m_errorString = changedOutsideMessage(m_path);
    errors.addError(m_errorString);
    qCWarning(lcTagsmith).noquote() << m_errorString;
    discard();
    return false;
}

QString changedOutsideMessage(const QString &path)
{
    return QCoreApplication::translate("Localizable",
                                       "%1 was changed by another program after it was read; "
                                       "reload it to see its new values.")
        .arg(QFileInfo(path).fileName());
}

void FileReplacement::discard()
{
    if (!m_committed && !m_temporaryPath.isEmpty())
        ::unlink(encoded(m_temporaryPath).constData());
    if (m_aliasLock >= 0) {
        removeTree(m_aliasDirectory);
        closeFd(m_aliasLock);
    }
    if (m_scratchLock >= 0) {
        removeTree(m_scratchDirectory);
        closeFd(m_scratchLock);
    }
}

bool setFileModificationTime(const QString &path, const timespec &time, QString *errorString)
{
    const timespec times[2] = {{0, UTIME_OMIT}, time};
    if (::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) == 0)
        return true;
    if (errorString) {
        *errorString = translated("The modification date of “%1” cannot be set (%2).")
                           .arg(path, errorText(errno));
    }
    return false;
}

void FileReplacement::startFlush() const
{
    if (m_temporaryPath.isEmpty())
        return;
    const int fd = ::open(encoded(m_temporaryPath).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return;
    ::sync_file_range(fd, 0, 0, SYNC_FILE_RANGE_WRITE);
    ::close(fd);
}
