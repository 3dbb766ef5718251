#pragma once

#include "events/ZELEvent.h"

/** Something that happened in a list, with its place. Rows and columns count from 0. */
class QTPANFX_EXPORT ZELListEvent : public ZELEvent
{
public:
    /** Row and column are taken as they are. @param pSender not owned; null for none */
    ZELListEvent(QEvent::Type type, QObject* pSender, std::string strID, int nRow, int nColumn,
                 bool bHeader);

    /** Copies all; the copy has not been posted. */
    ZELListEvent(const ZELListEvent& other);
    ~ZELListEvent() override;

    std::string getClassType() override;

    int m_nRow;     ///< counted from 0
    int m_nColumn;  ///< counted from 0
    bool m_bHeader; ///< the source is the list's header
};
