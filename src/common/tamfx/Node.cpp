#include "common/tamfx/Node.h"

#include "common/tamfx/TextCopy.h"

#include <cstring>
#include <vector>

namespace TAMFx::Common::Xml {

/** Children or attributes of an element to which some were added. */
template <class T>
struct Node::Added
{
    /** Begins with those that came from a file. */
    Added(T* pBlock, std::size_t nCount)
        : nFromFile(nCount)
    {
        entries.reserve(nCount + 1);
        for (std::size_t i = 0; i < nCount; ++i)
            entries.push_back(pBlock + i);
    }

    std::size_t nFromFile;
    std::vector<T*> entries;
};

// A page looks up its attributes by the thousand, and most differ in the first character.
template <class T, class Entries>
T* Node::findByName(const Entries& entries, bool bAdded, unsigned nCount, const char* pszName)
{
    for (unsigned i = 0; pszName && i < nCount; ++i) {
        T* pEntry = bAdded ? entries.pAdded->entries[i] : entries.pBlock + i;
        const char* pszEntry = pEntry->getName();
        if (*pszEntry == *pszName && std::strcmp(pszEntry, pszName) == 0)
            return pEntry;
    }
    return nullptr;
}

Node::Node(const char* pszName)
    : Node(FromFile(), copyOfText(pszName).release())
{
    m_bOwnName = true;
}

Node::Node(FromFile, const char* pszName)
    : m_pszName(pszName)
    , m_pszValue("")
    , m_children{nullptr}
    , m_attributes{nullptr}
    , m_nChildren(0)
    , m_nAttributes(0)
    , m_bChildrenAdded(false)
    , m_bAttributesAdded(false)
    , m_bOwnName(false)
    , m_bOwned(false)
{
}

Node::~Node()
{
    releaseContent();
    if (m_bOwnName)
        delete[] m_pszName;
}

void Node::addChild(Node* pChild)
{
    if (!pChild || pChild == this || pChild->m_bOwned)
        return;
    if (!m_bChildrenAdded) {
        m_children.pAdded = new Added<Node>(m_children.pBlock, m_nChildren);
        m_bChildrenAdded = true;
    }
    m_children.pAdded->entries.push_back(pChild);
    ++m_nChildren;
    pChild->m_bOwned = true;
}

void Node::addAttribute(Attribute* pAttribute)
{
    if (!pAttribute)
        return;
    if (!m_bAttributesAdded) {
        m_attributes.pAdded = new Added<Attribute>(m_attributes.pBlock, m_nAttributes);
        m_bAttributesAdded = true;
    }
    m_attributes.pAdded->entries.push_back(pAttribute);
    ++m_nAttributes;
}

Node* Node::getChildNode(int nIndex) const
{
    if (nIndex < 0 || nIndex >= getChildNodeSize())
        return nullptr;
    if (m_bChildrenAdded)
        return m_children.pAdded->entries[static_cast<std::size_t>(nIndex)];
    return m_children.pBlock + nIndex;
}

Node* Node::getNodeByName(const char* pszName) const
{
    return findByName<Node>(m_children, m_bChildrenAdded, m_nChildren, pszName);
}

Attribute* Node::getAttributeByName(const char* pszName) const
{
    return findByName<Attribute>(m_attributes, m_bAttributesAdded, m_nAttributes, pszName);
}

Attribute* Node::getAttribute(int nIndex) const
{
    if (nIndex < 0 || nIndex >= getAttributeSize())
        return nullptr;
    if (m_bAttributesAdded)
        return m_attributes.pAdded->entries[static_cast<std::size_t>(nIndex)];
    return m_attributes.pBlock + nIndex;
}

void Node::removeAll()
{
    releaseContent();
    m_pszValue = "";
}

// Neither recursive, since a tree built in memory may be deep, nor allocating, since it runs in
// destructors: the way back up is kept in the place of the attributes, which are gone by then.
void Node::releaseContent()
{
    releaseAttributes();
    Node* pNode = this;
    for (;;) {
        if (Node* pChild = pNode->takeLastAddedChild()) {
            pChild->releaseAttributes();
            pChild->m_attributes.pParent = pNode;
            pNode = pChild;
        } else if (pNode == this) {
            return;
        } else {
            Node* pParent = pNode->m_attributes.pParent;
            pNode->m_attributes.pBlock = nullptr;
            delete pNode;
            pNode = pParent;
        }
    }
}

Node* Node::takeLastAddedChild()
{
    Added<Node>* pAdded = m_bChildrenAdded ? m_children.pAdded : nullptr;
    if (pAdded && pAdded->entries.size() > pAdded->nFromFile) {
        Node* pLast = pAdded->entries.back();
        pAdded->entries.pop_back();
        return pLast;
    }
    delete pAdded;
    m_children.pBlock = nullptr;
    m_bChildrenAdded = false;
    m_nChildren = 0;
    return nullptr;
}

void Node::releaseAttributes()
{
    if (m_bAttributesAdded) {
        Added<Attribute>* pAdded = m_attributes.pAdded;
        for (std::size_t i = pAdded->nFromFile; i < pAdded->entries.size(); ++i)
            delete pAdded->entries[i];
        delete pAdded;
    }
    m_attributes.pBlock = nullptr;
    m_bAttributesAdded = false;
    m_nAttributes = 0;
}

} // namespace TAMFx::Common::Xml
