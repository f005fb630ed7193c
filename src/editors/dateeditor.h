#pragma once

#include "editors/dateeditorpopupcontroller.h"
#include "editors/fieldeditor.h"

#include "controls/attachedwindow.h"
#include "values/datecomponents.h"

#include <QLabel>
#include <QPointer>

// The row of a date field over the selected files: the common value as a label; a click opens
// the date panel in a popup beside it. The popup is built on the first click only, so the form's
// many date rows stay cheap to create and to point at other files.
class DateEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit DateEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~DateEditor() override;

    DateEditorType dateEditorType() const { return m_dateEditorType; }
    void setDateEditorType(DateEditorType type) { m_dateEditorType = type; }
    QLabel *currentDateLabel() const { return m_currentDateLabel; }
    DateEditorPopupController *popupController() const { return m_popupController; }
    AttachedWindow *popupWindow() const { return m_popupWindow; }

    // Label text of a stored value: a pending shift reads "+1y 2m 3d", a date in the long style.
    QString formatDateStringForLabel(const QString &value) const;
    void refreshView();

    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const Preset *configuration) override;
    bool copyToConfiguration(Preset &configuration) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    int hideEditor(int top) override;
    void focusControl() override;

    void controlMouseDown();
    void showPopupController(bool show);
    void destroyPopupWindow();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool followsOtherRows() const override { return true; }
    void receiveFilesUpdateNotification(const ExifFilesUpdate &update) override;

private:
    void createPopupController();

    bool m_mouseDown = false;
    QPointer<QLabel> m_currentDateLabel;
    QPointer<AttachedWindow> m_popupWindow;
    QPointer<DateEditorPopupController> m_popupController;
    DateEditorType m_dateEditorType = DateEditorTypeDateTime;
};
