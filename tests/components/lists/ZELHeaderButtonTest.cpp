#include "components/lists/ZELHeaderButton.h"

#include "components/lists/ListTest.h"

#include <type_traits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELHeaderButton;
using Components::ZELImageButton;
using Components::ZELRadioButton;

namespace {

class Sort : public Opened<ZELHeaderButton>
{
public:
    using Opened::Opened;

    using ZELHeaderButton::m_logger;
    using ZELHeaderButton::m_nIconHeight;
    using ZELHeaderButton::m_nIconWidth;
    using ZELHeaderButton::m_nIconX;
    using ZELHeaderButton::m_nIconY;
    using ZELHeaderButton::m_pDownIcon;
    using ZELHeaderButton::m_pUpIcon;

    static std::intptr_t slotOfCheck() { return slot<void (Sort::*)(int, bool)>(&Sort::setCheck); }
    static std::intptr_t slotOfEvent() { return slot(&Sort::event); }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        ZELHeaderButton::paintEvent(event);
    }
};

class ZELHeaderButtonTest : public ListTest
{
protected:
    ZELHeaderButtonTest()
    {
        writePicture("iconup.png", 8, 8, Qt::magenta);
        writePicture("icondown.png", 8, 8, Qt::cyan);
    }

    // a button of 80 by 40 at 10, 20
    Sort* sort(const std::string& attributes = "", const std::string& children = icon)
    {
        return make<Sort>(ok(attributes, children), "ZELHeaderButton");
    }

    static QImage painted(Sort* button)
    {
        button->update();
        return Pixels::grab(button);
    }

    // the whole button in a colour, with an icon
    static QImage expected(const QColor& colour, const QColor& iconColour = QColor())
    {
        QImage image = filled(size, colour);
        if (iconColour.isValid())
            QPainter(&image).fillRect(QRect(60, 10, 16, 12), iconColour);
        return image;
    }

    static const std::string icon;
};

const std::string ZELHeaderButtonTest::icon =
    "<icon up='iconup.png' down='icondown.png' x='60' y='10' width='16' height='12'/>";

} // namespace

// ---- building

TEST_F(ZELHeaderButtonTest, isARadioButtonOfItsOwnType)
{
    static_assert(std::is_base_of_v<ZELRadioButton, ZELHeaderButton>);
    auto* const button = buildComponent<ZELHeaderButton>("headerbutton", ok());
    EXPECT_EQ(button->m_strType, "ZELHeaderButton");
    EXPECT_EQ(button->getQWidget(), static_cast<QWidget*>(button));
    EXPECT_EQ(button->geometry(), place);
}

TEST_F(ZELHeaderButtonTest, bringsOneOperationBehindThoseOfARadioButton)
{
    EXPECT_EQ(Sort::slotOfCheck(), Sort::slotOfEvent() + slotSize);
}

TEST_F(ZELHeaderButtonTest, startsUncheckedAndDownward)
{
    Sort* const button = sort("", "");
    EXPECT_FALSE(button->m_bChecked);
    EXPECT_FALSE(button->m_bDirection);
    EXPECT_EQ(button->m_pUpIcon, nullptr);
    EXPECT_EQ(button->m_pDownIcon, nullptr);
    EXPECT_EQ(
        QRect(button->m_nIconX, button->m_nIconY, button->m_nIconWidth, button->m_nIconHeight),
        QRect(0, 0, 1, 1));
    EXPECT_EQ(button->m_logger.m_strIdentity, "QTPANFx ZELHeaderButton");
    EXPECT_TRUE(log().texts("ZELHeaderButton").empty()) << "no icon is no fault";
}

TEST_F(ZELHeaderButtonTest, readsItsIcon)
{
    Sort* const button = sort();
    EXPECT_EQ(button->m_pUpIcon, picture("iconup.png"));
    EXPECT_EQ(button->m_pDownIcon, picture("icondown.png"));
    EXPECT_EQ(
        QRect(button->m_nIconX, button->m_nIconY, button->m_nIconWidth, button->m_nIconHeight),
        QRect(60, 10, 16, 12));
    EXPECT_TRUE(log().texts("ZELHeaderButton").empty());
}

