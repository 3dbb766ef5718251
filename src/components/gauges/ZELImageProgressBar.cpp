#include "components/gauges/ZELImageProgressBar.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "resource/Font.h"

#include <QPainter>
#include <QPixmap>

#include <array>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int unstatedInset = 1;
constexpr int wholeBar = 100; // percent

using FileNames = std::array<std::string, 4>;

bool readNames(Node* image, FileNames& names)
{
    constexpr std::array<const char*, 4> attributes = {"bg", "start", "mid", "end"};
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        Attribute* attribute = image->getAttributeByName(attributes[i]);
        if (!attribute)
            return false;
        names[i] = attribute->getValue();
    }
    return true;
}

} // namespace

ZELImageProgressBar::ZELImageProgressBar(QWidget* pParent, std::string strID, std::string strType,
                                         Node* pLayout)
    : ZELProgressBar(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELImageProgressBar::setLayout(pLayout);
}

ZELImageProgressBar::~ZELImageProgressBar() = default;

void ZELImageProgressBar::showWindow()
{
    setVisible(true);
}

void ZELImageProgressBar::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageProgressBar::getQWidget()
{
    return this;
}

void ZELImageProgressBar::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    m_pFont = fontNamedBy(pLayout, "style");
    FileNames names;
    Node* image = pLayout->getNodeByName("image");
    if (image && !readNames(image, names)) {
        m_logger.WriteDebug("[%s] Image - bg, start, mid, end parameter error!!\n", "setLayout");
        return;
    }
    if (Node* offset = pLayout->getNodeByName("offset"))
        readOffset(offset);
    setImage(names[0], names[1], names[2], names[3]);
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
}

// The lines say 0 and the inset is 1: layouts are drawn for the one, logs are compared with the
// other.
void ZELImageProgressBar::readOffset(Node* pOffset)
{
    if (Attribute* x = pOffset->getAttributeByName("x")) {
        m_nOffsetX = heldPixels(Common::toInt(x->getValue()));
    } else {
        m_logger.WriteDebug("[%s] offset[x] is null and set m_nOffsetX = 0", "setLayout");
        m_nOffsetX = unstatedInset;
    }
    if (Attribute* y = pOffset->getAttributeByName("y")) {
        m_nOffsetY = heldPixels(Common::toInt(y->getValue()));
    } else {
        m_logger.WriteDebug("[%s] offset[y] is null and set m_nOffsetY = 0", "setLayout");
        m_nOffsetY = unstatedInset;
    }
}

bool ZELImageProgressBar::setImage(std::string strBackground, std::string strStart,
                                   std::string strMid, std::string strEnd)
{
    m_pBGPixmap = findPicture(strBackground);
    m_pStartPixmap = findPicture(strStart);
    m_pMidPixmap = findPicture(strMid);
    m_pEndPixmap = findPicture(strEnd);
    return m_pBGPixmap && m_pStartPixmap && m_pMidPixmap && m_pEndPixmap;
}

void ZELImageProgressBar::paintEvent(QPaintEvent*)
{
    if (!hasPicture(m_pBGPixmap)) {
        m_logger.WriteDebug("[%s] m_pBGPixmap is NULL!!", "paintEvent");
        return;
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, *m_pBGPixmap);
    if (hasPicture(m_pStartPixmap) && hasPicture(m_pEndPixmap))
        paintFill(painter);
    else
        tellNoFill();
    if (m_pFont)
        drawStyledText(painter, QString::asprintf("%d%%", value()), *m_pFont, rect(),
                       Qt::AlignCenter);
}

void ZELImageProgressBar::tellNoFill()
{
    m_noFill.error(m_logger, "paintEvent", m_strID, "has no pictures for the fill");
}

// A fill that is too short for its caps shows both of them whole.
void ZELImageProgressBar::paintFill(QPainter& painter)
{
    const long long room = width() - 2LL * m_nOffsetX;
    const int fill = static_cast<int>(room * value() / wholeBar);
    const int start = m_pStartPixmap->width();
    const int end = m_pEndPixmap->width();
    if (fill < start + end) {
        if (fill <= 0)
            return;
        painter.drawPixmap(m_nOffsetX, m_nOffsetY, *m_pStartPixmap);
        painter.drawPixmap(m_nOffsetX + start, m_nOffsetY, *m_pEndPixmap);
        return;
    }
    if (hasPicture(m_pMidPixmap))
        drawPicture(
            painter, m_pMidPixmap,
            QRect(m_nOffsetX + start, m_nOffsetY, fill - start - end, m_pMidPixmap->height()));
    else
        tellNoFill();
    painter.drawPixmap(m_nOffsetX, m_nOffsetY, *m_pStartPixmap);
    painter.drawPixmap(m_nOffsetX + fill - end, m_nOffsetY, *m_pEndPixmap);
}

} // namespace PANFx::Components
