#pragma once

#include "components/buttons/ZELImageButton.h"

#include <QEvent>

#include <string>

namespace PANFx::Components {

/**
 * A push button that a release checks and never unchecks, also one that gets through in dim mode.
 * While checked it shows the down picture and the press style; the title is never elided.
 *
 * Layout and events are those of ZELImageButton. A checked button needs a "down" picture; without
 * one it shows no picture and writes one error line.
 */
class QTPANFX_EXPORT ZELRadioButton : public ZELImageButton
{
public:
    /** As that of ZELImageButton; the button is unchecked. */
    ZELRadioButton(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout);
    ~ZELRadioButton() override;

    QWidget* getQWidget() override;

    /**
     * Checks with 1 and unchecks with 0, and repaints before the call returns. A value equal to
     * the present state does nothing; any other number checks and always repaints.
     */
    void setCheck(int nCheck);

    /** Read and written by owners, which ask for the repaint themselves. */
    bool m_bChecked = false;

protected:
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

    /**
     * What a button does that reports at the press: shows no pressed picture, always sounds, and
     * posts to its parent.
     * @param logger the concrete class's own
     */
    void reportPress(QEvent::Type type, Common::SysLogger& logger);

    Common::SysLogger m_logger{"QTPANFx", "ZELRadioButton"};
};

} // namespace PANFx::Components
