#include "resource/EspPad.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using PANFx::Resource::EspPad;
using PANFx::Resource::LangPad;

TEST(EspPad, isALangPadAndNothingMore)
{
    EXPECT_TRUE((std::is_base_of_v<LangPad, EspPad>));
    EXPECT_EQ(sizeof(EspPad), sizeof(LangPad));
}

TEST(EspPad, doesWithEachKeyWhatALangPadDoes)
{
    const std::unique_ptr<LangPad> pad = std::make_unique<EspPad>();
    LangPad plain;
    EXPECT_TRUE(pad->getCompleteText().isNull());
    for (const int code : {8, 0x41, 0x20, 0xF1, 8, 0x3131, 0x314F, 0x1F600, 0, 8}) {
        EXPECT_EQ(pad->getCompleteText(code, 3), plain.getCompleteText(code, 3)) << code;
        EXPECT_EQ(pad->getCompleteText(), plain.getCompleteText()) << code;
    }
    EXPECT_EQ(pad->getCompleteText().length(), 5);
}

TEST(EspPad, editsItsTextAsALangPadDoes)
{
    const std::unique_ptr<LangPad> pad = std::make_unique<EspPad>();
    pad->setCompleteText(QStringLiteral("text"));
    pad->backspace();
    pad->space();
    EXPECT_EQ(pad->getCompleteText().toStdString(), "tex ");
    pad->clear();
    EXPECT_TRUE(pad->getCompleteText().isNull());
}
