#pragma once

#include "common/SysLogger.h"
#include "common/tamfx/ArrayList.h"
#include "events/ZELEvent.h"
#include "events/ZELUpdateStatusItem.h"

/**
 * News of a software update: lists software images with their progress. The application makes it
 * with a type number of its own and posts it straight to the page that is to read it: tabs don't
 * forward it.
 */
class QTPANFX_EXPORT ZELUpdateStatusEvent : public ZELEvent
{
public:
    /** Without a sender, an id and items. */
    explicit ZELUpdateStatusEvent(QEvent::Type type);
    ~ZELUpdateStatusEvent() override;

    ZELUpdateStatusEvent(const ZELUpdateStatusEvent&) = delete;

    std::string getClassType() override;

    /** Appends a copy of @p pItem; the caller keeps its own. */
    void addUpdateStatusItem(ZELUpdateStatusItem* pItem);

    /** Number of items, null entries included. */
    int getImageCount();

    /** The stored item, still owned by the event; null for an index outside 0 to count - 1. */
    ZELUpdateStatusItem* getUpdateStatusItem(int nIndex);

    /**
     * Sum of all percents divided by the number of items, truncated; a null entry still counts.
     * There is no average of no items: 0 and an error line.
     */
    int getAveragePercent();
    TAMFx::Data::Collection::ArrayList
        m_arrItem;                     ///< entries that hold the items; the event owns them
    PANFx::Common::SysLogger m_logger; ///< without an identity
};
