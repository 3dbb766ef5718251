#include "components/lists/ScrollTest.h"

#include <algorithm>

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

const std::string longPressed =
    " up='up.png' down='down.png' dim='dim.png' width='60' height='40'/>";

class ZELListScrollTouchTest : public ScrollTest
{
protected:
    Scroll* scrollAt(int page, int total, const std::string& parts = label + pageUp + pageDown)
    {
        Scroll* const made = scroll("", parts);
        made->setListTotalPage(total);
        made->setListNowPage(page);
        EventLoop::deliver();
        panel().take();
        log().startHere();
        return made;
    }

    // one whose buttons can be held
    Scroll* heldAt(int page, int total)
    {
        return scrollAt(page, total,
                        label + "<upbtn" + longPressed + "<downbtn y='80'" + longPressed);
    }

    Outcome handOver(Scroll* scroll, const Incoming& incoming)
    {
        return ListTest::handOver(scroll, "ZELListScroll", incoming);
    }

    // the pages that were told, "1582:3 1582:4"
    std::string pagesTold()
    {
        std::string all;
        for (const RecordedEvent& event : panel().take())
            all += (all.empty() ? "" : " ") + std::to_string(event.type) + ":" +
                   std::to_string(event.value);
        return all;
    }

    static std::string line(const std::string& button, const std::string& id = "cell")
    {
        return "[D] [event] EVENT_MOUSE_UP " + button + " " + id;
    }
};

} // namespace

// ---- the table of events

TEST_F(ZELListScrollTouchTest, everyNumberClassAndSenderIsAPageTurnOrNothing)
{
    Scroll* const scroll = scrollAt(3, 5);
    QObject stranger;
    for (const int type : allNumbers()) {
        for (const Kind kind : allKinds) {
            for (QObject* const sender : {static_cast<QObject*>(scroll->m_pUpBtn),
                                          static_cast<QObject*>(scroll->m_pDownBtn),
                                          static_cast<QObject*>(scroll->m_pPageLabel), &stranger,
                                          static_cast<QObject*>(nullptr)}) {
                scroll->setListNowPage(3);
                Incoming incoming{type, kind};
                incoming.sender = sender;
                const bool turns =
                    (type == 1552 || type == 1571 || type == 1572) && kind != Kind::Plain;
                Outcome expected{true, {}, {}};
                if (turns && sender == scroll->m_pUpBtn) {
                    expected.posted = {"1581 ZELRangeEvent scr 2"};
                    expected.lines = {line("UpButton")};
                } else if (turns && sender == scroll->m_pDownBtn) {
                    expected.posted = {"1582 ZELRangeEvent scr 4"};
                    expected.lines = {line("DownButton")};
                }
                if (kind == Kind::Plain && (type == 1552 || type == 1571 || type == 1572)) {
                    expectForeign("scr", type);
                    expected.lines = {"[E] [event] scr got an event " + std::to_string(type) +
                                      " that is no ZELEvent"};
                }
                EXPECT_EQ(handOver(scroll, incoming), expected) << incoming;
            }
        }
    }
}

