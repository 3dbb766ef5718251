#include "common/tamfx/NodeList.h"

#include "common/tamfx/Node.h"

#include <climits>
#include <gtest/gtest.h>
#include <type_traits>

using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::NodeList;

TEST(NodeListTest, GivesItsElementsInOrder)
{
    Node first("first");
    Node second("second");
    NodeList list;
    EXPECT_EQ(list.getNodeCount(), 0);
    list.addNode(&first);
    list.addNode(&second);
    EXPECT_EQ(list.getNodeCount(), 2);
    EXPECT_EQ(list.getNode(0), &first);
    EXPECT_EQ(list.getNode(1), &second);
}

TEST(NodeListTest, AnswersABadIndexWithNull)
{
    Node only("only");
    NodeList list;
    list.addNode(&only);
    for (const int index : {-1, 1, INT_MIN, INT_MAX})
        EXPECT_EQ(list.getNode(index), nullptr) << index;
}

TEST(NodeListTest, IsFreedThroughItsVirtualDestructor)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<NodeList>);
}
