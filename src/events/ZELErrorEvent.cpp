#include "events/ZELErrorEvent.h"

#include <climits>
#include <utility>

// minus one in the 16-bit field that QEvent keeps its type in
ZELErrorEvent::ZELErrorEvent()
    : ZELEvent(QEvent::Type(0xffff))
    , m_nCode(UINT_MAX)
{
}

ZELErrorEvent::ZELErrorEvent(QEvent::Type type, unsigned int nDetail, bool bFlag1, bool bFlag2,
                             std::string strMessage)
    : ZELEvent(type)
    , m_cKind('A')
    , m_strMessage(std::move(strMessage))
    , m_nDetail(nDetail)
    , m_bFlag1(bFlag1)
    , m_bFlag2(bFlag2)
{
}

ZELErrorEvent::ZELErrorEvent(QEvent::Type type, unsigned int nCode, char cKind,
                             std::string strMessage)
    : ZELEvent(type)
    , m_nCode(nCode)
    , m_cKind(cKind)
    , m_strMessage(std::move(strMessage))
{
}

ZELErrorEvent::ZELErrorEvent(const ZELErrorEvent& other) = default;

ZELErrorEvent::~ZELErrorEvent() = default;

std::string ZELErrorEvent::getClassType()
{
    return "ZELErrorEvent";
}
