#include "controls/wheelguard.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QChildEvent>
#include <QComboBox>
#include <QWheelEvent>

namespace {

bool isWheelEditable(const QObject *object)
{
    return qobject_cast<const QComboBox *>(object) ||
           qobject_cast<const QAbstractSpinBox *>(object);
}

} // namespace

WheelGuard::WheelGuard(QObject *parent)
    : QObject(parent)
{
}

void WheelGuard::watch(QWidget *container)
{
    m_container = container;
    container->installEventFilter(this);
    guardTree(container);
}

void WheelGuard::guardTree(QWidget *root)
{
    if (isWheelEditable(root))
        guard(root);
    for (QWidget *child : root->findChildren<QWidget *>()) {
        if (isWheelEditable(child))
            guard(child);
    }
}

void WheelGuard::guard(QWidget *control)
{
    // Wheel focus would hand the control the focus on the very step it must pass on.
    if (control->focusPolicy() == Qt::WheelFocus)
        control->setFocusPolicy(Qt::StrongFocus);
    // Installing twice is harmless: Qt keeps one entry per filter object.
    control->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_container) {
        // A child is complete only when polished; ChildAdded comes while it is being built.
        if (event->type() == QEvent::ChildPolished) {
            if (auto *child = qobject_cast<QWidget *>(static_cast<QChildEvent *>(event)->child()))
                guardTree(child);
        }
        return false;
    }
    if (event->type() != QEvent::Wheel || !isWheelEditable(watched))
        return false;
    const auto *control = static_cast<QWidget *>(watched);
    const QWidget *focus = QApplication::focusWidget();
    if (focus && (focus == control || control->isAncestorOf(focus)))
        return false;
    // Handed to the scroll area by hand: Qt passes an ignored wheel event on to the parents only
    // when it came from the window system, not when it was sent.
    for (QWidget *parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QAbstractScrollArea *>(parent)) {
            const auto *wheel = static_cast<QWheelEvent *>(event);
            QWidget *viewport = area->viewport();
            QWheelEvent step(viewport->mapFromGlobal(wheel->globalPosition()),
                             wheel->globalPosition(), wheel->pixelDelta(), wheel->angleDelta(),
                             wheel->buttons(), wheel->modifiers(), wheel->phase(),
                             wheel->inverted(), wheel->source());
            QCoreApplication::sendEvent(viewport, &step);
            return true;
        }
    }
    event->ignore();
    return true;
}
