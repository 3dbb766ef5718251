#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace TAMFx::Common::Xml {

/**
 * The text of an XML file as its parser sees it, which is UTF-8 whatever the file holds. Offsets
 * are bytes of that text.
 */
class XmlSource
{
public:
    /** How the content of a file is written. */
    enum class Encoding {
        Utf8,
        Utf16Little,
        Utf16Big,
        Utf32Little,
        Utf32Big,
        Latin1,
    };

    /** Lines and columns count from 1, columns in characters. */
    struct Place
    {
        int nLine;
        int nColumn;
    };

    /** The content must live as long as this object. */
    XmlSource(const std::string& strContent, Encoding encoding);

    /** The text, which begins with a byte-order mark if the file does. */
    std::string_view text() const { return m_text; }

    /** Line and column of an offset; a byte-order mark and the LF of CR LF count nothing. */
    Place placeOf(std::size_t nOffset) const;

private:
    std::string m_strConverted;
    std::string_view m_text;
};

} // namespace TAMFx::Common::Xml
