#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "events/EventNumbers.h"
#include "events/ZELErrorEvent.h"
#include "integration/ApplicationPage.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QCoreApplication>
#include <QPointer>

#include <thread>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

constexpr QEvent::Type applicationsOwn = QEvent::Type(2000);

// Whole pages on a frame, touched where a finger would touch the panel.
class PageTouchTest : public PanelTest
{
protected:
    PageTouchTest()
    {
        writePicture("bg.png", 800, 480, Qt::blue);
        writePicture("up.png", 100, 50, Qt::green);
        writePicture("down.png", 100, 50, Qt::red);
        writePicture("dim.png", 100, 50, Qt::gray);
        writePicture("dot.png", 20, 20, Qt::yellow);
    }

    static std::string button(const std::string& id, int x, int y)
    {
        return "<button><" + id +
               "><image up='up.png' down='down.png' dim='dim.png'/><position x='" +
               std::to_string(x) + "' y='" + std::to_string(y) + "' width='100' height='50'/></" +
               id + "></button>";
    }

    void writePage(const std::string& id, const std::string& components,
                   const std::string& background = "")
    {
        const std::string base =
            background.empty() ? "" : "<Base><background>" + background + "</background></Base>";
        writeLayout(id, "<layout>" + base + "<Components>" + components + "</Components></layout>");
    }

    /** A page on screen, with the frame's recorder at it. */
    ZELChildWindow* show(const std::string& id)
    {
        frame().addPage(id);
        ZELChildWindow* const page = frame().moveTo(id, true, false);
        EventLoop::deliver();
        return page;
    }

    /** A page that acts; the handler gets each event of its components. */
    void addPage(const std::string& id, ApplicationPage::Handler handler)
    {
        frame().addPage(id, [this, handler = std::move(handler)](const std::string& asked) {
            expectNoBackgroundLines();
            return new ApplicationPage(asked, &frame(), handler);
        });
    }

    void tap(int x, int y) { Touch::tapWindow(&frame(), QPoint(x, y)); }

    EventRecorder& recorder() { return frame().recorder(); }
};

TEST_F(PageTouchTest, aTouchReachesThePageAsOnePostedEvent)
{
    writePage("home", button("ok", 10, 20) + button("cancel", 200, 20));
    expectNoBackgroundLines();
    ZELChildWindow* const home = show("home");
    tap(250, 40);
    int seen = 0;
    for (const RecordedEvent& event : recorder().take()) {
        EXPECT_EQ(event.type, EVENT_MOUSE_UP);
        EXPECT_EQ(event.id, "cancel");
        EXPECT_EQ(event.classType, "ZELEvent");
        EXPECT_EQ(event.sender, home->getSubComponent("cancel")->getQWidget());
        EXPECT_EQ(event.receiver, home);
        ++seen;
    }
    EXPECT_EQ(seen, 1);
    tap(10, 20);
    EXPECT_EQ(recorder().takeOne().id, "ok");
    tap(109, 69);
    EXPECT_EQ(recorder().takeOne().id, "ok");
    tap(110, 70);
    EXPECT_EQ(recorder().takeTypes(), std::vector<int>());
}

TEST_F(PageTouchTest, theEventIsQueuedAndNeverACall)
{
    writePage("home", button("ok", 10, 20));
    int handled = 0;
    addPage("home", [&handled](ZELEvent&) { ++handled; });
    frame().moveTo("home", true, false);
    EventLoop::deliver();
    ZELChildWindow* const home = frame().getCurrentWindow();
    Touch::press(home->getSubComponent("ok")->getQWidget());
    Touch::release(home->getSubComponent("ok")->getQWidget());
    EXPECT_EQ(handled, 0);
    EventLoop::deliver();
    EXPECT_EQ(handled, 1);
}

