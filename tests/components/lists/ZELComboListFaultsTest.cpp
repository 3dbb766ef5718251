#include "components/lists/ComboTest.h"

#include <functional>
#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

const std::string buttonIsNull = "[D] [ZELComboList::draw] button is NULL";

// an application's row that does something of its own when it is hidden
class OwnRow : public Components::ZELListItem
{
public:
    using ZELListItem::ZELListItem;

    void hideWindow() override
    {
        if (whenHidden)
            whenHidden();
    }

    std::function<void()> whenHidden;
};

class ZELComboListFaultsTest : public ComboTest
{
};

} // namespace

TEST_F(ZELComboListFaultsTest, anItemIndexThatIsNoButtonSkipsTheRows)
{
    for (const char* index : {"5", "-1", "2147483647", "-2147483648", "99999999999"}) {
        log().startHere();
        Combo* const list = combo("itemIndex='" + std::string(index) + "'");
        EXPECT_EQ(log().count(buttonIsNull, "ZELComboList"), 4) << index;
        list->add({"a"});
        EXPECT_EQ(log().count(buttonIsNull, "ZELComboList"), 8) << index;
        EXPECT_EQ(list->height(), 30) << "the rest is drawn";
        EXPECT_TRUE(list->row(0)->getQWidget()->isHidden());
    }
}

TEST_F(ZELComboListFaultsTest, anItemIndexThatNamesALabelSkipsTheRow)
{
    const std::string labelled = row("row0", 0, group("label", "<l title='t' style='normal'/>")) +
                                 row("row1", 30, group("button", cell("text", 0)));
    Combo* const list = make<Combo>(comboOf("", group("listitem", labelled)), "ZELComboList");
    log().startHere();
    list->add({"a", "b"});
    EXPECT_EQ(log().count(buttonIsNull, "ZELComboList"), 2) << "one row, two draws";
    EXPECT_TRUE(list->row(0)->getQWidget()->isHidden());
    EXPECT_EQ(list->button(1)->getTitle(), "a") << "the others are drawn";
}

TEST_F(ZELComboListFaultsTest, aRowThatIsGoneIsSkipped)
{
    Combo* const list = combo();
    delete list->getSubComponent("row1")->getQWidget();
    log().startHere();
    list->add({"a", "b", "c"});
    EXPECT_EQ(log().count("[D] [ZELComboList::draw] list item is NULL", "ZELComboList"), 3);
    EXPECT_EQ(list->button(0)->getTitle(), "c");
    EXPECT_EQ(list->button(2)->getTitle(), "a");
}

TEST_F(ZELComboListFaultsTest, aRowWithoutAnIdIsSkipped)
{
    Combo* const list = combo();
    list->m_arrItemId.RemoveAt(3);
    log().startHere();
    list->addItem("a");
    EXPECT_EQ(log().count("[D] [ZELComboList::draw] list item ID is NULL", "ZELComboList"), 1);
}

TEST_F(ZELComboListFaultsTest, whatARowThrowsAtTheEndIsToldAndGoesNoFurther)
{
    const std::function<void()> throwLength = [] { throw std::length_error("x"); };
    const std::function<void()> throwRange = [] { throw std::out_of_range("x"); };
    const std::function<void()> throwOther = [] { throw 1; };
    for (const auto& [line, thrower] : {std::pair("length error", throwLength),
                                        {"out of range error", throwRange},
                                        {"Exception error", throwOther}}) {
        Combo* const list = combo();
        auto* const own = new OwnRow(list, "own", "ZELListItem",
                                     element(row("own", 0, group("button", cell("text", 0)))));
        list->m_dqSubComponents.push_back(own);
        list->addListItem();
        own->whenHidden = thrower;
        log().expectError("[~ZELComboList] " + std::string(line), 1, "ZELComboList");
        delete list;
    }
}

TEST_F(ZELComboListFaultsTest, anItemIndexThatIsNoNumberIsTheFirst)
{
    EXPECT_EQ(combo("itemIndex=''")->m_nItemIndex, 0);
    EXPECT_EQ(combo("itemIndex='x'")->m_nItemIndex, 0);
    EXPECT_EQ(combo("itemIndex='01'")->m_nItemIndex, 1) << "base 10";
}

TEST_F(ZELComboListFaultsTest, aRowOfOtherButtonsCarriesTextsToo)
{
    for (const char* keyword : {"checkbutton", "radiobutton", "headerbutton", "tabbutton"}) {
        Combo* const list = make<Combo>(
            comboOf("", group("listitem", row("row0", 0, group(keyword, cell("text", 0))))),
            "ZELComboList");
        list->addItem("a");
        EXPECT_EQ(list->rows(), "a") << keyword;
    }
}
