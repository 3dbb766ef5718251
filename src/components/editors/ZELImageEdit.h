#pragma once

#include "components/ZELComponent.h"
#include "components/support/EditorFrame.h"
#include "components/support/TellOnce.h"

#include <QRect>
#include <QWidget>

#include <string>

class QPixmap;

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

/**
 * A field made of three picture pieces with a text over them, for free text, and the base of the
 * fields for dates, times, addresses and numbers. It has no keyboard, caret or selection: a pad
 * or the application changes the value through the text operations. All lengths count bytes.
 *
 * Layout: attributes "style", "dimstyle", "align" ("left" by default); children "imageup",
 * "imagedown", "imagedim" with "start", "mid", "end" (a set with one missing is left out),
 * "position" and "padding" with "x", "y", "width", "height" in pixels. Without a frame for its
 * state the field paints nothing, without a style no text.
 *
 * Posts to its parent, unless dimmed: EVENT_FOCUS_IN (1559), EVENT_MOUSE_DOWN (1551),
 * EVENT_MOUSE_UP (1552), EVENT_FOCUS_OUT (1560).
 */
class QTPANFX_EXPORT ZELImageEdit : public ZELComponent, public QWidget
{
public:
    /**
     * A child of @p pParent, not shown. A null element writes an error line and leaves the field
     * with neither frame nor style.
     */
    ZELImageEdit(QWidget* pParent, std::string strID, std::string strType,
                 TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageEdit() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Empties the value and repaints. */
    virtual void clear();

    /** The value, UTF-8. */
    virtual std::string text();

    /** Sets the value, cut to the longest allowed, and repaints. Null empties it. */
    virtual void setText(const char* pszText);

    /** The same for a std::string, zero bytes included. */
    virtual void setText(std::string strText);

    /** Appends to the value, cuts it to the longest allowed, and repaints; null does nothing. */
    virtual void addText(const char* pszText);

    /** The same for a std::string, zero bytes included. */
    virtual void addText(std::string strText);

    /** Takes the last byte away and repaints; nothing on an empty value. */
    virtual void backspace();

    /** 0 shows the text, 1 an asterisk for each character. Doesn't repaint. */
    void setEchoMode(int nEchoMode);

    /** Longest text in bytes, 1024 at first; the present text is not cut. */
    void setMaxLength(unsigned int nMaxLength);

    /** The style of the text, not owned. Doesn't repaint. */
    void setFont(Resource::Font* pFont);

    /** @param nAlign Qt alignment flags. Doesn't repaint. */
    void setAlign(int nAlign);

    /** The text area, in pixels of the widget. Doesn't repaint. */
    void setPadding(int x, int y, int width, int height);

    /** The text shown while the value is empty, UTF-8. Doesn't repaint. */
    void setPlaceholderText(std::string strText);

    /** The same; null empties it. */
    void setPlaceholderText(const char* pszText);

    /** UTF-8; "" when there is none. */
    std::string placeholderText();

    /**
     * 0, 1, 2 cut a long text at the left, the right, in the middle. 4 cuts at the right, at the
     * left while typing, and a tap on the first or last tenth of the text area shows that end
     * (with a margin at the left its last pixels are dead). Any other value cuts nothing. Doesn't
     * repaint.
     */
    void setElidedText(int nMode);

    /**
     * The pieces of the field without the focus, by file name; what is missing becomes null.
     * @param bShow makes them current at once, and repaints
     * @return whether all three exist
     */
    bool setUpImage(std::string strStart, std::string strMid, std::string strEnd, bool bShow);

    /** The pieces of the field with the focus. @return whether all three exist */
    bool setDownImage(std::string strStart, std::string strMid, std::string strEnd);

    /** The pieces of the dimmed field. @return whether all three exist */
    bool setDimImage(std::string strStart, std::string strMid, std::string strEnd);

    /** Makes three pieces current, not owned, and repaints. @return whether all are set */
    bool setCurImage(QPixmap* pStart, QPixmap* pMid, QPixmap* pEnd);

    /** Dimmed: shows the dim pieces, takes no touch, posts nothing. */
    void setDimMode(bool bDimMode);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

    /** Reads the pictures, the place and the text area. */
    void readFrame(TAMFx::Common::Xml::Node* pLayout);

    /** Whether the three current pieces can be drawn; without them nothing is painted at all. */
    bool hasFrame() const;

    /** Draws the three current pieces, which must be there: see hasFrame(). */
    void paintFrame(QPainter& painter) const;

    /**
     * Sets font and pen of a style.
     * @return false without a style: the text stays unpainted, and @p logger tells it once
     */
    bool setTextStyle(QPainter& painter, const Resource::Font* pFont, Common::SysLogger& logger);

    /** Tells, once, that there is no style. */
    void tellNoFont(Common::SysLogger& logger, const char* pszOperation);

    bool m_bDimMode = false;
    int m_nAlign = Qt::AlignLeft | Qt::AlignVCenter; ///< Qt alignment flags of the text
    int m_nEchoMode = 0;                             ///< 1 shows an asterisk for each character
    unsigned int m_nMaxLength = 1024;                ///< bytes
    std::string m_strPlaceholder;                    ///< UTF-8
    Resource::Font* m_pFont = nullptr;               ///< not owned; null paints no text
    Resource::Font* m_pDimFont = nullptr;            ///< not owned; used by the number field only
    QRect m_paddingRect{0, 0, -1, -1};               ///< text area in the widget

    /// @{
    /** A piece of the frame, not owned; null where there is none. The current three are painted. */
    QPixmap* m_pCurStart = nullptr;
    QPixmap* m_pCurMid = nullptr;
    QPixmap* m_pCurEnd = nullptr;
    QPixmap* m_pUpStart = nullptr;
    QPixmap* m_pUpMid = nullptr;
    QPixmap* m_pUpEnd = nullptr;
    QPixmap* m_pDownStart = nullptr;
    QPixmap* m_pDownMid = nullptr;
    QPixmap* m_pDownEnd = nullptr;
    QPixmap* m_pDimStart = nullptr;
    QPixmap* m_pDimMid = nullptr;
    QPixmap* m_pDimEnd = nullptr;
    /// @}

    std::string m_strText; ///< UTF-8
    Common::SysLogger m_logger{"QTPANFx", "ZELImageEdit"};
    int m_nElideMode = Elision::none; ///< Qt elide mode now in force
    int m_nElideType = Elision::none; ///< what was asked for

private:
    void textTaken();
    void changed();
    void showTouchedEnd(int x);

    TellOnce m_noFont;
};

} // namespace PANFx::Components
