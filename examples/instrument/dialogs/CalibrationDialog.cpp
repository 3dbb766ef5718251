#include "dialogs/CalibrationDialog.h"

#include "components/pictures/ZELPieImageBox.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "resource/SoundFactory.h"

using PANFx::Components::Timer;
using PANFx::Components::ZELPieImageBox;
using PANFx::Resource::SoundFactory;

namespace {

const int tick = 250; // milliseconds
const int totalTicks = 24;

} // namespace

CalibrationDialog::CalibrationDialog(InstrumentFrame* pFrame)
    : InstrumentDialog("calibration", pFrame)
    , m_pTimer(new Timer(this))
{
}

void CalibrationDialog::activating()
{
    InstrumentDialog::activating();
    showProgress();
    m_pTimer->start(tick);
}

bool CalibrationDialog::event(QEvent* pEvent)
{
    if (pEvent->type() == EVENT_TIMER)
        proceed();
    else if (touchedID(pEvent) == "cancel")
        finish(cancelled);
    else
        return InstrumentDialog::event(pEvent);
    return true;
}

void CalibrationDialog::proceed()
{
    if (m_nTicks == totalTicks)
        return; // a tick that was on its way when the timer stopped
    ++m_nTicks;
    showProgress();
    if (m_nTicks < totalTicks)
        return;
    m_pTimer->stop();
    SoundFactory::getInstance()->playCompleteSound();
    finish(done);
}

void CalibrationDialog::showProgress()
{
    if (auto* pRing = componentAs<ZELPieImageBox>(getSubComponent("progress"), "ZELPieImageBox"))
        pRing->SetAngle(360 - 360 * m_nTicks / totalTicks);
}
