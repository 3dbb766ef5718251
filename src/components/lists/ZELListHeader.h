#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

namespace PANFx::Components {

/**
 * The header row of a list: a transparent container of cells, as ZELListItem.
 *
 * Layout: child "position"; the other children are type groups of the cells, as on a page.
 *
 * Posts what a cell reports to its parent as a ZELListEvent with row 0, the column and the mark
 * of a header.
 */
class QTPANFX_EXPORT ZELListHeader : public ZELComponent, public QWidget
{
public:
    /**
     * Builds and shows the cells of the element, then takes its place. A null element is told twice
     * and leaves a header without cells.
     */
    ZELListHeader(QWidget* pParent, std::string strID, std::string strType,
                  TAMFx::Common::Xml::Node* pLayout);
    ~ZELListHeader() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Column of the first cell with that id, counted from 0; -1 when there is none. */
    int findHeaderComponent(std::string strID);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELListHeader"};
};

} // namespace PANFx::Components
