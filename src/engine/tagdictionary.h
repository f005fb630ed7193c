#pragma once

#include <QHash>
#include <QString>

// One file's tags: "Group:TagName" -> value text. Lists are one text, items joined by commas
// with commas inside an item escaped by a backslash; empty values are absent.
using TagDictionary = QHash<QString, QString>;
