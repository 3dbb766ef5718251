#include "components/pictures/ZELChartImageBox.h"

#include <QColor>
#include <QLine>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <utility>

namespace PANFx::Components {

namespace {

constexpr int lineWidth = 2;

QPen linePen()
{
    return {QBrush(QColor(79, 122, 200, 255), Qt::SolidPattern), lineWidth};
}

} // namespace

ZELChartImageBox::ZELChartImageBox(QWidget* pParent, std::string strID, std::string strType,
                                   TAMFx::Common::Xml::Node* pLayout)
    : ZELImageBox(pParent, std::move(strID), std::move(strType), pLayout)
{
    // a second time: nothing changes, but a bad element is reported twice
    ZELImageBox::setLayout(pLayout);
}

ZELChartImageBox::~ZELChartImageBox() = default;

QWidget* ZELChartImageBox::getQWidget()
{
    return this;
}

void ZELChartImageBox::setTotalPoint(int nTotalPoint)
{
    m_nTotalPoint = nTotalPoint;
}

int ZELChartImageBox::getToalPoint()
{
    return m_nTotalPoint;
}

void ZELChartImageBox::paintEvent(QPaintEvent* pEvent)
{
    ZELImageBox::paintEvent(pEvent);
    if (m_nTotalPoint > pointLimit && !m_bLimitLogged) {
        m_logger.WriteError("[%s] %s has %d points, only %d are drawn", "paintEvent",
                            m_strID.c_str(), m_nTotalPoint, pointLimit);
        m_bLimitLogged = true;
    }
    QPainter painter(this);
    painter.setPen(linePen());
    for (int i = 1; i < std::min(m_nTotalPoint, pointLimit); ++i) {
        const QLine line(m_nPointX[i - 1], m_nPointY[i - 1], m_nPointX[i], m_nPointY[i]);
        painter.drawLines(&line, 1);
    }
}

} // namespace PANFx::Components
