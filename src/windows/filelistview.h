#pragma once

#include <QListView>
#include <QStringList>

// The main window's file list. Space asks for the preview of the selection, and dropped files
// and folders are handed on as paths; everything else is the list's normal handling.
class FileListView : public QListView
{
    Q_OBJECT

public:
    explicit FileListView(QWidget *parent = nullptr);

Q_SIGNALS:
    void showHideQuickLookRequested();
    void filesDropped(const QStringList &paths);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
};
