#include "components/lists/ZELTextBoard.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/SubComponents.h"
#include "components/lists/LineBreaker.h"
#include "components/lists/ZELListScroll.h"
#include "components/support/ComponentsNode.h"
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

#include <algorithm>
#include <utility>

namespace PANFx::Components {

using Resource::Font;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int titleFlags = Qt::TextWordWrap | Qt::AlignTop | Qt::AlignHCenter;
constexpr int textFlags = Qt::TextWordWrap | Qt::AlignTop | Qt::AlignLeft;

const QLatin1String firstLineMark("||");

int lineHeight(const Font& font)
{
    return QFontMetrics(*font.m_pFont).height();
}

} // namespace

ZELTextBoard::ZELTextBoard(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(componentsNode(pLayout));
    showSubComponent();
    reset();
    m_pScroll = static_cast<ZELListScroll*>(firstOfType(*this, "ZELListScroll"));
    ZELTextBoard::setLayout(pLayout);
}

ZELTextBoard::~ZELTextBoard() = default;

void ZELTextBoard::showWindow()
{
    setVisible(true);
}

void ZELTextBoard::hideWindow()
{
    setVisible(false);
}

QWidget* ZELTextBoard::getQWidget()
{
    return this;
}

void ZELTextBoard::reset()
{
    m_nPageLines = 1;
    m_nNowPage = 1;
    m_nTotalPage = 1;
    m_nAlign = Qt::AlignTop | Qt::AlignLeft;
    m_nIndent = 0;
    m_strTitle.clear();
    m_strText.clear();
    m_lstLines.clear();
}

void ZELTextBoard::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    m_pFont = fontNamedBy(pLayout, "style");
    m_pTitleFont =
        pLayout->getAttributeByName("titlestyle") ? fontNamedBy(pLayout, "titlestyle") : m_pFont;
    readBoard(pLayout);
    if (m_pFont)
        countLines();
    if (!m_pFont || !m_pTitleFont)
        m_noFont.error(m_logger, "setLayout", m_strID,
                       m_pFont ? "has no title font" : "has no font");
}

void ZELTextBoard::readBoard(Node* pLayout)
{
    const LayoutPosition place = readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1});
    setGeometry(place.rect());
    Node* board = pLayout->getNodeByName("board");
    if (!board)
        return;
    m_rcBoard = readPosition(board, place).rect();
    m_nAlign =
        ParseHelper::getAlign(board->getAttributeByName("align"), Qt::AlignLeft | Qt::AlignVCenter);
    if (Attribute* indent = board->getAttributeByName("indent"))
        m_nIndent = heldPixels(Common::toInt(indent->getValue()));
}

// The rows that a title would take stay free at the top of page 1.
void ZELTextBoard::countLines()
{
    const int boardHeight = m_rcBoard.height();
    m_nLineHeight = std::max(lineHeight(*m_pFont), 1);
    m_nPageLines = boardHeight / m_nLineHeight;
    const int titleHeight = lineHeight(m_pTitleFont ? *m_pTitleFont : *m_pFont);
    m_nTitleLines = m_nPageLines + (titleHeight - boardHeight) / m_nLineHeight;
}

void ZELTextBoard::setText(std::string strText)
{
    m_strText = std::move(strText);
    breakText(QString::fromUtf8(m_strText.c_str()).split(QLatin1Char('\n')));
    m_nTotalPage = countPages();
    m_nNowPage = 1;
    if (isPartOf(this, m_pScroll)) {
        m_pScroll->setListTotalPage(m_nTotalPage);
        m_pScroll->setListNowPage(m_nNowPage);
    } else {
        m_logger.WriteError("[%s] %s has no scroll", "setText", m_strID.c_str());
    }
    m_logger.WriteDebug("total page : %d", m_nTotalPage);
}

// The first line of a paragraph has the whole width of the board, the others the width less the
// indent.
void ZELTextBoard::breakText(const QStringList& lstParagraphs)
{
    m_lstLines.clear();
    if (!m_pFont) {
        m_lstLines = lstParagraphs;
        return;
    }
    const bool chinese = Resource::ZELResourceMgr::getInstance()->m_strLocale == "chn";
    LineBreaker breaker(*m_pFont->m_pFont, chinese);
    for (const QString& paragraph : lstParagraphs) {
        QStringList lines =
            breaker.linesOf(paragraph, m_rcBoard.width(), m_rcBoard.width() - m_nIndent);
        if (m_nIndent >= 1)
            lines.first().prepend(firstLineMark);
        m_lstLines += lines;
    }
}

int ZELTextBoard::countPages()
{
    if (m_nPageLines <= 0) {
        m_logger.WriteError("[%s] %s: the board is lower than a line", "setText", m_strID.c_str());
        return 1;
    }
    const int lines = static_cast<int>(m_lstLines.size()) + m_nTitleLines;
    return std::max((lines + m_nPageLines - 1) / m_nPageLines, 1);
}

std::string ZELTextBoard::getText()
{
    return m_strText;
}

void ZELTextBoard::setAlign(int nAlign)
{
    m_nAlign = nAlign;
}

void ZELTextBoard::setIndent(int nIndent)
{
    m_nIndent = heldPixels(nIndent);
}

void ZELTextBoard::mousePressEvent(QMouseEvent*)
{
    // taken, so that the press does not reach the parent and the release comes here
}

void ZELTextBoard::mouseReleaseEvent(QMouseEvent*)
{
    postToParent(this, EVENT_MOUSE_UP, m_strID, m_logger, "mouseReleaseEvent");
}

bool ZELTextBoard::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type < EVENT_MOUSE_UP)
        return QWidget::event(pEvent);
    if ((type == EVENT_PAGE_UP || type == EVENT_PAGE_DOWN) && isPartOf(this, m_pScroll)) {
        m_nNowPage = m_pScroll->m_nNowPage;
        update();
    }
    return true;
}

void ZELTextBoard::paintEvent(QPaintEvent*)
{
    m_logger.WriteDebug("[%s] start", "paintEvent");
    if (!m_pFont) {
        m_noFont.error(m_logger, "paintEvent", m_strID, "has no font");
        return;
    }
    QPainter painter(this);
    long long first = m_nPageLines * (m_nNowPage - 1LL);
    long long last = first + m_nPageLines;
    int row = 0;
    if (m_nNowPage == 1) {
        if (m_pTitleFont)
            drawStyledText(painter, QString::fromUtf8(m_strTitle.c_str()), *m_pTitleFont, m_rcBoard,
                           titleFlags);
        last -= m_nTitleLines;
        row = m_nTitleLines;
    } else {
        first -= m_nTitleLines;
        last = first + m_nPageLines;
    }
    painter.setFont(*m_pFont->m_pFont);
    painter.setPen(*m_pFont->m_pColor);
    paintLines(painter, first, std::min<long long>(last, m_lstLines.size()), row);
}

void ZELTextBoard::paintLines(QPainter& painter, long long nFirst, long long nLast, int nRow) const
{
    for (long long i = nFirst; i < nLast; ++i, ++nRow) {
        if (i < 0)
            continue;
        QRect rect = m_rcBoard.translated(0, nRow * m_nLineHeight);
        QString line = m_lstLines.at(static_cast<int>(i));
        if (line.startsWith(firstLineMark))
            line.remove(0, firstLineMark.size());
        else
            rect.setLeft(rect.left() + m_nIndent);
        painter.drawText(rect, textFlags, line);
    }
}

} // namespace PANFx::Components
