#pragma once

#include "events/ZELEvent.h"

/** An error that an application's worker reports to a page. The library posts none. */
class QTPANFX_EXPORT ZELErrorEvent : public ZELEvent
{
public:
    /** Type 65535, code 4294967295, kind ' ', no message, detail 0, no flags. */
    ZELErrorEvent();

    /** Code 0, kind 'A' and the values given. */
    ZELErrorEvent(QEvent::Type type, unsigned int nDetail, bool bFlag1, bool bFlag2,
                  std::string strMessage);

    /** Detail 0, no flags and the values given. */
    ZELErrorEvent(QEvent::Type type, unsigned int nCode, char cKind, std::string strMessage);

    /** Copies all; the copy has not been posted. */
    ZELErrorEvent(const ZELErrorEvent& other);
    ~ZELErrorEvent() override;

    std::string getClassType() override;

    unsigned int m_nCode = 0; ///< what the application makes it mean, as the rest
    char m_cKind = ' ';       ///< 'A' and ' ' are what the constructors set; any other is kept
    std::string m_strMessage;
    unsigned int m_nDetail = 0;
    bool m_bFlag1 = false;
    bool m_bFlag2 = false;
};
