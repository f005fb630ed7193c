#include "editors/structureeditor.h"

#include "catalogue/preset.h"
#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "editors/structitemdialog.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int BoxHeight = 96;

// What a line of the list says of an item: the texts of its members, in the catalogue's order.
QString summaryOf(const StructValue &item, const ExifField &field)
{
    QStringList texts;
    for (const ExifField::Member &member : field.members()) {
        const StructValue *value = item.member(member.name);
        if (!value)
            continue;
        const QString text = StructItemDialog::displayText(*value);
        if (!text.isEmpty() && value->kind != StructValue::Kind::Struct)
            texts.append(text);
        if (texts.size() == 4)
            break;
    }
    return texts.isEmpty() ? StructureEditor::tr("(no text)") : texts.join(u", "_qs);
}

} // namespace

StructureEditor::StructureEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
{
}

StructureEditor::~StructureEditor() = default;

QListWidget *StructureEditor::itemsList() const
{
    return m_list;
}

QPushButton *StructureEditor::addButton() const
{
    return m_add;
}

std::optional<QList<StructValue>> StructureEditor::itemsOf(const QString &value)
{
    if (value.isEmpty())
        return QList<StructValue>();
    const auto parsed = StructValue::parse(value);
    if (!parsed)
        return std::nullopt;
    if (parsed->kind == StructValue::Kind::List)
        return parsed->items;
    if (parsed->kind == StructValue::Kind::Struct)
        return QList<StructValue>{*parsed};
    return std::nullopt;
}

QString StructureEditor::valueOfItems(const QList<StructValue> &items) const
{
    if (items.isEmpty())
        return QString();
    return field()->isStructureList() ? StructValue::makeList(items).serialized()
                                      : items.constFirst().serialized();
}

int StructureEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_box = new QWidget(parent);
    m_box->setGeometry(frame.x(), frame.y(), frame.width(), BoxHeight);
    auto *layout = new QHBoxLayout(m_box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_list = new QListWidget(m_box);
    m_list->setFont(ApertureTheme::labelFont());
    layout->addWidget(m_list, 1);
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(2);
    const auto button = [this, buttons](const QString &text) {
        auto *b = new QPushButton(text, m_box);
        b->setFocusPolicy(Qt::TabFocus);
        buttons->addWidget(b);
        return b;
    };
    m_add = button(tr("Add\u2026"));
    m_edit = button(tr("Edit\u2026"));
    m_remove = button(tr("Remove"));
    auto *moves = new QHBoxLayout;
    m_up = new QPushButton(tr("Up"), m_box);
    m_down = new QPushButton(tr("Down"), m_box);
    moves->addWidget(m_up);
    moves->addWidget(m_down);
    buttons->addLayout(moves);
    layout->addLayout(buttons);
    if (!field()->isStructureList()) {
        m_remove->setText(tr("Clear"));
        m_up->hide();
        m_down->hide();
    }
    connect(m_add, &QPushButton::clicked, this, [this] { openItem(-1); });
    connect(m_edit, &QPushButton::clicked, this, [this] { openItem(m_list->currentRow()); });
    connect(m_list, &QListWidget::itemActivated, this, [this] { openItem(m_list->currentRow()); });
    connect(m_remove, &QPushButton::clicked, this,
            [this] { removeItem(field()->isStructureList() ? m_list->currentRow() : 0); });
    connect(m_up, &QPushButton::clicked, this,
            [this] { moveItem(m_list->currentRow(), m_list->currentRow() - 1); });
    connect(m_down, &QPushButton::clicked, this,
            [this] { moveItem(m_list->currentRow(), m_list->currentRow() + 1); });
    connect(m_list, &QListWidget::currentRowChanged, this, &StructureEditor::updateButtons);
    setContentControl(m_box);
    m_box->show();
    stretchWithRow(m_box);
    updateButtons();
    return BoxHeight;
}

