#include "support/EventLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

namespace PANFx::Testing::EventLoop {

namespace {

constexpr int mostRounds = 1000;

} // namespace

void deliver()
{
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    for (int round = 0; round < mostRounds; ++round) {
        QCoreApplication::sendPostedEvents();
        if (!dispatcher->processEvents(QEventLoop::AllEvents))
            return;
    }
}

void deliverAndDelete()
{
    deliver();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    deliver();
}

bool waitFor(const std::function<bool()>& condition, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    QTimer wakeUp; // lets the loop come back where nothing else happens
    wakeUp.start(5);
    while (!condition()) {
        if (clock.hasExpired(milliseconds))
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, [&loop] { loop.quit(); });
    loop.exec();
}

} // namespace PANFx::Testing::EventLoop
