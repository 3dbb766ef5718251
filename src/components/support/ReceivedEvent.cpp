#include "components/support/ReceivedEvent.h"

#include "common/SysLogger.h"
#include "events/ZELEvent.h"

namespace PANFx::Components {

ZELEvent* receivedEvent(QEvent* pEvent, const std::string& strID, Common::SysLogger& logger)
{
    ZELEvent* received = ZELEvent::from(pEvent);
    if (!received)
        logger.WriteError("[%s] %s got an event %d that is no ZELEvent", "event", strID.c_str(),
                          int(pEvent->type()));
    return received;
}

} // namespace PANFx::Components
