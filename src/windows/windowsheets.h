#pragma once

#include <QString>

class QMessageBox;
class QWidget;

// The text under a string-table key (or English text) in the user's language.
QString localized(const QString &key);

// A window-modal question over window that deletes itself when answered; the caller adds the
// buttons and opens it.
QMessageBox *makeSheet(QWidget *window, const QString &text, const QString &informativeText);
