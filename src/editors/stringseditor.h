#pragma once

#include "editors/fieldeditor.h"

#include <QPointer>

class TokenField;

// The row of a list field (keywords and the like): one token per item. Every change of the
// tokens is written into the files at once.
class StringsEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit StringsEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~StringsEditor() override;

    TokenField *editor() const;
    bool textChanged() const { return m_textChanged; }

    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const ExifConfiguration *configuration) override;
    bool copyToConfiguration(ExifConfiguration &configuration) override;
    void setEnabled(bool enabled) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    int showEditor(int top) override;
    void focusControl() override;

private:
    void controlTextDidChange();

    QPointer<TokenField> m_editor;
    bool m_textChanged = false;
};
