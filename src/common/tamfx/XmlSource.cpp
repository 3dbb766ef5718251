#include "common/tamfx/XmlSource.h"

#include <algorithm>

namespace TAMFx::Common::Xml {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

void appendUtf8(std::string& strText, char32_t character)
{
    const auto byte = [&strText](char32_t bits) { strText += static_cast<char>(bits); };
    if (character < 0x80) {
        byte(character);
        return;
    }
    if (character < 0x800) {
        byte(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            byte(0xE0 | (character >> 12));
        } else {
            byte(0xF0 | ((character >> 18) & 0x07));
            byte(0x80 | ((character >> 12) & 0x3F));
        }
        byte(0x80 | ((character >> 6) & 0x3F));
    }
    byte(0x80 | (character & 0x3F));
}

/** Units of one, two or four bytes; bytes at the end that make no whole unit are left out. */
std::u32string unitsOf(const std::string& strContent, std::size_t nWidth, bool bBig)
{
    std::u32string units;
    units.reserve(strContent.size() / nWidth);
    for (std::size_t i = 0; i + nWidth <= strContent.size(); i += nWidth) {
        char32_t unit = 0;
        for (std::size_t n = 0; n < nWidth; ++n) {
            const std::size_t nByte = bBig ? i + n : i + nWidth - 1 - n;
            unit = (unit << 8) | static_cast<unsigned char>(strContent[nByte]);
        }
        units += unit;
    }
    return units;
}

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/** Joins surrogate pairs. One without its partner is dropped, as the parser does it. */
std::u32string joined(const std::u32string& units)
{
    std::u32string characters;
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (isHighSurrogate(units[i]) && i + 1 < units.size() && isLowSurrogate(units[i + 1])) {
            characters += 0x10000 + ((units[i] & 0x3FF) << 10) + (units[i + 1] & 0x3FF);
            ++i;
        } else if (!isHighSurrogate(units[i]) && !isLowSurrogate(units[i])) {
            characters += units[i];
        }
    }
    return characters;
}

std::u32string charactersOf(const std::string& strContent, XmlSource::Encoding encoding)
{
    switch (encoding) {
    case XmlSource::Encoding::Utf16Little:
        return joined(unitsOf(strContent, 2, false));
    case XmlSource::Encoding::Utf16Big:
        return joined(unitsOf(strContent, 2, true));
    case XmlSource::Encoding::Utf32Little:
        return unitsOf(strContent, 4, false);
    case XmlSource::Encoding::Utf32Big:
        return unitsOf(strContent, 4, true);
    default:
        return unitsOf(strContent, 1, true);
    }
}

bool isInsideCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

} // namespace

XmlSource::XmlSource(const std::string& strContent, Encoding encoding)
    : m_text(strContent)
{
    if (encoding == Encoding::Utf8)
        return;
    for (const char32_t character : charactersOf(strContent, encoding))
        appendUtf8(m_strConverted, character);
    m_text = m_strConverted;
}

XmlSource::Place XmlSource::placeOf(std::size_t nOffset) const
{
    std::size_t nEnd = std::min(nOffset, m_text.size());
    while (nEnd > 0 && nEnd < m_text.size() && isInsideCharacter(m_text[nEnd]))
        --nEnd;
    Place place = {1, 1};
    std::size_t i = m_text.substr(0, byteOrderMark.size()) == byteOrderMark ? 3 : 0;
    for (; i < nEnd; ++i) {
        const bool bPair = m_text[i] == '\r' && i + 1 < m_text.size() && m_text[i + 1] == '\n';
        if (m_text[i] == '\n' || (m_text[i] == '\r' && !bPair)) {
            ++place.nLine;
            place.nColumn = 1;
        } else if (!bPair && !isInsideCharacter(m_text[i])) {
            ++place.nColumn;
        }
    }
    return place;
}

} // namespace TAMFx::Common::Xml
