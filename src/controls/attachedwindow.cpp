#include "controls/attachedwindow.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include <algorithm>

AttachedWindow::AttachedWindow(QWidget *attachedTo, Behaviour behaviour, QWidget *parent)
    : QWidget(parent,
              (behaviour == Behaviour::Popup ? Qt::Popup : Qt::ToolTip) | Qt::FramelessWindowHint)
    , m_attachedTo(attachedTo)
    , m_background(QColor(30, 30, 30, 235))
    , m_border(QColor(120, 120, 120))
{
    setAttribute(Qt::WA_TranslucentBackground);
    if (behaviour == Behaviour::Tool)
        setAttribute(Qt::WA_ShowWithoutActivating);
}

AttachedWindow::~AttachedWindow() = default;

void AttachedWindow::setContentWidget(QWidget *content)
{
    if (m_content == content)
        return;
    if (m_content)
        m_content->deleteLater();
    m_content = content;
    if (m_content) {
        m_content->setParent(this);
        m_content->show();
    }
    layoutContent();
}

void AttachedWindow::setBackgroundColor(const QColor &color)
{
    m_background = color;
    update();
}

void AttachedWindow::setBorderColor(const QColor &color)
{
    m_border = color;
    update();
}

QPoint AttachedWindow::anchorGlobal() const
{
    if (!m_attachedTo)
        return pos();
    const QPoint local = m_attachPoint.value_or(m_attachedTo->rect().center());
    return m_attachedTo->mapToGlobal(local);
}

void AttachedWindow::layoutContent()
{
    const QSize contentSize =
        m_content ? m_content->sizeHint().expandedTo(m_content->minimumSize()) : QSize(0, 0);
    const QSize total(contentSize.width() + 2 * Margin,
                      contentSize.height() + 2 * Margin + ArrowHeight);
    resize(total);
    if (m_content) {
        const int top = Margin + (m_below ? ArrowHeight : 0);
        m_content->setGeometry(Margin, top, contentSize.width(), contentSize.height());
    }
}

void AttachedWindow::showAttached()
{
    m_closedSent = false;
    m_below = true;
    layoutContent();
    const QPoint anchor = anchorGlobal();
    const int controlHalfHeight = m_attachedTo && !m_attachPoint ? m_attachedTo->height() / 2 : 0;
    QRect available(QPoint(0, 0), QSize(1 << 15, 1 << 15));
    if (const QScreen *screen = QGuiApplication::screenAt(anchor))
        available = screen->availableGeometry();

    int y = anchor.y() + controlHalfHeight;
    if (y + height() > available.bottom() && anchor.y() - controlHalfHeight - height() >= 0) {
        m_below = false;
        layoutContent();
        y = anchor.y() - controlHalfHeight - height();
    }
    int x = anchor.x() - width() / 2;
    x = std::clamp(x, available.left(), std::max(available.left(), available.right() - width()));
    m_arrowX = std::clamp(anchor.x() - x, Margin + ArrowWidth / 2,
                          std::max(Margin + ArrowWidth / 2, width() - Margin - ArrowWidth / 2));
    move(x, y);
    show();
    raise();
    update();
}

void AttachedWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(0.5, m_below ? ArrowHeight + 0.5 : 0.5, -0.5,
                                                m_below ? -0.5 : -ArrowHeight - 0.5);
    QPainterPath path;
    path.addRoundedRect(body, 6, 6);
    QPainterPath arrow;
    const double tipY = m_below ? 0.5 : height() - 0.5;
    const double baseY = m_below ? body.top() + 1 : body.bottom() - 1;
    arrow.moveTo(m_arrowX - ArrowWidth / 2.0, baseY);
    arrow.lineTo(m_arrowX, tipY);
    arrow.lineTo(m_arrowX + ArrowWidth / 2.0, baseY);
    arrow.closeSubpath();
    path = path.united(arrow);
    painter.setPen(QPen(m_border, 1));
    painter.setBrush(m_background);
    painter.drawPath(path);
}

void AttachedWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!m_closedSent) {
        m_closedSent = true;
        Q_EMIT closed();
    }
}
