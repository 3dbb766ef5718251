#include "pages/SettingsPage.h"

#include "InstrumentFrame.h"

#include "resource/ZELResourceMgr.h"

using PANFx::Resource::ZELResourceMgr;

namespace {

/// The tiles are called "lang_" and the locale; that of the default language is empty.
const std::string tilePrefix = "lang_";
const std::string defaultTile = "lang_en";

std::string tileOf(const std::string& strLocale)
{
    return strLocale.empty() ? defaultTile : tilePrefix + strLocale;
}

std::string localeOf(const std::string& strTile)
{
    return strTile == defaultTile ? "" : strTile.substr(tilePrefix.size());
}

} // namespace

SettingsPage::SettingsPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
{
    // a page never outlives its language, so this is done once
    setPicture(tileOf(ZELResourceMgr::getInstance()->m_strLocale), "wide_on.png");
}

bool SettingsPage::event(QEvent* pEvent)
{
    const std::string strName = touchedName(pEvent);
    if (strName == "back")
        m_pFrame->moveBack(true);
    else if (strName.rfind(tilePrefix, 0) == 0)
        m_pFrame->changeLanguage(localeOf(strName));
    else
        return InstrumentPage::event(pEvent);
    return true;
}
