#include "components/lists/ZELListItem.h"

#include "components/lists/ListTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELListItem;

namespace {

using Row = OpenedPart<ZELListItem>;

class ZELListItemTest : public ListTest
{
protected:
    // a row of a label, two buttons and a radio group, in this order
    Row* mixedRow()
    {
        const std::string radio = group("radiobutton", cell("r", 0));
        return make<Row>(
            row("row", 40,
                group("label", "<text title='t' style='normal'/>") +
                    group("button", cell("a", 100) + cell("b", 150)) +
                    group("radiogroup", "<grp>" + at(200, 0, 40, 30) + radio + "</grp>")),
            "ZELListItem");
    }

    Outcome handOver(Row* row, const Incoming& incoming)
    {
        return ListTest::handOver(row, "ZELListItem", incoming);
    }
};

} // namespace

// ---- building

TEST_F(ZELListItemTest, isAComponentFirstAndAWidgetSecond)
{
    auto* const row = buildComponent<ZELListItem>(
        "listitem", "<row><position x='1' y='2' width='30' height='40'/></row>");
    EXPECT_EQ(row->m_strType, "ZELListItem");
    EXPECT_EQ(row->m_strID, "row");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(row)), static_cast<void*>(row));
    EXPECT_EQ(row->getQWidget(), static_cast<QWidget*>(row));
    EXPECT_EQ(row->geometry(), QRect(1, 2, 30, 40));
    row->hideWindow();
    EXPECT_TRUE(row->isHidden());
    row->showWindow();
    EXPECT_TRUE(row->isVisible());
}

TEST_F(ZELListItemTest, paintsAndHandlesEventsBehindTheOperationsOfAComponent)
{
    EXPECT_EQ(Row::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Row::slotOfEvent(), Row::slotOfPaint() + slotSize);
}

TEST_F(ZELListItemTest, startsWithoutANumber)
{
    const Row* const row = mixedRow();
    EXPECT_EQ(row->m_nRow, -1);
    EXPECT_EQ(row->m_logger.m_strIdentity, "QTPANFx ZELListItem    ");
}

TEST_F(ZELListItemTest, isZeroByZeroWithoutAPosition)
{
    EXPECT_EQ(make<Row>("<row/>", "ZELListItem")->geometry(), QRect(0, 0, 0, 0));
    EXPECT_EQ(
        make<Row>("<row><position y='5' width='7' height='8'/></row>", "ZELListItem")->geometry(),
        QRect(0, 5, 7, 8));
}

TEST_F(ZELListItemTest, makesAndShowsItsCellsBeforeItReadsItsPlace)
{
    log().startHere();
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)");
    Row row(&panel(), "row", "ZELListItem",
            element("<row>" + at(5, 6, 70, 30) + group("button", cell("a", 0)) +
                    "<nosuch><x/></nosuch></row>"));
    ASSERT_EQ(row.getComponentCount(), 1);
    const QWidget* const button = row.getSubComponent("a")->getQWidget();
    EXPECT_EQ(button->parentWidget(), &row);
    EXPECT_TRUE(button->testAttribute(Qt::WA_WState_ExplicitShowHide));
    EXPECT_TRUE(button->isVisibleTo(&row));
    EXPECT_EQ(row.geometry(), QRect(5, 6, 70, 30));
}

TEST_F(ZELListItemTest, aNullLayoutGivesAnEmptyRow)
{
    log().expectError("[createSubComponent] ZELListItem, Node * pLayout == NULL");
    log().expectError("[setLayout] row pLayout == NULL", 1, "ZELListItem");
    Row row(&panel(), "row", "ZELListItem", nullptr);
    log().expectInOrder({"[E] [createSubComponent] ZELListItem, Node * pLayout == NULL",
                         "[E] [setLayout] row pLayout == NULL"});
    EXPECT_EQ(row.getComponentCount(), 0);
    EXPECT_EQ(row.geometry(), QRect(0, 0, 100, 30)) << "never placed";
    EXPECT_EQ(row.findComponent("a"), -1);
}

TEST_F(ZELListItemTest, paintsNothingItself)
{
    auto* const row = make<Row>("<row>" + at(0, 0, 50, 30) + "</row>", "ZELListItem");
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(row), row->rect()), 0);
}

// ---- columns

TEST_F(ZELListItemTest, countsColumnsOverCellsOfAllKinds)
{
    Row* const row = mixedRow();
    EXPECT_EQ(row->findComponent("text"), 0);
    EXPECT_EQ(row->findComponent("a"), 1);
    EXPECT_EQ(row->findComponent("b"), 2);
    EXPECT_EQ(row->findComponent("grp"), 3);
    for (const char* id : {"", "A", "a ", "aa", "r"})
        EXPECT_EQ(row->findComponent(id), -1) << id << " is no cell of the row";
    EXPECT_EQ(row->findComponent(std::string("a\0", 2)), -1) << "compared by length and bytes";
}

