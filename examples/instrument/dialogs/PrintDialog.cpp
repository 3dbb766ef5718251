#include "dialogs/PrintDialog.h"

#include "ApplicationEvents.h"

#include "components/buttons/ZELImageButton.h"
#include "components/pictures/ZELPieImageBox.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELResultEvent.h"
#include "resource/SoundFactory.h"

#include <algorithm>

using PANFx::Components::Timer;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELLabel;
using PANFx::Components::ZELPieImageBox;
using PANFx::Resource::SoundFactory;

namespace {

const int tick = 100;        // milliseconds
const int mostReckoned = 95; // per cent; the rest comes with the result

} // namespace

PrintDialog::PrintDialog(InstrumentFrame* pFrame, const std::string& strReport)
    : InstrumentDialog("print", pFrame)
    , m_strReport(strReport)
    , m_nExpected(ReportPrinter::expectedTime(strReport))
    , m_pTimer(new Timer(this))
    , m_printer(this)
{
}

void PrintDialog::activating()
{
    InstrumentDialog::activating();
    show("running", "@printing", "@printing.note");
    setRing(0);
    m_clock.start();
    m_pTimer->start(tick);
    m_printer.start(m_strReport);
}

bool PrintDialog::event(QEvent* pEvent)
{
    if (pEvent->type() == EVENT_TIMER)
        proceed();
    else if (pEvent->type() == EVENT_PRINTED)
        showResult(static_cast<ZELResultEvent*>(pEvent)->m_nResult);
    else if (touchedID(pEvent) == "cancel")
        touched();
    else
        return InstrumentDialog::event(pEvent);
    return true;
}

void PrintDialog::proceed()
{
    if (getPopupTag() == "stopping")
        m_printer.cancel(); // it may have been beginning when it was told
    else if (getPopupTag() == "running")
        setRing(std::min(static_cast<int>(m_clock.elapsed() * 100 / m_nExpected), mostReckoned));
}

/// The same button ends the job, and then the dialog.
void PrintDialog::touched()
{
    if (getPopupTag() == "running") {
        setPopupTag("stopping");
        m_printer.cancel();
        showText(getSubComponent("note"), localText("@stopping"));
    } else if (getPopupTag() != "stopping") {
        finish(0);
    }
}

void PrintDialog::showResult(int nResult)
{
    m_pTimer->stop();
    if (nResult == ReportPrinter::done) {
        setRing(100);
        show("done", "@printed", "@printed.note");
        SoundFactory::getInstance()->playCompleteSound();
    } else if (nResult == ReportPrinter::cancelled) {
        show("cancelled", "@print.cancelled", "@print.cancelled.note");
    } else {
        setRing(0);
        if (auto* pTitle = componentAs<ZELLabel>(getSubComponent("title"), "ZELLabel"))
            pTitle->setFontStyle(1);
        show("failed", "@print.failed", "@print.failed.note");
        SoundFactory::getInstance()->playWarningSound();
    }
    if (auto* pButton = componentAs<ZELImageButton>(getSubComponent("cancel"), "ZELImageButton")) {
        pButton->setTitle(localText("@close"));
        pButton->update();
    }
}

void PrintDialog::show(const std::string& strTag, const std::string& strTitle,
                       const std::string& strNote)
{
    setPopupTag(strTag);
    showText(getSubComponent("title"), localText(strTitle));
    showText(getSubComponent("note"), localText(strNote));
}

void PrintDialog::setRing(int nPercent)
{
    if (auto* pRing = componentAs<ZELPieImageBox>(getSubComponent("progress"), "ZELPieImageBox"))
        pRing->SetAngle(360 - 360 * nPercent / 100);
}
