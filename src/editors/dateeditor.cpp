#include "editors/dateeditor.h"

#include "editors/dateeditorview.h"
#include "values/datewallclock.h"

#include "controls/aperturetheme.h"
#include "engine/editsession.h"
#include "values/dateoffset.h"
#include "values/datevalue.h"
#include "values/tagsmithexception.h"

#include <QEvent>
#include <QLocale>

DateEditor::DateEditor(ExifFieldPtr field, QObject *parent)
    : FieldEditor(std::move(field), parent)
{
}

DateEditor::~DateEditor()
{
    destroyPopupWindow();
}

int DateEditor::createEditorContent(QWidget *parent, QRect frame)
{
    m_currentDateLabel = new QLabel(parent);
    m_currentDateLabel->setObjectName(QStringLiteral("fieldValue"));
    m_currentDateLabel->setGeometry(frame);
    m_currentDateLabel->setAutoFillBackground(true);
    m_currentDateLabel->setBackgroundRole(QPalette::Button);
    m_currentDateLabel->setFont(ApertureTheme::labelFont());
    m_currentDateLabel->setCursor(Qt::PointingHandCursor);
    m_currentDateLabel->installEventFilter(this);
    setContentControl(m_currentDateLabel, 2);
    m_currentDateLabel->show();
    stretchWithRow(m_currentDateLabel);
    return frame.height();
}

int DateEditor::hideEditor(int top)
{
    FieldEditor::hideEditor(top);
    showPopupController(false);
    return top;
}

void DateEditor::clearEditor()
{
    FieldEditor::clearEditor();
    destroyPopupWindow();
    if (m_currentDateLabel)
        m_currentDateLabel->clear();
}

void DateEditor::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    FieldEditor::setExifFiles(files);
    destroyPopupWindow();
    refreshView();
}

void DateEditor::receiveFilesUpdateNotification(const ExifFilesUpdate &update)
{
    if (!update.exifFiles.isEmpty() && hasExifFiles() && m_currentDateLabel)
        refreshView();
}

void DateEditor::refreshView()
{
    if (!m_currentDateLabel)
        return;
    const QSet<QString> values = gatherExifFilesValues(exifFiles());
    if (values.size() < 2)
        m_currentDateLabel->setText(
            formatDateStringForLabel(values.isEmpty() ? QString() : *values.constBegin()));
    else
        m_currentDateLabel->setText(multipleValuesText());
    updateModifiedLabel();
}

QString DateEditor::formatDateStringForLabel(const QString &value) const
{
    if (m_dateEditorType != DateEditorTypeDate && m_dateEditorType != DateEditorTypeDateTime)
        throw TagsmithException(TagsmithException::NotImplemented,
                                QStringLiteral("Not implemented!!!"));
    if (value.isEmpty())
        return {};
    if (isDateOffsetText(value)) {
        const DateComponents offset = parseDateOffset(value);
        return formatDateOffsetDisplay(offset, offset.era.value_or(0) >= 1).toLower();
    }
    const QDateTime date = wallClockDate(value, m_dateEditorType);
    if (!date.isValid())
        return {};
    const QLocale locale;
    QString text = locale.toString(date.date(), QLocale::LongFormat);
    if (m_dateEditorType == DateEditorTypeDateTime)
        text += u' ' + locale.toString(date.time(), QStringLiteral("HH:mm:ss"));
    return text;
}

void DateEditor::updateExifFileValue(const ExifFileInfoPtr &)
{
    // The popup's panel writes the files itself.
}

// Presets edit dates with the offset editor; this row has nothing to keep in one.
void DateEditor::setExifConfiguration(const Preset *)
{
}

bool DateEditor::copyToConfiguration(Preset &)
{
    return false;
}

void DateEditor::focusControl()
{
    controlMouseDown();
}

bool DateEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_currentDateLabel) {
        if (event->type() == QEvent::MouseButtonPress) {
            m_mouseDown = true;
            controlMouseDown();
        } else if (event->type() == QEvent::MouseButtonRelease) {
            m_mouseDown = false;
        }
    }
    return FieldEditor::eventFilter(watched, event);
}

void DateEditor::controlMouseDown()
{
    if (!hasExifFiles() || !m_currentDateLabel)
        return;
    if (!m_popupController)
        createPopupController();
    showPopupController(true);
}

void DateEditor::createPopupController()
{
    m_popupWindow = new AttachedWindow(m_currentDateLabel, AttachedWindow::Behaviour::Popup,
                                       m_currentDateLabel);
    m_popupController = new DateEditorPopupController(field(), m_dateEditorType);
    m_popupController->view()->setEditSession(editSession());
    m_popupWindow->setContentWidget(m_popupController);
}

void DateEditor::showPopupController(bool show)
{
    if (!m_popupWindow)
        return;
    if (show) {
        m_popupController->setExifFiles(exifFiles());
        m_popupWindow->showAttached();
        m_popupWindow->raise();
        m_popupWindow->activateWindow();
    } else {
        // Every edit in the panel is already in the files. Saving again here would write the
        // picker's date over files that hold different dates when the user changed nothing.
        m_popupWindow->hide();
    }
}

void DateEditor::destroyPopupWindow()
{
    if (m_popupWindow) {
        m_popupWindow->hide();
        m_popupWindow->deleteLater();
    }
    m_popupWindow = nullptr;
    m_popupController = nullptr;
}
