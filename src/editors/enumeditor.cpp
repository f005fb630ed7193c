#include "editors/enumeditor.h"

#include "engine/editsession.h"

#include "catalogue/preset.h"
#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "values/tagsmithexception.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>

namespace {

const QString LatitudeRefKey = QStringLiteral("GPS:GPSLatitudeRef");
const QString LongitudeRefKey = QStringLiteral("GPS:GPSLongitudeRef");

} // namespace

EnumEditor::EnumEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
    , m_values(valuesInTitleOrder(*this->field()))
{
}

EnumEditor::~EnumEditor() = default;

QComboBox *EnumEditor::popupButton() const
{
    return m_popupButton;
}

int EnumEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_popupButton = new QComboBox(parent);
    m_popupButton->setGeometry(frame.x(), frame.y(), frame.width(), 22);
    m_popupButton->setFont(ApertureTheme::labelFont());
    m_popupButton->addItem(QString(), EmptyTag);
    const auto &map = field()->values();
    for (int i = 0; i < m_values.size(); ++i)
        m_popupButton->addItem(map ? map->value(m_values.at(i)) : m_values.at(i), i);
    connect(m_popupButton, &QComboBox::activated, this, &EnumEditor::popupValueChanged);
    setContentControl(m_popupButton);
    m_popupButton->show();
    stretchWithRow(m_popupButton);
    return 22;
}

bool EnumEditor::menuHasItemWithTag(int tag) const
{
    return m_popupButton && m_popupButton->findData(tag) >= 0;
}

void EnumEditor::removeItemWithTag(int tag)
{
    if (!m_popupButton)
        return;
    const int index = m_popupButton->findData(tag);
    if (index >= 0)
        m_popupButton->removeItem(index);
}

int EnumEditor::selectedTag() const
{
    if (!m_popupButton || m_popupButton->currentIndex() < 0)
        return EmptyTag;
    return m_popupButton->currentData().toInt();
}

void EnumEditor::selectTag(int tag)
{
    const int index = m_popupButton->findData(tag);
    m_popupButton->setCurrentIndex(std::max(index, 0));
}

void EnumEditor::doSetValues(const QSet<QString> &values)
{
    m_popupChanged = false;
    m_unexpectedValue.clear();
    if (!m_popupButton)
        return;
    const QSignalBlocker blocker(m_popupButton);
    m_popupButton->setEnabled(true);
    removeItemWithTag(MultipleValuesTag);
    removeItemWithTag(UnexpectedValueTag);
    if (values.size() >= 2) {
        m_popupButton->addItem(multipleValuesText(), MultipleValuesTag);
        selectTag(MultipleValuesTag);
    } else {
        const QString value = values.isEmpty() ? QString() : values.cbegin()->toUpper();
        const auto found = std::find_if(m_values.cbegin(), m_values.cend(),
                                        [&value](auto &v) { return v.toUpper() == value; });
        if (found != m_values.cend()) {
            selectTag(static_cast<int>(found - m_values.cbegin()));
        } else if (!value.isEmpty()) {
            m_popupButton->addItem(localized(u"Unexpected value: %@"_qs).replace(u"%@"_qs, value),
                                   UnexpectedValueTag);
            selectTag(UnexpectedValueTag);
            m_unexpectedValue = value;
        } else {
            selectTag(EmptyTag);
        }
    }
    updateModifiedLabel();
}

QString EnumEditor::currentValue() const
{
    const int tag = selectedTag();
    if (tag >= 0)
        return m_values.value(tag);
    if (tag == MultipleValuesTag)
        return m_unexpectedValue;
    if (tag == EmptyTag)
        return u""_qs;
    throw TagsmithException(u"Not implemented"_qs, u"Not implemented"_qs);
}

