#pragma once

#include "Candidate.h"

#include "components/ZELComponent.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"
#include "windows/ZELChildWindow.h"
#include "windows/ZELMainFrame.h"

#include <QApplication>

#include <stdexcept>

namespace bench {

/** An application's page in its smallest form: it gets what its components post. */
class PanelPage : public PANFx::Windows::ZELChildWindow
{
public:
    PanelPage(std::string strID, QWidget* pParent, const Candidate* pPanel)
        : ZELChildWindow(std::move(strID), pParent, std::string())
        , m_pPanel(pPanel)
    {
    }

    bool event(QEvent* pEvent) override
    {
        if (pEvent->type() == EVENT_MOUSE_UP && m_pPanel && m_pPanel->onClick)
            m_pPanel->onClick();
        if (pEvent->type() == EVENT_LIST_ITEM_CLICK && m_pPanel && m_pPanel->onCell) {
            const auto& click = static_cast<const ZELListEvent&>(*pEvent);
            m_pPanel->onCell(click.m_nRow, click.m_nColumn);
        }
        return ZELChildWindow::event(pEvent);
    }

private:
    const Candidate* m_pPanel;
};

/** An application's frame in its smallest form: each id is a page of that name. */
class PanelFrame : public PANFx::Windows::ZELMainFrame
{
public:
    /** @param pPanel is told what pages get, unless it is null; it must outlive the frame */
    explicit PanelFrame(const Candidate* pPanel)
        : m_pPanel(pPanel)
    {
    }

    PANFx::Windows::ZELChildWindow* createChildWindow(std::string strID) override
    {
        return new PanelPage(std::move(strID), this, m_pPanel);
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

    /** A component of the page on screen. */
    template <class Component>
    Component& component(const std::string& id)
    {
        auto* found = dynamic_cast<Component*>(getCurrentWindow()->getSubComponent(id));
        if (!found)
            throw std::runtime_error("the page lacks " + id);
        return *found;
    }

private:
    const Candidate* m_pPanel;
};

/** The frame of the one open panel. */
inline PanelFrame& currentFrame()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* frame = dynamic_cast<PanelFrame*>(widget))
            return *frame;
    }
    throw std::runtime_error("there is no frame");
}

} // namespace bench
