#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

#include <QEasingCurve>
#include <QPointer>

#include <type_traits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::Timer;
using Components::ZELComponent;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

constexpr int centred = 0x84;
constexpr int toTheRight = 0x82;
constexpr int toTheLeft = 0x81;

const QRect place(10, 20, 80, 40);
const QSize size(80, 40);

class ZELImageButtonTest : public ButtonTest
{
protected:
    static std::string pushed(const std::string& attributes = "")
    {
        return ok(styled + "animation='elastic_push' " + attributes);
    }

    /** A button of one row of text, with elision or without. */
    QImage elidedTitle(const std::string& title, const std::string& textPos, bool dim = false)
    {
        auto* const button =
            make<Button>("<ok title='" + title + "' style='normal' dimstyle='dimmed'>" +
                         "<position width='200' height='40'/>" + textPos + "</ok>");
        button->setElidedText(true);
        button->setDimMode(dim);
        return Pixels::grab(button);
    }
};

} // namespace

// ---- what it is

TEST_F(ZELImageButtonTest, isAComponentFirstAndAPlainWidgetSecond)
{
    auto* const button = buildComponent<ZELImageButton>("button", ok());
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(button)), static_cast<void*>(button));
    EXPECT_NE(static_cast<void*>(static_cast<QWidget*>(button)), static_cast<void*>(button));
    EXPECT_EQ(button->getQWidget(), static_cast<QWidget*>(button));
    EXPECT_STREQ(button->metaObject()->className(), "QWidget");
    EXPECT_EQ(button->m_strType, "ZELImageButton");
    EXPECT_EQ(button->m_strID, "ok");
    EXPECT_EQ(button->parentWidget(), &panel());
}

TEST_F(ZELImageButtonTest, startsIdleAndEmpty)
{
    expectNullLayoutLines("ok");
    auto* const button = make<Button>("");
    EXPECT_EQ(log().count("[E] [setLayout] ok pLayout == NULL", "ZELImageButton"), 1);
    EXPECT_EQ(button->m_logger.m_strIdentity, "QTPANFx ZELImageButton ");
    for (const std::string& text :
         {button->m_strDownImage, button->m_strUpImage, button->m_strDimImage, button->m_strTitle,
          button->m_strAnimation})
        EXPECT_EQ(text, "");
    EXPECT_EQ(button->m_pDownImage, nullptr);
    EXPECT_EQ(button->m_pUpImage, nullptr);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(button->m_pFont, nullptr);
    EXPECT_EQ(button->m_pDimFont, nullptr);
    EXPECT_EQ(button->m_pPressFont, nullptr);
    EXPECT_EQ(button->m_nAlign, centred);
    EXPECT_FALSE(button->m_bDimMode);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_TRUE(button->m_bSoundMode);
    EXPECT_EQ(button->m_animation.targetObject(), button);
    EXPECT_EQ(button->m_animation.parent(), nullptr);
    EXPECT_EQ(button->m_nPressOffset, 0);
    EXPECT_EQ(button->m_nOrgX, 0);
    EXPECT_EQ(button->m_nOrgY, 0);
    EXPECT_EQ(button->m_imageRect, QRect());
    EXPECT_EQ(button->m_textRect, QRect());
    ASSERT_NE(button->m_pTimer, nullptr);
    EXPECT_EQ(button->m_pTimer->m_pOwner, button);
    EXPECT_EQ(button->m_pTimer->parent(), button);
    EXPECT_FALSE(button->m_pTimer->isActive());
    EXPECT_FALSE(button->m_bLongPressed);
    EXPECT_EQ(button->m_nLongPressCount, 0);
    EXPECT_FALSE(button->m_bLongPress);
    EXPECT_FALSE(button->m_bElided);
    EXPECT_EQ(button->geometry(), QRect(0, 0, 100, 30)) << "never placed";
}

TEST_F(ZELImageButtonTest, aButtonWithoutPicturesStillClicks)
{
    expectNullLayoutLines("ok");
    auto* const button = make<Button>("");
    Touch::tap(button);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
}

TEST_F(ZELImageButtonTest, showsAndHides)
{
    auto* const button = make<Button>(ok());
    button->hideWindow();
    EXPECT_TRUE(button->isHidden());
    button->showWindow();
    EXPECT_TRUE(button->isVisible());
}

