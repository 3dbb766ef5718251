#include "common/tamfx/XmlParser.h"

#include "common/tamfx/FileAccess.h"
#include "common/tamfx/XmlSource.h"

#include <pugixml.hpp>
#include <string_view>

namespace TAMFx::Common::Xml {

namespace {

constexpr unsigned commonFlags = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol |
                                 pugi::parse_wconv_attribute | pugi::parse_fragment;

// White space is kept, since a text of one blank counts; text outside the root is kept, so that
// it can be refused.
constexpr unsigned allTexts = commonFlags | pugi::parse_ws_pcdata;

// Blanks count only as the whole content of an element, and a text stands in its element.
constexpr unsigned plainTexts =
    commonFlags | pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;

// The parser turns whatever encoding it finds into UTF-8, and Latin-1 grows most.
constexpr std::size_t mostUtf8OfAByte = 2;

/** Whether that character stands behind a "<" anywhere but at the very begin. */
bool hasMarkup(std::string_view content, char mark)
{
    for (auto at = content.find(mark, 2); at != content.npos; at = content.find(mark, at + 1)) {
        if (content[at - 1] == '<')
            return true;
    }
    return false;
}

/**
 * Whether there are only elements behind the declaration. Comments and the like cut a text into
 * pieces, and blanks among the pieces count.
 */
bool hasOnlyElements(std::string_view content)
{
    return content.substr(0, 2) != "<!" && !hasMarkup(content, '!') && !hasMarkup(content, '?');
}

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

/** The short way, which nearly all files take. False for the others. */
bool parsePlain(const char* pszFileName, const std::string& strContent, XmlWalk::Visitor& visitor)
{
    if (strContent.find('\0') != std::string::npos || !hasOnlyElements(strContent))
        return false;
    pugi::xml_document file;
    const pugi::xml_parse_result result =
        file.load_buffer(strContent.data(), strContent.size(), plainTexts);
    if (!result || encodingOf(result) != XmlSource::Encoding::Utf8)
        return false;
    const XmlSource source(strContent, XmlSource::Encoding::Utf8);
    visitor.begin(strContent.size());
    return XmlWalk(pszFileName, source, true, visitor).run(file);
}

void parseAll(const char* pszFileName, const std::string& strContent, XmlWalk::Visitor& visitor)
{
    pugi::xml_document file;
    const pugi::xml_parse_result result =
        file.load_buffer(strContent.data(), strContent.size(), allTexts);
    const XmlSource source(strContent, encodingOf(result));
    XmlWalk walk(pszFileName, source, false, visitor);
    const auto nNul = source.text().find('\0');
    if (nNul != std::string_view::npos)
        walk.fail(nNul, "NUL character");
    if (!result)
        walk.fail(static_cast<std::size_t>(result.offset), result.description());
    visitor.begin(mostUtf8OfAByte * strContent.size());
    walk.run(file);
}

} // namespace

void XmlParser::parse(const char* pszFileName, const std::string& strContent,
                      XmlWalk::Visitor& visitor)
{
    if (!parsePlain(pszFileName, strContent, visitor))
        parseAll(pszFileName, strContent, visitor);
}

bool XmlParser::parseFile(const std::string& strPath, XmlWalk::Visitor& visitor)
{
    std::string strContent;
    if (readFile(strPath, strContent) != 0)
        return false;
    const std::string strName = strPath.substr(strPath.rfind('/') + 1);
    parse(strName.c_str(), strContent, visitor);
    return true;
}

} // namespace TAMFx::Common::Xml
