#pragma once

#include "engine/exiffileinfo.h"

#include <QDialog>
#include <QList>
#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// The named languages of a language-alternative field over the selected files, beside the
// default one that the form's row edits: each shown with its text, editable, removable, and
// new ones added. A language whose text differs between the files (or that some lack) shows
// "Multiple values" and stays as each file has it unless the user types over it.
class OtherLanguagesDialog : public QDialog
{
    Q_OBJECT

public:
    OtherLanguagesDialog(const QString &title, QString key, QList<ExifFileInfoPtr> files,
                         QWidget *parent = nullptr);

    // The text field of a language shown, or null.
    QLineEdit *textField(const QString &language) const;
    // Adds an empty row; returns its language and text fields.
    struct Fields
    {
        QLineEdit *code = nullptr;
        QLineEdit *text = nullptr;
    };
    Fields addLanguage();
    void removeLanguage(const QString &language);
    // What stopped the last accept, or empty.
    QString errorText() const;

    // Checks the new codes; when they are good, writes the changes into the files and closes.
    void accept() override;
    // The files accept changed.
    const QList<ExifFileInfoPtr> &changedFiles() const { return m_changed; }

private:
    struct Row
    {
        QLineEdit *code = nullptr;
        QLineEdit *text = nullptr;
        QPushButton *remove = nullptr;
        QString language; // empty for a row the user added
        bool removed = false;
    };

    void addRow(const QString &language, const QString &commonText);
    void apply();

    QString m_key;
    QList<ExifFileInfoPtr> m_files;
    QList<Row> m_rows;
    QGridLayout *m_grid = nullptr;
    QLabel *m_error = nullptr;
    QList<ExifFileInfoPtr> m_changed;
};
