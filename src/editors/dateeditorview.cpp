#include "editors/dateeditorview.h"

#include "values/datewallclock.h"

#include "catalogue/stringtables.h"
#include "controls/dateoffsetfield.h"
#include "engine/editsession.h"
#include "values/dateoffset.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"
#include "values/zoneshift.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScopedValueRollback>
#include <QSet>

namespace {

// Logs "(E) ..." now and "(X) ..." when the scope ends, also when it ends by an exception.
class Trace
{
public:
    Trace(const QString &entry, QString exit)
        : m_exit(std::move(exit))
    {
        qCInfo(lcTagsmith).noquote() << QStringLiteral("(E) ") + entry;
    }
    explicit Trace(const QString &both)
        : Trace(both, both)
    {
    }
    ~Trace() { qCInfo(lcTagsmith).noquote() << QStringLiteral("(X) ") + m_exit; }
    Trace(const Trace &) = delete;
    Trace &operator=(const Trace &) = delete;

private:
    QString m_exit;
};

// The wall-clock reading of now, in the panel's zone-less form.
QDateTime wallClockNow()
{
    const QDateTime now = QDateTime::currentDateTime();
    return {now.date(), QTime(now.time().hour(), now.time().minute(), now.time().second()),
            Qt::UTC};
}

// Offsets of different files count as one when a user would type them the same way.
DateComponents typedForm(const DateComponents &offset)
{
    return withUnitSign(offset, 1);
}

QLabel *clickableLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setCursor(Qt::PointingHandCursor);
    return label;
}

} // namespace

DateEditorView::DateEditorView(ExifFieldPtr field, DateEditorType type, QWidget *parent)
    : QWidget(parent)
    , m_field(std::move(field))
    , m_type(type)
{
    if (type != DateEditorTypeDate && type != DateEditorTypeDateTime)
        throw TagsmithException(TagsmithException::NotImplemented,
                                QStringLiteral("Not implemented!!!"));
    buildRows();
    hideEditorsForEmptyValue();
}

DateEditorView::~DateEditorView() = default;

void DateEditorView::buildRows()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(10, 5, 10, 5);
    grid->setVerticalSpacing(4);

    m_emptyTitle = new QLabel(localized(QStringLiteral("Empty Date Value:")), this);
    m_emptyBox = new QCheckBox(this);
    grid->addWidget(m_emptyTitle, 0, 0, Qt::AlignRight);
    grid->addWidget(m_emptyBox, 0, 1);

    m_newTitle = new QLabel(localized(QStringLiteral("New Time:")), this);
    m_datePicker = new QDateTimeEdit(this);
    m_datePicker->setTimeSpec(Qt::UTC);
    m_datePicker->setCalendarPopup(true);
    m_datePicker->setMinimumDate(QDate(100, 1, 1));
    m_datePicker->setDisplayFormat(m_type == DateEditorTypeDateTime
                                       ? QStringLiteral("yyyy-MM-dd HH:mm:ss")
                                       : QStringLiteral("yyyy-MM-dd"));
    m_dateLabel = clickableLabel(QString(), this);
    auto *dateRow = new QHBoxLayout;
    dateRow->addWidget(m_datePicker);
    dateRow->addWidget(m_dateLabel);
    dateRow->addStretch();
    grid->addWidget(m_newTitle, 1, 0, Qt::AlignRight);
    grid->addLayout(dateRow, 1, 1);

    m_offsetTitle = new QLabel(localized(QStringLiteral("Time Offset:")), this);
    m_offsetField = new DateOffsetField(m_type, this);
    m_offsetLabel = clickableLabel(QString(), this);
    auto *offsetRow = new QHBoxLayout;
    offsetRow->addWidget(m_offsetField);
    offsetRow->addWidget(m_offsetLabel);
    offsetRow->addStretch();
    grid->addWidget(m_offsetTitle, 2, 0, Qt::AlignRight);
    grid->addLayout(offsetRow, 2, 1);

    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    grid->addWidget(line, 3, 0, 1, 2);

    grid->addWidget(new QLabel(localized(QStringLiteral("Original Time:")), this), 4, 0,
                    Qt::AlignRight);
    m_originalLabel = new QLabel(this);
    grid->addWidget(m_originalLabel, 4, 1);
    m_moveZoneBox =
        new QCheckBox(localized(QStringLiteral("Move the time zone too (same instant)")), this);
    m_moveZoneBox->hide();
    grid->addWidget(m_moveZoneBox, 5, 1);
    grid->setColumnStretch(1, 1);

    for (QLabel *label : {m_emptyTitle, m_newTitle, m_dateLabel, m_offsetTitle, m_offsetLabel})
        label->installEventFilter(this);

    connect(m_emptyBox, &QCheckBox::clicked, this, [this] { disableEnableButtonPressed(); });
    connect(m_moveZoneBox, &QCheckBox::clicked, this, [this] {
        if (!m_emptyBox->isChecked())
            saveValue();
    });
    connect(m_datePicker, &QDateTimeEdit::dateTimeChanged, this, &DateEditorView::onDateProposed);
    connect(m_offsetField, &DateOffsetField::dateOffsetChanged, this,
            &DateEditorView::onOffsetChanged);
}

