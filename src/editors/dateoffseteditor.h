#pragma once

#include "controls/dateoffsetfield.h"
#include "editors/fieldeditor.h"
#include "values/datecomponents.h"

#include <QPointer>

// The row of a date field in a preset: only a shift can be stored, since the files the preset
// will be applied to are not known yet. A ticked row with a zero shift removes the tag.
class DateOffsetEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit DateOffsetEditor(ExifFieldPtr field, QObject *parent = nullptr);

    DateEditorType dateEditorType() const { return m_dateEditorType; }
    void setDateEditorType(DateEditorType type) { m_dateEditorType = type; }
    DateOffsetField *editor() const { return m_editor; }

    void clearEditor() override;
    void setExifConfiguration(const Preset *configuration) override;
    // A shift goes into presets only; the date rows write it into files.
    void updateExifFileValue(const ExifFileInfoPtr &) override {}
    bool copyToConfiguration(Preset &configuration) override;
    void setEnabled(bool enabled) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    void focusControl() override;

    void controlDateOffsetDidChange();

private:
    void showZeroShift();

    QPointer<DateOffsetField> m_editor;
    DateEditorType m_dateEditorType = DateEditorTypeDateTime;
};
