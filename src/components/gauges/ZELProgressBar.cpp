#include "components/gauges/ZELProgressBar.h"

#include <utility>

namespace PANFx::Components {

ZELProgressBar::ZELProgressBar(QWidget* pParent, std::string strID, std::string strType,
                               TAMFx::Common::Xml::Node*)
    : ZELComponent(std::move(strID), std::move(strType))
    , QProgressBar(pParent)
{
    setValue(0);
}

ZELProgressBar::~ZELProgressBar() = default;

void ZELProgressBar::SetPercent(int nPercent)
{
    setValue(nPercent);
}

} // namespace PANFx::Components
