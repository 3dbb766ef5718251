#include "windows/ZELPopupWindow.h"

#include "common/tamfx/Exception.h"
#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"
#include "resource/SoundFactory.h"
#include "support/EventLoop.h"
#include "support/LibraryFaults.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/SoundProbe.h"
#include "support/Touch.h"

#include <QCoreApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageButton;
using Windows::ZELPopupWindow;

namespace {

using Strings = std::vector<std::string>;

// An application's dialog that notes what happens to it.
class Dialog : public ZELPopupWindow
{
public:
    using ZELPopupWindow::m_bLoopMode;
    using ZELPopupWindow::m_eventLoop;
    using ZELPopupWindow::m_layout;
    using ZELPopupWindow::m_logger;
    using ZELPopupWindow::m_strPopupTag;
    using ZELPopupWindow::ZELPopupWindow;

    void activating() override { note("activating"); }
    void createSubComponent(TAMFx::Common::Xml::Node* pComponents) override
    {
        note("createSubComponent");
        ZELPopupWindow::createSubComponent(pComponents);
    }

    void note(const std::string& step) { m_steps->push_back(step); }

    std::shared_ptr<Strings> m_steps = std::make_shared<Strings>();

protected:
    bool event(QEvent* event) override
    {
        if (event->type() >= 1550)
            note("event " + std::to_string(event->type()));
        return ZELPopupWindow::event(event);
    }
    void showEvent(QShowEvent* event) override
    {
        note("show");
        ZELPopupWindow::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override
    {
        note("hide");
        ZELPopupWindow::hideEvent(event);
    }
};

class ZELPopupWindowTest : public PanelTest
{
protected:
    ZELPopupWindowTest()
    {
        Resource::SoundFactory::getInstance()->registerSound(new SoundProbe(m_sounds));
    }

    /** A dialog without a background, with this in its Components section. */
    std::unique_ptr<Dialog> dialog(const std::string& components = "", QWidget* parent = nullptr)
    {
        writeLayout("ask", "<layout><Components>" + components + "</Components></layout>");
        expectNoBackgroundLines();
        return std::make_unique<Dialog>("ask", parent);
    }

    static std::string button(const std::string& id)
    {
        return "<button><" + id +
               "><image up='up.png' down='up.png'/>"
               "<position x='100' y='50' width='80' height='40'/></" +
               id + "></button>";
    }

    /** Does this once, from inside the next event loop. */
    static void inTheLoop(std::function<void()> action)
    {
        QTimer::singleShot(0, std::move(action));
    }

    int popups() const
    {
        return static_cast<int>(std::count(m_sounds->begin(), m_sounds->end(), "popup"));
    }

