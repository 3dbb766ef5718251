#include "components/buttons/ZELRadioButton.h"

#include "components/buttons/ButtonTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;
using Components::ZELRadioButton;

namespace {

class Radio : public Opened<ZELRadioButton>
{
public:
    using Opened::Opened;
    using ZELRadioButton::m_logger;
};

class ZELRadioButtonTest : public ButtonTest
{
};

} // namespace

TEST_F(ZELRadioButtonTest, isAnUncheckedImageButton)
{
    auto* const button = buildComponent<ZELRadioButton>("radiobutton", ok());
    EXPECT_FALSE(button->m_bChecked);
    EXPECT_EQ(button->m_strType, "ZELRadioButton");
    EXPECT_EQ(button->getQWidget(), static_cast<QWidget*>(button));
    EXPECT_EQ(static_cast<void*>(static_cast<ZELImageButton*>(button)), static_cast<void*>(button));
    EXPECT_EQ(make<Radio>(ok())->m_logger.m_strIdentity, "QTPANFx ZELRadioButton ");
}

TEST_F(ZELRadioButtonTest, aReleaseChecksAndNeverUnchecks)
{
    auto* const button = make<Radio>(ok());
    Touch::press(button);
    EXPECT_FALSE(button->m_bChecked);
    Touch::release(button);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeOne().id, "ok");
    Touch::tap(button);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP}) << "and still clicks";
}

TEST_F(ZELRadioButtonTest, aReleaseThatGetsThroughInDimModeChecksAndPostsNothing)
{
    auto* const button = make<Radio>(ok());
    button->setDimMode(true);
    Touch::tapWindow(button);
    EXPECT_FALSE(button->m_bChecked);
    button->forceRelease();
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELRadioButtonTest, aLongPressChecksAtTheRelease)
{
    auto* const button = make<Radio>(ok("longpress='true'"));
    Touch::press(button);
    tick(button);
    EXPECT_FALSE(button->m_bChecked);
    Touch::release(button);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_LONG_PRESS, EVENT_MOUSE_UP}));
}

TEST_F(ZELRadioButtonTest, setCheckRepaintsBeforeItReturns)
{
    auto* const button = make<Radio>(ok());
    PaintCounter paints(button);
    button->setCheck(1);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_EQ(paints.count(), 1) << "nothing was delivered yet";
    paints.reset();
    EXPECT_EQ(paints.count(), 0);
    button->setCheck(1);
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 0) << "an equal state does nothing";
    button->setCheck(0);
    EXPECT_FALSE(button->m_bChecked);
    EXPECT_EQ(paints.count(), 1);
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 1) << "and once only";
}

TEST_F(ZELRadioButtonTest, anyOtherNumberChecksAndAlwaysRepaints)
{
    auto* const button = make<Radio>(ok());
    PaintCounter paints(button);
    int before = 0;
    for (const int number : {2, 2, -1, 256}) {
        button->setCheck(number);
        EXPECT_TRUE(button->m_bChecked) << number;
        EXPECT_EQ(paints.count(), ++before) << number;
    }
}

TEST_F(ZELRadioButtonTest, setCheckPostsNothingAndMakesNoSound)
{
    auto* const button = make<Radio>(ok());
    button->setCheck(1);
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(touches(), 0);
}

TEST_F(ZELRadioButtonTest, showsTheDownPictureWhileHeldOrChecked)
{
    auto* const button = make<Radio>(ok("", "<imagePos x='4' y='5' width='20' height='10'/>"));
    const auto shows = [&](const QColor& colour) {
        QImage expected = Pixels::canvas(size);
        QPainter(&expected).fillRect(QRect(4, 5, 20, 10), colour);
        return Pixels::same(Pixels::grab(button), expected);
    };
    EXPECT_TRUE(shows(Qt::green));
    Touch::press(button);
    EXPECT_TRUE(shows(Qt::blue));
    Touch::release(button);
    EXPECT_TRUE(shows(Qt::blue));
    button->setDimMode(true);
    EXPECT_TRUE(shows(Qt::blue)) << "checked beats dim";
    button->setCheck(0);
    EXPECT_TRUE(shows(Qt::yellow));
}

TEST_F(ZELRadioButtonTest, checkedWithoutADownPictureItTellsSoOnceAndShowsNone)
{
    auto* const button = make<Radio>(
        "<ok><image up='up.png' down='nosuch.png'/><position width='80' height='40'/></ok>");
    button->m_bChecked = true;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
    log().expectError("[paintEvent] ok is checked and has no down image", 1, "ZELRadioButton");
}

TEST_F(ZELRadioButtonTest, theTitleTakesTheFirstStyleThatFits)
{
    auto* const button = make<Radio>(ok(styled));
    const auto seen = [&] { return coloursIn(Pixels::grab(button)); };
    EXPECT_EQ(seen(), "normal");
    button->m_bPressed = true;
    EXPECT_EQ(seen(), "pressed");
    button->m_bPressed = false;
    button->m_bChecked = true;
    EXPECT_EQ(seen(), "pressed");
    button->m_bDimMode = true;
    EXPECT_EQ(seen(), "dimmed shadow");
    button->m_pDimFont = nullptr;
    EXPECT_EQ(seen(), "pressed");
    button->m_pPressFont = nullptr;
    EXPECT_EQ(seen(), "normal");
    button->m_pFont = nullptr;
    EXPECT_EQ(seen(), "");
}

TEST_F(ZELRadioButtonTest, theEngravedTitleMovesByOneAtAllEdges)
{
    auto* const button = make<Radio>(ok("title='HH' style='normal' dimstyle='dimmed'",
                                        "<textPos x='5' y='3' width='60' "
                                        "height='30' align='right'/>"));
    button->setDimMode(true);
    QImage expected = filled(size, Qt::yellow);
    const QString text = QStringLiteral("HH");
    drawText(expected, text, QRect(6, 4, 60, 30), 0x82, "dimmed", QColor(200, 200, 200));
    drawText(expected, text, QRect(5, 3, 60, 30), 0x82, "dimmed", QColor(128, 128, 128));
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
}

TEST_F(ZELRadioButtonTest, theTitleIsNeverElided)
{
    auto* const button = make<Radio>(ok(styled, "<textPos x='0' y='0' width='20' height='40'/>"));
    const QImage before = Pixels::grab(button);
    button->setElidedText(true);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), before));
    EXPECT_FALSE(Pixels::same(before, filled(size, Qt::green)));
}

TEST_F(ZELRadioButtonTest, theDownPictureIsLoadedWhenItIsFirstPainted)
{
    auto* const button = make<Radio>(ok());
    button->m_pDownImage = nullptr;
    button->setCheck(1);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::blue)));
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
}

TEST_F(ZELRadioButtonTest, thePictureIsScaledSmoothlyInBothStates)
{
    writeHalves("halves.png");
    auto* const button = make<Radio>(ok());
    button->setImages("halves.png", "halves.png", "");
    for (const bool checked : {false, true}) {
        button->m_bChecked = checked;
        EXPECT_GT(greys(Pixels::grab(button), button->rect()), 0) << checked;
    }
}
