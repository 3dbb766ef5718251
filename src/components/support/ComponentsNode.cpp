#include "components/support/ComponentsNode.h"

#include "common/tamfx/Node.h"

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

Node* componentsNode(Node* pLayout)
{
    Node* components = pLayout ? pLayout->getNodeByName("Components") : nullptr;
    return components ? components : pLayout;
}

} // namespace PANFx::Components
