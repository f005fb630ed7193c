#pragma once

#include "catalogue/exiffield.h"
#include "values/structvalue.h"

#include <QDialog>
#include <QList>
#include <QPair>
#include <QString>

#include <optional>

class QLabel;
class QLineEdit;

// One item of a structure row (a location, a person, an artwork...) as a small form of its
// members. Opened over several files, a member whose text differs between their items shows
// "Multiple values" and is left as each file has it unless typed over.
class StructItemDialog : public QDialog
{
    Q_OBJECT

public:
    // items: the item in each file that has it (one for a single file or a new item: empty).
    StructItemDialog(const ExifField &field, const QString &title, const QList<StructValue> &items,
                     QWidget *parent = nullptr);

    QLineEdit *memberField(const QString &name) const;
    QString errorText() const;

    // A member typed into, with its new value; null for one emptied, which is removed.
    using Edit = QPair<QString, std::optional<StructValue>>;
    const QList<Edit> &edits() const { return m_edits; }

    void accept() override;

    // What a member holds, as the form shows it: a list's items joined by "; ", a nested
    // structure in ExifTool's serialized form.
    static QString displayText(const StructValue &value);

private:
    struct Row
    {
        QString name;
        ExifField::Member::Kind kind = ExifField::Member::Kind::Text;
        QLineEdit *edit = nullptr;
    };

    QList<Row> m_rows;
    QLabel *m_error = nullptr;
    QList<Edit> m_edits;
};
