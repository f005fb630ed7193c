#include "editors/rightedgenote.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

QLabel *addRightEdgeNote(QLineEdit *editor)
{
    auto *note = new QLabel(editor);
    QFont font = editor->font();
    font.setItalic(true);
    note->setFont(font);
    note->setAlignment(Qt::AlignVCenter | Qt::AlignRight);
    // A second note (bytes left beside the other languages) goes left of the first.
    auto *layout = qobject_cast<QHBoxLayout *>(editor->layout());
    if (!layout) {
        layout = new QHBoxLayout(editor);
        layout->setContentsMargins(0, 0, 6, 0);
        layout->setSpacing(8);
        layout->addStretch();
    }
    layout->insertWidget(1, note);
    note->hide();
    return note;
}

void showBytesLeft(QLabel *note, qint64 limit, const QString &text, bool typing)
{
    if (!note)
        return;
    const qint64 left = limit - text.toUtf8().size();
    note->setText(
        left >= 0 ? QCoreApplication::translate("TextEditor", "%n byte(s) left", nullptr, int(left))
                  : QCoreApplication::translate("TextEditor", "%n byte(s) too many", nullptr,
                                                int(-left)));
    // In the field's own text colour, so it reads as well as the value beside it.
    QPalette palette = note->palette();
    palette.setColor(QPalette::WindowText,
                     left >= 0 ? note->parentWidget()->palette().color(QPalette::Text)
                               : QColor(0xff, 0x8a, 0x80));
    note->setPalette(palette);
    note->setVisible(!text.isEmpty() && (typing || left < 0));
}
