#include "editors/texteditor.h"

#include "editors/otherlanguagesdialog.h"
#include "editors/rightedgenote.h"
#include "engine/editsession.h"
#include "engine/languagealternatives.h"

#include "catalogue/preset.h"
#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "controls/attachedwindow.h"
#include "controls/numberformattervalidator.h"
#include "values/fractionvalue.h"
#include "values/gpslocation.h"
#include "values/leadingnumber.h"
#include "values/numberformatter.h"
#include "values/usersettings.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QMenu>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyle>

namespace {

const QString LatitudeKey = QStringLiteral("GPS:GPSLatitude");
const QString LongitudeKey = QStringLiteral("GPS:GPSLongitude");

std::optional<GPSLocation> parseCoordinate(const QString &text, FieldDataRepresentation r)
{
    return GPSLocation::initWithString(text, r == FieldDataRepresentation::Longitude
                                                 ? GPSLocation::Longitude
                                                 : GPSLocation::Latitude);
}

} // namespace

TextEditor::TextEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
{
}

TextEditor::~TextEditor()
{
    if (m_errorMessageWindow)
        m_errorMessageWindow->deleteLater();
}

QLineEdit *TextEditor::editor() const
{
    return m_editor;
}

QLabel *TextEditor::otherLanguagesLabel() const
{
    return m_otherLanguages;
}

QLabel *TextEditor::bytesLeftLabel() const
{
    return m_bytesLeft;
}

void TextEditor::updateBytesLeft(bool typing)
{
    if (m_bytesLeft)
        showBytesLeft(m_bytesLeft, byteLimit(), m_editor->text(), typing);
}

AttachedWindow *TextEditor::errorMessageWindow() const
{
    return m_errorMessageWindow;
}

bool TextEditor::isCoordinate() const
{
    const auto r = field()->dataRepresentation();
    return r == FieldDataRepresentation::Longitude || r == FieldDataRepresentation::Latitude;
}

QString TextEditor::referenceKey() const
{
    return field()->dataRepresentation() == FieldDataRepresentation::Longitude
               ? u"GPS:GPSLongitudeRef"_qs
               : u"GPS:GPSLatitudeRef"_qs;
}

int TextEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_editor = new QLineEdit(parent);
    m_editor->setGeometry(frame.x(), frame.y(), frame.width(), 20);
    m_editor->setFont(ApertureTheme::labelFont());
    m_editor->setReadOnly(!hasExifFiles());
    if (field()->dataRepresentation() == FieldDataRepresentation::Number) {
        m_formatter = field()->createFormatter();
        m_editor->setValidator(new NumberFormatterValidator(
            std::shared_ptr<const NumberFormatter>(field()->createFormatter()), m_editor));
    }
    connect(m_editor, &QLineEdit::textEdited, this, &TextEditor::controlTextDidChange);
    connect(m_editor, &QLineEdit::editingFinished, this, &TextEditor::controlTextDidEndEditing);
    if (field()->dataType() == FieldDataType::LangAlt) {
        m_otherLanguages = addRightEdgeNote(m_editor);
        // In the field's own text colour, so it reads as well as the value beside it.
        m_otherLanguages->setForegroundRole(QPalette::Text);
        m_otherLanguages->setCursor(Qt::PointingHandCursor);
        m_otherLanguages->installEventFilter(this);
        m_editor->installEventFilter(this);
    }
    if (byteLimit() > 0)
        m_bytesLeft = addRightEdgeNote(m_editor);
    setContentControl(m_editor);
    m_editor->show();
    stretchWithRow(m_editor);
    return 20;
}

int TextEditor::hideEditor(int top)
{
    FieldEditor::hideEditor(top);
    showErrorPopup(QString());
    return top;
}

void TextEditor::clearEditor()
{
    FieldEditor::clearEditor();
    m_textChanged = false;
    if (m_editor) {
        m_editor->clear();
        m_editor->setPlaceholderText(QString());
        m_editor->setReadOnly(true);
    }
    showOtherLanguages({});
    showErrorPopup(QString());
    updateModifiedLabel();
}

void TextEditor::setEnabled(bool enabled)
{
    FieldEditor::setEnabled(enabled);
    if (m_editor)
        m_editor->setEnabled(enabled);
}

