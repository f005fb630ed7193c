#include "controls/numberformattervalidator.h"

#include "values/numberformatter.h"

NumberFormatterValidator::NumberFormatterValidator(std::shared_ptr<const NumberFormatter> formatter,
                                                   QObject *parent)
    : QValidator(parent)
    , m_formatter(std::move(formatter))
{
}

QValidator::State NumberFormatterValidator::validate(QString &input, int &) const
{
    switch (m_formatter->classifyInput(input)) {
    case NumberFormatter::Input::Acceptable:
        return Acceptable;
    case NumberFormatter::Input::Intermediate:
        return Intermediate;
    case NumberFormatter::Input::Invalid:
        break;
    }
    return Invalid;
}
