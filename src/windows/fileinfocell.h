#pragma once

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
    // What the model gives for each row. The title is the display text, else the file's name;
    // the subtitle is the folder of the path unless given.
    enum Role {
        PathRole = Qt::UserRole + 400,
        SubtitleRole,
        ErrorTextRole,
        HasErrorRole,
        ModifiedRole,
        // The name of the XMP sidecar read with the file, shown after its name; empty if none.
        SidecarRole,
    };

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
