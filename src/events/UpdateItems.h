#pragma once

/**
 * @file
 * What the two events of a software update share: their items as entries of a collection.
 */

#include "common/SysLogger.h"
#include "common/tamfx/ArrayList.h"
#include "common/tamfx/Object.h"

#include <stdexcept>

/** An update item as an entry of a collection: the items themselves are plain records. */
template <typename Item>
class UpdateItemHolder : public TAMFx::Data::Object
{
public:
    /** Holds a copy of @p item. */
    explicit UpdateItemHolder(const Item& item)
        : m_item(item)
    {
    }
    Item m_item;
};

/** Appends a copy of @p pItem; null is refused with an error line that names @p operation. */
template <typename Item>
void addCopyOfUpdateItem(TAMFx::Data::Collection::ArrayList& items, const Item* pItem,
                         PANFx::Common::SysLogger& logger, const char* operation)
{
    if (!pItem) {
        logger.WriteError("[%s] the item is NULL", operation);
        return;
    }
    items.Add(new UpdateItemHolder<Item>(*pItem));
}

/** The item at @p index, still the list's; null for a bad index and for a null entry. */
template <typename Item>
Item* updateItemAt(TAMFx::Data::Collection::ArrayList& items, int index)
{
    if (index < 0 || index >= items.Count())
        return nullptr;
    auto* holder = static_cast<UpdateItemHolder<Item>*>(items.At(index));
    return holder ? &holder->m_item : nullptr;
}

/** Deletes all items of an event that goes. */
inline void deleteUpdateItems(TAMFx::Data::Collection::ArrayList& items,
                              PANFx::Common::SysLogger& logger, const char* operation)
{
    try {
        for (int i = 0; i < items.Count(); ++i)
            delete items.At(i);
    } catch (const std::out_of_range&) {
        logger.WriteError("[%s] out of range error", operation);
    } catch (...) {
        logger.WriteError("[%s] Exception error", operation);
    }
}