TEST_F(ZELListScrollTouchTest, whatIsNotItsOwnGoesToQt)
{
    Scroll* const scroll = scrollAt(1, 1);
    EXPECT_FALSE(send(scroll, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        Incoming incoming{type, Kind::Event};
        incoming.sender = scroll->m_pDownBtn;
        EXPECT_EQ(handOver(scroll, incoming), (Outcome{true, {}, {}}));
    }
}

// ---- touches

TEST_F(ZELListScrollTouchTest, aTouchTurnsThePageAndTellsWhereItIs)
{
    Scroll* const scroll = scrollAt(2, 3);
    Touch::tapWindow(scroll->m_pDownBtn);
    EXPECT_EQ(scroll->m_nNowPage, 3);
    EXPECT_EQ(scroll->dims(), "down");
    EXPECT_EQ(toldOne(scroll), "1582 ZELRangeEvent scr 3");
    EXPECT_EQ(log().texts("ZELListScroll"),
              std::vector<std::string>{line("DownButton", "downbtn")});
    Touch::tapWindow(scroll->m_pUpBtn);
    EXPECT_EQ(toldOne(scroll), "1581 ZELRangeEvent scr 2");
    EXPECT_EQ(log().count(line("UpButton", "upbtn")), 1);
}

TEST_F(ZELListScrollTouchTest, thePageHasMovedBeforeTheParentHears)
{
    Scroll* const scroll = scrollAt(2, 3);
    Touch::tap(scroll->m_pDownBtn);
    EXPECT_EQ(scroll->m_nNowPage, 2) << "the click is a post";
    QCoreApplication::sendPostedEvents(scroll, 0);
    EXPECT_EQ(scroll->m_nNowPage, 3);
    EXPECT_EQ(toldOne(scroll), "1582 ZELRangeEvent scr 3");
}

TEST_F(ZELListScrollTouchTest, aDimButtonTakesNoTouch)
{
    Scroll* const scroll = scrollAt(3, 3);
    Touch::tapWindow(scroll->m_pDownBtn);
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(scroll->m_nNowPage, 3);
}

TEST_F(ZELListScrollTouchTest, aCallAtTheEndTellsTheSamePageAgain)
{
    Scroll* const scroll = scrollAt(3, 3);
    scroll->onPressDownBtn(nullptr);
    EXPECT_EQ(toldOne(scroll), "1582 ZELRangeEvent scr 3");
    scroll->setListNowPage(1);
    ZELEvent event(EVENT_MOUSE_UP);
    scroll->onPressUpBtn(&event);
    EXPECT_EQ(toldOne(scroll), "1581 ZELRangeEvent scr 1") << "there is no page 0";
}

TEST_F(ZELListScrollTouchTest, twoClicksUnderWayAtTheLastButOnePageEndAtTheLast)
{
    Scroll* const scroll = scrollAt(2, 3);
    Touch::tap(scroll->m_pDownBtn);
    Touch::tap(scroll->m_pDownBtn);
    EXPECT_EQ(pagesTold(), "1582:3 1582:3");
    EXPECT_EQ(scroll->m_nNowPage, 3);
}

TEST_F(ZELListScrollTouchTest, aHeldButtonTurnsAtEachTickAndAtTheRelease)
{
    Scroll* const scroll = heldAt(1, 20);
    Touch::press(scroll->m_pDownBtn);
    for (int i = 0; i < 6; ++i)
        tickHeld(scroll->m_pDownBtn);
    EXPECT_EQ(pagesTold(), "1582:2 1582:3 1582:4 1582:5 1582:6 1582:7");
    Touch::release(scroll->m_pDownBtn);
    EXPECT_EQ(pagesTold(), "1582:8") << "the release turns once more";
    EXPECT_EQ(log().count(line("DownButton", "downbtn")), 7) << "one line for all three numbers";
}

TEST_F(ZELListScrollTouchTest, theClockOfAHeldButtonTurnsPages)
{
    Scroll* const scroll = heldAt(9, 9);
    Touch::pressWindow(scroll, Touch::middleInWindow(scroll->m_pUpBtn));
    const QPoint at = Touch::middleInWindow(scroll->m_pUpBtn);
    EXPECT_TRUE(EventLoop::waitFor([&] { return scroll->m_nNowPage <= 6; }, 10000));
    Touch::releaseWindow(scroll, at);
    const std::vector<RecordedEvent> events = panel().take();
    ASSERT_GE(events.size(), 4u) << "three ticks and the release";
    int page = 9;
    for (const RecordedEvent& event : events)
        EXPECT_EQ(told(event, scroll), "1581 ZELRangeEvent scr " + std::to_string(--page));
    EXPECT_EQ(scroll->m_nNowPage, page);
    EXPECT_FALSE(scroll->m_pUpBtn->findChild<QTimer*>()->isActive());
}

TEST_F(ZELListScrollTouchTest, aHoldEndsByItselfAtTheLastPage)
{
    Scroll* const scroll = heldAt(1, 3);
    QTimer* const clock = scroll->m_pDownBtn->findChild<QTimer*>();
    Touch::pressWindow(scroll, Touch::middleInWindow(scroll->m_pDownBtn));
    EXPECT_TRUE(EventLoop::waitFor([&] { return scroll->m_nNowPage == 3; }, 10000));
    EXPECT_EQ(scroll->dims(), "down");
    const QPoint at = Touch::middleInWindow(scroll->m_pDownBtn);
    EXPECT_TRUE(clock->isActive());
    EXPECT_TRUE(EventLoop::waitFor([&] { return !clock->isActive(); }, 10000));
    Touch::releaseWindow(scroll, at);
    EXPECT_EQ(pagesTold(), "1582:2 1582:3");
    EXPECT_EQ(scroll->m_nNowPage, 3);
}

TEST_F(ZELListScrollTouchTest, withoutAParentItSaysSo)
{
    expectScrollLines();
    Scroll scroll(nullptr, "scr", "ZELListScroll",
                  element(scrollOf("", label + pageUp + pageDown)));
    scroll.setListTotalPage(2);
    log().expectError("[onPressDownBtn] scr has no parent", 1, "ZELListScroll");
    log().expectError("[onPressUpBtn] scr has no parent", 1, "ZELListScroll");
    scroll.onPressDownBtn(nullptr);
    EXPECT_EQ(scroll.m_nNowPage, 2);
    scroll.onPressUpBtn(nullptr);
}
