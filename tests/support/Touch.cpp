#include "support/Touch.h"

#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELEvent.h"
#include "support/EventLoop.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace PANFx::Testing::Touch {

namespace {

QPoint middle(const QWidget* widget)
{
    return widget->rect().center();
}

QWindow* windowOf(const QWidget* widget)
{
    QWindow* const window = widget->window()->windowHandle();
    if (!window)
        ADD_FAILURE() << "a touch on a window that was never shown";
    return window;
}

} // namespace

void press(QWidget* widget)
{
    press(widget, middle(widget));
}

void press(QWidget* widget, const QPoint& at)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, at);
}

void release(QWidget* widget)
{
    release(widget, middle(widget));
}

void release(QWidget* widget, const QPoint& at)
{
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, at);
}

void tap(QWidget* widget)
{
    tap(widget, middle(widget));
}

void tap(QWidget* widget, const QPoint& at)
{
    press(widget, at);
    release(widget, at);
}

void doubleClick(QWidget* widget)
{
    doubleClick(widget, middle(widget));
}

void doubleClick(QWidget* widget, const QPoint& at)
{
    QMouseEvent event(QEvent::MouseButtonDblClick, at, widget->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void drag(QWidget* widget, const QPoint& to)
{
    QMouseEvent event(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void hold(QWidget* widget, int milliseconds)
{
    press(widget);
    EventLoop::runFor(milliseconds);
    release(widget);
}

void tickLongHold(QWidget* widget, int ticks)
{
    for (QTimer* const any : widget->findChildren<QTimer*>()) {
        auto* const timer = dynamic_cast<Components::Timer*>(any);
        for (int i = 0; timer && timer->isActive() && i < ticks; ++i) {
            QCoreApplication::postEvent(timer->m_pOwner, new ZELEvent(EVENT_TIMER, timer, ""));
            EventLoop::deliver();
        }
    }
}

QPoint middleInWindow(const QWidget* widget)
{
    return widget->mapTo(widget->window(), middle(widget));
}

void pressWindow(const QWidget* anyWidget, const QPoint& at)
{
    if (QWindow* const window = windowOf(anyWidget))
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, at);
}

void releaseWindow(const QWidget* anyWidget, const QPoint& at)
{
    if (QWindow* const window = windowOf(anyWidget))
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, at);
}

void dragWindow(const QWidget* anyWidget, const QPoint& to)
{
    if (QWindow* const window = windowOf(anyWidget))
        QTest::mouseMove(window, to);
}

void tapWindow(const QWidget* widget)
{
    tapWindow(widget, middleInWindow(widget));
}

void tapWindow(const QWidget* anyWidget, const QPoint& at)
{
    pressWindow(anyWidget, at);
    releaseWindow(anyWidget, at);
}

} // namespace PANFx::Testing::Touch
