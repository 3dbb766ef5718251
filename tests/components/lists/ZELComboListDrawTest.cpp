#include "components/lists/ComboTest.h"

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

class ZELComboListDrawTest : public ComboTest
{
};

} // namespace

// ---- geometry

TEST_F(ZELComboListDrawTest, onOnePageItShrinksToItsEntriesFromTheTop)
{
    Combo* const list = combo();
    EXPECT_EQ(list->geometry(), QRect(20, 100, 200, 0));
    int height = 0;
    for (const char* text : {"a", "b", "c", "d"}) {
        list->addItem(text);
        EXPECT_EQ(list->geometry(), QRect(20, 100, 200, height += 30));
    }
    list->removeItem(0);
    EXPECT_EQ(list->geometry(), QRect(20, 100, 200, 90));
}

TEST_F(ZELComboListDrawTest, openingUpwardItShrinksOntoItsBottom)
{
    Combo* const list = combo("direction='UP'");
    list->add({"a", "b"});
    EXPECT_EQ(list->geometry(), QRect(20, 160, 200, 60)) << "two of four rows of 30";
    list->add({"c", "d"});
    EXPECT_EQ(list->geometry(), QRect(20, 100, 200, 120));
    list->clearItem();
    EXPECT_EQ(list->geometry(), QRect(20, 220, 200, 0));
}

TEST_F(ZELComboListDrawTest, withOnePageTheScrollIsHiddenAndItsWidthTaken)
{
    for (const char* attributes : {"", "direction='UP'"}) {
        Combo* const list = scrolled(attributes);
        list->add({"a", "b", "c", "d"});
        EXPECT_EQ(list->geometry(), QRect(20, 100, 140, 120)) << attributes;
        EXPECT_TRUE(list->m_pListScroll->isHidden());
    }
}

TEST_F(ZELComboListDrawTest, withMorePagesItHasItsFullHeightAndShowsTheScroll)
{
    for (const char* attributes : {"", "direction='UP'"}) {
        Combo* const list = scrolled(attributes);
        list->add({"a"});
        list->setTotalPage(2);
        EXPECT_EQ(list->height(), 30) << "not before it draws";
        list->draw();
        EXPECT_EQ(list->geometry(), QRect(20, 100, 200, 120)) << attributes;
        EXPECT_TRUE(list->m_pListScroll->isVisible());
        list->setTotalPage(1);
        list->draw();
        EXPECT_TRUE(list->m_pListScroll->isHidden());
        EXPECT_EQ(list->width(), 140);
    }
}

TEST_F(ZELComboListDrawTest, aTotalOfNothingCountsAsMorePages)
{
    Combo* const list = combo();
    list->setTotalPage(0);
    list->addItem("a");
    EXPECT_EQ(list->geometry(), QRect(20, 100, 200, 120));
}

TEST_F(ZELComboListDrawTest, aListThatWasMovedStaysWhereItIsButForTheTopOfAnUpwardOne)
{
    for (const int total : {1, 2}) {
        Combo* const down = combo();
        down->setTotalPage(total);
        down->move(300, 10);
        down->add({"a", "b"});
        EXPECT_EQ(down->pos(), QPoint(300, 10)) << total;
        Combo* const up = combo("direction='UP'");
        up->setTotalPage(total);
        up->move(300, 10);
        up->add({"a", "b"});
        EXPECT_EQ(up->pos(), QPoint(300, total == 1 ? 160 : 100)) << total;
    }
}

TEST_F(ZELComboListDrawTest, dividesItsHeightInWholePixels)
{
    Combo* const list =
        make<Combo>("<cmb direction='UP'>" + at(0, 50, 80, 100) + images + comboRows(3) + "</cmb>",
                    "ZELComboList");
    list->addItem("a");
    EXPECT_EQ(list->geometry(), QRect(0, 50 + 2 * 33, 80, 33));
    list->add({"b", "c"});
    EXPECT_EQ(list->geometry(), QRect(0, 50, 80, 99)) << "and not 100";
}

TEST_F(ZELComboListDrawTest, withoutRowsItDoesNotDraw)
{
    Combo* const list = make<Combo>(comboOf("", ""), "ZELComboList");
    list->resize(33, 44);
    list->draw();
    EXPECT_EQ(list->size(), QSize(33, 44));
}

// ---- rows

TEST_F(ZELComboListDrawTest, theNewestStandsAtTheTopDownward)
{
    Combo* const list = combo();
    list->add({"a", "b", "c"});
    EXPECT_EQ(list->rows(), "c b a -");
    EXPECT_EQ(list->pictures(3), "mid.png mid.png end.png") << "the end is far from the field";
    list->removeItem(2);
    EXPECT_EQ(list->rows(), "c b - -");
    EXPECT_EQ(list->pictures(2), "mid.png end.png");
    list->removeItem(0);
    EXPECT_EQ(list->rows(), "b - - -");
    EXPECT_EQ(list->pictures(1), "end.png");
}