void TextEditor::displayValue(const QString &value)
{
    switch (field()->dataRepresentation()) {
    case FieldDataRepresentation::Fraction:
        m_editor->setText(FractionValue::displayText(value));
        break;
    case FieldDataRepresentation::Longitude:
    case FieldDataRepresentation::Latitude:
        m_editor->setText(value.isEmpty() ? QString() : formatLocation(leadingNumber(value)));
        break;
    default:
        m_editor->setText(value);
    }
}

void TextEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
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
        displayValue(values.isEmpty() ? QString() : *values.cbegin());
    } else {
        m_editor->clear();
        m_editor->setPlaceholderText(multipleValuesText());
    }
    showOtherLanguages(files);
    updateModifiedLabel();
}

void TextEditor::showOtherLanguages(const QList<ExifFileInfoPtr> &files)
{
    if (!m_otherLanguages)
        return;
    QStringList languages;
    for (const ExifFileInfoPtr &file : files) {
        const QMap<QString, QString> held = otherLanguages(*file, field()->xmlName());
        for (auto it = held.cbegin(); it != held.cend(); ++it) {
            if (!languages.contains(it.key()))
                languages.append(it.key());
        }
    }
    if (languages.isEmpty()) {
        m_otherLanguages->hide();
        m_editor->setTextMargins(0, 0, 0, 0);
        return;
    }
    languages.sort();
    m_otherLanguages->setText(tr("%n other language(s)", nullptr, int(languages.size())));
    m_otherLanguages->setToolTip(
        tr("Also held in: %1. Editing changes the default language only; the others are kept. "
           "Click to see and edit them.")
            .arg(languages.join(QStringLiteral(", "))));
    m_otherLanguages->show();
    m_editor->setTextMargins(0, 0, m_otherLanguages->sizeHint().width() + 8, 0);
}

QString TextEditor::formatLocation(double degrees) const
{
    const GPSLocation location =
        field()->dataRepresentation() == FieldDataRepresentation::Longitude
            ? GPSLocation::initLongitudeWithDouble(degrees, GPSLocation::NoHemisphere)
            : GPSLocation::initLatitudeWithDouble(degrees, GPSLocation::NoHemisphere);
    return location.stringForGpsFormat(UserSettings::gpsFormat());
}

QString TextEditor::currentText() const
{
    return m_editor ? m_editor->text().trimmed() : QString();
}

void TextEditor::updateExifFileValue(const ExifFileInfoPtr &file)
{
    if (showRemoveButton() && !isRemoveButtonChecked()) {
        restoreOriginalValue(file);
        return;
    }
    const QString &key = field()->xmlName();
    const QString value = currentText();
    if (value.isEmpty()) {
        removeValue(*file);
        showErrorPopup(QString());
        return;
    }
    switch (field()->dataRepresentation()) {
    case FieldDataRepresentation::Fraction:
        if (const auto stored = FractionValue::storedText(value))
            file->setExifValue(key, *stored);
        break;
    case FieldDataRepresentation::Longitude:
    case FieldDataRepresentation::Latitude:
        setGpsValue(value, file, key);
        break;
    case FieldDataRepresentation::Number:
        // The catalogue's formatter prints what the read showed, so a typed 1.50 compares equal.
        if (const auto number = m_formatter ? m_formatter->numberFromString(value) : std::nullopt)
            file->setExifValue(key, m_formatter->stringFromNumber(*number));
        else
            file->setExifValue(key, value);
        break;
    default:
        storeValue(*file, value);
    }
}

bool TextEditor::setGpsValue(const QString &text, const ExifFileInfoPtr &file,
                             const QString &xmlName)
{
    const auto representation = field()->dataRepresentation();
    const auto location = parseCoordinate(text, representation);
    // Out-of-range minutes or seconds are as wrong as text that does not parse.
    if (!location || !location->isInRange()) {
        m_gpsFailed = true;
        showErrorPopup(localized(representation == FieldDataRepresentation::Longitude
                                     ? u"GPS_LONGITUDE_FORMAT_DESC:"_qs
                                     : u"GPS_LATITUDE_FORMAT_DESC"_qs));
        return false;
    }
    file->setExifValue(xmlName, GPSLocation::degreesText(location->doubleValue()));
    const QString letter = location->hemisphereLetter();
    if (!letter.isEmpty()) {
        file->setExifValue(referenceKey(), letter);
        m_pendingReference = letter;
    }
    showErrorPopup(QString());
    return true;
}

