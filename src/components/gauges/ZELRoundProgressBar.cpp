#include "components/gauges/ZELRoundProgressBar.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/DeleteLiving.h"
#include "components/pictures/ZELPieImageBox.h"
#include "components/support/LayoutPosition.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

// the part that is still hidden, in degrees; in this order 30 percent leave 251, not 252
int hiddenAngle(int percent)
{
    const double angle = ((100.0 - percent) / 100.0) * 360.0;
    return static_cast<int>(std::clamp<double>(angle, INT_MIN, INT_MAX));
}

} // namespace

ZELRoundProgressBar::ZELRoundProgressBar(QWidget* pParent, std::string strID, std::string strType,
                                         Node* pLayout)
    : ZELProgressBar(pParent, std::move(strID), std::move(strType), pLayout)
{
    createSubComponent(pLayout);
    showSubComponent();
    ZELRoundProgressBar::setLayout(pLayout);
    ZELRoundProgressBar::SetPercent(0);
}

ZELRoundProgressBar::~ZELRoundProgressBar()
{
    deleteLiving(*this, m_pBGBox);
    deleteLiving(*this, m_pRoundBox);
}

void ZELRoundProgressBar::showWindow()
{
    setVisible(true);
}

void ZELRoundProgressBar::hideWindow()
{
    setVisible(false);
}

QWidget* ZELRoundProgressBar::getQWidget()
{
    return this;
}

void ZELRoundProgressBar::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
    makeBoxes(pLayout);
}

// The boxes get no layout of their own and say so. The ring lies exactly over the background,
// whatever its element says.
void ZELRoundProgressBar::makeBoxes(Node* pLayout)
{
    m_pBGBox = new ZELImageBox(this, "image", "ZELImageBox", nullptr);
    Node* image = pLayout->getNodeByName("image");
    if (!image) {
        m_logger.WriteDebug("[%s] Background Node is NULL", "setLayout");
        return;
    }
    const QRect place = readPosition(image, {0, 0, 1, 1}).rect();
    readFile(*m_pBGBox, image);
    m_pBGBox->setGeometry(place);
    m_pBGBox->update();

    m_pRoundBox = new ZELPieImageBox(this, "round", "ZELPieImageBox", nullptr);
    if (Node* round = pLayout->getNodeByName("round"))
        readFile(*m_pRoundBox, round);
    else
        m_logger.WriteDebug("[%s] Background Node is NULL", "setLayout");
    m_pRoundBox->setGeometry(place);
}

void ZELRoundProgressBar::readFile(ZELImageBox& box, Node* pNode)
{
    if (Attribute* file = pNode->getAttributeByName("file"))
        box.setImage(std::string(file->getValue()));
    else
        m_logger.WriteDebug("[%s]  Attribute \"file\" is NULL", "setLayout");
}

void ZELRoundProgressBar::SetPercent(int nPercent)
{
    setValue(nPercent);
    const int angle = hiddenAngle(nPercent);
    m_logger.WriteDebug("[%s] Percent : %d Angle : %d", "SetPercent", nPercent, angle);
    if (isAlive(m_pRoundBox))
        m_pRoundBox->SetAngle(angle);
}

void ZELRoundProgressBar::setRoundImage(std::string strName)
{
    if (!isAlive(m_pRoundBox) || !m_pRoundBox->setImage(strName))
        m_logger.WriteError("[%s] Failed to load progress round image %s", "setRoundImage",
                            strName.c_str());
}

void ZELRoundProgressBar::setBackgroundImage(std::string strName)
{
    if (!isAlive(m_pBGBox) || !m_pBGBox->setImage(strName))
        m_logger.WriteError("[%s] Failed to load progress background image %s",
                            "setBackgroundImage", strName.c_str());
}

void ZELRoundProgressBar::paintEvent(QPaintEvent*) {}

} // namespace PANFx::Components
