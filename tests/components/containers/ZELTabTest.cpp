#include "components/containers/ZELTab.h"

#include "components/containers/TabTest.h"
#include "components/text/ZELLabel.h"
#include "windows/ZELChildWindow.h"

#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageButton;
using Components::ZELTab;
using Components::ZELTabPage;

namespace {

class ZELTabTest : public TabTest
{
};

} // namespace

// ---- what it is and how it is built

TEST_F(ZELTabTest, isAComponentWithItsOwnNameAndItsOperationsInTheirPlaces)
{
    auto* const built = buildComponent<ZELTab>("tab", tabOf(pairs(2)));
    EXPECT_EQ(built->m_strType, "ZELTab");
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_EQ(makeTab(pairs(1))->m_logger.m_strIdentity, "QTPANFx ZELTab         ");
    EXPECT_EQ(Tab::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Tab::slotOfEvent(), Tab::slotOfPaint() + slotSize);
}

TEST_F(ZELTabTest, takesUpPairsInTheirOrderAndShowsTheFirst)
{
    auto* const tab = makeTab(pairs(3));
    EXPECT_EQ(tab->getComponentCount(), 6);
    EXPECT_EQ(tab->pairs(), "b0 p0, b1 p1, b2 p2");
    EXPECT_EQ(tab->shown(), "b0 p0");
    EXPECT_EQ(tab->m_nCurPage, 0);
    EXPECT_EQ(tab->getPage(), 0);
    EXPECT_FALSE(tab->isHidden());
    EXPECT_EQ(panel().takeTypes(), Types{}) << "nothing is told of the first page";
}

TEST_F(ZELTabTest, theNamesOfTheGroupsPlayNoPart)
{
    // two pairs within the groups of others: what counts is the order in which they are made
    auto* const tab = makeTab("<image file='back.png'/>" + pairs(2) + "<nothing/>");
    EXPECT_EQ(tab->pairs(), "b0 p0, b1 p1");
}

TEST_F(ZELTabTest, pairsFirstThenReadsItsPlaceThenShowsTheFirstTab)
{
    log().expectError("[addTabPage] Type1 : ZELTabPage /// Type2 : ZELTabButton");
    log().expectError("[hideTab] pCompTabBtn == NULL || pCompTabPage == NULL");
    log().expectError("[showTab] pCompTabBtn == NULL || pCompTabPage == NULL");
    makeTab(page("p") + button("b"));
    EXPECT_EQ(log().texts("ZELTab"),
              (Texts{"[E] [addTabPage] Type1 : ZELTabPage /// Type2 : ZELTabButton",
                     "[D] [setLayout] Background Node is NULL",
                     "[E] [hideTab] pCompTabBtn == NULL || pCompTabPage == NULL",
                     "[E] [showTab] pCompTabBtn == NULL || pCompTabPage == NULL"}));
}

TEST_F(ZELTabTest, withoutChildrenTellsThatThereIsNoFirstTab)
{
    log().expectError("[setPage] 0 is out of range", 1, "ZELTab");
    auto* const tab = makeTab("");
    EXPECT_EQ(tab->pairs(), "");
    EXPECT_EQ(tab->m_nCurPage, 0);
    EXPECT_EQ(tab->geometry(), QRect(10, 10, 200, 150));
}

TEST_F(ZELTabTest, withoutAnElementTellsItTwiceAndKeepsItsDefaults)
{
    log().expectError("[createSubComponent] ZELTab, Node * pLayout == NULL", 1, "ZELWindow");
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELTab");
    log().expectError("[setPage] 0 is out of range", 1, "ZELTab");
    auto* const tab = make<Tab>("", "ZELTab");
    EXPECT_EQ(tab->m_pBGPixmap, nullptr);
    EXPECT_EQ(QRect(tab->m_nBGX, tab->m_nBGY, tab->m_nBGWidth, tab->m_nBGHeight),
              QRect(0, 0, 1, 1));
}

TEST_F(ZELTabTest, anOddNumberOfChildrenThrows)
{
    for (const std::string& children :
         {button("b0"), pairs(1) + button("b1"), pairs(2) + page("p2"), page("p0")})
        EXPECT_THROW(Tab(&panel(), "tab", "ZELTab", element(tabOf(children))), std::out_of_range)
            << children;
    log().reset(); // no words about the parts of what was never finished
}

TEST_F(ZELTabTest, anOddNumberBehindAPairOfWrongTypesIsNotReached)
{
    log().expectError("[addTabPage] Type1 : ZELImageButton /// Type2 : ZELTabPage", 1, "ZELTab");
    auto* const tab =
        makeTab(pairs(1) + group("button", cell("x", 100)) + page("y") + button("b2", 150));
    EXPECT_EQ(tab->getComponentCount(), 5);
    EXPECT_EQ(tab->pairs(), "b0 p0");
    EXPECT_EQ(tab->getPage(), 0);
}

