#include "components/containers/TabTest.h"

#include "components/lists/ZELList.h"
#include "events/EventNumbers.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;

namespace {

class ZELTabEventTest : public TabTest
{
protected:
    // a push button on each page
    static std::string open() { return group("button", cell("open", 20)); }
};

} // namespace

TEST_F(ZELTabEventTest, aTouchOnAnotherTabTellsTheTabAndThenTheButton)
{
    auto* const tab = makeTab(pairs(2));
    Touch::press(buttonOf(tab, "b1"));
    EXPECT_EQ(tab->shown(), "b0 p0 b1") << "the button at once, the page with the event";
    EXPECT_EQ(toldOne(tab), "1561 ZELEvent tab");
    EXPECT_EQ(tab->shown(), "b1 p1");
    EXPECT_EQ(tab->getPage(), 1);
    Touch::release(buttonOf(tab, "b1"));
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(told(click, buttonOf(tab, "b1")), "1552 ZELEvent b1");
}

TEST_F(ZELTabEventTest, thePageHasChangedBeforeTheWindowLearnsOfIt)
{
    auto* const tab = makeTab(pairs(2));
    ZELEvent touch(EVENT_TAB_DOWN, buttonOf(tab, "b1"), "b1");
    tab->event(&touch);
    EXPECT_EQ(tab->shown(), "b1 p1") << "nothing was delivered yet";
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_TAB_DOWN});
}

TEST_F(ZELTabEventTest, aTouchOnTheCurrentTabGivesTheClickAlone)
{
    auto* const tab = makeTab(pairs(2));
    Touch::tap(buttonOf(tab, "b0"));
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    EXPECT_EQ(tab->shown(), "b0 p0");
}

TEST_F(ZELTabEventTest, withoutAParentThePageChangesAndQtTakesTheTouch)
{
    class Own : public Tab
    {
    public:
        using Tab::Tab;
        Types wentOn;

    protected:
        void customEvent(QEvent* event) override { wentOn.push_back(event->type()); }
    };
    Own tab(nullptr, "tab", "ZELTab", element(tabOf(pairs(2))));
    log().expectError("[eventHandler] event 1561 of tab has no target", 1, "EventTranslator");
    ZELEvent touch(EVENT_TAB_DOWN, buttonOf(&tab, "b1"), "b1");
    EXPECT_TRUE(tab.event(&touch));
    EXPECT_EQ(tab.shown(), "b1 p1");
    EXPECT_EQ(tab.wentOn, Types{EVENT_TAB_DOWN});
}

TEST_F(ZELTabEventTest, everyTabIsReachedAndAllComeBack)
{
    auto* const tab = makeTab(pairs(4));
    for (const int number : {3, 1, 2, 0}) {
        const std::string id = "b" + std::to_string(number);
        Touch::tapWindow(buttonOf(tab, id));
        EXPECT_EQ(panel().takeTypes(), (Types{EVENT_TAB_DOWN, EVENT_MOUSE_UP}));
        EXPECT_EQ(tab->shown(), id + " p" + std::to_string(number));
        EXPECT_EQ(tab->getPage(), number);
    }
}

TEST_F(ZELTabEventTest, whatAButtonReports)
{
    struct Case
    {
        const char* what;
        Kind kind;
        bool sender;
        std::string id;
        Texts posted;
        Texts lines;
    };
    for (const Case& row : std::vector<Case>{
             {"another tab",
              Kind::Event,
              true,
              "b1",
              {"1561 ZELEvent tab"},
              {"[D] [event] EVENT_TAB_DOWN"}},
             {"the current tab", Kind::Event, true, "b0", {}, {"[D] [event] EVENT_TAB_DOWN"}},
             {"nobody", Kind::Event, false, "b1", {}, {}},
             {"another class of the library",
              Kind::List,
              true,
              "b1",
              {"1561 ZELEvent tab"},
              {"[D] [event] EVENT_TAB_DOWN"}},
             {"a stranger",
              Kind::Event,
              true,
              "who",
              {"1561 ZELEvent tab"},
              {"[D] [event] EVENT_TAB_DOWN", "[E] [findPage] Cannot find tabpage who",
               "[E] [setPage] -1 is out of range"}}}) {
        SCOPED_TRACE(row.what);
        auto* const tab = makeTab(pairs(2));
        const bool stranger = row.id == "who";
        if (stranger) {
            log().expectError("[findPage] Cannot find tabpage who", 1, "ZELTab");
            log().expectError("[setPage] -1 is out of range", 1, "ZELTab");
        }
        Incoming event{EVENT_TAB_DOWN, row.kind};
        event.sender = row.sender ? buttonOf(tab, "b1") : nullptr;
        event.id = row.id;
        EXPECT_EQ(handOver(tab, "ZELTab", event), (Outcome{true, row.posted, row.lines}));
        EXPECT_EQ(tab->shown(), row.id == "b1" && row.sender ? "b1 p1" : "b0 p0");
        delete tab;
    }
}

