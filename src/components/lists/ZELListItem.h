#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

namespace PANFx::Components {

/**
 * A row of a list: a transparent container of cells, whose columns are their places among its
 * sub-components.
 *
 * Layout: child "position"; the other children are type groups of the cells, as on a page.
 *
 * Posts what a cell reports to its parent as a ZELListEvent with row and column; events of other
 * ids than its cells' end here.
 */
class QTPANFX_EXPORT ZELListItem : public ZELComponent, public QWidget
{
public:
    /**
     * Builds and shows the cells of the element, then takes its place. A null element is told twice
     * and leaves a row without cells.
     */
    ZELListItem(QWidget* pParent, std::string strID, std::string strType,
                TAMFx::Common::Xml::Node* pLayout);
    ~ZELListItem() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Column of the first cell with that id, counted from 0; -1 when there is none. */
    int findComponent(std::string strID);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELListItem"};

public:
    int m_nRow = -1; ///< counted from 0; -1 until a list takes the row up
};

} // namespace PANFx::Components
