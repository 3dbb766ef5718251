#include "common/tamfx/XmlOutline.h"

#include "common/tamfx/XmlException.h"
#include "common/tamfx/XmlSource.h"

#include <cstring>
#include <pugixml.hpp>
#include <unordered_set>

namespace TAMFx::Common::Xml {

namespace {

constexpr int maximumDepth = 256;
constexpr int fewAttributes = 16;
constexpr const char* whiteSpace = " \t\r\n";

// A guess that saves most of the growing: a short element takes about so many bytes of a file.
constexpr std::size_t bytesOfAnElement = 32;

/** Offset of the "<" that begins an element. */
std::size_t beginOf(const pugi::xml_node& element)
{
    return static_cast<std::size_t>(element.offset_debug()) - 1;
}

} // namespace

XmlOutline::XmlOutline(const char* pszFileName, const XmlSource& source)
    : m_pszFileName(pszFileName)
    , m_source(source)
{
}

void XmlOutline::read(const pugi::xml_node& file)
{
    const std::size_t nGuess = m_source.text().size() / bytesOfAnElement;
    m_elements.reserve(nGuess);
    m_attributes.reserve(2 * nGuess);
    m_pieces.reserve(2 * nGuess);
    for (pugi::xml_node child = file.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element)
            checkOutside(child);
        else if (!m_elements.empty())
            fail(beginOf(child), "second root element");
        else
            readTree(child);
    }
    if (m_elements.empty())
        fail(m_source.text().size(), "no root element");
}

void XmlOutline::readTree(const pugi::xml_node& root)
{
    readElement(root, -1);
    std::vector<int> path = {0}; // from the root down to the element whose children come
    pugi::xml_node node = root.first_child();
    pugi::xml_node parent = root;
    while (!path.empty()) {
        if (!node) {
            path.pop_back();
            node = path.empty() ? node : parent.next_sibling();
            parent = parent.parent();
        } else if (node.type() == pugi::node_element) {
            if (path.size() == maximumDepth)
                fail(beginOf(node), "elements nested deeper than 256");
            readElement(node, path.back());
            path.push_back(static_cast<int>(m_elements.size()) - 1);
            parent = node;
            node = node.first_child();
        } else {
            readPiece(node, path.back());
            node = node.next_sibling();
        }
    }
}

void XmlOutline::readElement(const pugi::xml_node& element, int nParent)
{
    Element entry;
    entry.name = element.name();
    entry.nParent = nParent;
    entry.nFirstAttribute = static_cast<int>(m_attributes.size());
    pugi::xml_attribute attribute = element.first_attribute();
    for (; attribute; attribute = attribute.next_attribute())
        m_attributes.push_back({attribute.name(), attribute.value()});
    entry.nAttributes = static_cast<int>(m_attributes.size()) - entry.nFirstAttribute;
    if (const Attribute* pTwin = firstTwin(entry)) {
        // both names stand in the parser's copy of the source
        const auto nOffset = element.offset_debug() + (pTwin->name.data() - element.name());
        fail(static_cast<std::size_t>(nOffset),
             "attribute \"" + std::string(pTwin->name) + "\" given twice");
    }
    if (nParent >= 0)
        ++m_elements[static_cast<std::size_t>(nParent)].nChildren;
    m_elements.push_back(entry);
}

void XmlOutline::readPiece(const pugi::xml_node& text, int nElement)
{
    Element& element = m_elements[static_cast<std::size_t>(nElement)];
    const Piece piece = {text.value(), -1};
    const int nPiece = static_cast<int>(m_pieces.size());
    if (element.nFirstPiece < 0)
        element.nFirstPiece = nPiece;
    else
        m_pieces[static_cast<std::size_t>(element.nLastPiece)].nNext = nPiece;
    element.nLastPiece = nPiece;
    element.nText += piece.text.size();
    if (!element.bMoreThanWhite)
        element.bMoreThanWhite = std::strspn(piece.text.data(), whiteSpace) < piece.text.size();
    m_pieces.push_back(piece);
}

// What was text in the file need not be text any more: a blank may have been written as a
// character reference, which has no place outside the root either. So look at the source.
void XmlOutline::checkOutside(const pugi::xml_node& text) const
{
    const std::string_view source = m_source.text();
    const auto nBegin = static_cast<std::size_t>(text.offset_debug());
    if (text.type() == pugi::node_cdata)
        fail(nBegin - std::strlen("<![CDATA["), "text outside the root element");
    const auto nFirst = source.find_first_not_of(whiteSpace, nBegin);
    if (nFirst != std::string_view::npos && source[nFirst] != '<')
        fail(nFirst, "text outside the root element");
}

const XmlOutline::Attribute* XmlOutline::firstTwin(const Element& element) const
{
    if (element.nAttributes > fewAttributes)
        return firstTwinOfMany(element);
    const Attribute* pFirst = m_attributes.data() + element.nFirstAttribute;
    for (int i = 1; i < element.nAttributes; ++i) {
        for (int j = 0; j < i; ++j) {
            if (pFirst[j].name == pFirst[i].name)
                return pFirst + i;
        }
    }
    return nullptr;
}

const XmlOutline::Attribute* XmlOutline::firstTwinOfMany(const Element& element) const
{
    const Attribute* pFirst = m_attributes.data() + element.nFirstAttribute;
    std::unordered_set<std::string_view> names;
    for (int i = 0; i < element.nAttributes; ++i) {
        if (!names.insert(pFirst[i].name).second)
            return pFirst + i;
    }
    return nullptr;
}

void XmlOutline::fail(std::size_t nOffset, const std::string& strWhat) const
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