bool DateEditorView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        controlMouseUp(watched);
    return QWidget::eventFilter(watched, event);
}

QString DateEditorView::originalValue(const ExifFileInfoPtr &file) const
{
    const auto it = m_baseOriginals.constFind(file->fileName());
    if (it != m_baseOriginals.constEnd())
        return *it;
    return file->originalExifData().value(m_field->xmlName());
}

QDateTime DateEditorView::firstOriginalDate() const
{
    if (m_files.isEmpty())
        return {};
    return wallClockDate(originalValue(m_files.first()), m_type);
}

QString DateEditorView::labelText(const QDateTime &date, bool mediumDate) const
{
    const QLocale locale;
    QString text = mediumDate ? locale.toString(date.date(), QStringLiteral("d MMM yyyy"))
                              : locale.toString(date.date(), QLocale::ShortFormat);
    if (m_type == DateEditorTypeDateTime)
        text += u' ' + locale.toString(date.time(), QStringLiteral("HH:mm:ss"));
    return text;
}

void DateEditorView::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    Trace trace(QStringLiteral("setExifFiles: %1 files").arg(files.size()),
                QStringLiteral("setExifFiles"));
    const QString key = m_field->xmlName();
    m_files = files;
    m_baseOriginals.clear();
    m_baseZones.clear();
    m_baseValueZones.clear();
    const QString zoneKey = zoneTagForDateKey(key);
    bool zoneMoved = false;
    QSet<DateComponents> offsets;
    for (const ExifFileInfoPtr &file : files) {
        const QString original = file->originalExifData().value(key);
        m_baseOriginals.insert(file->fileName(), original);
        if (const QString zone = file->originalExifData().value(zoneKey);
            !zoneKey.isEmpty() && !zone.isEmpty()) {
            m_baseZones.insert(file->fileName(), zone);
            zoneMoved = zoneMoved || file->exifValue(zoneKey) != zone;
        }
        const QString current = file->exifValue(key);
        if (const QString zone = dateZoneSuffix(original); !zone.isEmpty()) {
            m_baseValueZones.insert(file->fileName(), zone);
            zoneMoved =
                zoneMoved || (!isDateOffsetText(current) && !dateZoneSuffix(current).isEmpty() &&
                              dateZoneSuffix(current) != zone);
        }
        if (current.isEmpty())
            continue;
        if (isDateOffsetText(current)) {
            offsets.insert(typedForm(parseDateOffset(current)));
            continue;
        }
        const QDateTime currentDate = wallClockDate(current, m_type);
        const QDateTime originalDate = wallClockDate(original, m_type);
        if (currentDate.isValid() && originalDate.isValid())
            offsets.insert(wallClockOffset(originalDate, currentDate));
    }
    setOriginalDate(files.isEmpty() ? QString() : originalValue(files.first()));
    m_moveZoneBox->setVisible(!m_baseZones.isEmpty() || !m_baseValueZones.isEmpty());
    m_moveZoneBox->setChecked(zoneMoved);

    const QString clickText = m_type == DateEditorTypeDateTime
                                  ? localized(QStringLiteral("Click to change the time"))
                                  : localized(QStringLiteral("Click to change the date"));
    m_dateLabel->setText(clickText);
    m_offsetLabel->clear();
    m_offsetField->setDateComponentsValue(std::nullopt);
    m_offsetField->setPlusMinus(true);

    if (offsets.isEmpty()) {
        setPickerDate(wallClockNow());
        m_emptyBox->setChecked(true);
        hideEditorsForEmptyValue();
        m_dateLabel->show();
        return;
    }
    m_emptyBox->setChecked(false);
    if (offsets.size() == 1) {
        const DateComponents offset = *offsets.constBegin();
        m_offsetField->setDateComponentsValue(offset);
        m_offsetField->setPlusMinus(offset.era.value_or(1) >= 1);
        QScopedValueRollback settingGuard(m_settingExifFiles, true);
        controlMouseUp(m_dateLabel);
        return;
    }
    m_focus = FocusDate;
    m_datePicker->hide();
    m_offsetField->hide();
    m_dateLabel->show();
    m_offsetLabel->setText(localized(QStringLiteral("Multiple values. Click to edit")));
    m_offsetLabel->show();
}

