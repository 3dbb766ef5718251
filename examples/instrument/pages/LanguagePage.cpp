#include "pages/LanguagePage.h"

#include "InstrumentFrame.h"

#include "components/buttons/ZELImageButton.h"
#include "resource/ZELResourceMgr.h"

using PANFx::Components::ZELImageButton;
using PANFx::Resource::ZELResourceMgr;

namespace {

/// The buttons are called "lang_" and the locale; that of the default language is empty.
const std::string buttonPrefix = "lang_";
const std::string defaultButton = "lang_en";

std::string buttonOf(const std::string& strLocale)
{
    return strLocale.empty() ? defaultButton : buttonPrefix + strLocale;
}

std::string localeOf(const std::string& strButton)
{
    return strButton == defaultButton ? "" : strButton.substr(buttonPrefix.size());
}

} // namespace

LanguagePage::LanguagePage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
{
    // a page never outlives its language, so this is done once
    const std::string strPresent = buttonOf(ZELResourceMgr::getInstance()->m_strLocale);
    if (auto* pButton = component<ZELImageButton>(strPresent, "ZELImageButton"))
        pButton->setImages("language_down.png", "language_on.png", "language_dim.png");
}

bool LanguagePage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID.rfind(buttonPrefix, 0) == 0)
        m_pFrame->changeLanguage(localeOf(strID));
    else
        return InstrumentPage::event(pEvent);
    return true;
}
