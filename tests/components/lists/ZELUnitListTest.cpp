#include "components/lists/ZELUnitList.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/lists/TableTest.h"

#include <type_traits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELCheckButton;
using Components::ZELList;
using Components::ZELUnitList;

namespace {

class Units : public OpenedTable<ZELUnitList>
{
public:
    using OpenedTable::OpenedTable;

    const std::string& identityOfTheList() const { return ZELList::m_logger.m_strIdentity; }

    int paints = 0;

    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        ZELUnitList::paintEvent(event);
    }
};

class ZELUnitListTest : public TableTest
{
protected:
    Units* full() { return TableTest::full<Units>("ZELUnitList"); }

    Outcome handOver(Units* list, const Incoming& incoming)
    {
        return ListTest::handOver(list, "ZELUnitList", incoming);
    }

    static std::string line(int type) { return "[D] [event] e->type() : " + std::to_string(type); }

    static std::string inList(int number, int row, int column, bool header = false)
    {
        return std::to_string(number) + " ZELListEvent lst (" + std::to_string(row) + ", " +
               std::to_string(column) + ")" + (header ? " header" : "");
    }

    // what is to be posted for an event; "" for nothing
    static std::string expectedPost(const Incoming& in)
    {
        const bool list = in.kind == Kind::List;
        if ((in.type == 1581 || in.type == 1582) && in.kind == Kind::Range)
            return std::to_string(in.type) + " ZELRangeEvent lst 7";
        if ((in.type == 1583 || in.type == 1584) && list && in.column == 0)
            return inList(in.type, in.row, 0, true);
        if (in.type == 1552 && list && in.column > 0)
            return inList(in.header ? 1590 : 1585, in.row, in.column);
        return "";
    }

    static bool expectedResult(const Incoming& in)
    {
        const bool needsAList = in.type == 1552 || in.type == 1583 || in.type == 1584;
        return !needsAList || in.kind == Kind::List;
    }
};

} // namespace

// ---- building

TEST_F(ZELUnitListTest, isAListOfItsOwnType)
{
    static_assert(std::is_base_of_v<ZELList, ZELUnitList>);
    expectScrollLines();
    auto* const list = buildComponent<ZELUnitList>("listUnit", fullTable());
    EXPECT_EQ(list->m_strType, "ZELUnitList");
    EXPECT_EQ(list->getQWidget(), static_cast<QWidget*>(list));
    EXPECT_EQ(list->geometry(), QRect(5, 6, 400, 200));
    EXPECT_EQ(list->getItemComponent(3, Push)->m_strID, "push");
    list->setTotalPage(4);
    list->setNowPage(2);
    EXPECT_EQ(list->getNowPage(), 2);
}

TEST_F(ZELUnitListTest, bringsNoNewOperationAndKeepsTheLoggerOfTheList)
{
    EXPECT_EQ(Units::slotOfEvent(), slot(&Components::ZELComponent::getQWidget) + 2 * slotSize);
    const Units* const list = full();
    EXPECT_EQ(list->m_logger.m_strIdentity, "QTPANFx ZELUnitList    ");
    EXPECT_EQ(list->identityOfTheList(), "QTPANFx ZELList        ");
}

TEST_F(ZELUnitListTest, aNullLayoutIsToldByTheList)
{
    log().expectError("[createSubComponent] ZELUnitList, Node * pLayout == NULL");
    log().expectError("[setLayout] lst pLayout == NULL", 1, "ZELList");
    const Units list(&panel(), "lst", "ZELUnitList", nullptr);
    EXPECT_TRUE(log().texts("ZELUnitList").empty());
}

TEST_F(ZELUnitListTest, withoutTheElementImageItHasNoRows)
{
    Units* const list = make<Units>(table(rows(), ""), "ZELUnitList");
    EXPECT_EQ(list->getListItem(0), nullptr);
    EXPECT_EQ(log().count("[D] [setLayout] Background Node is NULL", "ZELList"), 1);
}

// ---- the table of events

