#pragma once

#include "engine/editedvalues.h"
#include "engine/fileidentity.h"
#include "engine/tagdictionary.h"

#include <QMutex>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

// One image file, shared between the main thread and a background operation: every accessor
// takes the record's lock and hands out copies, so neither side sees a half-replaced dictionary.
class ExifFileInfo
{
public:
    explicit ExifFileInfo(QString fileName);

    // Absolute path; also the file's identity, so it never changes.
    const QString &fileName() const { return m_fileName; }

    // Current, editable values; empty until the file is read. editedValues gives them as the
    // original and the edits over it, without building a dictionary of them all.
    TagDictionary exifData() const;
    EditedValues editedValues() const;
    void setExifData(TagDictionary data);
    QString exifValue(const QString &key) const;
    bool hasExifValue(const QString &key) const;
    void setExifValue(const QString &key, const QString &value);
    void removeExifValue(const QString &key);

    // What the file held when last read; only ever replaced as a whole.
    TagDictionary originalExifData() const;
    void setOriginalExifData(TagDictionary data);

    // The original's keys of values in a named language beside a language alternative's
    // default one ("XMP-dc:Title-de"); kept apart so a form need not walk every tag for them.
    QStringList languageKeys() const;

    // Sets both dictionaries and the valid flag in one step, as a read does.
    void setReadData(const TagDictionary &data);

    bool isValid() const;
    void setValid(bool valid);

    // The XMP sidecar whose values were read over the file's own XMP; empty when none.
    QString sidecarPath() const;
    void setSidecarPath(const QString &path);

    // The file as it was when its values were read, or as our last write left it; a write
    // goes ahead only while the file on disk still matches it.
    std::optional<FileIdentity> identity() const;
    void setIdentity(std::optional<FileIdentity> identity);

    // True when ExifTool could not decode the maker notes.
    bool hasError() const;

    // First free name for a backup copy next to the file: IMG_1.bak.jpg, then IMG_1.bak1.jpg,
    // IMG_1.bak2.jpg and so on.
    QString backupFileName() const;

private:
    const QString m_fileName;
    mutable QMutex m_mutex;
    EditedValues m_values;
    QStringList m_languageKeys;
    bool m_valid = false;
    QString m_sidecarPath;
    std::optional<FileIdentity> m_identity;
};

using ExifFileInfoPtr = std::shared_ptr<ExifFileInfo>;
