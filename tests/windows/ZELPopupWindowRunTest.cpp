#include "windows/ZELPopupWindow.h"

#include "components/buttons/ButtonTest.h"
#include "components/buttons/ZELImageButton.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"
#include "support/Pixels.h"
#include "support/Touch.h"
#include "windows/PopupTest.h"

#include <QCoreApplication>
#include <QPointer>

#include <stdexcept>
#include <utility>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;
using Windows::ZELPopupWindow;

namespace {

class ZELPopupWindowRunTest : public PopupTest
{
protected:
    /** Runs a dialog by one of its forms, and ends it from inside. */
    static int run(Dialog& shown, bool waits, void (QDialog::*end)() = &QDialog::accept)
    {
        const auto reached = std::make_shared<bool>(false); // both outlived by one that is refused
        const QPointer<QDialog> dialog(&shown);
        inTheLoop([=] {
            *reached = true;
            if (dialog)
                (dialog->*end)();
        });
        const int result = waits ? shown.showAndWait() : shown.exec();
        EXPECT_TRUE(*reached) << "it did not wait";
        return result;
    }

    /** A button on the panel, green and blue while held, that a finger is on. */
    std::unique_ptr<Opened<ZELImageButton>> heldBeneath()
    {
        writePicture("up.png", 20, 20, Qt::green);
        writePicture("down.png", 20, 20, Qt::blue);
        auto button = std::make_unique<Opened<ZELImageButton>>(
            &panel(), "b", "ZELImageButton",
            element(
                "<b><image up='up.png' down='down.png'/><position width='80' height='40'/></b>"));
        button->showWindow();
        Touch::press(button.get());
        EXPECT_TRUE(button->m_bPressed);
        EXPECT_EQ(Pixels::count(Pixels::grab(button.get()), Qt::blue), 80 * 40);
        return button;
    }
};

} // namespace

// ---- exec

TEST_F(ZELPopupWindowRunTest, execSoundsActivatesShowsAndPostsTheActivation)
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

TEST_F(ZELPopupWindowRunTest, theActivationHasNoSenderAndNoId)
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

TEST_F(ZELPopupWindowRunTest, execSoundsThenActivatesAndOnlyThenPosts)
{
    const auto shown = dialog();
    registerSound(shown->m_steps);
    shown->m_atActivating = [&] {
        QCoreApplication::sendPostedEvents(shown.get()); // what was posted by now would arrive
        shown->note("activated");
    };
    inTheLoop([&] { inTheLoop([&] { shown->reject(); }); }); // behind what is queued already
    shown->exec();
    EXPECT_EQ(*shown->m_steps,
              (Strings{"popup", "activating", "activated", "show", "event 1550", "hide"}));
}

TEST_F(ZELPopupWindowRunTest, itsResultIsTheDerivedClassesAndNotQtsOwn)
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

TEST_F(ZELPopupWindowRunTest, execDropsThePressesOfThePageBeneath)
{
    const auto beneath = heldBeneath();
    const auto shown = dialog("", &panel());
    bool looked = false;
    inTheLoop([&] {
        looked = true;
        EXPECT_FALSE(beneath->m_bPressed);
        EXPECT_EQ(Pixels::count(Pixels::grab(beneath.get()), Qt::green), 80 * 40);
        shown->accept();
    });
    shown->exec();
    EXPECT_TRUE(looked);
    EXPECT_EQ(panel().takeTypes(), std::vector<int>{});
}

TEST_F(ZELPopupWindowRunTest, aDialogThatHasNothingToDoAtFirstRunsTheSame)
{
    writeLayout("ask", "<layout><Components/></layout>");
    expectNoBackgroundLines();
    ZELPopupWindow shown("ask", nullptr);
    inTheLoop([&] {
        shown.m_nPopupResult = 2;
        inTheLoop([&] { shown.accept(); }); // behind what is queued already
    });
    EXPECT_EQ(shown.exec(), 2);
    EXPECT_EQ(popups(), 1);
}

// ---- showAndWait

