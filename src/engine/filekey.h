#pragma once

#include <QString>

#include <sys/types.h>

// Tells whether two paths name one file, however they spell it (".", "..", symbolic links, hard
// links): the device and inode the path leads to, or, where nothing can be looked at, the path
// made absolute and cleaned.
struct FileKey
{
    dev_t device = 0;
    ino_t inode = 0;
    QString path; // only for a file that could not be looked at

    static FileKey of(const QString &path);
    bool operator==(const FileKey &other) const = default;
};

size_t qHash(const FileKey &key, size_t seed = 0);
