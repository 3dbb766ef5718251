#include "common/tamfx/ArrayList.h"

#include "common/tamfx/Witness.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>

using PANFx::Testing::Witness;
using TAMFx::Data::Object;
using TAMFx::Data::Collection::ArrayList;

namespace {

class ArrayListTest : public ::testing::Test
{
protected:
    ArrayListTest() { Witness::alive = 0; }
};

} // namespace

TEST_F(ArrayListTest, StartsEmpty)
{
    EXPECT_EQ(ArrayList().Count(), 0);
}

TEST_F(ArrayListTest, AppendsTextsInOrder)
{
    ArrayList list;
    list.Add("home");
    list.Add("setup");
    EXPECT_EQ(list.Count(), 2);
    EXPECT_STREQ(list.AtString(0), "home");
    EXPECT_STREQ(list.AtString(1), "setup");
}

TEST_F(ArrayListTest, KeepsACopyOfAText)
{
    ArrayList list;
    {
        std::string dying(1000, 'a');
        list.Add(dying.c_str());
        dying.assign(1000, 'b');
    }
    EXPECT_EQ(list.AtString(0), std::string(1000, 'a'));
}

TEST_F(ArrayListTest, MayBeGivenOneOfItsOwnTexts)
{
    ArrayList list;
    list.Add("first");
    for (int i = 0; i < 100; ++i)
        list.Add(list.AtString(0));
    EXPECT_STREQ(list.AtString(100), "first");
}

TEST_F(ArrayListTest, TakesANullTextForAnEmptyOne)
{
    ArrayList list;
    list.Add(static_cast<const char*>(nullptr));
    EXPECT_EQ(list.Count(), 1);
    EXPECT_STREQ(list.AtString(0), "");
}

TEST_F(ArrayListTest, GivesObjectsBackAsTheyWereAdded)
{
    Witness first;
    Witness second;
    ArrayList list;
    list.Add(&first);
    list.Add(static_cast<Object*>(nullptr));
    list.Add(&second);
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(list.At(0), &first);
    EXPECT_EQ(list.At(1), nullptr);
    EXPECT_EQ(list.At(2), &second);
}

TEST_F(ArrayListTest, TellsTextsFromObjects)
{
    Witness object;
    ArrayList list;
    list.Add("text");
    list.Add(&object);
    EXPECT_EQ(list.At(0), nullptr);
    EXPECT_STREQ(list.AtString(1), "");
}

TEST_F(ArrayListTest, AnswersABadIndexWithNullOrAnEmptyText)
{
    ArrayList list;
    list.Add("only");
    for (const int index : {-1, 1, INT_MIN, INT_MAX}) {
        EXPECT_EQ(list.At(index), nullptr) << index;
        EXPECT_STREQ(list.AtString(index), "") << index;
    }
}

TEST_F(ArrayListTest, MovesLaterEntriesDownWhenOneIsRemoved)
{
    ArrayList list;
    for (const char* text : {"a", "b", "c"})
        list.Add(text);
    list.RemoveAt(1);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_STREQ(list.AtString(0), "a");
    EXPECT_STREQ(list.AtString(1), "c");
    list.RemoveAt(1);
    EXPECT_EQ(list.Count(), 1);
    EXPECT_STREQ(list.AtString(0), "a");
}

TEST_F(ArrayListTest, IgnoresTheRemovalOfABadIndex)
{
    ArrayList list;
    list.Add("only");
    for (const int index : {-1, 1, INT_MIN, INT_MAX})
        list.RemoveAt(index);
    EXPECT_EQ(list.Count(), 1);
}

TEST_F(ArrayListTest, IsEmptyAfterClearAndMayBeFilledAgain)
{
    ArrayList list;
    list.Add("old");
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    EXPECT_STREQ(list.AtString(0), "");
    list.Add("new");
    EXPECT_STREQ(list.AtString(0), "new");
}

TEST_F(ArrayListTest, FreesNoObjectUnlessItIsTold)
{
    Witness object;
    {
        ArrayList list;
        list.Add(&object);
        list.Add(&object);
        list.RemoveAt(0);
    }
    EXPECT_EQ(Witness::alive, 1);
}

TEST_F(ArrayListTest, MayHoldWhatIsNoObjectWhileItsDeleteFlagIsOff)
{
    struct Record
    {
        int number;
    } record = {3};
    ArrayList list;
    list.setDeleteFlag(false);
    list.Add(reinterpret_cast<Object*>(&record));
    EXPECT_EQ(reinterpret_cast<Record*>(list.At(0))->number, 3);
    list.Clear();
    EXPECT_EQ(record.number, 3);
}

TEST_F(ArrayListTest, FreesItsObjectsWithTheDeleteFlag)
{
    {
        ArrayList list;
        list.setDeleteFlag(true);
        list.Add(new Witness);
        list.Add(new Witness);
        list.Add(new Witness);
        list.Add("a text between");
        list.Add(static_cast<Object*>(nullptr));
        list.RemoveAt(1);
        EXPECT_EQ(Witness::alive, 2);
    }
    EXPECT_EQ(Witness::alive, 0);
}

TEST_F(ArrayListTest, FollowsTheFlagAsItStandsWhenSomethingLeaves)
{
    Witness spared;
    ArrayList list;
    list.setDeleteFlag(true);
    list.Add(&spared);
    list.setDeleteFlag(false);
    list.RemoveAt(0);
    EXPECT_EQ(Witness::alive, 1);
}

TEST_F(ArrayListTest, FreesNothingOnClearEvenWithTheDeleteFlag)
{
    Witness object;
    {
        ArrayList list;
        list.setDeleteFlag(true);
        list.Add(&object);
        list.Clear();
        EXPECT_EQ(list.Count(), 0);
    }
    EXPECT_EQ(Witness::alive, 1);
}

TEST_F(ArrayListTest, CannotBeCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<ArrayList>);
    EXPECT_FALSE(std::is_copy_assignable_v<ArrayList>);
    EXPECT_TRUE(std::has_virtual_destructor_v<ArrayList>);
}
