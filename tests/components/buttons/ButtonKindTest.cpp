// asImageButton() of ButtonKind is not exported: it is tested through the pad, whose keys are
// buttons.

#include "components/ComponentTable.h"
#include "components/pads/NumPadTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ComponentEntry;
using PANFx::Components::ZELComponent;

namespace {

class ButtonKindTest : public NumPadTest
{
protected:
    // a pad whose key "num1" is a component of that keyword
    OpenPad* padWithKey(const std::string& keyword)
    {
        return make(padWith("<backimage file='base.png'/><Components>" +
                            buttons({"num0", "num00", "close"}) + "<" + keyword +
                            "><num1 title='1' style='normal' file='key.png'>"
                            "<image up='key.png' down='key.png' dim='key.png' start='key.png' "
                            "mid='key.png' end='key.png'/>"
                            "<iconImg up='key.png' down='key.png' dim='key.png'/>"
                            "<position x='0' y='90' width='40' height='30'/></num1></" +
                            keyword + "></Components>"));
    }

    static std::vector<const char*> buttonKeywords()
    {
        std::vector<const char*> keywords;
        for (const ComponentEntry& entry : PANFx::Components::buttonTable())
            keywords.push_back(entry.keyword);
        return keywords;
    }
};

} // namespace

TEST_F(ButtonKindTest, eachKeywordOfAButtonMakesAKey)
{
    EXPECT_EQ(buttonKeywords().size(), 7u);
    for (const char* const keyword : buttonKeywords()) {
        OpenPad* const made = padWithKey(keyword);
        ZELComponent* const component = made->getSubComponent("num1");
        ASSERT_NE(component, nullptr) << keyword;
        EXPECT_EQ(static_cast<ZELComponent*>(made->m_pNumBtn[1]), component) << keyword;
        send(made, EVENT_MOUSE_UP, component->getQWidget(), "num1");
        EXPECT_EQ(reports(made), std::vector<int>{1}) << keyword;
    }
}

TEST_F(ButtonKindTest, otherComponentsAreNone)
{
    for (const char* const keyword :
         {"label", "imagebox", "imageEdit", "imageDateEdit", "lineedit", "radiogroup"}) {
        OpenPad* const made = padWithKey(keyword);
        ASSERT_NE(made->getSubComponent("num1"), nullptr) << keyword;
        EXPECT_EQ(made->m_pNumBtn[1], nullptr) << keyword;
        send(made, EVENT_MOUSE_UP, made->getSubComponent("num1")->getQWidget(), "num1");
        EXPECT_EQ(panel().takeTypes(), Types{}) << keyword;
    }
    log().expectError("[ZELNumPad] pad: the key num1 is no button", 6, "ZELNumPad");
}
