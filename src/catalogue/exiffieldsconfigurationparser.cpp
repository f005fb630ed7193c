#include "catalogue/exiffieldsconfigurationparser.h"

#include "catalogue/stringtables.h"
#include "values/logging.h"
#include "values/leadinginteger.h"

#include <QFile>
#include <QXmlStreamReader>

#include <limits>

namespace {

// Absent distinctly from empty: an empty "datatype" is logged, an absent one is not.
std::optional<QString> attribute(const QXmlStreamAttributes &attributes, QLatin1StringView name)
{
    for (const QXmlStreamAttribute &attr : attributes) {
        if (attr.qualifiedName() == name) {
            const QString value = attr.value().toString();
            return value.isNull() ? QStringLiteral("") : value;
        }
    }
    return std::nullopt;
}

QString localizedText(const StringTables &tables, const QString &key)
{
    const QString custom = tables.lookup(QStringLiteral("CustomFields"), key).value_or(QString());
    // An override that merely repeats its key counts as missing.
    if (!custom.isEmpty() && custom.toLower() != key.toLower())
        return custom;
    return tables.localizedString(key, QStringLiteral("Fields"), key);
}

} // namespace

void ExifFieldsConfigurationParser::parseConfiguration()
{
    parseFile(QStringLiteral(":/Fields.xml"), true);
}

void ExifFieldsConfigurationParser::parseFile(const QString &path, bool localizeData)
{
    m_fields.clear();
    m_currentElementName.clear();
    m_textBuffer.reset();
    m_currentGroupName = QString();
    m_currentGroup.reset();
    m_currentSectionName = QString();
    m_currentSection.reset();
    m_currentField.reset();
    m_currentFieldValues.reset();

    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        QXmlStreamReader reader(file.readAll());
        // Prefixed names are taken as they stand, undeclared prefixes included.
        reader.setNamespaceProcessing(false);
        while (!reader.atEnd()) {
            switch (reader.readNext()) {
            case QXmlStreamReader::StartElement:
                didStartElement(reader.qualifiedName().toString(), reader.attributes());
                break;
            case QXmlStreamReader::EndElement:
                didEndElement(reader.qualifiedName().toString());
                break;
            case QXmlStreamReader::Characters:
                foundCharacters(reader.text());
                break;
            default:
                break;
            }
        }
    }
    if (localizeData)
        localizeFields();
}

void ExifFieldsConfigurationParser::didStartElement(const QString &elementName,
                                                    const QXmlStreamAttributes &attributes)
{
    m_currentElementName = elementName;
    m_textBuffer = QStringLiteral("");

    if (elementName == QLatin1StringView("field")) {
        startField(attributes);
    } else if (elementName == QLatin1StringView("member") && m_currentField) {
        ExifField::Member member;
        member.name = attribute(attributes, QLatin1StringView("name")).value_or(QString());
        const QString kind = attribute(attributes, QLatin1StringView("kind")).value_or(QString());
        if (kind == u"list")
            member.kind = ExifField::Member::Kind::List;
        else if (kind == u"lang-alt")
            member.kind = ExifField::Member::Kind::LangAlt;
        else if (kind == u"structure")
            member.kind = ExifField::Member::Kind::Structure;
        QList<ExifField::Member> members = m_currentField->members();
        members.append(member);
        m_currentField->setMembers(members);
    } else if (elementName == QLatin1StringView("section")) {
        m_currentSectionName = attribute(attributes, QLatin1StringView("name")).value_or(QString());
        m_currentSection = std::make_shared<Section>(m_currentSectionName);
        if (m_currentGroup)
            m_currentGroup->appendSection(m_currentSection);
    } else if (elementName == QLatin1StringView("group")) {
        m_currentGroupName = attribute(attributes, QLatin1StringView("name")).value_or(QString());
        m_currentGroup = std::make_shared<Group>(m_currentGroupName);
        m_groups.append(m_currentGroup);
    }
}

void ExifFieldsConfigurationParser::startField(const QXmlStreamAttributes &attributes)
{
    const QString name = attribute(attributes, QLatin1StringView("name")).value_or(QString());
    if (name.isEmpty())
        return;
    if (!name.contains(u':')) {
        qCWarning(lcTagsmith).noquote()
            << QStringLiteral("Field element contains an invalid name: %1").arg(name);
        return;
    }
    auto field = std::make_shared<ExifField>();
    field->setGroupName(m_currentGroupName);
    field->setSectionName(m_currentSectionName);
    field->setXmlName(name);
    // Read in this order so that log lines come out as they always have.
    field->setWritable(attribute(attributes, QLatin1StringView("writable")) !=
                       QLatin1StringView("false"));
    if (const auto representation = attribute(attributes, QLatin1StringView("representation")))
        field->setDataRepresentation(fieldDataRepresentationFromString(*representation));
    if (const auto type = attribute(attributes, QLatin1StringView("datatype")))
        field->setDataType(fieldDataTypeFromString(*type));
    field->setEnabled(attribute(attributes, QLatin1StringView("enabled")) !=
                      QLatin1StringView("false"));
    if (const auto decimals = attribute(attributes, QLatin1StringView("decimals")))
        field->setDecimals(leadingInteger(*decimals));
    if (const auto maker = attribute(attributes, QLatin1StringView("maker")))
        field->setMaker(*maker);
    if (const auto bytes = attribute(attributes, QLatin1StringView("maxbytes")))
        field->setMaxBytes(leadingInteger(*bytes));
    field->setStructureList(attribute(attributes, QLatin1StringView("list")) ==
                            QLatin1StringView("true"));
    if (const auto forms = attribute(attributes, QLatin1StringView("forms")))
        field->setFormKeys(forms->split(u' ', Qt::SkipEmptyParts));

    m_currentField = field;
    m_fields.append(field);
    if (m_currentSection)
        m_currentSection->appendField(field);
}

void ExifFieldsConfigurationParser::didEndElement(const QString &elementName)
{
    if (elementName == QLatin1StringView("value")) {
        if (m_textBuffer) {
            if (!m_currentFieldValues)
                m_currentFieldValues.emplace();
            m_currentFieldValues->insert(*m_textBuffer, *m_textBuffer);
        }
    } else if (elementName == QLatin1StringView("field")) {
        if (m_currentFieldValues) {
            if (m_currentField)
                m_currentField->setValues(std::move(m_currentFieldValues));
            m_currentFieldValues.reset();
        }
        m_currentField.reset();
    } else if (elementName == QLatin1StringView("section")) {
        m_currentSectionName = QString();
        m_currentSection.reset();
    } else if (elementName == QLatin1StringView("group")) {
        m_currentGroupName = QString();
        m_currentGroup.reset();
    }
    m_textBuffer.reset();
    m_currentElementName = QString();
}

void ExifFieldsConfigurationParser::foundCharacters(QStringView characters)
{
    if (m_textBuffer)
        m_textBuffer->append(characters);
}

void ExifFieldsConfigurationParser::localizeFields()
{
    localizeFields(StringTables::instance());
}

void ExifFieldsConfigurationParser::localizeFields(const StringTables &tables)
{
    for (const ExifFieldPtr &field : std::as_const(m_fields)) {
        field->setTitle(localizedText(tables, field->xmlName()));
        if (!field->values())
            continue;
        QHash<QString, QString> values = *field->values();
        for (auto it = values.begin(); it != values.end(); ++it)
            it.value() = localizedText(tables, field->xmlName() + u':' + it.key());
        field->setValues(std::move(values));
    }
}
