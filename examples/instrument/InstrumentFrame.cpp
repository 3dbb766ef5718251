#include "InstrumentFrame.h"

#include "pages/HomePage.h"
#include "pages/MeasurePage.h"
#include "pages/ResultsPage.h"
#include "pages/SettingsPage.h"

#include "common/tamfx/FileProperty.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELEvent.h"
#include "resource/ZELResourceMgr.h"

#include <QCoreApplication>

using PANFx::Resource::ZELResourceMgr;
using PANFx::Windows::ZELChildWindow;

InstrumentFrame::InstrumentFrame()
{
    setMainWindowID("home");
    m_pTimer->start(1000);
}

ZELChildWindow* InstrumentFrame::createChildWindow(std::string strID)
{
    if (strID == "home")
        return new HomePage(strID, this);
    if (strID == "measure")
        return new MeasurePage(strID, this);
    if (strID == "results")
        return new ResultsPage(strID, this);
    if (strID == "settings")
        return new SettingsPage(strID, this);
    return nullptr;
}

void InstrumentFrame::changeLanguage(const std::string& strLocale)
{
    ZELChildWindow* pCaller = getCurrentWindow();
    changeLocale(strLocale, pCaller->m_strID);
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
    if (ZELChildWindow* pPage = getCurrentWindow())
        QCoreApplication::postEvent(pPage, new ZELEvent(EVENT_READING));
    return true;
}
