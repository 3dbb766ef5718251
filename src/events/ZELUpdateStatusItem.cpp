#include "events/ZELUpdateStatusItem.h"

#include "events/UpdateImageName.h"

ZELUpdateStatusItem::ZELUpdateStatusItem(int nImageID, int nUpdatePercent)
    : m_nImageID(nImageID)
    , m_nUpdatePercent(nUpdatePercent)
{
}

int ZELUpdateStatusItem::getImageID()
{
    return m_nImageID;
}

void ZELUpdateStatusItem::setImageID(int nImageID)
{
    m_nImageID = nImageID;
}

int ZELUpdateStatusItem::getUpdatePercent()
{
    return m_nUpdatePercent;
}

void ZELUpdateStatusItem::setUpdatePercent(int nUpdatePercent)
{
    m_nUpdatePercent = nUpdatePercent;
}

std::string ZELUpdateStatusItem::getImageName()
{
    return updateImageName(m_nImageID);
}
