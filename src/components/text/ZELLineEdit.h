#pragma once

#include "components/ZELComponent.h"
#include "components/support/EditorFrame.h"
#include "components/support/TellOnce.h"

#include <QLineEdit>
#include <QRect>

#include <string>

class QPixmap;

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

/**
 * A one-line text field on a QLineEdit, which holds the text, with a frame of three pictures and
 * its own painting; there is no caret. In barcode mode keys go into the field unseen, as a
 * scanner sends them, and the field shows the last text that was taken over.
 *
 * Layout: attributes "style", "dimstyle", "align" ("left" by default); children "imageup",
 * "imagedown", "imagedim" with "start", "mid", "end", "position" and "padding" with "x", "y",
 * "width", "height" in pixels. Without a frame for its state the field paints nothing, without a
 * style no text.
 *
 * Posts to its parent, unless dimmed: EVENT_MOUSE_DOWN (1551), EVENT_MOUSE_UP (1552),
 * EVENT_FOCUS_OUT (1560).
 */
class QTPANFX_EXPORT ZELLineEdit : public ZELComponent, public QLineEdit
{
public:
    /**
     * A child of @p pParent, not shown. A null element writes an error line and leaves the field
     * with neither frame nor style.
     */
    ZELLineEdit(QWidget* pParent, std::string strID, std::string strType,
                TAMFx::Common::Xml::Node* pLayout);
    ~ZELLineEdit() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** The style of the text, not owned. Doesn't repaint. */
    void setFont(Resource::Font* pFont);

    /** @param nAlign Qt alignment flags. Doesn't repaint. */
    void setAlign(int nAlign);

    /** 1 shows an asterisk for each character. Doesn't repaint. */
    void setEchoMode(int nEchoMode);

    /** The rectangle of the text, in pixels of the widget. Doesn't repaint. */
    void setPadding(int x, int y, int width, int height);

    /** 0, 1, 2 cut a long text at the left, the right, in the middle, 4 as 1; others don't cut. */
    void setElidedText(int nMode);

    /** In barcode mode: the next paint takes the field's text over, and the next key empties it. */
    void setShowMode(bool bShowMode);

    /**
     * In barcode mode the field shows the code that was last taken over. The first key after that,
     * whichever it is but Scroll Lock, empties the field, and all keys go in unseen. Switching on
     * forgets a setShowMode() that waits for its paint. Doesn't repaint.
     */
    void setBarcodeMode(bool bBarcodeMode);

    /** Makes three pieces current, not owned, and repaints. @return whether all are set */
    bool setCurImage(QPixmap* pStart, QPixmap* pMid, QPixmap* pEnd);

    /**
     * The pieces of the field without the focus, by file name; what is missing becomes null.
     * @param bCurrent makes them current at once, and repaints
     * @return whether all three exist
     */
    bool setUpImage(std::string strStart, std::string strMid, std::string strEnd, bool bCurrent);

    /** The pieces of the field with the focus. @return whether all three exist */
    bool setDownImage(std::string strStart, std::string strMid, std::string strEnd);

    /** The pieces of the dimmed field. @return whether all three exist */
    bool setDimImage(std::string strStart, std::string strMid, std::string strEnd);

    /** Dimmed: shows the dim pieces, takes no input, posts nothing. */
    void setDimMode(bool bDimMode);

protected:
    void focusOutEvent(QFocusEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;

    bool m_bDimMode = false;
    int m_nAlign = Qt::AlignLeft | Qt::AlignVCenter; ///< Qt alignment flags of the text
    int m_nEchoMode = 0;                             ///< 1 shows an asterisk for each character
    std::string m_strReserved;                       ///< read by nothing
    Resource::Font* m_pFont = nullptr;               ///< not owned; null paints no text
    Resource::Font* m_pDimFont = nullptr;            ///< not owned; painted with by nothing
    QRect m_rcText;                                  ///< text area in the widget

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

    Common::SysLogger m_logger{"QTPANFx", "ZELLineEdit"};
    int m_nElideMode = Elision::none; ///< Qt elide mode now in force
    int m_nElideType = Elision::none; ///< what was asked for
    QString m_strBarcode;             ///< what barcode mode shows
    bool m_bBarcodeMode = false;
    bool m_bShowMode = false;  ///< the next paint takes the typed text over
    bool m_bClearOnKey = true; ///< the next key in barcode mode empties the field

private:
    QString shownText();
    bool hasDownImage() const;

    TellOnce m_noFont;
};

} // namespace PANFx::Components
