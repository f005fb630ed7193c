#pragma once

// Sheets' texts are looked up with localized() from here.
#include "catalogue/stringtables.h"

#include <QString>

class QMessageBox;
class QWidget;

// A window-modal question over window that deletes itself when answered; the caller adds the
// buttons and opens it.
QMessageBox *makeSheet(QWidget *window, const QString &text, const QString &informativeText);
