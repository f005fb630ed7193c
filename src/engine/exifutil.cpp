#include "engine/exifutil.h"

#include "catalogue/exiffieldscontroller.h"
#include "values/datevalue.h"
#include "values/leadingnumber.h"
#include "values/taglist.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

const QSet<QString> &automaticallyGeneratedKeys()
{
    static const QSet<QString> keys{u"System:FileModifyDate"_qs, u"IFD1:ThumbnailOffset"_qs,
                                    u"System:FileSize"_qs};
    return keys;
}

bool sameSets(const QSet<QString> &newSet, const QSet<QString> &oldSet)
{
    return newSet.size() == oldSet.size() && oldSet.contains(newSet);
}

QSet<QString> unionOfKeys(const TagDictionary &current, const TagDictionary &original)
{
    QSet<QString> keys;
    keys.reserve(current.size() + original.size());
    for (auto it = current.cbegin(); it != current.cend(); ++it)
        keys.insert(it.key());
    for (auto it = original.cbegin(); it != original.cend(); ++it)
        keys.insert(it.key());
    return keys;
}

// Works on one snapshot of both dictionaries, so that a concurrent edit cannot mix two states.
QStringList changedKeys(const TagDictionary &current, const TagDictionary &original,
                        bool skipGenerated, bool stopAtFirst)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    QStringList changed;
    for (const QString &key : unionOfKeys(current, original)) {
        if (skipGenerated && ExifUtil::isAutomaticallyGeneratedFieldXmlName(key))
            continue;
        const ExifFieldPtr field = catalogue->field(key);
        if (field && !valuesEqualForRepresentation(current.value(key), original.value(key),
                                                   field->dataRepresentation())) {
            changed.append(key);
            if (stopAtFirst)
                break;
        }
    }
    return changed;
}

// The repairs rewrite values whose numbers lack leading zeros ("2012:1:5 9:03:07"); any other
// count of numbers is not a date this repair understands and is left alone.
void injectRepairedDate(const QString &key, const QString &value, TagDictionary &changes,
                        DateEditorType type)
{
    if (value.isEmpty() || value.contains(u'+') || value.contains(u'-'))
        return;

    static const QRegularExpression separators(QStringLiteral("[ \\t\\n\\r:]"));
    const QStringList pieces = value.split(separators, Qt::SkipEmptyParts);
    const qsizetype expected = type == DateEditorTypeDateTime ? 6 : 3;
    if (pieces.size() != expected)
        return;
    bool wellFormed = pieces.at(0).size() == 4;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        wellFormed = wellFormed && (i == 0 || pieces.at(i).size() == 2);
        // The lenient date parser reads "x" as 0, which would write a different day over a
        // value we do not understand.
        if (!std::all_of(pieces.at(i).cbegin(), pieces.at(i).cend(),
                         [](QChar c) { return c >= u'0' && c <= u'9'; }))
            return;
    }
    if (wellFormed)
        return;

    const std::optional<DateComponents> parsed = parseDateValueOfType(value, type);
    if (!parsed)
        return;
    // A wall time that the local zone skips at a daylight-saving change is still the camera's
    // own reading: only out-of-range fields go through the calendar, or the repair would move it.
    const DateComponents &c = *parsed;
    const bool inRange = c.year >= 1 && c.year <= 9999 && c.month >= 1 && c.month <= 12 &&
                         c.day >= 1 && c.day <= 31 && c.hour >= 0 && c.hour <= 23 &&
                         c.minute >= 0 && c.minute <= 59 && c.second >= 0 && c.second <= 59 &&
                         QDate::isValid(static_cast<int>(c.year), static_cast<int>(c.month),
                                        static_cast<int>(c.day));
    // Date-only fields get the full date-time text too: what the date parser yields, at 00:00:00.
    QString repaired;
    if (inRange) {
        repaired = formatDateTimeComponents(c);
    } else if (const QDateTime date = dateFromComponents(c); date.isValid()) {
        repaired = formatDateTimeValue(date);
    }
    if (!repaired.isEmpty() && repaired != value)
        changes.insert(key, repaired);
}

} // namespace

