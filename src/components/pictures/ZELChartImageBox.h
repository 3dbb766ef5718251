#pragma once

#include "components/pictures/ZELImageBox.h"

namespace PANFx::Components {

/**
 * A polyline of at most 20 points over a picture. The application writes the points into the two
 * arrays, in widget coordinates, and asks for a repaint with update().
 */
class QTPANFX_EXPORT ZELChartImageBox : public ZELImageBox
{
public:
    static constexpr int pointLimit = 20; ///< greatest number of points

    /** As that of ZELImageBox, but a fault of the element is told twice. All points are 0, 0. */
    ZELChartImageBox(QWidget* pParent, std::string strID, std::string strType,
                     TAMFx::Common::Xml::Node* pLayout);
    ~ZELChartImageBox() override;

    QWidget* getQWidget() override;

    /** Number of points in use; below 2 no line is drawn, above 20 the first 20 points are. */
    void setTotalPoint(int nTotalPoint);

    /** Number of points in use. The spelling is part of the interface. */
    int getToalPoint();

    int m_nPointX[pointLimit] = {}; ///< x of each point
    int m_nPointY[pointLimit] = {}; ///< y of each point
    int m_nTotalPoint = pointLimit; ///< points in use, as setTotalPoint() says

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELChartImageBox"};

private:
    bool m_bLimitLogged = false;
};

} // namespace PANFx::Components
