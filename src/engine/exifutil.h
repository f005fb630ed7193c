#pragma once

#include "catalogue/fieldtypes.h"
#include "engine/exiffileinfo.h"
#include "engine/tagdictionary.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// The change model: whether a file's working values differ from what was read, and what a save
// must write or delete. Values are compared by meaning (see valuesEqualForRepresentation), and
// only keys the catalogue knows take part. Stateless; callable from any thread as long as the
// catalogue is loaded.
class ExifUtil
{
public:
    static bool exifFilesInDictionaryModified(const QHash<QString, ExifFileInfoPtr> &files);
    // Stops at the first modified file.
    static bool exifFilesInArrayModified(const QList<ExifFileInfoPtr> &files);
    // The dirty question over many files, under the name the main window knows it by.
    static bool hasDiretyFiles(const QList<ExifFileInfoPtr> &files)
    {
        return exifFilesInArrayModified(files);
    }

    // "System:FileModifyDate", "IFD1:ThumbnailOffset", "System:FileSize": they change with every
    // write and never make a file modified.
    static bool isAutomaticallyGeneratedFieldXmlName(const QString &xmlName);

    // Catalogue keys whose current value differs from the original, in no particular order. A
    // key present on one side only is always changed.
    static QStringList changedFieldsArray(const ExifFileInfo &file);
    // Changed keys with their current values, plus repairs of malformed standard dates that the
    // user did not edit: the assignments a save writes. Removed keys are not in it.
    static TagDictionary changedFieldsDictionary(const ExifFileInfo &file);
    // Catalogue keys that the original had and whose current value is absent or blank.
    static QSet<QString> removedFieldsSet(const ExifFileInfo &file);

    // Store in changes a well-formed rewrite of the file's current value of key when that value
    // is a date-time (or date) whose numbers lack their leading zeros. A date-only value is
    // rewritten with the time 00:00:00 appended.
    static void injectInvalidDateTime(const QString &key, TagDictionary &changes,
                                      const ExifFileInfo &file);
    static void injectInvalidDate(const QString &key, TagDictionary &changes,
                                  const ExifFileInfo &file);
};

// One file's dirty question.
bool isExifFileModified(const ExifFileInfo &file);

// Whether a current value (newValue) means the same as an original one (oldValue) for a field of
// the given representation. A null text is an absent value; a present value never equals an
// absent one.
bool valuesEqualForRepresentation(const QString &newValue, const QString &oldValue,
                                  FieldDataRepresentation representation);
