#pragma once

#include "events/ZELEvent.h"

/**
 * Four texts from an application's worker. The library posts none.
 *
 * The class answers "ZELEvent" when asked for its type, and applications rely on it; so a copy
 * that is forwarded through a tab loses the texts.
 */
class QTPANFX_EXPORT ZELStringEvent : public ZELEvent
{
public:
    /** Without a sender and an id; the texts are taken as they are. */
    ZELStringEvent(QEvent::Type type, std::string strString1, std::string strString2,
                   std::string strString3, std::string strString4);
    ~ZELStringEvent() override;

    /**
     * The texts by number: 1 to 4 in the order of the constructor, and 0 gives m_strID.
     * Any other number gives "" and an error line.
     */
    std::string getString(int n);

    std::string m_strString1;
    std::string m_strString2;
    std::string m_strString3;
    std::string m_strString4;
};
