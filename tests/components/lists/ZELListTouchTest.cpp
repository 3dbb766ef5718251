#include "components/buttons/ZELCheckButton.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/lists/TableTest.h"
#include "support/FrameForTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELCheckButton;
using Components::ZELComponent;
using Components::ZELList;
using Components::ZELRadioButton;

namespace {

using List = OpenedTable<ZELList>;
using Posted = std::vector<std::string>;

class ZELListTouchTest : public TableTest
{
protected:
    List* full() { return TableTest::full<List>("ZELList"); }

    Outcome handOver(List* list, const Incoming& incoming)
    {
        return ListTest::handOver(list, "ZELList", incoming);
    }

    static void check(ZELComponent* cell, bool checked)
    {
        if (auto* const box = dynamic_cast<ZELCheckButton*>(cell))
            box->m_bChecked = checked;
        else if (auto* const button = dynamic_cast<ZELRadioButton*>(cell))
            button->m_bChecked = checked;
    }

    static std::string line(int type)
    {
        return "[D] [event] start(type:" + std::to_string(type) + ")";
    }

    static std::string inList(int number, int row, int column, bool header)
    {
        return std::to_string(number) + " ZELListEvent lst (" + std::to_string(row) + ", " +
               std::to_string(column) + ")" + (header ? " header" : "");
    }
};

// who got an event of a click or above, without delivering any
class Arrivals : public QObject
{
public:
    std::vector<QObject*> at;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() >= EVENT_MOUSE_UP && event->type() <= EVENT_NUMPAD_CLOSE)
            at.push_back(watched);
        return QObject::eventFilter(watched, event);
    }
};

// what a click gives, by the cell and by whether it is checked now
struct Click
{
    bool header;
    int column;
    int unchecked;
    int checked;
};

constexpr Click clicks[] = {
    {false, 0, 1587, 1586}, // check
    {false, 1, 1587, 1586}, // radio
    {false, 2, 1585, 1585}, // push
    {false, 3, 1585, 1585}, // check with an icon
    {false, 4, 1585, 1585}, // text
    {true, 0, 1589, 1588},  // check
    {true, 1, 1590, 1590},  // radio
    {true, 2, 1590, 1590},  // sort
    {true, 3, 1590, 1590},  // push
};

// what other numbers give
struct Rule
{
    int type;
    Kind kind;
    int posted;
    bool alwaysHeader;
};

constexpr Rule rules[] = {
    {1581, Kind::Range, 1581, false}, {1582, Kind::Range, 1582, false},
    {1583, Kind::List, 1583, true},   {1584, Kind::List, 1584, true},
    {1559, Kind::List, 1591, false},  {1560, Kind::List, 1592, false},
};

} // namespace

// ---- the table of events

TEST_F(ZELListTouchTest, aClickIsToldByCellAndState)
{
    List* const list = full();
    for (const Click& click : clicks) {
        for (const bool checked : {false, true}) {
            const int row = click.header ? 0 : 2;
            check(click.header ? list->getHeaderComponent(click.column)
                               : list->getItemComponent(row, click.column),
                  checked);
            const Incoming incoming{EVENT_MOUSE_UP, Kind::List, row, click.column, click.header};
            const int number = checked ? click.checked : click.unchecked;
            EXPECT_EQ(
                handOver(list, incoming),
                (Outcome{true, {inList(number, row, click.column, click.header)}, {line(1552)}}))
                << incoming << (checked ? " checked" : " unchecked");
        }
    }
}

TEST_F(ZELListTouchTest, everyOtherNumberAndClassIsToldOrSwallowed)
{
    List* const list = full();
    QObject cell;
    for (const int type : allNumbers()) {
        for (const Kind kind : allKinds) {
            for (const bool header : {false, true}) {
                if (type == EVENT_MOUSE_UP && kind == Kind::List)
                    continue; // a table of its own
                Incoming incoming{type, kind, 1, 2, header};
                incoming.sender = &cell;
                Outcome expected{true, {}, {line(type)}};
                bool known = type == EVENT_MOUSE_UP;
                for (const Rule& rule : rules) {
                    known = known || rule.type == type;
                    if (rule.type != type || rule.kind != kind)
                        continue;
                    expected.posted.push_back(
                        kind == Kind::Range
                            ? std::to_string(rule.posted) + " ZELRangeEvent lst 7"
                            : inList(rule.posted, 1, 2, header || rule.alwaysHeader));
                }
                if (known && kind == Kind::Plain) {
                    expectForeign("lst", type);
                    expected.lines.push_back("[E] [event] lst got an event " +
                                             std::to_string(type) + " that is no ZELEvent");
                }
                EXPECT_EQ(handOver(list, incoming), expected) << incoming;
            }
        }
    }
}