bool TextEditor::copyToExifFiles(const QList<ExifFileInfoPtr> &files)
{
    if (!m_textChanged) {
        const QString &key = field()->xmlName();
        return std::any_of(files.cbegin(), files.cend(), [&](const ExifFileInfoPtr &file) {
            return forms().isLinked() ? forms().isChanged(file->editedValues())
                                      : file->exifValue(key) != file->originalExifData().value(key);
        });
    }
    m_pendingReference.clear();
    m_gpsFailed = false;
    const bool changed = FieldEditor::copyToExifFiles(files);
    updateModifiedLabel();
    if (m_gpsFailed)
        return changed;
    // The hemisphere goes first so its row shows it before the coordinate's receivers look.
    if (!m_pendingReference.isEmpty())
        sendChangeNotification(m_pendingReference, referenceKey());
    // What was stored, not what was typed: "-33.8688" is stored as 33.8688 with its "S".
    const QString stored = files.isEmpty() ? QString() : currentValue(*files.constFirst());
    sendChangeNotification(stored.isEmpty() ? std::nullopt : std::optional<QString>(stored));
    return changed;
}

void TextEditor::controlTextDidChange()
{
    m_textChanged = true;
    updateRemovalHint();
    updateBytesLeft(true);
}

void TextEditor::controlTextDidEndEditing()
{
    // Return, the focus leaving for the Save button and the save's own commit each end the same
    // edit: the first writes and announces it, the others find nothing typed since.
    if (m_textChanged && hasExifFiles()) {
        copyToExifFiles(exifFiles());
        // Text that is no coordinate was not written: the next end of editing tries again.
        m_textChanged = m_gpsFailed;
    }
    if (isCoordinate() && !m_gpsFailed) {
        const QString text = currentText();
        if (const auto location = parseCoordinate(text, field()->dataRepresentation());
            !text.isEmpty() && location && location->isInRange()) {
            m_editor->setText(formatLocation(location->doubleValue()));
        }
    }
    if (!m_gpsFailed)
        showErrorPopup(QString());
    updateBytesLeft(false);
}

void TextEditor::commitPendingInput()
{
    if (m_textChanged && hasExifFiles())
        controlTextDidEndEditing();
}

bool TextEditor::followsOtherRows() const
{
    const QString &key = field()->xmlName();
    return key == LatitudeKey || key == LongitudeKey;
}

void TextEditor::receiveFilesUpdateNotification(const ExifFilesUpdate &update)
{
    // A coordinate row follows the other coordinate, which the map and geotagging change too.
    if (!m_editor || update.source == this ||
        (update.xmlName != LatitudeKey && update.xmlName != LongitudeKey)) {
        return;
    }
    setExifFiles(update.changedFiles);
    updateModifiedLabel();
}

void TextEditor::setExifConfiguration(const Preset *configuration)
{
    setEnabled(true);
    if (m_editor)
        m_editor->setReadOnly(false);
    m_textChanged = false;
    const QString key = configuration ? presetKey(*configuration) : field()->xmlName();
    if (!configuration) {
        clearEditor();
        return;
    }
    m_editor->setPlaceholderText(QString());
    if (configuration->removedValues().contains(key)) {
        setRemoveButtonChecked(true);
        m_editor->clear();
    } else if (const auto it = configuration->changedValues().constFind(key);
               it != configuration->changedValues().cend()) {
        displayValue(*it);
        setRemoveButtonChecked(true);
    } else {
        m_editor->clear();
        setRemoveButtonChecked(false);
    }
}

bool TextEditor::copyToConfiguration(Preset &configuration)
{
    const QString key = presetKey(configuration);
    const Qt::CheckState state = removeButtonState();
    if (state == Qt::Unchecked) {
        forgetCopies(configuration);
        return true;
    }
    if (state != Qt::Checked)
        return true;
    const QString text = currentText();
    if (text.isEmpty()) {
        configuration.changedValues().remove(key);
        configuration.removedValues().insert(key);
        return true;
    }
    switch (field()->dataRepresentation()) {
    case FieldDataRepresentation::Fraction:
        if (const auto stored = FractionValue::storedText(text))
            configuration.changedValues().insert(key, *stored);
        break;
    case FieldDataRepresentation::Longitude:
    case FieldDataRepresentation::Latitude: {
        // Presets keep the sign in the number; text that is no coordinate stores zero.
        const auto location = parseCoordinate(text, field()->dataRepresentation());
        configuration.changedValues().insert(
            key, QString::asprintf("%f", location ? location->signedValue() : 0.0));
        break;
    }
    default:
        configuration.changedValues().insert(key, text);
    }
    configuration.removedValues().remove(key);
    return true;
}

