#include "editors/configurationview.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>

ConfigurationView::ConfigurationView(QWidget *parent)
    : QWidget(parent)
{
}

void ConfigurationView::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    // Nothing behind the form needs painting once it fills itself.
    setAttribute(Qt::WA_OpaquePaintEvent, color.alpha() == 255);
    update();
}

void ConfigurationView::paintEvent(QPaintEvent *event)
{
    if (!m_backgroundColor)
        return;
    QPainter painter(this);
    painter.fillRect(event->rect(), *m_backgroundColor);
}

void ConfigurationView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        Q_EMIT widthChanged(event->size().width());
}