bool valuesEqualForRepresentation(const QString &newValue, const QString &oldValue,
                                  FieldDataRepresentation representation)
{
    if (newValue.isNull() != oldValue.isNull())
        return false;

    switch (representation) {
    case FieldDataRepresentation::None:
    case FieldDataRepresentation::Number:
    case FieldDataRepresentation::Enum:
    case FieldDataRepresentation::Longitude:
    case FieldDataRepresentation::Latitude:
        // Two absent values are not "equal" here: a key with no value is never left unwritten.
        return !newValue.isNull() && newValue == oldValue;
    case FieldDataRepresentation::Date:
        return dateValuesEqual(newValue, oldValue, DateEditorTypeDate);
    case FieldDataRepresentation::DateTime:
        return dateValuesEqual(newValue, oldValue, DateEditorTypeDateTime);
    case FieldDataRepresentation::MultiEnum:
        return sameSets(splitMultiEnumValue(newValue), splitMultiEnumValue(oldValue));
    case FieldDataRepresentation::Fraction:
        // ExifTool prints fractions as decimals rounded differently from what the user typed.
        return std::fabs(leadingNumber(newValue) - leadingNumber(oldValue)) <= 0.0001;
    case FieldDataRepresentation::Strings:
        return sameSets(splitStringsValue(newValue), splitStringsValue(oldValue));
    }
    return false;
}

bool isExifFileModified(const ExifFileInfo &file)
{
    return !changedKeys(file.exifData(), file.originalExifData(), true, true).isEmpty();
}

bool ExifUtil::exifFilesInDictionaryModified(const QHash<QString, ExifFileInfoPtr> &files)
{
    for (const ExifFileInfoPtr &file : files) {
        if (file && isExifFileModified(*file))
            return true;
    }
    return false;
}

bool ExifUtil::exifFilesInArrayModified(const QList<ExifFileInfoPtr> &files)
{
    for (const ExifFileInfoPtr &file : files) {
        if (file && isExifFileModified(*file))
            return true;
    }
    return false;
}

bool ExifUtil::isAutomaticallyGeneratedFieldXmlName(const QString &xmlName)
{
    return automaticallyGeneratedKeys().contains(xmlName);
}

QStringList ExifUtil::changedFieldsArray(const ExifFileInfo &file)
{
    return changedKeys(file.exifData(), file.originalExifData(), false, false);
}

TagDictionary ExifUtil::changedFieldsDictionary(const ExifFileInfo &file)
{
    const TagDictionary current = file.exifData();
    TagDictionary changes;
    for (const QString &key : changedKeys(current, file.originalExifData(), false, false)) {
        const auto it = current.constFind(key);
        if (it != current.cend() && !it->isNull())
            changes.insert(key, *it);
    }

    // An edited value is never overridden by a repair.
    static const QList<std::pair<QString, DateEditorType>> repairs{
        {u"IFD0:ModifyDate"_qs, DateEditorTypeDateTime},
        {u"ExifIFD:DateTimeOriginal"_qs, DateEditorTypeDateTime},
        {u"ExifIFD:CreateDate"_qs, DateEditorTypeDateTime},
        {u"IPTC:DateCreated"_qs, DateEditorTypeDate},
        {u"GPS:GPSDateStamp"_qs, DateEditorTypeDate},
    };
    for (const auto &[key, type] : repairs) {
        if (changes.contains(key))
            continue;
        injectRepairedDate(key, current.value(key), changes, type);
    }
    return changes;
}

QSet<QString> ExifUtil::removedFieldsSet(const ExifFileInfo &file)
{
    const TagDictionary current = file.exifData();
    const TagDictionary original = file.originalExifData();
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    QSet<QString> removed;
    for (auto it = original.cbegin(); it != original.cend(); ++it) {
        if (catalogue->field(it.key()) && current.value(it.key()).trimmed().isEmpty())
            removed.insert(it.key());
    }
    return removed;
}

void ExifUtil::injectInvalidDateTime(const QString &key, TagDictionary &changes,
                                     const ExifFileInfo &file)
{
    injectRepairedDate(key, file.exifValue(key), changes, DateEditorTypeDateTime);
}

void ExifUtil::injectInvalidDate(const QString &key, TagDictionary &changes,
                                 const ExifFileInfo &file)
{
    injectRepairedDate(key, file.exifValue(key), changes, DateEditorTypeDate);
}
