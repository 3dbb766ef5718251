#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

class ZELImageButtonLayoutTest : public ButtonTest
{
};

} // namespace

TEST_F(ZELImageButtonLayoutTest, takesItsPlaceFromThePosition)
{
    auto* const button = make<Button>(ok());
    EXPECT_EQ(button->geometry(), place);
    EXPECT_EQ(button->m_nOrgX, 10);
    EXPECT_EQ(button->m_nOrgY, 20);
    log().expectError("[getImage] No FileName Error", 4, "ZELImageMgr"); // two without pictures
    EXPECT_EQ(make<Button>("<ok/>")->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(make<Button>("<ok><position x='5' height='7'/></ok>")->geometry(), QRect(5, 0, 1, 7));
}

TEST_F(ZELImageButtonLayoutTest, keepsTheThreePicturesApart)
{
    auto* const button = make<Button>(ok());
    EXPECT_EQ(button->m_strUpImage, "up.png");
    EXPECT_EQ(button->m_strDownImage, "down.png");
    EXPECT_EQ(button->m_strDimImage, "dim.png");
    EXPECT_EQ(button->m_pUpImage, picture("up.png"));
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
}

TEST_F(ZELImageButtonLayoutTest, readsStylesAndAnimationOnlyWithATitle)
{
    const std::string rest = "style='normal' pressstyle='pressed' dimstyle='dimmed' "
                             "animation='elastic_push' longpress='true'";
    auto* const bare = make<Button>(ok(rest));
    EXPECT_EQ(bare->m_pFont, nullptr);
    EXPECT_EQ(bare->m_pPressFont, nullptr);
    EXPECT_EQ(bare->m_pDimFont, nullptr);
    EXPECT_EQ(bare->m_strAnimation, "");
    EXPECT_TRUE(bare->m_bLongPress) << "the long press needs no title";

    for (const char* title : {"title='Start' ", "title='' "}) {
        auto* const titled = make<Button>(ok(title + rest));
        EXPECT_EQ(titled->m_pFont, style("normal")) << title;
        EXPECT_EQ(titled->m_pPressFont, style("pressed")) << title;
        EXPECT_EQ(titled->m_pDimFont, style("dimmed")) << title;
        EXPECT_EQ(titled->m_strAnimation, "elastic_push") << title;
    }
}

TEST_F(ZELImageButtonLayoutTest, looksItsTitleUp)
{
    writeStrings("<table><String key='start'><kr>k</kr><en>Start now</en></String></table>");
    EXPECT_EQ(make<Button>(ok("title='@start'"))->getTitle(), "Start now");
    EXPECT_EQ(make<Button>(ok("title='plain'"))->getTitle(), "plain");
}

TEST_F(ZELImageButtonLayoutTest, anUnknownStyleLeavesTheTitleUndrawn)
{
    auto* const button = make<Button>(ok("title='HHHH' style='nosuch'"));
    EXPECT_EQ(button->m_pFont, nullptr);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::green)));
}

TEST_F(ZELImageButtonLayoutTest, onlyTheWordFalseSwitchesTheLongPressOff)
{
    for (const auto& [word, on] :
         {std::make_pair("false", false), std::make_pair("true", true), std::make_pair("", true),
          std::make_pair("False", true), std::make_pair("0", true)})
        EXPECT_EQ(make<Button>(ok("longpress='" + std::string(word) + "'"))->m_bLongPress, on)
            << word;
    EXPECT_FALSE(make<Button>(ok())->m_bLongPress);
}

TEST_F(ZELImageButtonLayoutTest, textAndPictureRectanglesTakeWhatTheyLackFromThePosition)
{
    auto* const button = make<Button>(ok("", "<textPos width='30'/><imagePos y='3'/>"));
    EXPECT_EQ(button->m_textRect, QRect(10, 20, 30, 40));
    EXPECT_EQ(button->m_imageRect, QRect(10, 3, 80, 40));
    auto* const whole = make<Button>(ok("", "<textPos x='1' y='2' width='3' height='4'/>"));
    EXPECT_EQ(whole->m_textRect, QRect(1, 2, 3, 4));
    EXPECT_EQ(whole->m_imageRect, QRect());
}

TEST_F(ZELImageButtonLayoutTest, alignsItsTitle)
{
    const auto align = [this](const std::string& word) {
        return make<Button>(ok("", "<textPos align='" + word + "'/>"))->m_nAlign;
    };
    EXPECT_EQ(align("left"), toTheLeft);
    EXPECT_EQ(align("left/"), toTheLeft);
    EXPECT_EQ(align("right"), toTheRight);
    EXPECT_EQ(align("right/"), toTheRight);
    EXPECT_EQ(align("center"), centred);
    EXPECT_EQ(align("center/"), centred);
    EXPECT_EQ(align("Left"), centred);
    EXPECT_EQ(make<Button>(ok("", "<textPos/>"))->m_nAlign, centred);
}

TEST_F(ZELImageButtonLayoutTest, aSecondLayoutWithoutATextRectangleCentresAgain)
{
    auto* const button = make<Button>(ok("title='a'", "<textPos x='1' align='left'/>"));
    button->setLayout(element(ok("", "")));
    EXPECT_EQ(button->m_nAlign, centred);
    EXPECT_EQ(button->m_textRect.left(), 1) << "the rest stays";
    EXPECT_EQ(button->getTitle(), "a");
}

TEST_F(ZELImageButtonLayoutTest, aNullLayoutChangesNothing)
{
    auto* const button = make<Button>(ok("title='a'", "<textPos align='left'/>"));
    expectNullLayoutLines("ok");
    button->setLayout(nullptr);
    EXPECT_EQ(button->m_nAlign, toTheLeft);
    EXPECT_EQ(button->geometry(), place);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
}

TEST_F(ZELImageButtonLayoutTest, movesByATwentiethOfThePictureFourAtMost)
{
    auto* const button = make<Button>(ok());
    for (const auto& [width, offset] :
         {std::make_pair(19, 0), std::make_pair(20, 1), std::make_pair(60, 3),
          std::make_pair(79, 3), std::make_pair(80, 4), std::make_pair(500, 4)}) {
        const std::string name = std::to_string(width) + ".png";
        writePicture(name, width, 5, Qt::green);
        button->setImages("down.png", name, "dim.png");
        EXPECT_EQ(button->m_nPressOffset, offset) << width;
        EXPECT_EQ(button->m_pCurImage, picture(name));
    }
}

TEST_F(ZELImageButtonLayoutTest, withoutAnUpPictureTheCurrentOneAndTheOffsetStay)
{
    auto* const button = make<Button>(ok());
    for (const char* up : {"", "nosuch.png"}) {
        button->setImages("down.png", up, "");
        EXPECT_EQ(button->m_pCurImage, picture("up.png"));
        EXPECT_EQ(button->m_pUpImage, nullptr);
        EXPECT_EQ(button->m_nPressOffset, 3);
        EXPECT_EQ(button->m_strUpImage, up);
        EXPECT_EQ(button->m_strDimImage, "");
        if (*up == '\0')
            log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    }
}