TEST_F(ZELHeaderButtonTest, tellsWhichIconIsMissing)
{
    const std::string noUp = "[D] [setLayout] Up Icon is NULL";
    const std::string noDown = "[D] [setLayout] Down Icon is NULL";
    using Lines = std::vector<std::string>;
    for (const auto& [attributes, lines] :
         {std::make_pair("", Lines{noUp, noDown}), std::make_pair("up='iconup.png'", Lines{noDown}),
          std::make_pair("down='icondown.png'", Lines{noUp}),
          std::make_pair("up='none.png' down='none.png'", Lines{noUp, noDown})}) {
        log().startHere();
        const Sort* const button = sort("", "<icon " + std::string(attributes) + " y='3'/>");
        EXPECT_EQ(log().texts("ZELHeaderButton"), lines) << attributes;
        EXPECT_EQ(
            QRect(button->m_nIconX, button->m_nIconY, button->m_nIconWidth, button->m_nIconHeight),
            QRect(0, 3, 1, 1))
            << "what is missing keeps its value";
    }
}

TEST_F(ZELHeaderButtonTest, aNullLayoutIsToldByEachOfItsTwoReaders)
{
    expectNullLayoutLines("ok", 2);
    const Sort* const button = make<Sort>("", "ZELHeaderButton");
    log().expectInOrder(
        {"[E] [setLayout] ok pLayout == NULL", "[E] [setLayout] ok pLayout == NULL"});
    EXPECT_EQ(log().texts("ZELImageButton").size(), 1u);
    EXPECT_EQ(log().texts("ZELHeaderButton").size(), 1u);
    EXPECT_EQ(button->m_nIconWidth, 1);
}

// ---- touch

TEST_F(ZELHeaderButtonTest, aPressSelectsFirstAndTurnsTheDirectionThen)
{
    struct Case
    {
        bool checked;
        bool direction;
        bool directionThen;
        int type;
    };
    for (const Case& c :
         {Case{false, false, false, EVENT_HEADER_UP}, Case{false, true, true, EVENT_HEADER_DOWN},
          Case{true, false, true, EVENT_HEADER_DOWN}, Case{true, true, false, EVENT_HEADER_UP}}) {
        Sort* const button = sort();
        button->m_bChecked = c.checked;
        button->m_bDirection = c.direction;
        Touch::press(button);
        EXPECT_TRUE(button->m_bChecked);
        EXPECT_EQ(button->m_bDirection, c.directionThen);
        EXPECT_EQ(toldOne(button), std::to_string(c.type) + " ZELEvent ok");
        Touch::release(button);
        EXPECT_TRUE(panel().take().empty()) << "the release gives nothing";
        EXPECT_TRUE(button->m_bChecked);
        EXPECT_EQ(button->m_bDirection, c.directionThen);
    }
}

TEST_F(ZELHeaderButtonTest, eachFurtherPressTurnsItRound)
{
    Sort* const button = sort();
    for (const int type : {1584, 1583, 1584, 1583}) {
        Touch::tapWindow(button);
        EXPECT_EQ(panel().takeTypes(), Types{type});
    }
}

TEST_F(ZELHeaderButtonTest, aPressShowsNoPressedPictureAndHoldsNothing)
{
    Sort* const button = sort("longpress='true' title='t' style='normal'");
    button->m_bPressed = true;
    button->m_pCurImage = picture("down.png");
    Touch::press(button);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, picture("up.png"));
    EXPECT_FALSE(button->m_pTimer->isActive());
}

TEST_F(ZELHeaderButtonTest, aPressSoundsWhateverTheSoundMode)
{
    Sort* const button = sort();
    for (const bool mode : {true, false}) {
        button->setSoundMode(mode);
        const int before = touches();
        Touch::tap(button);
        EXPECT_EQ(touches(), before + 1) << mode;
    }
}

