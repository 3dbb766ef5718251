#pragma once

#include "events/ZELEvent.h"

/** The result of an application's worker. The library posts none. */
class QTPANFX_EXPORT ZELResultEvent : public ZELEvent
{
public:
    /** @param pData handed through, not owned */
    ZELResultEvent(QEvent::Type type, int nResult, void* pData);
    ~ZELResultEvent() override;

    std::string getClassType() override;

    /** Replaces the data, which stay the caller's; the old ones are not freed. */
    void setResultData(void* pData);

    int m_nResult;       ///< what the application makes it mean
    void* m_pResultData; ///< not owned
};