// ---- its layout

TEST_F(ZELImageButtonTest, takesItsPlaceFromThePosition)
{
    auto* const button = make<Button>(ok());
    EXPECT_EQ(button->geometry(), place);
    EXPECT_EQ(button->m_nOrgX, 10);
    EXPECT_EQ(button->m_nOrgY, 20);
    log().expectError("[getImage] No FileName Error", 4, "ZELImageMgr"); // two without pictures
    EXPECT_EQ(make<Button>("<ok/>")->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(make<Button>("<ok><position x='5' height='7'/></ok>")->geometry(), QRect(5, 0, 1, 7));
}

TEST_F(ZELImageButtonTest, keepsTheThreePicturesApart)
{
    auto* const button = make<Button>(ok());
    EXPECT_EQ(button->m_strUpImage, "up.png");
    EXPECT_EQ(button->m_strDownImage, "down.png");
    EXPECT_EQ(button->m_strDimImage, "dim.png");
    EXPECT_EQ(button->m_pUpImage, picture("up.png"));
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
}

TEST_F(ZELImageButtonTest, readsStylesAndAnimationOnlyWithATitle)
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

TEST_F(ZELImageButtonTest, looksItsTitleUp)
{
    writeStrings("<table><String key='start'><kr>k</kr><en>Start now</en></String></table>");
    EXPECT_EQ(make<Button>(ok("title='@start'"))->getTitle(), "Start now");
    EXPECT_EQ(make<Button>(ok("title='plain'"))->getTitle(), "plain");
}

TEST_F(ZELImageButtonTest, anUnknownStyleLeavesTheTitleUndrawn)
{
    auto* const button = make<Button>(ok("title='HHHH' style='nosuch'"));
    EXPECT_EQ(button->m_pFont, nullptr);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::green)));
}

TEST_F(ZELImageButtonTest, onlyTheWordFalseSwitchesTheLongPressOff)
{
    for (const auto& [word, on] :
         {std::make_pair("false", false), std::make_pair("true", true), std::make_pair("", true),
          std::make_pair("False", true), std::make_pair("0", true)})
        EXPECT_EQ(make<Button>(ok("longpress='" + std::string(word) + "'"))->m_bLongPress, on)
            << word;
    EXPECT_FALSE(make<Button>(ok())->m_bLongPress);
}

TEST_F(ZELImageButtonTest, textAndPictureRectanglesTakeWhatTheyLackFromThePosition)
{
    auto* const button = make<Button>(ok("", "<textPos width='30'/><imagePos y='3'/>"));
    EXPECT_EQ(button->m_textRect, QRect(10, 20, 30, 40));
    EXPECT_EQ(button->m_imageRect, QRect(10, 3, 80, 40));
    auto* const whole = make<Button>(ok("", "<textPos x='1' y='2' width='3' height='4'/>"));
    EXPECT_EQ(whole->m_textRect, QRect(1, 2, 3, 4));
    EXPECT_EQ(whole->m_imageRect, QRect());
}

TEST_F(ZELImageButtonTest, alignsItsTitle)
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

TEST_F(ZELImageButtonTest, aSecondLayoutWithoutATextRectangleCentresAgain)
{
    auto* const button = make<Button>(ok("title='a'", "<textPos x='1' align='left'/>"));
    button->setLayout(element(ok("", "")));
    EXPECT_EQ(button->m_nAlign, centred);
    EXPECT_EQ(button->m_textRect.left(), 1) << "the rest stays";
    EXPECT_EQ(button->getTitle(), "a");
}

TEST_F(ZELImageButtonTest, aNullLayoutChangesNothing)
{
    auto* const button = make<Button>(ok("title='a'", "<textPos align='left'/>"));
    expectNullLayoutLines("ok");
    button->setLayout(nullptr);
    EXPECT_EQ(button->m_nAlign, toTheLeft);
    EXPECT_EQ(button->geometry(), place);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
}

TEST_F(ZELImageButtonTest, movesByATwentiethOfThePictureFourAtMost)
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

TEST_F(ZELImageButtonTest, withoutAnUpPictureTheCurrentOneAndTheOffsetStay)
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

// ---- touch

