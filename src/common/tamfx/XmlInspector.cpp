#include "common/tamfx/XmlInspector.h"

#include "common/tamfx/XmlException.h"
#include "common/tamfx/XmlSource.h"

#include <cstring>
#include <pugixml.hpp>
#include <string_view>
#include <unordered_set>

namespace TAMFx::Common::Xml {

namespace {

constexpr int maximumDepth = 256;
constexpr std::size_t fewAttributes = 16;
constexpr const char* whiteSpace = " \t\r\n";

bool isElement(const pugi::xml_node& node)
{
    return node.type() == pugi::node_element;
}

/** Offset of the "<" that begins an element. */
std::size_t beginOf(const pugi::xml_node& element)
{
    return static_cast<std::size_t>(element.offset_debug()) - 1;
}

} // namespace

XmlInspector::XmlInspector(const char* pszFileName, const XmlSource& source)
    : m_pszFileName(pszFileName)
    , m_source(source)
{
}

pugi::xml_node XmlInspector::elementFrom(pugi::xml_node node)
{
    while (node && !isElement(node))
        node = node.next_sibling();
    return node;
}

std::size_t XmlInspector::textLength(const pugi::xml_node& element)
{
    std::size_t nLength = 0;
    bool bCounts = false;
    bool bChildren = false;
    for (const pugi::xml_node& child : element.children()) {
        const std::size_t nPiece = std::strlen(child.value());
        bChildren = bChildren || isElement(child);
        bCounts = bCounts || std::strspn(child.value(), whiteSpace) < nPiece;
        nLength += nPiece;
    }
    return bCounts || !bChildren ? nLength : 0;
}

XmlInspector::Size XmlInspector::inspect(const pugi::xml_node& file)
{
    for (const pugi::xml_node& child : file.children()) {
        if (!isElement(child))
            inspectText(child);
        else if (m_size.nNodes > 0)
            fail(beginOf(child), "second root element");
        else
            inspectTree(child);
    }
    if (m_size.nNodes == 0)
        fail(m_source.text().size(), "no root element");
    return m_size;
}

void XmlInspector::inspectTree(const pugi::xml_node& root)
{
    pugi::xml_node element = root;
    int nDepth = 1;
    for (;;) {
        inspectElement(element);
        if (const pugi::xml_node child = elementFrom(element.first_child())) {
            if (++nDepth > maximumDepth)
                fail(beginOf(child), "elements nested deeper than 256");
            element = child;
            continue;
        }
        pugi::xml_node next;
        while (element != root && !(next = elementFrom(element.next_sibling()))) {
            element = element.parent();
            --nDepth;
        }
        if (element == root)
            return;
        element = next;
    }
}

void XmlInspector::inspectElement(const pugi::xml_node& element)
{
    std::size_t nAttributes = 0;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        const std::size_t nValue = std::strlen(attribute.value());
        m_size.nTexts += std::strlen(attribute.name()) + 1 + (nValue > 0 ? nValue + 1 : 0);
        ++nAttributes;
    }
    if (nAttributes > 1)
        refuseTwins(element, nAttributes);
    const std::size_t nText = textLength(element);
    m_size.nTexts += std::strlen(element.name()) + 1 + (nText > 0 ? nText + 1 : 0);
    m_size.nAttributes += nAttributes;
    ++m_size.nNodes;
}

// What was text in the file need not be text any more: a blank may have been written as a
// character reference, which has no place outside the root either. So look at the source.
void XmlInspector::inspectText(const pugi::xml_node& text) const
{
    const std::string_view source = m_source.text();
    const auto nBegin = static_cast<std::size_t>(text.offset_debug());
    if (text.type() == pugi::node_cdata)
        fail(nBegin - std::strlen("<![CDATA["), "text outside the root element");
    const auto nFirst = source.find_first_not_of(whiteSpace, nBegin);
    if (nFirst != std::string_view::npos && source[nFirst] != '<')
        fail(nFirst, "text outside the root element");
}

void XmlInspector::refuseTwins(const pugi::xml_node& element, std::size_t nAttributes) const
{
    if (nAttributes > fewAttributes) {
        std::unordered_set<std::string_view> names;
        for (const pugi::xml_attribute& attribute : element.attributes()) {
            if (!names.insert(attribute.name()).second)
                failTwin(element, attribute);
        }
        return;
    }
    for (pugi::xml_attribute second : element.attributes()) {
        for (pugi::xml_attribute first : element.attributes()) {
            if (first == second)
                break;
            if (std::strcmp(first.name(), second.name()) == 0)
                failTwin(element, second);
        }
    }
}

void XmlInspector::failTwin(const pugi::xml_node& element,
                            const pugi::xml_attribute& attribute) const
{
    // both names stand in the parser's copy of the text
    const auto nOffset = element.offset_debug() + (attribute.name() - element.name());
    fail(static_cast<std::size_t>(nOffset),
         "attribute \"" + std::string(attribute.name()) + "\" given twice");
}

void XmlInspector::fail(std::size_t nOffset, const std::string& strWhat) const
{
    static thread_local XmlException exception;
    const XmlSource::Place place = m_source.placeOf(nOffset);
    const std::string strMessage = std::string(m_pszFileName) + ": line " +
                                   std::to_string(place.nLine) + ", column " +
                                   std::to_string(place.nColumn) + ": " + strWhat;
    exception = XmlException(strMessage.c_str(), place.nLine);
    throw &exception;
}

} // namespace TAMFx::Common::Xml
