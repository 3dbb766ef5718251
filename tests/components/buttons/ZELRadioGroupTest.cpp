#include "components/buttons/ZELRadioGroup.h"

#include "components/buttons/ButtonTest.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/text/ZELLabel.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELImageButton;
using Components::ZELLabel;
using Components::ZELRadioButton;
using Components::ZELRadioGroup;

namespace {

class Group : public ZELRadioGroup
{
public:
    using ZELRadioGroup::m_bFlag;
    using ZELRadioGroup::m_buttons;
    using ZELRadioGroup::m_logger;
    using ZELRadioGroup::ZELRadioGroup;

    ZELRadioButton* button(const std::string& id)
    {
        return static_cast<ZELRadioButton*>(getSubComponent(id));
    }
};

class ZELRadioGroupTest : public ButtonTest
{
protected:
    static std::string button(const std::string& id, int x, const std::string& attributes = "")
    {
        return "<" + id + " " + attributes +
               "><image up='up.png' down='down.png' dim='dim.png'/><position x='" +
               std::to_string(x) + "' y='0' width='60' height='40'/></" + id + ">";
    }

    /** A group "grp" of the radio buttons a, b and c, and of what else is given. */
    Group* abc(const std::string& more = "")
    {
        return make<Group>("<grp><position x='100' y='50' width='400' height='60'/><radiobutton>" +
                               button("a", 0) + button("b", 60) + button("c", 120) +
                               "</radiobutton>" + more + "</grp>",
                           "ZELRadioGroup");
    }

    static std::string checked(Group* group)
    {
        std::string ids;
        for (int i = 0; i < group->getComponentCount(); ++i) {
            ZELComponent* const component = group->ZELComponent::getSubComponent(i);
            if (component->m_strType == "ZELRadioButton" &&
                static_cast<ZELRadioButton*>(component)->m_bChecked)
                ids += component->m_strID;
        }
        return ids;
    }
};

} // namespace

// ---- building

TEST_F(ZELRadioGroupTest, isAComponentFirstAndAnInvisibleWidgetSecond)
{
    auto* const group = buildComponent<ZELRadioGroup>(
        "radiogroup", "<grp><position x='1' y='2' width='30' height='40'/></grp>");
    EXPECT_EQ(group->m_strType, "ZELRadioGroup");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(group)), static_cast<void*>(group));
    EXPECT_EQ(group->getQWidget(), static_cast<QWidget*>(group));
    EXPECT_EQ(group->geometry(), QRect(1, 2, 30, 40));
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(group), group->rect()), 0);
    group->hideWindow();
    EXPECT_TRUE(group->isHidden());
    group->showWindow();
    EXPECT_TRUE(group->isVisible());
}

TEST_F(ZELRadioGroupTest, startsWithNothingSelected)
{
    Group* const group = abc();
    EXPECT_EQ(group->m_logger.m_strIdentity, "QTPANFx ZELRadioGroup  ");
    EXPECT_EQ(group->m_strSelected, "");
    EXPECT_EQ(group->getSelectedButton(), nullptr);
    EXPECT_EQ(checked(group), "");
    EXPECT_FALSE(group->m_bFlag);
    EXPECT_EQ(group->m_buttons.getCount(), 3);
}

TEST_F(ZELRadioGroupTest, buildsAndShowsItsButtonsOnItself)
{
    Group* const group = abc();
    EXPECT_EQ(group->getComponentCount(), 3);
    for (const char* id : {"a", "b", "c"}) {
        ASSERT_NE(group->button(id), nullptr) << id;
        EXPECT_EQ(group->button(id)->parentWidget(), group) << id;
        EXPECT_TRUE(group->button(id)->isVisible()) << id;
    }
    EXPECT_EQ(group->button("b")->geometry(), QRect(60, 0, 60, 40));
}

TEST_F(ZELRadioGroupTest, makesItsButtonsBeforeItReadsItsOwnPlace)
{
    log().startHere();
    make<Group>("<grp><position x='1' y='2' width='3' height='4'/>"
                "<radiobutton><bad/></radiobutton><nosuch><x/></nosuch></grp>");
    log().expectError("[getImage] No FileName Error", 2, "ZELImageMgr");
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)");
    log().expectInOrder({"[E] [createSubComponent] Fail to create a component (nosuch, x)",
                         "[D] [setLayout] setGeometry (1, 2, 3, 4)"});
    EXPECT_EQ(log().texts("ZELRadioGroup"),
              std::vector<std::string>{"[D] [setLayout] setGeometry (1, 2, 3, 4)"});
}

