#include "components/lists/ComboTest.h"

#include "components/editors/ZELImageEdit.h"
#include "components/text/ZELLineEdit.h"

#include <QPointer>

#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComboList;
using Components::ZELComponent;
using Components::ZELImageEdit;
using Components::ZELLineEdit;

namespace {

const std::string buttonIsNull = "[D] [ZELComboList::draw] button is NULL";

class ZELComboListTest : public ComboTest
{
protected:
    // one that writes a line per row whenever it draws
    Combo* counted(const std::string& attributes = "")
    {
        Combo* const list = combo("itemIndex='5' " + attributes);
        log().startHere();
        return list;
    }

    // how often it has drawn since the last look
    int draws()
    {
        const int lines = log().count(buttonIsNull, "ZELComboList");
        log().startHere();
        return lines / 4;
    }
};

} // namespace

// ---- building

TEST_F(ZELComboListTest, isAComponentFirstAndAWidgetSecond)
{
    auto* const list = buildComponent<ZELComboList>("listCombo", comboOf("", comboRows(2)));
    EXPECT_EQ(list->m_strType, "ZELComboList");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(list)), static_cast<void*>(list));
    EXPECT_EQ(list->getQWidget(), static_cast<QWidget*>(list));
    list->hideWindow();
    EXPECT_TRUE(list->isHidden());
    list->showWindow();
    EXPECT_FALSE(list->isHidden());
}

TEST_F(ZELComboListTest, paintsAndHandlesEventsBehindTheOperationsOfAComponent)
{
    EXPECT_EQ(Combo::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Combo::slotOfEvent(), Combo::slotOfPaint() + slotSize);
}

TEST_F(ZELComboListTest, startsEmptyWithTheDefaults)
{
    Combo* const list = make<Combo>("<cmb/>", "ZELComboList");
    EXPECT_EQ(list->m_logger.m_strIdentity, "QTPANFx ZELComboList   ");
    EXPECT_EQ(QRect(list->m_nX, list->m_nY, list->m_nWidth, list->m_nHeight), QRect(0, 0, 1, 1));
    EXPECT_EQ(list->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(list->m_nListCount, 0);
    EXPECT_EQ(list->m_strMidImage + list->m_strEndImage + list->m_strPressImage, "");
    EXPECT_FALSE(list->m_bUp);
    EXPECT_FALSE(list->m_bSort);
    EXPECT_FALSE(list->m_bImage);
    EXPECT_EQ(list->m_nItemIndex, 0);
    EXPECT_EQ(list->getTotalPage(), 1);
    EXPECT_EQ(list->getNowPage(), 1);
    EXPECT_EQ(list->getEdit(), nullptr);
    EXPECT_EQ(list->getLineEdit(), nullptr);
    EXPECT_EQ(list->m_pListScroll, nullptr);
    EXPECT_EQ(list->getItemCount(), 0);
}

TEST_F(ZELComboListTest, readsItsLayout)
{
    const Combo* const list = scrolled("direction='UP' itemIndex='1' sort='YES'");
    EXPECT_TRUE(list->m_bUp);
    EXPECT_TRUE(list->m_bSort);
    EXPECT_TRUE(list->m_bImage);
    EXPECT_EQ(list->m_nItemIndex, 1);
    EXPECT_EQ(QRect(list->m_nX, list->m_nY, list->m_nWidth, list->m_nHeight),
              QRect(20, 100, 200, 120));
    EXPECT_EQ(list->m_strMidImage, "mid.png");
    EXPECT_EQ(list->m_strEndImage, "end.png");
    EXPECT_EQ(list->m_strPressImage, "press.png");
    EXPECT_EQ(list->m_nListCount, 4);
    ASSERT_NE(list->m_pListScroll, nullptr);
    EXPECT_EQ(static_cast<const ZELComponent*>(list->m_pListScroll)->m_strID, "scr");
}

TEST_F(ZELComboListTest, takesItsWordsExactly)
{
    for (const char* attributes :
         {"direction='up' sort='yes'", "direction='' sort=''", "direction='UP ' sort='true'"}) {
        const Combo* const list = combo(attributes);
        EXPECT_FALSE(list->m_bUp) << attributes;
        EXPECT_FALSE(list->m_bSort) << attributes;
    }
}

TEST_F(ZELComboListTest, needsAllThreePictures)
{
    for (const auto& [image, complete, lines] :
         {std::make_tuple("", false, 1), std::make_tuple("<image/>", false, 0),
          std::make_tuple("<image mid='mid.png' end='end.png'/>", false, 0),
          std::make_tuple("<image mid='mid.png' press='press.png'/>", false, 0),
          std::make_tuple("<image end='end.png' press='press.png'/>", false, 0),
          std::make_tuple("<image mid='' end='' press=''/>", true, 0)}) {
        log().startHere();
        const Combo* const list = combo("", image);
        EXPECT_EQ(list->m_bImage, complete) << image;
        EXPECT_EQ(log().count("[D] [setLayout] pImage is NULL", "ZELComboList"), lines) << image;
    }
}

TEST_F(ZELComboListTest, readsItsLayoutFirstAndDrawsLast)
{
    log().startHere();
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)");
    make<Combo>(comboOf("itemIndex='5'", comboRows(1) + "<nosuch><x/></nosuch>", ""),
                "ZELComboList");
    log().expectInOrder({"[D] [setLayout] pImage is NULL",
                         "[E] [createSubComponent] Fail to create a component (nosuch, x)",
                         buttonIsNull});
    EXPECT_EQ(log().count(buttonIsNull), 1) << "it draws once";
}

