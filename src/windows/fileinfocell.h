#pragma once

#include "engine/filelistmodel.h"

#include <QPointer>
#include <QRectF>
#include <QStyledItemDelegate>

class QAbstractItemView;
class QuickLookImageCache;

// Draws one row of the file list: the preview, the file's name, its folder and, for a file
// whose maker notes could not be read, an error line. Asks the cache for the preview of each
// row it draws and repaints the list when one arrives.
class FileInfoCell : public QStyledItemDelegate
{
public:
    // The roles it reads: those of the file list.
    using enum FileListModel::Role;

    struct Frames
    {
        QRectF image;
        QRectF title;
        QRectF subtitle;
        QRectF error;
    };

    static constexpr int rowHeight = 100;

    FileInfoCell(QuickLookImageCache *cache, QAbstractItemView *view);

    static Frames frames(const QRectF &interior, qreal lineHeight);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void drawPreview(QPainter *painter, const QRectF &frame, const QImage &image) const;

    QPointer<QuickLookImageCache> m_cache;
    QPointer<QAbstractItemView> m_view;
};
