// What a key makes of the finger.

#include "components/pads/KeyButtonTest.h"
#include "support/FrameForTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELKeyButton;

namespace {

class ZELKeyButtonTouchTest : public KeyButtonTest
{
};

} // namespace

TEST_F(ZELKeyButtonTouchTest, aTapIsTheClick)
{
    Key* const made = key();
    Touch::pressWindow(made, Touch::middleInWindow(made));
    EXPECT_TRUE(made->m_bPressed);
    EXPECT_EQ(panel().takeTypes(), Types{});
    Touch::releaseWindow(made, Touch::middleInWindow(made));
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.type, 1552);
    EXPECT_EQ(click.classType, "ZELEvent");
    EXPECT_EQ(click.sender, made);
    EXPECT_EQ(click.id, "ok");
    EXPECT_EQ(click.receiver, &panel());
    EXPECT_EQ(touches(), 1) << "the release makes no sound";
}

TEST_F(ZELKeyButtonTouchTest, thePageReadsTheCodeWhenTheClickArrives)
{
    auto* const made = buildOnPage<ZELKeyButton>("keybutton", ok(full, fullLang2));
    ASSERT_NE(made, nullptr);
    frame().recorder().take();
    Touch::tapWindow(made);
    const RecordedEvent click = frame().recorder().takeOne();
    EXPECT_EQ(click.type, 1552);
    auto* const sender = dynamic_cast<ZELKeyButton*>(click.sender);
    ASSERT_NE(sender, nullptr);
    EXPECT_EQ(sender->getKeyCode(second, true), 0x3142);
    EXPECT_EQ(sender->getKeyIndex(true), 7);
}

TEST_F(ZELKeyButtonTouchTest, aPressShowsThenSoundsThenMovesAndWaits)
{
    Key* const made = key(full + "animation='elastic_push' longpress='true'");
    bool looked = false;
    atTouchSound([&] {
        looked = true;
        EXPECT_TRUE(made->m_bPressed);
        EXPECT_EQ(made->m_pCurImage, picture("down.png"));
        EXPECT_EQ(made->m_animation.state(), QAbstractAnimation::Stopped);
        EXPECT_FALSE(made->m_pTimer->isActive());
    });
    made->m_nLongPressCount = 9;
    made->m_bLongPressed = true;
    log().startHere();
    made->forcePress();
    EXPECT_TRUE(looked);
    EXPECT_EQ(made->m_animation.state(), QAbstractAnimation::Running);
    EXPECT_TRUE(made->m_pTimer->isActive());
    EXPECT_EQ(made->m_pTimer->interval(), 1000);
    EXPECT_EQ(made->m_nLongPressCount, 0);
    EXPECT_FALSE(made->m_bLongPressed);
    EXPECT_EQ(log().texts("ZELKeyButton"), std::vector<std::string>{});
    EXPECT_EQ(log().texts("ZELImageButton"), std::vector<std::string>{}) << "no line of its own";
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELKeyButtonTouchTest, aPressRepaintsOnce)
{
    Key* const made = key();
    EXPECT_EQ(paints(made, [&] { made->forcePress(); }), 1);
}

TEST_F(ZELKeyButtonTouchTest, withoutLongPressAPressDoesNotWait)
{
    Key* const made = key();
    made->m_nLongPressCount = 9;
    Touch::press(made);
    EXPECT_FALSE(made->m_pTimer->isActive());
    EXPECT_EQ(made->m_nLongPressCount, 9);
}

TEST_F(ZELKeyButtonTouchTest, aPressLoadsADownPictureThatIsNotYetLoaded)
{
    Key* const made = key();
    made->m_pDownImage = nullptr;
    Touch::press(made);
    EXPECT_EQ(made->m_pDownImage, picture("down.png"));
    EXPECT_EQ(made->m_pCurImage, picture("down.png"));
    Touch::release(made);
    made->m_pDownImage = nullptr;
    made->m_strDownImage.clear();
    Touch::press(made);
    EXPECT_EQ(made->m_pCurImage, nullptr) << "and none where none is named";
}

