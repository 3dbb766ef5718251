#include "components/buttons/ZELIconCheckButton.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "resource/ParseHelper.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace PANFx::Components {

using Resource::Font;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int left = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int right = Qt::AlignRight | Qt::AlignVCenter;
constexpr int centre = Qt::AlignHCenter | Qt::AlignVCenter;

constexpr int iconMargin = 3; // pixels from the left and the right edge
constexpr int iconShiftY = 1; // what centres the icon to the eye
constexpr int iconShiftX = -2;
constexpr double checkedOpacity = 0.3;

// The integer part, held where an absurd scale would leave the range of int.
int whole(double value)
{
    return static_cast<int>(std::clamp(value, -1e6, 1e6));
}

// A text with its place; without a title nothing of the element is read.
void readText(Node* node, int defaultAlign, std::string& text, QRect& rect, int& align)
{
    Attribute* title = node ? node->getAttributeByName("title") : nullptr;
    if (!title)
        return;
    text = title->getValue();
    rect = readPosition(node, {0, 0, 1, 1}).rect();
    align = ParseHelper::getAlign(node->getAttributeByName("align"), defaultAlign);
}

} // namespace

ZELIconCheckButton::ZELIconCheckButton(QWidget* pParent, std::string strID, std::string strType,
                                       Node* pLayout)
    : ZELCheckButton(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELIconCheckButton::setLayout(pLayout);
}

ZELIconCheckButton::~ZELIconCheckButton() = default;

QWidget* ZELIconCheckButton::getQWidget()
{
    return this;
}

void ZELIconCheckButton::setLayout(Node* pLayout)
{
    // before the test of the element, so that a null one leaves a button with no pictures
    m_pIcon = nullptr;
    m_pDownImage = nullptr;
    m_pUpImage = nullptr;
    m_pCurImage = nullptr;
    m_strDownImage.clear();
    m_strUpImage.clear();
    m_strDimImage.clear();
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    if (Attribute* animation = pLayout->getAttributeByName("animation"))
        m_strAnimation = animation->getValue();
    if (pLayout->getAttributeByName("style"))
        m_pFont = fontNamedBy(pLayout, "style");
    if (pLayout->getAttributeByName("pressstyle"))
        m_pPressFont = fontNamedBy(pLayout, "pressstyle");

    if (Node* image = pLayout->getNodeByName("image")) {
        std::string down;
        std::string up;
        std::string dim;
        ParseHelper::getButtonImage(image, down, up, dim);
        setImages(std::move(down), std::move(up), std::move(dim));
    }

    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
    if (Node* icon = pLayout->getNodeByName("icon"))
        readIcon(icon);
    readText(pLayout->getNodeByName("textL"), left, m_strTitle, m_textRect, m_nAlign);
    readText(pLayout->getNodeByName("textR"), right, m_strSecondText, m_secondTextRect,
             m_nSecondAlign);
}

void ZELIconCheckButton::readIcon(Node* pIcon)
{
    if (Attribute* image = pIcon->getAttributeByName("image"))
        setIconImage(image->getValue());
    if (Attribute* scale = pIcon->getAttributeByName("scale"))
        m_nIconScale = Common::toInt(scale->getValue());
    m_nIconAlign = ParseHelper::getAlign(pIcon->getAttributeByName("align"), left);
}

void ZELIconCheckButton::setIconVisible(bool bVisible)
{
    m_bIconVisible = bVisible;
}

void ZELIconCheckButton::setSecondText(std::string strText)
{
    m_strSecondText = std::move(strText);
}

void ZELIconCheckButton::setIconImage(std::string strName)
{
    m_pIcon = findPicture(strName);
}

void ZELIconCheckButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPixmap* picture = m_bChecked ? checkedImage(m_logger) : m_pCurImage;
    drawPicture(painter, picture, rect());
    // the icon is scaled smoothly over a picture only
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_bChecked || hasPicture(picture));

    const Font* style = m_bChecked && m_pPressFont ? m_pPressFont : m_pFont;
    if (style) {
        drawStyledText(painter, QString::fromUtf8(m_strTitle.c_str()), *style,
                       rectOrWhole(m_textRect, *this), m_nAlign);
        drawStyledText(painter, QString::fromUtf8(m_strSecondText.c_str()), *style,
                       rectOrWhole(m_secondTextRect, *this), m_nSecondAlign);
    }
    if (hasPicture(m_pIcon) && m_bIconVisible)
        paintIcon(painter);
}

// Width and height are crossed, and the right edge is kept with the unscaled width: layouts are
// tuned to both.
void ZELIconCheckButton::paintIcon(QPainter& painter)
{
    const float scale = static_cast<float>(m_nIconScale) / 100;
    const float scaledWidth = static_cast<float>(m_pIcon->width()) * scale;
    const float scaledHeight = static_cast<float>(m_pIcon->height()) * scale;

    const int y = whole((static_cast<float>(height()) - scaledHeight) * 0.5) + iconShiftY;
    int x = iconMargin;
    if (m_nIconAlign == centre)
        x = whole((static_cast<float>(width()) - scaledWidth) * 0.5) + iconShiftX;
    else if (m_nIconAlign == right)
        x = width() - iconMargin - m_pIcon->width();

    painter.setOpacity(m_bChecked ? checkedOpacity : 1.0);
    painter.drawPixmap(QRect(x, y, whole(scaledHeight), whole(scaledWidth)), *m_pIcon, QRect());
}

} // namespace PANFx::Components
