#include "components/lists/ComboTest.h"

#include "components/editors/ZELImageEdit.h"
#include "components/editors/ZELImageNumberEdit.h"
#include "components/text/ZELLineEdit.h"

#include <climits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageEdit;
using Components::ZELImageNumberEdit;
using Components::ZELLineEdit;

namespace {

using Posted = std::vector<std::string>;

struct LineEditDoor : ZELLineEdit
{
    static constexpr auto showMode = &LineEditDoor::m_bShowMode;
};

class ZELComboListChoiceTest : public ComboTest
{
protected:
    // opened, with these entries and an edit tied to it
    Combo* opened(Combo* list, const std::vector<std::string>& texts = {"a", "b", "c"})
    {
        m_edit = buildComponent<ZELImageEdit>("imageEdit",
                                              "<e style='normal'>" + at(400, 0, 90, 30) + "</e>");
        list->setEdit(m_edit);
        list->add(texts);
        list->showWindow();
        EventLoop::deliver();
        panel().take();
        log().startHere();
        return list;
    }

    Outcome handOver(Combo* list, const Incoming& incoming)
    {
        return ListTest::handOver(list, "ZELComboList", incoming);
    }

    static std::string inList(int number, int row, int column)
    {
        return std::to_string(number) + " ZELListEvent cmb (" + std::to_string(row) + ", " +
               std::to_string(column) + ")";
    }

    ZELLineEdit* lineEdit()
    {
        return buildComponent<ZELLineEdit>("lineedit",
                                           "<l style='normal'>" + at(500, 0, 90, 30) + "</l>");
    }

    ZELImageEdit* m_edit = nullptr;
};

} // namespace

// ---- the table of events

TEST_F(ZELComboListChoiceTest, forwardsEveryListEventAndEveryPage)
{
    for (const char* attributes : {"", "direction='UP'"}) {
        Combo* const list = opened(combo(attributes));
        for (const int type : allNumbers()) {
            for (const Kind kind : allKinds) {
                for (const bool header : {false, true}) {
                    Incoming incoming{type, kind, 2, 1, header};
                    incoming.sender = list->row(2)->getSubComponent("more")->getQWidget();
                    Outcome expected{true, {}, {}};
                    list->m_nNowPage = 1;
                    if (kind == Kind::List)
                        expected.posted = {inList(type, list->m_bUp ? 0 : 2, 1)};
                    if (kind == Kind::Range)
                        expected.posted = {std::to_string(type) + " ZELRangeEvent cmb 7"};
                    if (kind == Kind::Plain) {
                        expectForeign("cmb", type);
                        expected.lines = {"[E] [event] cmb got an event " + std::to_string(type) +
                                          " that is no ZELEvent"};
                    }
                    EXPECT_EQ(handOver(list, incoming), expected) << incoming;
                    EXPECT_EQ(list->m_nNowPage, kind == Kind::Range ? 7 : 1);
                }
            }
        }
        EXPECT_TRUE(list->isVisible());
        EXPECT_EQ(m_edit->text(), "");
        list->hideWindow();
    }
}

TEST_F(ZELComboListChoiceTest, everyListEventInTheColumnOfTheTextsIsAChoice)
{
    Combo* const list = opened(combo());
    for (const int type : allNumbers()) {
        for (const bool header : {false, true}) {
            list->showWindow();
            m_edit->clear();
            Incoming incoming{type, Kind::List, 1, 0, header};
            incoming.sender = list->button(1);
            EXPECT_EQ(handOver(list, incoming), (Outcome{true, {inList(type, 1, 0)}, {}}))
                << incoming;
            EXPECT_EQ(m_edit->text(), "b") << incoming;
            EXPECT_TRUE(list->isHidden()) << incoming;
        }
    }
}