void DateEditorView::setOriginalDate(const QString &value)
{
    const QDateTime date = wallClockDate(value, m_type);
    m_originalLabel->setText(date.isValid() ? labelText(date, true)
                                            : localized(QStringLiteral("N/A")));
}

void DateEditorView::setExifDateValue(const QString &value, const QString &originalValue)
{
    Trace trace(QStringLiteral("setExifDateValue: %1, original: %2").arg(value, originalValue));
    QScopedValueRollback guard(m_disableNotification, true);
    setOriginalDate(originalValue);
    if (value.isEmpty()) {
        m_emptyBox->setChecked(true);
        setPickerDate(wallClockNow());
        setEditorFocus(FocusDate);
        hideEditorsForEmptyValue();
        return;
    }
    m_emptyBox->setChecked(false);
    if (!value.startsWith(u'+') && !value.startsWith(u'-')) {
        const QDateTime date = wallClockDate(value, m_type);
        if (date.isValid()) {
            setPickerDate(date);
            synchronizeFromDate(date);
        } else {
            setEditorFocus(FocusOffset);
        }
        return;
    }
    m_offsetField->setStringValue(value);
    synchronizeFromOffset();
}

void DateEditorView::setEditorFocus(int focus)
{
    if (focus != FocusDate && focus != FocusOffset)
        throw TagsmithException(TagsmithException::Invalid,
                                QStringLiteral("Cannot reach this state"));
    m_focus = focus;
    const bool date = focus == FocusDate;
    m_datePicker->setVisible(date);
    m_dateLabel->setVisible(!date);
    m_offsetField->setVisible(!date);
    m_offsetLabel->setVisible(date);
}

void DateEditorView::hideEditorsForEmptyValue()
{
    m_datePicker->hide();
    m_offsetField->hide();
    m_dateLabel->hide();
    m_offsetLabel->hide();
}

void DateEditorView::setPickerDate(const QDateTime &date)
{
    const QSignalBlocker blocker(m_datePicker);
    m_datePicker->setDateTime(date);
}

void DateEditorView::synchronizeFromOffset()
{
    // The preview applies the sign, so "-1d" shows the day before, as it will be written.
    const QDateTime date =
        applyOffsetText(firstOriginalDate(), m_offsetField->stringValue(), m_type);
    m_dateLabel->setText(date.isValid() ? labelText(date, false)
                                        : localized(QStringLiteral("N/A")));
    setEditorFocus(FocusOffset);
}

void DateEditorView::synchronizeFromDate(const QDateTime &date)
{
    const QString shown = formatWallClockValue(date, m_type);
    Trace trace(QStringLiteral("SynchronizeFromDate:") + shown);
    const QDateTime original = firstOriginalDate();
    m_offsetLabel->setText(original.isValid() ? describeWallClockOffset(original, date)
                                              : QString());
    setEditorFocus(FocusDate);
}

void DateEditorView::controlMouseUp(QObject *control)
{
    Trace trace(QStringLiteral("controlMouseUp"));
    if (control == m_offsetLabel || control == m_offsetTitle) {
        if (m_emptyBox->isChecked())
            return;
        const QString text = m_offsetLabel->text();
        if (isDateOffsetText(text))
            m_offsetField->setStringValue(text);
        synchronizeFromOffset();
        m_offsetField->setFocus(Qt::OtherFocusReason);
    } else if (control == m_dateLabel || control == m_newTitle) {
        if (m_emptyBox->isChecked())
            return;
        QDateTime base = firstOriginalDate();
        if (!base.isValid())
            base = wallClockNow();
        const DateComponents &typed = m_offsetField->dateComponentsValue();
        DateComponents units = withUnitSign(typed, typed.era.value_or(0) >= 1 ? 1 : -1);
        if (m_type == DateEditorTypeDate)
            units.hour = units.minute = units.second = 0;
        const QDateTime date = shiftWallClock(base, units);
        setPickerDate(date);
        synchronizeFromDate(date);
        m_datePicker->setFocus(Qt::OtherFocusReason);
    } else if (control == m_emptyTitle) {
        m_emptyBox->setChecked(!m_emptyBox->isChecked());
        disableEnableButtonPressed();
    }
}

