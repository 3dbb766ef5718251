#include "components/ZELComponent.h"

#include "components/PlainComponent.h"
#include "components/pictures/ZELImageBox.h"
#include "components/text/ZELLabel.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/VirtualSlot.h"

#include <QPointer>

#include <climits>
#include <stdexcept>
#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELLabel;
using PANFx::Windows::ZELWindow;
using TAMFx::Common::Xml::Node;

namespace {

using Ids = std::vector<std::string>;

class ZELComponentTest : public PanelTest
{
protected:
    // a component on the panel with plain sub-components of these ids
    PlainComponent& withParts(const Ids& ids, std::vector<std::string>* calls = nullptr)
    {
        auto* const component = new PlainComponent(&panel(), "whole");
        for (const std::string& id : ids)
            component->adopt(new PlainComponent(component, id, calls));
        return *component;
    }

    // the text of what getSubComponent throws, "" when it throws nothing
    static std::string thrownAt(ZELComponent& component, int index)
    {
        try {
            component.getSubComponent(index);
        } catch (const std::out_of_range& fault) {
            return fault.what();
        }
        return "";
    }
};

// hands out an inner widget as the one that holds the sub-components
class WithInnerWidget : public PlainComponent
{
public:
    explicit WithInnerWidget(QWidget* parent)
        : PlainComponent(parent, "outer")
        , inner(new QWidget(this))
    {
    }

    QWidget* getQWidget() override { return inner; }

    QWidget* inner;
};

// overrides what the base constructor must not reach
class ApplicationLabel : public ZELLabel
{
public:
    using ZELLabel::ZELLabel;

    void setLayout(Node* layout) override
    {
        ++layouts;
        ZELLabel::setLayout(layout);
    }

    void createSubComponent(Node* layout) override
    {
        ++walks;
        ZELLabel::createSubComponent(layout);
    }

    int layouts = 0;
    int walks = 0;
};

} // namespace

TEST_F(ZELComponentTest, keepsItsIdAndItsType)
{
    ZELLabel label(&panel(), "ok", "SomeType", element("<ok/>"));
    EXPECT_EQ(label.m_strID, "ok");
    EXPECT_EQ(label.m_strType, "SomeType");
}

TEST_F(ZELComponentTest, hasItsVirtualOperationsInTheirFixedOrder)
{
    const std::intptr_t first = slot(&ZELComponent::showSubComponent);
    EXPECT_EQ(first, slot(&ZELWindow::showSubComponent));
    EXPECT_EQ(slot(&ZELComponent::showWindow), first + slotSize);
    EXPECT_EQ(slot(&ZELComponent::hideWindow), first + 2 * slotSize);
    EXPECT_EQ(slot(&ZELComponent::setLayout), first + 3 * slotSize);
    EXPECT_EQ(slot(&ZELComponent::getQWidget), first + 4 * slotSize);
}

TEST_F(ZELComponentTest, isAWindowWithAnIdAndSubComponents)
{
    ZELLabel label(&panel(), "ok", "ZELLabel", element("<ok/>"));
    ZELWindow* const window = &label;
    EXPECT_EQ(window->m_strID, "ok");
    window->createSubComponent(element("<x><label><a/></label></x>"));
    EXPECT_EQ(label.getComponentCount(), 1);
}

TEST_F(ZELComponentTest, isCompleteAndHiddenUntilItsParentShowsIt)
{
    auto* const whole = new PlainComponent(&panel(), "whole");
    whole->showWindow();
    whole->createSubComponent(element("<x><label><a title='A' style='normal'/></label></x>"));
    ZELComponent* const part = whole->getSubComponent("a");
    ASSERT_NE(part, nullptr);
    EXPECT_FALSE(part->getQWidget()->isVisible());
    whole->showSubComponent();
    EXPECT_TRUE(part->getQWidget()->isVisible());
}