TEST_F(ZELComboListTest, aNullLayoutGivesAnEmptyList)
{
    log().expectError("[setLayout] cmb pLayout == NULL", 1, "ZELComboList");
    log().expectError("[createSubComponent] ZELComboList, Node * pLayout == NULL");
    Combo list(&panel(), "cmb", "ZELComboList", nullptr);
    log().expectInOrder({"[E] [setLayout] cmb pLayout == NULL",
                         "[E] [createSubComponent] ZELComboList, Node * pLayout == NULL"});
    EXPECT_TRUE(list.isHidden());
    EXPECT_EQ(list.m_nListCount, 0);
    log().expectError("[addItem] cmb has no rows", 2, "ZELComboList");
    list.add({"a", "b"});
    EXPECT_EQ(list.geometry(), QRect(0, 0, 100, 30)) << "never placed";
}

TEST_F(ZELComboListTest, isBornHiddenWithAllItsParts)
{
    expectScrollLines();
    Combo list(&panel(), "cmb", "ZELComboList",
               element(comboOf("", group("listscroll", scrollElement) + comboRows(4))));
    EXPECT_TRUE(list.isHidden());
    EXPECT_EQ(list.getComponentCount(), 5);
    for (int i = 0; i < list.getComponentCount(); ++i) {
        const QWidget* const part = list.ZELComponent::getSubComponent(i)->getQWidget();
        EXPECT_TRUE(part->isHidden()) << i;
        EXPECT_EQ(part->parentWidget(), &list);
    }
    EXPECT_EQ(list.height(), 0) << "no entries, no height";
    list.showWindow();
    EXPECT_FALSE(list.isHidden());
    EXPECT_EQ(list.rows(), "- - - -") << "this widget only";
}

TEST_F(ZELComboListTest, aShownOwnerShowsNothingOfIt)
{
    Combo* const list = combo();
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(&panel())).isNull());
    list->add({"a"});
    EXPECT_EQ(Pixels::inkBox(Pixels::grab(&panel())), QRect(20, 100, 90, 30)) << "two buttons";
}

TEST_F(ZELComboListTest, numbersItsRowsAnew)
{
    Combo* const list = combo();
    EXPECT_EQ(static_cast<Components::ZELListItem*>(list->row(3))->m_nRow, 3);
    delete list->getSubComponent("row1")->getQWidget();
    list->addListItem();
    EXPECT_EQ(list->m_nListCount, 3);
    EXPECT_EQ(static_cast<Components::ZELListItem*>(list->getSubComponent("row3"))->m_nRow, 2);
    list->add({"a", "b", "c", "d"});
    EXPECT_EQ(list->entries(), "b c d");
}

// ---- entries

