#include "engine/fileidentity.h"

#include <QFile>

#include <sys/stat.h>

namespace {

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileIdentity identityOf(const struct stat &st)
{
    return {st.st_dev, st.st_ino, qint64(st.st_size), nanoseconds(st.st_mtim),
            nanoseconds(st.st_ctim)};
}

} // namespace

std::optional<FileIdentity> FileIdentity::of(const QString &path)
{
    struct stat st
    {
    };
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return std::nullopt;
    return identityOf(st);
}

std::optional<FileIdentity> FileIdentity::ofDescriptor(int fd)
{
    struct stat st
    {
    };
    if (::fstat(fd, &st) != 0)
        return std::nullopt;
    return identityOf(st);
}