TEST_F(ZELTabTest, anOddPartThatComesLaterThrowsAndEarlierPairsStay)
{
    auto* const tab = makeTab(pairs(2));
    tab->createSubComponent(element("<more>" + button("b2", 100) + "</more>"));
    EXPECT_THROW(tab->addTabPage(), std::out_of_range);
    EXPECT_EQ(tab->pairs(), "b0 p0, b1 p1");
}

TEST_F(ZELTabTest, whatItThrowsLeavesThePageThatHoldsIt)
{
    writeLayout("odd", "<r><Components><tab>" + tabOf(pairs(1) + button("b1")) +
                           "</tab></Components></r>");
    EXPECT_THROW(Windows::ZELChildWindow("odd", &panel(), ""), std::out_of_range);
    log().reset();
    EXPECT_TRUE(panel().findChildren<QWidget*>().isEmpty()) << "nothing stays behind";
}

TEST_F(ZELTabTest, aPairOfWrongTypesEndsTheReadingAndEarlierPairsStay)
{
    struct Case
    {
        std::string first;
        std::string second;
        std::string types;
    };
    const std::string push = group("button", cell("x", 100));
    const std::string radio = group("radiobutton", cell("x", 100));
    const std::string title = group("label", "<l title='t' style='normal'/>");
    for (const Case& wrong :
         {Case{push, page("y"), "ZELImageButton /// Type2 : ZELTabPage"},
          Case{radio, page("y"), "ZELRadioButton /// Type2 : ZELTabPage"},
          Case{button("x", 100), title, "ZELTabButton /// Type2 : ZELLabel"},
          Case{page("y"), button("x", 100), "ZELTabPage /// Type2 : ZELTabButton"},
          Case{button("x", 100), button("y", 150), "ZELTabButton /// Type2 : ZELTabButton"}}) {
        SCOPED_TRACE(wrong.types);
        log().expectError("[addTabPage] Type1 : " + wrong.types, 1, "ZELTab");
        auto* const tab =
            makeTab(pairs(1) + wrong.first + wrong.second + button("b2") + page("p2"));
        EXPECT_EQ(tab->pairs(), "b0 p0");
        EXPECT_TRUE(tab->shown().rfind("b0 p0", 0) == 0) << tab->shown();
        EXPECT_FALSE(tab->getSubComponent("p2")->getQWidget()->isHidden()) << "never taken up";
        delete tab;
    }
}

TEST_F(ZELTabTest, allButtonsBeforeAllPagesDoNotPair)
{
    log().expectError("[addTabPage] Type1 : ZELTabButton /// Type2 : ZELTabButton", 1, "ZELTab");
    log().expectError("[hideTab] pCompTabBtn == NULL || pCompTabPage == NULL");
    log().expectError("[showTab] pCompTabBtn == NULL || pCompTabPage == NULL");
    auto* const tab = makeTab(group("tabbutton", cell("b0", 0) + cell("b1", 50)) +
                              group("tabpage", "<p0/><p1/>"));
    EXPECT_EQ(tab->pairs(), "");
    EXPECT_EQ(tab->shown(), "p0 p1") << "shown as any component is";
}

TEST_F(ZELTabTest, addTabPageBeginsAnewAndHidesAllPages)
{
    auto* const tab = makeTab(pairs(2));
    tab->setPage(1);
    tab->addTabPage();
    EXPECT_EQ(tab->pairs(), "b0 p0, b1 p1");
    EXPECT_EQ(tab->shown(), "b1") << "the button stays as it is";
    EXPECT_EQ(tab->m_nCurPage, 1);
}

TEST_F(ZELTabTest, aPageThatBearsTheIdOfALaterButtonStandsInItsWay)
{
    auto* const tab = makeTab(button("b0") + page("same") + button("same", 50) + page("p1"));
    EXPECT_EQ(tab->pairs(), "b0 same, same p1");
    log().expectError("[showTab] pCompTabBtn == NULL || pCompTabPage == NULL", 1, "ZELTab");
    tab->setPage(1);
    EXPECT_TRUE(tab->getSubComponent("p1")->getQWidget()->isHidden());
}

TEST_F(ZELTabTest, addTabPageStopsAtAPartThatAnApplicationDeleted)
{
    auto* const noPage = makeTab(pairs(2));
    delete noPage->getSubComponent("p1")->getQWidget();
    log().startHere();
    noPage->addTabPage();
    EXPECT_EQ(noPage->pairs(), "b0 p0");
    EXPECT_TRUE(log().lines().empty());

    auto* const noButton = makeTab(pairs(2));
    delete noButton->getSubComponent("b1")->getQWidget();
    log().expectError("[addTabPage] TabButton is NULL", 1, "ZELTab");
    log().expectError("[addTabPage] TabPage is NULL", 1, "ZELTab");
    noButton->addTabPage();
    EXPECT_EQ(noButton->pairs(), "b0 p0");
    log().expectInOrder({"[E] [addTabPage] TabButton is NULL", "[E] [addTabPage] TabPage is NULL"});
}

