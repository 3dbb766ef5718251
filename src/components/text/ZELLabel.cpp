#include "components/text/ZELLabel.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/PostToParent.h"
#include "events/EventNumbers.h"
#include "resource/Font.h"
#include "resource/ParseHelper.h"
#include "resource/ZELResourceMgr.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <cstring>
#include <utility>

namespace PANFx::Components {

using Resource::Font;
using Resource::ZELResourceMgr;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int firstStyle = 0;
constexpr int secondStyle = 1;

} // namespace

ZELLabel::ZELLabel(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    ZELLabel::setLayout(pLayout);
}

ZELLabel::~ZELLabel() = default;

void ZELLabel::showWindow()
{
    setVisible(true);
}

void ZELLabel::hideWindow()
{
    setVisible(false);
}

QWidget* ZELLabel::getQWidget()
{
    return this;
}

void ZELLabel::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    readTitle(pLayout);
    Attribute* shadow = pLayout->getAttributeByName("shadow");
    if (shadow && std::strcmp(shadow->getValue(), "true") == 0)
        m_bShadow = true;

    Node* position = pLayout->getNodeByName("position");
    // with a position the default is left, without one the text stays centred
    if (position)
        m_nAlign = ParseHelper::getAlign(position->getAttributeByName("align"),
                                         Qt::AlignLeft | Qt::AlignVCenter);
    setGeometry(readPosition(position, {0, 0, 1, 1}).rect());
}

void ZELLabel::readTitle(Node* pLayout)
{
    Attribute* title = pLayout->getAttributeByName("title");
    if (!title)
        return;
    m_strTitle = ZELResourceMgr::getInstance()->getLocaleString(title->getValue());
    m_pFont = fontNamedBy(pLayout, "style");
    m_pFont2 = fontNamedBy(pLayout, "style2");
}

void ZELLabel::setFont(Font* pFont)
{
    m_pFont = pFont;
}

void ZELLabel::setFont2(Font* pFont)
{
    m_pFont2 = pFont;
}

void ZELLabel::setFontStyle(int nFontStyle)
{
    m_nFontStyle = nFontStyle;
}

void ZELLabel::setAlign(int nAlign)
{
    m_nAlign = nAlign;
}

void ZELLabel::setElidedText()
{
    m_bElided = true;
}

void ZELLabel::setTitle(std::string strTitle)
{
    m_strTitle = std::move(strTitle);
}

void ZELLabel::setTitle(const char* pszTitle)
{
    m_strTitle = pszTitle ? pszTitle : "";
}

int ZELLabel::getTextWidth()
{
    if (!m_pFont) {
        m_logger.WriteError("[%s] %s has no font", "getTextWidth", m_strID.c_str());
        return 0;
    }
    return QFontMetrics(*m_pFont->m_pFont)
        .horizontalAdvance(QString::fromLatin1(m_strTitle.c_str()));
}

void ZELLabel::mousePressEvent(QMouseEvent*)
{
    // taken, so that the press does not reach the parent and the release comes here
}

void ZELLabel::mouseReleaseEvent(QMouseEvent*)
{
    postToParent(this, EVENT_MOUSE_UP, m_strID, m_logger, "mouseReleaseEvent");
}

void ZELLabel::paintEvent(QPaintEvent*)
{
    if (m_nFontStyle == firstStyle && m_pFont)
        paintText(*m_pFont, m_bElided);
    else if (m_nFontStyle == secondStyle && m_pFont2)
        paintText(*m_pFont2, false);
}

void ZELLabel::paintText(const Font& font, bool bElided)
{
    QString text = QString::fromUtf8(m_strTitle.c_str());
    if (bElided)
        text = elided(text, font, width());

    QPainter painter(this);
    if (m_bShadow) {
        painter.setFont(*font.m_pFont);
        painter.setPen(Qt::white);
        painter.drawText(rect().translated(1, 1), m_nAlign, text);
    }
    drawStyledText(painter, text, font, rect(), m_nAlign);
}

} // namespace PANFx::Components
