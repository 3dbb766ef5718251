// ComponentsNode is not exported: it is tested through the pad, which has other children too.

#include "components/pads/NumPadTest.h"

using namespace PANFx::Testing;

namespace {

class ComponentsNodeTest : public NumPadTest
{
protected:
    static const std::string background;
};

const std::string ComponentsNodeTest::background = "<backimage file='base.png'/>";

} // namespace

TEST_F(ComponentsNodeTest, theComponentsStandInAChildOfTheirOwn)
{
    EXPECT_EQ(make(padWith(background + components(allKeys())))->getComponentCount(), 17);
}

TEST_F(ComponentsNodeTest, withoutThatChildTheyStandInTheElement)
{
    // the other children are taken for groups; they hold nothing, so nothing is said of them
    auto* const made = make(padWith(background + buttons(allKeys())));
    EXPECT_EQ(made->getComponentCount(), 17);
    EXPECT_EQ(made->geometry(), QRect(300, 200, 240, 160));
    made->setType(1);
    Touch::tapWindow(made->key("num3"));
    EXPECT_EQ(reports(made), std::vector<int>{3});
}

TEST_F(ComponentsNodeTest, withThatChildTheElementsOwnGroupsAreLeftOut)
{
    auto* const made =
        make(padWith(background + buttons({"num1"}) + components({"num0", "num00", "close"})));
    EXPECT_EQ(made->getComponentCount(), 3);
    EXPECT_EQ(made->m_pNumBtn[1], nullptr);
}

TEST_F(ComponentsNodeTest, anEmptyChildCountsToo)
{
    for (const char* const id : {"num0", "num00", "close"})
        expectNoKey(id);
    auto* const made = make(padWith(background + buttons(allKeys()) + "<Components/>"));
    EXPECT_EQ(made->getComponentCount(), 0);
}

TEST_F(ComponentsNodeTest, itsNameIsExact)
{
    log().expectError("[createSubComponent] Fail to create a component (components, button)", 1,
                      "ZELWindow");
    auto* const made = make(padWith(background + buttons({"num0", "num00", "close"}) +
                                    "<components><button/></components>"));
    EXPECT_EQ(made->getComponentCount(), 3);
}
