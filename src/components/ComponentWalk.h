#pragma once

#include <deque>
#include <functional>
#include <string>

class QWidget;

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {

class ZELComponent;

/**
 * Builds what an element describes, two levels deep: the name of a child element is the type
 * keyword, the name of an element inside it is the component's id.
 * @param pParent becomes the parent widget of every component
 * @param components gets each component made, in the order of the file
 * @param onFailure is called with keyword and id for each component that can't be made
 */
void createComponents(TAMFx::Common::Xml::Node* pNode, QWidget* pParent,
                      std::deque<ZELComponent*>& components,
                      const std::function<void(const char* keyword, const char* id)>& onFailure);

} // namespace PANFx::Components
