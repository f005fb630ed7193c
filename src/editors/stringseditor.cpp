#include "editors/stringseditor.h"

#include "catalogue/exifconfiguration.h"
#include "controls/aperturetheme.h"
#include "controls/tokenfield.h"
#include "values/taglist.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

constexpr int FieldHeight = 80;

} // namespace

StringsEditor::StringsEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
{
}

StringsEditor::~StringsEditor() = default;

TokenField *StringsEditor::editor() const
{
    return m_editor;
}

int StringsEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_editor = new TokenField(parent);
    m_editor->setGeometry(frame.x(), frame.y(), frame.width(), FieldHeight);
    QPalette palette = m_editor->palette();
    palette.setColor(QPalette::Window, ApertureTheme::normalSolidFill());
    m_editor->setPalette(palette);
    m_editor->setReadOnly(!hasExifFiles());
    connect(m_editor, &TokenField::textEdited, this, &StringsEditor::controlTextDidChange);
    setContentControl(m_editor);
    m_editor->show();
    stretchWithRow(m_editor);
    return FieldHeight;
}

int StringsEditor::showEditor(int top)
{
    const int next = FieldEditor::showEditor(top);
    return m_editor ? std::max(next, top + m_editor->height() + 3) : next;
}

void StringsEditor::setEnabled(bool enabled)
{
    FieldEditor::setEnabled(enabled);
    if (m_editor) {
        m_editor->setReadOnly(!enabled);
        m_editor->setEnabled(enabled);
    }
}

void StringsEditor::clearEditor()
{
    FieldEditor::clearEditor();
    m_textChanged = false;
    if (m_editor) {
        m_editor->clear();
        m_editor->setPlaceholderText(QString());
        m_editor->setReadOnly(true);
    }
    updateModifiedLabel();
}

void StringsEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    FieldEditor::setExifFiles(files);
    m_textChanged = false;
    if (!m_editor)
        return;
    m_editor->setReadOnly(false);
    m_editor->setEnabled(isFieldEnabledForFiles(files));
    const QSet<QString> values = gatherExifFilesValues(files);
    if (values.size() < 2) {
        m_editor->setPlaceholderText(QString());
        m_editor->setText(values.isEmpty() ? QString() : *values.cbegin());
    } else {
        m_editor->clear();
        m_editor->setPlaceholderText(multipleValuesText());
    }
    updateModifiedLabel();
}

void StringsEditor::controlTextDidChange()
{
    m_textChanged = true;
    // Checked first: an unchecked row would put the originals back instead of the typed list.
    setRemoveButtonChecked(true);
    const QString text = m_editor->text();
    copyToExifFiles(exifFiles());
    updateModifiedLabel();
    sendChangeNotification(text.isEmpty() ? std::nullopt : std::optional<QString>(text));
}

void StringsEditor::updateExifFileValue(const ExifFileInfoPtr &file)
{
    if (showRemoveButton() && !isRemoveButtonChecked()) {
        restoreOriginalValue(file);
        return;
    }
    // Untouched, a multiple-values row shows no tokens: writing that would wipe every file.
    if (!m_textChanged)
        return;
    const QString text = m_editor ? m_editor->text().trimmed() : QString();
    if (text.isEmpty())
        file->removeExifValue(field()->xmlName());
    else
        file->setExifValue(field()->xmlName(), text);
}

void StringsEditor::setExifConfiguration(const ExifConfiguration *configuration)
{
    setEnabled(true);
    if (!configuration || !m_editor) {
        clearEditor();
        return;
    }
    m_textChanged = false;
    m_editor->setPlaceholderText(QString());
    const QString &key = field()->xmlName();
    if (configuration->removedValues().contains(key)) {
        setRemoveButtonChecked(true);
        m_editor->clear();
        return;
    }
    const auto it = configuration->changedValues().constFind(key);
    const bool has = it != configuration->changedValues().cend();
    m_editor->setText(has ? *it : QString());
    setRemoveButtonChecked(has);
}

bool StringsEditor::copyToConfiguration(ExifConfiguration &configuration)
{
    const QString &key = field()->xmlName();
    const QString text = m_editor ? m_editor->text().trimmed() : QString();
    if (!isRemoveButtonChecked()) {
        configuration.changedValues().remove(key);
        configuration.removedValues().remove(key);
    } else if (!text.isEmpty()) {
        configuration.changedValues().insert(key, text);
        configuration.removedValues().remove(key);
    } else {
        configuration.changedValues().remove(key);
        configuration.removedValues().insert(key);
    }
    return true;
}

void StringsEditor::focusControl()
{
    if (m_editor)
        m_editor->lineEdit()->setFocus(Qt::OtherFocusReason);
}
