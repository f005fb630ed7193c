#pragma once

#include "engine/exiffileinfo.h"
#include "engine/tagdictionary.h"

#include <QSet>
#include <QString>
#include <QStringList>

// Which part of a copied record to paste: whole catalogue sections, named by sectionKey(), or
// everything.
struct MetadataSelection
{
    bool everything = false;
    QSet<QString> sections;

    bool isEmpty() const { return !everything && sections.isEmpty(); }
    static QString sectionKey(const QString &group, const QString &section)
    {
        return group + u'/' + section;
    }
};

// One file's copyable values, held for pasting into other files. Only what the program can
// edit travels, since a paste becomes pending edits: the writable catalogue fields, less the
// tags that describe one particular file (see isFileSpecific).
class MetadataClipboard
{
public:
    // Takes the file's current values, pending edits included: what the form shows.
    void copyFrom(const ExifFileInfo &file);
    void clear();

    bool isEmpty() const { return m_values.isEmpty(); }
    const QString &sourceFileName() const { return m_sourceFileName; }
    const TagDictionary &values() const { return m_values; }

    // The copied values that fall under the selection.
    TagDictionary valuesFor(const MetadataSelection &selection) const;
    // Sets the selected values as the file's current values (nothing is written). A value the
    // source lacks leaves the target's alone, so a paste never deletes. Maker-note fields go
    // only to files of the source's make. Returns the keys whose value changed.
    QStringList pasteInto(ExifFileInfo &file, const MetadataSelection &selection) const;

    // Tags that belong to one file and never travel: file-system and computed groups, image
    // dimensions, thumbnails and previews, maker-note offsets, file names and identifiers.
    static bool isFileSpecific(const QString &key);

private:
    QString m_sourceFileName;
    QString m_sourceMake;
    TagDictionary m_values;
};
