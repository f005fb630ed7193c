#pragma once

#include "catalogue/fieldtypes.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class NumberFormatter;

// One catalogue field: a tag key (Group:TagName) with its type, representation and, for
// enumerations, the raw values with their display texts. Immutable once the catalogue is loaded.
// A null QString means "absent".
class ExifField
{
public:
    const QString &groupName() const { return m_groupName; }
    void setGroupName(const QString &name) { m_groupName = name; }
    const QString &sectionName() const { return m_sectionName; }
    void setSectionName(const QString &name) { m_sectionName = name; }
    const QString &xmlName() const { return m_xmlName; }
    void setXmlName(const QString &name) { m_xmlName = name; }
    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    FieldDataType dataType() const { return m_dataType; }
    void setDataType(FieldDataType type) { m_dataType = type; }
    FieldDataRepresentation dataRepresentation() const { return m_dataRepresentation; }
    void setDataRepresentation(FieldDataRepresentation r) { m_dataRepresentation = r; }
    // Raw value as ExifTool writes it -> display text; nullopt for a field without values.
    const std::optional<QHash<QString, QString>> &values() const { return m_values; }
    void setValues(std::optional<QHash<QString, QString>> values) { m_values = std::move(values); }
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    bool writable() const { return m_writable; }
    void setWritable(bool writable) { m_writable = writable; }
    qint64 decimals() const { return m_decimals; }
    void setDecimals(qint64 decimals) { m_decimals = decimals; }
    const QString &maker() const { return m_maker; }
    void setMaker(const QString &maker) { m_maker = maker; }
    // The most bytes (UTF-8) a value, or each item of a list, may take: IPTC-IIM's dataset
    // limits, which ExifTool enforces by cutting the text. 0: no limit.
    qint64 maxBytes() const { return m_maxBytes; }
    void setMaxBytes(qint64 bytes) { m_maxBytes = bytes; }
    // The items of value (the value itself for a field that is not a list) longer than maxBytes.
    QStringList itemsOverByteLimit(const QString &value) const;

    // For a structure: its members as ExifTool names them, each with how it holds its value.
    struct Member
    {
        enum class Kind { Text, List, LangAlt, Structure };
        QString name;
        Kind kind = Kind::Text;
    };
    const QList<Member> &members() const { return m_members; }
    void setMembers(QList<Member> members) { m_members = std::move(members); }
    // Whether the structure's value is a list of items rather than one.
    bool isStructureList() const { return m_isStructureList; }
    void setStructureList(bool on) { m_isStructureList = on; }

    // The other tags that hold this field's property in other standards (the caption's
    // IPTC-IIM and EXIF copies of XMP's description), as the catalogue lists them.
    const QStringList &formKeys() const { return m_formKeys; }
    void setFormKeys(QStringList keys) { m_formKeys = std::move(keys); }
    // The same while one row shows the property and writes every copy; empty while each tag
    // has its own row.
    const QStringList &linkedKeys() const { return m_linkedKeys; }
    void setLinkedKeys(QStringList keys) { m_linkedKeys = std::move(keys); }
    // For a copy that another field's row shows and writes: that field's key; empty otherwise.
    const QString &rowKey() const { return m_rowKey; }
    void setRowKey(QString key) { m_rowKey = std::move(key); }

    // A new formatter for this field's numbers, in the user's locale.
    std::unique_ptr<NumberFormatter> createFormatter() const;

private:
    QString m_groupName;
    QString m_sectionName;
    QString m_xmlName;
    QString m_title;
    FieldDataType m_dataType = FieldDataType::Unknown;
    FieldDataRepresentation m_dataRepresentation = FieldDataRepresentation::None;
    std::optional<QHash<QString, QString>> m_values;
    bool m_enabled = false;
    bool m_writable = true;
    qint64 m_decimals = -1;
    QString m_maker;
    qint64 m_maxBytes = 0;
    QList<Member> m_members;
    bool m_isStructureList = false;
    QStringList m_formKeys;
    QStringList m_linkedKeys;
    QString m_rowKey;
};

using ExifFieldPtr = std::shared_ptr<ExifField>;

class Section
{
public:
    explicit Section(QString name = QString()) : m_name(std::move(name)) {}
    const QString &name() const { return m_name; }
    const QList<ExifFieldPtr> &fields() const { return m_fields; }
    void appendField(ExifFieldPtr field) { m_fields.append(std::move(field)); }

private:
    QString m_name;
    QList<ExifFieldPtr> m_fields;
};

using SectionPtr = std::shared_ptr<Section>;

class Group
{
public:
    explicit Group(QString name = QString()) : m_name(std::move(name)) {}
    const QString &name() const { return m_name; }
    const QList<SectionPtr> &sections() const { return m_sections; }
    void appendSection(SectionPtr section) { m_sections.append(std::move(section)); }
    // Never filled by the loader and read by nobody; kept as an empty member.
    const QHash<QString, SectionPtr> &sectionsMap() const { return m_sectionsMap; }

private:
    QString m_name;
    QList<SectionPtr> m_sections;
    QHash<QString, SectionPtr> m_sectionsMap;
};

using GroupPtr = std::shared_ptr<Group>;