TEST_F(ZELComboListTest, keepsAsManyEntriesAsRowsAndDropsTheOldest)
{
    Combo* const list = make<Combo>(comboOf("", comboRows(3)), "ZELComboList");
    list->add({"a", "b", "c", "d"});
    EXPECT_EQ(list->entries(), "b c d");
    EXPECT_EQ(list->rows(), "d c b");
}

TEST_F(ZELComboListTest, aRepeatedTextChangesNothing)
{
    Combo* const list = counted();
    list->add({"a", "b", "c"});
    EXPECT_EQ(draws(), 3);
    list->addItem("b");
    list->addItem("c");
    EXPECT_EQ(list->entries(), "a b c");
    EXPECT_EQ(draws(), 0);
}

TEST_F(ZELComboListTest, aRepeatedTextBecomesTheNewestWhereTheListSorts)
{
    Combo* const list = counted("sort='YES'");
    list->add({"a", "b", "c", "d"});
    draws();
    list->addItem("b");
    EXPECT_EQ(list->entries(), "a c d b") << "nothing is dropped for it";
    EXPECT_EQ(draws(), 1);
    list->addItem("b");
    EXPECT_EQ(list->entries(), "a c d b");
    EXPECT_EQ(draws(), 1) << "drawn also where nothing moves";
    list->addItem("e");
    EXPECT_EQ(list->entries(), "c d b e");
}

TEST_F(ZELComboListTest, anEmptyTextIsNoEntry)
{
    for (const char* attributes : {"", "sort='YES'"}) {
        Combo* const list = counted(attributes);
        list->addItem("");
        EXPECT_EQ(list->getItemCount(), 0);
        EXPECT_EQ(draws(), 0);
    }
}

TEST_F(ZELComboListTest, tellsTextsApartByLengthAndBytes)
{
    Combo* const list = combo();
    list->add({"a", "a ", "A", std::string("a\0b", 3)});
    EXPECT_EQ(list->getItemCount(), 4);
    EXPECT_EQ(list->findItem("a"), 0);
    EXPECT_EQ(list->findItem(std::string("a\0b", 3)), 3);
    EXPECT_EQ(list->findItem(std::string("a\0", 2)), -1);
}

TEST_F(ZELComboListTest, anIndexCountsFromTheOldestAndARankFromTheNewest)
{
    Combo* const list = combo();
    list->add({"a", "b", "c"});
    EXPECT_EQ(list->getItem(0), "a");
    EXPECT_EQ(list->getItem(2), "c");
    EXPECT_EQ(list->findItem("c"), 2);
    EXPECT_EQ(list->findItem("z"), -1);
    list->removeItem(0);
    EXPECT_EQ(list->entries(), "a b");
    list->removeItem(1);
    EXPECT_EQ(list->entries(), "b");
    list->add({"x", "y"});
    list->removeItem(list->getItemCount() - 1 - list->findItem("x"));
    EXPECT_EQ(list->entries(), "b y");
    EXPECT_EQ(list->rows(), "y b - -") << "drawn";
}

TEST_F(ZELComboListTest, anEntryThatThereIsNotThrowsOrIsRefused)
{
    Combo* const list = counted();
    list->add({"a", "b"});
    EXPECT_THROW(list->getItem(2), std::out_of_range);
    EXPECT_THROW(list->getItem(-1), std::out_of_range);
    draws();
    for (const int rank : {-1, 2}) {
        log().expectError("[removeItem] cmb has no item " + std::to_string(rank), 1,
                          "ZELComboList");
        list->removeItem(rank);
    }
    EXPECT_EQ(list->entries(), "a b");
    EXPECT_EQ(draws(), 0);
}

TEST_F(ZELComboListTest, emptiesItselfAndDraws)
{
    Combo* const list = combo();
    list->add({"a", "b"});
    list->clearItem();
    EXPECT_EQ(list->getItemCount(), 0);
    EXPECT_EQ(list->rows(), "- - - -");
    EXPECT_EQ(list->height(), 0);
    Combo* const other = counted();
    other->clearItem();
    EXPECT_EQ(draws(), 1) << "also when it was empty";
}

