#pragma once

#include <QObject>

class QWidget;

// Keeps the mouse wheel for scrolling: a drop-down or spin box inside a watched container takes
// wheel steps only while it has the keyboard focus. Otherwise the step goes on to the parents, so
// a form scrolled past such a control is never edited by the pass.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit WheelGuard(QObject *parent = nullptr);

    // Guards the controls inside container now and those added to it later (once shown).
    void watch(QWidget *container);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void guardTree(QWidget *root);
    void guard(QWidget *control);

    QWidget *m_container = nullptr;
};
