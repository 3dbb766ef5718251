#include "common/tamfx/Attribute.h"

#include <gtest/gtest.h>
#include <string>

using TAMFx::Common::Xml::Attribute;

TEST(AttributeTest, KeepsCopiesOfNameAndValue)
{
    std::string name(300, 'n');
    std::string value(300, 'v');
    const Attribute attribute(name.c_str(), value.c_str());
    name.assign(300, 'x');
    value.assign(300, 'x');
    EXPECT_EQ(attribute.getName(), std::string(300, 'n'));
    EXPECT_EQ(attribute.getValue(), std::string(300, 'v'));
}

TEST(AttributeTest, TakesAnyTextAsItIs)
{
    const Attribute attribute("a name", "<\"&amp; \n");
    EXPECT_STREQ(attribute.getName(), "a name");
    EXPECT_STREQ(attribute.getValue(), "<\"&amp; \n");
}

TEST(AttributeTest, TakesNullForAnEmptyText)
{
    const Attribute attribute(nullptr, nullptr);
    EXPECT_STREQ(attribute.getName(), "");
    EXPECT_STREQ(attribute.getValue(), "");
}