TEST_F(ZELListItemTest, givesTheFirstOfTwoCellsWithOneId)
{
    Row* const row = make<Row>(
        ListTest::row("row", 0, group("button", cell("a", 0) + cell("b", 50) + cell("b", 100))),
        "ZELListItem");
    EXPECT_EQ(row->findComponent("b"), 1);
}

TEST_F(ZELListItemTest, passesOverACellThatIsGone)
{
    Row* const row = mixedRow();
    delete row->getSubComponent("a")->getQWidget();
    EXPECT_EQ(row->findComponent("a"), -1);
    EXPECT_EQ(row->findComponent("b"), 2) << "places stay";
    EXPECT_EQ(handOver(row, {EVENT_MOUSE_UP, Kind::Event}), (Outcome{false, {}, {}}));
}

// ---- events

TEST_F(ZELListItemTest, aPressEndsHereAndAnythingBelowAClickIsQts)
{
    Row* const row = mixedRow();
    EXPECT_FALSE(send(row, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        for (const Kind kind : allKinds) {
            Incoming incoming{type, kind};
            incoming.id = "a";
            EXPECT_EQ(handOver(row, incoming), (Outcome{true, {}, {}})) << incoming;
        }
    }
}

TEST_F(ZELListItemTest, tellsWhereEveryOtherEventOfACellHappened)
{
    Row* const row = mixedRow();
    row->m_nRow = 3;
    QObject sender;
    for (const int type : allNumbers()) {
        for (const Kind kind : allKinds) {
            for (const bool header : {false, true}) { // what the event itself says is not heeded
                Incoming incoming{type, kind, 8, 9, header};
                incoming.sender = &sender;
                incoming.id = "b";
                panel().take();
                if (kind == Kind::Plain) {
                    expectForeign("row", type);
                    EXPECT_FALSE(send(row, incoming)) << incoming;
                    EXPECT_TRUE(panel().take().empty()) << incoming;
                    continue;
                }
                EXPECT_TRUE(send(row, incoming)) << incoming;
                EXPECT_EQ(toldOne(&sender), std::to_string(type) + " ZELListEvent b (3, 2)")
                    << incoming;
            }
        }
    }
    EXPECT_EQ(log().texts("ZELListItem").size(), allNumbers().size() * 2)
        << "only the foreign ones make a line";
}

TEST_F(ZELListItemTest, dropsAnUnknownIdWithoutAWord)
{
    Row* const row = mixedRow();
    for (const int type : allNumbers()) {
        for (const char* id : {"", "nobody", "row"}) {
            Incoming incoming{type, Kind::Event};
            incoming.id = id;
            incoming.sender = row->getSubComponent("a")->getQWidget();
            EXPECT_EQ(handOver(row, incoming), (Outcome{false, {}, {}})) << incoming << id;
        }
    }
}

TEST_F(ZELListItemTest, goesByTheIdAndNotByTheSender)
{
    Row* const row = mixedRow();
    Incoming incoming{EVENT_MOUSE_UP, Kind::Event};
    incoming.id = "a";
    EXPECT_EQ(handOver(row, incoming).posted,
              std::vector<std::string>{"1552 ZELListEvent a (-1, 1) from elsewhere"});
    EXPECT_EQ((send(row, incoming), panel().takeOne().sender), nullptr);
}

TEST_F(ZELListItemTest, aTouchedCellGivesItsColumn)
{
    Row* const row = mixedRow();
    QWidget* const button = row->getSubComponent("b")->getQWidget();
    Touch::tapWindow(button);
    EXPECT_EQ(toldOne(button), "1552 ZELListEvent b (-1, 2)");
    Touch::tapWindow(row->getSubComponent("text")->getQWidget());
    EXPECT_EQ(panel().takeOne().column, 0);
}

TEST_F(ZELListItemTest, theClickOfARadioGroupEndsHere)
{
    Row* const row = mixedRow();
    EventRecorder recorder;
    recorder.listenAt(row);
    Touch::tapWindow(row->getSubComponent("grp")->getSubComponent("r")->getQWidget());
    const std::vector<RecordedEvent> atRow = recorder.take(EVENT_MOUSE_UP);
    ASSERT_EQ(atRow.size(), 1u);
    EXPECT_EQ(atRow[0].id, "");
    EXPECT_TRUE(panel().take().empty());
}

TEST_F(ZELListItemTest, withoutAParentItSaysSo)
{
    Row row(nullptr, "row", "ZELListItem",
            element("<row>" + group("button", cell("a", 0)) + "</row>"));
    log().expectError("[event] row has no parent", 1, "ZELListItem");
    Incoming incoming{EVENT_MOUSE_UP, Kind::Event};
    incoming.id = "a";
    EXPECT_TRUE(send(&row, incoming));
}
