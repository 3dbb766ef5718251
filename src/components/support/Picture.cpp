#include "components/support/Picture.h"

#include "resource/ZELResourceMgr.h"

#include <QPixmap>

namespace PANFx::Components {

bool hasPicture(const QPixmap* pPixmap)
{
    return pPixmap && !pPixmap->isNull();
}

QPixmap* findPicture(const std::string& strName)
{
    QPixmap* pixmap = Resource::ZELResourceMgr::getInstance()->getImage(strName);
    return hasPicture(pixmap) ? pixmap : nullptr;
}

} // namespace PANFx::Components
