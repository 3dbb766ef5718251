#include "components/buttons/ZELRadioGroup.h"

#include "components/buttons/RadioGroupTest.h"

#include <cstdint>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELRadioButton;
using Components::ZELRadioGroup;

namespace {

class ZELRadioGroupClickTest : public RadioGroupTest
{
};

} // namespace

TEST_F(ZELRadioGroupClickTest, aTapChecksOneAndThenUnchecksTheOther)
{
    Group* const group = abc();
    Touch::tap(group->button("a"));
    panel().take();
    Touch::press(group->button("b"));
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(group->button("b"), &release);
    EXPECT_EQ(checked(group), "ab") << "until the group has its event";
    EXPECT_EQ(group->m_strSelected, "a");
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(checked(group), "b");
    EXPECT_EQ(group->m_strSelected, "b");
    EXPECT_EQ(group->getSelectedButton(), group->button("b"));
    EXPECT_EQ(click.type, EVENT_MOUSE_UP);
    EXPECT_EQ(click.classType, "ZELEvent");
    EXPECT_EQ(click.sender, group->button("b"));
    EXPECT_EQ(click.id, "");
}

TEST_F(ZELRadioGroupClickTest, thePageSeesTheSelectionAlreadyMade)
{
    class Page : public QWidget
    {
    public:
        Group* m_group = nullptr;
        std::string m_seen;

    protected:
        bool event(QEvent* event) override
        {
            if (event->type() == EVENT_MOUSE_UP && m_group->getSelectedButton())
                m_seen = m_group->getSelectedButton()->m_strID + checked(m_group);
            return QWidget::event(event);
        }
    } page;
    Group* const group = abc();
    group->setParent(&page);
    page.m_group = group;
    Touch::tap(group->button("a"));
    EventLoop::deliver();
    EXPECT_EQ(page.m_seen, "aa");
    Touch::tap(group->button("c"));
    EventLoop::deliver();
    EXPECT_EQ(page.m_seen, "cc");
}

TEST_F(ZELRadioGroupClickTest, aTapOnTheCheckedButtonIsStillTold)
{
    Group* const group = abc();
    Touch::tap(group->button("a"));
    panel().take();
    Touch::tap(group->button("a"));
    EXPECT_EQ(panel().takeOne().sender, group->button("a"));
    EXPECT_EQ(checked(group), "a");
}

TEST_F(ZELRadioGroupClickTest, longPressTicksStopAtTheGroup)
{
    Group* const group = abc();
    EventRecorder atGroup;
    atGroup.listenAt(group);
    group->button("a")->setLongPress(true);
    Touch::press(group->button("a"));
    for (QObject* child : group->button("a")->children()) {
        if (auto* const timer = dynamic_cast<Components::Timer*>(child)) {
            QTimerEvent round(1);
            QCoreApplication::sendEvent(timer, &round);
        }
    }
    EXPECT_EQ(atGroup.takeTypes(), Types{EVENT_LONG_PRESS});
    EXPECT_EQ(panel().takeTypes(), Types{});
    Touch::release(group->button("a"));
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELRadioGroupClickTest, whatItGetsGoesOnToTheWidget)
{
    Group* const group = abc();
    for (const int type : {1552, 1557, 1571, 1572, 2000}) {
        ZELEvent event(QEvent::Type(type), group->button("a"), "a");
        EXPECT_TRUE(QCoreApplication::sendEvent(group, &event)) << type;
    }
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    expectWidgetsAnswers(group);
}

TEST_F(ZELRadioGroupClickTest, aTabButtonInsideBecomesTheSelectedOneAndNoButtonIs)
{
    Group* const group = abc("<tabbutton>" + button("tab", 180) + "</tabbutton>");
    group->setButtonSelect("b");
    ZELComponent* const tab = group->getSubComponent("tab");
    Touch::press(tab->getQWidget());
    EXPECT_EQ(panel().takeTypes(), Types{}) << "its own event stops at the group";
    EXPECT_EQ(group->m_strSelected + checked(group), "bb");
    Touch::release(tab->getQWidget());
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.type, EVENT_MOUSE_UP);
    EXPECT_EQ(click.sender, tab->getQWidget());
    EXPECT_EQ(click.id, "");
    EXPECT_EQ(group->m_strSelected, "tab");
    EXPECT_EQ(checked(group), "");
    EXPECT_EQ(group->getSelectedButton(), nullptr);
}

TEST_F(ZELRadioGroupClickTest, aLabelInsideBecomesTheSelectedOneAndNoButtonIs)
{
    Group* const group = abc("<label><text title='t' style='normal'>"
                             "<position x='200' y='0' width='60' height='40'/></text></label>");
    group->setButtonSelect("b");
    ZELComponent* const label = group->getSubComponent("text");
    Touch::tap(label->getQWidget());
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.sender, label->getQWidget());
    EXPECT_EQ(click.id, "");
    EXPECT_EQ(group->m_strSelected, "text");
    EXPECT_EQ(checked(group), "");
    EXPECT_EQ(group->getSelectedButton(), nullptr);
}

