#include "catalogue/fieldtypes.h"

#include "values/logging.h"

#include <array>
#include <utility>

FieldDataType fieldDataTypeFromString(const QString &text)
{
    static const std::array<std::pair<QLatin1StringView, FieldDataType>, 14> keywords{{
        {QLatin1StringView("string"), FieldDataType::String},
        {QLatin1StringView("int8"), FieldDataType::Int8},
        {QLatin1StringView("uint8"), FieldDataType::UInt8},
        {QLatin1StringView("int16"), FieldDataType::Int16},
        {QLatin1StringView("uint16"), FieldDataType::UInt16},
        {QLatin1StringView("int32"), FieldDataType::Int32},
        {QLatin1StringView("uint32"), FieldDataType::UInt32},
        {QLatin1StringView("float"), FieldDataType::Float},
        {QLatin1StringView("double"), FieldDataType::Double},
        {QLatin1StringView("udouble"), FieldDataType::UDouble},
        {QLatin1StringView("binary"), FieldDataType::Binary},
        {QLatin1StringView("enum"), FieldDataType::Enum},
        {QLatin1StringView("rdf-bag"), FieldDataType::RdfBag},
        {QLatin1StringView("lang-alt"), FieldDataType::LangAlt},
    }};
    for (const auto &[keyword, type] : keywords) {
        if (text == keyword)
            return type;
    }
    qCWarning(lcTagsmith).noquote() << QStringLiteral("Unknown FieldDataType: %1").arg(text);
    return FieldDataType::Unknown;
}

FieldDataRepresentation fieldDataRepresentationFromString(const QString &text)
{
    static const std::array<std::pair<QLatin1StringView, FieldDataRepresentation>, 10> keywords{{
        {QLatin1StringView("enum"), FieldDataRepresentation::Enum},
        {QLatin1StringView("date"), FieldDataRepresentation::Date},
        {QLatin1StringView("datetime"), FieldDataRepresentation::DateTime},
        {QLatin1StringView("number"), FieldDataRepresentation::Number},
        {QLatin1StringView("multi-enum"), FieldDataRepresentation::MultiEnum},
        {QLatin1StringView("fraction"), FieldDataRepresentation::Fraction},
        {QLatin1StringView("longitude"), FieldDataRepresentation::Longitude},
        {QLatin1StringView("latitude"), FieldDataRepresentation::Latitude},
        {QLatin1StringView("strings"), FieldDataRepresentation::Strings},
        {QLatin1StringView("structure"), FieldDataRepresentation::Structure},
    }};
    for (const auto &[keyword, representation] : keywords) {
        if (text == keyword)
            return representation;
    }
    return FieldDataRepresentation::None;
}