TEST_F(ZELPopupWindowRunTest, showAndWaitSoundsActivatesShowsAndPostsNothing)
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

TEST_F(ZELPopupWindowRunTest, withoutAResultBothFormsReturnMinusOne)
{
    const auto executed = dialog();
    inTheLoop([&] { executed->accept(); });
    EXPECT_EQ(executed->exec(), -1);
    const auto waited = dialog();
    inTheLoop([&] { waited->accept(); });
    EXPECT_EQ(waited->showAndWait(), -1);
}

TEST_F(ZELPopupWindowRunTest, theSoundCanBeSwitchedOffForBothForms)
{
    for (const bool waits : {false, true}) {
        const auto shown = dialog();
        const int before = popups();
        shown->setSoundPlay(false);
        run(*shown, waits);
        EXPECT_EQ(popups(), before) << waits;
        shown->setSoundPlay(true);
        run(*shown, waits);
        EXPECT_EQ(popups(), before + 1) << waits << " and on again";
    }
}

TEST_F(ZELPopupWindowRunTest, theResultIsTheApplicationsAloneAndStaysForTheNextRun)
{
    for (const bool waits : {false, true}) {
        const auto shown = dialog();
        shown->m_nPopupResult = 9;
        EXPECT_EQ(run(*shown, waits), 9) << waits;
        EXPECT_EQ(shown->m_nPopupResult, 9) << waits;
        EXPECT_EQ(run(*shown, waits, &QDialog::reject), 9) << waits << " a second time";
    }
}

TEST_F(ZELPopupWindowRunTest, pagesBeneathGoOnWhileItWaits)
{
    const auto shown = dialog();
    inTheLoop([&] {
        QCoreApplication::postEvent(&panel(), new ZELEvent(QEvent::Type(2000)));
        inTheLoop([&] { shown->accept(); });
    });
    shown->showAndWait();
    EXPECT_EQ(panel().takeTypes(), std::vector<int>{2000});
}

TEST_F(ZELPopupWindowRunTest, acceptBeforeTheWaitIsQtsAndTheWaitStillWaits)
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

TEST_F(ZELPopupWindowRunTest, acceptAfterTheWaitDoesNothing)
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

TEST_F(ZELPopupWindowRunTest, canWaitAgain)
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

TEST_F(ZELPopupWindowRunTest, execAfterTheWaitWouldNeverEndAndIsRefused)
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

TEST_F(ZELPopupWindowRunTest, aWaitInsideExecIsRefusedSoThatAcceptStillEndsIt)
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

TEST_F(ZELPopupWindowRunTest, execInsideExecIsRefusedSoThatOneAcceptEndsIt)
{
    const auto shown = dialog();
    log().expectError("[exec] ask runs already", 2, "ZELPopupWindow");
    const auto nested = [&](int result) {
        shown->m_nPopupResult = result;
        EXPECT_EQ(shown->exec(), result);
    };
    bool activated = false;
    shown->m_atActivating = [&] {
        if (!std::exchange(activated, true))
            nested(2);
    };
    bool visible = false;
    inTheLoop([&] {
        nested(3);
        visible = shown->isVisible();
        inTheLoop([&] { shown->accept(); }); // behind what is queued already
    });
    EXPECT_EQ(shown->exec(), 3);
    EXPECT_TRUE(visible) << "the refused one ended nothing";
    EXPECT_EQ(*shown->m_steps, (Strings{"activating", "show", "event 1550", "hide"}));
    EXPECT_EQ(popups(), 1);
    shown->m_atActivating = nullptr;
    EXPECT_EQ(run(*shown, false), 3) << "and the next one runs";
    EXPECT_EQ(popups(), 2);
}

TEST_F(ZELPopupWindowRunTest, anExceptionOutOfActivatingLeavesItUsable)
{
    for (const bool waits : {false, true}) {
        const auto shown = dialog();
        shown->m_nPopupResult = 8;
        shown->m_atActivating = [] { throw std::runtime_error("no"); };
        EXPECT_THROW(shown->exec(), std::runtime_error);
        EXPECT_FALSE(shown->isVisible());
        shown->m_atActivating = nullptr;
        EXPECT_EQ(run(*shown, waits), 8) << waits;
        EXPECT_EQ(shown->m_bLoopMode, waits);
    }
}

