#pragma once

#include "engine/metadataclipboard.h"

#include <QDialog>

class QTreeWidget;
class QTreeWidgetItem;

// Asks which parts of the copied metadata to paste: the catalogue's groups with their sections
// as check boxes under one "everything" box. Starts from the user's last choice and stores the
// new one when accepted.
class PasteMetadataDialog : public QDialog
{
    Q_OBJECT

public:
    PasteMetadataDialog(const MetadataClipboard &clipboard, int fileCount,
                        QWidget *parent = nullptr);

    MetadataSelection selection() const;
    void setSelection(const MetadataSelection &selection);

    QTreeWidget *tree() const { return m_tree; }

    static MetadataSelection lastSelection();
    static void storeSelection(const MetadataSelection &selection);

    void accept() override;

private:
    QTreeWidget *m_tree;
    QTreeWidgetItem *m_everything;
};
