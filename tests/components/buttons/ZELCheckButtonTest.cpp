#include "components/buttons/ZELCheckButton.h"

#include "components/buttons/ButtonTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELCheckButton;
using Components::ZELImageButton;

namespace {

class Check : public Opened<ZELCheckButton>
{
public:
    using Opened::Opened;
    using ZELCheckButton::m_logger;
};

class ZELCheckButtonTest : public ButtonTest
{
protected:
    static QImage seen(Check* button) { return Pixels::grab(button); }
};

} // namespace

TEST_F(ZELCheckButtonTest, isAnUncheckedImageButton)
{
    auto* const button = buildComponent<ZELCheckButton>("checkbutton", ok());
    EXPECT_FALSE(button->m_bChecked);
    EXPECT_EQ(button->m_strType, "ZELCheckButton");
    EXPECT_EQ(button->getQWidget(), static_cast<QWidget*>(button));
    EXPECT_EQ(static_cast<void*>(static_cast<ZELImageButton*>(button)), static_cast<void*>(button));
    EXPECT_EQ(make<Check>(ok())->m_logger.m_strIdentity, "QTPANFx ZELCheckButton ");
}

TEST_F(ZELCheckButtonTest, eachTapFlipsAndPostsOneClick)
{
    auto* const button = make<Check>(ok());
    for (const bool checked : {true, false, true}) {
        Touch::tap(button);
        EXPECT_EQ(button->m_bChecked, checked);
        const RecordedEvent click = panel().takeOne();
        EXPECT_EQ(click.type, EVENT_MOUSE_UP);
        EXPECT_EQ(click.sender, button);
        EXPECT_EQ(click.id, "ok");
    }
}

TEST_F(ZELCheckButtonTest, theNewStateIsThereWhenTheClickIsPosted)
{
    auto* const button = make<Check>(ok());
    Touch::press(button);
    EXPECT_FALSE(button->m_bChecked) << "the release flips";
    button->forceRelease();
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELCheckButtonTest, aLongPressFlipsAtTheRelease)
{
    auto* const button = make<Check>(ok("longpress='true'"));
    Touch::press(button);
    tick(button);
    tick(button);
    EXPECT_FALSE(button->m_bChecked);
    Touch::release(button);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_LONG_PRESS, EVENT_LONG_PRESS, EVENT_MOUSE_UP}));
}

TEST_F(ZELCheckButtonTest, aReleaseThatGetsThroughInDimModeFlipsAndPostsNothing)
{
    auto* const button = make<Check>(ok());
    button->setDimMode(true);
    Touch::tapWindow(button);
    EXPECT_FALSE(button->m_bChecked) << "none gets through by a touch";
    button->forcePress();
    button->forceRelease();
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELCheckButtonTest, hidingWhileHeldFlipsNothing)
{
    auto* const button = make<Check>(ok());
    Touch::press(button);
    button->hideWindow();
    EXPECT_FALSE(button->m_bChecked);
    EXPECT_FALSE(button->m_bPressed);
}

TEST_F(ZELCheckButtonTest, showsTheDownPictureWhileHeldOrChecked)
{
    auto* const button = make<Check>(ok());
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::green)));
    Touch::press(button);
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::blue)));
    Touch::release(button);
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::blue)));
    Touch::press(button);
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::blue)));
    Touch::release(button);
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::green)));
}

TEST_F(ZELCheckButtonTest, checkedItShowsTheDownPictureAlsoInDimMode)
{
    auto* const button = make<Check>(ok());
    button->setDimMode(true);
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::yellow)));
    button->m_bChecked = true;
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::blue)));
}

TEST_F(ZELCheckButtonTest, thePictureKeepsToItsRectangleInBothStates)
{
    auto* const button = make<Check>(ok("", "<imagePos x='4' y='5' width='20' height='10'/>"));
    for (const bool checked : {false, true}) {
        button->m_bChecked = checked;
        QImage expected = Pixels::canvas(size);
        QPainter(&expected).fillRect(QRect(4, 5, 20, 10), checked ? Qt::blue : Qt::green);
        EXPECT_TRUE(Pixels::same(seen(button), expected));
    }
}

TEST_F(ZELCheckButtonTest, theDownPictureIsLoadedWhenItIsFirstPainted)
{
    auto* const button = make<Check>(ok());
    button->m_pDownImage = nullptr;
    button->m_bChecked = true;
    EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::blue)));
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
}