TEST_F(ZELImageButtonTest, aPressShowsSoundsAndTellsTheLog)
{
    auto* const button = make<Button>(ok());
    log().startHere();
    Touch::press(button);
    EXPECT_TRUE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pDownImage);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::blue)));
    EXPECT_EQ(touches(), 1);
    EXPECT_FALSE(button->m_pTimer->isActive());
    EXPECT_EQ(log().texts("ZELImageButton"),
              std::vector<std::string>{"[D] [mousePressEvent] id : ok (0)==> mousePressEvent!!!!"});
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, thePressTellsTheLogThatTheLongPressIsOn)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    EXPECT_EQ(log().count("[D] [mousePressEvent] id : ok (1)==> mousePressEvent!!!!"), 1);
}

TEST_F(ZELImageButtonTest, aReleaseIsTheClick)
{
    auto* const button = make<Button>(ok());
    Touch::press(button);
    Touch::release(button);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.type, 1552);
    EXPECT_EQ(click.classType, "ZELEvent");
    EXPECT_EQ(click.sender, button);
    EXPECT_EQ(click.id, "ok");
    EXPECT_EQ(click.receiver, &panel());
    EXPECT_EQ(touches(), 1) << "the release makes no sound";
}

TEST_F(ZELImageButtonTest, theClickIsPostedAndNeverCalled)
{
    auto* const button = make<Button>(ok());
    int seen = 0;
    class Listener : public QObject
    {
    public:
        explicit Listener(int& seen)
            : m_seen(seen)
        {
        }
        bool eventFilter(QObject*, QEvent* event) override
        {
            m_seen += event->type() == EVENT_MOUSE_UP ? 1 : 0;
            return false;
        }

    private:
        int& m_seen;
    } listener(seen);
    panel().installEventFilter(&listener);
    button->forcePress();
    button->forceRelease();
    EXPECT_EQ(seen, 0);
    EventLoop::deliver();
    EXPECT_EQ(seen, 1);
}

TEST_F(ZELImageButtonTest, aReleaseWithoutAPressClicksToo)
{
    auto* const button = make<Button>(ok());
    Touch::release(button);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELImageButtonTest, aFingerThatSlidesOffStillClicks)
{
    auto* const button = make<Button>(ok());
    const QPoint inside = Touch::middleInWindow(button);
    const QPoint outside(500, 300);
    Touch::pressWindow(button, inside);
    Touch::dragWindow(button, outside);
    EXPECT_TRUE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pDownImage);
    Touch::releaseWindow(button, outside);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(panel().takeOne().sender, button);
}

TEST_F(ZELImageButtonTest, theSecondOfTwoQuickTouchesIsAPressToo)
{
    auto* const button = make<Button>(ok());
    Touch::tap(button);
    Touch::doubleClick(button);
    EXPECT_TRUE(button->m_bPressed);
    Touch::release(button);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_MOUSE_UP, EVENT_MOUSE_UP}));
    EXPECT_EQ(touches(), 2);
}

TEST_F(ZELImageButtonTest, theSoundCanBeSwitchedOff)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    button->setSoundMode(false);
    Touch::press(button);
    tick(button);
    EXPECT_EQ(touches(), 0);
    button->setSoundMode(true);
    Touch::release(button);
    Touch::press(button);
    EXPECT_EQ(touches(), 1);
}

TEST_F(ZELImageButtonTest, withoutADownPictureNoneIsShownWhileHeld)
{
    auto* const button =
        make<Button>("<ok><image up='up.png'/><position width='80' height='40'/></ok>");
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    Touch::press(button);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
    Touch::release(button);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), filled(size, Qt::green)));
}

TEST_F(ZELImageButtonTest, aDownPictureThatIsNotThereIsNone)
{
    auto* const button = make<Button>(
        "<ok><image up='up.png' down='nosuch.png'/><position width='80' height='40'/></ok>");
    EXPECT_EQ(button->m_pDownImage, nullptr);
    Touch::press(button);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
}

TEST_F(ZELImageButtonTest, aPressLoadsADownPictureThatIsNotYetLoaded)
{
    auto* const button = make<Button>(ok());
    button->m_pDownImage = nullptr;
    Touch::press(button);
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
    EXPECT_EQ(button->m_pCurImage, picture("down.png"));
}

// ---- dim mode

TEST_F(ZELImageButtonTest, dimModeShowsTheDimPictureAndTakesNoTouches)
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

