#pragma once

#include "editors/fieldeditor.h"

#include <QPointer>
#include <QStringList>

class QComboBox;
struct ExifFilesUpdate;

// The row of a field with one value out of the catalogue's list, picked from a menu. A value the
// catalogue does not know is shown, and kept, until the user picks another item.
class EnumEditor : public FieldEditor
{
    Q_OBJECT

public:
    // Menu item tags beside the indexes into values().
    static constexpr int EmptyTag = -1;
    static constexpr int MultipleValuesTag = -2;
    static constexpr int UnexpectedValueTag = -3;

    explicit EnumEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~EnumEditor() override;

    QComboBox *popupButton() const;
    // The stored values, in menu order (sorted by their titles).
    const QStringList &values() const { return m_values; }
    const QString &unexpectedValue() const { return m_unexpectedValue; }

    bool menuHasItemWithTag(int tag) const;
    void removeItemWithTag(int tag);
    void doSetValues(const QSet<QString> &values);
    // Throws "Not implemented" for the unexpected-value item: it is never a value to write.
    QString currentValue() const;

    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const Preset *configuration) override;
    bool copyToConfiguration(Preset &configuration) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    void focusControl() override;
    void setEnabled(bool enabled) override;

protected:
    // A hemisphere row follows the coordinates.
    bool followsOtherRows() const override;
    void receiveFilesUpdateNotification(const ExifFilesUpdate &update) override;

private:
    void popupValueChanged();
    int selectedTag() const;
    void selectTag(int tag);

    bool m_popupChanged = false;
    QStringList m_values;
    QString m_unexpectedValue;
    QPointer<QComboBox> m_popupButton;
};