TEST_F(ZELComponentTest, madeBeforeItsParentIsShownItAppearsWithIt)
{
    auto* const whole = new PlainComponent(&panel(), "whole");
    whole->createSubComponent(element("<x><label><a/><b/></label></x>"));
    whole->getSubComponent("b")->hideWindow();
    whole->showWindow();
    EXPECT_TRUE(whole->getSubComponent("a")->getQWidget()->isVisible());
    EXPECT_FALSE(whole->getSubComponent("b")->getQWidget()->isVisible());
}

TEST_F(ZELComponentTest, showWindowAndHideWindowAreTheWidgetsVisibility)
{
    for (const char* keyword : {"label", "imagebox", "pieimagebox", "chartimagebox"}) {
        SCOPED_TRACE(keyword);
        writePicture("a.png", 4, 4, Qt::red);
        auto* const component = buildComponent<ZELComponent>(keyword, "<ok file='a.png'/>");
        ASSERT_NE(component, nullptr);
        component->hideWindow();
        EXPECT_FALSE(component->getQWidget()->isVisible());
        EXPECT_TRUE(component->getQWidget()->isHidden());
        component->showWindow();
        EXPECT_TRUE(component->getQWidget()->isVisible());
    }
}

TEST_F(ZELComponentTest, aNullElementOfSubComponentsIsAnErrorThatNamesTheType)
{
    PlainComponent component(&panel(), "whole");
    log().expectError("[createSubComponent] PlainComponent, Node * pLayout == NULL", 1,
                      "ZELWindow");
    component.createSubComponent(nullptr);
    EXPECT_EQ(component.getComponentCount(), 0);
}

TEST_F(ZELComponentTest, itsOwnLinesGoOutUnderTheNameOfTheWindow)
{
    ZELLabel label(&panel(), "ok", "ZELLabel", element("<ok/>"));
    log().expectError("[createSubComponent] ZELLabel, Node * pLayout == NULL");
    log().startHere();
    label.createSubComponent(nullptr);
    label.deleteSubComponent("x");
    ASSERT_EQ(log().lines().size(), 2u);
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELWindow      ");
    EXPECT_EQ(log().lines()[0].priority, LOG_ERR);
    EXPECT_EQ(log().lines()[1].identity, "QTPANFx ZELWindow      ");
    EXPECT_EQ(log().lines()[1].priority, LOG_DEBUG);
}

TEST_F(ZELComponentTest, subComponentsAreChildrenOfTheWidgetThatTheComponentHandsOut)
{
    WithInnerWidget component(&panel());
    component.createSubComponent(element("<x><label><a/></label></x>"));
    ASSERT_EQ(component.getComponentCount(), 1);
    EXPECT_EQ(component.getSubComponent(0)->getQWidget()->parentWidget(), component.inner);
}

TEST_F(ZELComponentTest, aSecondElementAddsToTheSequence)
{
    PlainComponent component(&panel(), "whole");
    component.createSubComponent(element("<x><label><a/></label></x>"));
    component.createSubComponent(element("<x><label><b/></label></x>"));
    EXPECT_EQ(component.ids(), (Ids{"a", "b"}));
}

TEST_F(ZELComponentTest, theBaseReadsNothingFromALayout)
{
    PlainComponent component(&panel(), "whole");
    component.setGeometry(1, 2, 3, 4);
    log().startHere();
    component.setLayout(element("<x><position x='9' y='9' width='9' height='9'/></x>"));
    component.setLayout(nullptr);
    EXPECT_EQ(component.geometry(), QRect(1, 2, 3, 4));
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELComponentTest, anApplicationsOverridesAreNotCalledFromTheConstructorOfTheBase)
{
    ApplicationLabel label(&panel(), "ok", "ZELLabel", element("<ok title='x'/>"));
    EXPECT_EQ(label.layouts, 0);
    EXPECT_EQ(label.walks, 0);
}

