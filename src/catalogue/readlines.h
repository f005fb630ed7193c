#pragma once

#include <QByteArray>
#include <QStringList>

// Decodes UTF-8 bytes and splits them at any line terminator (\n, \r\n, \r, U+2028, U+2029),
// dropping the terminators. A final terminator does not add an empty last line.
QStringList readLines(const QByteArray &bytes);
