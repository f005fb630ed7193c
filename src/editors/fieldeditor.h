#pragma once

#include "catalogue/exiffield.h"
#include "engine/exiffileinfo.h"
#include "engine/linkedforms.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

#include <functional>

class EditSession;
class Preset;
struct ExifFilesUpdate;
class QCheckBox;
class QToolButton;
class QLabel;
class QWidget;

// Reads every file's two dictionaries once for a whole form: while one is alive, rows given
// this very list look values up in it instead of locking each file for each row. Only for a
// pass that reads (setExifFiles over all rows); nothing may write the files meanwhile.
//
// For the given keys it also gathers, in one pass over each dictionary, each key's distinct
// values and the files whose value differs from the original: at 10,000 files a lookup per
// row per file is what made showing the form slow.
class ExifFilesSnapshot
{
public:
    struct Column
    {
        QSet<QString> values;     // as gatherExifFilesValues gives them
        QList<qsizetype> changed; // indexes of files whose value differs from the original
    };

    explicit ExifFilesSnapshot(const QList<ExifFileInfoPtr> &files, const QStringList &keys = {});
    ~ExifFilesSnapshot();
    ExifFilesSnapshot(const ExifFilesSnapshot &) = delete;
    ExifFilesSnapshot &operator=(const ExifFilesSnapshot &) = delete;

    // The live snapshot of exactly this list (same shared data), or null.
    static const ExifFilesSnapshot *forFiles(const QList<ExifFileInfoPtr> &files);
    const EditedValues &current(qsizetype index) const { return m_values.at(index); }
    const TagDictionary &original(qsizetype index) const { return m_values.at(index).original(); }
    // Null for a key the snapshot was not asked to gather.
    const Column *column(const QString &key) const;

    // What a row showing several copies of a property shows in each file, gathered once per
    // row at its first call.
    struct LinkedColumn
    {
        QList<QString> shown;       // per file, null when no copy is there
        QSet<QString> values;       // the distinct ones, "" for none
        QList<qsizetype> differing; // indexes of the files whose copies disagree
    };
    const LinkedColumn &linkedColumn(const LinkedForms &forms) const;

private:
    void gatherColumns(const QStringList &keys);

    QList<ExifFileInfoPtr> m_files;
    QList<EditedValues> m_values;
    QHash<QString, Column> m_columns;
    mutable QHash<QString, LinkedColumn> m_linkedColumns;
    const ExifFilesSnapshot *m_previous = nullptr;
};

// One row of the form: a right-aligned label, the editing control of a subclass and, for presets,
// a check box saying whether the preset touches the tag. The row edits one catalogue field over
// all selected files at once, or over one preset.
//
// Rows are built once and then only refilled: setExifFiles must stay cheap, because the form
// calls it on every row for every change of selection.
class FieldEditor : public QObject
{
    Q_OBJECT

public:
    explicit FieldEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~FieldEditor() override;

    const ExifFieldPtr &field() const { return m_field; }
    QLabel *label() const;
    QCheckBox *removeButton() const;
    const QList<ExifFileInfoPtr> &exifFiles() const { return m_exifFiles; }
    bool hasExifFiles() const { return !m_exifFiles.isEmpty(); }
    int top() const { return m_top; }
    const QString &theme() const { return m_theme; }

    void setMaxLabelWidth(double width) { m_maxLabelWidth = width; }
    double maxLabelWidth() const { return m_maxLabelWidth; }
    void setBoldFontOnChange(bool on) { m_boldFontOnChange = on; }
    bool boldFontOnChange() const { return m_boldFontOnChange; }
    // Only effective before createEditor.
    void setShowRemoveButton(bool on) { m_showRemoveButton = on; }
    bool showRemoveButton() const { return m_showRemoveButton; }
    // Whether the preset row's check box is on; false without one.
    bool isRemoveButtonChecked() const;
    // Unchecked without one.
    Qt::CheckState removeButtonState() const;

    // The distinct current (or original) values over the files; a file without the tag gives "".
    QSet<QString> gatherExifFilesValues(const QList<ExifFileInfoPtr> &files) const;
    QSet<QString> gatherExifFilesOriginalValues(const QList<ExifFileInfoPtr> &files) const;

    virtual bool isModified() const;
    // Also refreshes the preset row's removal note.
    void updateModifiedLabel();
    // A preset row that is ticked and empty removes the tag from the files; the row says so.
    void updateRemovalHint();
    QLabel *removalHint() const;

    // Builds the row in parent at top; returns the top of the next row.
    int createEditor(QWidget *parent, int top);
    virtual int showEditor(int top);
    virtual int hideEditor(int top);
    int createLabel(QWidget *parent);
    // Builds the editing control in frame; returns its height.
    virtual int createEditorContent(QWidget *parent, QRect frame) = 0;