TEST_F(ZELComponentTest, labelsAndBoxesBuildNoSubComponents)
{
    writePicture("a.png", 4, 4, Qt::red);
    for (const char* keyword : {"label", "imagebox", "pieimagebox", "chartimagebox"}) {
        SCOPED_TRACE(keyword);
        auto* const component = buildComponent<ZELComponent>(
            keyword, "<ok file='a.png'><label><inner title='x'/></label></ok>");
        ASSERT_NE(component, nullptr);
        EXPECT_EQ(component->getComponentCount(), 0);
        EXPECT_TRUE(component->getQWidget()->children().isEmpty());
    }
}

// ---- showing and hiding

TEST_F(ZELComponentTest, showsAndHidesItsSubComponentsInTheOrderOfTheSequence)
{
    std::vector<std::string> calls;
    PlainComponent& component = withParts({"b", "a", "c"}, &calls);
    component.showSubComponent();
    component.hideSubComponent();
    EXPECT_EQ(calls, (std::vector<std::string>{"show b", "show a", "show c", "hide b", "hide a",
                                               "hide c"}));
    EXPECT_TRUE(component.getSubComponent("a")->getQWidget()->isHidden());
}

TEST_F(ZELComponentTest, aPartThatAnApplicationDeletedIsPassedOverAndKeepsItsNumber)
{
    std::vector<std::string> calls;
    PlainComponent& component = withParts({"a", "b", "c"}, &calls);
    auto* const c = static_cast<PlainComponent*>(component.getSubComponent("c"));
    auto* const inner = new PlainComponent(c, "inner");
    c->adopt(inner);
    delete component.getSubComponent("b");
    component.showSubComponent();
    component.hideSubComponent();
    EXPECT_EQ(calls, (std::vector<std::string>{"show a", "show c", "hide a", "hide c"}));
    EXPECT_EQ(component.getSubComponent("b"), nullptr);
    EXPECT_EQ(component.findByWidget(c), c);
    EXPECT_EQ(component.findByWidget(inner), inner);
    EXPECT_EQ(component.findByWidget(&panel()), nullptr);
    component.deleteSubComponent("b");
    EXPECT_EQ(component.getComponentCount(), 3);
    EXPECT_EQ(component.getSubComponent(2), c);
}

TEST_F(ZELComponentTest, aPartThatWasMovedOrMadeAWindowStaysAPart)
{
    PlainComponent& component = withParts({"a", "b"});
    component.createSubComponent(element("<x><label><c/></label></x>"));
    for (const char* id : {"a", "b", "c"})
        component.getSubComponent(id);
    QWidget* const lifted = component.getSubComponent("a")->getQWidget();
    QWidget* const window = component.getSubComponent("b")->getQWidget();
    QWidget* const label = component.getSubComponent("c")->getQWidget();
    lifted->setParent(&panel());
    window->setWindowFlags(Qt::Tool);
    label->setParent(&panel());
    component.showSubComponent();
    for (QWidget* const part : {lifted, window, label}) {
        EXPECT_TRUE(part->isVisibleTo(part->parentWidget()) || part->isVisible());
        ZELComponent* const found = component.findByWidget(part);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(component.getSubComponent(found->m_strID), found);
    }
    component.hideSubComponent();
    for (QWidget* const part : {lifted, window, label})
        EXPECT_TRUE(part->isHidden());
    component.deleteSubComponent("c");
    EXPECT_EQ(component.ids(), (Ids{"b", "c"}));
}

