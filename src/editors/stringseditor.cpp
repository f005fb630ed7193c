#include "editors/stringseditor.h"

#include "catalogue/preset.h"
#include "controls/aperturetheme.h"
#include "controls/tokenfield.h"
#include "editors/rightedgenote.h"
#include "values/taglist.h"

#include <QAction>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

#include <memory>

namespace {

constexpr int FieldHeight = 80;

} // namespace

StringsEditor::StringsEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
    , m_replaceAction(new QAction(tr("Replace in All Files"), this))
{
    m_replaceAction->setEnabled(false);
    connect(m_replaceAction, &QAction::triggered, this, &StringsEditor::onReplaceInAllFiles);
}

StringsEditor::~StringsEditor() = default;

QLabel *StringsEditor::bytesLeftLabel() const
{
    return m_bytesLeft;
}

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
    m_editor->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_editor->addAction(m_replaceAction);
    m_editor->lineEdit()->installEventFilter(this);
    if (byteLimit() > 0) {
        // Each item has its own dataset in IPTC-IIM: the one being typed counts its bytes.
        m_bytesLeft = addRightEdgeNote(m_editor->lineEdit());
        // Changed, not edited: a committed item leaves the input by a clear.
        connect(m_editor->lineEdit(), &QLineEdit::textChanged, this, [this](const QString &text) {
            showBytesLeft(m_bytesLeft, byteLimit(), text.trimmed(), true);
        });
    }
    if (QLabel *rowLabel = label()) {
        rowLabel->setContextMenuPolicy(Qt::ActionsContextMenu);
        rowLabel->addAction(m_replaceAction);
    }
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
    setAddsToEachFile(false);
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
    setAddsToEachFile(values.size() >= 2);
    if (values.size() < 2) {
        m_editor->setPlaceholderText(QString());
        m_editor->setText(values.isEmpty() ? QString() : *values.cbegin());
    } else {
        m_editor->clear();
        m_editor->setPlaceholderText(multipleValuesText());
    }
    updateModifiedLabel();
}

void StringsEditor::setAddsToEachFile(bool on)
{
    m_addsToEachFile = on;
    m_ownLists.clear();
    m_ownCopies.clear();
    m_replaceAction->setEnabled(on);
    if (m_editor) {
        // "new, Multiple values": the typed items join what each file has.
        m_editor->setPlaceholderAlwaysShown(on);
        m_editor->setToolTip(on ? tr("Items typed here are added to each file's own list. To "
                                     "give every file this one list, choose Replace in All "
                                     "Files from the context menu.")
                                : QString());
    }
}

void StringsEditor::controlTextDidChange()
{
    // Taken at the first typed item rather than with the selection, which must stay cheap.
    if (m_addsToEachFile && !m_textChanged) {
        for (const ExifFileInfoPtr &file : exifFiles()) {
            m_ownLists.insert(file.get(), currentValue(*file));
            m_ownCopies.insert(file.get(), forms().copiesIn(file->editedValues()));
        }
    }
    m_textChanged = true;
    // Checked first: an unchecked row would put the originals back instead of the typed list.
    setRemoveButtonChecked(true);
    const QString text = m_editor->text();
    copyToExifFiles(exifFiles());
    updateModifiedLabel();
    sendChangeNotification(text.isEmpty() ? std::nullopt : std::optional<QString>(text));
}

void StringsEditor::onReplaceInAllFiles()
{
    if (!m_addsToEachFile)
        return;
    setAddsToEachFile(false);
    if (m_editor) {
        m_editor->setPlaceholderText(tr("One list for all files"));
        m_editor->setToolTip(tr("Every selected file gets this list in place of its own."));
    }
    // Items typed so far now make up every file's whole list.
    if (m_textChanged)
        controlTextDidChange();
}

void StringsEditor::updateExifFileValue(const ExifFileInfoPtr &file)
{
    if (showRemoveButton() && !isRemoveButtonChecked()) {
        restoreOriginalValue(file);
        return;
    }
    // Untouched, a multiple-values row shows no tokens: writing that would wipe every file.
    if (!m_textChanged || !m_editor)
        return;
    QString text;
    if (m_addsToEachFile) {
        const auto own = m_ownLists.constFind(file.get());
        const QString list = own != m_ownLists.cend() ? *own : currentValue(*file);
        text = withStringsItemsAdded(list, m_editor->tokens());
        // A file that has every typed item keeps what it had, down to its copies.
        if (text == list && m_ownCopies.contains(file.get())) {
            forms().setCopies(*file, m_ownCopies.value(file.get()));
            return;
        }
    } else {
        text = m_editor->text().trimmed();
    }
    if (text.isNull() || (!m_addsToEachFile && text.isEmpty()))
        removeValue(*file);
    else
        storeValue(*file, text);
}

bool StringsEditor::eventFilter(QObject *watched, QEvent *event)
{
    // The input's own menu (cut, copy, paste) with the row's choice under it.
    if (m_editor && watched == m_editor->lineEdit() && event->type() == QEvent::ContextMenu) {
        std::unique_ptr<QMenu> menu(m_editor->lineEdit()->createStandardContextMenu());
        menu->addSeparator();
        menu->addAction(m_replaceAction);
        menu->exec(static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    return FieldEditor::eventFilter(watched, event);
}

void StringsEditor::setExifConfiguration(const Preset *configuration)
{
    setEnabled(true);
    if (!configuration || !m_editor) {
        clearEditor();
        return;
    }
    m_textChanged = false;
    setAddsToEachFile(false);
    m_editor->setPlaceholderText(QString());
    const QString key = configuration ? presetKey(*configuration) : field()->xmlName();
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

bool StringsEditor::copyToConfiguration(Preset &configuration)
{
    const QString key = presetKey(configuration);
    const QString text = m_editor ? m_editor->text().trimmed() : QString();
    if (!isRemoveButtonChecked()) {
        forgetCopies(configuration);
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
