#pragma once

#include <cstddef>
#include <string>

namespace pugi {
class xml_attribute;
class xml_node;
} // namespace pugi

namespace TAMFx::Common::Xml {

class XmlSource;

/** Walks a parsed file in document order, refuses what the parser lets pass, and measures. */
class XmlInspector
{
public:
    /** What the one piece of memory of a document must hold. */
    struct Size
    {
        std::size_t nNodes = 0;
        std::size_t nAttributes = 0;
        std::size_t nTexts = 0; ///< bytes, terminators included; empty texts take none
    };

    /** Both must live as long as this object. The file name stands in the messages. */
    XmlInspector(const char* pszFileName, const XmlSource& source);

    /** Measures a file. @throws XmlException* for a fault. */
    Size inspect(const pugi::xml_node& file);

    /** @throws XmlException* with the place of an offset of the source. */
    [[noreturn]] void fail(std::size_t nOffset, const std::string& strWhat) const;

    /** The given node or the first element behind it among its siblings. */
    static pugi::xml_node elementFrom(pugi::xml_node node);

    /** Length of an element's own text; 0 for mere white space beside child elements. */
    static std::size_t textLength(const pugi::xml_node& element);

private:
    void inspectTree(const pugi::xml_node& root);
    void inspectElement(const pugi::xml_node& element);
    void inspectText(const pugi::xml_node& text) const;
    void refuseTwins(const pugi::xml_node& element, std::size_t nAttributes) const;
    [[noreturn]] void failTwin(const pugi::xml_node& element,
                               const pugi::xml_attribute& attribute) const;

    const char* m_pszFileName;
    const XmlSource& m_source;
    Size m_size;
};

} // namespace TAMFx::Common::Xml
