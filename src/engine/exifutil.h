#pragma once

#include "catalogue/fieldtypes.h"
#include "engine/exiffileinfo.h"
#include "engine/tagdictionary.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

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
    static bool hasModifiedFiles(const QList<ExifFileInfoPtr> &files)
    {
        return exifFilesInArrayModified(files);
    }

    // "System:FileModifyDate", "IFD1:ThumbnailOffset", "System:FileSize": they change with every
    // write and never make a file modified.
    static bool isAutomaticallyGeneratedFieldXmlName(const QString &xmlName);

    // Catalogue keys whose current value differs from the original, in no particular order. A
    // key present on one side only is always changed.
    static QStringList changedFieldsArray(const ExifFileInfo &file);
    // Changed keys with their current values: the assignments a save writes. Removed keys are
    // not in it.
    static TagDictionary changedFieldsDictionary(const ExifFileInfo &file);
    // Catalogue keys that the original had and whose current value is absent.
    static QSet<QString> removedFieldsSet(const ExifFileInfo &file);
};

// One file's dirty question.
bool isExifFileModified(const ExifFileInfo &file);

// Whether a current value (newValue) means the same as an original one (oldValue) for a field of
// the given representation: the one rule behind the list's mark, the rows' labels, the review,
// what a save writes and the check after it. A null text is an absent value; a present value
// never equals an absent one. Numbers and coordinates compare as numbers (a coordinate within a
// ten-millionth of a degree), dates with their zones, lists as sets.
bool valuesEqualForRepresentation(const QString &newValue, const QString &oldValue,
                                  FieldDataRepresentation representation);
// Whether a row's value is an edit: two absent values are not.
bool isValueModified(const QString &current, const QString &original,
                     FieldDataRepresentation representation);
// The text without the blanks at its end, which ExifTool's read of an EXIF or IPTC text drops
// (XMP keeps them).
QStringView withoutTrailingBlanks(QStringView text);
// A number as shown in the user's locale or written plainly; nullopt for anything else.
std::optional<double> numberOfText(const QString &text);
