#pragma once

#include "events/ZELEvent.h"

/** An event that carries a number: a key of a pad, a page now shown, a new value. */
class QTPANFX_EXPORT ZELRangeEvent : public ZELEvent
{
public:
    ZELRangeEvent(QEvent::Type type, QObject* pSender, std::string strID, int nValue);
    ZELRangeEvent(const ZELRangeEvent& other);
    ~ZELRangeEvent() override;

    std::string getClassType() override;

    int m_nValue;
};