TEST_F(ZELTabEventTest, aTouchThatIsNoEventOfTheLibraryChangesNothing)
{
    auto* const tab = makeTab(pairs(2));
    expectForeign("tab", EVENT_TAB_DOWN);
    EXPECT_TRUE(send(tab, {EVENT_TAB_DOWN, Kind::Plain}));
    EXPECT_EQ(tab->shown(), "b0 p0");
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELTabEventTest, handsOnWhatComesFromItsParts)
{
    auto* const tab = makeTab(pairs(1));
    std::vector<int> numbers = allNumbers();
    numbers.insert(numbers.begin(), {1549, EVENT_WINDOW_ACTIVATE, EVENT_MOUSE_DOWN});
    for (const int number : numbers) {
        if (number == EVENT_TAB_DOWN)
            continue;
        SCOPED_TRACE(number);
        for (const Kind kind : {Kind::Event, Kind::Range, Kind::List}) {
            Incoming event{number, kind};
            event.sender = this->panel().window();
            EXPECT_TRUE(send(tab, event)) << event;
            const std::vector<RecordedEvent> passed = panel().take();
            const std::vector<RecordedEvent> expected(number < EVENT_MOUSE_DOWN ? 0u : 1u);
            ASSERT_EQ(passed.size(), expected.size());
            for (const RecordedEvent& copy : passed) {
                EXPECT_EQ(copy.type, number);
                EXPECT_EQ(copy.sender, event.sender) << "untouched";
                EXPECT_EQ(copy.id, "cell");
            }
        }
    }
}

TEST_F(ZELTabEventTest, keepsTheNumbersThatComeWithAnEvent)
{
    auto* const tab = makeTab(pairs(1));
    Incoming cell{EVENT_LIST_ITEM_CLICK, Kind::List, 3, 4, true};
    cell.sender = tab;
    EXPECT_EQ(handOver(tab, "", cell).posted, Texts{"1585 ZELListEvent cell (3, 4) header"});
    Incoming range{EVENT_RANGE_CHANGED, Kind::Range};
    range.sender = tab;
    range.value = 9;
    EXPECT_EQ(handOver(tab, "", range).posted, Texts{"1558 ZELRangeEvent cell 9"});
}

TEST_F(ZELTabEventTest, otherClassesOfEventsStopThere)
{
    auto* const tab = makeTab(pairs(1));
    for (QWidget* const widget :
         {static_cast<QWidget*>(tab), tab->getSubComponent("p0")->getQWidget()}) {
        for (const Kind kind : {Kind::Error, Kind::Result}) {
            EXPECT_TRUE(send(widget, {1600, kind})) << "Qt takes it";
            EXPECT_EQ(panel().takeTypes(), Types{});
        }
        log().expectError("[eventHandler] event 1600 is no ZELEvent", 1, "EventTranslator");
        EXPECT_TRUE(send(widget, {1600, Kind::Plain}));
        EXPECT_EQ(panel().takeTypes(), Types{});
    }
}

TEST_F(ZELTabEventTest, whatItDoesNotKnowIsQts)
{
    expectWidgetsAnswers(makeTab(pairs(1)));
}

TEST_F(ZELTabEventTest, aListOnAPageReportsToTheWindowAsIfItLayThere)
{
    const std::string listElement =
        "<lst>" + at(0, 0, 200, 90) + "<image/>" +
        group("listitem", row("row0", 0, group("button", cell("push", 0)))) + "</lst>";
    auto* const tab = makeTab(pairs(1, group("list", listElement)));
    auto* const list = part<Components::ZELList>(tab->getTabPage(0), "lst");
    Touch::tapWindow(list->getItemComponent(0, 0)->getQWidget());
    EXPECT_EQ(toldOne(list), "1585 ZELListEvent lst (0, 0)");
}

TEST_F(ZELTabEventTest, aButtonOnAPageReportsToTheWindowAsIfItLayThere)
{
    auto* const tab = makeTab(pairs(2, open()));
    ZELComponent* const open = tab->getTabPage(0)->getSubComponent("open");
    Touch::tapWindow(open->getQWidget());
    EXPECT_EQ(toldOne(open->getQWidget()), "1552 ZELEvent open");
}

TEST_F(ZELTabEventTest, takesTwoMoreRoundsThanAButtonOnTheWindow)
{
    auto* const tab = makeTab(pairs(1, open()));
    ZELComponent* const page = tab->getTabPage(0);
    EventRecorder onTheWay;
    onTheWay.listenAt(page->getQWidget());
    onTheWay.listenAt(tab);
    Touch::tap(page->getSubComponent("open")->getQWidget());
    EventLoop::deliver();
    const std::vector<RecordedEvent> seen = onTheWay.take();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].receiver, page->getQWidget());
    EXPECT_EQ(seen[1].receiver, tab);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELTabEventTest, theTabOfAPageIsNoButtonOfTheTabAround)
{
    const std::string inner =
        group("tab", "<inner>" + at(0, 0, 200, 60) + button("i0") + page("q0") + button("i1", 50) +
                         page("q1") + "</inner>");
    auto* const tab = makeTab(button("b0") + page("p0", inner) + button("b1", 50) + page("p1"));
    auto* const within = part<Components::ZELTab>(tab->getTabPage(0), "inner");
    log().expectError("[findPage] Cannot find tabpage inner", 1, "ZELTab");
    log().expectError("[setPage] -1 is out of range", 1, "ZELTab");
    auto* const touched = within->getSubComponent("i1")->getQWidget();
    Touch::tapWindow(touched);
    EXPECT_EQ(within->getPage(), 1);
    EXPECT_EQ(tab->shown(), "b0 p0") << "the page stays";
    const std::vector<RecordedEvent> events = panel().take();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(told(events[0], tab), "1561 ZELEvent tab") << "and is told with its own id";
    EXPECT_EQ(told(events[1], touched), "1552 ZELEvent i1");
}

TEST_F(ZELTabEventTest, aPageThatIsHiddenAndItsTabShowAndHide)
{
    auto* const tab = makeTab(pairs(1));
    tab->hideWindow();
    EXPECT_TRUE(tab->isHidden());
    tab->showWindow();
    EXPECT_FALSE(tab->isHidden());
}
