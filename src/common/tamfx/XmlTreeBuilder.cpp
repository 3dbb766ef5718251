#include "common/tamfx/XmlTreeBuilder.h"

#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlOutline.h"
#include "common/tamfx/XmlSource.h"

#include <cstring>
#include <new>
#include <pugixml.hpp>
#include <string_view>
#include <vector>

namespace TAMFx::Common::Xml {

namespace {

// White space is kept, since a text of one blank counts; text outside the root is kept, so that
// it can be refused.
constexpr unsigned parseFlags = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol |
                                pugi::parse_wconv_attribute | pugi::parse_ws_pcdata |
                                pugi::parse_fragment;

XmlSource::Encoding encodingOf(const pugi::xml_parse_result& result)
{
    switch (result.encoding) {
    case pugi::encoding_utf16_le:
        return XmlSource::Encoding::Utf16Little;
    case pugi::encoding_utf16_be:
        return XmlSource::Encoding::Utf16Big;
    case pugi::encoding_utf32_le:
        return XmlSource::Encoding::Utf32Little;
    case pugi::encoding_utf32_be:
        return XmlSource::Encoding::Utf32Big;
    case pugi::encoding_latin1:
        return XmlSource::Encoding::Latin1;
    default:
        return XmlSource::Encoding::Utf8;
    }
}

} // namespace

/**
 * Writes the tree into one piece of memory: first all elements, the children of each side by
 * side, then all attributes, then all texts.
 */
class XmlTreeBuilder::Filler
{
public:
    explicit Filler(const XmlOutline& outline);

    /** Gives the root element, which is the begin of the piece of memory. */
    Node* fill();

private:
    void fillElement(Node* pNode, const XmlOutline::Element& element);
    void fillText(Node& node, const XmlOutline::Element& element);
    const char* copy(std::string_view text);
    void append(std::string_view text);

    const XmlOutline& m_outline;
    std::vector<Node*> m_nextChildren; ///< of each element so far: the place of its next child
    Node* m_pNodes;
    Node* m_pFreeNode;
    Attribute* m_pFreeAttribute;
    char* m_pFreeText;
};

XmlTreeBuilder::Filler::Filler(const XmlOutline& outline)
    : m_outline(outline)
{
    const std::size_t nNodes = outline.elements().size();
    const std::size_t nAttributes = outline.attributes().size();
    const auto sizeOf = [](std::string_view text) { return text.empty() ? 0 : text.size() + 1; };
    std::size_t nTexts = 0;
    for (const XmlOutline::Element& element : outline.elements())
        nTexts += sizeOf(element.name) + (element.hasText() ? element.nText + 1 : 0);
    for (const XmlOutline::Attribute& attribute : outline.attributes())
        nTexts += sizeOf(attribute.name) + sizeOf(attribute.value);

    m_nextChildren.reserve(nNodes);
    m_pNodes = static_cast<Node*>(
        ::operator new(nNodes * sizeof(Node) + nAttributes * sizeof(Attribute) + nTexts));
    m_pFreeNode = m_pNodes;
    m_pFreeAttribute = reinterpret_cast<Attribute*>(m_pNodes + nNodes);
    m_pFreeText = reinterpret_cast<char*>(m_pFreeAttribute + nAttributes);
}

Node* XmlTreeBuilder::Filler::fill()
{
    for (const XmlOutline::Element& element : m_outline.elements()) {
        const bool bRoot = element.nParent < 0;
        fillElement(bRoot ? m_pFreeNode++
                          : m_nextChildren[static_cast<std::size_t>(element.nParent)]++,
                    element);
    }
    return m_pNodes;
}

void XmlTreeBuilder::Filler::fillElement(Node* pNode, const XmlOutline::Element& element)
{
    new (pNode) Node(Node::FromFile(), copy(element.name));
    pNode->m_bOwned = true;
    pNode->m_children.pBlock = m_pFreeNode;
    pNode->m_nChildren = static_cast<unsigned>(element.nChildren);
    m_nextChildren.push_back(m_pFreeNode);
    m_pFreeNode += element.nChildren;

    const XmlOutline::Attribute* pAttribute =
        m_outline.attributes().data() + element.nFirstAttribute;
    pNode->m_attributes.pBlock = m_pFreeAttribute;
    for (int i = 0; i < element.nAttributes; ++i, ++pAttribute) {
        const char* pszName = copy(pAttribute->name);
        new (m_pFreeAttribute++) Attribute(Attribute::FromFile(), pszName, copy(pAttribute->value));
        ++pNode->m_nAttributes;
    }
    if (element.hasText())
        fillText(*pNode, element);
}

void XmlTreeBuilder::Filler::fillText(Node& node, const XmlOutline::Element& element)
{
    node.m_pszValue = m_pFreeText;
    for (int i = element.nFirstPiece; i >= 0;) {
        const XmlOutline::Piece& piece = m_outline.pieces()[static_cast<std::size_t>(i)];
        append(piece.text);
        i = piece.nNext;
    }
    *m_pFreeText++ = '\0';
}

const char* XmlTreeBuilder::Filler::copy(std::string_view text)
{
    if (text.empty())
        return "";
    const char* pszCopy = m_pFreeText;
    append(text);
    *m_pFreeText++ = '\0';
    return pszCopy;
}

void XmlTreeBuilder::Filler::append(std::string_view text)
{
    std::memcpy(m_pFreeText, text.data(), text.size());
    m_pFreeText += text.size();
}

void XmlTreeBuilder::build(const char* pszFileName, const std::string& strContent,
                           XmlDocument& document)
{
    pugi::xml_document file;
    const pugi::xml_parse_result result =
        file.load_buffer(strContent.data(), strContent.size(), parseFlags);
    const XmlSource source(strContent, encodingOf(result));
    XmlOutline outline(pszFileName, source);
    const auto nNul = source.text().find('\0');
    if (nNul != std::string_view::npos)
        outline.fail(nNul, "NUL character");
    if (!result)
        outline.fail(static_cast<std::size_t>(result.offset), result.description());
    outline.read(file);

    document.m_pNodes = Filler(outline).fill();
    document.m_nNodes = outline.elements().size();
    Node& parent = document;
    parent.m_children.pBlock = document.m_pNodes;
    parent.m_nChildren = 1;
}

} // namespace TAMFx::Common::Xml
