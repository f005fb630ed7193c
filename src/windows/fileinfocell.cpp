#include "windows/fileinfocell.h"

#include "windows/quicklookimagecache.h"

#include "controls/aperturetheme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QtMath>

namespace {

constexpr qreal margin = 8;
constexpr qreal textIndent = 6;
const QColor modifiedMarkColor(235, 160, 40);
const QColor errorColor(235, 90, 80);

} // namespace

FileInfoCell::FileInfoCell(QuickLookImageCache *cache, QAbstractItemView *view)
    : QStyledItemDelegate(view)
    , m_cache(cache)
    , m_view(view)
{
    if (cache) {
        // Only rows in view are drawn, so repainting the view redraws just those; repaints asked
        // for in a burst are merged into one.
        cache->onImageReady(this, [this](const QString &, const QImage &) {
            if (m_view)
                m_view->viewport()->update();
        });
    }
}

FileInfoCell::Frames FileInfoCell::frames(const QRectF &interior, qreal lineHeight)
{
    Frames frames;
    const qreal height = interior.height() - 2 * margin;
    frames.image =
        QRectF(interior.x() + margin, interior.y() + margin, qCeil(1.6 * height), height);
    const qreal textLeft = frames.image.right();
    frames.title = QRectF(textLeft, frames.image.top(), interior.right() - textLeft, lineHeight);
    frames.subtitle = frames.title.translated(0, lineHeight);
    frames.error = frames.subtitle.translated(0, lineHeight);
    return frames;
}

QSize FileInfoCell::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(index);
    return {option.rect.width(), rowHeight};
}

void FileInfoCell::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem opt(option);
    initStyleOption(&opt, index);
    const QWidget *widget = opt.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();

    painter->save();
    // Background and selection only: the text is drawn below in frames of its own.
    opt.text.clear();
    opt.icon = QIcon();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &opt, painter, widget);

    const QString path = index.data(PathRole).toString();
    const QFontMetricsF metrics(opt.font);
    const Frames f = frames(opt.rect, metrics.height());

    QImage preview;
    if (m_cache && !path.isEmpty()) {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        preview = m_cache->loadImage(path, f.image.width() * ratio, f.image.height() * ratio);
    }
    drawPreview(painter, f.image, preview);

    const bool isSelected = opt.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        opt.state.testFlag(QStyle::State_Enabled) ? QPalette::Normal : QPalette::Disabled;
    const QColor textColor =
        opt.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);

    QString title = index.data(Qt::DisplayRole).toString();
    if (title.isEmpty())
        title = QFileInfo(path).fileName();
    QString subtitle = index.data(SubtitleRole).toString();
    if (subtitle.isEmpty() && !path.isEmpty())
        subtitle = QFileInfo(path).absolutePath();

    QRectF titleFrame = f.title.adjusted(textIndent, 0, -textIndent, 0);
    if (index.data(ModifiedRole).toBool()) {
        // Unsaved changes: a dot before the name, which is also set in bold.
        const qreal dot = metrics.height() * 0.45;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(modifiedMarkColor);
        painter->drawEllipse(
            QRectF(titleFrame.left(), titleFrame.center().y() - dot / 2, dot, dot));
        titleFrame.setLeft(titleFrame.left() + dot + textIndent / 2);
        QFont bold = opt.font;
        bold.setBold(true);
        painter->setFont(bold);
    } else {
        painter->setFont(opt.font);
    }
    painter->setPen(textColor);
    const QFontMetricsF titleMetrics(painter->font());
    painter->drawText(titleFrame, Qt::AlignLeft | Qt::AlignVCenter,
                      titleMetrics.elidedText(title, Qt::ElideMiddle, titleFrame.width()));

    painter->setFont(opt.font);
    QColor subtitleColor = textColor;
    subtitleColor.setAlphaF(0.65f);
    painter->setPen(subtitleColor);
    const QRectF subtitleFrame = f.subtitle.adjusted(textIndent, 0, -textIndent, 0);
    painter->drawText(subtitleFrame, Qt::AlignLeft | Qt::AlignVCenter,
                      metrics.elidedText(subtitle, Qt::ElideMiddle, subtitleFrame.width()));

    // A raw file's sidecar on the line below the folder, or below the error line.
    const QString sidecar = index.data(SidecarRole).toString();
    if (!sidecar.isEmpty()) {
        const bool hasError = index.data(HasErrorRole).toBool();
        const QRectF markFrame = (hasError ? f.error.translated(0, f.error.height()) : f.error)
                                     .adjusted(textIndent, 0, -textIndent, 0);
        painter->setPen(subtitleColor);
        painter->drawText(
            markFrame, Qt::AlignLeft | Qt::AlignVCenter,
            metrics.elidedText(QStringLiteral("+ ") + sidecar, Qt::ElideMiddle, markFrame.width()));
    }

    if (index.data(HasErrorRole).toBool()) {
        painter->setPen(errorColor);
        const QRectF errorFrame = f.error.adjusted(textIndent, 0, -textIndent, 0);
        painter->drawText(errorFrame, Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(index.data(ErrorTextRole).toString(), Qt::ElideRight,
                                             errorFrame.width()));
    }
    painter->restore();
}

void FileInfoCell::drawPreview(QPainter *painter, const QRectF &frame, const QImage &image) const
{
    if (image.isNull()) {
        // Not made yet: an empty frame of the list's own shade keeps the row steady.
        painter->fillRect(frame, ApertureTheme::listBackground().darker(115));
        return;
    }
    QSizeF size = image.deviceIndependentSize();
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    size /= ratio;
    if (size.width() > frame.width() || size.height() > frame.height())
        size.scale(frame.size(), Qt::KeepAspectRatio);
    QRectF target(QPointF(), size);
    target.moveCenter(frame.center());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(target, image);
}
