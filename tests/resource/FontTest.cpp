#include "resource/Font.h"

#include <QColor>
#include <QFont>

#include <gtest/gtest.h>
#include <memory>

using PANFx::Resource::Font;

namespace {

// the colour that a text makes of opaque black
QColor colourOf(const char* text)
{
    Font font;
    font.setColor(text);
    return *font.m_pColor;
}

} // namespace

TEST(Font, beginsAsQtsFontInOpaqueBlack)
{
    const Font font;
    EXPECT_EQ(*font.m_pFont, QFont());
    EXPECT_EQ(*font.m_pColor, QColor(0, 0, 0, 255));
}

TEST(Font, takesTheColourFromSixDigitsOfEitherCase)
{
    EXPECT_EQ(colourOf("ff8000"), QColor(255, 128, 0));
    EXPECT_EQ(colourOf("FF8000"), QColor(255, 128, 0));
    EXPECT_EQ(colourOf("Ff8000"), QColor(255, 128, 0));
    EXPECT_EQ(colourOf("0a1B9c"), QColor(10, 27, 156));
    EXPECT_EQ(colourOf("ffffff"), QColor(255, 255, 255));
}

TEST(Font, keepsTheColourForFewerThanSixDigits)
{
    for (const char* text : {"", "f", "fff", "ff800"})
        EXPECT_EQ(colourOf(text), QColor(0, 0, 0)) << text;
    Font font;
    font.setColor("ff8000");
    font.setColor("00000");
    font.setColor(nullptr);
    EXPECT_EQ(*font.m_pColor, QColor(255, 128, 0));
}

TEST(Font, ignoresWhatFollowsTheSixthDigit)
{
    EXPECT_EQ(colourOf("ff8000ff"), QColor(255, 128, 0));
    EXPECT_EQ(colourOf("ff8000 red"), QColor(255, 128, 0));
}

TEST(Font, takesANumberSignForADigit)
{
    // -20 and f are -305, f and 8 are 248, 0 and 0
    EXPECT_EQ(colourOf("#ff8000"), QColor(0, 248, 0));
}

TEST(Font, keepsOddDigitsWithinTheRangeOfColours)
{
    EXPECT_EQ(colourOf("zzzzzz"), QColor(255, 255, 255)); // 595 each
    EXPECT_EQ(colourOf("0-0-0-"), QColor(0, 0, 0));       // -10 each
    EXPECT_EQ(colourOf("0g1g0 "), QColor(16, 32, 0));
}

TEST(Font, takesBytesBeyondAsciiForLargeDigits)
{
    // as a signed number the byte would be a negative digit
    EXPECT_EQ(colourOf("\xED\x99\x95\xEC\x9D\xB8"), QColor(255, 255, 255));
}

TEST(Font, leavesTheOpacityAlone)
{
    Font font;
    font.m_pColor->setAlpha(100);
    font.setColor("ff8000");
    EXPECT_EQ(*font.m_pColor, QColor(255, 128, 0, 100));
    font.setColor("zz--00");
    EXPECT_EQ(font.m_pColor->alpha(), 100);
    EXPECT_TRUE(font.m_pColor->isValid());
}

TEST(Font, ownsItsFontAndColour)
{
    // what a leak or a double delete of either would be is for the sanitizer to say
    const std::unique_ptr<TAMFx::Data::Object> object = std::make_unique<Font>();
    const auto& font = static_cast<const Font&>(*object);
    EXPECT_NE(font.m_pFont, nullptr);
    EXPECT_NE(Font().m_pFont, font.m_pFont);
    EXPECT_NE(Font().m_pColor, font.m_pColor);
}
