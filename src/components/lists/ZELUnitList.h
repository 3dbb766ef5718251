#pragma once

#include "components/lists/ZELList.h"

#include <string>

namespace PANFx::Components {

/**
 * A list whose first column selects rows. The application reads the boxes of column 0 when it
 * needs them and is not told when one changes; the box "headcheck" of the header is not tied to
 * them.
 *
 * Layout: that of ZELList.
 *
 * Posts to its parent: ZELListEvent of EVENT_LIST_ITEM_CLICK (1585) and EVENT_LIST_HEADER_CLICK
 * (1590) for the columns from 1 on, EVENT_HEADER_DOWN and EVENT_HEADER_UP (1583, 1584) for
 * column 0; ZELRangeEvent of EVENT_PAGE_UP and EVENT_PAGE_DOWN (1581, 1582). Everything else ends
 * here.
 */
class QTPANFX_EXPORT ZELUnitList : public ZELList
{
public:
    /** As that of ZELList. */
    ZELUnitList(QWidget* pParent, std::string strID, std::string strType,
                TAMFx::Common::Xml::Node* pLayout);
    ~ZELUnitList() override;

    /** Checks the header's box "headcheck" with any number but 0; posts nothing. */
    void setHeaderCheckButton(int nChecked);

protected:
    bool event(QEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELUnitList"};

private:
    bool handlePlace(QEvent* pEvent);
};

} // namespace PANFx::Components
