#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

/**
 * One line of UTF-8 text in one of two styles, with an optional white shadow one pixel down and
 * right, and optional elision. A touch is reported as a click.
 *
 * Layout: attributes "title" (a text or "@key"), "style" and "style2" (read with a title only),
 * "shadow" ("true"); child "position" with "x", "y", "width", "height" in pixels and "align"
 * ("left" by default). Without "position" the text is centred and the label is 1 by 1.
 *
 * Posts EVENT_MOUSE_UP (1552) to its parent at each release, wherever the pointer is.
 * No setter repaints: call update() on the widget, or the change shows with the next paint.
 */
class QTPANFX_EXPORT ZELLabel : public ZELComponent, public QWidget
{
public:
    /**
     * A child of @p pParent, not shown. A null element writes an error line and leaves the label
     * with neither text nor place.
     */
    ZELLabel(QWidget* pParent, std::string strID, std::string strType,
             TAMFx::Common::Xml::Node* pLayout);
    ~ZELLabel() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** First style, not owned; without it style 0 paints nothing. */
    void setFont(Resource::Font* pFont);

    /** Second style, not owned; without it style 1 paints nothing. */
    void setFont2(Resource::Font* pFont);

    /** 0 paints in the first style, 1 in the second, any other value paints nothing. */
    void setFontStyle(int nFontStyle);

    /** @param nAlign Qt alignment flags */
    void setAlign(int nAlign);

    /** Elides to the width of the widget from now on. The second style is never elided. */
    void setElidedText();

    /** UTF-8, shown as it is: "@key" is looked up in layouts only. */
    void setTitle(std::string strTitle);

    /** The same; null empties the title. */
    void setTitle(const char* pszTitle);

    /**
     * Width in pixels of the title's bytes, each taken as one Latin-1 character, in the first
     * style: for other than ASCII it differs from the width painted, and callers rely on it.
     * 0 and an error line without a first style.
     */
    int getTextWidth();

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

    Resource::Font* m_pFont = nullptr;  ///< not owned; the first style
    Resource::Font* m_pFont2 = nullptr; ///< not owned; the second style
    int m_nFontStyle = 0;               ///< 0 for the first style, 1 for the second
    std::string m_strTitle;             ///< UTF-8
    int m_nAlign = Qt::AlignCenter;     ///< Qt alignment flags
    bool m_bShadow = false;
    bool m_bElided = false;
    Common::SysLogger m_logger{"QTPANFx", "ZELLabel"};

private:
    void readTitle(TAMFx::Common::Xml::Node* pLayout);
    void paintText(const Resource::Font& font, bool bElided);
};

} // namespace PANFx::Components
