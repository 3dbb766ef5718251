#include "support/EventLoop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

using namespace PANFx::Testing;

namespace {

// posts itself another event for each one that it gets, so many times
class Chain : public QObject
{
public:
    explicit Chain(int left)
        : m_left(left)
    {
        post();
    }

    int received = 0;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        ++received;
        if (m_left-- > 0)
            post();
        return true;
    }

private:
    void post() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    int m_left;
};

} // namespace

TEST(EventLoopHelpers, deliverWhatIsPostedWhileDelivering)
{
    Chain chain(5);
    EXPECT_EQ(chain.received, 0);
    EventLoop::deliver();
    EXPECT_EQ(chain.received, 6);
}

TEST(EventLoopHelpers, comeBackFromASourceThatNeverDriesUp)
{
    QTimer busy;
    int ticks = 0;
    QObject::connect(&busy, &QTimer::timeout, [&ticks] { ++ticks; });
    busy.start(0);
    EventLoop::deliver();
    EXPECT_GT(ticks, 0);
}

TEST(EventLoopHelpers, deleteLaterWhenAsked)
{
    QPointer<QObject> object = new QObject;
    object->deleteLater();
    EventLoop::deliverAndDelete();
    EXPECT_TRUE(object.isNull());
}

TEST(EventLoopHelpers, waitForAConditionAndNotLonger)
{
    bool done = false;
    QTimer::singleShot(30, [&done] { done = true; });
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(EventLoop::waitFor([&done] { return done; }, 20000));
    EXPECT_GE(clock.elapsed(), 25);
    EXPECT_LT(clock.elapsed(), 15000);
}

TEST(EventLoopHelpers, giveUpAfterTheTimeGiven)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(EventLoop::waitFor([] { return false; }, 40));
    EXPECT_GE(clock.elapsed(), 40);
}

TEST(EventLoopHelpers, runForTheTimeGiven)
{
    QElapsedTimer clock;
    clock.start();
    EventLoop::runFor(40);
    EXPECT_GE(clock.elapsed(), 39);
}
