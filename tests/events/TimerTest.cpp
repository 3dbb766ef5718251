#include "events/Timer.h"

#include "events/EventNumbers.h"
#include "events/ZELEvent.h"
#include "support/EventLoop.h"
#include "support/EventRecorder.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimerEvent>
#include <QWidget>

#include <gtest/gtest.h>
#include <memory>

using namespace PANFx::Testing;
using PANFx::Components::Timer;

namespace {

class TimerTest : public ::testing::Test
{
protected:
    // one tick of the system's clock, without waiting for it
    static void tick(Timer& timer)
    {
        QTimerEvent event(timer.timerId());
        QCoreApplication::sendEvent(&timer, &event);
    }

    bool ticksReach(size_t count)
    {
        return EventLoop::waitFor([this, count] { return m_page.events().size() >= count; });
    }

    EventRecorder m_page;
};

} // namespace

TEST_F(TimerTest, belongsToItsOwner)
{
    auto page = std::make_unique<EventRecorder>();
    QPointer<Timer> timer = new Timer(page.get());
    EXPECT_EQ(timer->m_pOwner, page.get());
    EXPECT_EQ(timer->parent(), page.get());
    EXPECT_FALSE(timer->isActive());
    timer->start(1);
    page.reset();
    EXPECT_TRUE(timer.isNull());
}

TEST_F(TimerTest, postsItselfToItsOwnerAtATick)
{
    Timer timer(&m_page);
    tick(timer);
    const RecordedEvent event = m_page.takeOne();
    EXPECT_EQ(event.type, 1557);
    EXPECT_EQ(event.classType, "ZELEvent");
    EXPECT_EQ(event.sender, &timer);
    EXPECT_EQ(event.id, "");
}

TEST_F(TimerTest, neverSignalsATimeout)
{
    Timer timer(&m_page);
    int timeouts = 0;
    QObject::connect(&timer, &QTimer::timeout, [&timeouts] { ++timeouts; });
    timer.start(1);
    EXPECT_TRUE(ticksReach(3));
    EXPECT_EQ(timeouts, 0);
}

TEST_F(TimerTest, ticksForEverWhenNobodyStopsIt)
{
    Timer timer(&m_page);
    timer.start(1);
    EXPECT_TRUE(ticksReach(20));
    EXPECT_TRUE(timer.isActive());
    for (const RecordedEvent& event : m_page.take())
        EXPECT_EQ(event.type, EVENT_TIMER);
}

TEST_F(TimerTest, goesOnTickingWhenSetToSingleShot)
{
    Timer timer(&m_page);
    timer.setSingleShot(true);
    timer.start(1);
    EXPECT_TRUE(ticksReach(5));
    EXPECT_TRUE(timer.isActive());
}

TEST_F(TimerTest, stopsWhenItIsToldTo)
{
    Timer timer(&m_page);
    timer.start(1);
    EXPECT_TRUE(ticksReach(1));
    timer.stop();
    m_page.take();
    EventLoop::runFor(30);
    EXPECT_TRUE(m_page.take().empty());
}

TEST_F(TimerTest, keepsPreciseTime)
{
    EXPECT_EQ(Timer(&m_page).timerType(), Qt::PreciseTimer);
}

TEST_F(TimerTest, isToldFromAnotherOfTheSameOwnerByTheSender)
{
    Timer one(&m_page);
    Timer other(&m_page);
    tick(other);
    tick(one);
    const std::vector<RecordedEvent> events = m_page.take();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].sender, &other);
    EXPECT_EQ(events[1].sender, &one);
}

TEST_F(TimerTest, leavesATickBehindThatWasPostedBeforeItDied)
{
    auto timer = std::make_unique<Timer>(&m_page);
    tick(*timer);
    const QObject* const address = timer.get();
    timer.reset();
    EXPECT_TRUE(m_page.takeOne().sender == address);
}

TEST_F(TimerTest, isSilentOnceItsOwnerIsGone)
{
    QWidget other;
    auto owner = std::make_unique<QWidget>();
    Timer timer(owner.get());
    timer.setParent(&other);
    owner.reset();
    tick(timer);
    EXPECT_EQ(timer.m_pOwner, nullptr);
    timer.m_pOwner = &m_page;
    tick(timer);
    EXPECT_EQ(m_page.takeOne().sender, &timer) << "another owner may take its place";
    timer.setParent(nullptr);
}

TEST_F(TimerTest, isSilentWithoutAnOwner)
{
    LogCapture::instance().expectError("[Timer] the timer has no owner", 1, "Timer");
    Timer timer(nullptr);
    EXPECT_EQ(timer.m_pOwner, nullptr);
    tick(timer);
    tick(timer);
    EXPECT_TRUE(m_page.take().empty());
}
