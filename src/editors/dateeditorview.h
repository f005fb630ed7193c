#pragma once

#include "catalogue/exiffield.h"
#include "engine/exiffileinfo.h"
#include "values/datecomponents.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <optional>

class DateOffsetField;
class EditSession;
class QCheckBox;
class QDateTimeEdit;
class QLabel;

// The panel that sets one date field of the selected files: either to one new date, or by a
// shift applied to each file's own original date. Every edit goes into the files at once; they
// reach the disk with the window's next save.
class DateEditorView : public QWidget
{
    Q_OBJECT

public:
    enum EditorFocus { FocusDate = 0, FocusOffset = 1 };

    DateEditorView(ExifFieldPtr field, DateEditorType type, QWidget *parent = nullptr);
    ~DateEditorView() override;

    const ExifFieldPtr &field() const { return m_field; }
    DateEditorType dateEditorType() const { return m_type; }
    const QList<ExifFileInfoPtr> &exifFiles() const { return m_files; }

    // Where each edit is announced. Not owned.
    void setEditSession(EditSession *session);

    void setExifFiles(const QList<ExifFileInfoPtr> &files);
    void setExifDateValue(const QString &value, const QString &originalValue);
    // 0 shows the date picker, 1 the offset field; anything else is misuse and throws.
    void setEditorFocus(int focus);
    int editorFocus() const { return m_focus; }

    // A click released on one of the panel's clickable labels or titles.
    void controlMouseUp(QObject *control);
    void disableEnableButtonPressed();
    // Writes the panel's value into every file; a null date takes the picker's.
    void saveValue(const QDateTime &date = QDateTime());

    QDateTimeEdit *datePicker() const { return m_datePicker; }
    DateOffsetField *offsetField() const { return m_offsetField; }
    QLabel *dateLabel() const { return m_dateLabel; }
    QLabel *offsetLabel() const { return m_offsetLabel; }
    QLabel *offsetTitle() const { return m_offsetTitle; }
    QLabel *newTitle() const { return m_newTitle; }
    QLabel *originalLabel() const { return m_originalLabel; }
    QCheckBox *emptyBox() const { return m_emptyBox; }
    QLabel *emptyTitle() const { return m_emptyTitle; }
    // Shown only when a file carries the date's zone, in a tag of its own or inside the value: a
    // shift then moves the zone as well, keeping the instant. Off, the zones keep their original
    // values.
    QCheckBox *moveZoneBox() const { return m_moveZoneBox; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildRows();
    QString originalValue(const ExifFileInfoPtr &file) const;
    void restoreOriginal(const ExifFileInfoPtr &file) const;
    QDateTime firstOriginalDate() const;
    void setOriginalDate(const QString &value);
    void synchronizeFromDate(const QDateTime &date);
    void synchronizeFromOffset();
    void onDateProposed(const QDateTime &date);
    void onOffsetChanged();
    void setPickerDate(const QDateTime &date);
    void hideEditorsForEmptyValue();
    QString labelText(const QDateTime &date, bool mediumDate) const;
    void updateZones(const std::optional<DateComponents> &shift);

    ExifFieldPtr m_field;
    DateEditorType m_type;
    QList<ExifFileInfoPtr> m_files;
    // File name -> the original value when the files were handed over.
    QHash<QString, QString> m_baseOriginals;
    // File name -> the zone tag's original value, for the files that have one.
    QHash<QString, QString> m_baseZones;
    // File name -> the zone inside the original value (XMP dates), for the files that have one.
    QHash<QString, QString> m_baseValueZones;
    int m_focus = FocusDate;
    bool m_settingExifFiles = false;
    bool m_disableNotification = false;

    QLabel *m_emptyTitle = nullptr;
    QCheckBox *m_emptyBox = nullptr;
    QLabel *m_newTitle = nullptr;
    QDateTimeEdit *m_datePicker = nullptr;
    QLabel *m_dateLabel = nullptr;
    QLabel *m_offsetTitle = nullptr;
    DateOffsetField *m_offsetField = nullptr;
    QLabel *m_offsetLabel = nullptr;
    QLabel *m_originalLabel = nullptr;
    QCheckBox *m_moveZoneBox = nullptr;

    QPointer<EditSession> m_session;
};
