#include "events/ZELUpdateStatusEvent.h"

#include "events/UpdateItems.h"

ZELUpdateStatusEvent::ZELUpdateStatusEvent(QEvent::Type type)
    : ZELEvent(type)
{
    m_arrItem.setDeleteFlag(false);
}

ZELUpdateStatusEvent::~ZELUpdateStatusEvent()
{
    deleteUpdateItems(m_arrItem, m_logger, "~ZELUpdateStatusEvent");
}

std::string ZELUpdateStatusEvent::getClassType()
{
    return "ZELUpdateStatusEvent";
}

void ZELUpdateStatusEvent::addUpdateStatusItem(ZELUpdateStatusItem* pItem)
{
    addCopyOfUpdateItem(m_arrItem, pItem, m_logger, "addUpdateStatusItem");
}

int ZELUpdateStatusEvent::getImageCount()
{
    return m_arrItem.Count();
}

ZELUpdateStatusItem* ZELUpdateStatusEvent::getUpdateStatusItem(int nIndex)
{
    return updateItemAt<ZELUpdateStatusItem>(m_arrItem, nIndex);
}

int ZELUpdateStatusEvent::getAveragePercent()
{
    const int count = getImageCount();
    if (count == 0) {
        m_logger.WriteError("[%s] no items", "getAveragePercent");
        return 0;
    }
    long long sum = 0;
    for (int i = 0; i < count; ++i) {
        if (ZELUpdateStatusItem* item = getUpdateStatusItem(i))
            sum += item->m_nUpdatePercent;
    }
    return static_cast<int>(sum / count);
}
