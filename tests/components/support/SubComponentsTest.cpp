#include "components/support/SubComponents.h"

#include "components/PlainComponent.h"
#include "support/PanelTest.h"

#include <climits>

using namespace PANFx::Components;
using namespace PANFx::Testing;

namespace {

class SubComponentsTest : public PanelTest
{
protected:
    SubComponentsTest()
        : m_owner(&panel(), "owner")
    {
        for (const char* id : {"a", "b", "c", "b"})
            m_owner.adopt(new PlainComponent(&m_owner, id));
    }

    ZELComponent* part(int index) { return m_owner.ZELComponent::getSubComponent(index); }

    void drop(int index) { delete part(index)->getQWidget(); }

    PlainComponent m_owner;
};

} // namespace

TEST_F(SubComponentsTest, givesWhatStandsAtAPlace)
{
    EXPECT_EQ(subComponentAt(m_owner, 0), part(0));
    EXPECT_EQ(subComponentAt(m_owner, 3), part(3));
}

TEST_F(SubComponentsTest, aPlaceThatThereIsNotIsEmptyAndNoFault)
{
    for (const int index : {-1, 4, INT_MIN, INT_MAX})
        EXPECT_EQ(subComponentAt(m_owner, index), nullptr) << index;
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(SubComponentsTest, aPlaceStaysWhenItsComponentGoes)
{
    drop(1);
    EXPECT_EQ(subComponentAt(m_owner, 1), nullptr);
    EXPECT_EQ(subComponentAt(m_owner, 2)->m_strID, "c");
}

TEST_F(SubComponentsTest, findsTheFirstOfAKind)
{
    EXPECT_EQ(firstOfType(m_owner, "PlainComponent"), part(0));
    part(2)->m_strType = "Other";
    part(3)->m_strType = "Other";
    EXPECT_EQ(firstOfType(m_owner, "Other"), part(2));
    drop(2);
    EXPECT_EQ(firstOfType(m_owner, "Other"), part(3));
    for (const char* type : {"", "Othe", "Other ", "other"})
        EXPECT_EQ(firstOfType(m_owner, type), nullptr) << "compared whole: " << type;
}

TEST_F(SubComponentsTest, findsTheFirstWithAnId)
{
    EXPECT_EQ(indexOfSubComponent(m_owner, "b"), 1);
    EXPECT_EQ(indexOfSubComponent(m_owner, "c"), 2);
    EXPECT_EQ(indexOfSubComponent(m_owner, ""), -1);
    EXPECT_EQ(indexOfSubComponent(m_owner, "owner"), -1);
    drop(1);
    EXPECT_EQ(indexOfSubComponent(m_owner, "b"), 3);
}

TEST_F(SubComponentsTest, passesOverAnEntryOfNothing)
{
    m_owner.m_dqSubComponents.push_front(nullptr);
    EXPECT_EQ(subComponentAt(m_owner, 0), nullptr);
    EXPECT_EQ(firstOfType(m_owner, "PlainComponent"), part(1));
    EXPECT_EQ(indexOfSubComponent(m_owner, "a"), 1);
}

TEST_F(SubComponentsTest, anOwnerOfNothingHasNothing)
{
    PlainComponent empty(&panel(), "empty");
    EXPECT_EQ(subComponentAt(empty, 0), nullptr);
    EXPECT_EQ(firstOfType(empty, "PlainComponent"), nullptr);
    EXPECT_EQ(indexOfSubComponent(empty, "empty"), -1);
}
