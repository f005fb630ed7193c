#include "values/taglist.h"

QStringList splitStringsItems(const QString &text)
{
    QStringList items;
    QSet<QString> seen;
    auto take = [&](const QString &item) {
        if (!item.trimmed().isEmpty() && !seen.contains(item)) {
            seen.insert(item);
            items.append(item);
        }
    };

    QString item;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u',') {
            take(item);
            item.clear();
        } else if (c == u'\\' && i + 1 < text.size() && text.at(i + 1) == u',') {
            item.append(u',');
            ++i;
        } else {
            item.append(c);
        }
    }
    take(item);
    return items;
}

QSet<QString> splitStringsValue(const QString &text)
{
    const QStringList items = splitStringsItems(text);
    return QSet<QString>(items.cbegin(), items.cend());
}

QString joinStringsValue(const QStringList &items)
{
    QString text;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i > 0)
            text.append(u',');
        text.append(QString(items.at(i)).replace(u',', QStringLiteral("\\,")));
    }
    return text;
}

QString withStringsItemsAdded(const QString &list, const QStringList &added)
{
    QStringList items = splitStringsItems(list);
    const qsizetype before = items.size();
    for (const QString &item : added) {
        if (!item.trimmed().isEmpty() && !items.contains(item))
            items.append(item);
    }
    return items.size() == before ? list : joinStringsValue(items);
}

QSet<QString> splitMultiEnumValue(const QString &text)
{
    QSet<QString> values;
    qsizetype start = -1;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        const bool separator = i == text.size() || text.at(i).isSpace();
        if (separator && start >= 0) {
            values.insert(text.mid(start, i - start));
            start = -1;
        } else if (!separator && start < 0) {
            start = i;
        }
    }
    return values;
}
