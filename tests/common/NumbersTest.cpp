#include "common/Numbers.h"

#include "support/DecimalComma.h"

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

using PANFx::Common::toDouble;
using PANFx::Common::toFixed;
using PANFx::Common::toInt;
using PANFx::Testing::DecimalComma;

TEST(Numbers, readWholeNumbersInBaseTen)
{
    EXPECT_EQ(toInt("0"), 0);
    EXPECT_EQ(toInt("480"), 480);
    EXPECT_EQ(toInt("-17"), -17);
    EXPECT_EQ(toInt("+17"), 17);
    EXPECT_EQ(toInt(" \t\n12"), 12);
    EXPECT_EQ(toInt("010"), 10);
    EXPECT_EQ(toInt("0x10"), 0);
}

TEST(Numbers, endAtTheFirstCharacterThatIsNoDigit)
{
    EXPECT_EQ(toInt("12px"), 12);
    EXPECT_EQ(toInt("1.9"), 1);
    EXPECT_EQ(toInt("1e3"), 1);
    EXPECT_EQ(toInt("5/20"), 5);
    EXPECT_EQ(toInt("- 5"), 0);
}

TEST(Numbers, areZeroWhereThereIsNone)
{
    EXPECT_EQ(toInt(nullptr), 0);
    EXPECT_EQ(toInt(""), 0);
    EXPECT_EQ(toInt("wide"), 0);
    EXPECT_EQ(toInt("\xEF\xBC\x91"), 0); // a full-width digit one
}

TEST(Numbers, stopAtTheLimitsOfInt)
{
    EXPECT_EQ(toInt("2147483647"), INT_MAX);
    EXPECT_EQ(toInt("-2147483648"), INT_MIN);
    EXPECT_EQ(toInt("2147483648"), INT_MAX);
    EXPECT_EQ(toInt("-2147483649"), INT_MIN);
    EXPECT_EQ(toInt("4294967297"), INT_MAX);
    EXPECT_EQ(toInt("99999999999999999999999"), INT_MAX);
    EXPECT_EQ(toInt("-99999999999999999999999"), INT_MIN);
}

TEST(Numbers, readDecimalNumbers)
{
    EXPECT_EQ(toDouble("1.5"), 1.5);
    EXPECT_EQ(toDouble("-0.25"), -0.25);
    EXPECT_EQ(toDouble(".5"), 0.5);
    EXPECT_EQ(toDouble("3"), 3.0);
    EXPECT_EQ(toDouble(" 2.5mm"), 2.5);
    EXPECT_EQ(toDouble("1,5"), 1.0);
    EXPECT_EQ(toDouble(nullptr), 0.0);
    EXPECT_EQ(toDouble(""), 0.0);
    EXPECT_EQ(toDouble("wide"), 0.0);
}

TEST(Numbers, readOddDecimalsAsTheCLibraryDoes)
{
    EXPECT_EQ(toDouble("0x1A"), 26.0);
    EXPECT_EQ(toDouble("1e300"), 1e300);
    EXPECT_EQ(toDouble("1e999"), HUGE_VAL);
    EXPECT_TRUE(std::isnan(toDouble("nan")));
}

TEST(Numbers, haveADecimalPointWhateverTheLocaleSays)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    ASSERT_EQ(std::strtod("3.5", nullptr), 3.0) << "the locale has no effect";
    EXPECT_EQ(toDouble("3.5"), 3.5);
    EXPECT_EQ(toDouble("3,5"), 3.0);
    EXPECT_EQ(toDouble("1.234.567"), 1.234);
    EXPECT_EQ(toInt("1.234"), 1);
}

TEST(Numbers, areWrittenInFixedNotation)
{
    EXPECT_EQ(toFixed(5, 2), "5.00");
    EXPECT_EQ(toFixed(1.26, 1), "1.3");
    EXPECT_EQ(toFixed(0.5, 0), "0");
    EXPECT_EQ(toFixed(1.5, 0), "2");
    EXPECT_EQ(toFixed(-3.14159, 3), "-3.142");
    EXPECT_EQ(toFixed(-0.0, 1), "-0.0");
    EXPECT_EQ(toFixed(1e21, 0), "1000000000000000000000");
}

TEST(Numbers, areWrittenWithSixPlacesForANegativeNumberOfThem)
{
    EXPECT_EQ(toFixed(1.5, -1), "1.500000");
    EXPECT_EQ(toFixed(2, INT_MIN), "2.000000");
}

TEST(Numbers, areWrittenWholeHoweverLong)
{
    EXPECT_EQ(toFixed(1e300, 2).size(), 301u + 3);
    EXPECT_EQ(toFixed(-1.7976931348623157e308, 1100).size(), 1u + 309 + 1 + 1100);
    EXPECT_EQ(toFixed(0.25, 1100), "0.25" + std::string(1098, '0'));
    EXPECT_EQ(toFixed(0.25, 1101), toFixed(0.25, 1100));
    EXPECT_EQ(toFixed(0.25, INT_MAX), toFixed(0.25, 1100));
}

TEST(Numbers, thatAreNoneAreWrittenAsTheCLibraryDoes)
{
    EXPECT_EQ(toFixed(HUGE_VAL, 2), "inf");
    EXPECT_EQ(toFixed(-HUGE_VAL, 2), "-inf");
    EXPECT_EQ(toFixed(std::nan(""), 2), "nan");
}

TEST(Numbers, areWrittenWithADecimalPointAndLeaveTheLocaleAsItWas)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    EXPECT_EQ(toFixed(3.5, 1), "3.5");
    EXPECT_EQ(toFixed(1234567.5, 1), "1234567.5");
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 3.5);
    EXPECT_STREQ(text, "3,5");
}
