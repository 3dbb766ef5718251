#include "events/ZELRangeEvent.h"

#include <utility>

ZELRangeEvent::ZELRangeEvent(QEvent::Type type, QObject* pSender, std::string strID, int nValue)
    : ZELEvent(type, pSender, std::move(strID))
    , m_nValue(nValue)
{
}

ZELRangeEvent::ZELRangeEvent(const ZELRangeEvent& other) = default;

ZELRangeEvent::~ZELRangeEvent() = default;

std::string ZELRangeEvent::getClassType()
{
    return "ZELRangeEvent";
}