// ---- layout

TEST_F(ZELTabTest, readsItsPlace)
{
    EXPECT_EQ(makeTab(pairs(1))->geometry(), QRect(10, 10, 200, 150));
    EXPECT_EQ(make<Tab>("<t>" + pairs(1) + "</t>")->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(make<Tab>("<t><position x='5' height='9'/>" + pairs(1) + "</t>")->geometry(),
              QRect(5, 0, 1, 9));
}

TEST_F(ZELTabTest, readsItsBackground)
{
    struct Case
    {
        std::string image;
        bool picture;
        QRect place;
        Texts lines;
    };
    for (const Case& row : std::vector<Case>{
             {"", false, {0, 0, 1, 1}, {"[D] [setLayout] Background Node is NULL"}},
             {"<image/>", false, {0, 0, 1, 1}, {"[D] [setLayout]  Attribute \"file\" is NULL"}},
             {"<image x='1' y='2' width='3' height='4'/>",
              false,
              {1, 2, 3, 4},
              {"[D] [setLayout]  Attribute \"file\" is NULL"}},
             {"<image file='none.png' x='7'/>",
              false,
              {7, 0, 1, 1},
              {"[D] [setLayout]  no BackgroundImage File"}},
             {"<image file='back.png' y='5' width='6'/>", true, {0, 5, 6, 1}, {}}}) {
        SCOPED_TRACE(row.image);
        log().startHere();
        auto* const tab = makeTab(row.image + pairs(1));
        EXPECT_EQ(tab->m_pBGPixmap != nullptr, row.picture);
        EXPECT_EQ(QRect(tab->m_nBGX, tab->m_nBGY, tab->m_nBGWidth, tab->m_nBGHeight), row.place);
        EXPECT_EQ(log().texts("ZELTab"), row.lines);
        delete tab;
    }
}

TEST_F(ZELTabTest, anEmptyPictureNameIsNoPicture)
{
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    EXPECT_EQ(makeTab("<image file=''/>" + pairs(1))->m_pBGPixmap, nullptr);
    EXPECT_EQ(log().count("[D] [setLayout]  no BackgroundImage File", "ZELTab"), 1);
}

// ---- painting

TEST_F(ZELTabTest, paintsItsBackgroundScaledIntoItsRectangleAndNothingElse)
{
    auto* const tab =
        makeTab("<image file='back.png' x='20' y='70' width='80' height='50'/>" + pairs(1));
    QImage expected = Pixels::canvas(tab->size());
    QPainter painter(&expected);
    painter.fillRect(20, 70, 80, 50, Qt::cyan);
    painter.fillRect(0, 0, 40, 30, Qt::blue); // the first button, checked
    painter.end();
    EXPECT_TRUE(Pixels::same(Pixels::grab(tab), expected));
}

TEST_F(ZELTabTest, scalesItsBackgroundSmoothly)
{
    writeHalves("halves.png");
    auto* const tab =
        makeTab("<image file='halves.png' x='0' y='70' width='40' height='10'/>" + pairs(1));
    EXPECT_GT(greys(Pixels::grab(tab), QRect(0, 70, 40, 10)), 0);
}

TEST_F(ZELTabTest, withoutABackgroundPaintsItsPartsAlone)
{
    const QImage image = Pixels::grab(makeTab(pairs(2)));
    EXPECT_EQ(Pixels::count(image, Qt::blue), 40 * 30);
    EXPECT_EQ(Pixels::count(image, Qt::green), 40 * 30);
    EXPECT_EQ(Pixels::inkInside(image, image.rect()), 2 * 40 * 30);
}

// ---- changing the page

TEST_F(ZELTabTest, setPage)
{
    const std::string noTab = "pCompTabBtn == NULL || pCompTabPage == NULL";
    struct Case
    {
        int page;
        int current;
        std::string shown;
        Texts errors;
    };
    auto* const tab = makeTab(pairs(2));
    // each from where the one before it ended
    for (const Case& row : std::vector<Case>{
             {1, 1, "b1 p1", {}},
             {1, 1, "b1 p1", {}},
             {0, 0, "b0 p0", {}},
             {-1, 0, "b0 p0", {"[setPage] -1 is out of range"}},
             {4, 0, "b0 p0", {"[setPage] 4 is out of range"}},
             {2147483647, 0, "b0 p0", {"[setPage] 2147483647 is out of range"}},
             {2, 2, "", {"[showTab] " + noTab}}, // four children, so no longer out of range
             {3, 3, "", {"[hideTab] " + noTab, "[showTab] " + noTab}},
             {1, 1, "b1 p1", {"[hideTab] " + noTab}}}) {
        SCOPED_TRACE(row.page);
        for (const std::string& error : row.errors)
            log().expectError(error, 1, "ZELTab");
        log().startHere();
        tab->setPage(row.page);
        EXPECT_EQ(tab->m_nCurPage, row.current);
        EXPECT_EQ(tab->getPage(), row.current);
        EXPECT_EQ(tab->shown(), row.shown);
        EXPECT_EQ(log().texts("ZELTab").size(), row.errors.size());
        log().verify();
    }
    EXPECT_EQ(panel().takeTypes(), Types{}) << "only a touch is told";
}

TEST_F(ZELTabTest, setPageOfTheCurrentPageHidesAndShowsIt)
{
    auto* const tab = makeTab(pairs(2));
    class Watch : public QObject
    {
    public:
        std::string seen;

    protected:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Hide)
                seen += "hide ";
            if (event->type() == QEvent::Show)
                seen += "show ";
            return false;
        }
    } watch;
    tab->getSubComponent("p0")->getQWidget()->installEventFilter(&watch);
    PaintCounter paints(tab);
    tab->setPage(0);
    EXPECT_EQ(watch.seen, "hide show ");
    EventLoop::deliver();
    EXPECT_EQ(paints.area(), 200 * 150) << "the whole tab, not the page alone";
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELTabTest, hideTabAndShowTabLeaveTheCurrentPageAlone)
{
    const std::string noTab = "pCompTabBtn == NULL || pCompTabPage == NULL";
    auto* const tab = makeTab(pairs(2));
    tab->showTab(1);
    EXPECT_EQ(tab->shown(), "b0 p0 b1 p1");
    tab->hideTab(0);
    EXPECT_EQ(tab->shown(), "b1 p1");
    EXPECT_EQ(tab->m_nCurPage, 0);
    log().expectError("[showTab] " + noTab, 3, "ZELTab");
    log().expectError("[hideTab] " + noTab, 3, "ZELTab");
    for (const int outside : {-1, 2, 1000}) {
        tab->showTab(outside);
        tab->hideTab(outside);
    }
    EXPECT_EQ(tab->shown(), "b1 p1");
}

