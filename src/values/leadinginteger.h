#pragma once

#include <QStringView>
#include <QtGlobal>

// Reads the leading integer as C's strtoll does: blanks, an optional sign, digits up to the
// first non-digit; 0 when there are none, saturated instead of overflowing.
qint64 leadingInteger(QStringView text);