TEST_F(ZELListTouchTest, anythingBelowAClickIsQtsAndMakesNoLine)
{
    List* const list = full();
    EXPECT_FALSE(send(list, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        for (const Kind kind : allKinds)
            EXPECT_EQ(handOver(list, {type, kind}), (Outcome{true, {}, {}})) << type;
    }
}

TEST_F(ZELListTouchTest, aClickAtACellThatThereIsNotIsSwallowed)
{
    List* const list = full();
    for (const auto& [row, column] :
         {std::make_pair(-1, 0), std::make_pair(4, 0), std::make_pair(0, 5)}) {
        log().expectError("[getItemComponent] lst has no cell (" + std::to_string(row) + ", " +
                          std::to_string(column) + ")");
        const Incoming incoming{EVENT_MOUSE_UP, Kind::List, row, column};
        const Outcome outcome = handOver(list, incoming);
        EXPECT_TRUE(outcome.result) << incoming;
        EXPECT_EQ(outcome.posted, Posted{}) << incoming;
    }
    for (const int column : {-1, 4}) {
        EXPECT_EQ(handOver(list, {EVENT_MOUSE_UP, Kind::List, 0, column, true}),
                  (Outcome{true, {}, {line(1552)}}));
    }
}

TEST_F(ZELListTouchTest, aHeaderClickWithoutAHeaderIsSwallowed)
{
    List* const list = make<List>(table(rows()), "ZELList");
    EXPECT_EQ(handOver(list, {EVENT_MOUSE_UP, Kind::List, 0, 0, true}),
              (Outcome{true, {}, {line(1552)}}));
    EXPECT_EQ(handOver(list, {EVENT_HEADER_UP, Kind::List, 0, 0, true}).posted,
              Posted{inList(1584, 0, 0, true)})
        << "needs no cell";
}

// ---- real touches

TEST_F(ZELListTouchTest, aTouchTakesThreeHopsToThePage)
{
    List* const list = full();
    ZELComponent* const row = list->getListItem(1);
    QWidget* const cell = list->cell(1, Push);
    EventRecorder hops;
    hops.listenAt(row->getQWidget());
    hops.listenAt(list);
    Touch::tapWindow(cell);
    const std::vector<RecordedEvent> seen = hops.take();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].receiver, row->getQWidget());
    EXPECT_EQ(told(seen[0], cell), "1552 ZELEvent push");
    EXPECT_EQ(seen[1].receiver, list);
    EXPECT_EQ(told(seen[1], cell), "1552 ZELListEvent push (1, 2)");
    EXPECT_EQ(toldOne(list), inList(1585, 1, 2, false));
}

TEST_F(ZELListTouchTest, eachHopIsAPostAndNoCall)
{
    List* const list = full();
    QWidget* const row = list->getListItem(1)->getQWidget();
    Arrivals arrivals;
    for (QWidget* const hop : {row, static_cast<QWidget*>(list), static_cast<QWidget*>(&panel())})
        hop->installEventFilter(&arrivals);
    Touch::tap(list->cell(1, Push));
    EXPECT_EQ(arrivals.at, (std::vector<QObject*>{}));
    QCoreApplication::sendPostedEvents(row, 0);
    EXPECT_EQ(arrivals.at, (std::vector<QObject*>{row}));
    QCoreApplication::sendPostedEvents(list, 0);
    EXPECT_EQ(arrivals.at, (std::vector<QObject*>{row, list}));
    QCoreApplication::sendPostedEvents(&panel(), 0);
    EXPECT_EQ(arrivals.at, (std::vector<QObject*>{row, list, &panel()}));
}

