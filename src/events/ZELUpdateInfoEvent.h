#pragma once

#include "common/SysLogger.h"
#include "common/tamfx/ArrayList.h"
#include "events/ZELEvent.h"
#include "events/ZELUpdateInfoItem.h"

/**
 * News of a software update: lists software images with their versions. The application makes it
 * with a type number of its own and posts it straight to the page that is to read it: tabs don't
 * forward it.
 */
class QTPANFX_EXPORT ZELUpdateInfoEvent : public ZELEvent
{
public:
    /** Without a sender, an id and items. */
    explicit ZELUpdateInfoEvent(QEvent::Type type);
    ~ZELUpdateInfoEvent() override;

    ZELUpdateInfoEvent(const ZELUpdateInfoEvent&) = delete;

    std::string getClassType() override;

    /** Appends a copy of @p pItem; the caller keeps its own. */
    void addUpdateItem(ZELUpdateInfoItem* pItem);

    /** Number of items, null entries included. */
    int getImageCount();

    /** The stored item, still owned by the event; null for an index outside 0 to count - 1. */
    ZELUpdateInfoItem* getUpdateItem(int nIndex);

    TAMFx::Data::Collection::ArrayList
        m_arrItem;                     ///< entries that hold the items; the event owns them
    PANFx::Common::SysLogger m_logger; ///< without an identity
};
