#include "components/lists/ZELHeaderButton.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "events/EventNumbers.h"
#include "resource/ParseHelper.h"

#include <QPainter>

#include <utility>

namespace PANFx::Components {

using Resource::Font;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

ZELHeaderButton::ZELHeaderButton(QWidget* pParent, std::string strID, std::string strType,
                                 Node* pLayout)
    : ZELRadioButton(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELHeaderButton::setLayout(pLayout);
}

ZELHeaderButton::~ZELHeaderButton() = default;

QWidget* ZELHeaderButton::getQWidget()
{
    return this;
}

// What an image button has was read by its own constructor.
void ZELHeaderButton::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    if (Node* icon = pLayout->getNodeByName("icon"))
        readIcon(icon);
}

void ZELHeaderButton::readIcon(Node* pIcon)
{
    const auto picture = [pIcon](const char* name) {
        Attribute* attribute = pIcon->getAttributeByName(name);
        return attribute ? findPicture(attribute->getValue()) : nullptr;
    };
    m_pUpIcon = picture("up");
    if (!m_pUpIcon)
        m_logger.WriteDebug("[%s] Up Icon is NULL", "setLayout");
    m_pDownIcon = picture("down");
    if (!m_pDownIcon)
        m_logger.WriteDebug("[%s] Down Icon is NULL", "setLayout");
    ParseHelper::getPosition(pIcon, m_nIconX, m_nIconY, m_nIconWidth, m_nIconHeight);
}

void ZELHeaderButton::setCheck(int nCheck, bool bDirection)
{
    m_bDirection = bDirection;
    ZELRadioButton::setCheck(nCheck);
}

// Dimmed it still changes its state, as it only gets here when a caller sends it.
void ZELHeaderButton::mousePressEvent(QMouseEvent*)
{
    if (m_bChecked)
        m_bDirection = !m_bDirection;
    else
        m_bChecked = true;
    if (m_bDimMode)
        return;
    reportPress(m_bDirection ? EVENT_HEADER_DOWN : EVENT_HEADER_UP, m_logger);
}

void ZELHeaderButton::mouseReleaseEvent(QMouseEvent*) {}

void ZELHeaderButton::paintEvent(QPaintEvent*)
{
    const QPixmap* picture = m_bChecked ? checkedImage(m_logger) : m_pCurImage;
    if (!m_bChecked && !hasPicture(picture))
        return;
    QPainter painter(this);
    drawPicture(painter, picture, rect());
    if (m_bChecked)
        drawPicture(painter, m_bDirection ? m_pUpIcon : m_pDownIcon,
                    LayoutPosition{m_nIconX, m_nIconY, m_nIconWidth, m_nIconHeight}.rect());
    if (const Font* font = m_bChecked && m_pPressFont ? m_pPressFont : m_pFont)
        drawStyledText(painter, QString::fromUtf8(m_strTitle.c_str()), *font,
                       rectOrWhole(m_textRect, *this), Qt::AlignCenter);
}

} // namespace PANFx::Components
