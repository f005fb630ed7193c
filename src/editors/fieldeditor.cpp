#include "editors/fieldeditor.h"

#include "catalogue/exiffieldscontroller.h"
#include "catalogue/preset.h"
#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "engine/editsession.h"
#include "engine/exifutil.h"
#include "values/tagsmithexception.h"

#include <QCheckBox>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace {

constexpr int LabelHeight = 20;
constexpr int MinimumRowHeight = 25;
constexpr int RemoveButtonSize = 20;

} // namespace

namespace {

const ExifFilesSnapshot *s_activeSnapshot = nullptr;

} // namespace

ExifFilesSnapshot::ExifFilesSnapshot(const QList<ExifFileInfoPtr> &files, const QStringList &keys)
    : m_files(files)
    , m_previous(s_activeSnapshot)
{
    m_values.reserve(files.size());
    for (const ExifFileInfoPtr &file : files)
        m_values.append(file->editedValues());
    if (!keys.isEmpty())
        gatherColumns(keys);
    s_activeSnapshot = this;
}

const ExifFilesSnapshot::Column *ExifFilesSnapshot::column(const QString &key) const
{
    const auto found = m_columns.constFind(key);
    return found == m_columns.cend() ? nullptr : &found.value();
}

void ExifFilesSnapshot::gatherColumns(const QStringList &keys)
{
    struct Gathering
    {
        Column *column = nullptr;
        qsizetype present = 0;
        const QChar *lastValue = nullptr;
        qsizetype lastChanged = -1;
    };
    std::vector<Gathering> gathering;
    gathering.reserve(size_t(keys.size()));
    QHash<QString, qsizetype> slotOfKey;
    for (const QString &key : keys)
        m_columns.insert(key, {});
    // Addresses taken only now: inserting may move the columns.
    for (auto it = m_columns.begin(); it != m_columns.end(); ++it) {
        slotOfKey.insert(it.key(), qsizetype(gathering.size()));
        gathering.push_back({&it.value()});
    }
    // Records of one read share their key texts, so most keys are found by address alone.
    QHash<const QChar *, qsizetype> slotOfText;
    const auto slotOf = [&](const QString &key) {
        const auto known = slotOfText.constFind(key.constData());
        if (known != slotOfText.cend())
            return known.value();
        const qsizetype slot = slotOfKey.value(key, -1);
        slotOfText.insert(key.constData(), slot);
        return slot;
    };
    const auto take = [&gathering](qsizetype slot, const QString &value) {
        Gathering &g = gathering[size_t(slot)];
        ++g.present;
        if (g.lastValue != value.constData()) {
            g.lastValue = value.constData();
            g.column->values.insert(value);
        }
    };
    const auto markChanged = [&gathering](qsizetype slot, qsizetype file) {
        Gathering &g = gathering[size_t(slot)];
        if (g.lastChanged != file) {
            g.lastChanged = file;
            g.column->changed.append(file);
        }
    };

    for (qsizetype i = 0; i < m_values.size(); ++i) {
        const EditedValues &values = m_values.at(i);
        const bool edited = values.isEdited();
        const TagDictionary &original = values.original();
        for (auto it = original.cbegin(); it != original.cend(); ++it) {
            const qsizetype slot = slotOf(it.key());
            if (slot < 0)
                continue;
            if (edited && values.removed().contains(it.key()))
                markChanged(slot, i);
            else if (!edited || !values.changed().contains(it.key()))
                take(slot, it.value());
        }
        for (auto it = values.changed().cbegin(); it != values.changed().cend(); ++it) {
            if (const qsizetype slot = slotOf(it.key()); slot >= 0) {
                markChanged(slot, i);
                take(slot, it.value());
            }
        }
    }
    for (const Gathering &g : gathering) {
        if (g.present < m_values.size())
            g.column->values.insert(QString(u""_qs));
    }
}

const ExifFilesSnapshot::LinkedColumn &
ExifFilesSnapshot::linkedColumn(const LinkedForms &forms) const
{
    const QString &key = forms.keys().constFirst();
    if (const auto found = m_linkedColumns.constFind(key); found != m_linkedColumns.cend())
        return *found;
    LinkedColumn column;
    column.shown.reserve(m_values.size());
    for (qsizetype i = 0; i < m_values.size(); ++i) {
        LinkedForms::Reading reading = forms.read(m_values.at(i));
        column.values.insert(reading.value.isNull() ? QString(u""_qs) : reading.value);
        if (reading.copiesDiffer)
            column.differing.append(i);
        column.shown.append(std::move(reading.value));
    }
    return *m_linkedColumns.insert(key, std::move(column));
}

