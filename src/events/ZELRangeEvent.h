#pragma once

#include "events/ZELEvent.h"

/** An event that carries a number: a key of a pad, a page now shown, a new value. */
class QTPANFX_EXPORT ZELRangeEvent : public ZELEvent
{
public:
    /** @param pSender not owned; null for none */
    ZELRangeEvent(QEvent::Type type, QObject* pSender, std::string strID, int nValue);

    /** Copies all; the copy has not been posted. */
    ZELRangeEvent(const ZELRangeEvent& other);
    ~ZELRangeEvent() override;

    std::string getClassType() override;

    int m_nValue; ///< the key, page or step that the type speaks of
};
