#pragma once

#include "components/ZELComponent.h"
#include "components/support/TellOnce.h"

#include <QRect>
#include <QStringList>
#include <QWidget>

#include <string>

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

class ZELListScroll;

/**
 * A long text to read, page by page, with a scroll that turns the pages. The text is broken into
 * lines when it is set.
 *
 * Layout: attributes "style" and "titlestyle" (the same as "style" when missing); children
 * "position", "board" (the text area: "x", "y", "width", "height" in pixels, by default those of
 * "position", "align" and "indent", a hanging indent in pixels) and "Components" with a
 * "listscroll". Style, board and scroll must be there, and the board must be at least as high as a
 * line.
 *
 * Posts EVENT_MOUSE_UP (1552) to its parent at each release on the text.
 */
class QTPANFX_EXPORT ZELTextBoard : public ZELComponent, public QWidget
{
public:
    /**
     * Builds and shows the scroll and reads the element; there is no text. A null element is told
     * twice and leaves a board without style and scroll.
     */
    ZELTextBoard(QWidget* pParent, std::string strID, std::string strType,
                 TAMFx::Common::Xml::Node* pLayout);
    ~ZELTextBoard() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Breaks a text into lines and pages and goes to page 1. UTF-8. Doesn't repaint. */
    void setText(std::string strText);

    /** The text as it was set, not as it is broken into lines. */
    std::string getText();

    /** Kept; the text is drawn at the left whatever it is. */
    void setAlign(int nAlign);

    /** Hanging indent in pixels; takes effect with the next text. */
    void setIndent(int nIndent);

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    int m_nNowPage = 1; ///< counted from 1
    int m_nTotalPage = 1;
    int m_nAlign = Qt::AlignTop | Qt::AlignLeft; ///< Qt alignment flags; read by nothing
    int m_nIndent = 0;                           ///< pixels
    int m_nTitleLines = 0;  ///< lines at the top of page 1 that stay free for the title
    int m_nPageLines = 1;   ///< lines that the board has room for
    int m_nLineHeight = 0;  ///< pixels
    std::string m_strTitle; ///< set by nothing
    std::string m_strText;  ///< UTF-8
    QStringList m_lstLines; ///< "||" in front marks the first line of an indented paragraph
    ZELListScroll* m_pScroll = nullptr;     ///< a Qt child; null without a scroll
    Resource::Font* m_pTitleFont = nullptr; ///< not owned
    Resource::Font* m_pFont = nullptr;      ///< not owned; null paints nothing
    QRect m_rcBoard{0, 0, 0, 0};            ///< the text area in the widget
    Common::SysLogger m_logger{"QTPANFx", "ZELTextBoard"};

private:
    void reset();
    void readBoard(TAMFx::Common::Xml::Node* pLayout);
    void countLines();
    void breakText(const QStringList& lstParagraphs);
    int countPages();
    void paintLines(QPainter& painter, long long nFirst, long long nLast, int nRow) const;

    TellOnce m_noFont;
};

} // namespace PANFx::Components
