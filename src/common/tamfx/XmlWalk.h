#pragma once

#include "common/tamfx/XmlSource.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pugi {
class xml_attribute;
class xml_node;
} // namespace pugi

namespace TAMFx::Common::Xml {

/**
 * One walk over the elements of a parsed file, in document order. What the parser lets pass and
 * is not well-formed nevertheless is refused on the way.
 */
class XmlWalk
{
public:
    /** An attribute of an element, for the time of that call. No text is null. */
    struct Attribute
    {
        const char* pszName;
        const char* pszValue;
    };

    /** An element; all of it ends with the call that hands it over. No text is null. */
    struct Element
    {
        const char* pszName;
        const char* pszText;          ///< all pieces; "" for blanks beside child elements
        const Attribute* pAttributes; ///< in their order; may be null where there are none
        std::size_t nAttributes;
        std::size_t nChildren; ///< child elements
        std::size_t nDepth;    ///< 0 for the root
    };

    /** Gets the elements. */
    class Visitor
    {
    public:
        virtual ~Visitor() = default;

        /**
         * A walk is to begin; what came from one before, which was broken off, counts no more.
         * @param nBytes all names, values and texts to come take no more together, each with a
         *        NUL behind it
         */
        virtual void begin(std::size_t nBytes) = 0;

        /** One element, parents before their children. Its texts are to be copied to be kept. */
        virtual void visit(const Element& element) = 0;
    };

    /** How deep elements can be nested. */
    static constexpr std::size_t maximumDepth = 256;

    /**
     * All must live as long as this object. The file name stands in the messages.
     * @param bPlain the file was parsed without the blanks between elements
     */
    XmlWalk(const char* pszFileName, const XmlSource& source, bool bPlain, Visitor& visitor);

    /**
     * Walks over a parsed file.
     * @return false when the walk was broken off: the file is to be walked over as plain, and an
     *         element has a text beside a child, where blanks count
     * @throws XmlException* for a fault
     */
    bool run(const pugi::xml_node& file);

    /** @throws XmlException* with the place of an offset of the source. */
    [[noreturn]] void fail(std::size_t nOffset, const std::string& strWhat) const;

private:
    bool walkTree(const pugi::xml_node& root);
    bool visitElement(const pugi::xml_node& element, std::size_t nDepth);
    void readAttributes(const pugi::xml_node& element);
    std::size_t firstTwin() const;
    std::size_t firstTwinOfMany() const;
    [[noreturn]] void failAtAttribute(const pugi::xml_node& element, std::size_t nAttribute) const;
    void checkOutside(const pugi::xml_node& text) const;

    const char* m_pszFileName;
    const XmlSource& m_source;
    const bool m_bPlain;
    Visitor& m_visitor;
    std::vector<Attribute> m_attributes; ///< of the present element
    std::string m_strText;               ///< of the present element, where it has pieces
};

} // namespace TAMFx::Common::Xml
