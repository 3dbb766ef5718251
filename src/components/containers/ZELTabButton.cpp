#include "components/containers/ZELTabButton.h"

#include "events/EventNumbers.h"

#include <utility>

namespace PANFx::Components {

ZELTabButton::ZELTabButton(QWidget* pParent, std::string strID, std::string strType,
                           TAMFx::Common::Xml::Node* pLayout)
    : ZELRadioButton(pParent, std::move(strID), std::move(strType), pLayout)
{
}

ZELTabButton::~ZELTabButton() = default;

QWidget* ZELTabButton::getQWidget()
{
    return this;
}

void ZELTabButton::setCheck(int nCheck)
{
    ZELRadioButton::setCheck(nCheck);
}

// Dimmed it is checked all the same, as it only gets here when a caller sends it.
void ZELTabButton::mousePressEvent(QMouseEvent*)
{
    m_bChecked = true;
    if (!m_bDimMode)
        reportPress(EVENT_TAB_DOWN, m_logger);
}

} // namespace PANFx::Components