TEST_F(ZELPopupWindowRunTest, afterExecItCanStillWait)
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

TEST_F(ZELPopupWindowRunTest, deletedByItsOwnActivatingItLetsTheCallerGo)
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

TEST_F(ZELPopupWindowRunTest, deletedInsteadOfBeingShownItLetsTheCallerGo)
{
    class Short : public ZELPopupWindow
    {
    public:
        using ZELPopupWindow::ZELPopupWindow;
        void setVisible(bool) override { delete this; }
    };
    writeLayout("ask", "<layout><Components/></layout>");
    expectNoBackgroundLines();
    auto* const shown = new Short("ask", nullptr);
    shown->m_nPopupResult = 5;
    EXPECT_EQ(shown->showAndWait(), -1);
}

TEST_F(ZELPopupWindowRunTest, deletedWhileItWaitsItLetsTheCallerGo)
{
    auto* const shown = dialog().release();
    inTheLoop([=] { delete shown; });
    EXPECT_EQ(shown->showAndWait(), -1);
}

TEST_F(ZELPopupWindowRunTest, deletedWhileItIsExecutedItLetsTheCallerGo)
{
    auto* const shown = dialog().release();
    inTheLoop([=] { delete shown; });
    EXPECT_EQ(shown->exec(), -1);
}

TEST_F(ZELPopupWindowRunTest, aButtonInsideReachesTheDialogAndEndsIt)
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

TEST_F(ZELPopupWindowRunTest, showAndWaitSoundsThenActivatesInLoopModeAndThenShows)
{
    const auto shown = dialog();
    registerSound(shown->m_steps);
    shown->m_atActivating = [&] {
        EXPECT_TRUE(shown->m_bLoopMode);
        EXPECT_FALSE(shown->isVisible());
        EXPECT_FALSE(shown->m_eventLoop->isRunning());
    };
    inTheLoop([&] { shown->accept(); });
    shown->showAndWait();
    EXPECT_EQ(*shown->m_steps, (Strings{"popup", "activating", "show"}));
}

TEST_F(ZELPopupWindowRunTest, acceptWhileItActivatesEndsNoLoopYet)
{
    const auto shown = dialog();
    shown->m_atActivating = [&] { shown->accept(); };
    bool reached = false;
    inTheLoop([&] {
        reached = true;
        shown->accept();
    });
    shown->showAndWait();
    EXPECT_TRUE(reached) << "it still waited";
    EXPECT_EQ(shown->result(), 0) << "the first one was not Qt's either";
    EXPECT_TRUE(shown->isVisible());
}

TEST_F(ZELPopupWindowRunTest, theLoopCanBeRunAndLeftByItself)
{
    const auto shown = dialog();
    shown->eventLoopExit(); // of a loop that is not running: nothing
    for (int i = 0; i < 2; ++i) {
        bool running = false;
        inTheLoop([&] {
            running = shown->m_eventLoop->isRunning();
            shown->eventLoopExit();
        });
        shown->eventLoopExec();
        EXPECT_TRUE(running);
        EXPECT_FALSE(shown->m_eventLoop->isRunning());
    }
    EXPECT_EQ(*shown->m_steps, Strings{});
    EXPECT_FALSE(shown->isVisible());
    EXPECT_FALSE(shown->m_bLoopMode);
}

TEST_F(ZELPopupWindowRunTest, showAndWaitKeepsThePressesOfThePageBeneath)
{
    const auto beneath = heldBeneath();
    const auto shown = dialog("", &panel());
    inTheLoop([&] { shown->accept(); });
    shown->showAndWait();
    EXPECT_TRUE(beneath->m_bPressed);
    EXPECT_EQ(Pixels::count(Pixels::grab(beneath.get()), Qt::blue), 80 * 40);
}
