#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

// List values of a tag dictionary: items joined by commas, a comma inside an item escaped by a
// backslash (how the report reader stores ExifTool's list items).

// The items of a list value in their order, duplicates dropped after their first appearance.
// Items that are empty or only blanks are dropped: ExifTool takes an empty assignment as "delete
// the whole list". A backslash not followed by a comma stays in the item. Every character of an
// item is kept as it is.
QStringList splitStringsItems(const QString &text);
// The same items as a set: order and duplicates do not matter when two lists are compared.
QSet<QString> splitStringsValue(const QString &text);
// The inverse of splitStringsItems for items that are not blank.
QString joinStringsValue(const QStringList &items);

// The list with the given items appended where it lacks them; the list itself, untouched (even
// when null), when it has them all.
QString withStringsItemsAdded(const QString &list, const QStringList &added);

// The values of a multi-enum field: pieces between whitespace or line breaks, empty ones dropped.
QSet<QString> splitMultiEnumValue(const QString &text);
