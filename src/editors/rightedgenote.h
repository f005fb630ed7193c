#pragma once

#include <QString>

class QLabel;
class QLineEdit;

// A note inside a line edit's right edge, in the edit's font made italic; hidden at first. A
// later note sits left of the earlier ones.
QLabel *addRightEdgeNote(QLineEdit *editor);

// For a text IPTC-IIM keeps in a dataset of limit bytes, which ExifTool would cut: shows how many
// bytes text leaves, or how many it has too many in a warning colour. Shown while typing and
// whenever over the limit, hidden otherwise and for an empty text.
void showBytesLeft(QLabel *note, qint64 limit, const QString &text, bool typing);