ExifFilesSnapshot::~ExifFilesSnapshot()
{
    s_activeSnapshot = m_previous;
}

const ExifFilesSnapshot *ExifFilesSnapshot::forFiles(const QList<ExifFileInfoPtr> &files)
{
    for (const ExifFilesSnapshot *s = s_activeSnapshot; s; s = s->m_previous) {
        if (s->m_files.constData() == files.constData() && s->m_files.size() == files.size())
            return s;
    }
    return nullptr;
}

FieldEditor::FieldEditor(ExifFieldPtr field, QObject *parent)
    : QObject(parent)
    , m_field(std::move(field))
{
    if (m_field)
        m_forms = LinkedForms(*m_field);
}

FieldEditor::~FieldEditor()
{
    if (m_parent)
        m_parent->removeEventFilter(this);
}

QLabel *FieldEditor::label() const
{
    return m_label;
}

QCheckBox *FieldEditor::removeButton() const
{
    return m_removeButton;
}

bool FieldEditor::isRemoveButtonChecked() const
{
    return m_removeButton && m_removeButton->checkState() == Qt::Checked;
}

Qt::CheckState FieldEditor::removeButtonState() const
{
    return m_removeButton ? m_removeButton->checkState() : Qt::Unchecked;
}

void FieldEditor::setRemoveButtonChecked(bool on)
{
    if (m_removeButton)
        m_removeButton->setChecked(on);
}

void FieldEditor::visitValues(const QList<ExifFileInfoPtr> &files, bool withOriginal,
                              const ValueVisitor &visit) const
{
    if (m_forms.isLinked()) {
        const ExifFilesSnapshot *snapshot = ExifFilesSnapshot::forFiles(files);
        if (snapshot && !withOriginal) {
            const QList<QString> &shown = snapshot->linkedColumn(m_forms).shown;
            for (qsizetype i = 0; i < files.size(); ++i) {
                if (!visit(files.at(i), shown.at(i), QString()))
                    return;
            }
            return;
        }
        for (qsizetype i = 0; i < files.size(); ++i) {
            const EditedValues values =
                snapshot ? snapshot->current(i) : files.at(i)->editedValues();
            const QString original = withOriginal ? m_forms.valueIn(values.original()) : QString();
            if (!visit(files.at(i), m_forms.valueIn(values), original))
                return;
        }
        return;
    }
    const QString &key = m_field->xmlName();
    if (const ExifFilesSnapshot *snapshot = ExifFilesSnapshot::forFiles(files)) {
        for (qsizetype i = 0; i < files.size(); ++i) {
            const QString original = withOriginal ? snapshot->original(i).value(key) : QString();
            if (!visit(files.at(i), snapshot->current(i).value(key), original))
                return;
        }
        return;
    }
    for (const ExifFileInfoPtr &file : files) {
        const QString original = withOriginal ? file->originalExifData().value(key) : QString();
        if (!visit(file, file->exifValue(key), original))
            return;
    }
}

void FieldEditor::visitChangedValues(const QList<ExifFileInfoPtr> &files,
                                     const ValueVisitor &visit) const
{
    if (m_forms.isLinked()) {
        // A file counts as changed when any copy changed, even one the row does not show.
        const ExifFilesSnapshot *snapshot = ExifFilesSnapshot::forFiles(files);
        for (qsizetype i = 0; i < files.size(); ++i) {
            const EditedValues values =
                snapshot ? snapshot->current(i) : files.at(i)->editedValues();
            if (m_forms.isChanged(values) &&
                !visit(files.at(i), m_forms.valueIn(values), m_forms.valueIn(values.original())))
                return;
        }
        return;
    }
    const QString &key = m_field->xmlName();
    const ExifFilesSnapshot *snapshot = ExifFilesSnapshot::forFiles(files);
    if (const ExifFilesSnapshot::Column *column = snapshot ? snapshot->column(key) : nullptr) {
        for (const qsizetype i : column->changed) {
            if (!visit(files.at(i), snapshot->current(i).value(key),
                       snapshot->original(i).value(key)))
                return;
        }
        return;
    }
    visitValues(
        files, true,
        [&visit](const ExifFileInfoPtr &file, const QString &current, const QString &original) {
            if (current.isNull() == original.isNull() && current == original)
                return true;
            return visit(file, current, original);
        });
}

