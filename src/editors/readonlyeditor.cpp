#include "editors/readonlyeditor.h"

#include "controls/aperturetheme.h"
#include "values/numberformatter.h"

#include <QLineEdit>

ReadonlyEditor::ReadonlyEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
{
    if (this->field()->dataRepresentation() != FieldDataRepresentation::Number)
        return;
    m_formatter = std::make_unique<NumberFormatter>(QLocale::system());
    m_formatter->setLenient(true);
    m_formatter->setLocalizesFormat(true);
    m_formatter->setAlwaysShowsDecimalSeparator(true);
    const FieldDataType type = this->field()->dataType();
    if (type == FieldDataType::Float || type == FieldDataType::Double ||
        type == FieldDataType::UDouble) {
        m_formatter->setMinimumFractionDigits(0);
        if (this->field()->decimals() != -1)
            m_formatter->setMaximumFractionDigits(static_cast<int>(this->field()->decimals()));
        m_formatter->setGeneratesDecimalNumbers(true);
        m_formatter->setAllowsFloats(true);
    } else {
        m_formatter->setMinimumFractionDigits(0);
        m_formatter->setMaximumFractionDigits(0);
    }
}

ReadonlyEditor::~ReadonlyEditor() = default;

QLineEdit *ReadonlyEditor::editor() const
{
    return m_editor;
}

QString ReadonlyEditor::displayText(const QString &value) const
{
    if (!m_formatter || value.isEmpty())
        return value;
    // Values read for number fields are already in the user's locale; C's form is the fallback.
    if (const auto parsed = m_formatter->numberFromString(value))
        return m_formatter->stringFromNumber(*parsed);
    bool ok = false;
    const double number = QLocale::c().toDouble(value.trimmed(), &ok);
    if (ok)
        return m_formatter->stringFromNumber(number);
    return value;
}

int ReadonlyEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_editor = new QLineEdit(parent);
    m_editor->setGeometry(frame.x(), frame.y(), frame.width(), 20);
    m_editor->setReadOnly(true);
    m_editor->setFocusPolicy(Qt::ClickFocus);
    m_editor->setFont(ApertureTheme::labelFont());
    setContentControl(m_editor);
    m_editor->show();
    stretchWithRow(m_editor);
    return 20;
}

bool ReadonlyEditor::isModified() const
{
    return false;
}

void ReadonlyEditor::clearEditor()
{
    FieldEditor::clearEditor();
    if (m_editor)
        m_editor->clear();
}

void ReadonlyEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    FieldEditor::setExifFiles(files);
    if (!m_editor)
        return;
    const QSet<QString> values = gatherExifFilesValues(files);
    if (values.size() >= 2)
        m_editor->setText(multipleValuesText());
    else
        m_editor->setText(values.isEmpty() ? QString() : displayText(*values.cbegin()));
}

void ReadonlyEditor::setExifConfiguration(const Preset *)
{
    // A preset cannot write this field: the row stays empty.
    clearEditor();
}
