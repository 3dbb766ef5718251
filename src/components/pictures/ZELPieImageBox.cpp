#include "components/pictures/ZELPieImageBox.h"

#include "components/support/Picture.h"

#include <QBitmap>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <climits>
#include <utility>

namespace PANFx::Components {

namespace {

constexpr int sixteenths = 16; // the unit of QPainter::drawPie
constexpr int top = 90 * sixteenths;
constexpr int fullCircle = 360 * sixteenths;
constexpr int largestMask = 4096; // a layout's slip of some zeros must not cost seconds a paint

} // namespace

ZELPieImageBox::ZELPieImageBox(QWidget* pParent, std::string strID, std::string strType,
                               TAMFx::Common::Xml::Node* pLayout)
    : ZELImageBox(pParent, std::move(strID), std::move(strType), pLayout)
{
}

ZELPieImageBox::~ZELPieImageBox() = default;

void ZELPieImageBox::SetAngle(int nDegrees)
{
    m_nAngle = std::clamp(nDegrees, INT_MIN / sixteenths, INT_MAX / sixteenths) * sixteenths;
    update();
}

void ZELPieImageBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!hasPicture(m_pBGPixmap)) {
        m_logger.WriteError("m_pBGPixmap is NULL");
        return;
    }
    const QSize covering = m_pBGPixmap->size().expandedTo(QSize(largestMask, largestMask));
    QBitmap mask(size().boundedTo(covering));
    mask.fill(Qt::color1);
    // A painter on a bitmap starts with a pen of color1 and a brush of color0: the outline stays
    // opaque and the sector becomes transparent. It has to stay open while the mask is set.
    QPainter maskPainter(&mask);
    maskPainter.drawPie(QRect(0, 0, width(), height()), top, m_nAngle);
    maskPainter.setBrush(QBrush(Qt::color1, Qt::SolidPattern));
    setMask(mask);
    if (m_nAngle < fullCircle)
        painter.drawPixmap(0, 0, *m_pBGPixmap);
    painter.rotate(-90);
}

} // namespace PANFx::Components
