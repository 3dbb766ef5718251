#include "InstrumentFrame.h"

#include "ApplicationEvents.h"
#include "pages/AboutPage.h"
#include "pages/ClockPage.h"
#include "pages/HomePage.h"
#include "pages/LanguagePage.h"
#include "pages/LimitsPage.h"
#include "pages/MeasurePage.h"
#include "pages/NetworkPage.h"
#include "pages/NotesPage.h"
#include "pages/ResultsPage.h"
#include "pages/SamplePage.h"
#include "pages/SamplesPage.h"
#include "pages/SettingsPage.h"
#include "pages/UpdatePage.h"
#include "sound/ConsoleSound.h"

#include "common/tamfx/FileProperty.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELEvent.h"
#include "resource/SoundFactory.h"
#include "resource/ZELResourceMgr.h"

#include <QCoreApplication>

#include <algorithm>

using PANFx::Resource::SoundFactory;
using PANFx::Resource::ZELResourceMgr;
using PANFx::Windows::ZELChildWindow;

InstrumentFrame::InstrumentFrame()
    : m_pSound(new ConsoleSound)
{
    SoundFactory::getInstance()->registerSound(m_pSound);
    setMainWindowID("home");
    m_pTimer->start(1000);
}

ZELChildWindow* InstrumentFrame::createChildWindow(std::string strID)
{
    if (strID == "home")
        return new HomePage(strID, this);
    if (strID == "measure")
        return new MeasurePage(strID, this);
    if (strID == "limits")
        return new LimitsPage(strID, this);
    if (strID == "results")
        return new ResultsPage(strID, this);
    if (strID == "settings")
        return new SettingsPage(strID, this);
    if (strID == "clock")
        return new ClockPage(strID, this);
    if (strID == "network")
        return new NetworkPage(strID, this);
    if (strID == "sample")
        return new SamplePage(strID, this);
    if (strID == "samples")
        return new SamplesPage(strID, this);
    if (strID == "about")
        return new AboutPage(strID, this);
    if (strID == "notes")
        return new NotesPage(strID, this);
    if (strID == "update")
        return new UpdatePage(strID, this);
    if (strID == "language")
        return new LanguagePage(strID, this);
    return nullptr;
}

void InstrumentFrame::setSettings(const Settings& settings)
{
    m_settings = settings;
    m_analyser.setStirred(!settings.bStirrerPaused);
    m_pSound->setTouchSound(settings.bTouchSound);
    m_pSound->setVolume(settings.nVolume);
}

QDateTime InstrumentFrame::now() const
{
    return QDateTime::currentDateTime().addMSecs(m_settings.nClockOffset);
}

void InstrumentFrame::changeLanguage(const std::string& strLocale)
{
    ZELChildWindow* pCaller = getCurrentWindow();
    changeLocale(strLocale, pCaller != nullptr ? pCaller->m_strID : "");
    // without a page to go back to, the one on screen is still the caller, which must go
    if (getCurrentWindow() == pCaller)
        moveTo(m_strMainWindowID, true, true);
    if (pCaller != nullptr)
        pCaller->deleteLater();
    if (m_bRemembersLanguage)
        rememberLanguage(strLocale);
}

void InstrumentFrame::rememberLanguage(const std::string& strLocale)
{
    TAMFx::Data::Properties::FileProperty* pProperty = ZELResourceMgr::getInstance()->m_pProperty;
    if (pProperty == nullptr)
        return;
    pProperty->setProperty("Language", strLocale.c_str());
    if (!pProperty->Update())
        m_logger.WriteError("[%s] cannot keep the language", "rememberLanguage");
}

bool InstrumentFrame::event(QEvent* pEvent)
{
    if (pEvent->type() != EVENT_TIMER)
        return ZELMainFrame::event(pEvent);
    m_analyser.measure();
    watchLimits();
    if (ZELChildWindow* pPage = getCurrentWindow()) {
        m_analyser.reportFaults(*pPage);
        QCoreApplication::postEvent(pPage, new ZELEvent(EVENT_READING));
    }
    return true;
}

void InstrumentFrame::watchLimits()
{
    const std::vector<Analyser::Channel>& channels = m_analyser.channels();
    const bool bAbove =
        std::any_of(channels.begin(), channels.end(),
                    [](const Analyser::Channel& channel) { return channel.isAboveLimit(); });
    if (bAbove && !m_bAboveLimit && !m_settings.bAlarmMuted)
        SoundFactory::getInstance()->playWarningSound();
    m_bAboveLimit = bAbove;
}
