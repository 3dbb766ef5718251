#include "components/editors/ZELImageEdit.h"

#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "components/support/PostToParent.h"
#include "events/EventNumbers.h"
#include "resource/Font.h"
#include "resource/ParseHelper.h"

#include <QFont>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace PANFx::Components {

using Resource::Font;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int touchZones = 10; // a tenth of the field at each end

} // namespace

ZELImageEdit::ZELImageEdit(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    ZELImageEdit::setLayout(pLayout);
}

ZELImageEdit::~ZELImageEdit() = default;

void ZELImageEdit::showWindow()
{
    setVisible(true);
}

void ZELImageEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageEdit::getQWidget()
{
    return this;
}

void ZELImageEdit::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    m_pFont = fontNamedBy(pLayout, "style");
    m_pDimFont = fontNamedBy(pLayout, "dimstyle");
    m_nAlign = ParseHelper::getAlign(pLayout->getAttributeByName("align"),
                                     Qt::AlignLeft | Qt::AlignVCenter);
    readFrame(pLayout);
}

void ZELImageEdit::readFrame(Node* pLayout)
{
    readFieldFrame(*this, pLayout);
    m_paddingRect = readPadding(pLayout, *this);
}

void ZELImageEdit::setEchoMode(int nEchoMode)
{
    m_nEchoMode = nEchoMode;
}

void ZELImageEdit::setMaxLength(unsigned int nMaxLength)
{
    m_nMaxLength = nMaxLength;
}

void ZELImageEdit::setFont(Font* pFont)
{
    m_pFont = pFont;
}

void ZELImageEdit::setAlign(int nAlign)
{
    m_nAlign = nAlign;
}

void ZELImageEdit::setPadding(int x, int y, int width, int height)
{
    m_paddingRect = LayoutPosition{x, y, width, height}.rect();
}

void ZELImageEdit::setPlaceholderText(std::string strText)
{
    m_strPlaceholder = std::move(strText);
}

void ZELImageEdit::setPlaceholderText(const char* pszText)
{
    m_strPlaceholder = pszText ? pszText : "";
}

std::string ZELImageEdit::placeholderText()
{
    return m_strPlaceholder;
}

void ZELImageEdit::setElidedText(int nMode)
{
    const Elision elision = elisionFor(nMode);
    m_nElideMode = elision.mode;
    m_nElideType = elision.type;
}

bool ZELImageEdit::setUpImage(std::string strStart, std::string strMid, std::string strEnd,
                              bool bShow)
{
    const bool found = findFrame({std::move(strStart), std::move(strMid), std::move(strEnd)},
                                 m_pUpStart, m_pUpMid, m_pUpEnd);
    if (bShow)
        setCurImage(m_pUpStart, m_pUpMid, m_pUpEnd);
    return found;
}

bool ZELImageEdit::setDownImage(std::string strStart, std::string strMid, std::string strEnd)
{
    return findFrame({std::move(strStart), std::move(strMid), std::move(strEnd)}, m_pDownStart,
                     m_pDownMid, m_pDownEnd);
}

bool ZELImageEdit::setDimImage(std::string strStart, std::string strMid, std::string strEnd)
{
    return findFrame({std::move(strStart), std::move(strMid), std::move(strEnd)}, m_pDimStart,
                     m_pDimMid, m_pDimEnd);
}

bool ZELImageEdit::setCurImage(QPixmap* pStart, QPixmap* pMid, QPixmap* pEnd)
{
    m_pCurStart = pStart;
    m_pCurMid = pMid;
    m_pCurEnd = pEnd;
    update();
    return hasFrame();
}

void ZELImageEdit::setDimMode(bool bDimMode)
{
    m_bDimMode = bDimMode;
    if (bDimMode)
        setCurImage(m_pDimStart, m_pDimMid, m_pDimEnd);
    else if (hasFocus())
        setCurImage(m_pDownStart, m_pDownMid, m_pDownEnd);
    else
        setCurImage(m_pUpStart, m_pUpMid, m_pUpEnd);
    setDisabled(bDimMode);
    update();
}

void ZELImageEdit::clear()
{
    m_strText.clear();
    update();
}

std::string ZELImageEdit::text()
{
    return m_strText;
}

void ZELImageEdit::setText(const char* pszText)
{
    m_strText = pszText ? pszText : "";
    textTaken();
}

