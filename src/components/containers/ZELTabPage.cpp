#include "components/containers/ZELTabPage.h"

#include "common/tamfx/Node.h"
#include "components/support/LayoutPosition.h"
#include "events/EventTranslator.h"

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

ZELTabPage::ZELTabPage(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(pLayout);
    showSubComponent();
    ZELTabPage::setLayout(pLayout);
    setCheck(0);
}

ZELTabPage::~ZELTabPage() = default;

void ZELTabPage::showWindow()
{
    setVisible(true);
}

void ZELTabPage::hideWindow()
{
    setVisible(false);
}

QWidget* ZELTabPage::getQWidget()
{
    return this;
}

void ZELTabPage::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
}

void ZELTabPage::setCheck(int nCheck)
{
    m_logger.WriteDebug("[%s] start", "setCheck");
    m_bCheck = nCheck != 0;
}

ZELComponent* ZELTabPage::getTabComponent(int nIndex)
{
    return getSubComponent(nIndex);
}

ZELComponent* ZELTabPage::getTabComponent(std::string strID)
{
    return getSubComponent(std::move(strID));
}

void ZELTabPage::paintEvent(QPaintEvent*) {}

bool ZELTabPage::event(QEvent* pEvent)
{
    return EventTranslator::eventHandler(pEvent, parentWidget()) || QWidget::event(pEvent);
}

} // namespace PANFx::Components