TEST_F(ZELUnitListTest, everyNumberAndClassIsToldOrSwallowed)
{
    Units* const list = full();
    QObject cell;
    for (const int type : allNumbers()) {
        for (const Kind kind : allKinds) {
            for (const bool header : {false, true}) {
                for (const int column : {-1, 0, 1, 9}) {
                    Incoming incoming{type, kind, 2, column, header};
                    incoming.sender = &cell;
                    Outcome expected{expectedResult(incoming), {}, {line(type)}};
                    const std::string post = expectedPost(incoming);
                    if (!post.empty())
                        expected.posted.push_back(post);
                    const bool known = type == 1552 || (type >= 1581 && type <= 1584);
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
    EXPECT_TRUE(log().texts("ZELList").empty()) << "the list's own handler is not asked";
}

TEST_F(ZELUnitListTest, anythingBelowAClickIsQtsAndMakesNoLine)
{
    Units* const list = full();
    EXPECT_FALSE(send(list, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        for (const Kind kind : allKinds)
            EXPECT_EQ(handOver(list, {type, kind}), (Outcome{true, {}, {}})) << type;
    }
}

// ---- real touches

TEST_F(ZELUnitListTest, theFirstColumnOfARowChangesItsBoxAndTellsNobody)
{
    Units* const list = full();
    Touch::tapWindow(list->cell(2, Check));
    EXPECT_TRUE(panel().take().empty());
    EXPECT_TRUE(static_cast<ZELCheckButton*>(list->getItemComponent(2, Check))->m_bChecked);
}

TEST_F(ZELUnitListTest, theOtherColumnsClickWhateverStandsThere)
{
    Units* const list = full();
    for (const int column : {Radio, Push, Icon, Text}) {
        Touch::tapWindow(list->cell(2, column));
        EXPECT_EQ(toldOne(list), inList(1585, 2, column));
    }
    Units* const other =
        make<Units>(table(group("listitem", row("row0", 100,
                                                group("button", cell("a", 0)) +
                                                    group("checkbutton", cell("b", 50))))),
                    "ZELUnitList");
    Touch::tapWindow(other->cell(0, 1));
    EXPECT_EQ(toldOne(other), inList(1585, 0, 1)) << "a check button too";
}

TEST_F(ZELUnitListTest, theHeaderClicksFromItsSecondColumnOn)
{
    Units* const list = full();
    Touch::tapWindow(list->headCell("headcheck"));
    EXPECT_TRUE(panel().take().empty());
    Touch::tapWindow(list->headCell("headradio"));
    EXPECT_EQ(toldOne(list), inList(1590, 0, 1)) << "and does not say that it is the header";
    Touch::tapWindow(list->headCell("headsort"));
    EXPECT_TRUE(panel().take().empty()) << "sorting counts in the first column";
}

TEST_F(ZELUnitListTest, theFirstColumnOfTheHeaderSorts)
{
    Units* const list =
        make<Units>(table(group("listheader", row("head", 0, group("headerbutton", cell("a", 0))))),
                    "ZELUnitList");
    Touch::tapWindow(list->headCell("a"));
    EXPECT_EQ(toldOne(list), inList(1584, 0, 0, true));
    Touch::tapWindow(list->headCell("a"));
    EXPECT_EQ(toldOne(list), inList(1583, 0, 0, true));
}

TEST_F(ZELUnitListTest, aFocusInARowEndsHere)
{
    Units* const list = make<Units>(
        table(group("listitem", row("row0", 30,
                                    group("button", cell("a", 0)) +
                                        group("imageEdit",
                                              "<e style='normal'>" + at(50, 0, 90, 30) + "</e>")))),
        "ZELUnitList");
    Touch::tapWindow(list->cell(0, 1));
    EXPECT_EQ(panel().takeTypes(), Types{1585});
}

TEST_F(ZELUnitListTest, pagesPassAsInAList)
{
    Units* const list = full();
    list->setTotalPage(2);
    Touch::tapWindow(partOf(list->m_pListScroll, "downbtn")->getQWidget());
    EXPECT_EQ(toldOne(list), "1582 ZELRangeEvent lst 2");
    Touch::tapWindow(partOf(list->m_pListScroll, "upbtn")->getQWidget());
    EXPECT_EQ(toldOne(list), "1581 ZELRangeEvent lst 1");
}

TEST_F(ZELUnitListTest, withoutTheElementImageRowsStillClickWithMinusOne)
{
    Units* const list = make<Units>(table(rows(1), ""), "ZELUnitList");
    Touch::tapWindow(list->getSubComponent("row0")->getSubComponent("push")->getQWidget());
    EXPECT_EQ(toldOne(list), inList(1585, -1, Push));
}

// ---- the header's box

TEST_F(ZELUnitListTest, checksTheHeadersBoxAndTellsNobody)
{
    Units* const list = full();
    auto* const box = static_cast<ZELCheckButton*>(list->getHeaderComponent("headcheck"));
    for (const int checked : {2, 0, 1, -1, 0, 0}) {
        list->setHeaderCheckButton(checked);
        EXPECT_EQ(box->m_bChecked, checked != 0);
        PaintCounter paints(box);
        list->setHeaderCheckButton(checked);
        EventLoop::deliver();
        EXPECT_GT(paints.count(), 0) << "also when nothing changes";
    }
    EXPECT_TRUE(panel().take().empty());
    list->setHeaderCheckButton(1);
    EXPECT_EQ(Pixels::count(Pixels::grab(box), Qt::blue), 40 * 30) << "the down picture";
}

TEST_F(ZELUnitListTest, anIconCheckButtonIsABoxToo)
{
    Units* const list = make<Units>(
        table(group("listheader", row("head", 0, group("iconcheckbutton", cell("headcheck", 0))))),
        "ZELUnitList");
    list->setHeaderCheckButton(1);
    EXPECT_TRUE(static_cast<ZELCheckButton*>(list->getHeaderComponent("headcheck"))->m_bChecked);
}

TEST_F(ZELUnitListTest, withoutThatBoxNothingHappens)
{
    Units* const list = make<Units>(
        table(group("listheader", row("head", 0, group("checkbutton", cell("other", 0))))),
        "ZELUnitList");
    list->setHeaderCheckButton(1);
    EXPECT_FALSE(static_cast<ZELCheckButton*>(list->getHeaderComponent("other"))->m_bChecked);
}

TEST_F(ZELUnitListTest, withoutAHeaderNothingHappensButAWord)
{
    Units* const list = make<Units>(table(rows(1)), "ZELUnitList");
    log().expectError("[getHeaderComponent] lst has no header", 1, "ZELList");
    list->setHeaderCheckButton(1);
}

TEST_F(ZELUnitListTest, aBoxOfAnotherKindIsLeftAlone)
{
    for (const char* keyword : {"label", "radiobutton", "button", "headerbutton"}) {
        Units* const list = make<Units>(
            table(group("listheader", row("head", 0, group(keyword, cell("headcheck", 0))))),
            "ZELUnitList");
        log().expectError("[setHeaderCheckButton] lst: headcheck is no check button", 1,
                          "ZELUnitList");
        list->setHeaderCheckButton(1);
        log().verify();
    }
}
