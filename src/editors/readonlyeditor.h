#pragma once

#include "editors/fieldeditor.h"

#include <QPointer>

#include <memory>

class NumberFormatter;
class QLineEdit;

// The row of a field that cannot be written: its value, never editable.
class ReadonlyEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit ReadonlyEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~ReadonlyEditor() override;

    QLineEdit *editor() const;

    bool isModified() const override;
    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void setExifConfiguration(const Preset *configuration) override;
    // Shown, never written.
    void updateExifFileValue(const ExifFileInfoPtr &) override {}
    int createEditorContent(QWidget *parent, QRect frame) override;

    // A number field's value in the user's locale with the field's decimals; other text as is.
    QString displayText(const QString &value) const;

private:
    QPointer<QLineEdit> m_editor;
    std::unique_ptr<NumberFormatter> m_formatter;
};