TEST_F(ZELKeyButtonTouchTest, aReleaseStopsShowsAndTells)
{
    Key* const made = key(full + "animation='elastic_push' longpress='true'");
    Touch::press(made);
    made->m_bLongPressed = true;
    log().startHere();
    EXPECT_EQ(paints(made,
                     [&] {
                         made->forceRelease();
                         made->m_animation.stop(); // which paints too
                     }),
              1);
    EXPECT_FALSE(made->m_pTimer->isActive());
    EXPECT_EQ(made->m_pCurImage, picture("up.png"));
    EXPECT_FALSE(made->m_bPressed);
    EXPECT_FALSE(made->m_bLongPressed);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELKeyButtonTouchTest, theSoundCanBeSwitchedOff)
{
    Key* const made = key();
    made->setSoundMode(false);
    Touch::tap(made);
    EXPECT_EQ(touches(), 0);
}

TEST_F(ZELKeyButtonTouchTest, aFingerThatSlidesOffStillTypes)
{
    Key* const made = key();
    Touch::pressWindow(made, Touch::middleInWindow(made));
    Touch::dragWindow(made, QPoint(500, 300));
    Touch::releaseWindow(made, QPoint(500, 300));
    EXPECT_EQ(panel().takeOne().sender, made);
}

TEST_F(ZELKeyButtonTouchTest, theSecondOfTwoQuickTapsTypesToo)
{
    Key* const made = key();
    Touch::tap(made);
    Touch::doubleClick(made);
    EXPECT_TRUE(made->m_bPressed);
    Touch::release(made);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_MOUSE_UP, EVENT_MOUSE_UP}));
}

TEST_F(ZELKeyButtonTouchTest, aHeldKeyRepeatsAndStillClicks)
{
    Key* const made = key(full + "longpress='true'");
    Touch::press(made);
    for (int i = 0; i < 6; ++i)
        tick(made);
    Touch::release(made);
    const std::vector<RecordedEvent> events = panel().take();
    Types types;
    for (const RecordedEvent& event : events) {
        types.push_back(event.type);
        EXPECT_EQ(event.classType, "ZELEvent");
        EXPECT_EQ(event.sender, made);
        EXPECT_EQ(event.id, "ok");
    }
    EXPECT_EQ(types, (Types{1571, 1571, 1571, 1571, 1572, 1572, 1552}));
}

TEST_F(ZELKeyButtonTouchTest, theClockOfAHeldKeyRunsByItself)
{
    Key* const made = key(full + "longpress='true'");
    Touch::press(made);
    EXPECT_TRUE(EventLoop::waitFor([&] { return made->m_nLongPressCount > 0; }, 10000));
    Touch::release(made);
    const Types types = panel().takeTypes();
    ASSERT_GE(types.size(), 2u);
    EXPECT_EQ(types.front(), EVENT_LONG_PRESS);
    EXPECT_EQ(types.back(), EVENT_MOUSE_UP);
}

TEST_F(ZELKeyButtonTouchTest, aDimmedKeyIsNotTouched)
{
    Key* const made = key(full + "longpress='true'");
    made->setDimMode(true);
    EXPECT_TRUE(shows(made, faced(QStringLiteral("a"), Qt::yellow))) << "no style for dim mode";
    Touch::tapWindow(made);
    made->forcePress();
    made->forceRelease();
    EXPECT_FALSE(made->m_bPressed);
    EXPECT_FALSE(made->m_pTimer->isActive());
    EXPECT_EQ(made->m_pCurImage, picture("dim.png"));
    EXPECT_EQ(touches(), 0);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELKeyButtonTouchTest, aReleaseInDimModeOnlyStopsTheClock)
{
    Key* const made = key(full + "longpress='true'");
    Touch::press(made);
    made->setDimMode(true);
    EXPECT_TRUE(made->m_pTimer->isActive());
    made->m_bLongPressed = true;
    made->forceRelease();
    EXPECT_FALSE(made->m_pTimer->isActive());
    EXPECT_TRUE(made->m_bPressed);
    EXPECT_TRUE(made->m_bLongPressed);
    EXPECT_EQ(made->m_pCurImage, picture("dim.png"));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELKeyButtonTouchTest, itsPlaceIsNoRestPosition)
{
    Key* const made = key(full + "animation='elastic_push'");
    EXPECT_EQ(made->m_nOrgX, 0);
    EXPECT_EQ(made->m_nOrgY, 0);
    EXPECT_EQ(made->m_nPressOffset, 3) << "a twentieth of the picture";
    made->setOrgPos(place.x(), place.y());
    Touch::press(made);
    EXPECT_EQ(made->m_animation.startValue().toRect(), place);
    EXPECT_EQ(made->m_animation.endValue().toRect(), place.translated(3, 3));
    Touch::release(made);
    EXPECT_EQ(made->m_animation.endValue().toRect(), place);
}
