#include "catalogue/exiffield.h"

#include "values/numberformatter.h"
#include "values/taglist.h"

#include <algorithm>
#include <limits>

namespace {

struct Bounds
{
    double minimum;
    double maximum;
};

std::optional<Bounds> boundsOf(FieldDataType type)
{
    switch (type) {
    case FieldDataType::Int8:
        return Bounds{-128, 127};
    case FieldDataType::UInt8:
        return Bounds{0, 255};
    case FieldDataType::Int16:
        return Bounds{-32768, 32767};
    case FieldDataType::UInt16:
        return Bounds{0, 65535};
    case FieldDataType::Int32:
        return Bounds{-2147483648.0, 2147483647.0};
    case FieldDataType::UInt32:
        return Bounds{0, 4294967295.0};
    // The real types' minima are the smallest positive normals, not the most negative values:
    // zero and negatives are refused for "float" and "double". Only "udouble" admits zero.
    case FieldDataType::Float:
        return Bounds{std::numeric_limits<float>::min(), std::numeric_limits<float>::max()};
    case FieldDataType::Double:
        return Bounds{std::numeric_limits<double>::min(), std::numeric_limits<double>::max()};
    case FieldDataType::UDouble:
        return Bounds{0.0, std::numeric_limits<double>::max()};
    default:
        return std::nullopt;
    }
}

bool isReal(FieldDataType type)
{
    return type == FieldDataType::Float || type == FieldDataType::Double ||
           type == FieldDataType::UDouble;
}

} // namespace

std::unique_ptr<NumberFormatter> ExifField::createFormatter() const
{
    auto formatter = std::make_unique<NumberFormatter>(QLocale());
    formatter->setLenient(true);
    if (!isReal(m_dataType)) {
        formatter->setMinimumFractionDigits(0);
        formatter->setMaximumFractionDigits(0);
        formatter->setGeneratesDecimalNumbers(false);
        formatter->setAllowsFloats(false);
    } else {
        if (m_decimals != -1) {
            formatter->setMinimumFractionDigits(0);
            // A negative count other than -1 means nothing sensible; show no fraction then.
            formatter->setMaximumFractionDigits(int(std::clamp<qint64>(m_decimals, 0, 340)));
        }
        formatter->setGeneratesDecimalNumbers(true);
        formatter->setAllowsFloats(true);
    }
    formatter->setLocalizesFormat(true);
    if (const auto bounds = boundsOf(m_dataType)) {
        formatter->setMinimum(bounds->minimum);
        formatter->setMaximum(bounds->maximum);
    }
    return formatter;
}

QStringList ExifField::itemsOverByteLimit(const QString &value) const
{
    if (m_maxBytes <= 0 || value.size() * 3 <= m_maxBytes)
        return {};
    const QStringList items = m_dataRepresentation == FieldDataRepresentation::Strings
                                  ? splitStringsItems(value)
                                  : QStringList{value};
    QStringList over;
    for (const QString &item : items) {
        if (item.toUtf8().size() > m_maxBytes)
            over.append(item);
    }
    return over;
}
