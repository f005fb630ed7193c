#pragma once

#include "catalogue/exiffield.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

class QXmlStreamAttributes;
class StringTables;

// Loads the field catalogue file. Bad entries are logged and skipped; malformed XML is not
// reported, the catalogue simply ends where the error is.
class ExifFieldsConfigurationParser
{
public:
    // Parses ":/Fields.xml" and localises it.
    void parseConfiguration();
    // Empties the fields but not the groups: a second parse appends further groups.
    void parseFile(const QString &path, bool localizeData);

    const QList<ExifFieldPtr> &fields() const { return m_fields; }
    const QList<GroupPtr> &groups() const { return m_groups; }

    // Titles and value texts from the "CustomFields" table over the "Fields" table.
    void localizeFields();
    void localizeFields(const StringTables &tables);

private:
    void didStartElement(const QString &elementName, const QXmlStreamAttributes &attributes);
    void didEndElement(const QString &elementName);
    void foundCharacters(QStringView characters);
    void startField(const QXmlStreamAttributes &attributes);

    QList<ExifFieldPtr> m_fields;
    QList<GroupPtr> m_groups;
    QString m_currentElementName;
    // Absent after an end tag: text outside any element start is lost.
    std::optional<QString> m_textBuffer;
    QString m_currentGroupName;
    GroupPtr m_currentGroup;
    QString m_currentSectionName;
    SectionPtr m_currentSection;
    ExifFieldPtr m_currentField;
    std::optional<QHash<QString, QString>> m_currentFieldValues;
};