TEST_F(ZELRadioGroupTest, withoutAPositionItIsOnePixelAndClipsItsButtons)
{
    auto* const group = make<Group>("<grp><radiobutton>" + button("a", 0) + "</radiobutton></grp>");
    EXPECT_EQ(group->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(log().count("[D] [setLayout] setGeometry (0, 0, 1, 1)", "ZELRadioGroup"), 1);
    EXPECT_EQ(Pixels::inkBox(Pixels::grab(&panel())), QRect(0, 0, 1, 1));
}

TEST_F(ZELRadioGroupTest, aNullLayoutGivesAnEmptyGroup)
{
    log().expectError("[createSubComponent] ZELRadioGroup, Node * pLayout == NULL");
    log().expectError("[setLayout] grp pLayout == NULL", 1, "ZELRadioGroup");
    auto* const group = new Group(&panel(), "grp", "ZELRadioGroup", nullptr);
    EXPECT_EQ(group->getComponentCount(), 0);
    EXPECT_EQ(group->m_buttons.getCount(), 0);
    EXPECT_EQ(group->geometry(), QRect(0, 0, 100, 30)) << "never placed";
    group->setButtonSelect(0);
    group->setSelectClear();
    group->setDimMode(true, true);
}

TEST_F(ZELRadioGroupTest, onlyTheExactTypeTakesPart)
{
    Group* const group =
        abc("<button>" + button("push", 180) + "</button><checkbutton>" + button("check", 240) +
            "</checkbutton><label><text title='t' style='normal'/></label>");
    for (const char* derived : {"ZELHeaderButton", "ZELTabButton"})
        group->m_dqSubComponents.push_back(
            new ZELRadioButton(group, derived, derived, element(button("derived", 300))));
    group->addButton();
    EXPECT_EQ(group->getComponentCount(), 8);
    EXPECT_EQ(group->m_buttons.getCount(), 3);
    for (const char* id : {"push", "check", "text", "ZELHeaderButton", "ZELTabButton"})
        EXPECT_EQ(group->m_buttons.getValue(id), nullptr) << id;
}

TEST_F(ZELRadioGroupTest, takesItsButtonsAnew)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->addButton();
    EXPECT_EQ(group->m_buttons.getCount(), 3);
    EXPECT_EQ(group->getSelectedButton(), group->button("b"));
    auto* const added = new ZELRadioButton(group, "d", "ZELRadioButton", element(button("d", 180)));
    group->m_dqSubComponents.push_back(added);
    group->setButtonSelect(3);
    EXPECT_FALSE(added->m_bChecked) << "unknown until now";
    group->addButton();
    group->setButtonSelect(3);
    EXPECT_TRUE(added->m_bChecked);
    EXPECT_EQ(checked(group), "d");
}

// ---- clicks

TEST_F(ZELRadioGroupTest, aTapChecksOneAndThenUnchecksTheOther)
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

TEST_F(ZELRadioGroupTest, thePageSeesTheSelectionAlreadyMade)
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

TEST_F(ZELRadioGroupTest, aTapOnTheCheckedButtonIsStillTold)
{
    Group* const group = abc();
    Touch::tap(group->button("a"));
    panel().take();
    Touch::tap(group->button("a"));
    EXPECT_EQ(panel().takeOne().sender, group->button("a"));
    EXPECT_EQ(checked(group), "a");
}

TEST_F(ZELRadioGroupTest, longPressTicksStopAtTheGroup)
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

TEST_F(ZELRadioGroupTest, whatItGetsGoesOnToTheWidget)
{
    Group* const group = abc();
    for (const int type : {1552, 1557, 1571, 1572, 2000}) {
        ZELEvent event(QEvent::Type(type), group->button("a"), "a");
        EXPECT_TRUE(QCoreApplication::sendEvent(group, &event)) << type;
    }
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
}

TEST_F(ZELRadioGroupTest, aLabelInsideBecomesTheSelectedOneAndNoButtonIs)
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

TEST_F(ZELRadioGroupTest, aGroupInsideAGroupHandsItsClickOn)
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

TEST_F(ZELRadioGroupTest, aSenderThatIsGoneIsNotTouched)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    auto* const gone = new QWidget;
    QCoreApplication::postEvent(group, new ZELEvent(EVENT_MOUSE_UP, gone, "a"));
    delete gone;
    log().expectError("[event] grp does not hold the sender", 1, "ZELRadioGroup");
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.sender, gone);
    EXPECT_EQ(click.id, "");
    EXPECT_EQ(checked(group), "b");
}