TEST_F(ZELImageButtonTest, aReleaseInDimModeStopsTheTimerAndNothingElse)
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

TEST_F(ZELImageButtonTest, aTickInDimModeStopsTheTimerAndPostsNothing)
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

TEST_F(ZELImageButtonTest, theDimPictureIsFetchedAtEachNeed)
{
    auto* const button = make<Button>(ok());
    button->setDimMode(true);
    button->setDimMode(false);
    button->m_strDimImage = "down.png";
    button->setDimMode(true);
    EXPECT_EQ(button->m_pCurImage, picture("down.png"));
}

TEST_F(ZELImageButtonTest, aDimPictureThatIsNotThereKeepsTheCurrentOne)
{
    auto* const button = make<Button>("<ok><image up='up.png' down='down.png' dim='nosuch.png'/>"
                                      "<position width='80' height='40'/></ok>");
    button->setDimMode(true);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    button->hideWindow();
    EXPECT_EQ(button->m_pCurImage, nullptr) << "hiding takes it as it is";
}

TEST_F(ZELImageButtonTest, anEqualDimModeDoesNothing)
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

// ---- long press

TEST_F(ZELImageButtonTest, aHeldButtonTicksFourTimesAndThenRepeatsFast)
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

TEST_F(ZELImageButtonTest, theFirstTickComesByItself)
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

TEST_F(ZELImageButtonTest, eachPressCountsItsTicksAnew)
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

TEST_F(ZELImageButtonTest, withoutLongPressTheTimerStandsStill)
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

TEST_F(ZELImageButtonTest, aTickThatWasQueuedBeforeTheReleaseIsStillTold)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    button->forcePress();
    queueTick(button);
    button->forceRelease();
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_MOUSE_UP, EVENT_LONG_PRESS}));
    EXPECT_FALSE(button->m_pTimer->isActive()) << "and is the last";
}

TEST_F(ZELImageButtonTest, onlyItsOwnTimerTicks)
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

TEST_F(ZELImageButtonTest, whatItGetsGoesOnToTheWidget)
{
    auto* const button = make<Button>(ok());
    ZELEvent tick(EVENT_TIMER, button->m_pTimer, "");
    EXPECT_TRUE(QCoreApplication::sendEvent(button, &tick));
    ZELEvent own(QEvent::Type(2000));
    EXPECT_TRUE(QCoreApplication::sendEvent(button, &own));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    key.accept();
    QCoreApplication::sendEvent(button, &key);
    EXPECT_FALSE(key.isAccepted()) << "keys are left to the widget";
}

// ---- a press that is dropped

TEST_F(ZELImageButtonTest, hidingDropsThePress)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    button->hideWindow();
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_TRUE(button->m_pTimer->isActive()) << "the timer goes on";
    tick(button);
    EXPECT_FALSE(button->m_pTimer->isActive()) << "for one tick";
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_LONG_PRESS});
}

TEST_F(ZELImageButtonTest, hidingTheParentDropsThePressToo)
{
    auto* const button = make<Button>(ok());
    Touch::pressWindow(button, Touch::middleInWindow(button));
    EXPECT_TRUE(button->m_bPressed);
    panel().hide();
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, aBlockedWindowDropsThePress)
{
    auto* const button = make<Button>(ok());
    Touch::press(button);
    QEvent blocked(QEvent::WindowBlocked);
    QCoreApplication::sendEvent(button, &blocked);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, hiddenInDimModeItShowsTheDimPicture)
{
    auto* const button = make<Button>(ok());
    Touch::press(button);
    button->setDimMode(true);
    button->m_pCurImage = button->m_pDownImage;
    button->hideWindow();
    EXPECT_EQ(button->m_pCurImage, picture("dim.png"));
    button->m_strDimImage.clear();
    button->showWindow();
    button->hideWindow();
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage) << "where one is named";
}

TEST_F(ZELImageButtonTest, disabledWhileHeldTheReleaseGoesToThePage)
{
    auto* const button = make<Button>(ok());
    const QPoint middle = Touch::middleInWindow(button);
    Touch::pressWindow(button, middle);
    button->setDimMode(true);
    Touch::releaseWindow(button, middle);
    EXPECT_TRUE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, picture("dim.png"));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

// ---- animation