TEST_F(ZELComboListDrawTest, theNewestStandsAtTheBottomUpward)
{
    Combo* const list = combo("direction='UP'");
    list->add({"a", "b", "c"});
    EXPECT_EQ(list->rows(), "a b c -");
    EXPECT_EQ(list->pictures(3), "end.png mid.png mid.png");
    list->addItem("d");
    list->addItem("e");
    EXPECT_EQ(list->rows(), "b c d e");
}

TEST_F(ZELComboListDrawTest, givesARowItsPressedAndNoDimPicture)
{
    Combo* const list = combo();
    list->addItem("a");
    EXPECT_EQ(list->button(0)->*Combo::Door::down, "press.png");
    EXPECT_EQ(list->button(0)->*Combo::Door::dim, "");
    list->showWindow();
    EXPECT_EQ(Pixels::at(Pixels::grab(&panel()), 21, 101), QColor(Qt::darkBlue));
    Touch::press(list->button(0));
    EXPECT_EQ(Pixels::at(Pixels::grab(&panel()), 21, 101), QColor(Qt::darkRed));
}

TEST_F(ZELComboListDrawTest, rowsBeyondTheEntriesAreHiddenWithoutAScroll)
{
    Combo* const list = combo();
    list->add({"a", "b"});
    list->clearItem();
    list->addItem("z");
    EXPECT_EQ(list->rows(), "z - - -");
    EXPECT_EQ(list->button(1)->getTitle(), "a") << "left as it was";
}

TEST_F(ZELComboListDrawTest, rowsBeyondTheEntriesAreDeadAndBlankWithAScroll)
{
    Combo* const list = scrolled();
    list->add({"a", "b"});
    EXPECT_EQ(list->rows(), "b a ~ ~");
    list->removeItem(0);
    EXPECT_EQ(list->rows(), "a ~ ~ ~");
    list->add({"c", "d", "e"});
    EXPECT_EQ(list->rows(), "e d c a") << "alive again";
    EXPECT_TRUE(list->row(3)->getQWidget()->isEnabled());
}

TEST_F(ZELComboListDrawTest, withoutAllPicturesNoTitleIsWrittenThoughTheRowsAreThere)
{
    for (const char* image : {"", "<image mid='mid.png' end='end.png'/>"}) {
        Combo* const list = combo("", image);
        list->add({"a", "b"});
        EXPECT_EQ(list->entries(), "a b");
        for (int i : {0, 1}) {
            EXPECT_FALSE(list->row(i)->getQWidget()->isHidden());
            EXPECT_TRUE(list->row(i)->getQWidget()->isEnabled());
            EXPECT_EQ(list->button(i)->getTitle(), "");
        }
        EXPECT_EQ(list->pictures(2), "up.png up.png") << "those of the layout";
        EXPECT_TRUE(list->row(2)->getQWidget()->isHidden());
    }
}

TEST_F(ZELComboListDrawTest, aDeadRowIsBlankWhateverThePictures)
{
    for (const char* image : {"", "<image mid='mid.png' end='end.png'/>"}) {
        expectScrollLines();
        std::string titled;
        for (int i = 0; i < 4; ++i)
            titled += row("row" + std::to_string(i), 30 * i,
                          group("button", cell("text", 0, "title='t' style='normal'")));
        Combo* const list = make<Combo>(
            comboOf("", group("listscroll", scrollElement) + group("listitem", titled), image),
            "ZELComboList");
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(list->button(i)->getTitle(), "") << "it has drawn without an entry";
            list->button(i)->setTitle("t");
        }
        list->addItem("a");
        EXPECT_EQ(list->rows(), "t ~ ~ ~") << "the one of the entry keeps its title";
    }
}

TEST_F(ZELComboListDrawTest, writesIntoTheButtonThatItemIndexNames)
{
    Combo* const list = combo("itemIndex='1'");
    list->add({"a", "b"});
    for (const int i : {0, 1}) {
        EXPECT_EQ(list->row(i)->getSubComponent("more"), list->button(i));
        EXPECT_EQ(list->button(i)->getTitle(), i == 0 ? "b" : "a");
    }
}

TEST_F(ZELComboListDrawTest, anUnusedPageChangesNothing)
{
    Combo* const list = combo();
    list->add({"a", "b"});
    list->setNowPage(2);
    list->draw();
    EXPECT_EQ(list->rows(), "b a - -");
}

TEST_F(ZELComboListDrawTest, rowsThatAreNoLongerThereLeaveTheEntries)
{
    Combo* const list = combo();
    list->add({"a", "b", "c", "d"});
    delete list->getSubComponent("row3")->getQWidget();
    list->addListItem();
    list->draw();
    EXPECT_EQ(list->rows(), "d c b");
    EXPECT_EQ(list->height(), 4 * 40) << "by the entries";
}
