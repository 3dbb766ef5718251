#include "components/lists/ZELListScroll.h"

#include "components/buttons/ZELImageButton.h"
#include "components/lists/ScrollTest.h"

#include <climits>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELListScroll;

namespace {

class ZELListScrollTest : public ScrollTest
{
};

} // namespace

// ---- building

TEST_F(ZELListScrollTest, isAComponentFirstAndAWidgetSecond)
{
    expectScrollLines();
    auto* const scroll = buildComponent<ZELListScroll>("listscroll", scrollElement);
    EXPECT_EQ(scroll->m_strType, "ZELListScroll");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(scroll)), static_cast<void*>(scroll));
    EXPECT_EQ(scroll->getQWidget(), static_cast<QWidget*>(scroll));
    EXPECT_EQ(scroll->geometry(), QRect(310, 0, 60, 120));
    scroll->hideWindow();
    EXPECT_TRUE(scroll->isHidden());
    scroll->showWindow();
    EXPECT_TRUE(scroll->isVisible());
}

TEST_F(ZELListScrollTest, paintsAndHandlesEventsBehindTheOperationsOfAComponent)
{
    EXPECT_EQ(Scroll::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Scroll::slotOfEvent(), Scroll::slotOfPaint() + slotSize);
}

TEST_F(ZELListScrollTest, startsAtPageOneOfOne)
{
    Scroll* const scroll = this->scroll();
    EXPECT_EQ(scroll->m_logger.m_strIdentity, "QTPANFx ZELListScroll  ");
    EXPECT_EQ(scroll->m_nTotalPage, 1);
    EXPECT_EQ(scroll->m_nNowPage, 1);
    EXPECT_EQ(scroll->m_nType, 0);
    EXPECT_EQ(scroll->dims(), "up down");
    EXPECT_EQ(scroll->shown(), "1/1");
}

TEST_F(ZELListScrollTest, placesItsParts)
{
    Scroll* const scroll = this->scroll();
    EXPECT_EQ(scroll->label()->geometry(), QRect(10, 40, 40, 40));
    EXPECT_EQ(scroll->m_pUpBtn->geometry(), QRect(0, 0, 60, 40));
    EXPECT_EQ(scroll->m_pDownBtn->geometry(), QRect(0, 80, 60, 40));
    for (const QWidget* const part :
         {static_cast<QWidget*>(scroll->label()), static_cast<QWidget*>(scroll->m_pUpBtn),
          static_cast<QWidget*>(scroll->m_pDownBtn)}) {
        EXPECT_EQ(part->parentWidget(), scroll);
        EXPECT_TRUE(part->isVisible()) << "nobody shows them, the scroll takes them along";
    }
    EXPECT_EQ(static_cast<ZELComponent*>(scroll->m_pUpBtn)->m_strID, "upbtn");
    EXPECT_EQ(static_cast<ZELComponent*>(scroll->m_pDownBtn)->m_strID, "downbtn");
    EXPECT_EQ(static_cast<ZELComponent*>(scroll->m_pPageLabel)->m_strID, "page");
    EXPECT_EQ(static_cast<ZELComponent*>(scroll->m_pUpBtn)->m_strType, "ZELImageButton");
    EXPECT_EQ(static_cast<ZELComponent*>(scroll->m_pPageLabel)->m_strType, "ZELLabel");
}

TEST_F(ZELListScrollTest, itsPartsAreNoSubComponents)
{
    Scroll* const scroll = this->scroll();
    EXPECT_EQ(scroll->getComponentCount(), 0);
    EXPECT_EQ(scroll->getSubComponent("upbtn"), nullptr);
    scroll->hideSubComponent();
    EXPECT_TRUE(scroll->m_pUpBtn->isVisible());
}

