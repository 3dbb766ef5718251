#include "events/EventTranslator.h"

#include "common/SysLogger.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"

#include <QCoreApplication>
#include <QWidget>

#include <string>

namespace {

ZELEvent* copyOf(ZELEvent& event)
{
    const std::string type = event.getClassType();
    if (type == "ZELEvent")
        return new ZELEvent(event);
    if (type == "ZELListEvent")
        return new ZELListEvent(static_cast<ZELListEvent&>(event));
    if (type == "ZELRangeEvent")
        return new ZELRangeEvent(static_cast<ZELRangeEvent&>(event));
    return nullptr;
}

PANFx::Common::SysLogger logger()
{
    return {"QTPANFx", "EventTranslator"};
}

} // namespace

EventTranslator::~EventTranslator() = default;

bool EventTranslator::eventHandler(QEvent* pEvent, QWidget* pTarget)
{
    if (!pEvent || pEvent->type() < EVENT_MOUSE_DOWN)
        return false;
    ZELEvent* event = ZELEvent::from(pEvent);
    if (!event) {
        logger().WriteError("[%s] event %d is no ZELEvent", "eventHandler", int(pEvent->type()));
        return false;
    }
    if (!pTarget) {
        logger().WriteError("[%s] event %d of %s has no target", "eventHandler",
                            int(pEvent->type()), event->m_strID.c_str());
        return false;
    }
    ZELEvent* copy = copyOf(*event);
    if (!copy)
        return false;
    QCoreApplication::postEvent(pTarget, copy);
    return true;
}