void ZELImageEdit::setText(std::string strText)
{
    m_strText = std::move(strText);
    textTaken();
}

void ZELImageEdit::addText(const char* pszText)
{
    if (!pszText)
        return;
    m_strText += pszText;
    textTaken();
}

void ZELImageEdit::addText(std::string strText)
{
    m_strText += strText;
    textTaken();
}

void ZELImageEdit::backspace()
{
    if (m_strText.empty())
        return;
    m_strText.pop_back();
    changed();
}

// Only what is set or added is cut: a lower limit leaves the text that is there.
void ZELImageEdit::textTaken()
{
    if (m_strText.size() > m_nMaxLength)
        m_strText.resize(m_nMaxLength);
    changed();
}

// The end of what is being typed stays in sight.
void ZELImageEdit::changed()
{
    if (m_nElideType == Elision::touchZones)
        m_nElideMode = Qt::ElideLeft;
    update();
}

void ZELImageEdit::focusInEvent(QFocusEvent*)
{
    if (m_bDimMode)
        return;
    setCurImage(m_pDownStart, m_pDownMid, m_pDownEnd);
    postToParent(this, EVENT_FOCUS_IN, m_strID, m_logger, "focusInEvent");
}

void ZELImageEdit::focusOutEvent(QFocusEvent*)
{
    if (m_bDimMode)
        return;
    setCurImage(m_pUpStart, m_pUpMid, m_pUpEnd);
    postToParent(this, EVENT_FOCUS_OUT, m_strID, m_logger, "focusOutEvent");
}

// A first press takes the focus, and so reports that before itself.
void ZELImageEdit::mousePressEvent(QMouseEvent* pEvent)
{
    if (m_bDimMode)
        return;
    setCurImage(m_pDownStart, m_pDownMid, m_pDownEnd);
    QWidget::setFocus(Qt::OtherFocusReason);
    postToParent(this, EVENT_MOUSE_DOWN, m_strID, m_logger, "mousePressEvent");
    if (m_nElideType == Elision::touchZones)
        showTouchedEnd(pEvent->pos().x());
}

// The zone at the right ends at the width, not at left + width: with a margin at the left its
// last pixels are dead, and applications are laid out for that.
void ZELImageEdit::showTouchedEnd(int x)
{
    const int left = m_paddingRect.left();
    const int width = m_paddingRect.right() + 1 - left;
    const int zone = width / touchZones;
    if (left <= x && x <= left + zone)
        m_nElideMode = Qt::ElideRight;
    else if (x > left + (touchZones - 1) * zone && x <= width)
        m_nElideMode = Qt::ElideLeft;
    else
        return;
    update();
}

void ZELImageEdit::mouseReleaseEvent(QMouseEvent*)
{
    if (!m_bDimMode)
        postToParent(this, EVENT_MOUSE_UP, m_strID, m_logger, "mouseReleaseEvent");
}

bool ZELImageEdit::hasFrame() const
{
    return FramePieces{m_pCurStart, m_pCurMid, m_pCurEnd}.complete();
}

void ZELImageEdit::paintFrame(QPainter& painter) const
{
    drawFrame(painter, {m_pCurStart, m_pCurMid, m_pCurEnd}, *this);
}

bool ZELImageEdit::setTextStyle(QPainter& painter, const Font* pFont, Common::SysLogger& logger)
{
    if (!pFont) {
        tellNoFont(logger, "paintEvent");
        return false;
    }
    painter.setFont(*pFont->m_pFont);
    painter.setPen(*pFont->m_pColor);
    return true;
}

void ZELImageEdit::tellNoFont(Common::SysLogger& logger, const char* pszOperation)
{
    m_noFont.error(logger, pszOperation, m_strID, "has no font");
}

void ZELImageEdit::paintEvent(QPaintEvent*)
{
    if (!hasFrame())
        return;
    QPainter painter(this);
    const std::string value = text();
    // a value may show nothing, as a byte order mark does, and yet be one
    const std::string placeholder = value.empty() ? m_strPlaceholder : std::string();
    const FieldText field{QString::fromUtf8(value.c_str()),
                          QString::fromUtf8(placeholder.c_str()),
                          m_nEchoMode,
                          {m_nElideMode, m_nElideType}};
    paintFrame(painter);
    if (setTextStyle(painter, m_pFont, m_logger))
        drawFieldText(painter, field, *m_pFont, m_paddingRect, m_nAlign);
}

} // namespace PANFx::Components
