#include "windows/filelistview.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

namespace {

QStringList localPaths(const QMimeData *mime)
{
    QStringList paths;
    if (!mime)
        return paths;
    for (const QUrl &url : mime->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

FileListView::FileListView(QWidget *parent)
    : QListView(parent)
{
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDropIndicatorShown(false);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Rows take the list's width; the cell elides what does not fit.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void FileListView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        Q_EMIT showHideQuickLookRequested();
        event->accept();
        return;
    }
    QListView::keyPressEvent(event);
}

void FileListView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localPaths(event->mimeData()).isEmpty())
        event->acceptProposedAction();
    else
        event->ignore();
}

void FileListView::dragMoveEvent(QDragMoveEvent *event)
{
    if (!localPaths(event->mimeData()).isEmpty())
        event->acceptProposedAction();
    else
        event->ignore();
}

void FileListView::dropEvent(QDropEvent *event)
{
    const QStringList paths = localPaths(event->mimeData());
    if (paths.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    Q_EMIT filesDropped(paths);
}