TEST_F(ZELTabTest, aTabWhoseButtonOrPageIsGoneIsTold)
{
    auto* const tab = makeTab(pairs(2));
    delete tab->getSubComponent("p1")->getQWidget();
    log().expectError("[showTab] pCompTabBtn == NULL || pCompTabPage == NULL", 1, "ZELTab");
    tab->showTab(1);
    EXPECT_FALSE(buttonOf(tab, "b1")->m_bChecked);
}

TEST_F(ZELTabTest, findPage)
{
    auto* const tab = makeTab(pairs(3));
    EXPECT_EQ(tab->findPage("b0"), 0);
    EXPECT_EQ(tab->findPage("b2"), 2);
    for (const std::string unknown : {"p0", "", "b", "B0", "tab"}) {
        log().expectError("[findPage] Cannot find tabpage " + unknown, 1, "ZELTab");
        EXPECT_EQ(tab->findPage(unknown), -1) << unknown;
    }
}

TEST_F(ZELTabTest, getTabPage)
{
    auto* const tab = makeTab(pairs(2));
    EXPECT_EQ(tab->getTabPage(0), tab->getSubComponent("p0"));
    EXPECT_EQ(tab->getTabPage(1), tab->getSubComponent("p1"));
    EXPECT_EQ(tab->getTabPage("p1"), tab->getSubComponent("p1"));
    log().startHere();
    EXPECT_EQ(tab->getTabPage("b1"), nullptr) << "a button is no page";
    EXPECT_TRUE(log().lines().empty());
    log().expectError("[getTabPage] Cannot find getTabPage", 3, "ZELTab");
    for (const int outside : {-1, 2, 1000})
        EXPECT_EQ(tab->getTabPage(outside), nullptr) << outside;
    log().expectError("[getTabPage] tab has no page none", 1, "ZELTab");
    EXPECT_EQ(tab->getTabPage("none"), nullptr);
    delete tab->getSubComponent("p1")->getQWidget();
    log().expectError("[getTabPage] Cannot find getTabPage", 1, "ZELTab");
    EXPECT_EQ(tab->getTabPage(1), nullptr);
}

TEST_F(ZELTabTest, aPageWithTheIdOfAButtonIsFoundUnderTheButton)
{
    auto* const tab = makeTab(button("same") + page("same"));
    log().startHere();
    EXPECT_EQ(tab->getTabPage(0), nullptr);
    EXPECT_TRUE(log().lines().empty()) << "found, and of another kind";
}
