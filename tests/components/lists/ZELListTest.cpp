// ListHop and SubComponents are not exported: lists, rows and headers are what tests them.

#include "components/lists/TableTest.h"
#include "support/LibraryFaults.h"

#include <QPointer>

#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELList;
using Components::ZELListItem;

namespace {

using List = OpenedTable<ZELList>;

class ZELListTest : public TableTest
{
protected:
    List* list(const std::string& parts, const std::string& image = "<image/>")
    {
        return make<List>(table(parts, image), "ZELList");
    }

    List* full() { return TableTest::full<List>("ZELList"); }

    // the ids of the rows by number, with the number that each row itself has
    static std::string rowsOf(List* list)
    {
        std::string found;
        for (int i = 0; i < list->m_arrItemId.Count(); ++i) {
            found += i > 0 ? " " : "";
            found += list->m_arrItemId.AtString(i);
            found += ":" + std::to_string(list->item(i)->m_nRow);
        }
        return found;
    }

    static const std::string noNode;
    static const std::string noFile;
};

const std::string ZELListTest::noNode = "[D] [setLayout] Background Node is NULL";
const std::string ZELListTest::noFile = "[D] [setLayout]  no BackgroundImage File";

} // namespace

// ---- building

TEST_F(ZELListTest, isAComponentFirstAndAWidgetSecond)
{
    auto* const list =
        buildComponent<ZELList>("list", "<lst>" + at(1, 2, 30, 40) + "<image/></lst>");
    EXPECT_EQ(list->m_strType, "ZELList");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(list)), static_cast<void*>(list));
    EXPECT_EQ(list->getQWidget(), static_cast<QWidget*>(list));
    EXPECT_EQ(list->geometry(), QRect(1, 2, 30, 40));
    list->hideWindow();
    EXPECT_TRUE(list->isHidden());
    list->showWindow();
    EXPECT_TRUE(list->isVisible());
}

TEST_F(ZELListTest, paintsAndHandlesEventsBehindTheOperationsOfAComponent)
{
    EXPECT_EQ(List::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(List::slotOfEvent(), List::slotOfPaint() + slotSize);
}

TEST_F(ZELListTest, hasItsPartsAndNumbersItsRows)
{
    List* const list = full();
    EXPECT_EQ(list->m_logger.m_strIdentity, "QTPANFx ZELList        ");
    EXPECT_EQ(list->m_pListScroll, list->getSubComponent("scr"));
    EXPECT_EQ(list->m_pListHeader, list->getSubComponent("head"));
    EXPECT_EQ(rowsOf(list), "row0:0 row1:1 row2:2 row3:3");
    for (int i = 0; i < list->getComponentCount(); ++i) {
        const QWidget* const part = list->ZELComponent::getSubComponent(i)->getQWidget();
        EXPECT_EQ(part->parentWidget(), list);
        EXPECT_TRUE(part->isVisible());
    }
}

TEST_F(ZELListTest, withAnEmptyElementItHasNothing)
{
    List* const list = make<List>("<lst/>", "ZELList");
    EXPECT_EQ(list->geometry(), QRect(0, 0, 0, 0));
    EXPECT_EQ(list->m_pListScroll, nullptr);
    EXPECT_EQ(list->m_pListHeader, nullptr);
    EXPECT_EQ(list->m_pBGPixmap, nullptr);
    EXPECT_EQ(QRect(list->m_nBGX, list->m_nBGY, list->m_nBGWidth, list->m_nBGHeight),
              QRect(0, 0, 0, 0));
    EXPECT_EQ(list->m_arrItemId.Count(), 0);
    EXPECT_EQ(log().texts("ZELList"), std::vector<std::string>{noNode});
}

TEST_F(ZELListTest, aNullLayoutIsToldTwiceAndChangesNothing)
{
    log().expectError("[createSubComponent] ZELList, Node * pLayout == NULL");
    log().expectError("[setLayout] lst pLayout == NULL", 1, "ZELList");
    List list(&panel(), "lst", "ZELList", nullptr);
    log().expectInOrder({"[E] [createSubComponent] ZELList, Node * pLayout == NULL",
                         "[E] [setLayout] lst pLayout == NULL"});
    EXPECT_EQ(list.geometry(), QRect(0, 0, 100, 30)) << "never placed";
    EXPECT_EQ(list.getListItem(0), nullptr);
    EXPECT_EQ(list.getNowPage(), -1);
}

TEST_F(ZELListTest, makesAndShowsItsPartsBeforeItReadsItsOwnLayout)
{
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)");
    List list(&panel(), "lst", "ZELList",
              element(table(rows(1) + "<nosuch><x/></nosuch>", "<image file='none.png'/>")));
    log().expectInOrder(
        {"[E] [createSubComponent] Fail to create a component (nosuch, x)", noFile});
    const QWidget* const row = list.getSubComponent("row0")->getQWidget();
    EXPECT_TRUE(row->testAttribute(Qt::WA_WState_ExplicitShowHide));
    EXPECT_TRUE(row->isVisibleTo(&list));
}