void DateEditorView::disableEnableButtonPressed()
{
    Trace trace(QStringLiteral("disableEnableButtonPressed"));
    if (m_emptyBox->isChecked()) {
        hideEditorsForEmptyValue();
    } else {
        for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
            if (originalValue(file).isEmpty()) {
                m_focus = FocusDate;
                break;
            }
        }
        setEditorFocus(m_focus);
        QWidget *shown = m_focus == FocusDate ? static_cast<QWidget *>(m_datePicker)
                                              : static_cast<QWidget *>(m_offsetField);
        shown->setFocus(Qt::OtherFocusReason);
        m_dateLabel->setCursor(Qt::PointingHandCursor);
        m_offsetLabel->setCursor(Qt::PointingHandCursor);
    }
    saveValue();
}

void DateEditorView::onDateProposed(const QDateTime &date)
{
    if (m_settingExifFiles)
        return;
    synchronizeFromDate(date);
    if (!m_disableNotification)
        saveValue(date);
}

void DateEditorView::onOffsetChanged()
{
    saveValue();
    synchronizeFromOffset();
}

void DateEditorView::saveValue(const QDateTime &date)
{
    const QString key = m_field->xmlName();
    std::optional<QString> newValue;
    if (!m_emptyBox->isChecked()) {
        if (m_focus == FocusOffset)
            newValue = m_offsetField->stringValue();
        else
            newValue =
                formatWallClockValue(date.isValid() ? date : m_datePicker->dateTime(), m_type);
    }
    Trace trace(QStringLiteral("SAVING VALUE: ") + newValue.value_or(QString()),
                QStringLiteral("SAVING VALUE"));
    if (m_files.isEmpty())
        return;

    const bool shifts = newValue && m_focus == FocusOffset;
    const bool isZeroShift = shifts && parseDateOffset(*newValue).hasSameUnits(DateComponents());
    const bool movesZone = shifts && !isZeroShift && m_moveZoneBox->isChecked();
    for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
        if (!newValue) {
            file->removeExifValue(key);
            continue;
        }
        // A file without the date has nothing to shift; a shift back to zero is no change.
        if (shifts && file->exifValue(key).isEmpty())
            continue;
        if (isZeroShift) {
            restoreOriginal(file);
            continue;
        }
        QString value = *newValue;
        const QString valueZone = m_baseValueZones.value(file->fileName());
        // ExifTool's own shift keeps a zone inside the value as it is; a moved zone needs the
        // file's own explicit value.
        if (m_focus == FocusOffset && movesZone && !valueZone.isEmpty()) {
            const QDateTime shifted =
                applyOffsetText(wallClockDate(originalValue(file), m_type), value, m_type);
            if (shifted.isValid()) {
                const QString zone =
                    movesZone ? shiftZoneText(valueZone, parseDateOffset(value)).value_or(valueZone)
                              : valueZone;
                value = formatWallClockValue(shifted, m_type) + zone;
            }
        } else if (m_focus == FocusDate) {
            value += valueZone;
        }
        file->setExifValue(key, value);
    }
    updateZones(movesZone ? std::optional(parseDateOffset(*newValue)) : std::nullopt);
    // Unlike the row editors the panel names no source: the row showing the field must refresh.
    if (m_session)
        m_session->post(key, m_files, newValue, m_files, nullptr);
}

void DateEditorView::updateZones(const std::optional<DateComponents> &shift)
{
    const QString zoneKey = zoneTagForDateKey(m_field->xmlName());
    QList<ExifFileInfoPtr> changed;
    for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
        const auto base = m_baseZones.constFind(file->fileName());
        if (base == m_baseZones.cend())
            continue;
        // A zone that cannot move as far (beyond +14:00) keeps its value rather than a wrong one.
        const QString zone = shift ? shiftZoneText(*base, *shift).value_or(*base) : *base;
        if (file->exifValue(zoneKey) == zone)
            continue;
        file->setExifValue(zoneKey, zone);
        changed << file;
    }
    if (!changed.isEmpty() && m_session) {
        m_session->post(zoneKey, changed, changed.first()->exifValue(zoneKey), changed, nullptr);
    }
}

void DateEditorView::restoreOriginal(const ExifFileInfoPtr &file) const
{
    const QString original = originalValue(file);
    if (original.isEmpty())
        file->removeExifValue(m_field->xmlName());
    else
        file->setExifValue(m_field->xmlName(), original);
}

void DateEditorView::setEditSession(EditSession *session)
{
    m_session = session;
}
