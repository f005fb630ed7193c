#include "windows/windowsheets.h"

#include "catalogue/stringtables.h"

#include <QMessageBox>

QMessageBox *makeSheet(QWidget *window, const QString &text, const QString &informativeText)
{
    auto *sheet = new QMessageBox(window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setIcon(QMessageBox::Warning);
    sheet->setText(text);
    sheet->setInformativeText(informativeText);
    return sheet;
}
