#pragma once

#include "components/buttons/ZELCheckButton.h"

#include <string>

namespace PANFx::Components {

/**
 * A check button laid out as a list row: background pictures, a text at the left, a text at the
 * right and a scaled icon that fades when the button is checked.
 *
 * Layout: attributes "animation", "style", "pressstyle", each with or without a title; children
 * "image", "position", "icon" ("image", "scale" in percent, "align"), "textL" and "textR" (each
 * read only with a "title", which is taken as it stands; "x", "y", "width", "height", "align").
 *
 * Events are those of ZELImageButton. None of the setters repaints.
 */
class QTPANFX_EXPORT ZELIconCheckButton : public ZELCheckButton
{
public:
    /**
     * Reads the element twice, as that of an image button first: the "title" and the "textPos" of
     * one stand where "textL" gives none. A null element is told twice.
     */
    ZELIconCheckButton(QWidget* pParent, std::string strID, std::string strType,
                       TAMFx::Common::Xml::Node* pLayout);
    ~ZELIconCheckButton() override;

    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Whether the icon is painted; it is at first. */
    void setIconVisible(bool bVisible);

    /** The right-hand text; setTitle sets the left-hand one. */
    void setSecondText(std::string strText);

    /** Shows the picture of that file name as the icon; no icon where there is none. */
    void setIconImage(std::string strName);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    QPixmap* m_pIcon = nullptr; ///< not owned
    int m_nIconScale = 100;     ///< percent
    int m_nIconAlign = 0;       ///< only 0x84 and 0x82 are told apart
    bool m_bIconVisible = true;
    std::string m_strSecondText; ///< UTF-8, at the right
    QRect m_secondTextRect;      ///< in widget coordinates; unset means the whole widget
    int m_nSecondAlign = 0;      ///< Qt alignment flags of the text at the right
    Common::SysLogger m_logger{"QTPANFx", "ZELIconCheckButton"};

private:
    void readIcon(TAMFx::Common::Xml::Node* pIcon);
    void paintIcon(QPainter& painter);
};

} // namespace PANFx::Components