TEST_F(ZELListTouchTest, readsTheStateWhenTheEventIsAtTheList)
{
    List* const list = full();
    auto* const box = static_cast<ZELCheckButton*>(list->getItemComponent(3, Check));
    const auto tapUpToTheList = [&] {
        Touch::tap(box);
        QCoreApplication::sendPostedEvents(list->getListItem(3)->getQWidget(), 0);
    };
    tapUpToTheList();
    EXPECT_TRUE(box->m_bChecked);
    box->m_bChecked = false;
    EXPECT_EQ(toldOne(list), inList(1587, 3, 0, false));
    tapUpToTheList();
    QCoreApplication::sendPostedEvents(list, 0);
    box->m_bChecked = false;
    EXPECT_EQ(toldOne(list), inList(1586, 3, 0, false)) << "told already";
}

TEST_F(ZELListTouchTest, touchesOnEachCellOfARow)
{
    List* const list = full();
    for (const auto& [column, number] :
         {std::make_pair(Check, 1586), std::make_pair(Check, 1587), std::make_pair(Radio, 1586),
          std::make_pair(Radio, 1586), std::make_pair(Push, 1585), std::make_pair(Icon, 1585),
          std::make_pair(Text, 1585)}) {
        Touch::tapWindow(list->cell(3, column));
        EXPECT_EQ(toldOne(list), inList(number, 3, column, false));
    }
}

TEST_F(ZELListTouchTest, touchesOnEachCellOfTheHeader)
{
    List* const list = full();
    for (const auto& [id, number, column] :
         {std::make_tuple("headcheck", 1588, 0), std::make_tuple("headcheck", 1589, 0),
          std::make_tuple("headradio", 1590, 1), std::make_tuple("headsort", 1584, 2),
          std::make_tuple("headsort", 1583, 2), std::make_tuple("headsort", 1584, 2),
          std::make_tuple("headpush", 1590, 3)}) {
        Touch::tapWindow(list->headCell(id));
        EXPECT_EQ(toldOne(list), inList(number, 0, column, true)) << id;
    }
}

TEST_F(ZELListTouchTest, aBoxWithAnIconInTheHeaderIsAPlainCell)
{
    List* const list = make<List>(
        table(group("listheader", row("head", 0, group("iconcheckbutton", cell("icon", 0))))),
        "ZELList");
    for (const bool checked : {true, false}) {
        Touch::tapWindow(list->headCell("icon"));
        EXPECT_EQ(toldOne(list), inList(1590, 0, 0, true)) << checked;
    }
}

TEST_F(ZELListTouchTest, nobodyClearsTheOtherHeaderCells)
{
    expectScrollLines(0);
    List* const list = make<List>(
        table(group("listheader",
                    row("head", 0, group("headerbutton", cell("a", 0) + cell("b", 50))))),
        "ZELList");
    Touch::tapWindow(list->headCell("a"));
    Touch::tapWindow(list->headCell("b"));
    EXPECT_TRUE(static_cast<ZELRadioButton*>(list->getHeaderComponent("a"))->m_bChecked);
    EXPECT_TRUE(static_cast<ZELRadioButton*>(list->getHeaderComponent("b"))->m_bChecked);
}

TEST_F(ZELListTouchTest, aHoldInARowGivesTheLastClickAlone)
{
    List* const list =
        make<List>(table(group("listitem",
                               row("row0", 30, group("button", cell("a", 0, "longpress='true'"))))),
                   "ZELList");
    QWidget* const button = list->cell(0, 0);
    log().startHere();
    Touch::press(button);
    for (int i = 0; i < 6; ++i)
        tickHeld(button);
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(log().count(line(1571), "ZELList"), 4);
    EXPECT_EQ(log().count(line(1572), "ZELList"), 2);
    Touch::release(button);
    EXPECT_EQ(toldOne(list), inList(1585, 0, 0, false));
}

TEST_F(ZELListTouchTest, anEditInARowTellsItsFocus)
{
    List* const list = make<List>(
        table(group("listitem", row("row0", 30,
                                    group("imageEdit", "<e style='normal'>" + at(0, 0, 90, 30) +
                                                           "</e>" + "<f style='normal'>" +
                                                           at(100, 0, 90, 30) + "</f>")))),
        "ZELList");
    Touch::tapWindow(list->cell(0, 0));
    EXPECT_EQ(panel().takeTypes(), (Types{1591, 1585}));
    Touch::tapWindow(list->cell(0, 1));
    std::vector<std::string> seen;
    for (const RecordedEvent& event : panel().take())
        seen.push_back(told(event, list));
    EXPECT_EQ(seen, (Posted{inList(1592, 0, 0, false), inList(1591, 0, 1, false),
                            inList(1585, 0, 1, false)}));
}

