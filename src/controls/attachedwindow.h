#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <optional>

// A borderless window that points at a control with an arrow: the date popup and the error
// popups. It is placed below the control, or above it when the screen has no room below, and
// the arrow points at the control's centre.
class AttachedWindow : public QWidget
{
    Q_OBJECT

public:
    enum class Behaviour {
        // Takes the input and closes on any click outside (pickers).
        Popup,
        // Leaves the input where it is; the owner closes it (messages beside a field).
        Tool
    };

    static constexpr int ArrowHeight = 10;
    static constexpr int ArrowWidth = 20;
    static constexpr int Margin = 8;

    explicit AttachedWindow(QWidget *attachedTo, Behaviour behaviour = Behaviour::Popup,
                            QWidget *parent = nullptr);
    ~AttachedWindow() override;

    // Takes ownership; the window is sized around it.
    void setContentWidget(QWidget *content);
    QWidget *contentWidget() const { return m_content; }
    QWidget *attachedTo() const { return m_attachedTo; }
    void setAttachedTo(QWidget *control) { m_attachedTo = control; }
    // The point the arrow aims at, in the control's coordinates; its centre by default.
    void setAttachPoint(QPoint point) { m_attachPoint = point; }

    void setBackgroundColor(const QColor &color);
    void setBorderColor(const QColor &color);

    // Positions the window at its control and shows it.
    void showAttached();
    // Whether the arrow is at the top edge (window below the control).
    bool isBelowControl() const { return m_below; }

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void layoutContent();
    QPoint anchorGlobal() const;

    QPointer<QWidget> m_attachedTo;
    QPointer<QWidget> m_content;
    std::optional<QPoint> m_attachPoint;
    QColor m_background;
    QColor m_border;
    bool m_below = true;
    // x of the arrow tip in window coordinates.
    int m_arrowX = 0;
    bool m_closedSent = false;
};
