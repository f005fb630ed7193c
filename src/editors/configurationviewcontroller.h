#pragma once

#include "catalogue/exiffield.h"
#include "engine/exiffileinfo.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>

class ConfigurationView;
class EditSession;
class Preset;
class ExifFieldsController;
class FieldEditor;
class GroupEditor;
class QScrollArea;
class QWidget;

// The scrolling form of every catalogue field: group headings, section headings and one row
// editor per field, built once and then only shown, hidden, moved, filled and cleared. Serves the
// main window (the selected files) and the presets window (one preset, with remove buttons and
// date-offset rows).
class ConfigurationViewController : public QObject
{
    Q_OBJECT

public:
    explicit ConfigurationViewController(QObject *parent = nullptr,
                                         const ExifFieldsController *catalogue = nullptr);
    ~ConfigurationViewController() override;

    // The form inside its scroll area; the owner puts scrollArea() in its layout.
    QScrollArea *scrollArea() const;
    QWidget *view() const;
    const QString &theme() const { return m_theme; }

    // Set before createUserInterface.
    bool showRemove() const { return m_showRemove; }
    void setShowRemove(bool on) { m_showRemove = on; }
    // What the "GPS" section's "Show Map" button does.
    void setShowMapAction(std::function<void()> action) { m_showMapAction = std::move(action); }
    // Handed to every row, present and future: where the rows post their edits. Not owned.
    void setEditSession(EditSession *session);

    void createUserInterface();
    static double calculateMaxLabelWidth(const QList<GroupPtr> &groups);
    double maxLabelWidth() const { return m_maxLabelWidth; }
    // Creates, configures and places the row of one field in the form; returns the next top.
    // Throws "Unimplemented" for a writable field whose representation has no editor.
    int createFieldEditor(const ExifFieldPtr &field, QList<FieldEditor *> &allEditors, int top);

    void setExifFiles(const QList<ExifFileInfoPtr> &files);
    const QList<ExifFileInfoPtr> &exifFiles() const { return m_exifFiles; }
    // The one maker name all files map to, or none for mixed or no files.
    static std::optional<QString> gatherImageMaker(const QList<ExifFileInfoPtr> &files);

    void setExifConfiguration(const Preset *configuration);
    bool copyToConfiguration(Preset &configuration);
    bool copyToFileInfos(const QList<ExifFileInfoPtr> &files);

    // Ends an edit still in progress in a row (typed text not yet confirmed), so it reaches the
    // files before the selection changes.
    void commitPendingInput();

    void clearEditors();
    void setEnabled(bool enabled);

    // Every row editor, in catalogue order.
    const QList<FieldEditor *> &fields() const { return m_fields; }
    const QList<GroupEditor *> &groupEditors() const { return m_groupEditors; }
    // The height of the laid-out form.
    int formHeight() const;

    // Debugging aids: the widget tree, indented by depth.
    void logHierarchy() const;
    static QString hierarchicalDescriptionOfView(const QWidget *view, int level);

private:
    void layoutForm(const std::optional<QString> &maker);
    void setFormHeight(int height);
    void followWidth(int width);

    const ExifFieldsController *m_catalogue;
    QPointer<QScrollArea> m_scrollArea;
    QPointer<ConfigurationView> m_view;
    QList<FieldEditor *> m_fields;
    QPointer<EditSession> m_session;
    QList<GroupEditor *> m_groupEditors;
    QList<ExifFileInfoPtr> m_exifFiles;
    std::function<void()> m_showMapAction;
    QString m_theme;
    double m_maxLabelWidth = 0;
    int m_formHeight = 0;
    bool m_showRemove = false;
    bool m_isBuilt = false;
    // The maker the rows were last laid out for; unset while every row shows as built.
    std::optional<std::optional<QString>> m_laidOutFor;
};
