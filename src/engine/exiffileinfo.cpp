#include "engine/exiffileinfo.h"

#include <QFileInfo>
#include <QMutexLocker>

namespace {

// ExifTool's tag names have no dash: one after the group's colon starts a language code.
QStringList languageKeysOf(const TagDictionary &data)
{
    QStringList keys;
    for (auto it = data.cbegin(); it != data.cend(); ++it) {
        const QString &key = it.key();
        if (!key.startsWith(u"XMP-"))
            continue;
        const qsizetype colon = key.indexOf(u':');
        if (colon > 0 && key.indexOf(u'-', colon) > 0)
            keys.append(key);
    }
    return keys;
}

} // namespace

ExifFileInfo::ExifFileInfo(QString fileName)
    : m_fileName(std::move(fileName))
{
}

TagDictionary ExifFileInfo::exifData() const
{
    return editedValues().values();
}

EditedValues ExifFileInfo::editedValues() const
{
    QMutexLocker locker(&m_mutex);
    return m_values;
}

void ExifFileInfo::setExifData(TagDictionary data)
{
    QMutexLocker locker(&m_mutex);
    m_values.setValues(data);
}

QString ExifFileInfo::exifValue(const QString &key) const
{
    QMutexLocker locker(&m_mutex);
    return m_values.value(key);
}

bool ExifFileInfo::hasExifValue(const QString &key) const
{
    QMutexLocker locker(&m_mutex);
    return m_values.contains(key);
}

void ExifFileInfo::setExifValue(const QString &key, const QString &value)
{
    QMutexLocker locker(&m_mutex);
    m_values.set(key, value);
}

void ExifFileInfo::removeExifValue(const QString &key)
{
    QMutexLocker locker(&m_mutex);
    m_values.remove(key);
}

TagDictionary ExifFileInfo::originalExifData() const
{
    QMutexLocker locker(&m_mutex);
    return m_values.original();
}

void ExifFileInfo::setOriginalExifData(TagDictionary data)
{
    QStringList languages = languageKeysOf(data);
    QMutexLocker locker(&m_mutex);
    m_values.setOriginal(std::move(data));
    m_languageKeys = std::move(languages);
}

QStringList ExifFileInfo::languageKeys() const
{
    QMutexLocker locker(&m_mutex);
    return m_languageKeys;
}

void ExifFileInfo::setReadData(const TagDictionary &data)
{
    QStringList languages = languageKeysOf(data);
    QMutexLocker locker(&m_mutex);
    m_values = EditedValues(data);
    m_languageKeys = std::move(languages);
    m_valid = true;
}

bool ExifFileInfo::isValid() const
{
    QMutexLocker locker(&m_mutex);
    return m_valid;
}

void ExifFileInfo::setValid(bool valid)
{
    QMutexLocker locker(&m_mutex);
    m_valid = valid;
}

std::optional<FileIdentity> ExifFileInfo::identity() const
{
    QMutexLocker locker(&m_mutex);
    return m_identity;
}

void ExifFileInfo::setIdentity(std::optional<FileIdentity> identity)
{
    QMutexLocker locker(&m_mutex);
    m_identity = identity;
}

QString ExifFileInfo::sidecarPath() const
{
    QMutexLocker locker(&m_mutex);
    return m_sidecarPath;
}

void ExifFileInfo::setSidecarPath(const QString &path)
{
    QMutexLocker locker(&m_mutex);
    m_sidecarPath = path;
}

bool ExifFileInfo::hasError() const
{
    QMutexLocker locker(&m_mutex);
    // The second key has no group although reads always give grouped keys; it is kept as it
    // always was looked up.
    return m_values.contains(QStringLiteral("ExifIFD:MakerNoteUnknownBinary")) ||
           m_values.contains(QStringLiteral("MakerNoteUnknownText"));
}

QString ExifFileInfo::backupFileName() const
{
    const QFileInfo info(m_fileName);
    const QString name = info.fileName();
    // Only the last extension counts, and a leading dot does not start one.
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString stem = dot > 0 ? name.left(dot) : name;
    const QString extension = dot > 0 ? name.mid(dot + 1) : QString();
    const QString directory = info.path() + QLatin1Char('/');
    // Without an extension the name still ends in ".bak." with its trailing dot, on purpose.
    QString candidate = directory + stem + QStringLiteral(".bak.") + extension;
    for (qint64 n = 1; QFileInfo::exists(candidate) || QFileInfo(candidate).isSymLink(); ++n)
        candidate = directory + stem + QStringLiteral(".bak") + QString::number(n) +
                    QLatin1Char('.') + extension;
    return candidate;
}
