#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

// A small spinner of twelve spokes, for work of unknown length. Turns only while shown and
// started, so a hidden one costs nothing.
class IndeterminateProgressIndicatorCell : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Steps = 12;
    static constexpr int StepMs = 83;

    explicit IndeterminateProgressIndicatorCell(QWidget *parent = nullptr);

    void startAnimation();
    void stopAnimation();
    bool isAnimating() const { return m_timer.isActive(); }
    // Which spoke is brightest, 0 to Steps - 1.
    int step() const { return m_step; }
    void setColor(const QColor &color);

    QSize sizeHint() const override { return {32, 32}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
    QColor m_color = Qt::white;
    int m_step = 0;
};
