#pragma once

#include <string>

class QEvent;
class ZELEvent;

namespace PANFx::Common {
class SysLogger;
}

namespace PANFx::Components {

/**
 * An event that a composite got from a component, under one of this library's numbers. Null, with
 * an error line, when it is of another class: an application may use the number for anything.
 */
ZELEvent* receivedEvent(QEvent* pEvent, const std::string& strID, Common::SysLogger& logger);

} // namespace PANFx::Components
