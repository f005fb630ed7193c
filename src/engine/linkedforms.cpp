#include "engine/linkedforms.h"

#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"
#include "engine/exiffileinfo.h"
#include "engine/exifutil.h"
#include "values/imagefiletypes.h"
#include "values/taglist.h"

#include <algorithm>

LinkedForms::LinkedForms(const ExifField &field)
    : m_keys(QStringList{field.xmlName()} + field.linkedKeys())
    , m_representation(field.dataRepresentation())
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    for (const QString &key : std::as_const(m_keys)) {
        const ExifFieldPtr form = key == field.xmlName() ? nullptr : catalogue->field(key);
        m_joined.append(m_representation == FieldDataRepresentation::Strings && form &&
                        form->dataRepresentation() != FieldDataRepresentation::Strings);
    }
}

QString LinkedForms::rowValue(qsizetype index, const QString &stored) const
{
    if (!m_joined.value(index) || stored.isNull())
        return stored;
    QStringList items;
    for (const QString &item : stored.split(u';')) {
        if (!item.trimmed().isEmpty())
            items.append(item.trimmed());
    }
    return joinStringsValue(items);
}

QString LinkedForms::rowValueOf(const QString &key, const QString &stored) const
{
    return rowValue(m_keys.indexOf(key), stored);
}

QString LinkedForms::storedValue(qsizetype index, const QString &value) const
{
    return m_joined.value(index) ? splitStringsItems(value).join(u"; "_qs) : value;
}

LinkedForms LinkedForms::ofKey(const QString &key)
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    ExifFieldPtr field = catalogue->field(key);
    if (field && !field->rowKey().isEmpty())
        field = catalogue->field(field->rowKey());
    if (field)
        return LinkedForms(*field);
    LinkedForms alone;
    alone.m_keys = {key};
    return alone;
}

namespace {

// What a row shows of copies taken in its order: the first with text, else the first present.
void takeShown(QString &shown, const QString &value)
{
    if (shown.isEmpty() && (!value.isEmpty() || shown.isNull()))
        shown = value;
}

} // namespace

template <typename Lookup> QString LinkedForms::firstValue(const Lookup &lookup) const
{
    QString shown;
    for (qsizetype i = 0; i < m_keys.size() && shown.isEmpty(); ++i)
        takeShown(shown, rowValue(i, lookup(m_keys.at(i))));
    return shown;
}

QString LinkedForms::valueIn(const EditedValues &values) const
{
    return firstValue([&values](const QString &key) { return values.value(key); });
}

QString LinkedForms::valueIn(const TagDictionary &values) const
{
    return firstValue([&values](const QString &key) { return values.value(key); });
}

LinkedForms::Reading LinkedForms::read(const EditedValues &values) const
{
    Reading reading;
    QString first;
    bool identical = true;
    bool any = false;
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        const QString value = rowValue(i, values.value(m_keys.at(i)));
        takeShown(reading.value, value);
        if (value.isNull())
            continue;
        if (!any)
            first = value;
        else
            identical = identical && value == first;
        any = true;
    }
    reading.copiesDiffer = !identical && !differingCopies(values).isEmpty();
    return reading;
}

bool LinkedForms::isChanged(const EditedValues &values) const
{
    if (!values.isEdited())
        return false;
    const TagDictionary &original = values.original();
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        const QString &key = m_keys.at(i);
        if ((values.changed().contains(key) || values.removed().contains(key)) &&
            isValueModified(values.value(key), original.value(key),
                            m_joined.value(i) ? FieldDataRepresentation::None : m_representation)) {
            return true;
        }
    }
    return false;
}

QString LinkedForms::comparable(const QString &value) const
{
    if (m_representation == FieldDataRepresentation::Strings) {
        QStringList items = splitStringsValue(value).values();
        items.sort();
        return items.join(u'\n');
    }
    return withoutTrailingBlanks(value).toString();
}

QList<LinkedForms::Copy> LinkedForms::differingCopies(const EditedValues &values) const
{
    if (!isLinked())
        return {};
    QList<Copy> copies;
    QList<QString> seen;
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        QString value = values.value(m_keys.at(i));
        if (value.isNull())
            continue;
        seen.append(comparable(rowValue(i, value)));
        copies.append({m_keys.at(i), std::move(value)});
    }
    for (const QString &other : std::as_const(seen)) {
        if (other != seen.constFirst())
            return copies;
    }
    return {};
}

QStringList LinkedForms::copiesIn(const EditedValues &values) const
{
    QStringList copies;
    for (const QString &key : m_keys)
        copies.append(values.value(key));
    return copies;
}

void LinkedForms::setCopies(ExifFileInfo &file, const QStringList &copies) const
{
    for (qsizetype i = 0; i < m_keys.size() && i < copies.size(); ++i) {
        if (copies.at(i).isNull())
            file.removeExifValue(m_keys.at(i));
        else
            file.setExifValue(m_keys.at(i), copies.at(i));
    }
}

void LinkedForms::set(ExifFileInfo &file, const QString &value) const
{
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        if (i > 0 && !takesCopy(file, m_keys.at(i)))
            continue;
        file.setExifValue(m_keys.at(i), storedValue(i, value));
    }
}

bool LinkedForms::takesCopy(const ExifFileInfo &file, const QString &key)
{
    if (!key.startsWith(u"IPTC:") || ImageFileTypes::holdsIptcRecord(file.fileName()))
        return true;
    // Where another program put an IPTC record, its copy is kept in step like any other.
    const TagDictionary original = file.originalExifData();
    return std::any_of(original.keyBegin(), original.keyEnd(),
                       [](const QString &k) { return k.startsWith(u"IPTC:"); });
}

void LinkedForms::remove(ExifFileInfo &file) const
{
    for (const QString &key : m_keys)
        file.removeExifValue(key);
}

void LinkedForms::restoreOriginal(ExifFileInfo &file) const
{
    const TagDictionary original = file.originalExifData();
    for (const QString &key : m_keys) {
        const QString value = original.value(key);
        if (value.isNull())
            file.removeExifValue(key);
        else
            file.setExifValue(key, value);
    }
}

QString LinkedForms::standardOfKey(const QString &key)
{
    if (key.startsWith(u"XMP"))
        return QStringLiteral("XMP");
    if (key.startsWith(u"IPTC"))
        return QStringLiteral("IPTC");
    return QStringLiteral("EXIF");
}
