#include "components/support/PostToParent.h"

#include "events/ZELEvent.h"

#include <QCoreApplication>
#include <QWidget>

namespace PANFx::Components {

void postToParent(QWidget* pSender, QEvent::Type type, const std::string& strID,
                  Common::SysLogger& logger, const char* pszOperation)
{
    postToParent(pSender, std::make_unique<ZELEvent>(type, pSender, strID), strID, logger,
                 pszOperation);
}

void postToParent(QWidget* pSender, std::unique_ptr<ZELEvent> event, const std::string& strID,
                  Common::SysLogger& logger, const char* pszOperation)
{
    if (!pSender->parent()) {
        logger.WriteError("[%s] %s has no parent", pszOperation, strID.c_str());
        return;
    }
    QCoreApplication::postEvent(pSender->parent(), event.release());
}

} // namespace PANFx::Components
