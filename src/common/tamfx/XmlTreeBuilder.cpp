#include "common/tamfx/XmlTreeBuilder.h"

#include "common/tamfx/XmlColumn.h"
#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlParser.h"

#include <array>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

namespace TAMFx::Common::Xml {

namespace {

// Guesses that save most of the growing.
constexpr std::size_t bytesOfAnElement = 64;
constexpr std::size_t attributesOfAnElement = 4;

} // namespace

/**
 * Notes the elements of a walk, and writes them into one piece of memory once their number is
 * known: first all elements, the children of each side by side, then all attributes, then all
 * texts, where attributes of one name share it.
 */
class XmlTreeBuilder::Filler : public XmlWalk::Visitor
{
public:
    void begin(std::size_t nBytes) override;
    void visit(const XmlWalk::Element& element) override;

    /** Gives the root element, which is the begin of the piece of memory. */
    Node* fill() const;

    std::size_t count() const { return m_elements.size(); }

private:
    /** Texts are offsets in the texts, elements and attributes are places. */
    struct NotedElement
    {
        std::size_t nName;
        std::size_t nText;
        std::size_t nFirstChild;
        std::size_t nChildren;
        std::size_t nFirstAttribute;
        std::size_t nAttributes;
    };

    struct NotedAttribute
    {
        std::size_t nName;
        std::size_t nValue;
    };

    std::size_t note(const char* pszText);
    std::size_t noteName(const char* pszName);

    std::vector<NotedElement> m_elements;
    std::vector<NotedAttribute> m_attributes;
    std::unique_ptr<char[]> m_pTexts; ///< begin with the empty one
    std::size_t m_nTexts = 0;
    std::array<std::size_t, XmlWalk::maximumDepth + 1> m_nextChildren; ///< places, by depth
    std::array<std::size_t, 64> m_names; ///< where names came last, by their first characters
};

void XmlTreeBuilder::Filler::begin(std::size_t nBytes)
{
    const std::size_t nGuess = nBytes / bytesOfAnElement;
    m_elements.clear();
    m_elements.reserve(nGuess);
    m_elements.resize(1); // the root has its place
    m_attributes.clear();
    m_attributes.reserve(attributesOfAnElement * nGuess);
    m_pTexts.reset(new char[nBytes + 1]);
    m_pTexts[0] = '\0';
    m_nTexts = 1;
    m_nextChildren[0] = 0;
    m_names.fill(0);
}

void XmlTreeBuilder::Filler::visit(const XmlWalk::Element& element)
{
    const std::size_t nChildren = m_elements.size();
    m_elements.resize(nChildren + element.nChildren);
    NotedElement& noted = m_elements[m_nextChildren[element.nDepth]++];
    m_nextChildren[element.nDepth + 1] = nChildren;
    noted = {note(element.pszName), note(element.pszText), nChildren,
             element.nChildren,     m_attributes.size(),   element.nAttributes};
    for (std::size_t i = 0; i < element.nAttributes; ++i) {
        const XmlWalk::Attribute& attribute = element.pAttributes[i];
        const std::size_t nName = noteName(attribute.pszName);
        m_attributes.push_back({nName, note(attribute.pszValue)});
    }
}

std::size_t XmlTreeBuilder::Filler::note(const char* pszText)
{
    if (*pszText == '\0')
        return 0;
    const std::size_t nBegin = m_nTexts;
    const char* pEnd = stpcpy(m_pTexts.get() + nBegin, pszText);
    m_nTexts = static_cast<std::size_t>(pEnd - m_pTexts.get()) + 1;
    return nBegin;
}

std::size_t XmlTreeBuilder::Filler::noteName(const char* pszName)
{
    const auto nMix = 3u * static_cast<unsigned char>(pszName[0]) +
                      static_cast<unsigned char>(pszName[pszName[0] == '\0' ? 0 : 1]);
    std::size_t& nKnown = m_names[nMix % m_names.size()];
    if (std::strcmp(m_pTexts.get() + nKnown, pszName) != 0)
        nKnown = note(pszName);
    return nKnown;
}

Node* XmlTreeBuilder::Filler::fill() const
{
    const std::size_t nNodes = m_elements.size();
    const std::size_t nAttributes = m_attributes.size();
    auto* pNodes = static_cast<Node*>(
        ::operator new(nNodes * sizeof(Node) + nAttributes * sizeof(Attribute) + m_nTexts));
    auto* pAttributes = reinterpret_cast<Attribute*>(pNodes + nNodes);
    auto* pTexts = reinterpret_cast<char*>(pAttributes + nAttributes);
    std::memcpy(pTexts, m_pTexts.get(), m_nTexts);
    for (std::size_t i = 0; i < nAttributes; ++i) {
        const NotedAttribute& noted = m_attributes[i];
        new (pAttributes + i)
            Attribute(Attribute::FromFile(), pTexts + noted.nName, pTexts + noted.nValue);
    }
    for (std::size_t i = 0; i < nNodes; ++i) {
        const NotedElement& noted = m_elements[i];
        Node* pNode = new (pNodes + i) Node(Node::FromFile(), pTexts + noted.nName);
        pNode->m_pszValue = pTexts + noted.nText;
        pNode->m_bOwned = true;
        pNode->m_children.pBlock = pNodes + noted.nFirstChild;
        pNode->m_nChildren = static_cast<unsigned>(noted.nChildren);
        pNode->m_attributes.pBlock = pAttributes + noted.nFirstAttribute;
        pNode->m_nAttributes = static_cast<unsigned>(noted.nAttributes) & 0xFFFFFFF;
    }
    return pNodes;
}

bool XmlTreeBuilder::build(const std::string& strPath, XmlDocument& document)
{
    Filler filler;
    if (!XmlParser::parseFile(strPath, filler))
        return false;
    fill(filler, document);
    return true;
}

bool XmlTreeBuilder::build(const std::string& strPath, XmlColumn column, XmlDocument& document)
{
    if (!XmlParser::parseFile(strPath, column))
        return false;
    Filler filler;
    column.handOver(filler);
    fill(filler, document);
    return true;
}

void XmlTreeBuilder::fill(const Filler& filler, XmlDocument& document)
{
    document.m_pNodes = filler.fill();
    document.m_nNodes = filler.count();
    Node& parent = document;
    parent.m_children.pBlock = document.m_pNodes;
    parent.m_nChildren = 1;
}

} // namespace TAMFx::Common::Xml