TEST_F(ZELListTest, countsRowsAmongTheRowsAlone)
{
    expectScrollLines();
    List* const list =
        this->list(group("label", "<l1 title='t' style='normal'/>") + rows(2) +
                   group("listscroll", scrollElement) + group("listheader", header()) +
                   group("listitem", row("late", 200, "")));
    EXPECT_EQ(rowsOf(list), "row0:0 row1:1 late:2");
}

TEST_F(ZELListTest, takesItsRowsUpAnew)
{
    List* const list = full();
    list->m_dqSubComponents.push_front(nullptr);
    auto* const added =
        new ZELListItem(list, "added", "ZELListItem", element(row("added", 160, "")));
    delete list->getSubComponent("row1")->getQWidget();
    list->m_dqSubComponents.push_back(added);
    list->m_dqSubComponents.push_back(
        new ZELListItem(list, "other", "ZELListHeader", element(row("other", 160, ""))));
    list->addListItem();
    EXPECT_EQ(rowsOf(list), "row0:0 row2:1 row3:2 added:3");
    list->addListItem();
    EXPECT_EQ(list->m_arrItemId.Count(), 4);
}

TEST_F(ZELListTest, theFirstOfTwoHeadersAndOfTwoScrollsCounts)
{
    expectScrollLines(2);
    const std::string second = "<scr2>" + label + pageUp + pageDown + "</scr2>";
    List* const list = this->list(group("listheader", header("h1") + header("h2")) +
                                  group("listscroll", scrollElement + second));
    EXPECT_EQ(list->m_pListHeader, list->getSubComponent("h1"));
    EXPECT_EQ(list->m_pListScroll, list->getSubComponent("scr"));
}

TEST_F(ZELListTest, aPartThatGoesWhileTheOthersAreMadeIsPassedOver)
{
    expectScrollLines();
    LibraryFaults faults;
    faults.onCreate = [this](const std::string& keyword, const std::string&) {
        if (keyword != "listscroll")
            return;
        for (QWidget* const widget : panel().findChildren<QWidget*>()) {
            if (dynamic_cast<ZELListItem*>(widget)) {
                delete widget;
                return;
            }
        }
    };
    List* const list = this->list(rows(1) + group("listscroll", scrollElement));
    ASSERT_EQ(list->getComponentCount(), 2);
    EXPECT_EQ(list->getSubComponent("row0"), nullptr);
    EXPECT_NE(list->m_pListScroll, nullptr);
    EXPECT_EQ(list->m_pListScroll, list->getSubComponent("scr"));
}

// ---- the element "image"

TEST_F(ZELListTest, withoutTheElementImageItHasNoRows)
{
    List* const list = this->list(rows(), "");
    EXPECT_EQ(list->m_arrItemId.Count(), 0);
    EXPECT_EQ(list->getListItem(0), nullptr);
    EXPECT_EQ(static_cast<ZELListItem*>(list->getSubComponent("row2"))->m_nRow, -1);
    EXPECT_EQ(log().texts("ZELList"), std::vector<std::string>{noNode});
}