    std::shared_ptr<SoundProbe::Sounds> m_sounds = std::make_shared<SoundProbe::Sounds>();
};

} // namespace

// ---- building

TEST_F(ZELPopupWindowTest, isAWindowOfTheLibraryFirstAndADialogSecond)
{
    const auto shown = dialog();
    EXPECT_EQ(static_cast<void*>(static_cast<Windows::ZELWindow*>(shown.get())),
              static_cast<void*>(shown.get()));
    EXPECT_NE(static_cast<void*>(static_cast<QDialog*>(shown.get())),
              static_cast<void*>(shown.get()));
    EXPECT_EQ(shown->m_strID, "ask");
    EXPECT_EQ(shown->m_logger.m_strIdentity, "QTPANFx ZELPopupWindow ");
}

TEST_F(ZELPopupWindowTest, startsWithItsDefaults)
{
    const auto shown = dialog();
    EXPECT_EQ(shown->m_nPopupResult, -1);
    EXPECT_TRUE(shown->m_bSoundPlay);
    EXPECT_FALSE(shown->m_bLoopMode);
    EXPECT_FALSE(shown->m_eventLoop->isRunning());
    EXPECT_EQ(shown->m_eventLoop->parent(), nullptr);
    EXPECT_EQ(shown->getPopupTag(), "");
    EXPECT_TRUE(shown->m_dqSubComponents.empty());
    EXPECT_EQ(*shown->m_steps, Strings{}) << "the constructor calls nothing of a derived class";
}

TEST_F(ZELPopupWindowTest, fillsThePanelWithoutAFrame)
{
    const auto shown = dialog("", &panel());
    EXPECT_EQ(shown->parent(), &panel());
    EXPECT_TRUE(shown->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(shown->isWindow());
    EXPECT_EQ(shown->geometry(), QRect(0, 0, 800, 480));
    EXPECT_TRUE(shown->testAttribute(Qt::WA_NoSystemBackground));
    EXPECT_EQ(shown->palette().color(QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(shown->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_FALSE(shown->isVisible());
    EXPECT_FALSE(shown->isModal());
}

TEST_F(ZELPopupWindowTest, paintsNoBackgroundOfItsOwn)
{
    const auto shown = dialog();
    shown->show();
    EventLoop::deliver();
    EXPECT_EQ(shown->geometry(), QRect(0, 0, 800, 480)) << "it is not moved when shown";
    EXPECT_EQ(shown->grab().toImage().pixelColor(400, 240).alpha(), 0);
}

TEST_F(ZELPopupWindowTest, buildsItsComponentsAndShowsThemWithIt)
{
    writePicture("up.png", 20, 20, Qt::green);
    const auto shown = dialog(button("yes"));
    ZELComponent* const yes = shown->getSubComponent("yes");
    ASSERT_NE(yes, nullptr);
    EXPECT_EQ(yes->m_strType, "ZELImageButton");
    EXPECT_EQ(yes->getQWidget()->parentWidget(), shown.get());
    EXPECT_FALSE(yes->getQWidget()->isVisible());
    shown->show();
    EXPECT_TRUE(yes->getQWidget()->isVisible());
}

TEST_F(ZELPopupWindowTest, showsItsBackgroundBehindItsComponents)
{
    writePicture("bg.png", 800, 480, Qt::blue);
    writePicture("up.png", 20, 20, Qt::green);
    writeLayout("ask", "<layout><Base><background>bg.png</background></Base><Components>" +
                           button("yes") + "</Components></layout>");
    expectBackgroundLines();
    Dialog shown("ask", nullptr);
    ASSERT_EQ(shown.m_dqSubComponents.size(), 2u);
    EXPECT_EQ(shown.m_dqSubComponents.front()->m_strID, "background");
    shown.show();
    const QImage seen = Pixels::grab(&shown);
    EXPECT_EQ(Pixels::count(seen, Qt::green), 80 * 40);
    EXPECT_EQ(Pixels::count(seen, Qt::blue), 800 * 480 - 80 * 40);
}

TEST_F(ZELPopupWindowTest, aBackgroundThatIsNotThereIsTold)
{
    writeLayout("ask",
                "<layout><Base><background>no.png</background></Base><Components/></layout>");
    log().expectError("[createBackgroundSubComponent] cannot load image: no.png", 1,
                      "ZELPopupWindow");
    const Dialog shown("ask", nullptr);
    EXPECT_TRUE(shown.m_dqSubComponents.empty());
}

TEST_F(ZELPopupWindowTest, takesItsLayoutFromTheLanguage)
{
    writeConfig("kr", resources);
    writeStyle("<style><Font/></style>", "kr");
    writeLayout("ask", "<layout><Components><button><kr/></button></Components></layout>", "kr");
    expectNoBackgroundLines(3); // and a button without two pictures
    Dialog shown("ask", nullptr);
    EXPECT_NE(shown.getSubComponent("kr"), nullptr);
}

TEST_F(ZELPopupWindowTest, aMissingLayoutGivesAnEmptyDialogThatStillRuns)
{
    const std::string path = resources + "/layout/nosuch.resource";
    log().expectError("[loadLayout] Cannot load layout file(xml) - " + path, 1, "ZELLayout");
    log().expectError("[ZELPopupWindow] Layout load failed: " + path, 1, "ZELPopupWindow");
    Dialog shown("nosuch", nullptr);
    EXPECT_EQ(log().countLevel('E'), 2) << "and no line of a part that is missing then";
    EXPECT_TRUE(shown.m_dqSubComponents.empty());
    inTheLoop([&] { shown.accept(); });
    EXPECT_EQ(shown.exec(), -1);
}

TEST_F(ZELPopupWindowTest, tellsWhatItCannotBuild)
{
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)", 1,
                      "ZELPopupWindow");
    const auto shown = dialog("<nosuch><x/></nosuch>");
    EXPECT_TRUE(shown->m_dqSubComponents.empty());
}

TEST_F(ZELPopupWindowTest, tellsThatTheSectionIsMissing)
{
    writeLayout("ask", "<layout/>");
    expectNoBackgroundLines();
    log().expectError("[createSubComponent] There is not <Components> tag in the ask.resource file",
                      1, "ZELPopupWindow");
    const Dialog shown("ask", nullptr);
}

TEST_F(ZELPopupWindowTest, tellsWhichComponentIsMissing)
{
    const auto shown = dialog();
    log().expectError("[getSubComponent] Fail to get component (no)", 1, "ZELPopupWindow");
    EXPECT_EQ(shown->getSubComponent("no"), nullptr);
}

TEST_F(ZELPopupWindowTest, faultsOfTheFoundationPassToTheCaller)
{
    writeLayout("ask", "<layout><Components/></layout>");
    static TAMFx::Common::Exception fault("broken");
    LibraryFaults faults;
    faults.onLoad = [](const std::string& path) {
        if (path.find("ask.resource") != std::string::npos)
            throw &fault;
    };
    EXPECT_THROW(Dialog("ask", nullptr), TAMFx::Common::Exception*);
    faults.onLoad = nullptr;
    faults.onCreate = [](const std::string&, const std::string&) { throw std::out_of_range("x"); };
    writeLayout("ask", "<layout><Components><button><b/></button></Components></layout>");
    expectNoBackgroundLines();
    EXPECT_THROW(Dialog("ask", nullptr), std::out_of_range);
}

TEST_F(ZELPopupWindowTest, aBrokenLayoutIsToldAndGivesAnEmptyDialog)
{
    writeLayout("ask", "<layout><Components>");
    const auto isNotOurs = [](const LogLine& line) { return line.className() != "ZELPopupWindow"; };
    log().expectError("[ZELPopupWindow] Layout load failed: " + resources + "/layout/ask.resource");
    const Dialog shown("ask", nullptr);
    EXPECT_TRUE(shown.m_dqSubComponents.empty());
    // the reader of layouts has its own line, in its own words
    for (const LogLine& line : log().lines()) {
        if (isNotOurs(line) && line.text.rfind("[E] ", 0) == 0)
            log().expectError(line.text.substr(4));
    }
}

TEST_F(ZELPopupWindowTest, keepsATagForTheApplication)
{
    const auto shown = dialog();
    shown->setPopupTag("which");
    EXPECT_EQ(shown->getPopupTag(), "which");
    EXPECT_EQ(shown->m_strPopupTag, "which");
}

// ---- exec

TEST_F(ZELPopupWindowTest, execSoundsActivatesShowsAndPostsTheActivation)
{
    const auto shown = dialog();
    bool modal = false;
    inTheLoop([&] {
        modal = shown->isModal();
        shown->m_nPopupResult = 7;
        inTheLoop([&] { shown->accept(); }); // behind what is queued already
    });
    EXPECT_EQ(shown->exec(), 7);
    EXPECT_TRUE(modal);
    EXPECT_EQ(*shown->m_steps, (Strings{"activating", "show", "event 1550", "hide"}));
    EXPECT_EQ(popups(), 1);
    EXPECT_FALSE(shown->isVisible());
    EXPECT_FALSE(shown->m_bLoopMode);
}

TEST_F(ZELPopupWindowTest, theActivationHasNoSenderAndNoId)
{
    const auto shown = dialog();
    EventRecorder recorder;
    recorder.listenAt(shown.get());
    inTheLoop([&] { shown->accept(); });
    shown->exec();
    const RecordedEvent activation = recorder.takeOne();
    EXPECT_EQ(activation.type, EVENT_WINDOW_ACTIVATE);
    EXPECT_EQ(activation.classType, "ZELEvent");
    EXPECT_EQ(activation.sender, nullptr);
    EXPECT_EQ(activation.id, "");
}

TEST_F(ZELPopupWindowTest, theSoundComesBeforeTheActivation)
{
    const auto shown = dialog();
    class Backend : public SoundProbe
    {
    public:
        explicit Backend(std::shared_ptr<Strings> steps)
            : SoundProbe(std::move(steps))
        {
        }
    };
    delete Resource::SoundFactory::getInstance()->getSoundObject();
    Resource::SoundFactory::getInstance()->registerSound(new Backend(shown->m_steps));
    inTheLoop([&] { shown->reject(); });
    shown->exec();
    ASSERT_GE(shown->m_steps->size(), 2u);
    EXPECT_EQ((*shown->m_steps)[0], "popup");
    EXPECT_EQ((*shown->m_steps)[1], "activating");
}

TEST_F(ZELPopupWindowTest, itsResultIsTheDerivedClassesAndNotQtsOwn)
{
    const auto shown = dialog();
    inTheLoop([&] { shown->accept(); });
    EXPECT_EQ(shown->exec(), -1);
    EXPECT_EQ(shown->result(), int(QDialog::Accepted));
    inTheLoop([&] { shown->reject(); });
    EXPECT_EQ(shown->exec(), -1);
    EXPECT_EQ(shown->result(), int(QDialog::Rejected));
    inTheLoop([&] { shown->accept(); });
    QDialog* const plain = shown.get();
    EXPECT_EQ(plain->exec(), -1) << "also through its base";
}

TEST_F(ZELPopupWindowTest, execDropsThePressesOfThePageBeneath)
{
    writePicture("up.png", 20, 20, Qt::green);
    auto* const beneath =
        buildComponent<ZELImageButton>("button", "<b><image up='up.png' down='up.png'/>"
                                                 "<position width='80' height='40'/></b>");
    int blocked = 0;
    class Filter : public QObject
    {
    public:
        explicit Filter(int& blocked)
            : m_blocked(blocked)
        {
        }
        bool eventFilter(QObject*, QEvent* event) override
        {
            m_blocked += event->type() == QEvent::WindowBlocked ? 1 : 0;
            return false;
        }

    private:
        int& m_blocked;
    } filter(blocked);
    beneath->installEventFilter(&filter);
    const auto shown = dialog("", &panel());
    Touch::press(beneath);
    inTheLoop([&] { shown->accept(); });
    shown->exec();
    EXPECT_EQ(blocked, 1);
    EXPECT_EQ(panel().takeTypes(), std::vector<int>{});
}

// ---- showAndWait

TEST_F(ZELPopupWindowTest, showAndWaitSoundsActivatesShowsAndPostsNothing)
{
    const auto shown = dialog();
    bool modal = true;
    bool running = false;
    inTheLoop([&] {
        modal = shown->isModal();
        running = shown->m_eventLoop->isRunning();
        shown->m_nPopupResult = 3;
        shown->reject();
    });
    EXPECT_EQ(shown->showAndWait(), 3);
    EXPECT_FALSE(modal);
    EXPECT_TRUE(running);
    EXPECT_EQ(*shown->m_steps, (Strings{"activating", "show"}));
    EXPECT_TRUE(shown->isVisible()) << "hiding it falls to the caller";
    EXPECT_TRUE(shown->m_bLoopMode);
    EXPECT_EQ(popups(), 1);
}

TEST_F(ZELPopupWindowTest, withoutAResultBothFormsReturnMinusOne)
{
    const auto executed = dialog();
    inTheLoop([&] { executed->accept(); });
    EXPECT_EQ(executed->exec(), -1);
    const auto waited = dialog();
    inTheLoop([&] { waited->accept(); });
    EXPECT_EQ(waited->showAndWait(), -1);
}

TEST_F(ZELPopupWindowTest, theSoundCanBeSwitchedOffForBothForms)
{
    for (const bool waits : {false, true}) {
        const auto shown = dialog();
        shown->setSoundPlay(false);
        inTheLoop([&] { shown->accept(); });
        waits ? shown->showAndWait() : shown->exec();
    }
    EXPECT_EQ(popups(), 0);
}

TEST_F(ZELPopupWindowTest, pagesBeneathGoOnWhileItWaits)
{
    const auto shown = dialog();
    inTheLoop([&] {
        QCoreApplication::postEvent(&panel(), new ZELEvent(QEvent::Type(2000)));
        inTheLoop([&] { shown->accept(); });
    });
    shown->showAndWait();
    EXPECT_EQ(panel().takeTypes(), std::vector<int>{2000});
}

TEST_F(ZELPopupWindowTest, acceptBeforeTheWaitIsQtsAndTheWaitStillWaits)
{
    const auto shown = dialog();
    shown->accept();
    EXPECT_EQ(shown->result(), int(QDialog::Accepted));
    bool reached = false;
    inTheLoop([&] {
        reached = true;
        shown->accept();
    });
    shown->showAndWait();
    EXPECT_TRUE(reached);
}

TEST_F(ZELPopupWindowTest, acceptAfterTheWaitDoesNothing)
{
    const auto shown = dialog();
    inTheLoop([&] {
        shown->accept();
        shown->accept();
    });
    shown->showAndWait();
    shown->accept();
    shown->reject();
    shown->eventLoopExit();
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(shown->result(), 0);
}

TEST_F(ZELPopupWindowTest, canWaitAgain)
{
    const auto shown = dialog();
    for (const int result : {1, 2}) {
        inTheLoop([&, result] {
            shown->m_nPopupResult = result;
            shown->accept();
        });
        EXPECT_EQ(shown->showAndWait(), result);
    }
    EXPECT_EQ(popups(), 2);
}

TEST_F(ZELPopupWindowTest, execAfterTheWaitWouldNeverEndAndIsRefused)
{
    const auto shown = dialog();
    inTheLoop([&] {
        shown->m_nPopupResult = 5;
        shown->accept();
    });
    shown->showAndWait();
    shown->m_steps->clear();
    log().expectError("[exec] ask has run by showAndWait", 1, "ZELPopupWindow");
    EXPECT_EQ(shown->exec(), 5);
    EXPECT_EQ(*shown->m_steps, Strings{});
    EXPECT_EQ(popups(), 1);
}

TEST_F(ZELPopupWindowTest, aWaitInsideExecIsRefusedSoThatAcceptStillEndsIt)
{
    const auto shown = dialog();
    log().expectError("[showAndWait] ask runs by exec", 1, "ZELPopupWindow");
    inTheLoop([&] {
        shown->m_nPopupResult = 4;
        EXPECT_EQ(shown->showAndWait(), 4);
        shown->accept();
    });
    EXPECT_EQ(shown->exec(), 4);
    EXPECT_EQ(shown->result(), int(QDialog::Accepted));
    EXPECT_EQ(popups(), 1);
}

TEST_F(ZELPopupWindowTest, afterExecItCanStillWait)
{
    const auto shown = dialog();
    inTheLoop([&] { shown->accept(); });
    shown->exec();
    inTheLoop([&] {
        shown->m_nPopupResult = 6;
        shown->accept();
    });
    EXPECT_EQ(shown->showAndWait(), 6);
}

TEST_F(ZELPopupWindowTest, deletedByItsOwnActivatingItLetsTheCallerGo)
{
    class Gone : public ZELPopupWindow
    {
    public:
        using ZELPopupWindow::ZELPopupWindow;
        void activating() override { delete this; }
    };
    writeLayout("ask", "<layout><Components/></layout>");
    expectNoBackgroundLines(2);
    EXPECT_EQ((new Gone("ask", nullptr))->exec(), -1);
    EXPECT_EQ((new Gone("ask", nullptr))->showAndWait(), -1);
}

TEST_F(ZELPopupWindowTest, deletedWhileItWaitsItLetsTheCallerGo)
{
    auto* const shown = dialog().release();
    inTheLoop([=] { delete shown; });
    EXPECT_EQ(shown->showAndWait(), -1);
}

TEST_F(ZELPopupWindowTest, deletedWhileItIsExecutedItLetsTheCallerGo)
{
    auto* const shown = dialog().release();
    inTheLoop([=] { delete shown; });
    EXPECT_EQ(shown->exec(), -1);
}

TEST_F(ZELPopupWindowTest, aButtonInsideReachesTheDialogAndEndsIt)
{
    writePicture("up.png", 20, 20, Qt::green);
    class Question : public Dialog
    {
    public:
        using Dialog::Dialog;

    protected:
        bool event(QEvent* event) override
        {
            if (event->type() == EVENT_MOUSE_UP) {
                m_nPopupResult = static_cast<ZELEvent*>(event)->m_strID == "yes" ? 1 : 0;
                accept();
            }
            return Dialog::event(event);
        }
    };
    writeLayout("ask", "<layout><Components>" + button("yes") + "</Components></layout>");
    for (const bool waits : {false, true}) {
        expectNoBackgroundLines();
        Question question("ask", nullptr);
        inTheLoop([&] { Touch::tap(question.getSubComponent("yes")->getQWidget()); });
        EXPECT_EQ(waits ? question.showAndWait() : question.exec(), 1);
    }
}