TEST_F(ZELImageButtonTest, aPressPushesAndAReleaseBringsBack)
{
    auto* const button = make<Button>(pushed());
    Touch::press(button);
    EXPECT_EQ(button->m_animation.targetObject(), button);
    EXPECT_EQ(button->m_animation.propertyName(), QByteArray("geometry"));
    EXPECT_EQ(button->m_animation.duration(), 150);
    EXPECT_EQ(button->m_animation.startValue().toRect(), place);
    EXPECT_EQ(button->m_animation.endValue().toRect(), place.translated(3, 3));
    EXPECT_EQ(button->m_animation.easingCurve().type(), QEasingCurve::OutBack);
    EXPECT_EQ(int(button->m_animation.easingCurve().type()), 34);
    EXPECT_DOUBLE_EQ(button->m_animation.easingCurve().overshoot(), QEasingCurve().overshoot());
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);

    button->m_animation.setCurrentTime(150);
    EXPECT_EQ(button->geometry(), place.translated(3, 3));
    Touch::release(button);
    EXPECT_EQ(button->m_animation.duration(), 150);
    EXPECT_EQ(button->m_animation.startValue().toRect(), place.translated(3, 3));
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
    EXPECT_EQ(button->m_animation.easingCurve().type(), QEasingCurve::OutBack);
    EXPECT_TRUE(EventLoop::waitFor([&] { return button->geometry() == place; }));
    EXPECT_EQ(button->m_animation.targetObject(), button) << "it is kept";
}

TEST_F(ZELImageButtonTest, aReleaseInMidFlightStartsWhereTheButtonIs)
{
    auto* const button = make<Button>(pushed());
    Touch::press(button);
    button->m_animation.stop();
    button->move(12, 22);
    Touch::release(button);
    EXPECT_EQ(button->m_animation.startValue().toRect(), QRect(12, 22, 80, 40));
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
}

TEST_F(ZELImageButtonTest, otherAnimationsAndTitlelessButtonsStandStill)
{
    for (const std::string& attributes :
         {styled + "animation='push'", styled, std::string("animation='elastic_push'")}) {
        auto* const button = make<Button>(ok(attributes));
        Touch::press(button);
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Stopped) << attributes;
        Touch::release(button);
        EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Stopped) << attributes;
        EXPECT_EQ(button->geometry(), place);
    }
}

TEST_F(ZELImageButtonTest, aReleaseThatNoPressWentBeforeMovesNothing)
{
    auto* const button = make<Button>(pushed());
    button->move(50, 60);
    Touch::release(button);
    EXPECT_EQ(button->m_animation.propertyName(), QByteArray());
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    button->m_animation.setCurrentTime(150);
    EXPECT_EQ(button->pos(), QPoint(50, 60));
}

TEST_F(ZELImageButtonTest, aNarrowPictureRunsTheAnimationAndStaysWhereItIs)
{
    auto* const button = make<Button>(pushed());
    writePicture("narrow.png", 19, 5, Qt::green);
    button->setImages("down.png", "narrow.png", "");
    Touch::press(button);
    EXPECT_EQ(button->m_animation.state(), QAbstractAnimation::Running);
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
}

TEST_F(ZELImageButtonTest, theRestPositionCanBeSetAndMovesNothing)
{
    auto* const button = make<Button>(pushed());
    button->setOrgPos(100, 200);
    EventLoop::deliver();
    EXPECT_EQ(button->geometry(), place);
    Touch::press(button);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(103, 203, 80, 40));
    Touch::release(button);
    EXPECT_EQ(button->m_animation.endValue().toRect(), QRect(100, 200, 80, 40));
}

TEST_F(ZELImageButtonTest, hiddenWhileHeldItGoesBackToItsRest)
{
    auto* const button = make<Button>(pushed());
    Touch::press(button);
    button->m_animation.setCurrentTime(150);
    EXPECT_EQ(button->geometry(), place.translated(3, 3));
    button->hideWindow();
    EXPECT_EQ(button->m_animation.endValue().toRect(), place);
    EXPECT_TRUE(EventLoop::waitFor([&] { return button->geometry() == place; }));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

// ---- painting

TEST_F(ZELImageButtonTest, aPictureIsScaledSmoothly)
{
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, Qt::black);
    halves.setPixelColor(1, 0, Qt::white);
    writePicture("halves.png", halves);
    auto* const button = make<Button>(
        "<ok><image up='halves.png' down='up.png'/><position width='80' height='40'/></ok>");
    const QImage seen = Pixels::grab(button);
    const int pure = Pixels::count(seen, Qt::black) + Pixels::count(seen, Qt::white);
    EXPECT_EQ(Pixels::inkInside(seen, button->rect()), 3200);
    EXPECT_LT(pure, 3200) << "there are greys between";
}

