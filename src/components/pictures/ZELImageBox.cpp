#include "components/pictures/ZELImageBox.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "components/support/PostToParent.h"
#include "events/EventNumbers.h"

#include <QPainter>
#include <QPixmap>

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

ZELImageBox::ZELImageBox(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    ZELImageBox::setLayout(pLayout);
}

ZELImageBox::~ZELImageBox() = default;

void ZELImageBox::showWindow()
{
    setVisible(true);
}

void ZELImageBox::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageBox::getQWidget()
{
    return this;
}

void ZELImageBox::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    Attribute* file = pLayout->getAttributeByName("file");
    if (!file) {
        m_logger.WriteError("[%s]  no File", "setLayout");
        return;
    }
    // on screen the box is seen in the picture's size first; hidden, it takes its place at once
    if (takeImage(file->getValue()) && isVisible())
        resizeToPicture();
    setGeometry(readPosition(pLayout, {0, 0, 0, 0}).rect());
}

void ZELImageBox::setRotate(int nDegrees)
{
    m_nRotate = nDegrees;
    update();
}

bool ZELImageBox::setImage(std::string strName)
{
    if (!takeImage(strName))
        return false;
    resizeToPicture();
    return true;
}

bool ZELImageBox::takeImage(const std::string& strName)
{
    m_pBGPixmap = findPicture(strName);
    if (!m_pBGPixmap)
        m_logger.WriteError("[%s] m_pBGPixmap == NULL", "setImage");
    return m_pBGPixmap != nullptr;
}

void ZELImageBox::setImage(QPixmap* pPixmap)
{
    m_pBGPixmap = pPixmap;
    if (hasPicture(m_pBGPixmap))
        resizeToPicture();
    else
        m_logger.WriteDebug("[%s] Background Image is NULL", "setImage");
}

void ZELImageBox::resizeToPicture()
{
    setGeometry(x(), y(), m_pBGPixmap->width(), m_pBGPixmap->height());
}

void ZELImageBox::paintEvent(QPaintEvent*)
{
    if (!hasPicture(m_pBGPixmap))
        return;
    QPainter painter(this);
    if (m_nRotate != 0) {
        const int centreX = width() / 2;
        const int centreY = height() / 2;
        painter.translate(centreX, centreY);
        painter.rotate(m_nRotate);
        painter.translate(-centreX, -centreY);
    }
    drawPicture(painter, m_pBGPixmap, rect());
}

void ZELImageBox::mousePressEvent(QMouseEvent*)
{
    // taken, so that the press does not reach the parent and the release comes here
}

void ZELImageBox::mouseReleaseEvent(QMouseEvent*)
{
    postToParent(this, EVENT_MOUSE_UP, m_strID, m_logger, "mouseReleaseEvent");
}

} // namespace PANFx::Components
