#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

#include <QElapsedTimer>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::Timer;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

class ZELImageButtonLongPressTest : public ButtonTest
{
};

} // namespace

TEST_F(ZELImageButtonLongPressTest, aHeldButtonTicksFourTimesAndThenRepeatsFast)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    log().startHere();
    Touch::press(button);
    EXPECT_TRUE(button->m_pTimer->isActive());
    EXPECT_EQ(button->m_pTimer->interval(), 1000);
    for (int i = 0; i < 6; ++i) {
        tick(button);
        EXPECT_TRUE(button->m_pTimer->isActive()) << i;
        EXPECT_EQ(button->m_pTimer->interval(), 300) << i;
        EXPECT_EQ(button->m_nLongPressCount, i + 1);
        EXPECT_TRUE(button->m_bLongPressed);
    }
    EXPECT_EQ(button->m_pCurImage, button->m_pDownImage);
    Touch::release(button);
    EXPECT_FALSE(button->m_pTimer->isActive());
    EXPECT_FALSE(button->m_bLongPressed);
    const std::vector<RecordedEvent> events = panel().take();
    Types types;
    for (const RecordedEvent& event : events) {
        types.push_back(event.type);
        EXPECT_EQ(event.classType, "ZELEvent");
        EXPECT_EQ(event.sender, button);
        EXPECT_EQ(event.id, "ok");
    }
    EXPECT_EQ(types, (Types{1571, 1571, 1571, 1571, 1572, 1572, 1552}));
    EXPECT_EQ(touches(), 2) << "at the press and at the first tick";
    EXPECT_EQ(log().count("[D] [onLongPressed] id : ok ==> Long Pressed!!!!", "ZELImageButton"), 6);
}

TEST_F(ZELImageButtonLongPressTest, theFirstTickComesByItself)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    EXPECT_TRUE(EventLoop::waitFor([&] { return button->m_nLongPressCount > 0; }, 10000));
    Touch::release(button);
    const Types types = panel().takeTypes();
    ASSERT_GE(types.size(), 2u);
    EXPECT_EQ(types.front(), EVENT_LONG_PRESS);
    EXPECT_EQ(types.back(), EVENT_MOUSE_UP);
}

TEST_F(ZELImageButtonLongPressTest, ticksGoOnWhenTheFingerSlidesOff)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    const QPoint outside(500, 300);
    Touch::pressWindow(button, Touch::middleInWindow(button));
    tick(button);
    Touch::dragWindow(button, outside);
    EXPECT_TRUE(button->m_pTimer->isActive());
    tick(button);
    Touch::releaseWindow(button, outside);
    EXPECT_EQ(panel().takeTypes(), (Types{1571, 1571, 1552}));
}

TEST_F(ZELImageButtonLongPressTest, hiddenOrBlockedBetweenTheTicksItTellsTheNextOneAndIsSilent)
{
    for (const QEvent::Type type : {QEvent::Hide, QEvent::WindowBlocked}) {
        auto* const button = make<Button>(ok("longpress='true'"));
        Touch::press(button);
        tick(button);
        tick(button);
        QEvent event(type);
        QCoreApplication::sendEvent(button, &event);
        EXPECT_FALSE(button->m_bPressed) << type;
        tick(button);
        EXPECT_FALSE(button->m_pTimer->isActive()) << type;
        EXPECT_EQ(panel().takeTypes(), (Types{1571, 1571, 1571})) << type;
    }
}

TEST_F(ZELImageButtonLongPressTest, eachPressCountsItsTicksAnew)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    for (int i = 0; i < 5; ++i)
        tick(button);
    Touch::release(button);
    panel().take();
    Touch::press(button);
    EXPECT_EQ(button->m_nLongPressCount, 0);
    EXPECT_EQ(button->m_pTimer->interval(), 1000);
    tick(button);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_LONG_PRESS});
    EXPECT_EQ(touches(), 4);
}

TEST_F(ZELImageButtonLongPressTest, withoutLongPressTheTimerStandsStill)
{
    auto* const button = make<Button>(ok());
    Touch::press(button);
    EXPECT_FALSE(button->m_pTimer->isActive());
    Touch::release(button);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    button->setLongPress(true);
    Touch::press(button);
    EXPECT_TRUE(button->m_pTimer->isActive());
    Touch::release(button);
    button->setLongPress(false);
    Touch::press(button);
    EXPECT_FALSE(button->m_pTimer->isActive());
}

