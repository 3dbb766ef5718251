#include "components/lists/ZELListItem.h"

#include "common/tamfx/Node.h"
#include "components/SubComponents.h"
#include "components/lists/ListHop.h"
#include "components/support/LayoutPosition.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

ZELListItem::ZELListItem(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(pLayout);
    showSubComponent();
    ZELListItem::setLayout(pLayout);
}

ZELListItem::~ZELListItem() = default;

void ZELListItem::showWindow()
{
    setVisible(true);
}

void ZELListItem::hideWindow()
{
    setVisible(false);
}

QWidget* ZELListItem::getQWidget()
{
    return this;
}

void ZELListItem::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 0, 0}).rect());
}

int ZELListItem::findComponent(std::string strID)
{
    return indexOfSubComponent(*this, strID);
}

void ZELListItem::paintEvent(QPaintEvent*) {}

bool ZELListItem::event(QEvent* pEvent)
{
    if (pEvent->type() < EVENT_MOUSE_UP)
        return QWidget::event(pEvent);
    const ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
    const int column = received ? findComponent(received->m_strID) : -1;
    if (column < 0)
        return false;
    postFromCell(this, *received, m_nRow, column, false, m_strID, m_logger);
    return true;
}

} // namespace PANFx::Components