TEST_F(ZELListScrollTest, makesItsPartsInTheirOrder)
{
    log().startHere();
    expectScrollLines();
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)");
    make<Scroll>(scrollOf("", label + pageUp + pageDown + "<nosuch><x/></nosuch>"),
                 "ZELListScroll");
    log().expectInOrder({"[E] [createSubComponent] Fail to create a component (nosuch, x)",
                         "[E] [setLayout] page pLayout == NULL", "[D] Node page start",
                         "[E] [setLayout] upbtn pLayout == NULL", "[D] Node Upbutton start",
                         "[E] [setLayout] downbtn pLayout == NULL", "[D] Node DownButton start"});
    EXPECT_EQ(log().texts("ZELListScroll"),
              (std::vector<std::string>{"[D] Node page start", "[D] Node Upbutton start",
                                        "[D] Node DownButton start"}));
}

TEST_F(ZELListScrollTest, takesFurtherComponentsAsSubComponents)
{
    Scroll* const scroll =
        this->scroll("", label + pageUp + pageDown + group("button", cell("more", 0)));
    ASSERT_EQ(scroll->getComponentCount(), 1);
    EXPECT_EQ(scroll->getSubComponent("more")->getQWidget()->parentWidget(), scroll);
    EXPECT_TRUE(scroll->getSubComponent("more")->getQWidget()->isVisible());
}

TEST_F(ZELListScrollTest, placesAreZeroAndOneByDefault)
{
    log().expectError("[getImage] No FileName Error", 4, "ZELImageMgr"); // up and down of each
    Scroll* const scroll =
        this->scroll("<nothing/>", "<page style='normal'/><upbtn longpress='false'/><downbtn/>");
    EXPECT_EQ(scroll->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(scroll->label()->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(scroll->m_pUpBtn->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(scroll->m_pDownBtn->geometry(), QRect(0, 0, 1, 1));
}

TEST_F(ZELListScrollTest, aHoldRepeatsUnlessTheLayoutSaysFalse)
{
    for (const auto& [attribute, on] :
         {std::make_pair("", true), std::make_pair("longpress=''", true),
          std::make_pair("longpress='true'", true), std::make_pair("longpress='FALSE'", true),
          std::make_pair("longpress='false '", true), std::make_pair("longpress='false'", false)}) {
        const std::string images = std::string(" up='up.png' down='down.png' dim='dim.png' ") +
                                   attribute + " width='60' height='40'/>";
        Scroll* const scroll =
            this->scroll("", label + "<upbtn" + images + "<downbtn y='80'" + images);
        scroll->setListTotalPage(3);
        scroll->setListNowPage(2);
        for (QWidget* const button :
             {static_cast<QWidget*>(scroll->m_pUpBtn), static_cast<QWidget*>(scroll->m_pDownBtn)}) {
            Touch::press(button);
            EXPECT_EQ(button->findChild<QTimer*>()->isActive(), on) << attribute;
            Touch::release(button);
        }
        EventLoop::deliver();
        scroll->hideWindow();
    }
}

TEST_F(ZELListScrollTest, takesThePicturesOfItsButtons)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(3);
    scroll->setListNowPage(2);
    EXPECT_EQ(Pixels::count(Pixels::grab(scroll->m_pUpBtn), Qt::green), 60 * 40);
    scroll->setListNowPage(1);
    EXPECT_EQ(Pixels::count(Pixels::grab(scroll->m_pUpBtn), Qt::yellow), 60 * 40) << "dim";
    Touch::press(scroll->m_pDownBtn);
    EXPECT_EQ(Pixels::count(Pixels::grab(scroll->m_pDownBtn), Qt::blue), 60 * 40) << "pressed";
}

TEST_F(ZELListScrollTest, aLabelWithoutAStyleLooksTheEmptyNameUp)
{
    Scroll* const scroll = this->scroll("", "<page width='60' height='40'/>" + pageUp + pageDown);
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(scroll->label())).isNull());
    EXPECT_EQ(scroll->shown(), "1/1");
}

// ---- bad layouts

