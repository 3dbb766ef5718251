#include "components/support/LayoutPosition.h"

#include "resource/ParseHelper.h"

#include <QWidget>

#include <algorithm>

namespace PANFx::Components {

namespace {

int held(int value)
{
    return std::clamp(value, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace

QRect LayoutPosition::rect() const
{
    return {held(x), held(y), held(width), held(height)};
}

LayoutPosition readPosition(TAMFx::Common::Xml::Node* pNode, LayoutPosition defaults)
{
    ParseHelper::getPosition(pNode, defaults.x, defaults.y, defaults.width, defaults.height);
    return defaults;
}

} // namespace PANFx::Components