void EnumEditor::popupValueChanged()
{
    m_popupChanged = true;
    if (menuHasItemWithTag(MultipleValuesTag) && selectedTag() != MultipleValuesTag) {
        const QSignalBlocker blocker(m_popupButton);
        removeItemWithTag(MultipleValuesTag);
    }
    // Choosing the unexpected value again is no decision: the files keep what they hold.
    if (selectedTag() == UnexpectedValueTag || selectedTag() == MultipleValuesTag) {
        m_popupChanged = false;
        return;
    }
    copyToExifFiles(exifFiles());
    updateModifiedLabel();
    const QString value = currentValue();
    sendChangeNotification(value.isEmpty() ? std::nullopt : std::optional<QString>(value));
}

void EnumEditor::updateExifFileValue(const ExifFileInfoPtr &file)
{
    if (!m_popupChanged)
        return;
    if (showRemoveButton() && !isRemoveButtonChecked()) {
        restoreOriginalValue(file);
        return;
    }
    const QString value = currentValue();
    if (value.isEmpty())
        file->removeExifValue(field()->xmlName());
    else
        file->setExifValue(field()->xmlName(), value);
}

void EnumEditor::clearEditor()
{
    FieldEditor::clearEditor();
    m_popupChanged = false;
    if (m_popupButton) {
        const QSignalBlocker blocker(m_popupButton);
        m_popupButton->setCurrentIndex(0);
        m_popupButton->setEnabled(false);
    }
    updateModifiedLabel();
}

void EnumEditor::setEnabled(bool enabled)
{
    FieldEditor::setEnabled(enabled);
    if (m_popupButton)
        m_popupButton->setEnabled(enabled);
}

void EnumEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    FieldEditor::setExifFiles(files);
    doSetValues(gatherExifFilesValues(files));
    if (m_popupButton)
        m_popupButton->setEnabled(isFieldEnabledForFiles(files));
}

bool EnumEditor::followsOtherRows() const
{
    const QString &key = field()->xmlName();
    return key == LatitudeRefKey || key == LongitudeRefKey;
}

void EnumEditor::receiveFilesUpdateNotification(const ExifFilesUpdate &update)
{
    if (!m_popupButton || update.source == this ||
        (update.xmlName != LatitudeRefKey && update.xmlName != LongitudeRefKey)) {
        return;
    }
    doSetValues(gatherExifFilesValues(exifFiles()));
}

void EnumEditor::setExifConfiguration(const Preset *configuration)
{
    setEnabled(true);
    if (!configuration || !m_popupButton) {
        clearEditor();
        return;
    }
    const QSignalBlocker blocker(m_popupButton);
    removeItemWithTag(MultipleValuesTag);
    removeItemWithTag(UnexpectedValueTag);
    const QString &key = field()->xmlName();
    if (configuration->removedValues().contains(key)) {
        setRemoveButtonChecked(true);
        selectTag(EmptyTag);
    } else if (const auto it = configuration->changedValues().constFind(key);
               it == configuration->changedValues().cend()) {
        selectTag(EmptyTag);
        setRemoveButtonChecked(false);
    } else {
        const QString stored = it->toUpper();
        const auto found = std::find_if(m_values.cbegin(), m_values.cend(),
                                        [&stored](auto &v) { return v.toUpper() == stored; });
        selectTag(found == m_values.cend() ? EmptyTag
                                           : static_cast<int>(found - m_values.cbegin()));
        setRemoveButtonChecked(true);
    }
}

bool EnumEditor::copyToConfiguration(Preset &configuration)
{
    const QString &key = field()->xmlName();
    const int tag = selectedTag();
    if (removeButtonState() == Qt::Checked && tag >= 0) {
        configuration.changedValues().insert(key, m_values.value(tag));
        configuration.removedValues().remove(key);
    } else if (removeButtonState() == Qt::Checked && tag == EmptyTag) {
        configuration.changedValues().remove(key);
        configuration.removedValues().insert(key);
    } else {
        configuration.changedValues().remove(key);
        configuration.removedValues().remove(key);
    }
    return true;
}

void EnumEditor::focusControl()
{
    if (m_popupButton)
        m_popupButton->setFocus(Qt::OtherFocusReason);
}
