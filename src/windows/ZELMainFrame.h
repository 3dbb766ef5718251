#pragma once

#include "common/CCriticalSection.h"
#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/ArrayList.h"

#include <QMainWindow>
#include <QPointer>

#include <deque>
#include <string>

namespace PANFx::Components {
class Timer;
}

/** The frame, its pages and dialogs, and the access to an application's data. */
namespace PANFx::Windows {

class ZELChildWindow;

/**
 * The one top-level window of an application, 800 by 480, and the place where pages change. The
 * application derives its frame from it and says in createChildWindow how to make a page; from
 * then on it navigates by page id.
 *
 * Pages are made on demand and kept alive; one is shown at a time, and the route is a history of
 * ids. Everything belongs to the event loop's thread. getCurrentWindow, moveToEx, moveBackEx and
 * what builds on them take a lock that is not recursive and is held across createChildWindow and
 * activating(): calling them from there, or from a page's constructor, waits for ever.
 */
class QTPANFX_EXPORT ZELMainFrame : public QMainWindow
{
public:
    /**
     * A frameless black window, not shown and without a page. Writes the first lines of the log.
     */
    ZELMainFrame();
    ~ZELMainFrame() override;

    /**
     * Makes the page for an id, with the frame as its parent, which then owns it.
     * @return null for an id that it doesn't know
     */
    virtual ZELChildWindow* createChildWindow(std::string strID) = 0;

    /** The page that resets the history when moved to; "" for none. */
    void setMainWindowID(std::string strID);

    /** The page that survives removeAllChildWnd; "" for none. */
    void setHiddenMainWindowID(std::string strID);

    /** The page on screen, null before the first. */
    ZELChildWindow* getCurrentWindow();

    /** The live page with that id, or null. */
    ZELChildWindow* findChild(std::string strID);

    /** The live page with that id, made when there is none; null when it can't be made. */
    ZELChildWindow* getZELChildWindow(std::string strID);

    /**
     * Shows the page with that id and then calls its activated().
     * @param bHistory adds the id to the history
     * @param bActivating calls activating() first and posts EVENT_WINDOW_ACTIVATE to the page
     * @return the page; null, with an error line, when it can't be made: all stays as it was
     */
    ZELChildWindow* moveTo(std::string strID, bool bHistory = true, bool bActivating = true);

    /** As moveTo, without activated(). */
    ZELChildWindow* moveToEx(std::string strID, bool bHistory = true, bool bActivating = true);

    /**
     * Goes back to the second-last id of the history, dropping the last one, and then calls
     * activated() on the page. A page that is no longer alive is made anew.
     * @return the page; null, with an error line, when the history holds fewer than two ids or
     *         the page can't be made, in which case the last id is dropped all the same
     */
    ZELChildWindow* moveBack(bool bActivating = true);

    /** As moveBack, without activated(). */
    ZELChildWindow* moveBackEx(bool bActivating = true);

    /** The change of page itself: shows @p pTo, then disables and hides @p pFrom. */
    void move(ZELChildWindow* pFrom, ZELChildWindow* pTo, bool bActivating);
    using QMainWindow::move;

    /**
     * Deletes all pages but the one named and the hidden main page, then moves back, or to the
     * hidden main page where m_bMoveToHiddenMain says so.
     *
     * The page named is spared, because the call comes from its own handler, but the frame no
     * longer knows it: the next move to that id makes a new page, and the application deletes
     * the spared one (deleteLater) once it has left its handler.
     * @param strID id of the current page
     */
    void removeAllChildWnd(std::string strID);

    /**
     * Switches pictures, styles and texts to a language and rebuilds the pages through
     * removeAllChildWnd. The user lands on the previous page of the history.
     * @param strLocale "" for the default language, "kr", "esp", "fra", "ger", "ita", "rus",
     *        "pol", "chn" or "por"
     * @param strID id of the current page
     */
    void changeLocale(std::string strLocale, std::string strID);

protected:
    bool event(QEvent* pEvent) override;

    TAMFx::Data::Collection::ArrayList m_listWindowHistory; ///< page ids, oldest first
    TAMFx::Data::Collection::ArrayList m_listReserved1;     ///< the application's
    TAMFx::Data::Collection::ArrayList m_listReserved2;     ///< the application's
    std::string m_strReserved;                              ///< the application's
    std::string m_strMainWindowID;                          ///< "" for none
    std::string m_strHiddenMainWindowID;                    ///< "" for none
    int m_nReserved = 0;                                    ///< the application's
    ZELChildWindow* m_pCurrentWindow = nullptr;             ///< may be gone: ask getCurrentWindow()
    std::deque<ZELChildWindow*> m_dqChildWindows;         ///< every live page, in order of creation
    TAMFx::Util::System::CCriticalSection m_csNavigation; ///< held while the page changes
    Common::SysLogger m_logger{"QTPANFx", "ZELMainFrame"};
    Components::Timer* m_pTimer = nullptr; ///< owned; the application's to start
    bool m_bMoveToHiddenMain = false;      ///< what removeAllChildWnd does last

private:
    ZELChildWindow* currentWindow();
    void setCurrentWindow(ZELChildWindow* pWindow);
    void deleteWindow(ZELChildWindow* pWindow);
    void forget(const ZELChildWindow* pWindow);
    bool isListed(const ZELChildWindow* pWindow) const;

    // a page that was spared is the application's to delete, on screen or not
    ZELChildWindow* m_pShownWindow = nullptr; ///< what move made the current page
    QPointer<QObject> m_pShownAlive;          ///< null once that page is gone
    QObject m_pageWatch;                      ///< ends with the frame, before the pages do
};

} // namespace PANFx::Windows
