#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pugi {
class xml_node;
} // namespace pugi

namespace TAMFx::Common::Xml {

class XmlSource;

/**
 * Elements, attributes and texts of a parsed file, in document order and measured. What the
 * parser lets pass and is not well-formed nevertheless is refused here. The texts lie in the
 * parser's memory.
 */
class XmlOutline
{
public:
    struct Attribute
    {
        std::string_view name;
        std::string_view value;
    };

    /** A piece of an element's text. */
    struct Piece
    {
        std::string_view text;
        int nNext; ///< the element's next piece, -1 for none
    };

    struct Element
    {
        std::string_view name;
        int nParent;       ///< -1 for the root
        int nChildren = 0; ///< child elements
        int nFirstAttribute = 0;
        int nAttributes = 0;
        int nFirstPiece = -1;
        int nLastPiece = -1;
        std::size_t nText = 0; ///< length of all pieces
        bool bMoreThanWhite = false;

        /** White space is no text where there are child elements. */
        bool hasText() const { return nText > 0 && (bMoreThanWhite || nChildren == 0); }
    };

    /** Both must live as long as this object. The file name stands in the messages. */
    XmlOutline(const char* pszFileName, const XmlSource& source);

    /** Takes in a parsed file. @throws XmlException* for a fault. */
    void read(const pugi::xml_node& file);

    /** @throws XmlException* with the place of an offset of the source. */
    [[noreturn]] void fail(std::size_t nOffset, const std::string& strWhat) const;

    const std::vector<Element>& elements() const { return m_elements; }
    const std::vector<Attribute>& attributes() const { return m_attributes; }
    const std::vector<Piece>& pieces() const { return m_pieces; }

private:
    void readTree(const pugi::xml_node& root);
    void readElement(const pugi::xml_node& element, int nParent);
    void readPiece(const pugi::xml_node& text, int nElement);
    void checkOutside(const pugi::xml_node& text) const;
    const Attribute* firstTwin(const Element& element) const;
    const Attribute* firstTwinOfMany(const Element& element) const;

    const char* m_pszFileName;
    const XmlSource& m_source;
    std::vector<Element> m_elements;
    std::vector<Attribute> m_attributes;
    std::vector<Piece> m_pieces;
};

} // namespace TAMFx::Common::Xml
