#include "resource/Font.h"

#include <QColor>
#include <QFont>

#include <cctype>
#include <string>

namespace PANFx::Resource {

namespace {

constexpr size_t colourDigits = 6;

// "A" to "F" give 10 to 15; other characters what their code makes of it
int digitValue(unsigned char c)
{
    return c >= '0' && c <= '9' ? c - '0' : c - 55;
}

int pairValue(const std::string& text, size_t at)
{
    return 16 * digitValue(static_cast<unsigned char>(text[at])) +
           digitValue(static_cast<unsigned char>(text[at + 1]));
}

} // namespace

Font::Font()
    : m_pFont(new QFont)
    , m_pColor(new QColor(0, 0, 0, 255))
{
}

Font::~Font()
{
    delete m_pFont;
    delete m_pColor;
}

void Font::setColor(const char* pszColor)
{
    std::string text = pszColor ? pszColor : "";
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (text.size() < colourDigits)
        return;
    m_pColor->setRed(pairValue(text, 0));
    m_pColor->setGreen(pairValue(text, 2));
    m_pColor->setBlue(pairValue(text, 4));
}

} // namespace PANFx::Resource
