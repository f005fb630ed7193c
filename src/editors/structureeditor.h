#pragma once

#include "editors/fieldeditor.h"
#include "values/structvalue.h"

#include <QPointer>

#include <functional>

class QListWidget;
class QPushButton;
class StructItemDialog;

// The row of an XMP structure, or a list of them (IPTC's Location Shown, Artwork or Object,
// Person in Image...): the items in a list, each opened as a small form of its members, with
// commands to add, remove and reorder them. Every change goes into each selected file's own
// list at once, written back whole in ExifTool's structured form, so a member edited in one
// item leaves every other item and member as the file had it. Over files whose lists differ,
// an item that is not the same in all of them shows "Multiple values".
class StructureEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit StructureEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~StructureEditor() override;

    QListWidget *itemsList() const;
    QPushButton *addButton() const;

    // The item dialog over the selected row's item in each file that has it (index -1: a
    // new item); null without files. Its OK changes the files.
    StructItemDialog *openItem(int index);
    void removeItem(int index);
    void moveItem(int from, int to);

    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const Preset *configuration) override;
    bool copyToConfiguration(Preset &configuration) override;
    void setEnabled(bool enabled) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    int showEditor(int top) override;
    void focusControl() override;

    // The items of a value ("" or null: none); null when it is not in structured form.
    static std::optional<QList<StructValue>> itemsOf(const QString &value);

private:
    // Each file's items (or the preset's), changed by change and written back when it says so.
    void changeEach(const std::function<bool(QList<StructValue> &)> &change);
    QString valueOfItems(const QList<StructValue> &items) const;
    QList<QList<StructValue>> currentItems() const;
    void showItems();
    void updateButtons();

    QPointer<QWidget> m_box;
    QPointer<QListWidget> m_list;
    QPointer<QPushButton> m_add;
    QPointer<QPushButton> m_edit;
    QPointer<QPushButton> m_remove;
    QPointer<QPushButton> m_up;
    QPointer<QPushButton> m_down;
    // A preset's row holds its one value here.
    bool m_editingPreset = false;
    QString m_presetValue;
};
