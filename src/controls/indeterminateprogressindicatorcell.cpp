#include "controls/indeterminateprogressindicatorcell.h"

#include <QPainter>

IndeterminateProgressIndicatorCell::IndeterminateProgressIndicatorCell(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_timer.setInterval(StepMs);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_step = (m_step + 1) % Steps;
        update();
    });
}

void IndeterminateProgressIndicatorCell::startAnimation()
{
    m_timer.start();
}

void IndeterminateProgressIndicatorCell::stopAnimation()
{
    m_timer.stop();
}

void IndeterminateProgressIndicatorCell::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void IndeterminateProgressIndicatorCell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(width(), height());
    painter.translate(width() / 2.0, height() / 2.0);
    QPen pen(m_color, qMax(1.5, side / 12.0), Qt::SolidLine, Qt::RoundCap);
    for (int i = 0; i < Steps; ++i) {
        // The brightest spoke leads; the ones behind it fade out.
        const int age = (m_step - i + Steps) % Steps;
        QColor spoke = m_color;
        spoke.setAlphaF(1.0 - 0.75 * age / (Steps - 1));
        pen.setColor(spoke);
        painter.setPen(pen);
        painter.save();
        painter.rotate(i * 360.0 / Steps);
        painter.drawLine(QPointF(0, -side * 0.22), QPointF(0, -side * 0.42));
        painter.restore();
    }
}
