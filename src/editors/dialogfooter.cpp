#include "editors/dialogfooter.h"

#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>

QLabel *addDialogFooter(QDialog *dialog, QBoxLayout *layout)
{
    auto *error = new QLabel(dialog);
    error->setWordWrap(true);
    error->setStyleSheet(u"color: rgb(255, 138, 128);"_qs);
    error->hide();
    layout->addWidget(error);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    layout->addWidget(buttons);
    return error;
}
