#pragma once

#include <QString>

#include <sys/types.h>

#include <optional>

// What tells one file apart from another and from its own earlier state: the inode it lives in,
// its size, and its modification and change times to the nanosecond. Taken with lstat's
// counterpart that follows links (stat), so a path through a symbolic link names its target.
struct FileIdentity
{
    dev_t device = 0;
    ino_t inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;
    qint64 changedNs = 0;

    // The file at path as it is now; nullopt when it cannot be looked at.
    static std::optional<FileIdentity> of(const QString &path);
    // The same for an open file.
    static std::optional<FileIdentity> ofDescriptor(int fd);

    // The same inode on the same device, whatever its content: two names of one file.
    bool isSameFile(const FileIdentity &other) const
    {
        return device == other.device && inode == other.inode;
    }
    // The same file, untouched since: nothing about it differs.
    bool operator==(const FileIdentity &other) const = default;
};
