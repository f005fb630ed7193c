#pragma once

#include <QString>

class StringUtils
{
public:
    // Where absence means empty: a null text becomes "" so callers never show or compare a null.
    static QString defaultString(const QString &text)
    {
        return text.isNull() ? QString(u""_qs) : text;
    }
};
