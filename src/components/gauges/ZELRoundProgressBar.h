#pragma once

#include "components/gauges/ZELProgressBar.h"

#include <string>

namespace PANFx::Components {

class ZELImageBox;
class ZELPieImageBox;

/**
 * A ring that fills clockwise from the top, over a background.
 *
 * Layout: children "position", "image" (the background: "file" and the place of both pictures)
 * and "round" (the ring: "file" alone). Both must be there.
 */
class QTPANFX_EXPORT ZELRoundProgressBar : public ZELProgressBar
{
public:
    /**
     * Builds the components of the element, reads it and goes to 0 percent. A null element is told
     * twice and leaves a bar without pictures.
     */
    ZELRoundProgressBar(QWidget* pParent, std::string strID, std::string strType,
                        TAMFx::Common::Xml::Node* pLayout);
    ~ZELRoundProgressBar() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** A number outside 0 to 100 leaves the value and still moves the ring. */
    void SetPercent(int nPercent) override;

    /** Picture of the ring by file name. */
    void setRoundImage(std::string strName);

    /** Picture of the background by file name. */
    void setBackgroundImage(std::string strName);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    ZELPieImageBox* m_pRoundBox = nullptr; ///< owned
    ZELImageBox* m_pBGBox = nullptr;       ///< owned
    Common::SysLogger m_logger{"QTPANFx", "ZELRoundProgressBar"};

private:
    void makeBoxes(TAMFx::Common::Xml::Node* pLayout);
    void readFile(ZELImageBox& box, TAMFx::Common::Xml::Node* pNode);
};

} // namespace PANFx::Components
