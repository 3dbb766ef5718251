#include "components/containers/ZELTabPage.h"

#include "components/containers/TabTest.h"

#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELTabPage;

namespace {

class Page : public OpenedPart<ZELTabPage>
{
public:
    using OpenedPart::OpenedPart;

    using ZELTabPage::m_bCheck;
};

class ZELTabPageTest : public TabTest
{
protected:
    static constexpr const char* place = "<position x='5' y='6' width='70' height='80'/>";

    Page* makePage(const std::string& content)
    {
        return make<Page>(std::string("<pg>") + place + content + "</pg>", "ZELTabPage");
    }
};

} // namespace

TEST_F(ZELTabPageTest, isAComponentWithItsOwnNameAndItsOperationsInTheirPlaces)
{
    auto* const built = buildComponent<ZELTabPage>("tabpage", "<pg/>");
    EXPECT_EQ(built->m_strType, "ZELTabPage");
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_EQ(makePage("")->m_logger.m_strIdentity, "QTPANFx ZELTabPage     ");
    EXPECT_EQ(Page::slotOfPaint(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Page::slotOfEvent(), Page::slotOfPaint() + slotSize);
}

TEST_F(ZELTabPageTest, readsItsPlaceAndBuildsItsComponents)
{
    EXPECT_EQ(makePage("")->geometry(), QRect(5, 6, 70, 80));
    EXPECT_EQ(make<Page>("<pg/>")->geometry(), QRect(0, 0, 1, 1));
    auto* const page = makePage(group("button", cell("a", 0) + cell("b", 50)) +
                                group("label", "<c title='x' style='normal'/>"));
    EXPECT_EQ(page->getComponentCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(page->getSubComponent(i)->getQWidget()->isHidden()) << i;
        EXPECT_EQ(page->getTabComponent(i), page->getSubComponent(i));
    }
    EXPECT_EQ(page->getTabComponent("b"), page->getSubComponent("b"));
    EXPECT_EQ(page->getTabComponent("none"), nullptr);
    EXPECT_THROW(page->getTabComponent(3), std::out_of_range);
    EXPECT_THROW(page->getTabComponent(-1), std::out_of_range);
}

TEST_F(ZELTabPageTest, withoutAnElementTellsIt)
{
    log().expectError("[createSubComponent] ZELTabPage, Node * pLayout == NULL", 1, "ZELWindow");
    log().expectError("[setLayout] ok pLayout == NULL", 1, "ZELTabPage");
    make<Page>("", "ZELTabPage");
    log().expectInOrder({"[E] [createSubComponent] ZELTabPage, Node * pLayout == NULL",
                         "[E] [setLayout] ok pLayout == NULL", "[D] [setCheck] start"});
}

TEST_F(ZELTabPageTest, setCheckIsKeptAndDoesNothing)
{
    log().startHere();
    auto* const page = makePage("");
    EXPECT_FALSE(page->m_bCheck);
    EXPECT_EQ(log().texts("ZELTabPage"), Texts{"[D] [setCheck] start"});
    for (const int number : {1, 0, 7, -1}) {
        page->setCheck(number);
        EXPECT_EQ(page->m_bCheck, number != 0) << number;
    }
    EXPECT_EQ(log().count("[D] [setCheck] start", "ZELTabPage"), 5);
}

TEST_F(ZELTabPageTest, showsHidesAndPaintsNothing)
{
    auto* const page = makePage("");
    EXPECT_EQ(Pixels::inkBox(Pixels::grab(page)), QRect());
    page->hideWindow();
    EXPECT_TRUE(page->isHidden());
    page->showWindow();
    EXPECT_FALSE(page->isHidden());
}

TEST_F(ZELTabPageTest, handsOnEventsOfTheThreeClassesFromThePressUpward)
{
    auto* const page = makePage("");
    for (const int number : {1500, 1550, 1551, 1552, 1561, 1585, 1701}) {
        for (const Kind kind : {Kind::Event, Kind::Range, Kind::List}) {
            Incoming event{number, kind};
            event.sender = page;
            EXPECT_TRUE(send(page, event)) << event;
            EXPECT_EQ(panel().takeTypes(), number < 1551 ? Types{} : Types{number}) << event;
        }
    }
}

TEST_F(ZELTabPageTest, whatItDoesNotKnowIsQts)
{
    expectWidgetsAnswers(makePage(""));
}

TEST_F(ZELTabPageTest, aTouchOfATabThatPassesThroughKeepsItsSender)
{
    auto* const page = makePage("");
    Incoming event{EVENT_TAB_DOWN, Kind::Event};
    event.sender = &panel();
    send(page, event);
    const RecordedEvent passed = panel().takeOne();
    EXPECT_EQ(passed.sender, &panel());
    EXPECT_EQ(passed.id, "cell");
}