TEST_F(PageTouchTest, thePictureFollowsTheFinger)
{
    writePage("home", button("ok", 10, 20), "bg.png");
    expectBackgroundLines();
    show("home");
    EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::green), 5000);
    Touch::pressWindow(&frame(), QPoint(50, 40));
    EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::red), 5000);
    Touch::releaseWindow(&frame(), QPoint(700, 400));
    const QImage image = frame().grab().toImage();
    EXPECT_EQ(Pixels::count(image, Qt::green), 5000);
    EXPECT_EQ(Pixels::count(image, Qt::blue), 800 * 480 - 5000);
    EXPECT_EQ(recorder().takeOne().id, "ok") << "a release is a click wherever it is";
}

TEST_F(PageTouchTest, theBackgroundReportsWhatNothingElseTakes)
{
    writePage("home",
              button("ok", 10, 20) + "<label><l title='x' style='normal'><position x='300'"
                                     " y='0' width='50' height='20'/></l></label>",
              "bg.png");
    expectBackgroundLines();
    show("home");
    tap(700, 400);
    EXPECT_EQ(recorder().takeOne().id, "background");
    tap(310, 10);
    EXPECT_EQ(recorder().takeOne().id, "l");
}

TEST_F(PageTouchTest, aBarePageReportsNothing)
{
    writePage("home", button("ok", 10, 20));
    expectNoBackgroundLines();
    show("home");
    tap(700, 400);
    EXPECT_EQ(recorder().takeTypes(), std::vector<int>());
}

TEST_F(PageTouchTest, theLaterOfTwoComponentsLiesAboveAndGetsTheTouch)
{
    writePage("home", button("below", 10, 20) + button("above", 60, 20));
    expectNoBackgroundLines();
    show("home");
    tap(80, 40);
    EXPECT_EQ(recorder().takeOne().id, "above");
    tap(30, 40);
    EXPECT_EQ(recorder().takeOne().id, "below");
}

TEST_F(PageTouchTest, aDimButtonSwallowsNothingButReportsNothing)
{
    writePage("home", button("ok", 10, 20), "bg.png");
    expectBackgroundLines();
    ZELChildWindow* const home = show("home");
    auto* const ok = dynamic_cast<ZELImageButton*>(home->getSubComponent("ok"));
    ASSERT_NE(ok, nullptr);
    ok->setDimMode(true);
    tap(50, 40);
    EXPECT_EQ(recorder().takeTypes(), std::vector<int>())
        << "the touch falls to the page, not to the background beside it";
    ok->setDimMode(false);
    tap(50, 40);
    EXPECT_EQ(recorder().takeOne().id, "ok");
}

TEST_F(PageTouchTest, onlyThePageOnScreenCanBeTouched)
{
    writePage("home", button("ok", 10, 20));
    writePage("second", button("other", 10, 20));
    expectNoBackgroundLines(2);
    show("home");
    show("second");
    tap(50, 40);
    EXPECT_EQ(recorder().takeOne().id, "other");
    frame().moveBack(false);
    tap(50, 40);
    EXPECT_EQ(recorder().takeOne().id, "ok");
}

TEST_F(PageTouchTest, aFingerThatHoldsAButtonWhenThePageChangesIsForgotten)
{
    writePage("home", button("ok", 10, 20));
    writePage("second", button("other", 300, 20));
    expectNoBackgroundLines(2);
    ZELChildWindow* const home = show("home");
    Touch::pressWindow(&frame(), QPoint(50, 40));
    show("second");
    Touch::releaseWindow(&frame(), QPoint(50, 40));
    EXPECT_EQ(recorder().takeTypes(), std::vector<int>());
    frame().moveBack(false);
    EXPECT_EQ(frame().getCurrentWindow(), home);
    EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::green), 5000) << "at rest again";
}

