#include "events/ZELResultEvent.h"

ZELResultEvent::ZELResultEvent(QEvent::Type type, int nResult, void* pData)
    : ZELEvent(type)
    , m_nResult(nResult)
    , m_pResultData(pData)
{
}

ZELResultEvent::~ZELResultEvent() = default;

std::string ZELResultEvent::getClassType()
{
    return "ZELResultEvent";
}

void ZELResultEvent::setResultData(void* pData)
{
    m_pResultData = pData;
}
