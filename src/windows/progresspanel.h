#pragma once

#include <QPointer>
#include <QPropertyAnimation>
#include <QString>
#include <QWidget>

class ExifOperationStatus;
class QGraphicsOpacityEffect;
class QLabel;
class QTimer;

// Laid over a window's content while a batch runs in the background: covers it whole with the
// theme's fill, swallows clicks, and shows a white spinner beside one line of status text.
class ProgressPanel : public QWidget
{
    Q_OBJECT

public:
    enum class FadeState { AtRest = 0, FadingIn = 1, FadingOut = 2 };

    static constexpr int IndicatorSize = 20;
    static constexpr int StatusWidth = 400;
    static constexpr int StatusHeight = 20;
    static constexpr int StatusGap = 10;
    // One turn of the spinner.
    static constexpr int SpinnerSteps = 12;
    static constexpr int AnimationDelayMs = 83;
    static constexpr int FadeInMs = 400;
    static constexpr int FadeOutMs = 500;
    static constexpr qreal FadeInOpacity = 0.9;

    // Starts fully transparent; with a parent it covers the parent at once and follows its size.
    explicit ProgressPanel(QWidget *parent = nullptr);
    ~ProgressPanel() override;

    // The step is not used; the text replaces the status line.
    void progressStep(double step, const QString &text);
    // "Processing <file name>", for the file a batch is about to process.
    static QString processingText(const QString &filePath);
    void fileToBeProcessed(const ExifOperationStatus &status);

    void fadeIn();
    void fadeOut();
    // The fade's curve: never past 90 % of the way.
    static qreal valueForProgress(qreal progress);

    // Every child of parent but the panel, with all of theirs.
    void enableSuperviewSubviews(QWidget *parent, bool enable);

    // One spinner step: the value moves on by 1/12 of a turn and wraps to 0.
    void animate();

    double minStep() const { return m_minStep; }
    void setMinStep(double step) { m_minStep = step; }
    double maxStep() const { return m_maxStep; }
    void setMaxStep(double step) { m_maxStep = step; }

    double indicatorValue() const;
    QRect indicatorGeometry() const;
    QLabel *statusTextField() const { return m_statusTextField; }
    QString statusText() const;
    qreal opacity() const;
    void setOpacity(qreal opacity);
    FadeState state() const { return m_state; }
    QPropertyAnimation *animation() const { return m_anim; }
    QTimer *timer() const { return m_timer; }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    class Spinner;

    QPropertyAnimation *startFade(qreal endOpacity, int durationMs);
    void handleAnimationFinished(QPropertyAnimation *animation, bool fadesOut);
    void followParent();
    void layoutChildren();

    QTimer *m_timer = nullptr;
    Spinner *m_indicator = nullptr;
    QLabel *m_statusTextField = nullptr;
    FadeState m_state = FadeState::AtRest;
    QPointer<QPropertyAnimation> m_anim;
    double m_minStep = 0;
    double m_maxStep = 0;
    QGraphicsOpacityEffect *m_opacity = nullptr;
    QPointer<QWidget> m_watchedParent;
};
