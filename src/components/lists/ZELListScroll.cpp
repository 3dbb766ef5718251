#include "components/lists/ZELListScroll.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "common/tamfx/String.h"
#include "components/buttons/ZELImageButton.h"
#include "components/support/LayoutPosition.h"
#include "components/support/PostToParent.h"
#include "components/support/ReceivedEvent.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/ZELRangeEvent.h"
#include "resource/ParseHelper.h"
#include "resource/ZELResourceMgr.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>

namespace PANFx::Components {

using Resource::ZELResourceMgr;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int threeLines = 1;

QRect placeOf(Node* node)
{
    return readPosition(node, {0, 0, 1, 1}).rect();
}

std::string valueOf(Node* node, const char* name)
{
    Attribute* attribute = node->getAttributeByName(name);
    return attribute ? attribute->getValue() : "";
}

// here a hold repeats unless the layout says otherwise
void readButton(ZELImageButton& button, Node* node)
{
    std::string down;
    std::string up;
    std::string dim;
    ParseHelper::getButtonImage(node, down, up, dim);
    button.setImages(std::move(down), std::move(up), std::move(dim));
    button.setLongPress(valueOf(node, "longpress") != "false");
    button.setGeometry(placeOf(node));
}

} // namespace

ZELListScroll::ZELListScroll(QWidget* pParent, std::string strID, std::string strType,
                             Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(pLayout);
    showSubComponent();
    ZELListScroll::setLayout(pLayout);
    setListNowPage(1);
}

ZELListScroll::~ZELListScroll() = default;

void ZELListScroll::showWindow()
{
    setVisible(true);
}

void ZELListScroll::hideWindow()
{
    setVisible(false);
}

QWidget* ZELListScroll::getQWidget()
{
    return this;
}

void ZELListScroll::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(placeOf(pLayout->getNodeByName("position")));
    makeChildren(pLayout);
}

// Label and buttons get no layout of their own and say so; all is set from here.
void ZELListScroll::makeChildren(Node* pLayout)
{
    m_pPageLabel = new ZELLabel(this, "page", "ZELLabel", nullptr);
    m_logger.WriteDebug("Node page start");
    Node* page = pLayout->getNodeByName("page");
    if (!page) {
        m_logger.WriteDebug("[%s] UpBtn Node is NULL", "setLayout");
        return;
    }
    readPage(page);

    m_pUpBtn = makeButton("upbtn");
    m_logger.WriteDebug("Node Upbutton start");
    Node* up = pLayout->getNodeByName("upbtn");
    if (!up) {
        m_logger.WriteDebug("[%s] UpBtn Node is NULL", "setLayout");
        return;
    }
    readButton(*m_pUpBtn, up);

    m_pDownBtn = makeButton("downbtn");
    m_logger.WriteDebug("Node DownButton start");
    Node* down = pLayout->getNodeByName("downbtn");
    if (!down) {
        m_logger.WriteDebug("[%s] DownBtn Node is NULL", "setLayout");
        return;
    }
    readButton(*m_pDownBtn, down);
}

void ZELListScroll::readPage(Node* pPage)
{
    m_pPageLabel->setGeometry(placeOf(pPage));
    m_pPageLabel->setFont(ZELResourceMgr::getInstance()->getFont(valueOf(pPage, "style")));
    m_nType = valueOf(pPage, "type") == "LF" ? threeLines : 0;
}

ZELImageButton* ZELListScroll::makeButton(const char* pszID)
{
    return new ZELImageButton(this, pszID, "ZELImageButton", nullptr);
}

// A negative page is taken: only 0 and a page beyond the total are refused.
void ZELListScroll::setListNowPage(int nPage)
{
    if (nPage == 0 || nPage > m_nTotalPage)
        return;
    m_nNowPage = nPage;
    const bool first = nPage == 1;
    const bool last = nPage == m_nTotalPage;
    if (m_pUpBtn)
        m_pUpBtn->setDimMode(first);
    if (m_pDownBtn)
        m_pDownBtn->setDimMode(last);
    update();
}

void ZELListScroll::setListTotalPage(int nTotal)
{
    m_nTotalPage = nTotal;
    setListNowPage(m_nNowPage);
}

std::string ZELListScroll::getPageNumbering()
{
    String text;
    text.Format(m_nType == threeLines ? "%d\n/\n%d" : "%d/%d", m_nNowPage, m_nTotalPage);
    m_strPageNumbering = text.c_str();
    return m_strPageNumbering;
}

// The label is a child and is painted after this, so that it shows the new text at once.
void ZELListScroll::paintEvent(QPaintEvent*)
{
    if (m_pPageLabel)
        m_pPageLabel->setTitle(getPageNumbering());
}

void ZELListScroll::onPressUpBtn(ZELEvent*)
{
    turnPage(-1, EVENT_PAGE_UP, "onPressUpBtn");
}

void ZELListScroll::onPressDownBtn(ZELEvent*)
{
    turnPage(1, EVENT_PAGE_DOWN, "onPressDownBtn");
}

void ZELListScroll::turnPage(int nStep, QEvent::Type type, const char* pszOperation)
{
    const long long page = static_cast<long long>(m_nNowPage) + nStep;
    setListNowPage(static_cast<int>(std::clamp<long long>(page, INT_MIN, INT_MAX)));
    postToParent(this, std::make_unique<ZELRangeEvent>(type, this, m_strID, m_nNowPage), m_strID,
                 m_logger, pszOperation);
}

bool ZELListScroll::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type == EVENT_MOUSE_UP || type == EVENT_LONG_PRESS || type == EVENT_LONG_PRESS_HELD) {
        ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
        if (received && received->m_pSender)
            return handleButton(received);
    }
    return QWidget::event(pEvent);
}

// A held button pages at each tick, and once more at its release.
bool ZELListScroll::handleButton(ZELEvent* pEvent)
{
    const auto isSender = [pEvent](const QObject* button) {
        return button && button == pEvent->m_pSender;
    };
    if (isSender(m_pUpBtn)) {
        m_logger.WriteDebug("[%s] EVENT_MOUSE_UP UpButton %s", "event", pEvent->m_strID.c_str());
        onPressUpBtn(pEvent);
    } else if (isSender(m_pDownBtn)) {
        m_logger.WriteDebug("[%s] EVENT_MOUSE_UP DownButton %s", "event", pEvent->m_strID.c_str());
        onPressDownBtn(pEvent);
    }
    return true;
}

} // namespace PANFx::Components
