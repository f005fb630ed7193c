#include "editors/multienumeditor.h"

#include "catalogue/preset.h"
#include "controls/aperturetheme.h"
#include "values/logging.h"
#include "values/taglist.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int Columns = 2;
constexpr int BoxHeight = 20;

} // namespace

MultiEnumEditor::MultiEnumEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
    , m_values(valuesInTitleOrder(*this->field()))
{
}

MultiEnumEditor::~MultiEnumEditor() = default;

QSet<QString> MultiEnumEditor::splitComponents(const QString &value)
{
    return splitMultiEnumValue(value);
}

QSet<QString> MultiEnumEditor::valuesForExifFile(const ExifFileInfo &file) const
{
    return splitComponents(file.exifValue(field()->xmlName()));
}

QSet<QString> MultiEnumEditor::valuesForOriginalExifFile(const ExifFileInfo &file) const
{
    return splitComponents(file.originalExifData().value(field()->xmlName()));
}

int MultiEnumEditor::createEditorContent(QWidget *parent, QRect frame)
{
    const int rows = static_cast<int>((m_values.size() + Columns - 1) / Columns);
    const int height = std::max(rows, 1) * BoxHeight;
    m_container = new QWidget(parent);
    m_container->setGeometry(frame.x(), frame.y(), frame.width(), height);
    auto *layout = new QGridLayout(m_container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto &map = field()->values();
    for (int i = 0; i < m_values.size(); ++i) {
        auto *box = new QCheckBox(map ? map->value(m_values.at(i)) : m_values.at(i), m_container);
        box->setFont(ApertureTheme::labelFont());
        box->setFixedHeight(BoxHeight);
        connect(box, &QCheckBox::clicked, this, [this, box] { checkValueChanged(box); });
        layout->addWidget(box, i / Columns, i % Columns);
        m_editors.append(box);
    }
    setContentControl(m_container);
    m_container->show();
    stretchWithRow(m_container);
    return height;
}

int MultiEnumEditor::showEditor(int top)
{
    const int next = FieldEditor::showEditor(top);
    return m_container ? std::max(next, top + m_container->height() + 3) : next;
}

void MultiEnumEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    FieldEditor::setExifFiles(files);
    m_checkboxesChanged = false;
    m_prevValues.clear();
    QSet<QString> on;
    QSet<QString> off;
    visitValues(files, false, [&](const ExifFileInfoPtr &file, const QString &current, auto &) {
        const QSet<QString> held = splitComponents(current);
        m_prevValues.insert(file.get(), held);
        for (const QString &value : std::as_const(m_values))
            (held.contains(value) ? on : off).insert(value);
        return true;
    });
    const bool enabled = isFieldEnabledForFiles(files);
    for (int i = 0; i < m_editors.size(); ++i) {
        QCheckBox *box = m_editors.at(i);
        const QString &value = m_values.at(i);
        const QSignalBlocker blocker(box);
        box->setEnabled(enabled);
        if (on.contains(value) && off.contains(value)) {
            box->setTristate(true);
            box->setCheckState(Qt::PartiallyChecked);
        } else {
            box->setTristate(false);
            if (!on.contains(value) && !off.contains(value))
                qCInfo(lcTagsmith).noquote()
                    << QStringLiteral("Invalid on/off value for multi-enum tag %1, value: %2")
                           .arg(field()->xmlName(), value);
            box->setCheckState(on.contains(value) && !off.contains(value) ? Qt::Checked
                                                                          : Qt::Unchecked);
        }
    }
    updateModifiedLabel();
}

void MultiEnumEditor::checkValueChanged(QCheckBox *box)
{
    // After its first click a mixed box is an ordinary two-state box.
    if (box->checkState() != Qt::PartiallyChecked)
        box->setTristate(false);
    m_checkboxesChanged = true;
    copyToExifFiles(exifFiles());
    updateModifiedLabel();
    const QString value =
        exifFiles().isEmpty() ? QString() : exifFiles().constFirst()->exifValue(field()->xmlName());
    sendChangeNotification(value.isEmpty() ? std::nullopt : std::optional<QString>(value));
}

void MultiEnumEditor::updateExifFileValue(const ExifFileInfoPtr &file)
{
    if (!m_checkboxesChanged)
        return;
    if (showRemoveButton() && !isRemoveButtonChecked()) {
        restoreOriginalValue(file);
        return;
    }
    const QSet<QString> before = m_prevValues.value(file.get(), valuesForExifFile(*file));
    QStringList list;
    for (int i = 0; i < m_editors.size(); ++i) {
        const Qt::CheckState state = m_editors.at(i)->checkState();
        if (state == Qt::Checked ||
            (state == Qt::PartiallyChecked && before.contains(m_values.at(i)))) {
            list.append(m_values.at(i));
        }
    }
    // Words the catalogue does not list are no box of this row, so no click can mean them.
    QStringList unknown;
    for (const QString &word : before) {
        if (!m_values.contains(word))
            unknown.append(word);
    }
    std::sort(unknown.begin(), unknown.end());
    list.append(unknown);
    if (list.isEmpty())
        file->removeExifValue(field()->xmlName());
    else
        file->setExifValue(field()->xmlName(), list.join(u' '));
}

void MultiEnumEditor::clearEditor()
{
    FieldEditor::clearEditor();
    m_checkboxesChanged = false;
    m_prevValues.clear();
    for (QCheckBox *box : std::as_const(m_editors)) {
        const QSignalBlocker blocker(box);
        box->setTristate(false);
        box->setCheckState(Qt::Unchecked);
    }
    updateModifiedLabel();
}

void MultiEnumEditor::setEnabled(bool enabled)
{
    FieldEditor::setEnabled(enabled);
    for (QCheckBox *box : std::as_const(m_editors))
        box->setEnabled(enabled);
}

void MultiEnumEditor::setExifConfiguration(const Preset *configuration)
{
    setEnabled(true);
    if (!configuration) {
        clearEditor();
        return;
    }
    const QString &key = field()->xmlName();
    QSet<QString> stored;
    const auto it = configuration->changedValues().constFind(key);
    const bool removed = configuration->removedValues().contains(key);
    if (!removed && it != configuration->changedValues().cend())
        stored = splitMultiEnumValue(*it);
    for (int i = 0; i < m_editors.size(); ++i) {
        const QSignalBlocker blocker(m_editors.at(i));
        m_editors.at(i)->setTristate(false);
        m_editors.at(i)->setChecked(stored.contains(m_values.at(i)));
    }
    setRemoveButtonChecked(removed || it != configuration->changedValues().cend());
}

bool MultiEnumEditor::copyToConfiguration(Preset &configuration)
{
    const QString &key = field()->xmlName();
    if (removeButtonState() != Qt::Checked) {
        configuration.changedValues().remove(key);
        configuration.removedValues().remove(key);
        return true;
    }
    QStringList on;
    for (int i = 0; i < m_editors.size(); ++i) {
        if (m_editors.at(i)->checkState() == Qt::Checked)
            on.append(m_values.at(i));
    }
    if (on.isEmpty()) {
        configuration.changedValues().remove(key);
        configuration.removedValues().insert(key);
    } else {
        configuration.changedValues().insert(key, on.join(u' '));
        configuration.removedValues().remove(key);
    }
    return true;
}

void MultiEnumEditor::focusControl()
{
    if (!m_editors.isEmpty())
        m_editors.constFirst()->setFocus(Qt::OtherFocusReason);
}
