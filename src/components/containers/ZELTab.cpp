#include "components/containers/ZELTab.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/containers/ZELTabButton.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/EventTranslator.h"
#include "events/ZELEvent.h"
#include "resource/ParseHelper.h"

#include <QPainter>

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

ZELTab::ZELTab(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(pLayout);
    showSubComponent();
    addTabPage();
    ZELTab::setLayout(pLayout);
    setPage(0);
}

ZELTab::~ZELTab() = default;

void ZELTab::showWindow()
{
    setVisible(true);
}

void ZELTab::hideWindow()
{
    setVisible(false);
}

QWidget* ZELTab::getQWidget()
{
    return this;
}

void ZELTab::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
    if (Node* image = pLayout->getNodeByName("image"))
        readBackground(image);
    else
        m_logger.WriteDebug("[%s] Background Node is NULL", "setLayout");
}

void ZELTab::readBackground(Node* pImage)
{
    if (Attribute* file = pImage->getAttributeByName("file")) {
        m_pBGPixmap = findPicture(file->getValue());
        if (!m_pBGPixmap)
            m_logger.WriteDebug("[%s]  no BackgroundImage File", "setLayout");
    } else {
        m_logger.WriteDebug("[%s]  Attribute \"file\" is NULL", "setLayout");
    }
    ParseHelper::getPosition(pImage, m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight);
}

void ZELTab::addTabPage()
{
    m_arrPageId.Clear();
    m_arrButtonId.Clear();
    for (int i = 0; i < getComponentCount(); i += 2) {
        if (!addPair(getSubComponent(i), getSubComponent(i + 1)))
            return;
    }
}

bool ZELTab::addPair(ZELComponent* pButton, ZELComponent* pPage)
{
    if (!isPartOf(this, pButton)) {
        m_logger.WriteError("[%s] TabButton is NULL", "addTabPage");
        m_logger.WriteError("[%s] TabPage is NULL", "addTabPage");
        return false;
    }
    if (!isPartOf(this, pPage))
        return false;
    if (pButton->m_strType != "ZELTabButton" || pPage->m_strType != "ZELTabPage") {
        m_logger.WriteError("[%s] Type1 : %s /// Type2 : %s", "addTabPage",
                            pButton->m_strType.c_str(), pPage->m_strType.c_str());
        return false;
    }
    m_arrButtonId.Add(pButton->m_strID.c_str());
    m_arrPageId.Add(pPage->m_strID.c_str());
    pPage->hideWindow();
    return true;
}

// The bound is the number of components, which is twice that of the tabs: a number in between is
// told by what it finds.
void ZELTab::setPage(int nPage)
{
    if (nPage < 0 || nPage >= getComponentCount()) {
        m_logger.WriteError("[%s] %d is out of range", "setPage", nPage);
        return;
    }
    hideTab(m_nCurPage);
    showTab(nPage);
    m_nCurPage = nPage;
    update();
}

int ZELTab::getPage() const
{
    return m_nCurPage;
}

int ZELTab::findPage(std::string strButtonId)
{
    for (int i = 0; i < m_arrButtonId.Count(); ++i) {
        if (strButtonId == m_arrButtonId.AtString(i))
            return i;
    }
    m_logger.WriteError("[%s] Cannot find tabpage %s", "findPage", strButtonId.c_str());
    return -1;
}

void ZELTab::hideTab(int nPage)
{
    turnTab(nPage, false, "hideTab");
}

void ZELTab::showTab(int nPage)
{
    turnTab(nPage, true, "showTab");
}

void ZELTab::turnTab(int nPage, bool bShow, const char* pszOperation)
{
    ZELComponent* button = getSubComponent(m_arrButtonId.AtString(nPage));
    ZELComponent* page = getSubComponent(m_arrPageId.AtString(nPage));
    if (!button || !page || button->m_strType != "ZELTabButton") {
        m_logger.WriteError("[%s] pCompTabBtn == NULL || pCompTabPage == NULL", pszOperation);
        return;
    }
    static_cast<ZELTabButton*>(button)->setCheck(bShow ? 1 : 0);
    if (bShow)
        page->showWindow();
    else
        page->hideWindow();
}

ZELComponent* ZELTab::getTabPage(int nPage)
{
    ZELComponent* page = getSubComponent(m_arrPageId.AtString(nPage));
    if (!page) {
        m_logger.WriteError("[%s] Cannot find getTabPage", "getTabPage");
        return nullptr;
    }
    return page->m_strType == "ZELTabPage" ? page : nullptr;
}

ZELComponent* ZELTab::getTabPage(std::string strID)
{
    ZELComponent* page = getSubComponent(strID);
    if (!page) {
        m_logger.WriteError("[%s] %s has no page %s", "getTabPage", m_strID.c_str(), strID.c_str());
        return nullptr;
    }
    return page->m_strType == "ZELTabPage" ? page : nullptr;
}

void ZELTab::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPicture(painter, m_pBGPixmap,
                LayoutPosition{m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight}.rect());
}

bool ZELTab::event(QEvent* pEvent)
{
    if (pEvent->type() == EVENT_TAB_DOWN)
        return handleTabDown(pEvent);
    return EventTranslator::eventHandler(pEvent, parentWidget()) || QWidget::event(pEvent);
}

// The page changes first; the window learns of it with the next round of the event loop.
bool ZELTab::handleTabDown(QEvent* pEvent)
{
    const ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
    if (!received || !received->m_pSender)
        return QWidget::event(pEvent);
    m_logger.WriteDebug("[%s] EVENT_TAB_DOWN", "event");
    const int page = findPage(received->m_strID);
    if (page == m_nCurPage)
        return true;
    setPage(page);
    ZELEvent report(EVENT_TAB_DOWN, this, m_strID);
    return EventTranslator::eventHandler(&report, parentWidget()) || QWidget::event(pEvent);
}

} // namespace PANFx::Components
