#pragma once

#include "editors/fieldeditor.h"

#include <QHash>
#include <QPointer>

class QAction;
class QLabel;
class TokenField;

// The row of a list field (keywords and the like): one token per item. Every change of the
// tokens is written into the files at once. Over files whose lists differ, typed items are added
// to each file's own list, unless the user chooses to replace them all with one list.
class StringsEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit StringsEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~StringsEditor() override;

    TokenField *editor() const;
    // For a field with an IIM byte limit: the bytes left of the item being typed.
    QLabel *bytesLeftLabel() const;
    bool textChanged() const { return m_textChanged; }
    // Whether typed items go into each file's own list rather than replace it.
    bool addsToEachFile() const { return m_addsToEachFile; }
    // "Replace in All Files" of the row's context menu.
    QAction *replaceInAllFilesAction() const { return m_replaceAction; }

    void clearEditor() override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const Preset *configuration) override;
    bool copyToConfiguration(Preset &configuration) override;
    void setEnabled(bool enabled) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    int showEditor(int top) override;
    void focusControl() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void controlTextDidChange();
    void onReplaceInAllFiles();
    void setAddsToEachFile(bool on);

    QPointer<TokenField> m_editor;
    QPointer<QLabel> m_bytesLeft;
    QAction *m_replaceAction = nullptr;
    bool m_textChanged = false;
    bool m_addsToEachFile = false;
    // Each file's list as it was before the first typed item; what the items are added to.
    QHash<const ExifFileInfo *, QString> m_ownLists;
    // Each file's copies of the property when typing began: a file whose list already holds
    // the typed items gets them back, whatever the earlier keystrokes wrote.
    QHash<const ExifFileInfo *, QStringList> m_ownCopies;
};
