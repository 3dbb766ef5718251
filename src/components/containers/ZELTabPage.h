#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

namespace PANFx::Components {

/**
 * A page of a tab: a plain container, which hands on to its parent what its components report.
 *
 * Layout: child "position"; the other children are type groups of components, as on a page.
 */
class QTPANFX_EXPORT ZELTabPage : public ZELComponent, public QWidget
{
public:
    /**
     * Builds the components of the element, then takes its place. The page is not shown. A null
     * element is told twice and leaves an empty page.
     */
    ZELTabPage(QWidget* pParent, std::string strID, std::string strType,
               TAMFx::Common::Xml::Node* pLayout);
    ~ZELTabPage() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Keeps the state, which nothing shows. */
    void setCheck(int nCheck);

    /** @throw std::out_of_range when there is no component at @p nIndex */
    ZELComponent* getTabComponent(int nIndex);

    /** The first component with that id; null when there is none. */
    ZELComponent* getTabComponent(std::string strID);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    bool m_bCheck = false; ///< read by nothing
    Common::SysLogger m_logger{"QTPANFx", "ZELTabPage"};
};

} // namespace PANFx::Components
