#pragma once

#include "components/pictures/ZELImageBox.h"

namespace PANFx::Components {

/**
 * A picture in its natural size behind a pie-shaped mask, as for the ring of a gauge. The angle
 * says how much is hidden: a sector from the top, counter-clockwise. Rotation plays no part.
 */
class QTPANFX_EXPORT ZELPieImageBox : public ZELImageBox
{
public:
    /** As that of ZELImageBox; nothing is hidden. */
    ZELPieImageBox(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout);
    ~ZELPieImageBox() override;

    /**
     * Hides a sector of that many degrees and repaints: 0 shows the whole picture, 180 the right
     * half, 360 and above nothing. A negative angle hides clockwise.
     */
    void SetAngle(int nDegrees);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELPieImageBox"};
    int m_nAngle = 0; ///< in sixteenths of a degree
};

} // namespace PANFx::Components
