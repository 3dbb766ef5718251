#include "components/lists/ZELUnitList.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/lists/ListHop.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"

#include <utility>

namespace PANFx::Components {

ZELUnitList::ZELUnitList(QWidget* pParent, std::string strID, std::string strType,
                         TAMFx::Common::Xml::Node* pLayout)
    : ZELList(pParent, std::move(strID), std::move(strType), pLayout)
{
}

ZELUnitList::~ZELUnitList() = default;

void ZELUnitList::setHeaderCheckButton(int nChecked)
{
    ZELComponent* box = getHeaderComponent("headcheck");
    if (!box)
        return;
    if (box->m_strType != "ZELCheckButton" && box->m_strType != "ZELIconCheckButton") {
        m_logger.WriteError("[%s] %s: headcheck is no check button", "setHeaderCheckButton",
                            m_strID.c_str());
        return;
    }
    static_cast<ZELCheckButton*>(box)->m_bChecked = nChecked != 0;
    box->getQWidget()->update();
}

bool ZELUnitList::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type < EVENT_MOUSE_UP)
        return ZELList::event(pEvent);
    m_logger.WriteDebug("[%s] e->type() : %d", "event", int(type));
    if (type == EVENT_PAGE_UP || type == EVENT_PAGE_DOWN) {
        ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
        if (received && isOfClass(*received, "ZELRangeEvent"))
            postPage(*received);
        return true;
    }
    if (type == EVENT_MOUSE_UP || type == EVENT_HEADER_DOWN || type == EVENT_HEADER_UP)
        return handlePlace(pEvent);
    return true;
}

// Sorting counts in the first column only, clicks in the others. A click in the header says so by
// its number alone.
bool ZELUnitList::handlePlace(QEvent* pEvent)
{
    ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
    if (!received || !isOfClass(*received, "ZELListEvent"))
        return false;
    const auto& place = static_cast<const ZELListEvent&>(*received);
    const bool first = place.m_nColumn == 0;
    if (place.type() != EVENT_MOUSE_UP) {
        if (first)
            postPlace(place.type(), place, true);
    } else if (place.m_nColumn > 0) {
        postPlace(place.m_bHeader ? EVENT_LIST_HEADER_CLICK : EVENT_LIST_ITEM_CLICK, place, false);
    }
    return true;
}

} // namespace PANFx::Components
