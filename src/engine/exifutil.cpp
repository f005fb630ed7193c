#include "engine/exifutil.h"

#include "catalogue/exiffieldscontroller.h"
#include "values/structvalue.h"
#include "values/datevalue.h"
#include "values/leadingnumber.h"
#include "values/numberformatter.h"
#include "values/taglist.h"

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

// Only keys the edits touch can differ: every other current value is the original's own.
QStringList changedKeys(const EditedValues &values, bool skipGenerated, bool stopAtFirst)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    const TagDictionary &original = values.original();
    QStringList changed;
    const auto differs = [&](const QString &key, const QString &current) {
        if (skipGenerated && ExifUtil::isAutomaticallyGeneratedFieldXmlName(key))
            return false;
        const ExifFieldPtr field = catalogue->fieldOf(key);
        return field && !valuesEqualForRepresentation(current, original.value(key),
                                                      field->dataRepresentation());
    };
    for (auto it = values.changed().cbegin(); it != values.changed().cend(); ++it) {
        if (differs(it.key(), it.value())) {
            changed.append(it.key());
            if (stopAtFirst)
                return changed;
        }
    }
    for (const QString &key : values.removed()) {
        if (differs(key, QString())) {
            changed.append(key);
            if (stopAtFirst)
                return changed;
        }
    }
    return changed;
}

} // namespace

QStringView withoutTrailingBlanks(QStringView text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1).isSpace())
        --end;
    return text.left(end);
}

std::optional<double> numberOfText(const QString &text)
{
    // Values are shown in the user's locale ("12.345,6" in German) and typed either way.
    static thread_local NumberFormatter local = [] {
        NumberFormatter formatter{QLocale()};
        formatter.setLenient(true);
        return formatter;
    }();
    if (local.locale() != QLocale())
        local.setLocale(QLocale());
    if (const auto number = local.numberFromString(text))
        return number;
    bool ok = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &ok);
    return ok ? std::optional<double>(number) : std::nullopt;
}

bool valuesEqualForRepresentation(const QString &newValue, const QString &oldValue,
                                  FieldDataRepresentation representation)
{
    if (newValue.isNull() != oldValue.isNull())
        return false;
    // Two absent values are not "equal" here: a key with no value is never left unwritten.
    if (newValue.isNull())
        return false;

    switch (representation) {
    case FieldDataRepresentation::None:
    case FieldDataRepresentation::Enum:
        return newValue == oldValue;
    case FieldDataRepresentation::Number: {
        if (newValue == oldValue)
            return true;
        const auto a = numberOfText(newValue);
        const auto b = numberOfText(oldValue);
        return a && b && std::fabs(*a - *b) <= 1e-12 * std::max(1.0, std::fabs(*b));
    }
    case FieldDataRepresentation::Longitude:
    case FieldDataRepresentation::Latitude: {
        // ExifTool keeps a coordinate as degrees, minutes and seconds and gives back another
        // decimal form of it ("59.33455" for "59.334550"); a ten-millionth of a degree is about
        // a centimetre.
        if (newValue == oldValue)
            return true;
        const auto a = numberOfText(newValue);
        const auto b = numberOfText(oldValue);
        return a && b && std::fabs(*a - *b) <= 1e-7;
    }
    case FieldDataRepresentation::Structure: {
        // Members in another order are the same structure.
        if (newValue == oldValue)
            return true;
        const auto a = StructValue::parse(newValue);
        const auto b = StructValue::parse(oldValue);
        return a && b && *a == *b;
    }
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

bool isValueModified(const QString &current, const QString &original,
                     FieldDataRepresentation representation)
{
    if (current.isNull() && original.isNull())
        return false;
    return !valuesEqualForRepresentation(current, original, representation);
}

bool isExifFileModified(const ExifFileInfo &file)
{
    return !changedKeys(file.editedValues(), true, true).isEmpty();
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
    return changedKeys(file.editedValues(), false, false);
}

TagDictionary ExifUtil::changedFieldsDictionary(const ExifFileInfo &file)
{
    // Only what the user edited: a malformed date the user left alone stays as the camera
    // wrote it, and a file without edits is not rewritten to repair one.
    const EditedValues values = file.editedValues();
    TagDictionary changes;
    for (const QString &key : changedKeys(values, false, false)) {
        const QString value = values.value(key);
        if (!value.isNull())
            changes.insert(key, value);
    }
    return changes;
}

QSet<QString> ExifUtil::removedFieldsSet(const ExifFileInfo &file)
{
    const EditedValues values = file.editedValues();
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    QSet<QString> removed;
    for (const QString &key : values.removed()) {
        if (catalogue->fieldOf(key))
            removed.insert(key);
    }
    // Absent, not blank: a value of spaces, as some cameras write, is a value.
    for (auto it = values.changed().cbegin(); it != values.changed().cend(); ++it) {
        if (it.value().isNull() && values.original().contains(it.key()) &&
            catalogue->fieldOf(it.key())) {
            removed.insert(it.key());
        }
    }
    return removed;
}
