#include "values/numberformatter.h"

#include <QStringBuilder>

#include <algorithm>
#include <cmath>

NumberFormatter::NumberFormatter(QLocale locale)
    : m_locale(std::move(locale))
{
}

std::optional<double> NumberFormatter::numberFromString(const QString &text) const
{
    QString input = text.trimmed();
    // QLocale itself skips blanks around a number; a strict formatter must not.
    if (input.isEmpty() || (!m_lenient && input.size() != text.size()))
        return std::nullopt;

    QLocale locale = m_localizesFormat ? m_locale : QLocale::c();
    if (m_lenient) {
        // People type the ASCII signs whatever their locale's own minus sign is.
        if (input.startsWith(u'-') && locale.negativeSign() != QStringLiteral("-"))
            input.replace(0, 1, locale.negativeSign());
        if (input.startsWith(u'+'))
            input.remove(0, 1);
        // Locales that group with a (narrow) no-break space: accept a plain space as well.
        const QString group = locale.groupSeparator();
        if (group == QStringLiteral("\u00a0") || group == QStringLiteral("\u202f"))
            input.replace(u' ', group);
    }
    // Qt checks that separators sit every three digits, so in de_DE "1.5" is refused rather
    // than read as fifteen.
    locale.setNumberOptions(m_lenient ? QLocale::DefaultNumberOptions
                                      : QLocale::RejectGroupSeparator);
    bool ok = false;
    const double number = locale.toDouble(input, &ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    // Whole numbers only means no decimal mark and no exponent at all, "12.0" included.
    if (!m_allowsFloats && (input.contains(locale.decimalPoint()) ||
                            input.contains(locale.exponential(), Qt::CaseInsensitive) ||
                            number != std::trunc(number))) {
        return std::nullopt;
    }
    if (m_minimum && number < *m_minimum)
        return std::nullopt;
    if (m_maximum && number > *m_maximum)
        return std::nullopt;
    return number;
}

QString NumberFormatter::stringFromNumber(double number) const
{
    const QLocale locale = m_localizesFormat ? m_locale : QLocale::c();
    if (!std::isfinite(number))
        return locale.toString(number);
    const int maxDigits = std::max(0, m_maximumFractionDigits);
    const int minDigits = std::clamp(m_minimumFractionDigits, 0, maxDigits);
    QString result = locale.toString(number, 'f', maxDigits);
    if (maxDigits > minDigits) {
        const QString decimal = locale.decimalPoint();
        const qsizetype point = result.lastIndexOf(decimal);
        if (point >= 0) {
            qsizetype end = result.size();
            const qsizetype keep = point + decimal.size() + minDigits;
            const QChar zero = locale.zeroDigit().at(0);
            while (end > keep && result.at(end - 1) == zero)
                --end;
            if (end == point + decimal.size())
                end = point;
            result.truncate(end);
        }
    }
    if (m_alwaysShowsDecimalSeparator && !result.contains(locale.decimalPoint()))
        result += locale.decimalPoint();
    // Rounding a small negative number to zero digits must not print "-0".
    if (locale.toDouble(result) == 0.0 && result.startsWith(locale.negativeSign()))
        result.remove(0, locale.negativeSign().size());
    return result;
}

NumberFormatter::Input NumberFormatter::classifyInput(const QString &text) const
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || numberFromString(trimmed))
        return Input::Acceptable;
    // The C forms are allowed too: a value pasted from ExifTool's output should not be blocked
    // halfway.
    const QString allowed = m_locale.decimalPoint() % m_locale.groupSeparator() %
                            m_locale.negativeSign() % m_locale.positiveSign() % u".-+eE";
    for (const QChar c : trimmed) {
        if (!c.isDigit() && !c.isSpace() && !allowed.contains(c))
            return Input::Invalid;
    }
    return Input::Intermediate;
}