int StructureEditor::showEditor(int top)
{
    const int next = FieldEditor::showEditor(top);
    return m_box ? std::max(next, top + m_box->height() + 3) : next;
}

void StructureEditor::updateButtons()
{
    if (!m_list)
        return;
    const bool any = hasExifFiles() || m_editingPreset;
    const int row = m_list->currentRow();
    const int count = m_list->count();
    m_add->setEnabled(any && (field()->isStructureList() || count == 0));
    m_edit->setEnabled(any && row >= 0);
    m_remove->setEnabled(any && (field()->isStructureList() ? row >= 0 : count > 0));
    m_up->setEnabled(any && row > 0);
    m_down->setEnabled(any && row >= 0 && row + 1 < count);
}

QList<QList<StructValue>> StructureEditor::currentItems() const
{
    QList<QList<StructValue>> all;
    if (m_editingPreset) {
        all.append(itemsOf(m_presetValue).value_or(QList<StructValue>()));
        return all;
    }
    // Files mostly share their values: each distinct one is parsed once.
    QHash<QString, QList<StructValue>> parsed;
    for (const ExifFileInfoPtr &file : exifFiles()) {
        const QString value = currentValue(*file);
        auto found = parsed.constFind(value);
        if (found == parsed.cend())
            found = parsed.insert(value, itemsOf(value).value_or(QList<StructValue>()));
        all.append(*found);
    }
    return all;
}

void StructureEditor::showItems()
{
    if (!m_list)
        return;
    const int current = m_list->currentRow();
    m_list->clear();
    const QList<QList<StructValue>> all = currentItems();
    qsizetype count = 0;
    for (const auto &items : all)
        count = std::max(count, items.size());
    for (qsizetype i = 0; i < count; ++i) {
        std::optional<StructValue> common;
        bool same = true;
        for (const auto &items : all) {
            if (i >= items.size()) {
                same = false;
                break;
            }
            if (!common)
                common = items.at(i);
            else if (!(*common == items.at(i)))
                same = false;
        }
        auto *line = new QListWidgetItem(same && common ? summaryOf(*common, *field())
                                                        : localized(u"Multiple values"_qs));
        if (!same) {
            QFont font = line->font();
            font.setItalic(true);
            line->setFont(font);
        }
        m_list->addItem(line);
    }
    m_list->setCurrentRow(std::min(current, m_list->count() - 1));
    updateButtons();
}

void StructureEditor::changeEach(const std::function<bool(QList<StructValue> &)> &change)
{
    if (m_editingPreset) {
        QList<StructValue> items = itemsOf(m_presetValue).value_or(QList<StructValue>());
        if (change(items))
            m_presetValue = valueOfItems(items);
        setRemoveButtonChecked(true);
    } else {
        bool any = false;
        for (const ExifFileInfoPtr &file : exifFiles()) {
            const auto items = itemsOf(currentValue(*file));
            // A value not in structured form is left alone rather than replaced.
            if (!items)
                continue;
            QList<StructValue> changed = *items;
            if (!change(changed))
                continue;
            const QString value = valueOfItems(changed);
            if (value.isEmpty())
                removeValue(*file);
            else
                storeValue(*file, value);
            any = true;
        }
        if (any) {
            const QString shown = currentValue(*exifFiles().constFirst());
            sendChangeNotification(shown.isEmpty() ? std::nullopt : std::optional<QString>(shown));
        }
    }
    showItems();
    updateModifiedLabel();
}

