#pragma once

#include "common/tamfx/Export.h"

#include <vector>

namespace TAMFx::Common::Xml {

class Node;

/** Elements that a search found. The list is its caller's, the elements stay their document's. */
class TAMFX_EXPORT NodeList
{
public:
    /** Without elements. */
    NodeList();
    virtual ~NodeList();

    /** Number of elements. */
    int getNodeCount() const { return static_cast<int>(m_nodes.size()); }

    /** Element by position, counted from 0; null for a bad index. */
    Node* getNode(int nIndex) const;

    /** Appends an element. */
    void addNode(Node* pNode) { m_nodes.push_back(pNode); }

private:
    std::vector<Node*> m_nodes;
};

} // namespace TAMFx::Common::Xml
