#include "events/ZELUpdateInfoItem.h"

#include "events/UpdateImageName.h"

#include <utility>

ZELUpdateInfoItem::ZELUpdateInfoItem(int nImageID, std::string strImageVersion)
    : m_nImageID(nImageID)
    , m_strImageVersion(std::move(strImageVersion))
{
}

int ZELUpdateInfoItem::getImageID()
{
    return m_nImageID;
}

void ZELUpdateInfoItem::setImageID(int nImageID)
{
    m_nImageID = nImageID;
}

std::string ZELUpdateInfoItem::getImageVersion()
{
    return m_strImageVersion;
}

void ZELUpdateInfoItem::setImageVersion(std::string strImageVersion)
{
    m_strImageVersion = std::move(strImageVersion);
}

std::string ZELUpdateInfoItem::getImageName()
{
    return updateImageName(m_nImageID);
}
