#include "components/ComponentWalk.h"

#include "common/tamfx/Node.h"
#include "components/ComponentFactory.h"

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

void createComponents(Node* pNode, QWidget* pParent, std::deque<ZELComponent*>& components,
                      const std::function<void(const char*, const char*)>& onFailure)
{
    ComponentFactory* factory = ComponentFactory::getInstance();
    for (int i = 0; i < pNode->getChildNodeSize(); ++i) {
        Node* group = pNode->getChildNode(i);
        if (!group)
            continue;
        for (int j = 0; j < group->getChildNodeSize(); ++j) {
            Node* element = group->getChildNode(j);
            if (!element)
                continue;
            ZELComponent* component =
                factory->createComponent(pParent, group->getName(), element->getName(), element);
            if (component)
                components.push_back(component);
            else
                onFailure(group->getName(), element->getName());
        }
    }
}

} // namespace PANFx::Components