TEST_F(ZELRadioGroupClickTest, aGroupInsideAGroupHandsItsClickOn)
{
    auto* const outer =
        make<Group>("<outer><position width='400' height='60'/><radiobutton>" + button("a", 0) +
                    "</radiobutton><radiogroup><inner><position x='100' width='200' "
                    "height='60'/><radiobutton>" +
                    button("x", 0) + "</radiobutton></inner></radiogroup></outer>");
    outer->setButtonSelect("a");
    auto* const inner = static_cast<ZELRadioGroup*>(outer->getSubComponent("inner"));
    ZELComponent* const x = inner->getSubComponent("x");
    Touch::tap(x->getQWidget());
    EXPECT_EQ(panel().takeOne().sender, x->getQWidget());
    EXPECT_EQ(inner->getSelectedButton(), x);
    EXPECT_EQ(outer->m_strSelected, "x");
    EXPECT_EQ(checked(outer), "");
}

TEST_F(ZELRadioGroupClickTest, aSenderThatIsGoneIsNotTouched)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    auto* const gone = new QWidget;
    const auto address = reinterpret_cast<std::uintptr_t>(static_cast<QObject*>(gone));
    QCoreApplication::postEvent(group, new ZELEvent(EVENT_MOUSE_UP, gone, "a"));
    delete gone;
    log().expectError("[event] grp does not hold the sender", 1, "ZELRadioGroup");
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(click.sender), address);
    EXPECT_EQ(click.id, "");
    EXPECT_EQ(checked(group), "b");
}

TEST_F(ZELRadioGroupClickTest, anEventWithoutASenderSelectsNothingAndGoesOn)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    QCoreApplication::postEvent(group, new ZELEvent(EVENT_MOUSE_UP, "a"));
    EXPECT_EQ(panel().takeOne().sender, nullptr);
    EXPECT_EQ(checked(group), "b");
    EXPECT_EQ(group->m_strSelected, "b");
}

TEST_F(ZELRadioGroupClickTest, anEventOfAnotherClassUnderTheSameNumberIsToldAndGoesNoFurther)
{
    Group* const group = abc();
    log().expectError("[event] grp got an event 1552 that is no ZELEvent", 1, "ZELRadioGroup");
    QCoreApplication::postEvent(group, new QEvent(EVENT_MOUSE_UP));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELRadioGroupClickTest, eventButtonPressLeavesTheButtonItselfAlone)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->eventButtonPress(group->button("a"));
    EXPECT_EQ(group->m_strSelected, "a");
    EXPECT_EQ(checked(group), "");
    group->eventButtonPress(nullptr);
    EXPECT_EQ(group->m_strSelected, "a");
}

TEST_F(ZELRadioGroupClickTest, goesWithItsButtonsWhileAClickIsQueued)
{
    Group* const group = abc();
    Touch::tap(group->button("a"));
    delete group;
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELRadioGroupClickTest, withoutAParentAClickIsTold)
{
    Group group(nullptr, "grp", "ZELRadioGroup",
                element("<grp><radiobutton>" + button("a", 0) + "</radiobutton></grp>"));
    log().expectError("[event] grp has no parent", 1, "ZELRadioGroup");
    Touch::tap(group.button("a"));
    EventLoop::deliver();
    EXPECT_EQ(group.m_strSelected, "a");
}

TEST_F(ZELRadioGroupClickTest, aTouchOnADimButtonFallsThroughAndSelectsNothing)
{
    Group* const group = abc();
    group->setDimMode(true, false);
    Touch::tapWindow(group->button("a"));
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(checked(group), "");
}

TEST_F(ZELRadioGroupClickTest, aTapBesideTheButtonsIsNoClick)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    Touch::tapWindow(&panel(), group->mapTo(&panel(), QPoint(300, 30)));
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(group->m_strSelected + checked(group), "bb");
    EXPECT_EQ(touches(), 0);
}

TEST_F(ZELRadioGroupClickTest, aLabelInAnInnerGroupIsSelectedInBoth)
{
    auto* const outer = make<Group>(
        "<outer><position width='400' height='60'/><radiobutton>" + button("a", 0) +
        "</radiobutton><radiogroup><inner><position x='100' width='200' height='60'/>"
        "<radiobutton>" +
        button("x", 0) +
        "</radiobutton><label><text title='t' style='normal'><position x='80' y='0' width='60' "
        "height='40'/></text></label></inner></radiogroup></outer>");
    auto* const inner = static_cast<ZELRadioGroup*>(outer->getSubComponent("inner"));
    outer->setButtonSelect("a");
    inner->setButtonSelect("x");
    QWidget* const label = inner->getSubComponent("text")->getQWidget();
    Touch::tap(label);
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.sender, label);
    EXPECT_EQ(click.id, "");
    for (const ZELRadioGroup* group : {inner, static_cast<ZELRadioGroup*>(outer)})
        EXPECT_EQ(group->m_strSelected, "text") << group->m_strID;
    EXPECT_EQ(checked(outer), "");
    EXPECT_EQ(inner->getSelectedButton(), nullptr);
    EXPECT_FALSE(static_cast<ZELRadioButton*>(inner->getSubComponent("x"))->m_bChecked);
}
