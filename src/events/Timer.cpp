#include "events/Timer.h"

#include "common/SysLogger.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"

#include <QCoreApplication>
#include <QWidget>

namespace PANFx::Components {

Timer::Timer(QWidget* pOwner)
    : QTimer(pOwner)
    , m_pOwner(pOwner)
    , m_pGuarded(pOwner)
    , m_guard(pOwner)
{
    // the default type drifts by several percent, which a long press shows
    setTimerType(Qt::PreciseTimer);
    if (!pOwner)
        Common::SysLogger("QTPANFx", "Timer").WriteError("[%s] the timer has no owner", "Timer");
}

Timer::~Timer() = default;

void Timer::timerEvent(QTimerEvent*)
{
    if (m_pOwner == m_pGuarded && !m_guard)
        m_pOwner = nullptr;
    if (m_pOwner)
        QCoreApplication::postEvent(m_pOwner, new ZELEvent(EVENT_TIMER, this, ""));
}

} // namespace PANFx::Components