QSet<QString> FieldEditor::gatherExifFilesValues(const QList<ExifFileInfoPtr> &files) const
{
    if (const ExifFilesSnapshot *snapshot = ExifFilesSnapshot::forFiles(files)) {
        if (m_forms.isLinked())
            return snapshot->linkedColumn(m_forms).values;
        if (const ExifFilesSnapshot::Column *column = snapshot->column(m_field->xmlName()))
            return column->values;
    }
    QSet<QString> values;
    visitValues(files, false, [&values](const ExifFileInfoPtr &, const QString &value, auto &) {
        values.insert(value.isNull() ? QString(u""_qs) : value);
        return true;
    });
    return values;
}

QSet<QString> FieldEditor::gatherExifFilesOriginalValues(const QList<ExifFileInfoPtr> &files) const
{
    QSet<QString> values;
    visitValues(files, true, [&values](const ExifFileInfoPtr &, auto &, const QString &value) {
        values.insert(value.isNull() ? QString(u""_qs) : value);
        return true;
    });
    return values;
}

bool FieldEditor::isModified() const
{
    if (!m_field)
        return false;
    // The same rule as the file list's mark, the review and the save.
    const FieldDataRepresentation representation = m_field->dataRepresentation();
    bool modified = false;
    if (m_forms.isLinked()) {
        // Only files with a changed copy are visited: a copy set to what the row already
        // showed is a change all the same.
        visitChangedValues(m_exifFiles, [&modified](auto &, auto &, auto &) {
            modified = true;
            return false;
        });
        return modified;
    }
    visitChangedValues(
        m_exifFiles, [&](const ExifFileInfoPtr &, const QString &current, const QString &original) {
            modified = isValueModified(current, original, representation);
            return !modified;
        });
    return modified;
}

QLabel *FieldEditor::removalHint() const
{
    return m_removalHint;
}

void FieldEditor::updateRemovalHint()
{
    if (!m_removalHint)
        return;
    bool removes = false;
    if (isRemoveButtonChecked()) {
        // What the row would store is the one answer every kind of row gives alike.
        Preset scratch;
        copyToConfiguration(scratch);
        removes = scratch.removedValues().contains(m_field->xmlName());
    }
    m_removalHint->setVisible(removes && m_label && !m_label->isHidden());
    if (removes)
        m_removalHint->raise();
}

void FieldEditor::placeRemovalHint()
{
    if (!m_removalHint || !m_removeButton)
        return;
    const int width = m_removalHint->sizeHint().width();
    m_removalHint->setGeometry(m_removeButton->x() - width - 4, m_top + 2, width, LabelHeight);
}

void FieldEditor::updateModifiedLabel()
{
    updateRemovalHint();
    updateCopiesMark();
    if (!m_boldFontOnChange || !m_label)
        return;
    const bool bold = isModified();
    // Setting a font relayouts the label; the form calls this for every row on each selection.
    if (bold == m_labelIsBold)
        return;
    m_labelIsBold = bold;
    m_label->setFont(ApertureTheme::labelFont(bold));
}

