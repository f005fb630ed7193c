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
}
