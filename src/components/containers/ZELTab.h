#pragma once

#include "common/tamfx/ArrayList.h"
#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

class QPixmap;
class ZELEvent;

namespace PANFx::Components {

/**
 * Pages with a button for each, of which one is shown. Tabs count from 0. What the components on
 * the pages report goes on to the window as if they lay on it.
 *
 * Layout: children "position", "image" (a background, with "file" and "x", "y", "width", "height"
 * in pixels), and the groups of buttons and pages in turn: a "tabbutton" group with one button,
 * a "tabpage" group with its page, the next button, and so on.
 *
 * Posts EVENT_TAB_DOWN (1561) with its own id to its parent when a touch has changed the page, and
 * when a tab on one of its pages has told the same.
 */
class QTPANFX_EXPORT ZELTab : public ZELComponent, public QWidget
{
public:
    /** @throw std::out_of_range as addTabPage() does */
    ZELTab(QWidget* pParent, std::string strID, std::string strType,
           TAMFx::Common::Xml::Node* pLayout);
    ~ZELTab() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /**
     * Shows a tab; posts nothing. A number below 0 or not below the number of components is told
     * and changes nothing; one between that of the tabs and that bound is told and shows none.
     */
    void setPage(int nPage);

    /** The number last given to setPage() and accepted; 0 at first. */
    int getPage() const;

    /** Tab of the button with that id; -1, with an error line, when there is none. */
    int findPage(std::string strButtonId);

    /// @{
    /**
     * Hides or shows one tab, with its button unchecked or checked, whatever the others do;
     * getPage() stays. A number without a tab is told and changes nothing.
     */
    void hideTab(int nPage);
    void showTab(int nPage);
    /// @}

    /**
     * Takes up the pairs of button and page among the sub-components and hides the pages.
     * @throw std::out_of_range when their number is odd, unless the reading has ended earlier, at
     *        a pair of other types or of what an application has deleted
     */
    void addTabPage();

    /** The page of a tab; null, with an error line, when there is none. */
    ZELComponent* getTabPage(int nPage);

    /** A page by its id; null for a component of another kind and, with a line, for none. */
    ZELComponent* getTabPage(std::string strID);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELTab"};
    TAMFx::Data::Collection::ArrayList m_arrPageId;   ///< id of the page of each tab
    TAMFx::Data::Collection::ArrayList m_arrButtonId; ///< id of the button of each tab
    QPixmap* m_pBGPixmap = nullptr;                   ///< not owned

    /// @{
    /** Place of the background in the widget, in pixels. */
    int m_nBGX = 0;
    int m_nBGY = 0;
    int m_nBGWidth = 1;
    int m_nBGHeight = 1;
    /// @}

    int m_nCurPage = 0;

private:
    void readBackground(TAMFx::Common::Xml::Node* pImage);
    bool addPair(ZELComponent* pButton, ZELComponent* pPage);
    void turnTab(int nPage, bool bShow, const char* pszOperation);
    bool handleTabDown(QEvent* pEvent);
};

} // namespace PANFx::Components