TEST_F(ZELComponentTest, aPartFromALayoutIsAPartBeforeItIsAskedFor)
{
    auto* const component = new PlainComponent(&panel(), "whole");
    component->createSubComponent(element("<x><label><a/></label></x>"));
    QWidget* const label = component->getSubComponent(0)->getQWidget();
    label->setParent(&panel());
    ZELComponent* const part = component->getSubComponent(0);
    EXPECT_EQ(component->getSubComponent("a"), part);
    EXPECT_TRUE(ZELComponent::isPartOf(component, part));
    EXPECT_FALSE(ZELComponent::liesIn(component, part));
    EXPECT_TRUE(ZELComponent::liesIn(&panel(), part));
    EXPECT_FALSE(ZELComponent::isPartOf(nullptr, part));
    delete part;
    EXPECT_FALSE(ZELComponent::isPartOf(component, part));
    EXPECT_FALSE(ZELComponent::liesIn(&panel(), part));
}

TEST_F(ZELComponentTest, aPartMayAddOthersAndTakeSomeOutWhileItIsShownOrHidden)
{
    class Growing : public PlainComponent
    {
    public:
        Growing(PlainComponent* owner, std::vector<std::string>* calls)
            : PlainComponent(owner, "growing", calls)
            , m_owner(owner)
            , m_calls(calls)
        {
        }
        void showWindow() override
        {
            PlainComponent::showWindow();
            for (int i = 0; i < 200; ++i)
                m_owner->adopt(new PlainComponent(m_owner, "new", i == 199 ? m_calls : nullptr));
        }
        void hideWindow() override
        {
            PlainComponent::hideWindow();
            m_owner->m_dqSubComponents.clear();
        }

    private:
        PlainComponent* m_owner;
        std::vector<std::string>* m_calls;
    };
    std::vector<std::string> calls;
    auto* const owner = new PlainComponent(&panel(), "whole");
    owner->adopt(new Growing(owner, &calls));
    owner->showSubComponent();
    EXPECT_EQ(calls, (std::vector<std::string>{"show growing", "show new"}));
    owner->hideSubComponent();
    EXPECT_EQ(calls.back(), "hide growing");
    EXPECT_EQ(owner->getComponentCount(), 0);
}

TEST_F(ZELComponentTest, withoutSubComponentsShowingAndHidingDoesNothing)
{
    PlainComponent component(&panel(), "whole");
    log().startHere();
    component.showSubComponent();
    component.hideSubComponent();
    EXPECT_TRUE(component.isHidden());
    EXPECT_EQ(component.getComponentCount(), 0);
    EXPECT_TRUE(log().lines().empty());
}

// ---- access

TEST_F(ZELComponentTest, givesSubComponentsByPosition)
{
    PlainComponent& component = withParts({"a", "b", "c"});
    EXPECT_EQ(component.getComponentCount(), 3);
    EXPECT_EQ(component.getSubComponent(0)->m_strID, "a");
    EXPECT_EQ(component.getSubComponent(2)->m_strID, "c");
    EXPECT_EQ(thrownAt(component, 2), "");
}

TEST_F(ZELComponentTest, aPositionThatIsNotThereThrowsOutOfRange)
{
    PlainComponent& component = withParts({"a", "b", "c"});
    for (const int index : {3, 4, -1, INT_MAX, INT_MIN})
        EXPECT_EQ(thrownAt(component, index), "deque::_M_range_check") << index;
    PlainComponent empty(&panel(), "empty");
    EXPECT_EQ(thrownAt(empty, 0), "deque::_M_range_check");
    EXPECT_EQ(empty.getComponentCount(), 0);
}

TEST_F(ZELComponentTest, givesTheFirstSubComponentOfAnId)
{
    PlainComponent& component = withParts({"a", "b", "b"});
    EXPECT_EQ(component.getSubComponent("a"), component.getSubComponent(0));
    EXPECT_EQ(component.getSubComponent("b"), component.getSubComponent(1));
}

