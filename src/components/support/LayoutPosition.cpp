#include "components/support/LayoutPosition.h"

#include "resource/ParseHelper.h"

#include <QWidget>

#include <algorithm>

namespace PANFx::Components {

int heldPixels(int nValue)
{
    return std::clamp(nValue, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

QRect LayoutPosition::rect() const
{
    return {heldPixels(x), heldPixels(y), heldPixels(width), heldPixels(height)};
}

LayoutPosition readPosition(TAMFx::Common::Xml::Node* pNode, LayoutPosition defaults)
{
    ParseHelper::getPosition(pNode, defaults.x, defaults.y, defaults.width, defaults.height);
    return defaults;
}

} // namespace PANFx::Components
