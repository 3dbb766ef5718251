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
    }

    void bringUp()
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
    bringUp();
    ASSERT_NE(meter, nullptr);
    EXPECT_EQ(meter->geometry(), QRect(340, 100, 120, 280));
    EXPECT_TRUE(meter->isVisible());
    EXPECT_EQ(meter->level(), 70);
    EXPECT_EQ(Pixels::count(Pixels::grab(meter), blue), 120 * 196);
}

TEST_F(OwnComponentTest, aTouchReachesThePageWhichLetsTenPercentOut)
{
    bringUp();
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
    const std::string section = "<Own>";
    std::string layout = readFile(resources + "layout/tank.resource");
    const std::size_t begin = layout.find(section);
    const std::size_t end = layout.find("</Own>");
    ASSERT_NE(begin, std::string::npos);
    ASSERT_NE(end, std::string::npos);
    writeLayout("tank", layout.erase(begin, end + section.size() + 1 - begin));
    log().expectError("[setLayout] tank has no element");
    bringUp();
    ASSERT_NE(meter, nullptr);
    EXPECT_EQ(meter->level(), 70);
    EXPECT_TRUE(page->isVisible());
}

TEST_F(OwnComponentTest, withoutAnElementALevelIsStillHeldBetweenItsEnds)
{
    log().expectError("[setLayout] lonely has no element");
    LevelMeter lonely(nullptr, "lonely", nullptr);
    lonely.setLevel(250);
    EXPECT_EQ(lonely.level(), 100);
}

} // namespace