TEST_F(ZELListScrollTest, aNullLayoutGivesNoParts)
{
    log().expectError("[createSubComponent] ZELListScroll, Node * pLayout == NULL");
    log().expectError("[setLayout] scr pLayout == NULL", 1, "ZELListScroll");
    Scroll scroll(&panel(), "scr", "ZELListScroll", nullptr);
    log().expectInOrder({"[E] [createSubComponent] ZELListScroll, Node * pLayout == NULL",
                         "[E] [setLayout] scr pLayout == NULL"});
    EXPECT_EQ(scroll.m_pPageLabel, nullptr);
    EXPECT_EQ(scroll.m_pUpBtn, nullptr);
    EXPECT_EQ(scroll.m_pDownBtn, nullptr);
    EXPECT_EQ(scroll.geometry(), QRect(0, 0, 100, 30)) << "never placed";
    scroll.showWindow();
    EventLoop::deliver();
    scroll.setListTotalPage(4);
    scroll.onPressDownBtn(nullptr);
    EXPECT_EQ(toldOne(&scroll), "1582 ZELRangeEvent scr 2");
    EXPECT_TRUE(send(&scroll, {EVENT_MOUSE_UP, Kind::Event}));
}

TEST_F(ZELListScrollTest, aMissingPartEndsTheMaking)
{
    struct Case
    {
        std::string children;
        std::vector<std::string> lines;
        int parts;
    };
    const std::string noUp = "[D] [setLayout] UpBtn Node is NULL";
    for (const Case& c :
         {Case{pageUp + pageDown, {"[D] Node page start", noUp}, 1},
          Case{label + pageDown, {"[D] Node page start", "[D] Node Upbutton start", noUp}, 2},
          Case{label + pageUp,
               {"[D] Node page start", "[D] Node Upbutton start", "[D] Node DownButton start",
                "[D] [setLayout] DownBtn Node is NULL"},
               3}}) {
        log().startHere();
        log().expectError("[setLayout] page pLayout == NULL");
        log().expectError("[setLayout] upbtn pLayout == NULL", c.parts > 1 ? 1 : 0);
        log().expectError("[setLayout] downbtn pLayout == NULL", c.parts > 2 ? 1 : 0);
        auto* const scroll = make<Scroll>(scrollOf("", c.children), "ZELListScroll");
        EXPECT_EQ(log().texts("ZELListScroll"), c.lines);
        EXPECT_NE(scroll->m_pPageLabel, nullptr);
        EXPECT_EQ(scroll->m_pUpBtn != nullptr, c.parts > 1);
        EXPECT_EQ(scroll->m_pDownBtn != nullptr, c.parts > 2);
        scroll->setListTotalPage(2);
        scroll->onPressDownBtn(nullptr);
        EXPECT_EQ(toldOne(scroll), "1582 ZELRangeEvent scr 2");
        EXPECT_EQ(scroll->shown(), "2/2");
        log().verify();
    }
}

// ---- pages

TEST_F(ZELListScrollTest, dimsTheButtonsByThePage)
{
    struct Case
    {
        int total;
        int page;
        const char* dims;
    };
    Scroll* const scroll = this->scroll();
    for (const Case& c : {Case{1, 1, "up down"}, Case{3, 1, "up"}, Case{3, 2, ""},
                          Case{3, 3, "down"}, Case{2, 1, "up"}, Case{2, 2, "down"}}) {
        scroll->setListTotalPage(c.total);
        scroll->setListNowPage(c.page);
        EXPECT_EQ(scroll->dims(), c.dims) << c.page << "/" << c.total;
        EXPECT_EQ(scroll->shown(), std::to_string(c.page) + "/" + std::to_string(c.total));
    }
}

TEST_F(ZELListScrollTest, refusesZeroAndWhatLiesBeyondTheTotal)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(5);
    scroll->setListNowPage(5);
    EventLoop::deliver();
    scroll->paints = 0;
    for (const int page : {0, 6, INT_MAX}) {
        scroll->setListNowPage(page);
        EXPECT_EQ(scroll->m_nNowPage, 5);
        EXPECT_EQ(scroll->dims(), "down");
    }
    EventLoop::deliver();
    EXPECT_EQ(scroll->paints, 0);
    scroll->setListNowPage(5);
    EventLoop::deliver();
    EXPECT_GT(scroll->paints, 0) << "a page that is taken repaints, also the same";
    EXPECT_TRUE(panel().take().empty()) << "and tells nobody";
}

