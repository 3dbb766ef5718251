#include "components/SubComponents.h"

#include "components/ZELComponent.h"

namespace PANFx::Components {

ZELComponent* subComponentAt(ZELComponent& owner, int nIndex)
{
    if (nIndex < 0 || nIndex >= owner.getComponentCount())
        return nullptr;
    ZELComponent* component = owner.getSubComponent(nIndex);
    return ZELComponent::isPartOf(owner.getQWidget(), component) ? component : nullptr;
}

ZELComponent* firstOfType(ZELComponent& owner, const std::string& strType)
{
    for (int i = 0; i < owner.getComponentCount(); ++i) {
        ZELComponent* component = subComponentAt(owner, i);
        if (component && component->m_strType == strType)
            return component;
    }
    return nullptr;
}

int indexOfSubComponent(ZELComponent& owner, const std::string& strID)
{
    for (int i = 0; i < owner.getComponentCount(); ++i) {
        const ZELComponent* component = subComponentAt(owner, i);
        if (component && component->m_strID == strID)
            return i;
    }
    return -1;
}

} // namespace PANFx::Components
