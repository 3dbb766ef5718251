#pragma once

#include "common/Export.h"

#include <QPointer>
#include <QTimer>

class QWidget;

namespace PANFx::Components {

/**
 * A timer that posts EVENT_TIMER (1557) to its owner at each tick, with itself as the sender.
 *
 * The timeout signal never fires, and a timer set to single shot goes on ticking: whoever starts
 * it stops it. Intervals are in milliseconds and precise.
 */
class QTPANFX_EXPORT Timer : public QTimer
{
public:
    /** @param pOwner gets the ticks and is the parent */
    explicit Timer(QWidget* pOwner);
    ~Timer() override;

    QWidget* m_pOwner; ///< not owned; gets the ticks, null gets none

protected:
    void timerEvent(QTimerEvent* pEvent) override;

private:
    // a timer that was given another parent may live longer than its owner
    QWidget* m_pGuarded;
    QPointer<QWidget> m_guard; ///< null once m_pGuarded is gone
};

} // namespace PANFx::Components