StructItemDialog *StructureEditor::openItem(int index)
{
    if (!m_list || (!hasExifFiles() && !m_editingPreset))
        return nullptr;
    QList<StructValue> items;
    if (index >= 0) {
        for (const auto &list : currentItems()) {
            if (index < list.size())
                items.append(list.at(index));
        }
    }
    const QString title = index < 0 ? tr("New Item of %1").arg(field()->title())
                                    : tr("%1, Item %2").arg(field()->title()).arg(index + 1);
    auto *dialog = new StructItemDialog(*field(), title, items, m_list->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, index] {
        const QList<StructItemDialog::Edit> edits = dialog->edits();
        if (edits.isEmpty())
            return;
        const auto applyTo = [&edits](StructValue &item) {
            for (const auto &[name, value] : edits) {
                qsizetype at = -1;
                for (qsizetype i = 0; i < item.members.size(); ++i) {
                    if (item.members.at(i).first == name)
                        at = i;
                }
                if (!value && at >= 0)
                    item.members.removeAt(at);
                else if (value && at >= 0)
                    item.members[at].second = *value;
                else if (value)
                    item.members.append({name, *value});
            }
        };
        changeEach([&](QList<StructValue> &list) {
            if (index < 0) {
                StructValue item = StructValue::makeStruct();
                applyTo(item);
                if (item.members.isEmpty())
                    return false;
                list.append(item);
                return true;
            }
            if (index >= list.size())
                return false;
            const StructValue before = list.at(index);
            applyTo(list[index]);
            // An item left without members is no item.
            if (list.at(index).members.isEmpty()) {
                list.removeAt(index);
                return true;
            }
            return !(before == list.at(index));
        });
    });
    dialog->open();
    return dialog;
}

void StructureEditor::removeItem(int index)
{
    if (index < 0)
        return;
    changeEach([index](QList<StructValue> &list) {
        if (index >= list.size())
            return false;
        list.removeAt(index);
        return true;
    });
}

void StructureEditor::moveItem(int from, int to)
{
    if (from < 0 || to < 0 || from == to)
        return;
    changeEach([from, to](QList<StructValue> &list) {
        if (from >= list.size() || to >= list.size())
            return false;
        list.move(from, to);
        return true;
    });
    if (m_list && to < m_list->count())
        m_list->setCurrentRow(to);
}

void StructureEditor::clearEditor()
{
    FieldEditor::clearEditor();
    m_editingPreset = false;
    m_presetValue.clear();
    if (m_list)
        m_list->clear();
    updateButtons();
    updateModifiedLabel();
}

void StructureEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    FieldEditor::setExifFiles(files);
    m_editingPreset = false;
    if (m_box)
        m_box->setEnabled(isFieldEnabledForFiles(files));
    showItems();
    updateModifiedLabel();
}

void StructureEditor::updateExifFileValue(const ExifFileInfoPtr &file)
{
    // Edits reach the files as they are made; a preset's row writes its value when ticked.
    if (!showRemoveButton())
        return;
    if (!isRemoveButtonChecked())
        restoreOriginalValue(file);
    else if (m_presetValue.isEmpty())
        removeValue(*file);
    else
        storeValue(*file, m_presetValue);
}

void StructureEditor::setExifConfiguration(const Preset *configuration)
{
    setEnabled(true);
    if (!configuration) {
        clearEditor();
        return;
    }
    const QString &key = field()->xmlName();
    m_editingPreset = true;
    m_presetValue = configuration->changedValues().value(key);
    setRemoveButtonChecked(configuration->changedValues().contains(key) ||
                           configuration->removedValues().contains(key));
    showItems();
}

bool StructureEditor::copyToConfiguration(Preset &configuration)
{
    const QString &key = field()->xmlName();
    if (!isRemoveButtonChecked()) {
        configuration.changedValues().remove(key);
        configuration.removedValues().remove(key);
    } else if (!m_presetValue.isEmpty()) {
        configuration.changedValues().insert(key, m_presetValue);
        configuration.removedValues().remove(key);
    } else {
        configuration.changedValues().remove(key);
        configuration.removedValues().insert(key);
    }
    return true;
}

void StructureEditor::setEnabled(bool enabled)
{
    FieldEditor::setEnabled(enabled);
    if (m_box)
        m_box->setEnabled(enabled);
}

void StructureEditor::focusControl()
{
    if (m_list)
        m_list->setFocus(Qt::OtherFocusReason);
}
