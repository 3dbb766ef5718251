#include "ComponentAccess.h"

#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "resource/ZELResourceMgr.h"

using PANFx::Components::ZELComponent;
using PANFx::Components::ZELLabel;
using PANFx::Resource::ZELResourceMgr;

ZELComponent* findComponent(const std::deque<ZELComponent*>& components, const std::string& strID)
{
    for (ZELComponent* pComponent : components) {
        if (pComponent->m_strID == strID)
            return pComponent;
        const bool bHolds =
            pComponent->m_strType == "ZELTab" || pComponent->m_strType == "ZELTabPage";
        ZELComponent* pInside =
            bHolds ? findComponent(pComponent->m_dqSubComponents, strID) : nullptr;
        if (pInside != nullptr)
            return pInside;
    }
    return nullptr;
}

std::string senderID(QEvent* pEvent)
{
    const ZELEvent* pReport = ZELEvent::from(pEvent);
    return pReport != nullptr ? pReport->m_strID : "";
}

std::string touchedID(QEvent* pEvent)
{
    return pEvent->type() == EVENT_MOUSE_UP ? senderID(pEvent) : "";
}

const ZELListEvent* listEvent(QEvent* pEvent)
{
    ZELEvent* pReport = ZELEvent::from(pEvent);
    const bool bFits = pReport != nullptr && pReport->getClassType() == "ZELListEvent";
    return bFits ? static_cast<const ZELListEvent*>(pReport) : nullptr;
}

const ZELRangeEvent* rangeEvent(QEvent* pEvent)
{
    ZELEvent* pReport = ZELEvent::from(pEvent);
    const bool bFits = pReport != nullptr && pReport->getClassType() == "ZELRangeEvent";
    return bFits ? static_cast<const ZELRangeEvent*>(pReport) : nullptr;
}

std::string localText(const std::string& strKey)
{
    return ZELResourceMgr::getInstance()->getLocaleString(strKey);
}

std::string captioned(const std::string& strKey, const std::string& strValue)
{
    return localText(strKey) + localText("@colon") + " " + strValue;
}

void showText(ZELComponent* pLabel, const std::string& strText)
{
    if (auto* pText = componentAs<ZELLabel>(pLabel, "ZELLabel")) {
        pText->setTitle(strText);
        pText->update();
    }
}
