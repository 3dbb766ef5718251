#pragma once

#include "components/ZELComponent.h"

#include <QEvent>
#include <QWidget>

#include <string>

class ZELEvent;

namespace PANFx::Components {

class ZELImageButton;
class ZELLabel;

/**
 * The page counter of a list: a button up, a button down and a label with the page and the
 * total. It scrolls nothing: a touch moves the counter and tells the parent, and the application
 * refills the rows. Pages count from 1. Set the total first, then the page.
 *
 * Layout: child "position"; child "page" places the label, with "style" and "type" ("LF" for
 * three lines of text); children "upbtn" and "downbtn" place the buttons, with the pictures "up",
 * "down", "dim" and "longpress" (on unless it is "false"). All of them must be there. Label and
 * buttons are no sub-components.
 *
 * Posts a ZELRangeEvent with the page now shown to its parent, also where it did not change:
 * EVENT_PAGE_UP (1581) and EVENT_PAGE_DOWN (1582).
 */
class QTPANFX_EXPORT ZELListScroll : public ZELComponent, public QWidget
{
public:
    /**
     * Reads the element and makes label and buttons, each of which tells that it gets no element of
     * its own. Page 1 of 1. A null element is told twice and leaves a scroll without them.
     */
    ZELListScroll(QWidget* pParent, std::string strID, std::string strType,
                  TAMFx::Common::Xml::Node* pLayout);
    ~ZELListScroll() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** 0 and a page above the total change nothing. */
    void setListNowPage(int nPage);

    /** The page stays, also above the total: set it next. */
    void setListTotalPage(int nTotal);

    /** The text of the label, "page/total" on one line or on three. */
    std::string getPageNumbering();

    /** One page back, and the report to the parent; the argument is not used. */
    void onPressUpBtn(ZELEvent* pEvent);

    /** One page on, and the report to the parent; the argument is not used. */
    void onPressDownBtn(ZELEvent* pEvent);

protected:
    ZELImageButton* m_pUpBtn = nullptr;   ///< a Qt child
    ZELImageButton* m_pDownBtn = nullptr; ///< a Qt child
    ZELLabel* m_pPageLabel = nullptr;     ///< a Qt child

public:
    int m_nTotalPage = 1; ///< as it was set, not checked
    int m_nNowPage = 1;   ///< counted from 1

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    int m_nType = 0;                ///< 1 for three lines of text
    std::string m_strPageNumbering; ///< the text of the label when it was last asked for
    Common::SysLogger m_logger{"QTPANFx", "ZELListScroll"};

private:
    void makeChildren(TAMFx::Common::Xml::Node* pLayout);
    void readPage(TAMFx::Common::Xml::Node* pPage);
    ZELImageButton* makeButton(const char* pszID);
    void turnPage(int nStep, QEvent::Type type, const char* pszOperation);
    bool handleButton(ZELEvent* pEvent);
};

} // namespace PANFx::Components