TEST_F(ZELCheckButtonTest, checkedWithoutADownPictureItTellsSoOnceAndShowsNone)
{
    for (const char* image : {"<image up='up.png'/>", "<image up='up.png' down='nosuch.png'/>"}) {
        auto* const button =
            make<Check>("<ok>" + std::string(image) + "<position width='80' height='40'/></ok>");
        EXPECT_TRUE(Pixels::same(seen(button), filled(size, Qt::green)));
        button->m_bChecked = true;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(Pixels::inkInside(seen(button), button->rect()), 0);
    }
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    log().expectError("[paintEvent] ok is checked and has no down image", 2, "ZELCheckButton");
}

TEST_F(ZELCheckButtonTest, theTitleTakesTheFirstStyleThatFits)
{
    struct Row
    {
        const char* styles;
        bool dim;
        bool pressed;
        bool checked;
        const char* seen;
    };
    const char* const all = "style='normal' pressstyle='pressed' dimstyle='dimmed'";
    const Row rows[] = {
        {all, false, false, false, "normal"},
        {all, false, true, false, "pressed"},
        {all, false, false, true, "pressed"},
        {all, true, false, true, "dimmed shadow"},
        {"style='normal' pressstyle='pressed'", true, false, true, "pressed"},
        {"style='normal' pressstyle='pressed'", true, false, false, "normal"},
        {"style='normal'", false, true, true, "normal"},
        {"pressstyle='pressed'", false, false, false, ""},
    };
    for (const Row& row : rows) {
        auto* const button = make<Check>("<ok title='HHHH' " + std::string(row.styles) +
                                         "><image up='up.png' down='down.png'/>"
                                         "<position width='80' height='40'/></ok>");
        button->m_bDimMode = row.dim;
        button->m_bPressed = row.pressed;
        button->m_bChecked = row.checked;
        EXPECT_EQ(coloursIn(seen(button)), row.seen) << row.styles;
    }
}

TEST_F(ZELCheckButtonTest, theTitleIsNeverElided)
{
    auto* const button =
        make<Check>(ok(styled, "<textPos x='0' y='0' width='20' height='40' align='left'/>"));
    button->setTitle("ABCDEFGH");
    for (const bool dim : {false, true}) {
        button->setDimMode(dim);
        const QImage before = seen(button);
        button->setElidedText(true);
        EXPECT_TRUE(Pixels::same(seen(button), before));
        EXPECT_GT(Pixels::inkInside(before, QRect(0, 0, 20, 40), dim ? Qt::yellow : Qt::green), 0);
        button->m_bElided = false;
    }
}

TEST_F(ZELCheckButtonTest, theTitleIsDrawnAsAnImageButtonDrawsIt)
{
    auto* const button = make<Check>(ok("title='HH' style='normal' pressstyle='pressed'",
                                        "<textPos x='5' y='3' width='60' "
                                        "height='30' align='right'/>"));
    button->m_bChecked = true;
    QImage expected = filled(size, Qt::blue);
    drawText(expected, QStringLiteral("HH"), QRect(5, 3, 60, 30), 0x82, "pressed", Qt::red);
    EXPECT_TRUE(Pixels::same(seen(button), expected));
    auto* const whole = make<Check>(ok("title='HH' style='normal'"));
    expected = filled(size, Qt::green);
    drawText(expected, QStringLiteral("HH"), QRect(0, 0, 80, 40), centred, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(seen(whole), expected));
}

TEST_F(ZELCheckButtonTest, thePictureIsScaledSmoothlyInBothStates)
{
    writeHalves("halves.png");
    auto* const button = make<Check>(ok());
    button->setImages("halves.png", "halves.png", "");
    for (const bool checked : {false, true}) {
        button->m_bChecked = checked;
        EXPECT_GT(greys(seen(button), button->rect()), 0) << checked;
        EXPECT_EQ(Pixels::inkInside(seen(button), button->rect()), 3200) << checked;
    }
}

TEST_F(ZELCheckButtonTest, theEngravedTitleMovesByOneAtAllEdges)
{
    const QString text = QStringLiteral("HH");
    for (const auto& [textPos, rect, align] :
         {std::make_tuple("<textPos x='5' y='3' width='60' height='30' align='right'/>",
                          QRect(5, 3, 60, 30), toTheRight),
          std::make_tuple("", QRect(0, 0, 80, 40), centred)}) {
        auto* const button = make<Check>(
            ok("title='HH' style='normal' pressstyle='pressed' dimstyle='dimmed'", textPos));
        for (const bool checked : {false, true}) {
            button->setDimMode(true);
            button->m_bChecked = checked;
            QImage expected = filled(size, checked ? Qt::blue : Qt::yellow);
            drawText(expected, text, rect.translated(1, 1), align, "dimmed", QColor(200, 200, 200));
            drawText(expected, text, rect, align, "dimmed", QColor(128, 128, 128));
            EXPECT_TRUE(Pixels::same(seen(button), expected)) << textPos << checked;
        }
    }
}
