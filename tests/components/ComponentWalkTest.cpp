#include "components/PlainComponent.h"
#include "components/pictures/ZELImageBox.h"
#include "components/text/ZELLabel.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/ResourceFaults.h"
#include "windows/ZELChildWindow.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;

namespace {

using Ids = std::vector<std::string>;

// the walk over an element is seen through a component that does nothing else
class ComponentWalkTest : public PanelTest
{
protected:
    PlainComponent& build(const std::string& content)
    {
        auto* const component = new PlainComponent(&panel(), "whole");
        component->setGeometry(0, 0, 100, 60);
        component->createSubComponent(element("<whole>" + content + "</whole>"));
        component->showWindow();
        component->showSubComponent();
        EventLoop::deliver();
        return *component;
    }

    void expectFailure(const std::string& keyword, const std::string& id)
    {
        log().expectError("[createSubComponent] Fail to create a component (" + keyword + ", " +
                              id + ")",
                          1, "ZELWindow");
    }
};

} // namespace

TEST_F(ComponentWalkTest, theGroupIsTheKeywordAndTheElementInItTheId)
{
    PlainComponent& component = build("<label><ok title='x'/></label>");
    ASSERT_EQ(component.ids(), Ids{"ok"});
    EXPECT_EQ(component.getSubComponent(0)->m_strType, "ZELLabel");
    EXPECT_EQ(component.getSubComponent(0)->getQWidget()->parentWidget(), &component);
}

TEST_F(ComponentWalkTest, componentsComeInTheOrderOfTheFileGroupByGroup)
{
    writePicture("a.png", 4, 4, Qt::red);
    EXPECT_EQ(build("<label><a/><b/></label>"
                    "<imagebox><c file='a.png'/></imagebox>"
                    "<label><d/></label>")
                  .ids(),
              (Ids{"a", "b", "c", "d"}));
}

TEST_F(ComponentWalkTest, laterComponentsLieAboveEarlierOnes)
{
    writePicture("red.png", 4, 4, Qt::red);
    writePicture("blue.png", 4, 4, Qt::blue);
    PlainComponent& component =
        build("<imagebox><low file='red.png' x='0' y='0' width='40' height='40'/></imagebox>"
              "<imagebox><high file='blue.png' x='20' y='20' width='40' height='40'/></imagebox>");
    const QImage image = Pixels::grab(&component);
    EXPECT_EQ(Pixels::at(image, 10, 10), QColor(Qt::red));
    EXPECT_EQ(Pixels::at(image, 30, 30), QColor(Qt::blue));
}

TEST_F(ComponentWalkTest, twoComponentsMayHaveOneId)
{
    PlainComponent& component = build("<label><a title='1'/><a title='2'/></label>");
    EXPECT_EQ(component.ids(), (Ids{"a", "a"}));
}

TEST_F(ComponentWalkTest, idsAreCaseSensitive)
{
    PlainComponent& component = build("<label><Ok/><ok/></label>");
    EXPECT_EQ(component.getSubComponent("Ok"), component.getSubComponent(0));
    EXPECT_EQ(component.getSubComponent("ok"), component.getSubComponent(1));
    EXPECT_EQ(component.getSubComponent("OK"), nullptr);
}

TEST_F(ComponentWalkTest, nothingBelowTheSecondLevelIsMade)
{
    PlainComponent& component = build("<label><a title='x'><label><deep/></label></a></label>");
    EXPECT_EQ(component.ids(), Ids{"a"});
    EXPECT_EQ(component.getSubComponent(0)->getComponentCount(), 0);
    EXPECT_EQ(component.findChildren<QWidget*>().size(), 1);
}

TEST_F(ComponentWalkTest, aFailedComponentIsNamedAndItsSiblingsAreMade)
{
    expectFailure("nosuch", "x");
    expectFailure("nosuch", "y");
    expectFailure("Label", "z");
    EXPECT_EQ(build("<label><a/></label><nosuch><x/><y/></nosuch><Label><z/></Label>"
                    "<label><b/></label>")
                  .ids(),
              (Ids{"a", "b"}));
}

TEST_F(ComponentWalkTest, anUnknownGroupWithoutComponentsIsNotNoticed)
{
    log().startHere();
    EXPECT_EQ(build("<nosuch/><label><a/></label><other></other>").ids(), Ids{"a"});
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ComponentWalkTest, attributesInChildElementsAreGroupsWithoutComponents)
{
    log().startHere();
    EXPECT_EQ(build("<position x='1' y='2' width='3' height='4'/><image up='a.png'/>"
                    "<label><a/></label>")
                  .ids(),
              Ids{"a"});
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ComponentWalkTest, aChildElementWithChildrenOfItsOwnIsTakenForAGroup)
{
    expectFailure("position", "x");
    EXPECT_EQ(build("<position><x/></position><label><a/></label>").ids(), Ids{"a"});
}

TEST_F(ComponentWalkTest, aComponentsElementIsNoStepOfTheWalk)
{
    expectFailure("Components", "label");
    EXPECT_EQ(build("<Components><label><a/></label></Components>").ids(), Ids{});
}

TEST_F(ComponentWalkTest, anEmptyElementMakesNothing)
{
    log().startHere();
    EXPECT_EQ(build("").ids(), Ids{});
    EXPECT_EQ(build("only text, and a <!-- comment -->").ids(), Ids{});
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ComponentWalkTest, anEmptyPlaceAmongTheElementsIsPassedOver)
{
    ResourceFaults faults;
    faults.emptyPlaceInStyles = 0; // the first child of whatever element has the name "Font"
    expectFailure("Font", "y");
    EXPECT_EQ(build("<Font><x/><y/></Font><label><a/></label>").ids(), Ids{"a"});

    PlainComponent component(&panel(), "whole");
    component.createSubComponent(element("<Font><label><a/></label><label><b/></label></Font>"));
    EXPECT_EQ(component.ids(), Ids{"b"});
}

TEST_F(ComponentWalkTest, eachComponentReadsItsOwnElement)
{
    PlainComponent& component =
        build("<label><a><position x='1' y='2' width='3' height='4'/></a>"
              "<b><position x='5' y='6' width='7' height='8'/></b></label>");
    ASSERT_EQ(component.ids(), (Ids{"a", "b"}));
    EXPECT_EQ(component.getSubComponent(0)->getQWidget()->geometry(), QRect(1, 2, 3, 4));
    EXPECT_EQ(component.getSubComponent(1)->getQWidget()->geometry(), QRect(5, 6, 7, 8));
}

TEST_F(ComponentWalkTest, aPageWalksItsComponentsSectionTheSameWay)
{
    writePicture("red.png", 4, 4, Qt::red);
    writePicture("blue.png", 4, 4, Qt::blue);
    writeLayout("home",
                "<page><Components>"
                "<imagebox><low file='red.png' x='0' y='0' width='40' height='40'/></imagebox>"
                "<nosuch><x/></nosuch>"
                "<imagebox><high file='blue.png' x='20' y='20' width='40' height='40'/>"
                "</imagebox></Components></page>");
    frame().addPage("home");
    expectNoBackgroundLines();
    log().expectError("[createSubComponent] Fail to create components x");
    auto* const page = frame().moveTo("home", true, true);
    ASSERT_NE(page, nullptr);
    EventLoop::deliver();
    const QImage image = Pixels::grab(page);
    EXPECT_EQ(Pixels::at(image, 10, 10), QColor(Qt::red));
    EXPECT_EQ(Pixels::at(image, 30, 30), QColor(Qt::blue));
    EXPECT_TRUE(page->getSubComponent("low")->getQWidget()->isVisible());
}