TEST_F(ZELHeaderButtonTest, soundsBeforeItReports)
{
    Sort* const button = sort();
    size_t postedAtSound = 1;
    atTouchSound([&] { postedAtSound = panel().take().size(); });
    Touch::press(button);
    EXPECT_EQ(postedAtSound, 0u);
    EXPECT_EQ(panel().takeTypes(), Types{1584});
}

TEST_F(ZELHeaderButtonTest, aPressRepaintsAndRunsTheAnimationOfARelease)
{
    Sort* const button = sort("title='t' style='normal' animation='elastic_push'");
    EventLoop::deliver();
    button->paints = 0;
    Touch::press(button);
    EventLoop::deliver();
    EXPECT_GT(button->paints, 0);
    button->setOrgPos(30, 40);
    Touch::press(button);
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(30, 40, 80, 40));
    EXPECT_TRUE(EventLoop::waitFor(
        [&] { return button->m_animation.state() == QAbstractAnimation::Stopped; }));
    EXPECT_TRUE(button->m_animation.propertyName().isEmpty()) << "so that it moves nothing";
    EXPECT_EQ(button->pos(), place.topLeft());
}

TEST_F(ZELHeaderButtonTest, dimmedItTakesNoTouchYetACallChangesItsState)
{
    Sort* const button = sort();
    button->setDimMode(true);
    Touch::tapWindow(button);
    EXPECT_FALSE(button->m_bChecked);
    button->forcePress();
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_FALSE(button->m_bDirection);
    button->forcePress();
    EXPECT_TRUE(button->m_bDirection);
    EXPECT_EQ(touches(), 0);
    EXPECT_TRUE(panel().take().empty());
}

TEST_F(ZELHeaderButtonTest, setsStateAndDirectionTogether)
{
    Sort* const button = sort();
    button->setCheck(1, true);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_TRUE(button->m_bDirection);
    button->setCheck(0, true);
    EXPECT_FALSE(button->m_bChecked);
    EXPECT_TRUE(button->m_bDirection);
    button->setCheck(5, false);
    EXPECT_TRUE(button->m_bChecked);
    EXPECT_FALSE(button->m_bDirection);
    EXPECT_TRUE(panel().take().empty());
}

TEST_F(ZELHeaderButtonTest, aNewDirectionAloneDoesNotRepaint)
{
    Sort* const button = sort();
    button->setCheck(1, false);
    EventLoop::deliver();
    button->paints = 0;
    button->setCheck(1, true);
    EventLoop::deliver();
    EXPECT_TRUE(button->m_bDirection);
    EXPECT_EQ(button->paints, 0);
    button->setCheck(0, true);
    EXPECT_GT(button->paints, 0) << "at once";
}

// ---- painting

TEST_F(ZELHeaderButtonTest, paintsPictureAndIconByStateAndDirection)
{
    Sort* const button = sort();
    EXPECT_TRUE(Pixels::same(painted(button), expected(Qt::green))) << "no icon while unchecked";
    button->m_bChecked = true;
    EXPECT_TRUE(Pixels::same(painted(button), expected(Qt::blue, Qt::cyan)));
    button->m_bDirection = true;
    EXPECT_TRUE(Pixels::same(painted(button), expected(Qt::blue, Qt::magenta)));
    button->m_pUpIcon = nullptr;
    EXPECT_TRUE(Pixels::same(painted(button), expected(Qt::blue)));
}

TEST_F(ZELHeaderButtonTest, uncheckedWithoutAPictureItPaintsNothingAtAll)
{
    Sort* const button = sort(styled);
    button->m_pCurImage = nullptr;
    EXPECT_TRUE(Pixels::inkBox(painted(button)).isNull());
}

