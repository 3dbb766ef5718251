#pragma once

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Export.h"

namespace TAMFx::Common::Xml {

class XmlDocument;
class XmlTreeBuilder;

/**
 * An element: name, text, attributes and child elements.
 *
 * An element from a file lies in the memory of its document and dies with it. An element built in
 * memory is freed by whoever holds it; what is added to an element of either kind belongs to that
 * element from then on. Positions count from 0, in document order. Pointers to elements and
 * attributes stay valid for as long as their owner lives, also when more is added.
 */
class TAMFX_EXPORT Node
{
public:
    /** Builds an empty element with a copy of the name. Any text will do; null counts as "". */
    explicit Node(const char* pszName);
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node();

    /**
     * Hands an element over, as the last child. Null, the element itself, and an element that
     * already has an owner are not taken.
     */
    void addChild(Node* pChild);

    /** Hands an attribute over, as the last one. Null is not taken. */
    void addAttribute(Attribute* pAttribute);

    /** The element's name, never null. "" for a document. */
    const char* getName() const { return m_pszName; }

    /**
     * The element's own text with all its blanks, never null. Pieces that comments, CDATA marks
     * or child elements separate are joined. Nothing but white space beside child elements is "".
     */
    const char* getValue() const { return m_pszValue; }

    /** Number of child elements. */
    int getChildNodeSize() const { return static_cast<int>(m_nChildren); }

    /** Child element by position; null for a bad index. */
    Node* getChildNode(int nIndex) const;

    /** First child element of that name, compared exactly; null when there is none. */
    virtual Node* getNodeByName(const char* pszName) const;

    /** First attribute of that name, compared exactly; null when there is none. */
    Attribute* getAttributeByName(const char* pszName) const;

    /** Number of attributes. */
    int getAttributeSize() const { return static_cast<int>(m_nAttributes); }

    /** Attribute by position; null for a bad index. */
    Attribute* getAttribute(int nIndex) const;

    /** Drops text, attributes and children, freeing those that were added. The name stays. */
    virtual void removeAll();

protected:
    friend class XmlDocument;
    friend class XmlTreeBuilder;
    struct FromFile
    {
    };
    /** An element in the memory of a document, which holds the name too. */
    Node(FromFile, const char* pszName);

    /** Frees what was added below an element, and forgets the rest. */
    void releaseContent();

private:
    template <class T>
    struct Added;

    template <class T, class Entries>
    static T* findByName(const Entries& entries, bool bAdded, unsigned nCount, const char* pszName);

    Node* takeLastAddedChild();
    void releaseAttributes();

    // A page keeps its document for life and has hundreds of these: mind the size.
    const char* m_pszName;
    const char* m_pszValue;
    union {
        Node* pBlock;        ///< children from a file, one behind the other
        Added<Node>* pAdded; ///< list of pointers, from the first added child on
    } m_children;
    union {
        Attribute* pBlock;
        Added<Attribute>* pAdded;
        Node* pParent; ///< only while a tree of added elements is being freed
    } m_attributes;
    unsigned m_nChildren;
    unsigned m_nAttributes : 28;
    unsigned m_bChildrenAdded : 1;
    unsigned m_bAttributesAdded : 1;
    unsigned m_bOwnName : 1;
    unsigned m_bOwned : 1; ///< a parent or a document frees it
};

} // namespace TAMFx::Common::Xml