int FieldEditor::createEditor(QWidget *parent, int top)
{
    m_top = top;
    m_parent = parent;
    const int width = parent->width();
    const int labelWidth = static_cast<int>(m_maxLabelWidth);
    const int labelHeight = createLabel(parent);

    const int contentX = labelWidth + 10;
    int contentWidth = width - 5 - (labelWidth + 5) - 10;
    if (m_showRemoveButton)
        contentWidth -= 20;
    const int contentHeight =
        createEditorContent(parent, QRect(contentX, top, std::max(contentWidth, 0), LabelHeight));

    if (m_showRemoveButton) {
        m_removeButton = new QCheckBox(parent);
        m_removeButton->setFocusPolicy(Qt::NoFocus);
        m_removeButton->setAttribute(Qt::WA_MacSmallSize);
        m_removeButton->setGeometry(width - RemoveButtonSize - 5, top, RemoveButtonSize,
                                    RemoveButtonSize);
        m_removeButton->setProperty("theme", m_theme);
        m_removeButton->setToolTip(tr("Ticked, the preset sets this field to the value "
                                      "given; ticked and left empty, it removes the tag from "
                                      "the files."));
        m_removeButton->show();
        m_removalHint = new QLabel(tr("Remove from the files"), parent);
        m_removalHint->setObjectName(u"removalHint"_qs);
        m_removalHint->setStyleSheet(u"QLabel#removalHint { color: rgb(255, 170, 90); "
                                     "font-style: italic; }"_qs);
        m_removalHint->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_removalHint->hide();
        placeRemovalHint();
        connect(m_removeButton, &QCheckBox::toggled, this, &FieldEditor::updateRemovalHint);
    }
    if (m_forms.isLinked()) {
        m_copiesMark = new QToolButton(parent);
        m_copiesMark->setObjectName(u"copiesMark"_qs);
        m_copiesMark->setAutoRaise(true);
        m_copiesMark->setFocusPolicy(Qt::NoFocus);
        m_copiesMark->setIcon(parent->style()->standardIcon(QStyle::SP_MessageBoxWarning));
        m_copiesMark->setIconSize(QSize(14, 14));
        m_copiesMark->setAccessibleName(tr("The copies of this field differ"));
        m_copiesMark->hide();
        connect(m_copiesMark, &QToolButton::clicked, this, &FieldEditor::showCopiesMenu);
    }
    parent->installEventFilter(this);
    return top + std::max({MinimumRowHeight, labelHeight, contentHeight});
}

int FieldEditor::createLabel(QWidget *parent)
{
    m_label = new QLabel(m_field->title() + u':', parent);
    m_label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_label->setFont(ApertureTheme::labelFont());
    m_label->setGeometry(5, m_top + 2, static_cast<int>(m_maxLabelWidth), LabelHeight);
    m_label->setProperty("theme", m_theme);
    m_label->installEventFilter(this);
    m_label->show();
    m_labelIsBold = false;
    return LabelHeight;
}

int FieldEditor::showEditor(int top)
{
    m_top = top;
    if (m_label) {
        m_label->move(m_label->x(), top + 2);
        m_label->show();
    }
    if (m_removeButton) {
        m_removeButton->move(m_removeButton->x(), top);
        m_removeButton->show();
    }
    placeRemovalHint();
    updateRemovalHint();
    if (m_copiesMark) {
        placeCopiesMark();
        m_copiesMark->setVisible(m_copiesDiffer);
    }
    if (m_content) {
        m_content->move(m_content->x(), top + m_contentOffset);
        m_content->show();
    }
    return top + MinimumRowHeight;
}

int FieldEditor::hideEditor(int top)
{
    if (m_label)
        m_label->hide();
    if (m_removeButton)
        m_removeButton->hide();
    if (m_removalHint)
        m_removalHint->hide();
    if (m_copiesMark)
        m_copiesMark->hide();
    if (m_content)
        m_content->hide();
    return top;
}

void FieldEditor::setContentControl(QWidget *control, int topOffset)
{
    m_content = control;
    m_contentOffset = topOffset;
}

void FieldEditor::clearEditor()
{
    setRemoveButtonChecked(false);
    m_exifFiles.clear();
}

void FieldEditor::setEnabled(bool enabled)
{
    if (m_removeButton)
        m_removeButton->setEnabled(enabled);
}

bool FieldEditor::copyToConfiguration(Preset &)
{
    return false;
}

bool FieldEditor::copyToExifFiles(const QList<ExifFileInfoPtr> &files)
{
    const QString &key = m_field->xmlName();
    bool changed = false;
    for (const ExifFileInfoPtr &file : files) {
        updateExifFileValue(file);
        if (m_forms.isLinked()) {
            changed = changed || m_forms.isChanged(file->editedValues());
            continue;
        }
        const QString current = file->exifValue(key);
        const QString original = file->originalExifData().value(key);
        if (current.isNull() != original.isNull() || current != original)
            changed = true;
    }
    return changed;
}

void FieldEditor::sendChangeNotification(const std::optional<QString> &newValue,
                                         const QString &xmlName)
{
    if (m_exifFiles.isEmpty())
        return;
    if (m_session)
        m_session->post(xmlName, m_exifFiles, newValue, m_exifFiles, this);
}

