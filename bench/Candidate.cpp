#include "Candidate.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace bench {

namespace {
constexpr int paintTimeout = 2000; // milliseconds
}

bool Candidate::waitPainted()
{
    QCoreApplication::processEvents();
    if (m_painted)
        return true;
    QElapsedTimer timer;
    timer.start();
    while (!m_painted && timer.elapsed() < paintTimeout)
        QCoreApplication::processEvents();
    return m_painted;
}

QImage Candidate::picture()
{
    return window()->screen()->grabWindow(window()->winId()).toImage();
}

void settle()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

// The event is handled right after the filter, so the pixels are out when the event loop
// returns to waitPainted().
bool WidgetCandidate::PaintWatcher::eventFilter(QObject*, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::UpdateRequest || pEvent->type() == QEvent::Expose)
        m_painted = true;
    return false;
}

void WidgetCandidate::openWindow(QWidget* pWindow)
{
    m_pWindow = pWindow;
    m_pWindow->winId(); // makes the handle
    m_pWindow->installEventFilter(&m_watcher);
    m_pWindow->windowHandle()->installEventFilter(&m_watcher);
    m_pWindow->show();
    settle();
}

void WidgetCandidate::activate()
{
    m_pWindow->activateWindow();
    settle();
}

void sendMouse(QObject* receiver, QEvent::Type type, const QPoint& local, const QPoint& global,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(local), QPointF(global), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
}

void WidgetCandidate::press(const QPoint& place)
{
    m_pPressed = m_pWindow->childAt(place);
    touch(QEvent::MouseButtonPress, place, Qt::LeftButton);
}

void WidgetCandidate::release(const QPoint& place)
{
    touch(QEvent::MouseButtonRelease, place, Qt::NoButton);
}

void WidgetCandidate::touch(QEvent::Type type, const QPoint& place, Qt::MouseButtons buttons)
{
    sendMouse(m_pPressed, type, m_pPressed->mapFrom(m_pWindow, place), m_pWindow->pos() + place,
              buttons);
}

QWindow* WidgetCandidate::window()
{
    return m_pWindow->windowHandle();
}

std::unique_ptr<QWidget> makeWindow()
{
    auto pWindow = std::make_unique<QWidget>();
    pWindow->setPalette(QPalette(Qt::black));
    pWindow->setFixedSize(800, 480);
    return pWindow;
}

} // namespace bench
