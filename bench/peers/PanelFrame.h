#pragma once

#include "Candidate.h"

#include "events/EventNumbers.h"
#include "windows/ZELChildWindow.h"
#include "windows/ZELMainFrame.h"

namespace bench {

/** An application's page in its smallest form: it gets what its components post. */
class PanelPage : public PANFx::Windows::ZELChildWindow
{
public:
    PanelPage(std::string strID, QWidget* pParent, const std::function<void()>& onClick)
        : ZELChildWindow(std::move(strID), pParent, std::string())
        , m_onClick(onClick)
    {
    }

    bool event(QEvent* pEvent) override
    {
        if (pEvent->type() == EVENT_MOUSE_UP && m_onClick)
            m_onClick();
        return ZELChildWindow::event(pEvent);
    }

private:
    const std::function<void()>& m_onClick;
};

/** An application's frame in its smallest form: each id is a page of that name. */
class PanelFrame : public PANFx::Windows::ZELMainFrame
{
public:
    /** @param onClick is called when a page gets a click; it must outlive the frame */
    explicit PanelFrame(const std::function<void()>& onClick)
        : m_onClick(onClick)
    {
    }

    PANFx::Windows::ZELChildWindow* createChildWindow(std::string strID) override
    {
        return new PanelPage(std::move(strID), this, m_onClick);
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

private:
    const std::function<void()>& m_onClick;
};

} // namespace bench
