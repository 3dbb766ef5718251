#include "components/gauges/ZELProgressRange.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/buttons/ZELImageButton.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "resource/ParseHelper.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int defaultMax = 5;
constexpr int mostThumbs = 4096; // more than any screen shows; a slip must not cost seconds
constexpr char column = 'V';

// a coordinate far outside the screen is as good as any other there
int held(long long pixels)
{
    constexpr long long far = 1LL << 24;
    return static_cast<int>(std::clamp(pixels, -far, far));
}

} // namespace

ZELProgressRange::ZELProgressRange(QWidget* pParent, std::string strID, std::string strType,
                                   Node* pLayout)
    : ZELRange(pParent, std::move(strID), std::move(strType), pLayout)
{
    createSubComponent(pLayout);
    showSubComponent();
    m_nMax = defaultMax;
    ZELProgressRange::setLayout(pLayout);
    ZELProgressRange::setStep(m_nStep);
}

ZELProgressRange::~ZELProgressRange() = default;

void ZELProgressRange::showWindow()
{
    setVisible(true);
}

void ZELProgressRange::hideWindow()
{
    setVisible(false);
}

QWidget* ZELProgressRange::getQWidget()
{
    return this;
}

void ZELProgressRange::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    readValues(pLayout);
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
    if (readPictures(pLayout))
        makeButtons(pLayout);
}

void ZELProgressRange::readValues(Node* pLayout)
{
    if (Attribute* type = pLayout->getAttributeByName("type"))
        m_chType = type->getValue()[0];
    if (Attribute* offset = pLayout->getAttributeByName("offset"))
        m_nOffset = Common::toInt(offset->getValue());
    if (Attribute* max = pLayout->getAttributeByName("max"))
        m_nMax = Common::toInt(max->getValue());
}

bool ZELProgressRange::readPictures(Node* pLayout)
{
    Node* background = pLayout->getNodeByName("bgimg");
    if (!background) {
        m_logger.WriteDebug("[%s] Background Node is NULL", "setLayout");
        return false;
    }
    if (Attribute* file = background->getAttributeByName("file")) {
        m_pBGPixmap = findPicture(file->getValue());
        if (!m_pBGPixmap)
            m_logger.WriteDebug("[%s]  no BackgroundImage File", "setLayout");
    }
    ParseHelper::getPosition(background, m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight);

    Node* thumbNode = pLayout->getNodeByName("thumbimg");
    if (!thumbNode) {
        m_logger.WriteDebug("[%s] Thumb Node is NULL", "setLayout");
        return false;
    }
    if (Attribute* file = thumbNode->getAttributeByName("file")) {
        m_pThumbPixmap = findPicture(file->getValue());
        if (!m_pThumbPixmap)
            m_logger.WriteDebug("[%s]  no Thumb Image File", "setLayout");
    } else {
        m_logger.WriteDebug("[%s]  Attribute \"file\" is NULL", "setLayout");
    }
    ParseHelper::getPosition(thumbNode, m_nThumbX, m_nThumbY, m_nThumbWidth, m_nThumbHeight);
    return true;
}

// The buttons get no layout of their own and say so; all is set from here.
void ZELProgressRange::makeButtons(Node* pLayout)
{
    Node* up = pLayout->getNodeByName("upbtn");
    if (!up) {
        m_logger.WriteDebug("[%s] UpBtn Node is NULL", "setLayout");
        return;
    }
    m_pUpBtn = new ZELImageButton(this, "upbtn", "ZELImageButton", nullptr);
    dressButton(*m_pUpBtn, up);
    Node* down = pLayout->getNodeByName("downbtn");
    if (!down) {
        m_logger.WriteDebug("[%s] DownBtn Node is NULL", "setLayout");
        return;
    }
    m_pDownBtn = new ZELImageButton(this, "downbtn", "ZELImageButton", nullptr);
    dressButton(*m_pDownBtn, down);
}

void ZELProgressRange::setStep(int nStep)
{
    moveWithin(nStep, m_nMax);
    repaint();
}

void ZELProgressRange::setEnable(bool bEnable)
{
    enableButtons(bEnable);
}

QRect ZELProgressRange::thumb(int nIndex) const
{
    const long long x = m_nThumbX;
    const long long y = m_nThumbY;
    const long long height = m_nThumbHeight;
    long long left = x;
    long long top = y;
    if (m_chType == column)
        top = y - height - nIndex * (height + m_nOffset);
    else
        left = x + nIndex * (static_cast<long long>(m_nThumbWidth) + m_nOffset);
    return {held(left), held(top), held(m_nThumbWidth), held(m_nThumbHeight)};
}

void ZELProgressRange::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPicture(painter, m_pBGPixmap,
                LayoutPosition{m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight}.rect());
    const int thumbs = std::min(m_nStep, mostThumbs);
    for (int i = 0; i < thumbs; ++i)
        drawPicture(painter, m_pThumbPixmap, thumb(i));
}

bool ZELProgressRange::event(QEvent* pEvent)
{
    return handleClick(pEvent, m_logger) || QWidget::event(pEvent);
}

} // namespace PANFx::Components