TEST_F(ZELListTest, itIsTheListsOwnElementAndNotThatOfAButton)
{
    List* const list = make<List>(
        "<lst>" + at(0, 0, 90, 90) + rows(1) +
            group("button", "<b><image up='up.png' down='down.png' dim='dim.png'/></b>") + "</lst>",
        "ZELList");
    EXPECT_EQ(list->m_arrItemId.Count(), 0);
}

TEST_F(ZELListTest, anImageWithoutAFileGivesRowsAndNoWord)
{
    List* const list = this->list(rows());
    EXPECT_EQ(list->m_arrItemId.Count(), 4);
    EXPECT_EQ(list->m_pBGPixmap, nullptr);
    EXPECT_TRUE(log().texts("ZELList").empty());
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(list), QRect(300, 0, 100, 200)), 0);
}

TEST_F(ZELListTest, aFileThatIsNotThereGivesRowsAndALine)
{
    List* const list = this->list(rows(), "<image file='none.png' x='1' y='2'/>");
    EXPECT_EQ(list->m_arrItemId.Count(), 4);
    EXPECT_EQ(list->m_pBGPixmap, nullptr);
    EXPECT_EQ(log().texts("ZELList"), std::vector<std::string>{noFile});
    EXPECT_EQ(QRect(list->m_nBGX, list->m_nBGY, list->m_nBGWidth, list->m_nBGHeight),
              QRect(1, 2, 0, 0));
}

TEST_F(ZELListTest, anEmptyFileNameGivesRowsAndItsLines)
{
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    List* const list = this->list(rows(), "<image file=''/>");
    EXPECT_EQ(list->m_arrItemId.Count(), 4);
    EXPECT_EQ(list->m_pBGPixmap, nullptr);
    EXPECT_EQ(log().texts("ZELList"), std::vector<std::string>{noFile});
}

TEST_F(ZELListTest, drawsTheWholePictureIntoItsRectangle)
{
    List* const list = this->list("", "<image file='back.png' x='10' y='20' width='90' "
                                      "height='50'/>");
    EXPECT_EQ(list->m_pBGPixmap, picture("back.png"));
    const QImage image = Pixels::grab(list);
    EXPECT_EQ(Pixels::inkBox(image), QRect(10, 20, 90, 50));
    EXPECT_EQ(Pixels::count(image, Qt::cyan), 90 * 50);
    EXPECT_TRUE(log().texts("ZELList").empty());
}

TEST_F(ZELListTest, drawsItsPictureSmoothlyAndBehindItsRows)
{
    writeHalves("halves.png");
    List* const list = this->list(rows(1), "<image file='halves.png' width='400' height='200'/>");
    const QImage image = Pixels::grab(list);
    EXPECT_GT(greys(image, QRect(0, 100, 400, 50)), 0);
    EXPECT_EQ(Pixels::count(image, Qt::green, QRect(100, 30, 40, 30)), 40 * 30) << "a cell";
}

TEST_F(ZELListTest, aPictureWithoutASizeIsNotSeen)
{
    List* const list = this->list("", "<image file='back.png'/>");
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(list)).isNull());
}

TEST_F(ZELListTest, rowsAndHeaderLeaveThePictureToBeSeen)
{
    List* const list =
        this->list(group("listheader", row("head", 0, "")) + group("listitem", row("bare", 30, "")),
                   "<image file='back.png' width='400' height='200'/>");
    EXPECT_EQ(Pixels::count(Pixels::grab(list), Qt::cyan), 400 * 200);
}

// ---- pages

TEST_F(ZELListTest, readsAndWritesThePageOfItsScroll)
{
    List* const list = full();
    EXPECT_EQ(list->getNowPage(), 1);
    list->setTotalPage(5);
    EXPECT_EQ(list->m_pListScroll->m_nTotalPage, 5);
    list->setNowPage(3);
    EXPECT_EQ(list->m_pListScroll->m_nNowPage, 3);
    EXPECT_EQ(list->getNowPage(), 3);
    list->setNowPage(6);
    EXPECT_EQ(list->getNowPage(), 3) << "refused by the scroll";
    list->m_pListScroll->setListNowPage(2);
    EXPECT_EQ(list->getNowPage(), 2);
}

