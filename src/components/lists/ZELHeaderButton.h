#pragma once

#include "components/buttons/ZELRadioButton.h"

#include <string>

class QPixmap;

namespace PANFx::Components {

/**
 * A header cell with a direction to sort in. The first press selects it, each later one turns
 * its direction round. It doesn't unselect the other header cells: the application does.
 *
 * Layout: that of an image button, and a child "icon" with the pictures "up" and "down" and "x",
 * "y", "width", "height" in pixels. The title is always centred.
 *
 * Posts at the press, not at the release: EVENT_HEADER_DOWN (1583) when the direction is true
 * now, EVENT_HEADER_UP (1584) when it is false.
 */
class QTPANFX_EXPORT ZELHeaderButton : public ZELRadioButton
{
public:
    /**
     * Reads the element as an image button and then for the icon, so a null one is told twice. Not
     * selected, with the direction false.
     */
    ZELHeaderButton(QWidget* pParent, std::string strID, std::string strType,
                    TAMFx::Common::Xml::Node* pLayout);
    ~ZELHeaderButton() override;

    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

public:
    /** Sets state and direction; a new direction alone doesn't repaint. */
    virtual void setCheck(int nCheck, bool bDirection);

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELHeaderButton"};
    QPixmap* m_pUpIcon = nullptr;   ///< not owned; shown while the direction is true
    QPixmap* m_pDownIcon = nullptr; ///< not owned; shown while it is false

public:
    bool m_bDirection = false; ///< turned round by each press while it is selected

protected:
    /// @{
    /** Place of the icon in the widget, in pixels. */
    int m_nIconX = 0;
    int m_nIconY = 0;
    int m_nIconWidth = 1;
    int m_nIconHeight = 1;
    /// @}

private:
    void readIcon(TAMFx::Common::Xml::Node* pIcon);
};

} // namespace PANFx::Components
