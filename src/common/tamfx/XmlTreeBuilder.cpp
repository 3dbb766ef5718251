#include "common/tamfx/XmlTreeBuilder.h"

#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlInspector.h"
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
 * Writes the tree into one piece of memory: first all elements, level by level, so that the
 * children of each stand side by side, then all attributes, then all texts.
 */
class XmlTreeBuilder::Filler
{
public:
    explicit Filler(const XmlInspector::Size& size)
        : m_sources(size.nNodes)
        , m_pNodes(static_cast<Node*>(::operator new(
              size.nNodes * sizeof(Node) + size.nAttributes * sizeof(Attribute) + size.nTexts)))
        , m_pAttribute(reinterpret_cast<Attribute*>(m_pNodes + size.nNodes))
        , m_pText(reinterpret_cast<char*>(m_pAttribute + size.nAttributes))
    {
    }

    Node* fill(const pugi::xml_node& root);

private:
    void append(const pugi::xml_node& element);
    void fillAttributes(Node& node, const pugi::xml_node& element);
    void fillText(Node& node, const pugi::xml_node& element);
    const char* copy(const char* pszText);

    std::vector<pugi::xml_node> m_sources;
    Node* m_pNodes;
    Attribute* m_pAttribute; ///< the next one
    char* m_pText;           ///< the next one
    std::size_t m_nNodes = 0;
};

Node* XmlTreeBuilder::Filler::fill(const pugi::xml_node& root)
{
    append(root);
    for (std::size_t i = 0; i < m_nNodes; ++i) {
        Node& node = m_pNodes[i];
        const pugi::xml_node element = m_sources[i];
        fillAttributes(node, element);
        fillText(node, element);
        node.m_children.pBlock = m_pNodes + m_nNodes;
        pugi::xml_node child = XmlInspector::elementFrom(element.first_child());
        for (; child; child = XmlInspector::elementFrom(child.next_sibling())) {
            append(child);
            ++node.m_nChildren;
        }
    }
    return m_pNodes;
}

void XmlTreeBuilder::Filler::append(const pugi::xml_node& element)
{
    Node* pNode = new (m_pNodes + m_nNodes) Node(Node::FromFile(), copy(element.name()));
    pNode->m_bOwned = true;
    m_sources[m_nNodes++] = element;
}

void XmlTreeBuilder::Filler::fillAttributes(Node& node, const pugi::xml_node& element)
{
    node.m_attributes.pBlock = m_pAttribute;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        const char* pszName = copy(attribute.name());
        new (m_pAttribute++) Attribute(Attribute::FromFile(), pszName, copy(attribute.value()));
        ++node.m_nAttributes;
    }
}

void XmlTreeBuilder::Filler::fillText(Node& node, const pugi::xml_node& element)
{
    if (XmlInspector::textLength(element) == 0)
        return;
    node.m_pszValue = m_pText;
    for (const pugi::xml_node& child : element.children()) {
        const std::size_t nPiece = std::strlen(child.value());
        std::memcpy(m_pText, child.value(), nPiece);
        m_pText += nPiece;
    }
    *m_pText++ = '\0';
}

const char* XmlTreeBuilder::Filler::copy(const char* pszText)
{
    if (!*pszText)
        return "";
    const std::size_t nSize = std::strlen(pszText) + 1;
    char* pCopy = m_pText;
    std::memcpy(pCopy, pszText, nSize);
    m_pText += nSize;
    return pCopy;
}

void XmlTreeBuilder::build(const char* pszFileName, const std::string& strContent,
                           XmlDocument& document)
{
    pugi::xml_document file;
    const pugi::xml_parse_result result =
        file.load_buffer(strContent.data(), strContent.size(), parseFlags);
    const XmlSource source(strContent, encodingOf(result));
    XmlInspector inspector(pszFileName, source);
    const auto nNul = source.text().find('\0');
    if (nNul != std::string_view::npos)
        inspector.fail(nNul, "NUL character");
    if (!result)
        inspector.fail(static_cast<std::size_t>(result.offset), result.description());
    const XmlInspector::Size size = inspector.inspect(file);

    Filler filler(size);
    document.m_pNodes = filler.fill(file.document_element());
    document.m_nNodes = size.nNodes;
    Node& parent = document;
    parent.m_children.pBlock = document.m_pNodes;
    parent.m_nChildren = 1;
}

} // namespace TAMFx::Common::Xml
