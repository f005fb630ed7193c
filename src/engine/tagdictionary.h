#pragma once

#include <QHash>
#include <QString>

// One file's tags: "Group:TagName" -> value text. Lists are one text, items joined by commas
// with commas inside an item escaped by a backslash; empty values are absent.
using TagDictionary = QHash<QString, QString>;

// Makes each value of fresh that equals earlier's value of the same tag share earlier's text, so
// that a file read again holds once what did not change (thousands of saved files each holding
// their own copy of every value would add up).
inline void shareUnchangedValues(TagDictionary &fresh, const TagDictionary &earlier)
{
    for (auto it = fresh.begin(); it != fresh.end(); ++it) {
        const auto before = earlier.constFind(it.key());
        if (before != earlier.cend() && before.value() == it.value())
            it.value() = before.value();
    }
}
