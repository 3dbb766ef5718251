#include "components/support/PostToParent.h"

#include "events/ZELEvent.h"

#include <QCoreApplication>
#include <QWidget>

namespace PANFx::Components {

void postToParent(QWidget* pSender, QEvent::Type type, const std::string& strID,
                  Common::SysLogger& logger, const char* pszOperation)
{
    if (!pSender->parent()) {
        logger.WriteError("[%s] %s has no parent", pszOperation, strID.c_str());
        return;
    }
    QCoreApplication::postEvent(pSender->parent(), new ZELEvent(type, pSender, strID));
}

} // namespace PANFx::Components
