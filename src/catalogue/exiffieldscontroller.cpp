#include "catalogue/exiffieldscontroller.h"

#include "catalogue/exiffieldsconfigurationparser.h"

ExifFieldsController *ExifFieldsController::defaultInstance()
{
    static ExifFieldsController controller;
    return &controller;
}

void ExifFieldsController::initializeConfigurations()
{
    ExifFieldsConfigurationParser parser;
    parser.parseConfiguration();
    take(parser);
}

void ExifFieldsController::initializeConfigurations(const QString &path, bool localizeData)
{
    ExifFieldsConfigurationParser parser;
    parser.parseFile(path, localizeData);
    take(parser);
}

void ExifFieldsController::take(const ExifFieldsConfigurationParser &parser)
{
    m_groups = parser.groups();
    m_configurations = parser.fields();
    QHash<QString, ExifFieldPtr> map;
    // Walked in file order so that the later of two fields with the same key wins.
    for (const ExifFieldPtr &field : std::as_const(m_configurations))
        map.insert(field->xmlName(), field);
    m_configurationsMap = map;
    setLinksForms(m_linksForms);
}

ExifFieldPtr ExifFieldsController::fieldOf(const QString &key) const
{
    if (ExifFieldPtr found = m_configurationsMap.value(key))
        return found;
    if (!key.startsWith(u"XMP-"))
        return nullptr;
    const qsizetype colon = key.indexOf(u':');
    const qsizetype dash = colon > 0 ? key.indexOf(u'-', colon) : -1;
    if (dash < 0)
        return nullptr;
    ExifFieldPtr alternative = m_configurationsMap.value(key.left(dash));
    return alternative && alternative->dataType() == FieldDataType::LangAlt ? alternative : nullptr;
}

void ExifFieldsController::setLinksForms(bool on)
{
    m_linksForms = on;
    for (const ExifFieldPtr &field : std::as_const(m_configurations)) {
        QStringList linked;
        for (const QString &key : field->formKeys()) {
            // A copy missing from the catalogue has no row to hide and no type to check.
            if (const ExifFieldPtr form = m_configurationsMap.value(key)) {
                form->setRowKey(on ? field->xmlName() : QString());
                linked.append(key);
            }
        }
        field->setLinkedKeys(on ? linked : QStringList());
    }
}
