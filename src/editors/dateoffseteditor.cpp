#include "editors/dateoffseteditor.h"

#include "catalogue/preset.h"

DateOffsetEditor::DateOffsetEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
{
}

int DateOffsetEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_editor = new DateOffsetField(m_dateEditorType, parent);
    const QSize size = m_editor->sizeHint();
    m_editor->setGeometry(frame.x(), frame.y(), qMin(size.width(), qMax(frame.width(), 0)),
                          size.height());
    connect(m_editor, &DateOffsetField::dateOffsetChanged, this,
            &DateOffsetEditor::controlDateOffsetDidChange);
    setContentControl(m_editor);
    m_editor->show();
    return size.height();
}

void DateOffsetEditor::focusControl()
{
    if (m_editor)
        m_editor->setFocus(Qt::OtherFocusReason);
}

void DateOffsetEditor::setEnabled(bool enabled)
{
    FieldEditor::setEnabled(enabled);
    if (m_editor)
        m_editor->setEnabled(enabled);
}

void DateOffsetEditor::clearEditor()
{
    FieldEditor::clearEditor();
    showZeroShift();
}

void DateOffsetEditor::showZeroShift()
{
    if (!m_editor)
        return;
    m_editor->setDateComponentsValue(std::nullopt);
    m_editor->setPlusMinus(true);
}

void DateOffsetEditor::setExifConfiguration(const Preset *configuration)
{
    setEnabled(true);
    const QString &key = field()->xmlName();
    if (configuration && configuration->removedValues().contains(key)) {
        setRemoveButtonChecked(true);
        showZeroShift();
    } else if (configuration && configuration->changedValues().contains(key)) {
        if (m_editor)
            m_editor->setStringValue(configuration->changedValues().value(key));
        setRemoveButtonChecked(true);
    } else {
        setRemoveButtonChecked(false);
        showZeroShift();
    }
}

void DateOffsetEditor::controlDateOffsetDidChange()
{
    setRemoveButtonChecked(true);
}

bool DateOffsetEditor::copyToConfiguration(Preset &configuration)
{
    const QString &key = field()->xmlName();
    if (!isRemoveButtonChecked()) {
        configuration.changedValues().remove(key);
        configuration.removedValues().remove(key);
    } else if (!m_editor || m_editor->dateComponentsValue().isZero()) {
        // A ticked row with no shift means: remove the tag.
        configuration.changedValues().remove(key);
        configuration.removedValues().insert(key);
    } else {
        configuration.changedValues().insert(key, m_editor->stringValue());
        configuration.removedValues().remove(key);
    }
    return true;
}
