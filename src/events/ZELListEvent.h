#pragma once

#include "events/ZELEvent.h"

/** Something that happened in a list, with its place. Rows and columns count from 0. */
class QTPANFX_EXPORT ZELListEvent : public ZELEvent
{
public:
    ZELListEvent(QEvent::Type type, QObject* pSender, std::string strID, int nRow, int nColumn,
                 bool bHeader);
    ZELListEvent(const ZELListEvent& other);
    ~ZELListEvent() override;

    std::string getClassType() override;

    int m_nRow;
    int m_nColumn;
    bool m_bHeader; ///< the source is the list's header
};
