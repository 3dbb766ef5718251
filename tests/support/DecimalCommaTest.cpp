#include "support/DecimalComma.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

using PANFx::Testing::DecimalComma;

namespace {

std::string written(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", number);
    return text;
}

} // namespace

TEST(DecimalComma, changesReadingAndWritingOfNumbersWhileItLives)
{
    {
        const DecimalComma comma;
        if (!comma.active())
            GTEST_SKIP() << "this system has no localedef";
        EXPECT_EQ(std::strtod("3.5", nullptr), 3.0);
        EXPECT_EQ(std::strtod("3,5", nullptr), 3.5);
        EXPECT_EQ(written(3.5), "3,5");
    }
    EXPECT_EQ(std::strtod("3.5", nullptr), 3.5);
    EXPECT_EQ(written(3.5), "3.5");
    const DecimalComma again;
    EXPECT_EQ(written(3.5), "3,5");
}