TEST_F(ZELImageButtonTest, thePictureGoesIntoItsRectangleAndTheTitleIntoItsOwn)
{
    auto* const button =
        make<Button>(ok(styled, "<imagePos x='4' y='5' width='20' height='10'/>"
                                "<textPos x='30' y='0' width='50' height='40' align='right'/>"));
    QImage expected = Pixels::canvas(size);
    QPainter(&expected).fillRect(QRect(4, 5, 20, 10), Qt::green);
    drawText(expected, QStringLiteral("HHHH"), QRect(30, 0, 50, 40), toTheRight, "normal",
             Qt::black);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
}

TEST_F(ZELImageButtonTest, theTitleTakesTheFirstStyleThatFits)
{
    struct Row
    {
        const char* styles;
        bool dim;
        bool pressed;
        const char* seen;
    };
    const Row rows[] = {
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", false, false, "normal"},
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", false, true, "pressed"},
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", true, false, "dimmed shadow"},
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", true, true, "dimmed shadow"},
        {"style='normal' pressstyle='pressed'", true, false, "normal"},
        {"style='normal' pressstyle='pressed'", true, true, "pressed"},
        {"style='normal' dimstyle='dimmed'", false, true, "normal"},
        {"dimstyle='dimmed'", true, false, "dimmed shadow"},
        {"dimstyle='dimmed'", false, false, ""},
        {"pressstyle='pressed'", false, true, "pressed"},
        {"pressstyle='pressed'", false, false, ""},
        {"", false, false, ""},
    };
    for (const Row& row : rows) {
        auto* const button = make<Button>("<ok title='HHHH' " + std::string(row.styles) +
                                          "><position width='80' height='40'/></ok>");
        button->m_bDimMode = row.dim;
        button->m_bPressed = row.pressed;
        EXPECT_EQ(coloursIn(Pixels::grab(button)), row.seen)
            << row.styles << (row.dim ? " dim" : "") << (row.pressed ? " pressed" : "");
    }
    log().expectError("[getImage] No FileName Error", 24, "ZELImageMgr");
}

TEST_F(ZELImageButtonTest, theTitleIsUtf8)
{
    auto* const button = make<Button>(ok("title='a' style='normal'"));
    button->setTitle("\xC3\x84\xC3\x96");
    QImage expected = filled(size, Qt::green);
    drawText(expected, QString(QChar(0xC4)) + QChar(0xD6), QRect(0, 0, 80, 40), centred, "normal",
             Qt::black);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
    EXPECT_EQ(button->getTitle(), "\xC3\x84\xC3\x96");
}

TEST_F(ZELImageButtonTest, anElidedTitleIsTwoPixelsNarrowerThanItsRectangle)
{
    writePicture("clear.png", 8, 8, Qt::transparent);
    const QString text = QStringLiteral("ABCDEFGHIJKLMNOP");
    const QFontMetrics metrics(*style("normal")->m_pFont);
    const QRect rect(3, 0, 60, 40);
    const QString cut = metrics.elidedText(text, Qt::ElideRight, 58, 0);
    EXPECT_NE(cut, text);
    const std::string textPos = "<image up='clear.png' down='clear.png'/>"
                                "<textPos x='3' y='0' width='60' height='40' align='left'/>";
    QImage normal = Pixels::canvas(QSize(200, 40));
    drawText(normal, cut, rect, toTheLeft, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(elidedTitle("ABCDEFGHIJKLMNOP", textPos), normal));

    QImage dim = Pixels::canvas(QSize(200, 40));
    drawText(dim, cut, rect.translated(1, 1), toTheLeft, "dimmed", QColor(200, 200, 200));
    drawText(dim, cut, rect, toTheLeft, "dimmed", QColor(128, 128, 128));
    EXPECT_TRUE(Pixels::same(elidedTitle("ABCDEFGHIJKLMNOP", textPos, true), dim));
}

