#pragma once

#include "components/buttons/ZELImageButton.h"

#include <string>

namespace PANFx::Components {

/**
 * A push button with a checked state that flips at each release, also at one that gets through in
 * dim mode. While checked it shows the down picture and the press style; the title is never elided.
 *
 * Layout and events are those of ZELImageButton. A checked button needs a "down" picture; without
 * one it shows no picture and writes one error line.
 */
class QTPANFX_EXPORT ZELCheckButton : public ZELImageButton
{
public:
    /** As that of ZELImageButton; the button is unchecked. */
    ZELCheckButton(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout);
    ~ZELCheckButton() override;

    QWidget* getQWidget() override;

    /** Read and written by owners, which ask for the repaint themselves. */
    bool m_bChecked = false;

protected:
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELCheckButton"};
};

} // namespace PANFx::Components