void FieldEditor::setEditSession(EditSession *session)
{
    if (session == m_session)
        return;
    if (m_session)
        disconnect(m_session, nullptr, this, nullptr);
    m_session = session;
    if (session && followsOtherRows()) {
        connect(session, &EditSession::exifFilesUpdated, this,
                &FieldEditor::receiveFilesUpdateNotification);
    }
}

EditSession *FieldEditor::editSession() const
{
    return m_session;
}

void FieldEditor::receiveFilesUpdateNotification(const ExifFilesUpdate &)
{
}

void FieldEditor::sendChangeNotification(const std::optional<QString> &newValue)
{
    sendChangeNotification(newValue, m_field->xmlName());
}

void FieldEditor::focusControl()
{
}

void FieldEditor::setTheme(const QString &theme)
{
    m_theme = theme;
    if (m_label)
        m_label->setProperty("theme", theme);
    if (m_removeButton)
        m_removeButton->setProperty("theme", theme);
}

void FieldEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    m_exifFiles = files;
}

bool FieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_label && event->type() == QEvent::MouseButtonRelease) {
        focusControl();
    } else if (watched == m_parent && event->type() == QEvent::Resize) {
        layoutToParentWidth(m_parent->width());
    }
    return QObject::eventFilter(watched, event);
}

void FieldEditor::stretchWithRow(QWidget *widget)
{
    if (!m_parent)
        m_parent = widget->parentWidget();
    const int parentWidth = m_parent ? m_parent->width() : 0;
    m_stretching.append({widget, parentWidth - (widget->x() + widget->width())});
}

void FieldEditor::layoutToParentWidth(int width)
{
    for (const auto &[widget, rightMargin] : std::as_const(m_stretching)) {
        if (widget)
            widget->resize(std::max(0, width - rightMargin - widget->x()), widget->height());
    }
    if (m_removeButton)
        m_removeButton->move(width - RemoveButtonSize - 5, m_removeButton->y());
    placeRemovalHint();
}

bool FieldEditor::isFieldEnabledForFiles(const QList<ExifFileInfoPtr> &files) const
{
    if (!m_field->xmlName().startsWith(u"Nikon"))
        return true;
    return std::any_of(files.cbegin(), files.cend(), [](const ExifFileInfoPtr &file) {
        return file->fileName().toLower().contains(u".nef");
    });
}

void FieldEditor::restoreOriginalValue(const ExifFileInfoPtr &file) const
{
    m_forms.restoreOriginal(*file);
}

QString FieldEditor::currentValue(const ExifFileInfo &file) const
{
    return m_forms.isLinked() ? m_forms.valueIn(file.editedValues())
                              : file.exifValue(m_field->xmlName());
}

void FieldEditor::storeValue(ExifFileInfo &file, const QString &value) const
{
    m_forms.set(file, value);
}

void FieldEditor::removeValue(ExifFileInfo &file) const
{
    m_forms.remove(file);
}

QString FieldEditor::presetKey(const Preset &configuration) const
{
    for (const QString &key : m_forms.keys()) {
        if (configuration.changedValues().contains(key) ||
            configuration.removedValues().contains(key))
            return key;
    }
    return m_field->xmlName();
}

void FieldEditor::forgetCopies(Preset &configuration) const
{
    for (const QString &key : m_forms.keys()) {
        configuration.changedValues().remove(key);
        configuration.removedValues().remove(key);
    }
}

qint64 FieldEditor::byteLimit() const
{
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    qint64 limit = 0;
    for (const QString &key : m_forms.keys()) {
        const ExifFieldPtr field = key == m_field->xmlName() ? m_field : catalogue->field(key);
        if (field && field->maxBytes() > 0 && (limit == 0 || field->maxBytes() < limit))
            limit = field->maxBytes();
    }
    return limit;
}

QToolButton *FieldEditor::copiesMark() const
{
    return m_copiesMark;
}

void FieldEditor::placeCopiesMark()
{
    if (!m_copiesMark || !m_label)
        return;
    // Just left of the label's text, which is aligned to the right of its column.
    const int textWidth = m_label->fontMetrics().horizontalAdvance(m_label->text());
    const int x = std::max(0, m_label->x() + m_label->width() - textWidth - 20);
    m_copiesMark->setGeometry(x, m_top + 3, 18, 18);
}