TEST_F(ZELListTouchTest, aPageTurnArrivesWithThePageThatItIs)
{
    List* const list = full();
    list->setTotalPage(3);
    QWidget* const down = partOf(list->m_pListScroll, "downbtn")->getQWidget();
    Touch::tapWindow(down);
    EXPECT_EQ(list->getNowPage(), 2);
    EXPECT_EQ(toldOne(list), "1582 ZELRangeEvent lst 2");
    Touch::tapWindow(partOf(list->m_pListScroll, "upbtn")->getQWidget());
    EXPECT_EQ(toldOne(list), "1581 ZELRangeEvent lst 1");
}

TEST_F(ZELListTouchTest, aComponentOfTheListItselfEndsThere)
{
    List* const list = make<List>(table(group("button", cell("free", 0)) + rows(1)), "ZELList");
    log().startHere();
    Touch::tapWindow(list->getSubComponent("free")->getQWidget());
    EXPECT_TRUE(panel().take().empty());
    EXPECT_EQ(log().count(line(1552), "ZELList"), 1);
}

TEST_F(ZELListTouchTest, withoutTheElementImageATouchComesWithRowMinusOneAndEnds)
{
    List* const list = make<List>(table(rows(1), ""), "ZELList");
    EventRecorder hops;
    hops.listenAt(list);
    log().expectError("[getItemComponent] lst has no cell (-1, 2)", 1, "ZELList");
    Touch::tapWindow(list->getSubComponent("row0")->getSubComponent("push")->getQWidget());
    EXPECT_EQ(hops.takeOne().row, -1);
    EXPECT_TRUE(panel().take().empty());
}

TEST_F(ZELListTouchTest, aSecondHeadersColumnIsLookedUpInTheFirst)
{
    const std::string first =
        row("h1", 0, group("checkbutton", cell("a", 0)) + group("button", cell("b", 50)));
    const std::string second =
        row("h2", 40, group("button", cell("c", 0) + cell("d", 50) + cell("e", 100)));
    List* const list = make<List>(table(group("listheader", first + second)), "ZELList");
    ZELComponent* const wider = list->getSubComponent("h2");
    for (const auto& [id, posted] :
         {std::make_pair("c", Posted{inList(1589, 0, 0, true)}), // the first header's is a check
          std::make_pair("d", Posted{inList(1590, 0, 1, true)}), std::make_pair("e", Posted{})}) {
        Touch::tapWindow(wider->getSubComponent(id)->getQWidget());
        Posted seen;
        for (const RecordedEvent& event : panel().take())
            seen.push_back(told(event, list));
        EXPECT_EQ(seen, posted) << id;
    }
}

TEST_F(ZELListTouchTest, aRowThatGoesWhileItsEventIsUnderWay)
{
    List* const list = full();
    Touch::tap(list->cell(1, Push));
    QCoreApplication::sendPostedEvents(list->getListItem(1)->getQWidget(), 0);
    delete list->getListItem(1)->getQWidget();
    log().expectError("[getItemComponent] lst has no cell (1, 2)", 1, "ZELList");
    EXPECT_TRUE(panel().take().empty());
}

TEST_F(ZELListTouchTest, reachesAPageOfTheFrame)
{
    expectScrollLines();
    auto* const list = buildOnPage<ZELList>("list", fullTable());
    frame().recorder().take();
    Touch::tapWindow(list->getItemComponent(2, Check)->getQWidget());
    EXPECT_EQ(told(frame().recorder().takeOne(), list), inList(1586, 2, 0, false));
}

TEST_F(ZELListTouchTest, withoutAParentItSaysSo)
{
    List list(nullptr, "lst", "ZELList", element(table(rows(1))));
    log().expectError("[event] lst has no parent", 2, "ZELList");
    EXPECT_TRUE(send(&list, {EVENT_MOUSE_UP, Kind::List, 0, Push}));
    EXPECT_TRUE(send(&list, {EVENT_PAGE_UP, Kind::Range}));
}
