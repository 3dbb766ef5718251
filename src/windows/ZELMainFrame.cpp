#include "windows/ZELMainFrame.h"

#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELEvent.h"
#include "resource/ZELResourceMgr.h"
#include "windows/PageBuilding.h"
#include "windows/ZELChildWindow.h"

#include <QCoreApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace PANFx::Windows {

using TAMFx::Util::System::CriticalSectionGuard;

namespace {

constexpr int screenWidth = 800;
constexpr int screenHeight = 480;

void writeBanner(Common::SysLogger& logger)
{
    const char* rule = "================================================================";
    logger.WriteInfo("%s", rule);
    logger.WriteInfo("                          QTPANFx START                                 ");
    logger.WriteInfo("    Build: %s %s", __DATE__, __TIME__);
    logger.WriteInfo("%s", rule);
}

} // namespace

ZELMainFrame::ZELMainFrame()
    : QMainWindow(nullptr, Qt::FramelessWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
{
    setGeometry(QRect(QPoint(0, 0), QPoint(screenWidth - 1, screenHeight - 1)));
    setFixedWidth(screenWidth);
    setFixedHeight(screenHeight);
    setPalette(QPalette(Qt::black));
    writeBanner(m_logger);
    m_pTimer = new Components::Timer(this);
}

ZELMainFrame::~ZELMainFrame()
{
    delete m_pTimer;
    m_pTimer = nullptr;
}

bool ZELMainFrame::event(QEvent* pEvent)
{
    return QMainWindow::event(pEvent);
}

void ZELMainFrame::setMainWindowID(std::string strID)
{
    m_strMainWindowID = std::move(strID);
}

void ZELMainFrame::setHiddenMainWindowID(std::string strID)
{
    m_strHiddenMainWindowID = std::move(strID);
}

ZELChildWindow* ZELMainFrame::getCurrentWindow()
{
    const CriticalSectionGuard guard(m_csNavigation);
    return currentWindow();
}

ZELChildWindow* ZELMainFrame::findChild(std::string strID)
{
    for (ZELChildWindow* window : m_dqChildWindows) {
        if (window && window->m_strID == strID)
            return window;
    }
    // on the normal path of each first visit, so no error
    m_logger.WriteDebug("[%s] Cannot Find Window (ID: %s)", "findChild", strID.c_str());
    return nullptr;
}

ZELChildWindow* ZELMainFrame::getZELChildWindow(std::string strID)
{
    if (ZELChildWindow* window = findChild(strID))
        return window;
    ZELChildWindow* window = createChildWindow(std::move(strID));
    if (window) {
        m_dqChildWindows.push_back(window);
        // an application may delete a page itself
        connect(window, &QObject::destroyed, &m_pageWatch, [this, window] { forget(window); });
    }
    return window;
}

void ZELMainFrame::forget(const ZELChildWindow* pWindow)
{
    std::replace_if(
        m_dqChildWindows.begin(), m_dqChildWindows.end(),
        [pWindow](const ZELChildWindow* pListed) { return pListed == pWindow; }, nullptr);
}

bool ZELMainFrame::isListed(const ZELChildWindow* pWindow) const
{
    return pWindow && std::find(m_dqChildWindows.begin(), m_dqChildWindows.end(), pWindow) !=
                          m_dqChildWindows.end();
}

ZELChildWindow* ZELMainFrame::moveTo(std::string strID, bool bHistory, bool bActivating)
{
    ZELChildWindow* window = moveToEx(std::move(strID), bHistory, bActivating);
    if (window)
        window->activated();
    return window;
}

ZELChildWindow* ZELMainFrame::moveToEx(std::string strID, bool bHistory, bool bActivating)
{
    const CriticalSectionGuard guard(m_csNavigation);
    ZELChildWindow* window = getZELChildWindow(strID);
    if (!window) {
        m_logger.WriteError("[%s] Window is NULL", "moveToEx");
        return nullptr;
    }
    if (m_listWindowHistory.Count() > 1 && !m_strMainWindowID.empty() &&
        m_strMainWindowID == strID) {
        m_listWindowHistory.Clear();
        m_listWindowHistory.Add(m_strMainWindowID.c_str());
    }
    // after a reset the main id stands in the history twice, and a moveBack lands on it again
    if (bHistory)
        m_listWindowHistory.Add(strID.c_str());
    move(currentWindow(), window, bActivating);
    return window;
}

ZELChildWindow* ZELMainFrame::moveBack(bool bActivating)
{
    ZELChildWindow* window = moveBackEx(bActivating);
    if (window)
        window->activated();
    return window;
}

ZELChildWindow* ZELMainFrame::moveBackEx(bool bActivating)
{
    const CriticalSectionGuard guard(m_csNavigation);
    const int count = m_listWindowHistory.Count();
    if (count < 2) {
        m_logger.WriteError("[%s] nIndex (%d) < 2", "moveBackEx", count);
        return nullptr;
    }
    const std::string left = m_listWindowHistory.AtString(count - 1);
    const std::string target = m_listWindowHistory.AtString(count - 2);
    m_listWindowHistory.RemoveAt(count - 1);
    m_logger.WriteInfo("[%s] %s <== %s", "moveBackEx", target.c_str(), left.c_str());

    ZELChildWindow* window = getZELChildWindow(target);
    if (!window) {
        m_logger.WriteError("[%s] Back Window is NULL", "moveBackEx");
        return nullptr;
    }
    move(currentWindow(), window, bActivating);
    return window;
}

void ZELMainFrame::move(ZELChildWindow* pFrom, ZELChildWindow* pTo, bool bActivating)
{
    if (!pTo)
        return;
    setCurrentWindow(pTo);
    pTo->setUpdatesEnabled(true);
    if (bActivating) {
        pTo->activating();
        QCoreApplication::postEvent(pTo, new ZELEvent(EVENT_WINDOW_ACTIVATE));
    }
    pTo->setVisible(true);
    pTo->setEnabled(true);
    setCurrentWindow(pTo);
    // shown before the old one goes, so that the screen never shows what lies below
    if (pFrom && pFrom != pTo) {
        pFrom->setDisabled(true);
        pFrom->setVisible(false);
    }
}

void ZELMainFrame::removeAllChildWnd(std::string strID)
{
    m_logger.WriteDebug("[%s] start", "removeAllChildWnd");
    ZELChildWindow* hiddenMain = nullptr;
    // a copy is walked, and a page that dies is no longer listed: its end may look up other pages,
    // or be the end of others as well
    const std::deque<ZELChildWindow*> windows = m_dqChildWindows;
    for (ZELChildWindow* window : windows) {
        if (!isListed(window) || window->m_strID == strID)
            continue;
        if (window->m_strID == m_strHiddenMainWindowID) {
            hiddenMain = window;
        } else {
            forget(window);
            deleteWindow(window);
        }
    }
    if (!isListed(hiddenMain))
        hiddenMain = nullptr;
    m_dqChildWindows.clear();
    if (hiddenMain)
        m_dqChildWindows.push_back(hiddenMain);
    if (m_bMoveToHiddenMain)
        moveTo(m_strHiddenMainWindowID, true, true);
    else
        moveBack(true);
    m_logger.WriteDebug("[%s] end", "removeAllChildWnd");
}

void ZELMainFrame::deleteWindow(ZELChildWindow* pWindow)
{
    m_logger.WriteDebug("[%s] before delete %s Window", "removeAllChildWnd",
                        pWindow->m_strID.c_str());
    if (pWindow == currentWindow()) {
        m_logger.WriteError("[%s] deletes the current window %s", "removeAllChildWnd",
                            pWindow->m_strID.c_str());
        setCurrentWindow(nullptr);
    }
    delete pWindow;
    m_logger.WriteDebug("[%s] finished window deletion", "removeAllChildWnd");
}

void ZELMainFrame::changeLocale(std::string strLocale, std::string strID)
{
    m_logger.WriteDebug("[%s] start", "changeLocale");
    Resource::ZELResourceMgr::getInstance()->changeLocale(std::move(strLocale));
    removeAllChildWnd(std::move(strID));
    m_logger.WriteDebug("[%s] end", "changeLocale");
}

ZELChildWindow* ZELMainFrame::currentWindow()
{
    if (m_pCurrentWindow == m_pShownWindow && m_pShownAlive.isNull())
        m_pCurrentWindow = nullptr;
    return m_pCurrentWindow;
}

void ZELMainFrame::setCurrentWindow(ZELChildWindow* pWindow)
{
    m_pCurrentWindow = pWindow;
    m_pShownWindow = pWindow;
    m_pShownAlive = pWindow;
}

} // namespace PANFx::Windows
