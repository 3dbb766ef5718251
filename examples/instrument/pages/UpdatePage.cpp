#include "pages/UpdatePage.h"

#include "ApplicationEvents.h"
#include "InstrumentFrame.h"

#include "components/gauges/ZELImageProgressBar.h"
#include "events/EventNumbers.h"
#include "events/ZELUpdateInfoEvent.h"
#include "events/ZELUpdateStatusEvent.h"
#include "resource/SoundFactory.h"

using PANFx::Components::ZELImageProgressBar;
using PANFx::Resource::SoundFactory;

namespace {

/// What belongs to an image of the software.
std::string itemName(int nImage)
{
    return "item" + std::to_string(nImage);
}

} // namespace

UpdatePage::UpdatePage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_service(*this)
{
}

void UpdatePage::activating()
{
    const bool bNew = m_pFrame->settings().strFirmware != UpdateService::version();
    m_state = bNew ? State::ready : State::done;
    for (int nImage = 0; nImage < UpdateService::imageCount; ++nImage)
        showPercent(itemName(nImage), bNew ? 0 : 100);
    showPercent("total", bNew ? 0 : 100);
    m_bKnown = false;
    InstrumentPage::activating();
}

// The type number tells the class: the service alone makes events of these numbers.
bool UpdatePage::event(QEvent* pEvent)
{
    if (pEvent->type() == EVENT_WINDOW_ACTIVATE)
        m_service.announce(); // an answer may take its time, so the page has come up first
    else if (pEvent->type() == EVENT_UPDATE_INFO)
        showImages(static_cast<ZELUpdateInfoEvent&>(*pEvent));
    else if (pEvent->type() == EVENT_UPDATE_STATUS)
        takeStatus(static_cast<ZELUpdateStatusEvent&>(*pEvent));
    else if (!touch(touchedID(pEvent)))
        return InstrumentPage::event(pEvent);
    return true;
}

bool UpdatePage::touch(const std::string& strID)
{
    if (strID == "back") {
        leave();
    } else if (strID == "start") {
        m_state = State::running;
        m_service.start();
        showValues();
    } else if (strID == "stop") {
        m_state = State::stopped;
        m_service.stop();
        showValues();
    } else {
        return false;
    }
    return true;
}

void UpdatePage::leave()
{
    m_service.stop();
    m_pFrame->moveBack(true);
}

void UpdatePage::showImages(ZELUpdateInfoEvent& event)
{
    for (int n = 0; n < event.getImageCount(); ++n) {
        ZELUpdateInfoItem* pItem = event.getUpdateItem(n);
        const std::string strName = itemName(pItem->getImageID());
        setText(strName + ".name", pItem->getImageName());
        setText(strName + ".version", pItem->getImageVersion());
    }
    m_bKnown = event.getImageCount() > 0;
    showValues();
}

void UpdatePage::takeStatus(ZELUpdateStatusEvent& event)
{
    for (int n = 0; n < event.getImageCount(); ++n) {
        ZELUpdateStatusItem* pItem = event.getUpdateStatusItem(n);
        showPercent(itemName(pItem->getImageID()), pItem->getUpdatePercent());
    }
    showPercent("total", event.getAveragePercent());
    if (event.getAveragePercent() < 100)
        return;
    Settings settings = m_pFrame->settings();
    settings.strFirmware = UpdateService::version();
    m_pFrame->setSettings(settings);
    m_state = State::done;
    SoundFactory::getInstance()->playCompleteSound();
    showValues();
}

void UpdatePage::showPercent(const std::string& strBar, int nPercent)
{
    if (auto* pBar = component<ZELImageProgressBar>(strBar, "ZELImageProgress"))
        pBar->SetPercent(nPercent);
}

void UpdatePage::showValues()
{
    InstrumentPage::showValues();
    const char* states[] = {"@update.ready", "@update.running", "@update.stopped", "@update.done"};
    setText("state", localText(states[static_cast<int>(m_state)]));
    setDimmed("start", !m_bKnown || m_state == State::running || m_state == State::done);
    setDimmed("stop", m_state != State::running);
}
