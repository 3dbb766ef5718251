#pragma once

#include "common/tamfx/ArrayList.h"
#include "components/ZELComponent.h"

#include <QEvent>
#include <QWidget>

#include <string>

class QPixmap;
class ZELEvent;
class ZELListEvent;

namespace PANFx::Components {

class ZELListHeader;
class ZELListScroll;

/**
 * A table whose rows and cells stand in the layout. There is no data model: the application
 * writes the contents of the cells, and again when the page changes. The list knows its rows by
 * number and turns what happens in a cell into one event. Rows and columns count from 0; a column
 * is a cell's place among all sub-components of its row.
 *
 * Layout: children "position", "image" (a background, with "file" and "x", "y", "width", "height"
 * in pixels) and the groups "listscroll", "listheader" and "listitem". The element "image" is
 * what gives a list its rows: a list that wants no background has one without "file".
 *
 * Posts to its parent: ZELListEvent of EVENT_LIST_ITEM_CLICK (1585), EVENT_LIST_ITEM_CHECKED,
 * EVENT_LIST_ITEM_UNCHECKED (1586, 1587; check and radio buttons), the same for the header (1590,
 * 1588, 1589; check buttons), EVENT_HEADER_DOWN, EVENT_HEADER_UP (1583, 1584; sort),
 * EVENT_LIST_ITEM_FOCUS_IN, EVENT_LIST_ITEM_FOCUS_OUT (1591, 1592); ZELRangeEvent of
 * EVENT_PAGE_UP and EVENT_PAGE_DOWN (1581, 1582). Everything else ends here.
 */
class QTPANFX_EXPORT ZELList : public ZELComponent, public QWidget
{
public:
    /**
     * Builds and shows the components of the element, then takes its place, background and rows. A
     * null element is told twice and leaves a list without rows.
     */
    ZELList(QWidget* pParent, std::string strID, std::string strType,
            TAMFx::Common::Xml::Node* pLayout);
    ~ZELList() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** The scroll's page, counted from 1; -1 without a scroll. */
    int getNowPage();

    /** As ZELListScroll::setListNowPage(); nothing without a scroll. */
    void setNowPage(int nPage);

    /** As ZELListScroll::setListTotalPage(); nothing without a scroll. */
    void setTotalPage(int nTotal);

    /** A row; null for one that there isn't. */
    ZELComponent* getListItem(int nRow);

    /** A cell; null, with an error line, for one that there isn't. */
    ZELComponent* getItemComponent(int nRow, int nColumn);

    /**
     * A header cell; null, with an error line, without a header.
     * @throw std::out_of_range when the header has no such column
     */
    ZELComponent* getHeaderComponent(int nColumn);

    /** A header cell by id; null when there is none, with an error line without a header. */
    ZELComponent* getHeaderComponent(std::string strID);

    /** Takes up the rows anew; to be called after rows have changed. */
    void addListItem();

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    ZELListScroll* m_pListScroll = nullptr;         ///< not owned
    ZELListHeader* m_pListHeader = nullptr;         ///< not owned
    TAMFx::Data::Collection::ArrayList m_arrItemId; ///< ids of the rows
    QPixmap* m_pBGPixmap = nullptr;                 ///< not owned

    /// @{
    /** Place of the background in the widget, in pixels. */
    int m_nBGX = 0;
    int m_nBGY = 0;
    int m_nBGWidth = 0;
    int m_nBGHeight = 0;
    /// @}

    Common::SysLogger m_logger{"QTPANFx", "ZELList"};

    /** Posts a page event on with this list as the sender. */
    void postPage(ZELEvent& event);

    /** Posts a list event on under another number, with this list as the sender. */
    void postPlace(QEvent::Type type, const ZELListEvent& event, bool bHeader);

private:
    void readBackground(TAMFx::Common::Xml::Node* pImage);
    ZELListHeader* header(const char* pszOperation);
    void forward(ZELEvent& event);
    void handleClick(const ZELListEvent& event);
};

} // namespace PANFx::Components
