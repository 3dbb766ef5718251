#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

#include <QDialog>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

class ZELImageButtonPressTest : public ButtonTest
{
};

} // namespace

// ---- touch

TEST_F(ZELImageButtonPressTest, aPressShowsSoundsAndTellsTheLog)
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

TEST_F(ZELImageButtonPressTest, thePressTellsTheLogThatTheLongPressIsOn)
{
    auto* const button = make<Button>(ok("longpress='true'"));
    Touch::press(button);
    EXPECT_EQ(log().count("[D] [mousePressEvent] id : ok (1)==> mousePressEvent!!!!"), 1);
}

TEST_F(ZELImageButtonPressTest, aReleaseIsTheClick)
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

TEST_F(ZELImageButtonPressTest, theClickIsPostedAndNeverCalled)
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

TEST_F(ZELImageButtonPressTest, aReleaseWithoutAPressClicksToo)
{
    auto* const button = make<Button>(ok());
    Touch::release(button);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELImageButtonPressTest, aFingerThatSlidesOffStillClicks)
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

TEST_F(ZELImageButtonPressTest, theSecondOfTwoQuickTouchesIsAPressToo)
{
    auto* const button = make<Button>(ok());
    Touch::tap(button);
    Touch::doubleClick(button);
    EXPECT_TRUE(button->m_bPressed);
    Touch::release(button);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_MOUSE_UP, EVENT_MOUSE_UP}));
    EXPECT_EQ(touches(), 2);
}

TEST_F(ZELImageButtonPressTest, theSoundCanBeSwitchedOff)
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

TEST_F(ZELImageButtonPressTest, withoutADownPictureNoneIsShownWhileHeld)
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

TEST_F(ZELImageButtonPressTest, aDownPictureThatIsNotThereIsNone)
{
    auto* const button = make<Button>(
        "<ok><image up='up.png' down='nosuch.png'/><position width='80' height='40'/></ok>");
    EXPECT_EQ(button->m_pDownImage, nullptr);
    Touch::press(button);
    EXPECT_EQ(button->m_pCurImage, nullptr);
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(button), button->rect()), 0);
}

TEST_F(ZELImageButtonPressTest, aPressLoadsADownPictureThatIsNotYetLoaded)
{
    auto* const button = make<Button>(ok());
    button->m_pDownImage = nullptr;
    Touch::press(button);
    EXPECT_EQ(button->m_pDownImage, picture("down.png"));
    EXPECT_EQ(button->m_pCurImage, picture("down.png"));
}

// ---- a press that is dropped

TEST_F(ZELImageButtonPressTest, hidingDropsThePress)
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

TEST_F(ZELImageButtonPressTest, hidingTheParentDropsThePressToo)
{
    auto* const button = make<Button>(ok());
    Touch::pressWindow(button, Touch::middleInWindow(button));
    EXPECT_TRUE(button->m_bPressed);
    panel().hide();
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonPressTest, aBlockedWindowDropsThePress)
{
    auto* const button = make<Button>(ok());
    Touch::press(button);
    QEvent blocked(QEvent::WindowBlocked);
    QCoreApplication::sendEvent(button, &blocked);
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageButtonPressTest, hiddenOrBlockedInDimModeItShowsTheDimPicture)
{
    auto* const button = make<Button>(ok());
    for (const QEvent::Type type : {QEvent::Hide, QEvent::WindowBlocked}) {
        button->setDimMode(false);
        Touch::press(button);
        button->setDimMode(true);
        const auto shownAfterwards = [&](const std::string& dimPicture) {
            button->m_strDimImage = dimPicture;
            button->m_pCurImage = button->m_pDownImage;
            QEvent event(type);
            QCoreApplication::sendEvent(button, &event);
            return button->m_pCurImage;
        };
        EXPECT_EQ(shownAfterwards("dim.png"), picture("dim.png")) << type;
        EXPECT_EQ(shownAfterwards("nosuch.png"), nullptr) << type << " as it is";
        EXPECT_EQ(shownAfterwards(""), button->m_pUpImage) << type << " where none is named";
        EXPECT_FALSE(button->m_bPressed) << type;
    }
}

TEST_F(ZELImageButtonPressTest, disabledWhileHeldTheReleaseGoesToThePage)
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

TEST_F(ZELImageButtonPressTest, hidingAndBlockingRepaint)
{
    auto* const button = make<Button>(ok());
    for (const QEvent::Type type : {QEvent::Hide, QEvent::WindowBlocked}) {
        Touch::press(button);
        const PaintCounter paints(button);
        QEvent event(type); // still on the panel, so that the wish to repaint is fulfilled
        QCoreApplication::sendEvent(button, &event);
        EventLoop::deliver();
        EXPECT_EQ(paints.count(), 1) << type;
        EXPECT_FALSE(button->m_bPressed) << type;
    }
}

TEST_F(ZELImageButtonPressTest, aModalWindowDropsThePressAndAnotherOneDoesNot)
{
    auto* const button = make<Button>(ok());
    QDialog other(&panel());
    Touch::press(button);
    other.show();
    EventLoop::deliver();
    EXPECT_TRUE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pDownImage);
    other.hide();
    other.setModal(true);
    other.show();
    EventLoop::deliver();
    EXPECT_FALSE(button->m_bPressed);
    EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

// ---- what comes after what

TEST_F(ZELImageButtonPressTest, aPressShowsThenSoundsThenMovesThenTellsTheLog)
{
    auto* const button = make<Button>(pushed("longpress='true'"));
    std::vector<std::string> steps;
    const auto nothingLater = [&] {
        EXPECT_TRUE(button->m_bPressed);
        EXPECT_EQ(button->m_pCurImage, button->m_pDownImage);
        EXPECT_FALSE(button->m_pTimer->isActive());
        EXPECT_EQ(log().texts("ZELImageButton"), std::vector<std::string>{});
    };
    const QObject here;
    QObject::connect(&button->m_animation, &QAbstractAnimation::stateChanged, &here, [&] {
        steps.push_back("move");
        nothingLater();
    });
    atTouchSound([&] {
        steps.push_back("sound");
        nothingLater();
    });
    log().startHere();
    button->forcePress();
    EXPECT_EQ(steps, (std::vector<std::string>{"sound", "move"}));
    EXPECT_EQ(log().texts("ZELImageButton").size(), 1u);
    EXPECT_TRUE(button->m_pTimer->isActive());
}

TEST_F(ZELImageButtonPressTest, aReleaseIsOverBeforeItMoves)
{
    auto* const button = make<Button>(pushed("longpress='true'"));
    button->forcePress();
    button->m_animation.stop();
    button->m_bLongPressed = true;
    int moves = 0;
    const QObject here;
    QObject::connect(&button->m_animation, &QAbstractAnimation::stateChanged, &here, [&] {
        ++moves;
        EXPECT_FALSE(button->m_pTimer->isActive());
        EXPECT_EQ(button->m_pCurImage, button->m_pUpImage);
        EXPECT_FALSE(button->m_bPressed);
        EXPECT_TRUE(button->m_bLongPressed) << "this one is cleared after it";
    });
    button->forceRelease();
    EXPECT_EQ(moves, 1);
    EXPECT_FALSE(button->m_bLongPressed);
}
