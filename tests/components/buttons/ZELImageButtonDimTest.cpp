#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

class ZELImageButtonDimTest : public ButtonTest
{
};

} // namespace

TEST_F(ZELImageButtonDimTest, dimModeShowsTheDimPictureAndTakesNoTouches)
{
    auto* const button = make<Button>(ok());
    button->setDimMode(true);
    EXPECT_FALSE(button->isEnabled());
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::yellow)));
    Touch::tapWindow(button);
    button->forcePress();
    EXPECT_FALSE(button->m_bPressed);
    button->forceRelease();
    EXPECT_EQ(button->m_pCurImage, picture("dim.png"));
    EXPECT_EQ(touches(), 0);
    EXPECT_EQ(panel().takeTypes(), Types{});
    button->setDimMode(false);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::green)));
}

TEST_F(ZELImageButtonDimTest, nothingAtAllHappensAtATouchThatGetsThrough)
{
    auto* const button = make<Button>(pushed("longpress='true'"));
    button->setDimMode(true);
    button->m_bLongPressed = true;
    button->m_nLongPressCount = 3;
    EventLoop::deliver();
    const PaintCounter paints(button);
    log().startHere();
    const auto expectNothing = [&] {
        EventLoop::deliver();
        EXPECT_EQ(log().texts("ZELImageButton"), std::vector<std::string>{});
        EXPECT_FALSE(button->m_pTimer->isActive());
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Stopped);
        EXPECT_TRUE(button->m_bLongPressed);
        EXPECT_EQ(button->m_nLongPressCount, 3);
        EXPECT_FALSE(button->m_bPressed);
        EXPECT_EQ(button->m_pCurImage, picture("dim.png"));
        EXPECT_EQ(paints.count(), 0);
    };
    button->forcePress();
    expectNothing();
    button->forceRelease();
    expectNothing();
    EXPECT_EQ(touches(), 0);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonDimTest, litAgainWhileHeldItShowsTheUpPictureAndStaysPressed)
{
    auto* const button = make<Button>(ok(styled));
    Touch::press(button);
    button->setDimMode(true);
    button->setDimMode(false);
    EXPECT_TRUE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    const QImage seen = Pixels::grab(button);
    EXPECT_GT(Pixels::count(seen, Qt::green), 0);
    EXPECT_EQ(coloursIn(seen), "pressed") << "the style goes by the press";
    Touch::release(button);
    EXPECT_EQ(coloursIn(Pixels::grab(button)), "normal");
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELImageButtonDimTest, newPicturesShowTheUpPictureAlsoWhileHeldOrDim)
{
    writePicture("new.png", 60, 30, Qt::magenta);
    auto* const held = make<Button>(ok());
    Touch::press(held);
    auto* const dim = make<Button>(ok());
    dim->setDimMode(true);
    for (Button* const button : {held, dim}) {
        button->setImages("down.png", "new.png", "dim.png");
        EXPECT_EQ(button->m_pCurImage, picture("new.png"));
        EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::magenta)));
    }
    EXPECT_TRUE(held->m_bPressed);
    EXPECT_TRUE(dim->m_bDimMode);
}

TEST_F(ZELImageButtonDimTest, aReleaseInDimModeStopsTheTimerAndNothingElse)
{
    auto* const button = make<Button>("<ok longpress='true'><image up='up.png' down='down.png'/>"
                                      "<position width='80' height='40'/></ok>");
    Touch::press(button);
    button->setDimMode(true);
    EXPECT_EQ(button->m_pCurImage, button->m_pDownImage) << "without a dim picture it stays";
    EXPECT_TRUE(button->m_pTimer->isActive());
    button->forceRelease();
    EXPECT_FALSE(button->m_pTimer->isActive());
    EXPECT_TRUE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pDownImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonDimTest, aTickInDimModeStopsTheTimerAndPostsNothing)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    button->setDimMode(true);
    tick(button);
    EXPECT_FALSE(button->m_pTimer->isActive());
    EXPECT_FALSE(button->m_bLongPressed);
    EXPECT_EQ(button->m_nLongPressCount, 0);
    EXPECT_EQ(touches(), 1);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonDimTest, theDimPictureIsFetchedAtEachNeed)
{
    auto* const button = make<Button>(ok());
    button->setDimMode(true);
    button->setDimMode(false);
    button->m_strDimImage = "down.png";
    button->setDimMode(true);
    EXPECT_EQ(button->m_pCurImage, picture("down.png"));
}

TEST_F(ZELImageButtonDimTest, aDimPictureThatIsNotThereKeepsTheCurrentOne)
{
    auto* const button = make<Button>("<ok><image up='up.png' down='down.png' dim='nosuch.png'/>"
                                      "<position width='80' height='40'/></ok>");
    button->setDimMode(true);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    button->hideWindow();
    EXPECT_EQ(button->m_pCurImage, nullptr) << "hiding takes it as it is";
}

TEST_F(ZELImageButtonDimTest, anEqualDimModeDoesNothing)
{
    auto* const button = make<Button>(ok());
    button->m_pCurImage = nullptr;
    button->setDimMode(false);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    button->setDimMode(true);
    button->setEnabled(true);
    const PaintCounter paints(button);
    button->setDimMode(true);
    EventLoop::deliver();
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(paints.count(), 0);
}