TEST_F(ZELListTest, withoutAScrollItHasNoPage)
{
    List* const list = this->list(rows());
    list->setTotalPage(5);
    list->setNowPage(2);
    EXPECT_EQ(list->getNowPage(), -1);
}

TEST_F(ZELListTest, aScrollThatIsGoneIsNone)
{
    List* const list = full();
    delete list->getSubComponent("scr")->getQWidget();
    list->setTotalPage(5);
    list->setNowPage(2);
    EXPECT_EQ(list->getNowPage(), -1);
}

// ---- rows and cells

TEST_F(ZELListTest, givesRowsAndCellsByNumber)
{
    List* const list = full();
    EXPECT_EQ(list->getListItem(2), list->getSubComponent("row2"));
    EXPECT_EQ(list->getListItem(4), nullptr);
    EXPECT_EQ(list->getListItem(99), nullptr);
    EXPECT_EQ(list->getItemComponent(3, Push), list->getListItem(3)->getSubComponent("push"));
    EXPECT_EQ(list->getItemComponent(0, Text)->m_strType, "ZELLabel");
    EXPECT_EQ(list->getHeaderComponent(HeadPush), list->getHeaderComponent("headpush"));
    EXPECT_EQ(list->getHeaderComponent("headsort")->m_strType, "ZELHeaderButton");
    EXPECT_EQ(list->getHeaderComponent("nobody"), nullptr);
    EXPECT_EQ(log().countLevel('E'), 3) << "those of the scroll";
}

TEST_F(ZELListTest, aCellThatThereIsNotIsNullAndAWord)
{
    List* const list = full();
    for (const auto& [row, column] : {std::make_pair(-1, 0), std::make_pair(4, 0),
                                      std::make_pair(0, -1), std::make_pair(3, 5)}) {
        log().expectError("[getItemComponent] lst has no cell (" + std::to_string(row) + ", " +
                              std::to_string(column) + ")",
                          1, "ZELList");
        EXPECT_EQ(list->getItemComponent(row, column), nullptr);
    }
    log().expectError("[getListItem] lst has no row -1", 1, "ZELList");
    EXPECT_EQ(list->getListItem(-1), nullptr);
}

TEST_F(ZELListTest, rowsMayBeOfUnequalLength)
{
    List* const list =
        this->list(group("listitem", row("long", 0, group("button", cell("a", 0) + cell("b", 50))) +
                                         row("short", 30, group("button", cell("a", 0)))));
    EXPECT_NE(list->getItemComponent(0, 1), nullptr);
    log().expectError("[getItemComponent] lst has no cell (1, 1)", 1, "ZELList");
    EXPECT_EQ(list->getItemComponent(1, 1), nullptr);
}

TEST_F(ZELListTest, aHeaderCellThatThereIsNotThrows)
{
    List* const list = full();
    EXPECT_THROW(list->getHeaderComponent(4), std::out_of_range);
    EXPECT_THROW(list->getHeaderComponent(-1), std::out_of_range);
}

TEST_F(ZELListTest, withoutAHeaderThereAreNoHeaderCells)
{
    List* const list = this->list(rows());
    log().expectError("[getHeaderComponent] lst has no header", 2, "ZELList");
    EXPECT_EQ(list->getHeaderComponent(0), nullptr);
    EXPECT_EQ(list->getHeaderComponent("headcheck"), nullptr);
}

TEST_F(ZELListTest, aRowThatIsGoneHasNoCells)
{
    List* const list = full();
    delete list->getListItem(1)->getQWidget();
    EXPECT_EQ(list->getListItem(1), nullptr);
    log().expectError("[getItemComponent] lst has no cell (1, 0)", 1, "ZELList");
    EXPECT_EQ(list->getItemComponent(1, 0), nullptr);
    EXPECT_NE(list->getItemComponent(2, 0), nullptr);
}

TEST_F(ZELListTest, goesWithAllItsPartsAndNothingTwice)
{
    const QPointer<QWidget> row(full()->getListItem(0)->getQWidget());
    delete row->parentWidget();
    EXPECT_TRUE(row.isNull());
}
