#include "common/tamfx/XmlDocument.h"

#include "common/tamfx/NodeList.h"
#include "common/tamfx/XmlColumn.h"
#include "common/tamfx/XmlTreeBuilder.h"

#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace TAMFx::Common::Xml {

XmlDocument::XmlDocument()
    : Node(FromFile(), "")
{
}

XmlDocument::~XmlDocument()
{
    XmlDocument::removeAll();
}

bool XmlDocument::LoadXMLFile(const char* pszPath)
{
    // a copy, since the path may be a text of the very document that goes now
    const std::string strPath = pszPath ? pszPath : "";
    removeAll();
    try {
        if (m_pszRow)
            return XmlTreeBuilder::build(strPath, XmlColumn(m_pszRow, m_pszKey, m_nColumn), *this);
        return XmlTreeBuilder::build(strPath, *this);
    } catch (const std::bad_alloc&) {
        // a damaged file can be larger than the memory of a small board
        removeAll();
        return false;
    }
}

void XmlDocument::setColumn(const char* pszRow, const char* pszKey, int nColumn)
{
    m_pszRow = pszRow;
    m_pszKey = pszKey;
    m_nColumn = nColumn;
}

NodeList* XmlDocument::getNodeListByName(const char* pszName) const
{
    if (getChildNodeSize() == 0)
        return nullptr;
    auto pFound = std::make_unique<NodeList>();
    struct Level
    {
        const Node* pParent;
        int nNext;
    };
    std::vector<Level> path = {{this, 0}};
    while (pszName && !path.empty()) {
        Node* pNode = path.back().pParent->getChildNode(path.back().nNext++);
        if (!pNode) {
            path.pop_back();
            continue;
        }
        if (std::strcmp(pNode->getName(), pszName) == 0)
            pFound->addNode(pNode);
        if (pNode->getChildNodeSize() > 0)
            path.push_back({pNode, 0});
    }
    return pFound.release();
}

Node* XmlDocument::getNodeByName(const char* pszName) const
{
    const Node* pRoot = getChildNode(0);
    return pRoot ? pRoot->getNodeByName(pszName) : nullptr;
}

void XmlDocument::removeAll()
{
    Node::removeAll();
    for (std::size_t i = 0; i < m_nNodes; ++i) {
        if (m_pNodes[i].m_bChildrenAdded || m_pNodes[i].m_bAttributesAdded)
            m_pNodes[i].releaseContent();
    }
    ::operator delete(m_pNodes);
    m_pNodes = nullptr;
    m_nNodes = 0;
}

} // namespace TAMFx::Common::Xml
