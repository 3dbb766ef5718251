#include "events/ZELUpdateInfoEvent.h"

#include "events/UpdateItems.h"

ZELUpdateInfoEvent::ZELUpdateInfoEvent(QEvent::Type type)
    : ZELEvent(type)
{
    m_arrItem.setDeleteFlag(false);
}

ZELUpdateInfoEvent::~ZELUpdateInfoEvent()
{
    deleteUpdateItems(m_arrItem, m_logger, "~ZELUpdateInfoEvent");
}

std::string ZELUpdateInfoEvent::getClassType()
{
    return "ZELUpdateInfoEvent";
}

void ZELUpdateInfoEvent::addUpdateItem(ZELUpdateInfoItem* pItem)
{
    addCopyOfUpdateItem(m_arrItem, pItem, m_logger, "addUpdateItem");
}

int ZELUpdateInfoEvent::getImageCount()
{
    return m_arrItem.Count();
}

ZELUpdateInfoItem* ZELUpdateInfoEvent::getUpdateItem(int nIndex)
{
    return updateItemAt<ZELUpdateInfoItem>(m_arrItem, nIndex);
}
