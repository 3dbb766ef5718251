#include "common/tamfx/NodeList.h"

namespace TAMFx::Common::Xml {

NodeList::NodeList() = default;

NodeList::~NodeList() = default;

Node* NodeList::getNode(int nIndex) const
{
    const bool bFound = nIndex >= 0 && nIndex < getNodeCount();
    return bFound ? m_nodes[static_cast<std::size_t>(nIndex)] : nullptr;
}

} // namespace TAMFx::Common::Xml