TEST_F(ZELImageButtonLongPressTest, aTickThatWasQueuedBeforeTheReleaseIsStillTold)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    button->forcePress();
    queueTick(button);
    button->forceRelease();
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_MOUSE_UP, EVENT_LONG_PRESS}));
    EXPECT_FALSE(button->m_pTimer->isActive()) << "and is the last";
}

TEST_F(ZELImageButtonLongPressTest, onlyItsOwnTimerTicks)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    Timer foreign(button);
    for (QEvent* event :
         std::vector<QEvent*>{new ZELEvent(EVENT_TIMER, &foreign, ""), new ZELEvent(EVENT_TIMER),
                              new QEvent(QEvent::Type(EVENT_TIMER))})
        QCoreApplication::postEvent(button, event);
    EventLoop::deliver();
    EXPECT_EQ(button->m_nLongPressCount, 0);
    EXPECT_TRUE(button->m_pTimer->isActive());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonLongPressTest, whatItGetsGoesOnToTheWidget)
{
    auto* const button = make<Button>(ok());
    ZELEvent tick(EVENT_TIMER, button->m_pTimer, "");
    EXPECT_TRUE(QCoreApplication::sendEvent(button, &tick));
    ZELEvent own(QEvent::Type(2000));
    EXPECT_TRUE(QCoreApplication::sendEvent(button, &own));
    expectWidgetsAnswers(button);
}

TEST_F(ZELImageButtonLongPressTest, heldByTheClockItTicksFourTimesSlowlyAndTwiceFast)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    QElapsedTimer clock;
    const auto millisecondsUntil = [&](int count) {
        EXPECT_TRUE(EventLoop::waitFor([&] { return button->m_nLongPressCount >= count; }, 30000));
        return clock.elapsed();
    };
    clock.start();
    Touch::press(button);
    // never early; a loaded machine is late, and may have come further than was waited for
    EXPECT_GE(millisecondsUntil(1), 999);
    EXPECT_GE(millisecondsUntil(6), 2490);
    Touch::release(button);
    Types expected(4, EVENT_LONG_PRESS);
    expected.resize(size_t(std::max(6, button->m_nLongPressCount)), EVENT_LONG_PRESS_HELD);
    expected.push_back(EVENT_MOUSE_UP);
    EXPECT_EQ(panel().takeTypes(), expected);
    EXPECT_EQ(touches(), 2);
}

TEST_F(ZELImageButtonLongPressTest, aLateTickSoundsOnceMoreAndTheNextPressForgetsIt)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    button->forcePress();
    tick(button);
    queueTick(button);
    button->forceRelease();
    EXPECT_EQ(touches(), 2) << "at the press and at the first tick";
    EXPECT_EQ(panel().takeTypes(), (Types{1571, 1552, 1571}));
    EXPECT_EQ(touches(), 3) << "the release has made the late one a first one again";
    EXPECT_TRUE(button->m_bLongPressed);
    EXPECT_EQ(button->m_nLongPressCount, 2);

    button->forcePress();
    EXPECT_FALSE(button->m_bLongPressed);
    EXPECT_EQ(button->m_nLongPressCount, 0);
    EXPECT_EQ(touches(), 4);
    tick(button);
    EXPECT_EQ(touches(), 5);
}

TEST_F(ZELImageButtonLongPressTest, aPressWithoutLongPressLeavesTheCountAlone)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    button->forcePress();
    tick(button);
    button->setLongPress(false);
    button->forcePress();
    EXPECT_EQ(button->m_nLongPressCount, 1);
    EXPECT_TRUE(button->m_bLongPressed);
}

TEST_F(ZELImageButtonLongPressTest, aTickStopsTheTimerThenSoundsThenCounts)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    button->forcePress();
    int sounds = 0;
    atTouchSound([&] {
        ++sounds;
        EXPECT_FALSE(button->m_pTimer->isActive());
        EXPECT_FALSE(button->m_bLongPressed);
        EXPECT_EQ(button->m_nLongPressCount, 0);
        EXPECT_EQ(log().texts("ZELImageButton"), std::vector<std::string>{});
    });
    EventLoop::deliver();
    log().startHere();
    tick(button);
    EXPECT_EQ(sounds, 1);
    EXPECT_EQ(log().texts("ZELImageButton"),
              std::vector<std::string>{"[D] [onLongPressed] id : ok ==> Long Pressed!!!!"});
    EXPECT_TRUE(button->m_pTimer->isActive());
}
