#include "windows/progresspanel.h"

#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "engine/exifoperationstatus.h"

#include <QEasingCurve>
#include <QEvent>
#include <QFileInfo>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QTimer>
#include <QtMath>

// The spinning indicator: twelve white spokes, the brightest one turning a step per tick.
class ProgressPanel::Spinner : public QWidget
{
public:
    explicit Spinner(QWidget *parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    // Kept as a step count so that twelve steps come back to exactly 0.
    int step = 0;

    double value() const { return double(step) / SpinnerSteps; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(width() / 2.0, height() / 2.0);
        const qreal outer = qMin(width(), height()) / 2.0 - 1;
        const qreal inner = outer * 0.45;
        for (int i = 0; i < SpinnerSteps; ++i) {
            const int age = (step - i + SpinnerSteps) % SpinnerSteps;
            QColor colour(255, 255, 255);
            colour.setAlphaF(1.0 - 0.75 * age / SpinnerSteps);
            painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap));
            const qreal angle = 2 * M_PI * i / SpinnerSteps - M_PI / 2;
            painter.drawLine(QPointF(inner * qCos(angle), inner * qSin(angle)),
                             QPointF(outer * qCos(angle), outer * qSin(angle)));
        }
    }
};

ProgressPanel::ProgressPanel(QWidget *parent)
    : QWidget(parent)
    , m_timer(new QTimer(this))
    , m_indicator(new Spinner(this))
    , m_statusTextField(new QLabel(this))
    , m_opacity(new QGraphicsOpacityEffect(this))
{
    setObjectName(QStringLiteral("ProgressPanel"));
    setFocusPolicy(Qt::StrongFocus);
    m_opacity->setOpacity(0);
    setGraphicsEffect(m_opacity);

    m_statusTextField->setObjectName(QStringLiteral("statusTextField"));
    QPalette text = m_statusTextField->palette();
    text.setColor(QPalette::WindowText, ApertureTheme::palette().color(QPalette::WindowText));
    m_statusTextField->setPalette(text);
    m_statusTextField->setAutoFillBackground(false);
    m_statusTextField->setAttribute(Qt::WA_TransparentForMouseEvents);

    m_timer->setInterval(AnimationDelayMs);
    connect(m_timer, &QTimer::timeout, this, &ProgressPanel::animate);
    m_timer->start();

    followParent();
    layoutChildren();
}

ProgressPanel::~ProgressPanel()
{
    m_timer->stop();
}

void ProgressPanel::progressStep(double, const QString &text)
{
    m_statusTextField->setText(text);
}

QString ProgressPanel::processingText(const QString &filePath)
{
    QString text = StringTables::instance().localizedString(QStringLiteral("Processing %@"));
    return text.replace(QStringLiteral("%@"), QFileInfo(filePath).fileName());
}

void ProgressPanel::fileToBeProcessed(const ExifOperationStatus &status)
{
    progressStep(1.0, processingText(status.fileName()));
}

void ProgressPanel::fadeIn()
{
    // Leaves the state at rest: a second fadeIn starts a fade of its own, as it always has.
    if (m_state == FadeState::FadingIn)
        return;
    if (m_state == FadeState::FadingOut && m_anim)
        m_anim->stop();
    startFade(1.0, FadeInMs);
}

void ProgressPanel::fadeOut()
{
    if (m_state == FadeState::FadingOut)
        return;
    if (m_state == FadeState::FadingIn && m_anim)
        m_anim->stop();
    m_state = FadeState::FadingOut;
    startFade(0.0, FadeOutMs);
}

qreal ProgressPanel::valueForProgress(qreal progress)
{
    return qMin(progress, FadeInOpacity);
}

QPropertyAnimation *ProgressPanel::startFade(qreal endOpacity, int durationMs)
{
    auto *animation = new QPropertyAnimation(m_opacity, "opacity", this);
    animation->setDuration(durationMs);
    animation->setStartValue(m_opacity->opacity());
    animation->setEndValue(endOpacity);
    QEasingCurve curve;
    curve.setCustomType(&ProgressPanel::valueForProgress);
    animation->setEasingCurve(curve);
    const bool fadesOut = endOpacity == 0.0;
    connect(animation, &QPropertyAnimation::finished, this,
            [this, animation, fadesOut] { handleAnimationFinished(animation, fadesOut); });
    m_anim = animation;
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    return animation;
}

void ProgressPanel::handleAnimationFinished(QPropertyAnimation *animation, bool fadesOut)
{
    if (animation != m_anim)
        return;
    // The curve stops short of the end; a panel faded out is meant to be gone.
    if (fadesOut)
        m_opacity->setOpacity(0);
    m_state = FadeState::AtRest;
    m_anim = nullptr;
}

void ProgressPanel::enableSuperviewSubviews(QWidget *parent, bool enable)
{
    if (!parent)
        return;
    const auto children = parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child == this)
            continue;
        child->setEnabled(enable);
        // Qt already carries the state down; children disabled on their own are set too, so
        // that enabling again brings the whole tree back.
        const auto descendants = child->findChildren<QWidget *>();
        for (QWidget *descendant : descendants)
            descendant->setEnabled(enable);
    }
}

void ProgressPanel::animate()
{
    m_indicator->step = (m_indicator->step + 1) % SpinnerSteps;
    m_indicator->update();
}

double ProgressPanel::indicatorValue() const
{
    return m_indicator->value();
}

QRect ProgressPanel::indicatorGeometry() const
{
    return m_indicator->geometry();
}

QString ProgressPanel::statusText() const
{
    return m_statusTextField->text();
}

qreal ProgressPanel::opacity() const
{
    return m_opacity->opacity();
}

void ProgressPanel::setOpacity(qreal opacity)
{
    m_opacity->setOpacity(opacity);
}

bool ProgressPanel::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange)
        followParent();
    return QWidget::event(event);
}

bool ProgressPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_watchedParent && event->type() == QEvent::Resize)
        setGeometry(m_watchedParent->rect());
    return QWidget::eventFilter(watched, event);
}

void ProgressPanel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), ApertureTheme::normalSolidFill());
}

void ProgressPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layoutChildren();
}

// Clicks stop here, so the controls underneath never see them.
void ProgressPanel::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void ProgressPanel::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void ProgressPanel::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void ProgressPanel::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

void ProgressPanel::followParent()
{
    if (m_watchedParent)
        m_watchedParent->removeEventFilter(this);
    m_watchedParent = parentWidget();
    if (!m_watchedParent)
        return;
    m_watchedParent->installEventFilter(this);
    setGeometry(m_watchedParent->rect());
}

void ProgressPanel::layoutChildren()
{
    const int x = (width() - IndicatorSize) / 2;
    const int y = (height() - IndicatorSize) / 2;
    m_indicator->setGeometry(x, y, IndicatorSize, IndicatorSize);
    m_statusTextField->setGeometry(x + IndicatorSize + StatusGap, y, StatusWidth, StatusHeight);
}