TEST_F(ZELImageButtonTest, theElisionWidthIsExactlyThatOfTheRectangleLessTwo)
{
    writePicture("clear.png", 8, 8, Qt::transparent);
    const int wide =
        QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(QStringLiteral("ABCD"));
    for (const int width : {wide + 2, wide + 1}) {
        const QImage seen = elidedTitle(
            "ABCD", "<image up='clear.png' down='clear.png'/><textPos x='3' y='0' height='40' "
                    "align='left' width='" +
                        std::to_string(width) + "'/>");
        QImage whole = Pixels::canvas(QSize(200, 40));
        drawText(whole, QStringLiteral("ABCD"), QRect(3, 0, width, 40), toTheLeft, "normal",
                 Qt::black);
        EXPECT_EQ(bool(Pixels::same(seen, whole)), width == wide + 2) << width;
    }
}

TEST_F(ZELImageButtonTest, withoutATextRectangleAnElidedTitleVanishesButForOneLetter)
{
    writePicture("clear.png", 8, 8, Qt::transparent);
    const std::string image = "<image up='clear.png' down='clear.png'/>";
    EXPECT_EQ(Pixels::inkInside(elidedTitle("AB", image), QRect(0, 0, 200, 40)), 0);
    EXPECT_GT(Pixels::inkInside(elidedTitle("A", image), QRect(0, 0, 200, 40)), 0);
}

TEST_F(ZELImageButtonTest, elisionCannotBeSwitchedOff)
{
    auto* const button = make<Button>(ok(styled));
    button->setElidedText(false);
    EXPECT_TRUE(button->m_bElided);
    button->setElidedText(true);
    button->setElidedText(false);
    EXPECT_TRUE(button->m_bElided);
}

TEST_F(ZELImageButtonTest, touchesAndDimModeRepaintAndSettersDoNot)
{
    auto* const button = make<Button>(ok(styled));
    PaintCounter paints(button);
    button->setTitle("other");
    button->setFont(style("pressed"));
    button->setSoundMode(false);
    button->setLongPress(true);
    button->setElidedText(true);
    button->setOrgPos(1, 2);
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 0);
    EXPECT_EQ(button->m_pFont, style("pressed"));
    for (const auto& act : std::vector<std::function<void()>>{
             [&] { button->forcePress(); }, [&] { button->forceRelease(); },
             [&] { button->setDimMode(true); }, [&] { button->setDimMode(false); }}) {
        paints.reset();
        act();
        EventLoop::deliver();
        EXPECT_EQ(paints.count(), 1);
    }
}

// ---- its end

TEST_F(ZELImageButtonTest, takesItsTimerAndItsQueuedTicksWithIt)
{
    auto* const button = make<Button>(pushed("longpress='true'"));
    button->forcePress();
    queueTick(button);
    const QPointer<Timer> timer = button->m_pTimer;
    delete button;
    EXPECT_TRUE(timer.isNull());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, goesWithItsParentWhileItIsHeld)
{
    auto* const parent = new QWidget(&panel());
    auto* const button =
        new Button(parent, "ok", "ZELImageButton", element(pushed("longpress='true'")));
    const QPointer<QWidget> alive(button);
    parent->show();
    button->forcePress();
    delete parent;
    EXPECT_TRUE(alive.isNull());
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonTest, withoutAParentAClickIsTold)
{
    Button button(nullptr, "ok", "ZELImageButton", element(ok()));
    button.forcePress();
    log().expectError("[mouseReleaseEvent] ok has no parent", 1, "ZELImageButton");
    button.forceRelease();
    EventLoop::deliver();
}

// ---- as a base class

TEST_F(ZELImageButtonTest, aDerivedClassCanReadItsLayoutByItself)
{
    class Own : public ZELImageButton
    {
    public:
        explicit Own(QWidget* parent)
            : ZELImageButton(parent, "own", "Own")
        {
        }
        using ZELImageButton::m_pTimer;
    };
    const Own own(&panel());
    EXPECT_EQ(own.m_strID, "own");
    EXPECT_EQ(own.m_strType, "Own");
    EXPECT_NE(own.m_pTimer, nullptr);
    EXPECT_EQ(log().countLevel('E'), 0) << "and no line is written for the layout it has none of";
}
