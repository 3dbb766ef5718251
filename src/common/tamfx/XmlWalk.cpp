#include "common/tamfx/XmlWalk.h"

#include "common/tamfx/XmlException.h"

#include <cstdint>
#include <cstring>
#include <pugixml.hpp>
#include <string_view>
#include <unordered_set>

namespace TAMFx::Common::Xml {

namespace {

constexpr std::size_t fewAttributes = 16;
constexpr const char* whiteSpace = " \t\r\n";

/** Offset of the "<" that begins an element. */
std::size_t beginOf(const pugi::xml_node& element)
{
    return static_cast<std::size_t>(element.offset_debug()) - 1;
}

/** The node itself or the first one behind it that is an element; null when there is none. */
pugi::xml_node elementFrom(pugi::xml_node node)
{
    for (auto type = node.type(); type != pugi::node_element && type != pugi::node_null;
         type = node.type())
        node = node.next_sibling();
    return node;
}

bool isWhite(const std::string& strText)
{
    return strText.find_first_not_of(whiteSpace) == std::string::npos;
}

} // namespace

XmlWalk::XmlWalk(const char* pszFileName, const XmlSource& source, bool bPlain, Visitor& visitor)
    : m_pszFileName(pszFileName)
    , m_source(source)
    , m_bPlain(bPlain)
    , m_visitor(visitor)
{
}

bool XmlWalk::run(const pugi::xml_node& file)
{
    bool bRoot = false;
    for (pugi::xml_node child = file.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element)
            checkOutside(child);
        else if (bRoot)
            fail(beginOf(child), "second root element");
        else if (!walkTree(child))
            return false;
        else
            bRoot = true;
    }
    if (!bRoot)
        fail(m_source.text().size(), "no root element");
    return true;
}

bool XmlWalk::walkTree(const pugi::xml_node& root)
{
    std::size_t nDepth = 0;
    for (pugi::xml_node node = root;;) {
        if (nDepth == maximumDepth)
            fail(beginOf(node), "elements nested deeper than 256");
        if (!visitElement(node, nDepth))
            return false;
        pugi::xml_node next = elementFrom(node.first_child());
        if (next)
            ++nDepth;
        while (!next) {
            if (nDepth == 0)
                return true;
            next = elementFrom(node.next_sibling());
            if (!next) {
                node = node.parent();
                --nDepth;
            }
        }
        node = next;
    }
}

bool XmlWalk::visitElement(const pugi::xml_node& element, std::size_t nDepth)
{
    readAttributes(element);
    Element entry = {element.name(), element.value(), m_attributes.data(), m_attributes.size(), 0,
                     nDepth};
    std::size_t nPieces = 0;
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element) {
            ++entry.nChildren;
        } else if (m_bPlain) {
            return false;
        } else {
            if (++nPieces == 1)
                m_strText.clear();
            m_strText += child.value();
        }
    }
    if (m_bPlain && entry.nChildren > 0 && *entry.pszText != '\0')
        return false;
    if (nPieces > 0 && (entry.nChildren == 0 || !isWhite(m_strText)))
        entry.pszText = m_strText.c_str();
    m_visitor.visit(entry);
    return true;
}

void XmlWalk::readAttributes(const pugi::xml_node& element)
{
    m_attributes.clear();
    std::uint64_t begins = 0; // a bit for each first character; names mostly differ there
    bool bAlike = false;
    pugi::xml_attribute attribute = element.first_attribute();
    for (; attribute; attribute = attribute.next_attribute()) {
        m_attributes.push_back({attribute.name(), attribute.value()});
        const auto begin = std::uint64_t{1} << (*m_attributes.back().pszName & 63);
        bAlike = bAlike || (begins & begin) != 0;
        begins |= begin;
    }
    const std::size_t nTwin = bAlike ? firstTwin() : m_attributes.size();
    if (nTwin < m_attributes.size())
        failAtAttribute(element, nTwin);
}

/** Place of the first attribute whose name came before; the number of attributes without one. */
std::size_t XmlWalk::firstTwin() const
{
    const std::size_t nCount = m_attributes.size();
    if (nCount > fewAttributes)
        return firstTwinOfMany();
    for (std::size_t i = 1; i < nCount; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (std::strcmp(m_attributes[j].pszName, m_attributes[i].pszName) == 0)
                return i;
        }
    }
    return nCount;
}

std::size_t XmlWalk::firstTwinOfMany() const
{
    std::unordered_set<std::string_view> names;
    std::size_t i = 0;
    while (i < m_attributes.size() && names.insert(m_attributes[i].pszName).second)
        ++i;
    return i;
}

void XmlWalk::failAtAttribute(const pugi::xml_node& element, std::size_t nAttribute) const
{
    // both names stand in the parser's copy of the source
    const char* pszName = m_attributes[nAttribute].pszName;
    const auto nOffset = element.offset_debug() + (pszName - element.name());
    fail(static_cast<std::size_t>(nOffset),
         "attribute \"" + std::string(pszName) + "\" given twice");
}

// What was text in the file need not be text any more: a blank may have been written as a
// character reference, which has no place outside the root either. So look at the source.
void XmlWalk::checkOutside(const pugi::xml_node& text) const
{
    const std::string_view source = m_source.text();
    const auto nBegin = static_cast<std::size_t>(text.offset_debug());
    if (text.type() == pugi::node_cdata)
        fail(nBegin - std::strlen("<![CDATA["), "text outside the root element");
    const auto nFirst = source.find_first_not_of(whiteSpace, nBegin);
    if (nFirst != std::string_view::npos && source[nFirst] != '<')
        fail(nFirst, "text outside the root element");
}

void XmlWalk::fail(std::size_t nOffset, const std::string& strWhat) const
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
