#include "catalogue/readlines.h"

#include <QString>

QStringList readLines(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    QStringList lines;
    qsizetype start = 0;
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = text.at(i).unicode();
        // NEL is a line terminator too, as ExifTool may pass it through from tag values.
        if (c != u'\n' && c != u'\r' && c != u'\u0085' && c != u'\u2028' && c != u'\u2029')
            continue;
        lines.append(text.mid(start, i - start));
        if (c == u'\r' && i + 1 < size && text.at(i + 1) == u'\n')
            ++i;
        start = i + 1;
    }
    if (start < size)
        lines.append(text.mid(start));
    return lines;
}
