#include "events/ZELListEvent.h"

#include <utility>

ZELListEvent::ZELListEvent(QEvent::Type type, QObject* pSender, std::string strID, int nRow,
                           int nColumn, bool bHeader)
    : ZELEvent(type, pSender, std::move(strID))
    , m_nRow(nRow)
    , m_nColumn(nColumn)
    , m_bHeader(bHeader)
{
}

ZELListEvent::ZELListEvent(const ZELListEvent& other) = default;

ZELListEvent::~ZELListEvent() = default;

std::string ZELListEvent::getClassType()
{
    return "ZELListEvent";
}
