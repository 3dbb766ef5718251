#pragma once

#include "Candidate.h"

#include "windows/ZELChildWindow.h"
#include "windows/ZELMainFrame.h"

namespace bench {

/** An application's frame in its smallest form: each id is a page of that name. */
class PanelFrame : public PANFx::Windows::ZELMainFrame
{
public:
    PANFx::Windows::ZELChildWindow* createChildWindow(std::string strID) override
    {
        return new PANFx::Windows::ZELChildWindow(strID, this, std::string());
    }

    /**
     * Deletes the page on screen and goes back to the one before it, on the way that applications
     * have for it: removeAllChildWnd spares the page that stands in its own handler, the frame
     * forgets it, and the application deletes it once it is left.
     */
    void leaveCurrentPage()
    {
        PANFx::Windows::ZELChildWindow* pSpared = getCurrentWindow();
        removeAllChildWnd(pSpared->m_strID);
        delete pSpared;
        settle();
    }

    /** Changes the language from the page on screen and deletes that page as above. */
    void changeLanguage(const std::string& locale)
    {
        PANFx::Windows::ZELChildWindow* pSpared = getCurrentWindow();
        changeLocale(locale, pSpared->m_strID);
        delete pSpared;
        settle();
    }
};

} // namespace bench