TEST_F(PageTouchTest, pagesNavigateFromTheirHandlersAndBack)
{
    writePage("home", button("next", 10, 20));
    writePage("second", button("back", 300, 20));
    Strings events;
    addPage("home", [&](ZELEvent& event) {
        events.push_back("home " + event.m_strID);
        if (event.m_strID == "next")
            frame().moveTo("second", true, true);
    });
    addPage("second", [&](ZELEvent& event) {
        events.push_back("second " + event.m_strID + std::to_string(event.type()));
        if (event.m_strID == "back")
            frame().moveBack(true);
    });
    ZELChildWindow* const home = frame().moveTo("home", true, false);
    tap(50, 40);
    EventLoop::deliver();
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "second");
    EXPECT_EQ(frame().history(), (Strings{"home", "second"}));
    tap(350, 40);
    EventLoop::deliver();
    EXPECT_EQ(frame().getCurrentWindow(), home);
    EXPECT_EQ(frame().history(), Strings{"home"});
    EXPECT_EQ(events, (Strings{"home next", "second 1550", "second back1552", "home "}))
        << "each page that is brought up is told so";
}

TEST_F(PageTouchTest, twoQuickTouchesAreTwoEvents)
{
    writePage("home", button("next", 10, 20));
    writePage("second", "");
    addPage("home", [&](ZELEvent&) { frame().moveTo("second", true, false); });
    addPage("second", [](ZELEvent&) {});
    frame().moveTo("home", true, false);
    QWidget* const next = frame().getCurrentWindow()->getSubComponent("next")->getQWidget();
    Touch::tap(next);
    Touch::tap(next);
    EventLoop::deliver();
    EXPECT_EQ(frame().history(), (Strings{"home", "second", "second"}));
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "second");
}

TEST_F(PageTouchTest, eventsOfAPageThatDiedAreDropped)
{
    writePage("home", button("ok", 10, 20));
    writePage("second", "");
    int handled = 0;
    addPage("home", [&handled](ZELEvent&) { ++handled; });
    addPage("second", [](ZELEvent&) {});
    frame().moveTo("home", true, false);
    EventLoop::deliver();
    const QPointer<QWidget> ok = frame().getCurrentWindow()->getSubComponent("ok")->getQWidget();
    Touch::tap(ok);
    frame().moveTo("second", true, false);
    frame().removeAllChildWnd("second"); // home dies with its event in the queue, and is rebuilt
    EXPECT_TRUE(ok.isNull());
    EventLoop::deliver();
    EXPECT_EQ(handled, 1) << "the rebuilt page was told that it is up, and nothing else";
}

TEST_F(PageTouchTest, aWorkerThreadReachesThePageByPosting)
{
    writePage("home", "");
    Strings kinds;
    std::thread::id handledBy;
    addPage("home", [&](ZELEvent& event) {
        kinds.push_back(event.getClassType() + " " + std::to_string(event.type()));
        handledBy = std::this_thread::get_id();
    });
    ZELChildWindow* const home = frame().moveTo("home", true, false);
    std::thread worker([this] {
        ZELChildWindow* const page = frame().getCurrentWindow();
        QCoreApplication::postEvent(page, new ZELErrorEvent(applicationsOwn, 12, 'E', "lamp"));
        QCoreApplication::postEvent(page, new ZELEvent(applicationsOwn, "worker"));
    });
    worker.join();
    EXPECT_EQ(kinds, Strings());
    EventLoop::deliver();
    EXPECT_EQ(kinds, (Strings{"ZELErrorEvent 2000", "ZELEvent 2000"}));
    EXPECT_EQ(handledBy, std::this_thread::get_id());
    EXPECT_EQ(frame().getCurrentWindow(), home);
}

TEST_F(PageTouchTest, aFaultyComponentTakesNothingFromItsNeighbours)
{
    writePage("home",
              "<slider><volume/></slider><imagebox><picture/></imagebox>"
              "<button><bare/></button>" +
                  button("ok", 10, 20),
              "missing.png");
    log().expectError("[createBackgroundSubComponent] cannot load image: missing.png");
    log().expectError("[createSubComponent] Fail to create components volume");
    log().expectError("[setLayout]  no File");
    log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr"); // of the bare button
    show("home");
    tap(50, 40);
    EXPECT_EQ(recorder().takeOne().id, "ok");
}

} // namespace