TEST_F(ZELComboListTest, withoutRowsItHoldsOneEntryAtMost)
{
    Combo* const list = make<Combo>(comboOf("", ""), "ZELComboList");
    log().expectError("[addItem] cmb has no rows", 3, "ZELComboList");
    list->add({"a", "b", "c"});
    EXPECT_EQ(list->entries(), "c");
    EXPECT_EQ(list->geometry(), QRect(20, 100, 200, 120)) << "not drawn";
    list->add({"", "c"}); // adds nothing and tells nothing
    EXPECT_EQ(list->entries(), "c");
}

// ---- pages

TEST_F(ZELComboListTest, keepsPagesAndHandsThemToItsScroll)
{
    Combo* const list = scrolled();
    list->setTotalPage(3);
    list->setNowPage(2);
    EXPECT_EQ(list->getTotalPage(), 3);
    EXPECT_EQ(list->getNowPage(), 2);
    EXPECT_EQ(list->m_pListScroll->m_nTotalPage, 3);
    EXPECT_EQ(list->m_pListScroll->m_nNowPage, 2);
    list->setNowPage(9);
    EXPECT_EQ(list->getNowPage(), 9) << "kept";
    EXPECT_EQ(list->m_pListScroll->m_nNowPage, 2) << "refused";
}

TEST_F(ZELComboListTest, keepsPagesWithoutAScroll)
{
    Combo* const list = combo();
    list->setTotalPage(3);
    list->setNowPage(-4);
    EXPECT_EQ(list->getTotalPage(), 3);
    EXPECT_EQ(list->getNowPage(), -4);
}

TEST_F(ZELComboListTest, pagesAndEntriesLeaveEachOtherAlone)
{
    Combo* const list = scrolled();
    list->setTotalPage(2);
    list->add({"a", "b", "c", "d", "e"});
    list->removeItem(0);
    EXPECT_EQ(list->getTotalPage(), 2);
    EXPECT_EQ(list->getNowPage(), 1);
}

TEST_F(ZELComboListTest, aNewPageDoesNotDraw)
{
    Combo* const list = counted();
    list->setNowPage(2);
    EXPECT_EQ(draws(), 0);
    EXPECT_TRUE(send(list, {EVENT_PAGE_DOWN, Kind::Range}));
    EXPECT_EQ(list->getNowPage(), 7);
    EXPECT_EQ(draws(), 0);
}

// ---- the edits that are tied to it

TEST_F(ZELComboListTest, tiesAndUntiesEdits)
{
    Combo* const list = combo();
    auto* const edit = buildComponent<ZELImageEdit>("imageEdit", "<e style='normal'/>");
    auto* const lineEdit = buildComponent<ZELLineEdit>("lineedit", "<l style='normal'/>");
    list->setEdit(edit);
    list->setLineEdit(lineEdit);
    EXPECT_EQ(list->getEdit(), edit);
    EXPECT_EQ(list->getLineEdit(), lineEdit);
    list->setEdit(nullptr);
    list->setLineEdit(nullptr);
    EXPECT_EQ(list->getEdit(), nullptr);
    EXPECT_EQ(list->getLineEdit(), lineEdit) << "a line edit is never untied";
}

TEST_F(ZELComboListTest, anEditThatIsGoneIsUntied)
{
    Combo* const list = combo();
    auto* const edit = buildComponent<ZELImageEdit>("imageEdit", "<e style='normal'/>");
    auto* const lineEdit = buildComponent<ZELLineEdit>("lineedit", "<l style='normal'/>");
    list->setEdit(edit);
    list->setLineEdit(lineEdit);
    delete edit;
    delete lineEdit;
    EXPECT_EQ(list->getEdit(), nullptr);
    EXPECT_EQ(list->getLineEdit(), nullptr);
}

// ---- the end

TEST_F(ZELComboListTest, drawsOnceMoreAtItsEndWhileItsRowsAreThere)
{
    Combo* const list = counted();
    list->add({"a", "b"});
    draws();
    delete list;
    EXPECT_EQ(draws(), 1);
}

TEST_F(ZELComboListTest, goesWithAFullListAndAScroll)
{
    Combo* const list = scrolled("direction='UP'");
    list->setTotalPage(2);
    list->add({"a", "b", "c", "d", "e"});
    const QPointer<QWidget> row(list->row(0)->getQWidget());
    delete list;
    EXPECT_TRUE(row.isNull());
}
