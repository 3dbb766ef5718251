#include "events/ZELEvent.h"

#include <utility>

ZELEvent::ZELEvent(QEvent::Type type)
    : QEvent(type)
{
}

ZELEvent::ZELEvent(QEvent::Type type, std::string strID)
    : QEvent(type)
    , m_strID(std::move(strID))
{
}

ZELEvent::ZELEvent(QEvent::Type type, QObject* pSender, std::string strID)
    : QEvent(type)
    , m_pSender(pSender)
    , m_strID(std::move(strID))
{
}

// QEvent's own copy would take over that the original was posted
ZELEvent::ZELEvent(const ZELEvent& other)
    : QEvent(other.type())
    , m_pSender(other.m_pSender)
    , m_strID(other.m_strID)
{
}

ZELEvent::~ZELEvent() = default;

std::string ZELEvent::getClassType()
{
    return "ZELEvent";
}

ZELEvent* ZELEvent::from(QEvent* pEvent)
{
    return dynamic_cast<ZELEvent*>(pEvent);
}