TEST_F(ZELListScrollTest, takesNegativePages)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(3);
    scroll->setListNowPage(-1);
    EXPECT_EQ(scroll->m_nNowPage, -1);
    EXPECT_EQ(scroll->dims(), "");
    EXPECT_EQ(scroll->shown(), "-1/3");
    scroll->onPressDownBtn(nullptr);
    EXPECT_EQ(toldOne(scroll), "1582 ZELRangeEvent scr -1") << "there is no page 0";
    scroll->onPressUpBtn(nullptr);
    EXPECT_EQ(toldOne(scroll), "1581 ZELRangeEvent scr -2");
    scroll->setListNowPage(INT_MIN);
    scroll->onPressUpBtn(nullptr);
    EXPECT_EQ(toldOne(scroll), "1581 ZELRangeEvent scr " + std::to_string(INT_MIN));
}

TEST_F(ZELListScrollTest, aTotalBelowThePageLeavesPageAndStates)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(5);
    scroll->setListNowPage(5);
    EventLoop::deliver();
    scroll->paints = 0;
    scroll->setListTotalPage(3);
    EventLoop::deliver();
    EXPECT_EQ(scroll->paints, 0) << "the total is seen with the next paint";
    EXPECT_EQ(scroll->m_nNowPage, 5);
    EXPECT_EQ(scroll->dims(), "down");
    EXPECT_EQ(scroll->shown(), "5/3");
    scroll->setListNowPage(3);
    EXPECT_EQ(scroll->shown(), "3/3");
    scroll->setListTotalPage(4);
    EXPECT_EQ(scroll->dims(), "") << "a total that holds the page sets the states anew";
}

TEST_F(ZELListScrollTest, aTotalOfNothingIsShown)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(0);
    EXPECT_EQ(scroll->m_nNowPage, 1);
    EXPECT_EQ(scroll->dims(), "up down");
    EXPECT_EQ(scroll->shown(), "1/0");
}

TEST_F(ZELListScrollTest, aTotalBelowNothingHasALastPage)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(-1);
    EXPECT_EQ(scroll->shown(), "1/-1");
    EXPECT_EQ(scroll->dims(), "up down") << "page 1 lies beyond it";
    scroll->setListNowPage(-1);
    EXPECT_EQ(scroll->shown(), "-1/-1");
    EXPECT_EQ(scroll->dims(), "down");
}

// ---- the label

TEST_F(ZELListScrollTest, numbersPagesOnOneLineOrOnThree)
{
    for (const auto& [type, text] : {std::make_pair("LF", "2\n/\n12"), std::make_pair("lf", "2/12"),
                                     std::make_pair("", "2/12"), std::make_pair("LF ", "2/12")}) {
        Scroll* const scroll =
            this->scroll("", "<page style='normal' width='60' height='80' type='" +
                                 std::string(type) + "'/>" + pageUp + pageDown);
        EXPECT_EQ(scroll->m_nType, std::string(type) == "LF" ? 1 : 0);
        scroll->setListTotalPage(12);
        scroll->setListNowPage(2);
        EXPECT_EQ(scroll->getPageNumbering(), text);
        EXPECT_EQ(scroll->m_strPageNumbering, text);
        EXPECT_EQ(scroll->shown(), text);
        scroll->hideWindow();
    }
}

TEST_F(ZELListScrollTest, makesItsTextWhenItIsPainted)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(3);
    EventLoop::deliver();
    EXPECT_EQ(scroll->m_strPageNumbering, "1/3");
    scroll->setListNowPage(2);
    EXPECT_EQ(scroll->m_strPageNumbering, "1/3") << "not yet painted";
    EventLoop::deliver();
    EXPECT_EQ(scroll->m_strPageNumbering, "2/3");
}

TEST_F(ZELListScrollTest, theLabelShowsTheNewPageInTheSamePass)
{
    Scroll* const scroll = this->scroll();
    scroll->setListTotalPage(3);
    scroll->setListNowPage(2);
    const QImage image = Pixels::grab(scroll).copy(QRect(10, 40, 40, 40));
    QImage expected = filled(QSize(40, 40), Pixels::untouched);
    drawText(expected, QStringLiteral("2/3"), expected.rect(), centred, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(image, expected));
}
