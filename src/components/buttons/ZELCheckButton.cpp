#include "components/buttons/ZELCheckButton.h"

#include <utility>

namespace PANFx::Components {

ZELCheckButton::ZELCheckButton(QWidget* pParent, std::string strID, std::string strType,
                               TAMFx::Common::Xml::Node* pLayout)
    : ZELImageButton(pParent, std::move(strID), std::move(strType), pLayout)
{
}

ZELCheckButton::~ZELCheckButton() = default;

QWidget* ZELCheckButton::getQWidget()
{
    return this;
}

void ZELCheckButton::mouseReleaseEvent(QMouseEvent* pEvent)
{
    m_bChecked = !m_bChecked;
    ZELImageButton::mouseReleaseEvent(pEvent);
}

void ZELCheckButton::paintEvent(QPaintEvent*)
{
    paintCheckable(m_bChecked, m_logger);
}

} // namespace PANFx::Components
