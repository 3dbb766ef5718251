#include "resource/EnPad.h"
#include "resource/EspPad.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using PANFx::Resource::EnPad;
using PANFx::Resource::EspPad;
using PANFx::Resource::LangPad;

// EnPad and EspPad differ in their names alone.
template <class Pad>
class LatinPad : public ::testing::Test
{
};

using LatinPads = ::testing::Types<EnPad, EspPad>;
TYPED_TEST_SUITE(LatinPad, LatinPads);

TYPED_TEST(LatinPad, isALangPadAndNothingMore)
{
    EXPECT_TRUE((std::is_base_of_v<LangPad, TypeParam>));
    EXPECT_EQ(sizeof(TypeParam), sizeof(LangPad));
}

TYPED_TEST(LatinPad, doesWithEachKeyWhatALangPadDoes)
{
    const std::unique_ptr<LangPad> pad = std::make_unique<TypeParam>();
    LangPad plain;
    EXPECT_TRUE(pad->getCompleteText().isNull());
    for (const int code : {8, 0x41, 0x20, 0xF1, 8, 0x3131, 0x314F, 0x1F600, 0, 8}) {
        EXPECT_EQ(pad->getCompleteText(code, 3), plain.getCompleteText(code, 3)) << code;
        EXPECT_EQ(pad->getCompleteText(), plain.getCompleteText()) << code;
    }
    EXPECT_EQ(pad->getCompleteText().length(), 5);
}

TYPED_TEST(LatinPad, editsItsTextAsALangPadDoes)
{
    const std::unique_ptr<LangPad> pad = std::make_unique<TypeParam>();
    pad->setCompleteText(QStringLiteral("text"));
    pad->backspace();
    pad->space();
    EXPECT_EQ(pad->getCompleteText().toStdString(), "tex ");
    pad->clear();
    EXPECT_TRUE(pad->getCompleteText().isNull());
}