TEST_F(ZELComboListChoiceTest, anythingBelowAClickIsQts)
{
    Combo* const list = opened(combo());
    EXPECT_FALSE(send(list, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        for (const Kind kind : allKinds) {
            Incoming incoming{type, kind};
            incoming.sender = list->button(0);
            EXPECT_EQ(handOver(list, incoming), (Outcome{true, {}, {}})) << type;
        }
    }
    EXPECT_TRUE(list->isVisible());
}

TEST_F(ZELComboListChoiceTest, aSenderThatIsNoneOrNoButtonChoosesNothing)
{
    Combo* const list = opened(combo());
    EXPECT_EQ(handOver(list, {EVENT_MOUSE_UP, Kind::List, 1, 0}),
              (Outcome{true, {inList(1552, 1, 0)}, {}}));
    QObject stranger;
    for (QObject* const sender : {&stranger, static_cast<QObject*>(list->row(0)->getQWidget()),
                                  static_cast<QObject*>(m_edit)}) {
        Incoming incoming{EVENT_MOUSE_UP, Kind::List, 1, 0};
        incoming.sender = sender;
        log().expectError("[event] cmb: what was chosen is no button", 1, "ZELComboList");
        EXPECT_EQ(handOver(list, incoming).posted, Posted{inList(1552, 1, 0)});
        log().verify();
    }
    EXPECT_EQ(m_edit->text(), "");
    EXPECT_TRUE(list->isVisible());
}

TEST_F(ZELComboListChoiceTest, aRowNumberFarAwayIsHeldAtTheEndOfItsRange)
{
    Combo* const list = opened(combo("direction='UP'"), {"a", "b"});
    ASSERT_TRUE(list->m_bUp);
    EXPECT_EQ(handOver(list, {EVENT_MOUSE_UP, Kind::List, INT_MIN, 1}).posted,
              Posted{inList(1552, INT_MAX, 1)});
    EXPECT_EQ(handOver(list, {EVENT_MOUSE_UP, Kind::List, INT_MAX, 1}).posted,
              Posted{inList(1552, 1 - INT_MAX, 1)});
}

TEST_F(ZELComboListChoiceTest, aLabelInTheColumnOfTheTextsChoosesNothing)
{
    Combo* const list = make<Combo>(
        comboOf("", group("listitem", row("row0", 0,
                                          group("label", "<l title='t' style='normal'>" +
                                                             at(0, 0, 40, 30) + "</l>")))),
        "ZELComboList");
    opened(list, {"a"});
    list->row(0)->showWindow();
    log().expectError("[event] cmb: what was chosen is no button", 1, "ZELComboList");
    Touch::tapWindow(list->row(0)->getSubComponent("l")->getQWidget());
    EXPECT_EQ(toldOne(list), inList(1552, 0, 0));
    EXPECT_TRUE(list->isVisible());
}

// ---- touches

TEST_F(ZELComboListChoiceTest, aTouchCopiesTheTextClosesTheListAndTellsTheRank)
{
    Combo* const list = opened(combo());
    Touch::tapWindow(list->button(0));
    EXPECT_EQ(toldOne(list), inList(1552, 0, 0));
    EXPECT_EQ(m_edit->text(), "c");
    EXPECT_TRUE(list->isHidden());
    EXPECT_EQ(list->entries(), "a b c") << "in their order";
}

TEST_F(ZELComboListChoiceTest, theRankOfARowIsTheSameInBothDirections)
{
    for (const char* attributes : {"", "direction='UP'"}) {
        for (int rank = 0; rank < 3; ++rank) {
            Combo* const list = opened(combo(attributes));
            Touch::tapWindow(list->button(list->m_bUp ? 2 - rank : rank));
            const RecordedEvent event = panel().takeOne();
            const std::string chosen = m_edit->text();
            EXPECT_EQ(event.row, rank) << attributes;
            EXPECT_EQ(chosen, list->getItem(2 - rank)) << attributes;
            EXPECT_EQ(list->getItemCount() - 1 - list->findItem(chosen), event.row);
            list->removeItem(event.row);
            EXPECT_EQ(list->findItem(chosen), -1) << "it is the number to remove by";
        }
    }
}

TEST_F(ZELComboListChoiceTest, theScrollsPageArrivesAndIsKept)
{
    Combo* const list = opened(scrolled());
    list->setTotalPage(3);
    list->draw();
    EXPECT_EQ(list->getNowPage(), 1);
    QWidget* const down = partOf(list->m_pListScroll, "downbtn")->getQWidget();
    QWidget* const up = partOf(list->m_pListScroll, "upbtn")->getQWidget();
    Touch::tap(down);
    EXPECT_EQ(toldOne(list), "1582 ZELRangeEvent cmb 2");
    EXPECT_EQ(list->getNowPage(), 2);
    Touch::tap(up);
    EXPECT_EQ(toldOne(list), "1581 ZELRangeEvent cmb 1");
    EXPECT_EQ(list->getNowPage(), 1);
    EXPECT_TRUE(list->isVisible());
}

TEST_F(ZELComboListChoiceTest, anotherColumnIsForwardedAndChoosesNothing)
{
    Combo* const list = opened(combo());
    Touch::tapWindow(list->row(1)->getSubComponent("more")->getQWidget());
    EXPECT_EQ(toldOne(list), inList(1552, 1, 1));
    EXPECT_EQ(m_edit->text(), "");
    EXPECT_TRUE(list->isVisible());
}

TEST_F(ZELComboListChoiceTest, theFirstTickOfAHoldChoosesAndClosesTheListUnderTheFinger)
{
    Combo* const list = make<Combo>(
        comboOf("", group("listitem",
                          row("row0", 0, group("button", cell("text", 0, "longpress='true'"))))),
        "ZELComboList");
    opened(list, {"a"});
    Touch::press(list->button(0));
    tickHeld(list->button(0));
    EXPECT_EQ(toldOne(list), inList(1571, 0, 0));
    EXPECT_EQ(m_edit->text(), "a");
    EXPECT_TRUE(list->isHidden());
}

TEST_F(ZELComboListChoiceTest, aDeadRowTakesNoTouch)
{
    Combo* const list = opened(scrolled(), {"a"});
    list->setTotalPage(2);
    list->draw();
    Touch::tapWindow(list->button(2));
    EXPECT_TRUE(panel().take(EVENT_MOUSE_UP).empty());
    EXPECT_TRUE(list->isVisible());
}

// ---- where the text goes

TEST_F(ZELComboListChoiceTest, anEditGoesBeforeALineEdit)
{
    Combo* const list = opened(combo());
    ZELLineEdit* const other = lineEdit();
    list->setLineEdit(other);
    Touch::tapWindow(list->button(1));
    EventLoop::deliver();
    EXPECT_EQ(m_edit->text(), "b");
    EXPECT_EQ(other->text(), QString());
    EXPECT_FALSE(other->*LineEditDoor::showMode);
}

TEST_F(ZELComboListChoiceTest, aLineEditTakesTheTextAndShowsItNext)
{
    Combo* const list = opened(combo());
    ZELLineEdit* const field = lineEdit();
    list->setLineEdit(field);
    list->setEdit(nullptr);
    Touch::tapWindow(list->button(1));
    EventLoop::deliver();
    EXPECT_EQ(field->text(), QStringLiteral("b"));
    EXPECT_TRUE(field->*LineEditDoor::showMode);
    EXPECT_EQ(m_edit->text(), "");
}

TEST_F(ZELComboListChoiceTest, aLineEditTakesTheTextByteByByteAndAnEditAsItIs)
{
    const std::string text = "\xC3\xA9\xEA\xB0\x80"; // an e with an accent, and Hangul
    Combo* const list = opened(combo(), {text});
    Touch::tapWindow(list->button(0));
    EventLoop::deliver();
    EXPECT_EQ(m_edit->text(), text);
    ZELLineEdit* const field = lineEdit();
    list->setLineEdit(field);
    list->setEdit(nullptr);
    list->showWindow();
    Touch::tapWindow(list->button(0));
    EventLoop::deliver();
    EXPECT_EQ(field->text(), QString::fromLatin1(text.c_str()));
    EXPECT_EQ(field->text().size(), 5);
}

// An empty text empties a number field where it comes as characters; as a std::string it is 0.
TEST_F(ZELComboListChoiceTest, aNumberFieldIsHandedCharacters)
{
    Combo* const list = opened(combo("", ""));
    auto* const number = buildComponent<ZELImageNumberEdit>(
        "imageNumberEdit", "<n style='normal'>" + at(600, 0, 90, 30) + "</n>");
    number->setText("5");
    EXPECT_EQ(number->text(), "5");
    list->setEdit(number);
    Touch::tapWindow(list->button(0));
    EXPECT_EQ(toldOne(list), inList(1552, 0, 0));
    EXPECT_EQ(number->text(), "");
}

TEST_F(ZELComboListChoiceTest, withoutAnEditItClosesAndTellsAllTheSame)
{
    Combo* const list = opened(combo());
    list->setEdit(nullptr);
    Touch::tapWindow(list->button(1));
    EXPECT_EQ(toldOne(list), inList(1552, 1, 0));
    EXPECT_EQ(log().texts("ZELComboList"), Posted{"[D] [event] both NULL"});
    EXPECT_TRUE(list->isHidden());
}

TEST_F(ZELComboListChoiceTest, anEditThatIsGoneIsNone)
{
    Combo* const list = opened(combo());
    delete m_edit;
    Touch::tapWindow(list->button(1));
    EXPECT_EQ(toldOne(list), inList(1552, 1, 0));
    EXPECT_EQ(log().count("[D] [event] both NULL", "ZELComboList"), 1);
}

// ---- order

TEST_F(ZELComboListChoiceTest, aChosenTextBecomesTheNewestWhereTheListSorts)
{
    for (const char* direction : {"", "direction='UP' "}) {
        Combo* const list = opened(combo(std::string(direction) + "sort='YES'"));
        const int row = list->m_bUp ? 0 : 2; // the oldest
        Touch::tapWindow(list->button(row));
        EXPECT_EQ(toldOne(list), inList(1552, 2, 0)) << "the rank that it had";
        EXPECT_EQ(m_edit->text(), "a");
        EXPECT_EQ(list->entries(), "b c a");
        EXPECT_EQ(list->rows(), list->m_bUp ? "b c a -" : "a c b -");
    }
}

TEST_F(ZELComboListChoiceTest, aTitleThatIsNoLongerAnEntryIsAddedWhereTheListSorts)
{
    Combo* const list = opened(combo("sort='YES'"));
    list->button(1)->setTitle("late");
    Touch::tapWindow(list->button(1));
    EventLoop::deliver();
    EXPECT_EQ(list->entries(), "a b c late");
    EXPECT_EQ(m_edit->text(), "late");
    list->showWindow();
    list->button(1)->setTitle("");
    Touch::tapWindow(list->button(1));
    EventLoop::deliver();
    EXPECT_EQ(list->entries(), "a b c late") << "an empty one is none";
    EXPECT_TRUE(list->isHidden());
}

TEST_F(ZELComboListChoiceTest, withoutAParentItSaysSo)
{
    Combo list(nullptr, "cmb", "ZELComboList", element(comboOf("", comboRows(1))));
    log().expectError("[event] cmb has no parent", 2, "ZELComboList");
    EXPECT_TRUE(send(&list, {EVENT_MOUSE_UP, Kind::List, 0, 1}));
    EXPECT_TRUE(send(&list, {EVENT_PAGE_UP, Kind::Range}));
}
