#include "values/fractionvalue.h"

#include "values/leadingnumber.h"

#include <QStringList>

#include <cmath>

QString FractionValue::displayText(const QString &value)
{
    if (value.isEmpty())
        return value;
    const double number = leadingNumber(value);
    return number < 1 ? QString::asprintf("1/%.0f", 1.0 / number) : value;
}

std::optional<QString> FractionValue::storedText(const QString &typed)
{
    if (!typed.contains(u'/'))
        return typed;
    const QStringList parts = typed.split(u'/');
    if (parts.size() != 2)
        return std::nullopt;
    const double quotient = leadingNumber(parts.at(0)) / leadingNumber(parts.at(1));
    // ExifTool writes "inf" as the rational 1/0 and refuses "nan": neither is a value to save.
    if (!std::isfinite(quotient))
        return std::nullopt;
    return QString::asprintf("%f", quotient);
}
