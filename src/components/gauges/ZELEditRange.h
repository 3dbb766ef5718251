#pragma once

#include "common/tamfx/ArrayList.h"
#include "components/gauges/ZELRange.h"

#include <string>

namespace PANFx::Components {

class ZELImageEdit;

/**
 * A range that steps through a list of texts and shows the present one in a frame. Steps count
 * from 0 to the number of texts less one.
 *
 * Layout: attribute "style"; children "position", "param" (the values of its attributes are the
 * texts, or "@key" of the string table), "upbtn" and "downbtn" (place and the pictures "up",
 * "down", "dim"), "editor" (place and the pictures "start", "mid", "end"). All of the children but
 * "position" must be there. "longpress", "title" and the like on the element itself go to both
 * buttons.
 */
class QTPANFX_EXPORT ZELEditRange : public ZELRange
{
public:
    /**
     * Builds the components of the element, reads it and goes to step 0. A null element is told
     * twice and leaves a range with neither buttons nor texts.
     */
    ZELEditRange(QWidget* pParent, std::string strID, std::string strType,
                 TAMFx::Common::Xml::Node* pLayout);
    ~ZELEditRange() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;
    void setStep(int nStep) override;

    /** Dims the whole control. At the last text the button up stays active. */
    void setEnable(bool bEnable) override;

    /** A text as the layout has it; "" when there is none, with an error line for a bad index. */
    std::string getParam(int nIndex);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELEditRange"};
    ZELImageEdit* m_pEditor = nullptr;             ///< owned
    TAMFx::Data::Collection::ArrayList m_arrParam; ///< texts or their keys

private:
    void readParam(TAMFx::Common::Xml::Node* pParam);
    bool makeButtons(TAMFx::Common::Xml::Node* pLayout);
    void makeEditor(TAMFx::Common::Xml::Node* pLayout);
};

} // namespace PANFx::Components
