#pragma once

#include "common/SysLogger.h"

#include <QEvent>

#include <memory>
#include <string>

class QWidget;
class ZELEvent;

namespace PANFx::Components {

/**
 * Posts a ZELEvent with @p pSender as the sender to its parent. Without a parent nothing is
 * posted, and an error line names the operation and the id.
 */
void postToParent(QWidget* pSender, QEvent::Type type, const std::string& strID,
                  Common::SysLogger& logger, const char* pszOperation);

/** The same with an event that is made already. */
void postToParent(QWidget* pSender, std::unique_ptr<ZELEvent> event, const std::string& strID,
                  Common::SysLogger& logger, const char* pszOperation);

} // namespace PANFx::Components