TEST_F(ZELRadioGroupTest, anEventWithoutASenderSelectsNothingAndGoesOn)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    QCoreApplication::postEvent(group, new ZELEvent(EVENT_MOUSE_UP, "a"));
    EXPECT_EQ(panel().takeOne().sender, nullptr);
    EXPECT_EQ(checked(group), "b");
    EXPECT_EQ(group->m_strSelected, "b");
}

TEST_F(ZELRadioGroupTest, anEventOfAnotherClassUnderTheSameNumberIsToldAndGoesNoFurther)
{
    Group* const group = abc();
    log().expectError("[event] grp got an event 1552 that is no ZELEvent", 1, "ZELRadioGroup");
    QCoreApplication::postEvent(group, new QEvent(EVENT_MOUSE_UP));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELRadioGroupTest, eventButtonPressLeavesTheButtonItselfAlone)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->eventButtonPress(group->button("a"));
    EXPECT_EQ(group->m_strSelected, "a");
    EXPECT_EQ(checked(group), "");
    group->eventButtonPress(nullptr);
    EXPECT_EQ(group->m_strSelected, "a");
}

// ---- selection by call

TEST_F(ZELRadioGroupTest, selectsByButtonIndexAndId)
{
    Group* const group = abc();
    group->setButtonSelect(group->button("c"));
    EXPECT_EQ(group->m_strSelected + checked(group), "cc");
    group->setButtonSelect(0);
    EXPECT_EQ(group->m_strSelected + checked(group), "aa");
    group->setButtonSelect("b");
    EXPECT_EQ(group->m_strSelected + checked(group), "bb");
    EXPECT_EQ(group->getSelectedButton(), group->button("b"));
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELRadioGroupTest, nullAndAnIndexBeyondDoNothing)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->setButtonSelect(static_cast<ZELRadioButton*>(nullptr));
    group->setButtonSelect(static_cast<const char*>(nullptr));
    group->setButtonSelect(3);
    group->setButtonSelect(99);
    EXPECT_EQ(group->m_strSelected + checked(group), "bb");
}

TEST_F(ZELRadioGroupTest, aNegativeIndexIsToldAndDoesNothing)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    log().expectError("[setButtonSelect] grp has no button -1", 1, "ZELRadioGroup");
    group->setButtonSelect(-1);
    EXPECT_EQ(group->m_strSelected + checked(group), "bb");
}

TEST_F(ZELRadioGroupTest, anUnknownIdBecomesTheSelectedOneAndTouchesNoButton)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->setButtonSelect("no-such-id");
    EXPECT_EQ(group->m_strSelected, "no-such-id");
    EXPECT_EQ(checked(group), "b");
    EXPECT_EQ(group->getSelectedButton(), nullptr);
}

TEST_F(ZELRadioGroupTest, clearingKeepsTheSelectedId)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->setSelectClear();
    EXPECT_EQ(checked(group), "");
    EXPECT_EQ(group->getSelectedButton(), group->button("b"));
}

TEST_F(ZELRadioGroupTest, dimsAllButtonsAndClearsThemWhenAsked)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    group->setDimMode(true, false);
    for (const char* id : {"a", "b", "c"})
        EXPECT_FALSE(group->button(id)->isEnabled()) << id;
    EXPECT_TRUE(group->isEnabled());
    EXPECT_EQ(checked(group), "b");
    group->setDimMode(true, true);
    EXPECT_EQ(checked(group), "");
    EXPECT_EQ(group->m_strSelected, "b");
    group->setDimMode(false, false);
    EXPECT_TRUE(group->button("a")->isEnabled());
}

TEST_F(ZELRadioGroupTest, aTouchOnADimButtonFallsThroughAndSelectsNothing)
{
    Group* const group = abc();
    group->setDimMode(true, false);
    Touch::tapWindow(group->button("a"));
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(checked(group), "");
}

TEST_F(ZELRadioGroupTest, goesWithItsButtonsWhileAClickIsQueued)
{
    Group* const group = abc();
    Touch::tap(group->button("a"));
    delete group;
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELRadioGroupTest, withoutAParentAClickIsTold)
{
    Group group(nullptr, "grp", "ZELRadioGroup",
                element("<grp><radiobutton>" + button("a", 0) + "</radiobutton></grp>"));
    log().expectError("[event] grp has no parent", 1, "ZELRadioGroup");
    Touch::tap(group.button("a"));
    EventLoop::deliver();
    EXPECT_EQ(group.m_strSelected, "a");
}
