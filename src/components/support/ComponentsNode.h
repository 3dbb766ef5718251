#pragma once

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {

/**
 * Where a composite that has other children too finds its components: in its child "Components",
 * or in the element itself when there is none. Null for null.
 */
TAMFx::Common::Xml::Node* componentsNode(TAMFx::Common::Xml::Node* pLayout);

} // namespace PANFx::Components