TEST_F(ZELHeaderButtonTest, checkedWithoutADownPictureItPaintsTheRestAndSaysSoOnce)
{
    auto* const button =
        make<Sort>("<ok " + styled + "><image up='up.png'/>" + at(10, 20, 80, 40) + icon + "</ok>",
                   "ZELHeaderButton");
    button->m_bChecked = true;
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    log().expectError("[paintEvent] ok is checked and has no down image", 1, "ZELHeaderButton");
    painted(button);
    const QImage image = painted(button);
    EXPECT_EQ(Pixels::count(image, Qt::cyan), 16 * 12);
    EXPECT_EQ(coloursIn(image), "pressed");
}

TEST_F(ZELHeaderButtonTest, loadsTheDownPictureAtTheMomentItIsNeeded)
{
    Sort* const button = sort();
    button->m_pDownImage = nullptr;
    button->m_bChecked = true;
    EXPECT_TRUE(Pixels::same(painted(button), expected(Qt::blue, Qt::cyan)));
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
}

TEST_F(ZELHeaderButtonTest, takesTheStyleByStateAlone)
{
    Sort* const button = sort(styled);
    EXPECT_EQ(coloursIn(painted(button)), "normal");
    button->m_bPressed = true;
    EXPECT_EQ(coloursIn(painted(button)), "normal");
    button->m_bChecked = true;
    EXPECT_EQ(coloursIn(painted(button)), "pressed");
    button->m_pPressFont = nullptr;
    EXPECT_EQ(coloursIn(painted(button)), "normal");
    button->m_pFont = nullptr;
    EXPECT_EQ(coloursIn(painted(button)), "");
}

TEST_F(ZELHeaderButtonTest, heedsNeitherImageRectangleNorDimPictureNorDimStyle)
{
    Sort* const button = sort("title='HHHH' style='normal' dimstyle='dimmed'",
                              "<imagePos x='5' y='5' width='10' height='10'/>" + icon);
    QImage image = expected(Qt::green);
    drawText(image, QStringLiteral("HHHH"), image.rect(), centred, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(painted(button), image));
    button->m_bDimMode = true;
    EXPECT_TRUE(Pixels::same(painted(button), image));
}

TEST_F(ZELHeaderButtonTest, checkedAndDimmedItHeedsThemAsLittleNorTheAlignment)
{
    Sort* const button = sort("title='HHHH' style='normal' dimstyle='dimmed'",
                              "<imagePos x='5' y='5' width='10' height='10'/>"
                              "<textPos x='20' y='4' width='50' height='30' align='right'/>" +
                                  icon);
    button->m_bChecked = true;
    button->m_bDimMode = true;
    QImage image = expected(Qt::blue, Qt::cyan);
    drawText(image, QStringLiteral("HHHH"), QRect(20, 4, 50, 30), centred, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(painted(button), image));
}

TEST_F(ZELHeaderButtonTest, centresItsTitleWhateverTheAlignment)
{
    Sort* const button = sort("title='Hä' style='normal'",
                              "<textPos x='20' y='4' width='50' height='30' align='right'/>");
    EXPECT_EQ(button->m_nAlign, toTheRight);
    QImage image = expected(Qt::green);
    drawText(image, QString::fromUtf8("Hä"), QRect(20, 4, 50, 30), centred, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(painted(button), image));
}

TEST_F(ZELHeaderButtonTest, scalesPicturesSmoothly)
{
    writeHalves("halves.png");
    auto* const button =
        make<Sort>("<ok><image up='halves.png' down='halves.png'/>" + at(0, 0, 80, 40) + "</ok>",
                   "ZELHeaderButton");
    EXPECT_GT(greys(painted(button), button->rect()), 0);
    button->m_bChecked = true;
    EXPECT_GT(greys(painted(button), button->rect()), 0);
}

TEST_F(ZELHeaderButtonTest, scalesItsIconsSmoothly)
{
    writeHalves("halves.png");
    Sort* const button =
        sort("", "<icon up='halves.png' down='halves.png' x='60' y='10' width='16' height='12'/>");
    button->m_bChecked = true;
    for (const bool direction : {false, true}) {
        button->m_bDirection = direction;
        EXPECT_GT(greys(painted(button), QRect(60, 10, 16, 12)), 0) << direction;
    }
}
