#include "common/tamfx/String.h"

#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <utility>

TEST(StringTest, StartsEmpty)
{
    const String text;
    EXPECT_STREQ(text.c_str(), "");
}

TEST(StringTest, CopiesTheTextItIsMadeFrom)
{
    char buffer[] = "kr";
    const String text(buffer);
    buffer[0] = 'x';
    EXPECT_STREQ(text.c_str(), "kr");
}

TEST(StringTest, TakesNullForAnEmptyText)
{
    const char* const none = nullptr;
    String text(none);
    EXPECT_STREQ(text.c_str(), "");
    text = "something";
    text = none;
    EXPECT_STREQ(text.c_str(), "");
}

TEST(StringTest, IsReplacedByAnAssignedText)
{
    String text("a text that is too long for a small buffer of any kind");
    char buffer[] = "short";
    text = buffer;
    buffer[0] = 'x';
    EXPECT_STREQ(text.c_str(), "short");
}

TEST(StringTest, MayBeAssignedItsOwnEnd)
{
    String text("a text that is too long for a small buffer of any kind");
    text = text.c_str() + 2;
    EXPECT_STREQ(text.c_str(), "text that is too long for a small buffer of any kind");
}

TEST(StringTest, FormatsAsItsCallersDo)
{
    String text;
    text.Format("%d", -480);
    EXPECT_STREQ(text.c_str(), "-480");
    text.Format("%d/%d", 3, 12);
    EXPECT_STREQ(text.c_str(), "3/12");
    text.Format("num%d", 9);
    EXPECT_STREQ(text.c_str(), "num9");
}

TEST(StringTest, FormatsTheLimitsOfInt)
{
    String text;
    text.Format("%d %d", INT_MIN, INT_MAX);
    EXPECT_EQ(text.c_str(), std::to_string(INT_MIN) + " " + std::to_string(INT_MAX));
}

TEST(StringTest, FormatsATextOfAnyLength)
{
    const std::string longText(100000, 'x');
    String text;
    text.Format("<%s>", longText.c_str());
    EXPECT_EQ(text.c_str(), "<" + longText + ">");
}

TEST(StringTest, MayFormatItself)
{
    String text("a text that is too long for a small buffer of any kind");
    text.Format("[%s]", text.c_str());
    EXPECT_STREQ(text.c_str(), "[a text that is too long for a small buffer of any kind]");
}

TEST(StringTest, FormatsToAnEmptyText)
{
    String text("before");
    text.Format("%s", "");
    EXPECT_STREQ(text.c_str(), "");
}

TEST(StringTest, KeepsItsBufferReadableUntilTheNextFormat)
{
    String text;
    text.Format("num%d", 7);
    const char* const buffer = text;
    char* const writable = text.data();
    EXPECT_STREQ(buffer, "num7");
    EXPECT_EQ(buffer, writable);
    EXPECT_EQ(writable[std::strlen("num7")], '\0');
}

TEST(StringTest, ComparesTextsAndNotAddresses)
{
    const String text("chn");
    const std::string other = "chn";
    EXPECT_TRUE(text == other.c_str());
    EXPECT_TRUE(text == String("chn"));
    EXPECT_TRUE(text != "kr");
    EXPECT_TRUE(text != String("ch"));
    const char* const none = nullptr;
    EXPECT_FALSE(String("") == none);
}

TEST(StringTest, IsCopiedWithItsOwnBuffer)
{
    String first("first");
    String second(first);
    first = "changed";
    EXPECT_STREQ(second.c_str(), "first");
    second = first;
    first = "again";
    EXPECT_STREQ(second.c_str(), "changed");
}

TEST(StringTest, IsPolymorphic)
{
    EXPECT_TRUE(std::is_polymorphic_v<String>);
    EXPECT_TRUE(std::has_virtual_destructor_v<String>);
}
