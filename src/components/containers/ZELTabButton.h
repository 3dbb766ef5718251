#pragma once

#include "components/buttons/ZELRadioButton.h"

#include <string>

namespace PANFx::Components {

/**
 * The button of a tab: a radio button that reports at the press, so that the page changes under
 * the finger.
 *
 * Layout: that of a radio button; it needs a "down" picture, which shows while its page does.
 *
 * Posts to its parent: EVENT_TAB_DOWN (1561) at the press, EVENT_MOUSE_UP (1552) at the release.
 */
class QTPANFX_EXPORT ZELTabButton : public ZELRadioButton
{
public:
    /** As that of ZELRadioButton. */
    ZELTabButton(QWidget* pParent, std::string strID, std::string strType,
                 TAMFx::Common::Xml::Node* pLayout);
    ~ZELTabButton() override;

    QWidget* getQWidget() override;

    /** As ZELRadioButton::setCheck(). */
    void setCheck(int nCheck);

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELTabButton"};
};

} // namespace PANFx::Components
