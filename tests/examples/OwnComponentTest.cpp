// the example's own sources, so that the test sees what a newcomer copies
#include "../examples/own-component/LevelMeter.cpp"
#include "../examples/own-component/TankPage.cpp"
#include "examples/ExampleTest.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"

using namespace PANFx::Testing;

namespace {

const QColor red(0xe0, 0x50, 0x40);
const QColor blue(0x40, 0xa0, 0xe0);

class OwnComponentTest : public ExampleTest
{
protected:
    OwnComponentTest()
        : ExampleTest("own-component")
    {
        expectNoBackgroundLines();
        frame().addPage("tank", [this](const std::string&) { return new TankPage(&frame()); });
        frame().moveTo("tank");
        EventLoop::deliver();
        page = frame().getCurrentWindow();
        meter = dynamic_cast<LevelMeter*>(page->getSubComponent("tank"));
    }

    PANFx::Windows::ZELChildWindow* page = nullptr;
    LevelMeter* meter = nullptr;
};

TEST_F(OwnComponentTest, liesOnThePageAsItsElementSays)
{
    ASSERT_NE(meter, nullptr);
    EXPECT_EQ(meter->geometry(), QRect(340, 100, 120, 280));
    EXPECT_TRUE(meter->isVisible());
    EXPECT_EQ(meter->level(), 70);
    EXPECT_EQ(Pixels::count(Pixels::grab(meter), blue), 120 * 196);
}

TEST_F(OwnComponentTest, aTouchReachesThePageWhichLetsTenPercentOut)
{
    ASSERT_NE(meter, nullptr);
    for (int touches = 0; touches < 5; ++touches) {
        Touch::tapWindow(meter);
        EventLoop::deliver();
    }
    EXPECT_EQ(meter->level(), 20);
    EXPECT_EQ(Pixels::count(Pixels::grab(meter), red), 120 * 56);
}

TEST_F(OwnComponentTest, aPageWithoutItsSectionWritesALineAndGoesOn)
{
    log().expectError("[setLayout] lonely has no element");
    LevelMeter lonely(nullptr, "lonely", nullptr);
    lonely.setLevel(250);
    EXPECT_EQ(lonely.level(), 100);
}

} // namespace
