#pragma once

#include "editors/fieldeditor.h"

#include <QHash>
#include <QPointer>
#include <QStringList>

class QCheckBox;
class QWidget;

// The row of a field holding a blank-separated set of the catalogue's values: one check box per
// value. Over files that disagree a box is mixed, and a mixed box leaves each file as it was.
class MultiEnumEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit MultiEnumEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~MultiEnumEditor() override;

    const QList<QCheckBox *> &editors() const { return m_editors; }
    // The stored values, in check-box order.
    const QStringList &values() const { return m_values; }
    bool checkboxesChanged() const { return m_checkboxesChanged; }

    static QSet<QString> splitComponents(const QString &value);
    QSet<QString> valuesForExifFile(const ExifFileInfo &file) const;
    QSet<QString> valuesForOriginalExifFile(const ExifFileInfo &file) const;

    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const Preset *configuration) override;
    bool copyToConfiguration(Preset &configuration) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    int showEditor(int top) override;
    void focusControl() override;
    void setEnabled(bool enabled) override;

private:
    void checkValueChanged(QCheckBox *box);

    QList<QCheckBox *> m_editors;
    QStringList m_values;
    // What each file held when loaded: a mixed box keeps it per file.
    QHash<const ExifFileInfo *, QSet<QString>> m_prevValues;
    bool m_checkboxesChanged = false;
    QPointer<QWidget> m_container;
};
