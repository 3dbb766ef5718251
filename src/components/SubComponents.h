#pragma once

#include <string>

namespace PANFx::Components {

class ZELComponent;

/** The first sub-component of a kind; null when there is none. */
ZELComponent* firstOfType(ZELComponent& owner, const std::string& strType);

/** The sub-component at a place, counted from 0; null where there is none. */
ZELComponent* subComponentAt(ZELComponent& owner, int nIndex);

/** The place of the first sub-component with that id, counted from 0; -1 when there is none. */
int indexOfSubComponent(ZELComponent& owner, const std::string& strID);

} // namespace PANFx::Components