TEST_F(ZELComponentTest, anIdThatIsNotThereGivesNullAndNoLine)
{
    PlainComponent& component = withParts({"a", "bc"});
    PlainComponent empty(&panel(), "empty");
    log().startHere();
    for (const char* id : {"x", "A", "b", "bcd", "a ", "", "whole"})
        EXPECT_EQ(component.getSubComponent(id), nullptr) << id;
    EXPECT_EQ(empty.getSubComponent("x"), nullptr);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELComponentTest, onlyItsOwnSubComponentsAreFound)
{
    PlainComponent& component = withParts({"a"});
    auto* const part = static_cast<PlainComponent*>(component.getSubComponent("a"));
    part->adopt(new PlainComponent(part, "deep"));
    EXPECT_EQ(component.getSubComponent("deep"), nullptr);
    EXPECT_EQ(component.getComponentCount(), 1);
}

// ---- taking one out

TEST_F(ZELComponentTest, deletingTakesTheFrontEntryWhicheverOneHasTheId)
{
    PlainComponent& component = withParts({"a", "b", "c"});
    component.deleteSubComponent("c");
    EXPECT_EQ(component.ids(), (Ids{"b", "c"}));
    component.deleteSubComponent("c");
    EXPECT_EQ(component.ids(), (Ids{"c"}));
    component.deleteSubComponent("c");
    EXPECT_EQ(component.ids(), Ids{});
    component.deleteSubComponent("c");
    EXPECT_EQ(component.ids(), Ids{});
}

TEST_F(ZELComponentTest, anIdThatOccursTwiceTakesOneEntryOnly)
{
    PlainComponent& component = withParts({"a", "b", "b"});
    component.deleteSubComponent("b");
    EXPECT_EQ(component.ids(), (Ids{"b", "b"}));
}

TEST_F(ZELComponentTest, deletingAnUnknownIdChangesNothing)
{
    PlainComponent& component = withParts({"a", "b"});
    component.deleteSubComponent("x");
    component.deleteSubComponent("");
    EXPECT_EQ(component.ids(), (Ids{"a", "b"}));
}

TEST_F(ZELComponentTest, deletingWritesItsLineTwiceOnAMatchAndOnceElse)
{
    PlainComponent& component = withParts({"a", "b"});
    log().startHere();
    component.deleteSubComponent("x");
    EXPECT_EQ(log().texts(), Ids{"[D] deleteSubComponent x"});
    log().startHere();
    component.deleteSubComponent("b");
    EXPECT_EQ(log().texts(), (Ids{"[D] deleteSubComponent b", "[D] deleteSubComponent b"}));
}

TEST_F(ZELComponentTest, deletingDestroysNothing)
{
    PlainComponent& component = withParts({"a", "b"});
    component.showWindow();
    component.showSubComponent();
    const QPointer<QWidget> first = component.getSubComponent("a")->getQWidget();
    component.deleteSubComponent("b");
    EventLoop::deliverAndDelete();
    ASSERT_FALSE(first.isNull());
    EXPECT_EQ(first->parentWidget(), &component);
    EXPECT_TRUE(first->isVisible());
}

// ---- ownership

TEST_F(ZELComponentTest, subComponentsDieWithTheirParentWidget)
{
    PlainComponent& component = withParts({"a", "b"});
    component.createSubComponent(element("<x><label><c/></label></x>"));
    std::vector<QPointer<QWidget>> parts;
    parts.reserve(static_cast<std::size_t>(component.getComponentCount()));
    for (int i = 0; i < component.getComponentCount(); ++i)
        parts.emplace_back(component.getSubComponent(i)->getQWidget());
    component.deleteSubComponent("c");
    delete &component;
    ASSERT_EQ(parts.size(), 3u);
    for (const QPointer<QWidget>& part : parts)
        EXPECT_TRUE(part.isNull());
}

TEST_F(ZELComponentTest, theSequenceDoesNotOwnWhatIsInIt)
{
    auto* const part = new PlainComponent(&panel(), "part");
    const QPointer<QWidget> alive = part;
    auto* const component = new PlainComponent(&panel(), "whole");
    component->adopt(part);
    delete component;
    EXPECT_FALSE(alive.isNull());
}
