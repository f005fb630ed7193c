#include "values/leadingnumber.h"

#include <QByteArray>

double leadingNumber(QStringView value)
{
    // Hand-scanned rather than strtod: the C locale of a Qt program follows the user's, and a
    // German one would stop at the full stop.
    const qsizetype size = value.size();
    qsizetype i = 0;
    while (i < size && value.at(i).isSpace())
        ++i;
    const qsizetype start = i;
    if (i < size && (value.at(i) == QLatin1Char('+') || value.at(i) == QLatin1Char('-')))
        ++i;
    const auto isDigit = [&](qsizetype at) {
        return at < size && value.at(at) >= QLatin1Char('0') && value.at(at) <= QLatin1Char('9');
    };
    bool hasDigits = false;
    while (isDigit(i)) {
        ++i;
        hasDigits = true;
    }
    if (i < size && value.at(i) == QLatin1Char('.')) {
        ++i;
        while (isDigit(i)) {
            ++i;
            hasDigits = true;
        }
    }
    if (!hasDigits)
        return 0;
    qsizetype end = i;
    if (i < size && (value.at(i) == QLatin1Char('e') || value.at(i) == QLatin1Char('E'))) {
        qsizetype j = i + 1;
        if (j < size && (value.at(j) == QLatin1Char('+') || value.at(j) == QLatin1Char('-')))
            ++j;
        if (isDigit(j)) {
            while (isDigit(j))
                ++j;
            end = j;
        }
    }
    bool ok = false;
    const double number = value.mid(start, end - start).toLatin1().toDouble(&ok);
    return ok ? number : 0;
}
