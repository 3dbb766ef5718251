#pragma once

#include "components/buttons/ButtonTest.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/buttons/ZELRadioGroup.h"
#include "support/VirtualSlot.h"

#include <string>

namespace PANFx::Testing {

/** A group whose inside is open. */
class Group : public Components::ZELRadioGroup
{
public:
    using ZELRadioGroup::m_bFlag;
    using ZELRadioGroup::m_buttons;
    using ZELRadioGroup::m_logger;
    using ZELRadioGroup::ZELRadioGroup;

    static std::intptr_t slotOfEvent() { return slot(&Group::event); }

    Components::ZELRadioButton* button(const std::string& id)
    {
        return static_cast<Components::ZELRadioButton*>(getSubComponent(id));
    }
};

/** The fixture of the radio group: groups "grp" of the buttons a, b and c. */
class RadioGroupTest : public ButtonTest
{
protected:
    static std::string button(const std::string& id, int x, const std::string& attributes = "")
    {
        return "<" + id + " " + attributes +
               "><image up='up.png' down='down.png' dim='dim.png'/><position x='" +
               std::to_string(x) + "' y='0' width='60' height='40'/></" + id + ">";
    }

    /** The element "grp" of the radio buttons a, b and c, and of what else is given. */
    static std::string abcElement(const std::string& more = "")
    {
        return "<grp><position x='100' y='50' width='400' height='60'/><radiobutton>" +
               button("a", 0) + button("b", 60) + button("c", 120) + "</radiobutton>" + more +
               "</grp>";
    }

    /** That group on the panel, shown. */
    Group* abc(const std::string& more = "")
    {
        return make<Group>(abcElement(more), "ZELRadioGroup");
    }

    static std::string checked(Group* group)
    {
        std::string ids;
        for (int i = 0; i < group->getComponentCount(); ++i) {
            Components::ZELComponent* const component = group->ZELComponent::getSubComponent(i);
            if (component->m_strType == "ZELRadioButton" &&
                static_cast<Components::ZELRadioButton*>(component)->m_bChecked)
                ids += component->m_strID;
        }
        return ids;
    }
};

} // namespace PANFx::Testing
