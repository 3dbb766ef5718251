#pragma once

#include "components/ZELComponent.h"

namespace PANFx::Components {

/**
 * Deletes a part that @p owner made inside itself, unless an application has deleted it or taken
 * it out. The pointer is null afterwards.
 */
template <typename Component>
void deleteLiving(const QWidget& owner, Component*& component)
{
    if (ZELComponent::liesIn(&owner, component))
        delete component;
    component = nullptr;
}

} // namespace PANFx::Components
