#include "controls/numberformattervalidator.h"

#include "values/numberformatter.h"

#include <QStringBuilder>

NumberFormatterValidator::NumberFormatterValidator(std::shared_ptr<const NumberFormatter> formatter,
                                                   QObject *parent)
    : QValidator(parent)
    , m_formatter(std::move(formatter))
{
}

QValidator::State NumberFormatterValidator::validate(QString &input, int &) const
{
    const QString trimmed = input.trimmed();
    if (trimmed.isEmpty() || m_formatter->numberFromString(trimmed))
        return Acceptable;
    const QLocale &locale = m_formatter->locale();
    const QString allowed = locale.decimalPoint() % locale.groupSeparator() %
                            locale.negativeSign() % locale.positiveSign() % u".-+eE";
    for (const QChar c : trimmed) {
        if (!c.isDigit() && !c.isSpace() && !allowed.contains(c))
            return Invalid;
    }
    return Intermediate;
}
