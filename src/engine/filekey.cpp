#include "engine/filekey.h"

#include "engine/fileidentity.h"

#include <QDir>
#include <QFileInfo>
#include <QHashFunctions>

FileKey FileKey::of(const QString &path)
{
    if (const auto identity = FileIdentity::of(path))
        return {identity->device, identity->inode, {}};
    return {0, 0, QDir::cleanPath(QFileInfo(path).absoluteFilePath())};
}

size_t qHash(const FileKey &key, size_t seed)
{
    return qHashMulti(seed, quint64(key.device), quint64(key.inode), key.path);
}
