#include "components/text/ZELLineEdit.h"

#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "components/support/PostToParent.h"
#include "events/EventNumbers.h"
#include "resource/Font.h"
#include "resource/ParseHelper.h"

#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace PANFx::Components {

using Resource::Font;
using TAMFx::Common::Xml::Node;

ZELLineEdit::ZELLineEdit(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QLineEdit(pParent)
{
    ZELLineEdit::setLayout(pLayout);
}

ZELLineEdit::~ZELLineEdit() = default;

void ZELLineEdit::showWindow()
{
    setVisible(true);
}

void ZELLineEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELLineEdit::getQWidget()
{
    return this;
}

void ZELLineEdit::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    m_pFont = fontNamedBy(pLayout, "style");
    m_pDimFont = fontNamedBy(pLayout, "dimstyle");
    m_nAlign = ParseHelper::getAlign(pLayout->getAttributeByName("align"),
                                     Qt::AlignLeft | Qt::AlignVCenter);
    readFieldFrame(*this, pLayout);
    m_rcText = readPadding(pLayout, *this);
}

void ZELLineEdit::setFont(Font* pFont)
{
    m_pFont = pFont;
}

void ZELLineEdit::setAlign(int nAlign)
{
    m_nAlign = nAlign;
}

void ZELLineEdit::setEchoMode(int nEchoMode)
{
    m_nEchoMode = nEchoMode;
}

void ZELLineEdit::setPadding(int x, int y, int width, int height)
{
    m_rcText = LayoutPosition{x, y, width, height}.rect();
}

void ZELLineEdit::setElidedText(int nMode)
{
    const Elision elision = elisionFor(nMode);
    m_nElideMode = elision.mode;
    m_nElideType = elision.type;
}

void ZELLineEdit::setShowMode(bool bShowMode)
{
    m_bShowMode = bShowMode;
}

void ZELLineEdit::setBarcodeMode(bool bBarcodeMode)
{
    m_bBarcodeMode = bBarcodeMode;
    if (bBarcodeMode)
        m_bShowMode = false;
    m_logger.WriteDebug("[%s] m_bBarcodeMode:%s", "setBarcodeMode", bBarcodeMode ? "ON" : "OFF");
}

bool ZELLineEdit::setCurImage(QPixmap* pStart, QPixmap* pMid, QPixmap* pEnd)
{
    m_pCurStart = pStart;
    m_pCurMid = pMid;
    m_pCurEnd = pEnd;
    update();
    return FramePieces{pStart, pMid, pEnd}.complete();
}

bool ZELLineEdit::setUpImage(std::string strStart, std::string strMid, std::string strEnd,
                             bool bCurrent)
{
    const bool found = findFrame({std::move(strStart), std::move(strMid), std::move(strEnd)},
                                 m_pUpStart, m_pUpMid, m_pUpEnd);
    if (bCurrent)
        setCurImage(m_pUpStart, m_pUpMid, m_pUpEnd);
    return found;
}

bool ZELLineEdit::setDownImage(std::string strStart, std::string strMid, std::string strEnd)
{
    return findFrame({std::move(strStart), std::move(strMid), std::move(strEnd)}, m_pDownStart,
                     m_pDownMid, m_pDownEnd);
}

bool ZELLineEdit::setDimImage(std::string strStart, std::string strMid, std::string strEnd)
{
    return findFrame({std::move(strStart), std::move(strMid), std::move(strEnd)}, m_pDimStart,
                     m_pDimMid, m_pDimEnd);
}

// A field without a frame for the press keeps the one it has.
bool ZELLineEdit::hasDownImage() const
{
    return m_pDownStart || m_pDownMid || m_pDownEnd;
}

void ZELLineEdit::setDimMode(bool bDimMode)
{
    m_bDimMode = bDimMode;
    if (bDimMode)
        setCurImage(m_pDimStart, m_pDimMid, m_pDimEnd);
    else if (hasFocus() && hasDownImage())
        setCurImage(m_pDownStart, m_pDownMid, m_pDownEnd);
    else
        setCurImage(m_pUpStart, m_pUpMid, m_pUpEnd);
    setDisabled(bDimMode);
    update();
}

// None of the handlers calls QLineEdit's: neither caret nor selection follows the finger, and so
// no key wipes what a drag or a second tap would have selected.

void ZELLineEdit::focusOutEvent(QFocusEvent*)
{
    if (m_bDimMode)
        return;
    setCurImage(m_pUpStart, m_pUpMid, m_pUpEnd);
    postToParent(this, EVENT_FOCUS_OUT, m_strID, m_logger, "focusOutEvent");
}

void ZELLineEdit::mousePressEvent(QMouseEvent*)
{
    if (m_bDimMode)
        return;
    if (hasDownImage())
        setCurImage(m_pDownStart, m_pDownMid, m_pDownEnd);
    setFocus(Qt::OtherFocusReason);
    postToParent(this, EVENT_MOUSE_DOWN, m_strID, m_logger, "mousePressEvent");
}

void ZELLineEdit::mouseReleaseEvent(QMouseEvent*)
{
    if (!m_bDimMode)
        postToParent(this, EVENT_MOUSE_UP, m_strID, m_logger, "mouseReleaseEvent");
}

void ZELLineEdit::mouseMoveEvent(QMouseEvent*) {}

void ZELLineEdit::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    mousePressEvent(pEvent);
}

bool ZELLineEdit::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress && m_bClearOnKey && m_bBarcodeMode &&
        static_cast<QKeyEvent*>(pEvent)->key() != Qt::Key_ScrollLock) {
        clear();
        m_bClearOnKey = false;
    }
    return QLineEdit::event(pEvent);
}

// Barcode mode keeps showing the last code while the next one is coming in.
QString ZELLineEdit::shownText()
{
    if (!m_bBarcodeMode)
        return text();
    if (m_bShowMode) {
        m_strBarcode = text();
        m_bShowMode = false;
        m_bClearOnKey = true;
    }
    return m_strBarcode;
}

void ZELLineEdit::paintEvent(QPaintEvent*)
{
    const FramePieces pieces{m_pCurStart, m_pCurMid, m_pCurEnd};
    if (!pieces.complete())
        return;
    const FieldText field{shownText(),
                          QString::fromUtf8(placeholderText().toLatin1().constData()),
                          m_nEchoMode,
                          {m_nElideMode, m_nElideType}};
    QPainter painter(this);
    drawFrame(painter, pieces, *this);
    if (!m_pFont) {
        m_noFont.error(m_logger, "paintEvent", m_strID, "has no font");
        return;
    }
    painter.setFont(*m_pFont->m_pFont);
    drawFieldText(painter, field, *m_pFont, m_rcText, m_nAlign);
}

} // namespace PANFx::Components
