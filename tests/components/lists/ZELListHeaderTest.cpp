#include "components/lists/ZELListHeader.h"

#include "components/lists/ListTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELListHeader;

namespace {

using Header = OpenedPart<ZELListHeader>;

class ZELListHeaderTest : public ListTest
{
protected:
    Header* mixedHeader()
    {
        return make<Header>(row("head", 0,
                                group("checkbutton", cell("all", 0)) +
                                    group("headerbutton", cell("name", 50)) +
                                    group("button", cell("more", 100))),
                            "ZELListHeader");
    }
};

} // namespace

TEST_F(ZELListHeaderTest, isAComponentFirstAndAWidgetSecond)
{
    auto* const header = buildComponent<ZELListHeader>(
        "listheader", "<head><position x='1' y='2' width='30' height='40'/></head>");
    EXPECT_EQ(header->m_strType, "ZELListHeader");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(header)), static_cast<void*>(header));
    EXPECT_EQ(header->getQWidget(), static_cast<QWidget*>(header));
    EXPECT_EQ(header->geometry(), QRect(1, 2, 30, 40));
    header->hideWindow();
    EXPECT_TRUE(header->isHidden());
    header->showWindow();
    EXPECT_TRUE(header->isVisible());
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(header), header->rect()), 0);
}

TEST_F(ZELListHeaderTest, paintsAndHandlesEventsBehindTheOperationsOfAComponent)
{
    EXPECT_EQ(Header::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Header::slotOfEvent(), Header::slotOfPaint() + slotSize);
    EXPECT_EQ(mixedHeader()->m_logger.m_strIdentity, "QTPANFx ZELListHeader  ");
}

TEST_F(ZELListHeaderTest, isZeroByZeroWithoutAPosition)
{
    EXPECT_EQ(make<Header>("<head/>", "ZELListHeader")->geometry(), QRect(0, 0, 0, 0));
}

TEST_F(ZELListHeaderTest, makesAndShowsItsCells)
{
    Header header(&panel(), "head", "ZELListHeader",
                  element(row("head", 6, group("button", cell("a", 0)))));
    const QWidget* const button = header.getSubComponent("a")->getQWidget();
    EXPECT_EQ(button->parentWidget(), &header);
    EXPECT_TRUE(button->testAttribute(Qt::WA_WState_ExplicitShowHide));
    EXPECT_TRUE(button->isVisibleTo(&header));
}

TEST_F(ZELListHeaderTest, aNullLayoutGivesAnEmptyHeader)
{
    log().expectError("[createSubComponent] ZELListHeader, Node * pLayout == NULL");
    log().expectError("[setLayout] head pLayout == NULL", 1, "ZELListHeader");
    Header header(&panel(), "head", "ZELListHeader", nullptr);
    log().expectInOrder({"[E] [createSubComponent] ZELListHeader, Node * pLayout == NULL",
                         "[E] [setLayout] head pLayout == NULL"});
    EXPECT_EQ(header.findHeaderComponent("a"), -1);
    EXPECT_EQ(header.geometry(), QRect(0, 0, 100, 30)) << "never placed";
}

TEST_F(ZELListHeaderTest, findsColumnsByIdAndPassesOverCellsThatAreGone)
{
    Header* const header = mixedHeader();
    EXPECT_EQ(header->findHeaderComponent("all"), 0);
    EXPECT_EQ(header->findHeaderComponent("name"), 1);
    EXPECT_EQ(header->findHeaderComponent("more"), 2);
    EXPECT_EQ(header->findHeaderComponent(""), -1);
    EXPECT_EQ(header->findHeaderComponent("mor"), -1);
    delete header->getSubComponent("all")->getQWidget();
    header->m_dqSubComponents.push_front(nullptr);
    EXPECT_EQ(header->findHeaderComponent("all"), -1);
    EXPECT_EQ(header->findHeaderComponent("more"), 3);
}

TEST_F(ZELListHeaderTest, anythingBelowAClickIsQts)
{
    Header* const header = mixedHeader();
    EXPECT_FALSE(send(header, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        for (const Kind kind : allKinds) {
            Incoming incoming{type, kind};
            incoming.id = "all";
            EXPECT_EQ(handOver(header, "ZELListHeader", incoming), (Outcome{true, {}, {}}))
                << incoming;
        }
    }
}

TEST_F(ZELListHeaderTest, tellsTheColumnOfEveryOtherEventOfACell)
{
    Header* const header = mixedHeader();
    QObject sender;
    for (const int type : allNumbers()) {
        for (const Kind kind : allKinds) {
            Incoming incoming{type, kind, 8, 9, false};
            incoming.sender = &sender;
            incoming.id = "more";
            panel().take();
            if (kind == Kind::Plain) {
                expectForeign("head", type);
                EXPECT_FALSE(send(header, incoming)) << incoming;
                EXPECT_TRUE(panel().take().empty()) << incoming;
                continue;
            }
            EXPECT_TRUE(send(header, incoming)) << incoming;
            EXPECT_EQ(toldOne(&sender), std::to_string(type) + " ZELListEvent more (0, 2) header")
                << incoming;
        }
    }
}

TEST_F(ZELListHeaderTest, complainsAboutAnUnknownIdAndDropsIt)
{
    Header* const header = mixedHeader();
    for (const int type : allNumbers()) {
        for (const std::string id : {"", "nobody", "%s"}) {
            Incoming incoming{type, Kind::Event};
            incoming.id = id;
            const std::string line = "[event] Cannot find HeaderComponent : -1 " + id;
            log().expectError(line, 1, "ZELListHeader");
            EXPECT_EQ(handOver(header, "ZELListHeader", incoming),
                      (Outcome{false, {}, {"[E] " + line}}))
                << incoming;
        }
    }
}

TEST_F(ZELListHeaderTest, aTouchedCellGivesItsColumn)
{
    Header* const header = mixedHeader();
    QWidget* const button = header->getSubComponent("more")->getQWidget();
    Touch::tapWindow(button);
    EXPECT_EQ(toldOne(button), "1552 ZELListEvent more (0, 2) header");
    QWidget* const sort = header->getSubComponent("name")->getQWidget();
    Touch::tapWindow(sort);
    EXPECT_EQ(toldOne(sort), "1584 ZELListEvent name (0, 1) header") << "at the press alone";
}