bool TextEditor::isModified() const
{
    if (FieldEditor::isModified())
        return true;
    if (field()->dataType() != FieldDataType::LangAlt)
        return false;
    const QString prefix = field()->xmlName() + u'-';
    return std::any_of(exifFiles().cbegin(), exifFiles().cend(), [&prefix](const auto &file) {
        const EditedValues values = file->editedValues();
        const auto isLanguage = [&prefix](const QString &key) { return key.startsWith(prefix); };
        return std::any_of(values.removed().cbegin(), values.removed().cend(), isLanguage) ||
               std::any_of(values.changed().keyBegin(), values.changed().keyEnd(), isLanguage);
    });
}

OtherLanguagesDialog *TextEditor::openOtherLanguages()
{
    if (field()->dataType() != FieldDataType::LangAlt || !hasExifFiles() || !m_editor)
        return nullptr;
    auto *dialog = new OtherLanguagesDialog(field()->title(), field()->xmlName(), exifFiles(),
                                            m_editor->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        const QList<ExifFileInfoPtr> changed = dialog->changedFiles();
        if (changed.isEmpty() || !editSession())
            return;
        // The default language's text rides along: the receivers refresh whole files.
        const QString shown = currentValue(*changed.constFirst());
        editSession()->post(field()->xmlName(), changed,
                            shown.isEmpty() ? std::nullopt : std::optional<QString>(shown),
                            exifFiles(), this);
        showOtherLanguages(exifFiles());
        updateModifiedLabel();
    });
    dialog->open();
    return dialog;
}

bool TextEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_otherLanguages && event->type() == QEvent::MouseButtonPress) {
        openOtherLanguages();
        return true;
    }
    if (watched == m_editor && event->type() == QEvent::ContextMenu) {
        std::unique_ptr<QMenu> menu(m_editor->createStandardContextMenu());
        menu->addSeparator();
        QAction *languages =
            menu->addAction(tr("Other Languages\u2026"), this, &TextEditor::openOtherLanguages);
        languages->setEnabled(hasExifFiles());
        menu->exec(static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    return FieldEditor::eventFilter(watched, event);
}

void TextEditor::focusControl()
{
    if (m_editor)
        m_editor->setFocus(Qt::OtherFocusReason);
}

void TextEditor::showErrorPopup(const QString &message)
{
    if (message.isEmpty()) {
        if (m_errorMessageWindow) {
            m_errorMessageWindow->close();
            m_errorMessageWindow->deleteLater();
        }
        return;
    }
    if (!m_errorMessageWindow) {
        m_errorMessageWindow = new AttachedWindow(label() ? static_cast<QWidget *>(label())
                                                          : static_cast<QWidget *>(m_editor),
                                                  AttachedWindow::Behaviour::Tool);
        auto *content = new QWidget;
        content->setFixedSize(440, 130);
        auto *layout = new QHBoxLayout(content);
        auto *image = new QLabel(content);
        image->setPixmap(
            QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(48, 48));
        image->setAlignment(Qt::AlignTop);
        m_errorMessageLabel = new QLabel(content);
        m_errorMessageLabel->setWordWrap(true);
        m_errorMessageLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_errorMessageLabel->setStyleSheet(u"color: rgb(255, 110, 110);"_qs);
        layout->addWidget(image);
        layout->addWidget(m_errorMessageLabel, 1);
        m_errorMessageWindow->setContentWidget(content);
        // Scrolling the form would leave the arrow pointing at the wrong row.
        for (QWidget *w = m_editor ? m_editor->parentWidget() : nullptr; w; w = w->parentWidget()) {
            if (auto *area = qobject_cast<QAbstractScrollArea *>(w)) {
                for (QScrollBar *bar : {area->verticalScrollBar(), area->horizontalScrollBar()})
                    connect(bar, &QScrollBar::valueChanged, m_errorMessageWindow, &QWidget::close);
                break;
            }
        }
        connect(qApp, &QApplication::applicationStateChanged, m_errorMessageWindow,
                [window = m_errorMessageWindow](Qt::ApplicationState state) {
                    if (state != Qt::ApplicationActive && window)
                        window->close();
                });
    }
    m_errorMessageLabel->setText(message);
    m_errorMessageWindow->showAttached();
}