void FieldEditor::updateCopiesMark()
{
    if (!m_copiesMark)
        return;
    QList<qsizetype> differing;
    if (const ExifFilesSnapshot *snapshot = ExifFilesSnapshot::forFiles(m_exifFiles)) {
        differing = snapshot->linkedColumn(m_forms).differing;
    } else {
        for (qsizetype i = 0; i < m_exifFiles.size(); ++i) {
            if (m_forms.read(m_exifFiles.at(i)->editedValues()).copiesDiffer)
                differing.append(i);
        }
    }
    QStringList lines;
    QString firstName;
    if (!differing.isEmpty()) {
        const ExifFileInfoPtr &file = m_exifFiles.at(differing.constFirst());
        firstName = QFileInfo(file->fileName()).fileName();
        for (const LinkedForms::Copy &copy : m_forms.differingCopies(file->editedValues())) {
            lines.append(tr("%1 (%2): \u201c%3\u201d")
                             .arg(LinkedForms::standardOfKey(copy.key), copy.key, copy.value));
        }
    }
    m_copiesDiffer = !differing.isEmpty();
    m_copiesMark->setVisible(m_copiesDiffer && m_label && !m_label->isHidden());
    if (!m_copiesDiffer)
        return;
    const QString head =
        m_exifFiles.size() == 1
            ? tr("The copies of this field in the file's standards differ:")
            : tr("In %n of the selected files the copies of this field differ. In %1:", nullptr,
                 int(differing.size()))
                  .arg(firstName);
    m_copiesMark->setToolTip(head + u'\n' + lines.join(u'\n') + u'\n' +
                             tr("Click to choose one value for every copy."));
    placeCopiesMark();
    m_copiesMark->raise();
}

void FieldEditor::showCopiesMenu()
{
    if (!m_copiesMark)
        return;
    // The copies present in any file that differs, in the row's order.
    QStringList keys;
    QHash<QString, QString> valueOfKey;
    for (const ExifFileInfoPtr &file : std::as_const(m_exifFiles)) {
        for (const LinkedForms::Copy &copy : m_forms.differingCopies(file->editedValues())) {
            if (!valueOfKey.contains(copy.key))
                valueOfKey.insert(copy.key, copy.value);
        }
    }
    for (const QString &key : m_forms.keys()) {
        if (valueOfKey.contains(key))
            keys.append(key);
    }
    QMenu menu(m_copiesMark);
    const QFontMetrics metrics(menu.font());
    for (const QString &key : std::as_const(keys)) {
        const QString standard = LinkedForms::standardOfKey(key);
        const QString text =
            m_exifFiles.size() == 1
                ? tr("Use \u201c%1\u201d from %2 (%3) for every copy")
                      .arg(metrics.elidedText(valueOfKey.value(key), Qt::ElideRight, 300), standard,
                           key)
                : tr("Use each file's %1 value (%2) for every copy").arg(standard, key);
        menu.addAction(text, this, [this, key] { useCopyEverywhere(key); });
    }
    menu.exec(m_copiesMark->mapToGlobal(QPoint(0, m_copiesMark->height())));
}

void FieldEditor::useCopyEverywhere(const QString &key)
{
    bool any = false;
    for (const ExifFileInfoPtr &file : std::as_const(m_exifFiles)) {
        const EditedValues values = file->editedValues();
        if (m_forms.differingCopies(values).isEmpty())
            continue;
        const QString chosen = m_forms.rowValueOf(key, values.value(key));
        m_forms.set(*file, chosen.isNull() ? m_forms.valueIn(values) : chosen);
        any = true;
    }
    if (!any)
        return;
    const QString shown = currentValue(*m_exifFiles.constFirst());
    sendChangeNotification(shown.isEmpty() ? std::nullopt : std::optional<QString>(shown));
    setExifFiles(QList<ExifFileInfoPtr>(m_exifFiles));
}

QString FieldEditor::multipleValuesText()
{
    static const QString text = localized(u"Multiple values"_qs);
    return text;
}

QStringList FieldEditor::valuesInTitleOrder(const ExifField &field)
{
    const auto &map = field.values();
    if (!map)
        return {};
    QStringList values = map->keys();
    std::sort(values.begin(), values.end(), [&map](const QString &a, const QString &b) {
        const int order = map->value(a).compare(map->value(b), Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    return values;
}
