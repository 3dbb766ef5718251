#include "components/lists/ZELListHeader.h"

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

namespace {

constexpr int headerRow = 0;

} // namespace

ZELListHeader::ZELListHeader(QWidget* pParent, std::string strID, std::string strType,
                             Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(pLayout);
    showSubComponent();
    ZELListHeader::setLayout(pLayout);
}

ZELListHeader::~ZELListHeader() = default;

void ZELListHeader::showWindow()
{
    setVisible(true);
}

void ZELListHeader::hideWindow()
{
    setVisible(false);
}

QWidget* ZELListHeader::getQWidget()
{
    return this;
}

void ZELListHeader::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 0, 0}).rect());
}

int ZELListHeader::findHeaderComponent(std::string strID)
{
    return indexOfSubComponent(*this, strID);
}

void ZELListHeader::paintEvent(QPaintEvent*) {}

bool ZELListHeader::event(QEvent* pEvent)
{
    if (pEvent->type() < EVENT_MOUSE_UP)
        return QWidget::event(pEvent);
    const ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
    if (!received)
        return false;
    const int column = findHeaderComponent(received->m_strID);
    if (column < 0) {
        m_logger.WriteError("[%s] Cannot find HeaderComponent : %d %s", "event", column,
                            received->m_strID.c_str());
        return false;
    }
    postFromCell(this, *received, headerRow, column, true, m_strID, m_logger);
    return true;
}

} // namespace PANFx::Components