    virtual void clearEditor();
    virtual void setEnabled(bool enabled);
    virtual void setExifConfiguration(const Preset *configuration) = 0;
    // True when anything was written into the preset.
    virtual bool copyToConfiguration(Preset &configuration);
    // Writes the row's value into every file; true when any file now differs from its original.
    virtual bool copyToExifFiles(const QList<ExifFileInfoPtr> &files);
    virtual void updateExifFileValue(const ExifFileInfoPtr &file) = 0;

    // Where the row posts its edits and hears those of others. Without one (a preset's form)
    // nothing is posted. Not owned.
    void setEditSession(EditSession *session);
    EditSession *editSession() const;

    // The tags the row shows and writes: its field's alone, or every copy of its property.
    const LinkedForms &forms() const { return m_forms; }
    // Shown beside the label while a selected file's copies of the property disagree; null for
    // a row without copies.
    QToolButton *copiesMark() const;
    // Gives every copy of the property, in each file whose copies disagree, the value of the
    // copy in key; a file without that copy keeps the value the row shows for it.
    void useCopyEverywhere(const QString &key);

    // Posts "ExifFilesUpdate" for the editor's files; nothing without files.
    void sendChangeNotification(const std::optional<QString> &newValue, const QString &xmlName);
    void sendChangeNotification(const std::optional<QString> &newValue);

    virtual void focusControl();
    // Writes what the user typed but has not confirmed yet; rows that write at once do nothing.
    virtual void commitPendingInput() {}
    void setTheme(const QString &theme);
    virtual void setExifFiles(const QList<ExifFileInfoPtr> &files);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    // Whether the row hears the session's edits: only rows that depend on another row do.
    virtual bool followsOtherRows() const { return false; }
    // Someone changed values of files; rows that depend on another row follow. Includes the
    // row's own posts.
    virtual void receiveFilesUpdateNotification(const ExifFilesUpdate &update);

    // Keeps a control's right edge at a fixed distance from the parent's right edge.
    void stretchWithRow(QWidget *widget);
    // The row's editing control, moved, shown and hidden with the label; topOffset is its
    // distance below the row's top.
    void setContentControl(QWidget *control, int topOffset = 0);
    QWidget *contentControl() const { return m_content; }
    // Common rule of text-like rows: maker-note tags of Nikon only for a selection with a NEF.
    bool isFieldEnabledForFiles(const QList<ExifFileInfoPtr> &files) const;
    // Puts the file's original value back (or removes the tag): a preset row that is off.
    void restoreOriginalValue(const ExifFileInfoPtr &file) const;
    // The row's value in a file, and the writes of one: every copy of the property at once.
    QString currentValue(const ExifFileInfo &file) const;
    void storeValue(ExifFileInfo &file, const QString &value) const;
    void removeValue(ExifFileInfo &file) const;
    // The key under which a preset holds the row's value: the row's own tag, else the first
    // copy it has (a preset made while each tag had its row); the row's own tag without any.
    QString presetKey(const Preset &configuration) const;
    // Drops every copy of the row's property from a preset: the row was unticked.
    void forgetCopies(Preset &configuration) const;
    // The fewest bytes IPTC-IIM keeps of any copy the row writes; 0 without a limit.
    qint64 byteLimit() const;
    void setRemoveButtonChecked(bool on);
    // Calls visit(file, current, original) for each file with the field's values (null when
    // absent); original stays null unless asked for.
    using ValueVisitor =
        std::function<bool(const ExifFileInfoPtr &, const QString &, const QString &)>;
    // Stops when visit returns false.
    void visitValues(const QList<ExifFileInfoPtr> &files, bool withOriginal,
                     const ValueVisitor &visit) const;
    // The same, only for the files whose value is not exactly the original (absent counts as a
    // value): what a row's modified check needs, without a pass over unchanged files.
    void visitChangedValues(const QList<ExifFileInfoPtr> &files, const ValueVisitor &visit) const;
    static QString multipleValuesText();
    // The raw values of an enumerated field, ordered as the user reads them: by their titles.
    static QStringList valuesInTitleOrder(const ExifField &field);

private:
    void layoutToParentWidth(int width);
    void placeRemovalHint();
    void updateCopiesMark();
    void placeCopiesMark();
    void showCopiesMenu();

    QPointer<QLabel> m_label;
    bool m_boldFontOnChange = false;
    bool m_showRemoveButton = false;
    QPointer<QCheckBox> m_removeButton;
    QPointer<QLabel> m_removalHint;
    ExifFieldPtr m_field;
    LinkedForms m_forms;
    QPointer<QToolButton> m_copiesMark;
    bool m_copiesDiffer = false;
    int m_top = 0;
    double m_maxLabelWidth = 0;
    QList<ExifFileInfoPtr> m_exifFiles;
    QPointer<EditSession> m_session;
    QString m_theme;
    QPointer<QWidget> m_parent;
    QPointer<QWidget> m_content;
    int m_contentOffset = 0;
    // Widgets with the distance of their right edge from the parent's right edge.
    QList<QPair<QPointer<QWidget>, int>> m_stretching;
    bool m_labelIsBold = false;
};
