#pragma once

#include <QPoint>

class QWidget;

/**
 * A finger on the panel: real mouse events of the left button. The first group sends them
 * straight to the widget named, positions in its own pixels, the middle unless told otherwise.
 * The second group puts them into the window, positions in the window's pixels, so that Qt
 * decides who gets them, as on the instrument: a disabled widget is passed over and the one that
 * took the press keeps the release. None of them waits. The first group delivers no posted events;
 * the second does, as Qt's simulation of a window's input lets the event loop run once.
 */
namespace PANFx::Testing::Touch {

void press(QWidget* widget);
void press(QWidget* widget, const QPoint& at);
void release(QWidget* widget);
void release(QWidget* widget, const QPoint& at);
void tap(QWidget* widget);
void tap(QWidget* widget, const QPoint& at);

/** The second press of a quick pair, which Qt tells by an event of its own. */
void doubleClick(QWidget* widget);
void doubleClick(QWidget* widget, const QPoint& at);

/** A move with the finger down. */
void drag(QWidget* widget, const QPoint& to);

/** Press, event loop for so many milliseconds, release. */
void hold(QWidget* widget, int milliseconds);

/**
 * The ticks of a hold for long, without the seconds that they take: the running timers of the
 * widget and of what is in it tick so often. To be called between press and release; delivers.
 */
void tickLongHold(QWidget* widget, int ticks = 6);

/** Where the middle of a widget lies in its window. */
QPoint middleInWindow(const QWidget* widget);

void pressWindow(const QWidget* anyWidget, const QPoint& at);
void releaseWindow(const QWidget* anyWidget, const QPoint& at);
void dragWindow(const QWidget* anyWidget, const QPoint& to);

/** Press and release at the middle of the widget, whoever gets them. */
void tapWindow(const QWidget* widget);
void tapWindow(const QWidget* anyWidget, const QPoint& at);

} // namespace PANFx::Testing::Touch
