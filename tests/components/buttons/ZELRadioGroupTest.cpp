#include "components/buttons/ZELRadioGroup.h"

#include "components/buttons/RadioGroupTest.h"
#include "components/support/InOnePlace.h"

#include <memory>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELRadioButton;
using Components::ZELRadioGroup;

namespace {

class ZELRadioGroupTest : public RadioGroupTest
{
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

TEST_F(ZELRadioGroupTest, handlesEventsBehindTheOperationsOfAComponent)
{
    EXPECT_EQ(Group::slotOfEvent(), slot(&ZELComponent::getQWidget) + slotSize);
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
    Group group(&panel(), "grp", "ZELRadioGroup", element(abcElement()));
    EXPECT_EQ(group.getComponentCount(), 3);
    for (const char* id : {"a", "b", "c"}) {
        ASSERT_NE(group.button(id), nullptr) << id;
        EXPECT_EQ(group.button(id)->parentWidget(), &group) << id;
        // before the group is shown, which takes children along that nobody has shown
        EXPECT_TRUE(group.button(id)->testAttribute(Qt::WA_WState_ExplicitShowHide)) << id;
        EXPECT_TRUE(group.button(id)->isVisibleTo(&group)) << id;
    }
    group.showWindow();
    EXPECT_TRUE(group.button("a")->isVisible());
    EXPECT_EQ(group.button("b")->geometry(), QRect(60, 0, 60, 40));
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
            "</checkbutton><tabbutton>" + button("tab", 300) + "</tabbutton><headerbutton>" +
            button("head", 360) + "</headerbutton><label><text title='t' style='normal'/></label>");
    EXPECT_EQ(group->getComponentCount(), 8);
    EXPECT_EQ(group->m_buttons.getCount(), 3);
    for (const char* id : {"push", "check", "tab", "head", "text"}) {
        EXPECT_NE(group->getSubComponent(id), nullptr) << id;
        EXPECT_EQ(group->m_buttons.getValue(id), nullptr) << id;
    }
    for (const char* id : {"tab", "head"})
        EXPECT_NE(dynamic_cast<ZELRadioButton*>(group->getSubComponent(id)), nullptr) << id;
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

TEST_F(ZELRadioGroupTest, aButtonFromElsewhereLendsItsIdAndUnchecksTheRest)
{
    Group* const group = abc();
    group->setButtonSelect("b");
    auto* const foreign = make<ZELRadioButton>(button("c", 300));
    group->setButtonSelect(foreign);
    EXPECT_EQ(group->m_strSelected, "c");
    EXPECT_EQ(checked(group), "");
    EXPECT_FALSE(foreign->m_bChecked) << "it is not in the table";
    EXPECT_EQ(group->getSelectedButton(), group->button("c")) << "the group's own of that id";
}

TEST_F(ZELRadioGroupTest, ofTwoButtonsWithOneIdTheLaterStandsAtThePlaceOfTheFirst)
{
    auto* const group =
        make<Group>("<grp><position width='400' height='60'/><radiobutton>" + button("a", 0) +
                    button("b", 60) + button("a", 120) + "</radiobutton></grp>");
    auto* const first = static_cast<ZELRadioButton*>(group->ZELComponent::getSubComponent(0));
    auto* const later = static_cast<ZELRadioButton*>(group->ZELComponent::getSubComponent(2));
    EXPECT_EQ(group->m_buttons.getCount(), 2);
    group->setButtonSelect(0);
    EXPECT_TRUE(later->m_bChecked);
    EXPECT_FALSE(first->m_bChecked);
    EXPECT_EQ(group->getSelectedButton(), later);
    Touch::tap(first);
    EXPECT_EQ(panel().takeOne().sender, first);
    EXPECT_TRUE(first->m_bChecked);
    EXPECT_FALSE(later->m_bChecked);
    Touch::tap(group->button("b"));
    panel().take();
    EXPECT_TRUE(first->m_bChecked) << "what is not in the table is not unchecked";
}

// ---- a button that the application deletes under the group

TEST_F(ZELRadioGroupTest, aDeletedButtonIsNotTouchedAgain)
{
    Group* const group = abc();
    ZELRadioButton* const c = group->button("c");
    group->setButtonSelect("b");
    delete group->button("b");
    EXPECT_EQ(group->getSelectedButton(), nullptr);
    group->setButtonSelect(1);
    group->setButtonSelect("b");
    EXPECT_EQ(group->m_strSelected, "b");
    group->setButtonSelect("c");
    EXPECT_TRUE(c->m_bChecked);
    group->setDimMode(true, true);
    group->setDimMode(false, false);
    group->setSelectClear();
    group->hideSubComponent();
    group->showSubComponent();
    EXPECT_EQ(group->button("b"), nullptr);
    EXPECT_EQ(group->getComponentCount(), 3);
    EXPECT_EQ(group->ZELComponent::getSubComponent(2), c) << "the others keep their numbers";

    Touch::tap(c);
    EXPECT_EQ(panel().takeOne().sender, c);
    EXPECT_EQ(group->getSelectedButton(), c);
    group->addButton();
    EXPECT_EQ(group->m_buttons.getCount(), 2);
    EXPECT_EQ(group->getSelectedButton(), c);
}

TEST_F(ZELRadioGroupTest, anEmptyEntryOfADerivedClassIsPassedOver)
{
    Group* const group = abc();
    group->m_buttons.AddObj("none", static_cast<TAMFx::Data::Object*>(nullptr));
    ASSERT_EQ(group->m_buttons.getCount(), 4);
    group->setButtonSelect("b");
    EXPECT_EQ(checked(group), "b");
    group->setButtonSelect(3);
    EXPECT_EQ(checked(group), "b");
    group->setDimMode(true, true);
    EXPECT_EQ(checked(group), "");
}

TEST_F(ZELRadioGroupTest, whatLiesWhereADeletedButtonWasIsNotTouched)
{
    for (const bool sameAddress : {true, false}) {
        Group* const group = abc();
        group->m_dqSubComponents.push_back(new InOnePlace<ZELRadioButton>(
            group, "d", "ZELRadioButton", element(button("d", 180))));
        group->addButton();
        group->setButtonSelect("d");
        delete group->button("d");
        const auto other = [&]() -> std::unique_ptr<ZELRadioButton> {
            if (sameAddress)
                return std::make_unique<InOnePlace<ZELRadioButton>>(&panel(), "d", "ZELRadioButton",
                                                                    element(button("d", 0)));
            return std::make_unique<ZELRadioButton>(&panel(), "d", "ZELRadioButton",
                                                    element(button("d", 0)));
        }();
        ASSERT_EQ(group->ZELComponent::getSubComponent(3) == other.get(), sameAddress);
        group->showSubComponent();
        EXPECT_TRUE(other->isHidden());
        other->showWindow();
        group->hideSubComponent();
        EXPECT_TRUE(other->isVisible());
        EXPECT_EQ(group->button("d"), nullptr);
        EXPECT_EQ(group->findByWidget(other.get()), nullptr);
        EXPECT_EQ(group->getSelectedButton(), nullptr);
        other->setCheck(1);
        group->setSelectClear();
        group->setDimMode(true, true);
        group->addButton();
        EXPECT_EQ(group->m_buttons.getCount(), 3);
        group->setDimMode(false, true);
        EXPECT_TRUE(other->m_bChecked);
        EXPECT_TRUE(other->isEnabled());
    }
}

TEST_F(ZELRadioGroupTest, aDeletedButtonsLastClickIsToldAndSelectsNothing)
{
    Group* const group = abc();
    group->setButtonSelect("a");
    ZELRadioButton* const b = group->button("b");
    Touch::tap(b);
    delete b; // its click is on its way to the group already
    log().expectError("[event] grp does not hold the sender", 1, "ZELRadioGroup");
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    EXPECT_EQ(group->m_strSelected, "a");
    EXPECT_TRUE(group->button("a")->m_bChecked);
}
