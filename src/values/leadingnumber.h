#pragma once

#include <QStringView>

// The leading decimal number of a value as ExifTool prints it: blanks, a sign, digits with a
// full stop whatever the locale, an exponent; trailing text is ignored and no number gives 0.
double leadingNumber(QStringView value);
