#include "TankPage.h"

#include <QTPANFx/common/tamfx/Node.h>
#include <QTPANFx/components/text/ZELLabel.h>
#include <QTPANFx/events/EventNumbers.h>
#include <QTPANFx/events/ZELEvent.h>

using PANFx::Components::ZELLabel;
using TAMFx::Common::Xml::Node;

TankPage::TankPage(QWidget* pParent)
    : ZELChildWindow("tank", pParent, "")
{
    // The library knows its own keywords and no others. A section beside "Components" belongs to
    // the application, which makes what it describes.
    Node* const own = m_layout.getFirstNodebyName("Own");
    m_pTank = new LevelMeter(this, "tank", own ? own->getNodeByName("tank") : nullptr);
    // from here on getSubComponent("tank") finds it, and showSubComponent shows it
    m_dqSubComponents.push_back(m_pTank);
    m_pTank->showWindow();
    showLevel(70);
}

bool TankPage::event(QEvent* pEvent)
{
    const ZELEvent* const touch =
        pEvent->type() == EVENT_MOUSE_UP ? ZELEvent::from(pEvent) : nullptr;
    if (touch && touch->m_strID == "tank")
        showLevel(m_pTank->level() - 10);
    return ZELChildWindow::event(pEvent);
}

void TankPage::showLevel(int nPercent)
{
    m_pTank->setLevel(nPercent);
    // the type string tells what a component is
    auto* const label = getSubComponent("level");
    if (label && label->m_strType == "ZELLabel")
        static_cast<ZELLabel*>(label)->setTitle(std::to_string(m_pTank->level()) + " %");
}
