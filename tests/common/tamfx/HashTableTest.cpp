#include "common/tamfx/HashTable.h"

#include "common/tamfx/Witness.h"

#include <chrono>
#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>

using PANFx::Testing::Witness;
using TAMFx::Data::Object;
using TAMFx::Data::Collection::ArrayList;
using TAMFx::Data::Collection::HashTable;

namespace {

class HashTableTest : public ::testing::Test
{
protected:
    HashTableTest() { Witness::alive = 0; }
};

/** Looks at its table and stores something in it when it dies. */
class Curious : public Object
{
public:
    explicit Curious(HashTable& table)
        : m_table(table)
    {
    }
    ~Curious() override
    {
        EXPECT_EQ(m_table.getCount(), 0);
        EXPECT_EQ(m_table.getValue("curious"), nullptr);
        m_table.AddObj("other", "stored at the end");
    }

private:
    HashTable& m_table;
};

std::string nameOf(int number)
{
    return "key number " + std::to_string(number);
}

} // namespace

TEST_F(HashTableTest, FindsTextsByTheirKey)
{
    HashTable table;
    table.AddObj("title", "Titel");
    table.AddObj("close", "Zu");
    EXPECT_EQ(table.getCount(), 2);
    EXPECT_STREQ(table.getStringValue("title"), "Titel");
    EXPECT_STREQ(table.getStringValue("close"), "Zu");
}

TEST_F(HashTableTest, FindsObjectsByTheirKey)
{
    Witness up;
    Witness down;
    HashTable table;
    table.AddObj("up", &up);
    table.AddObj("down", &down);
    EXPECT_EQ(table.getValue("up"), &up);
    EXPECT_EQ(table.getValue("down"), &down);
}

TEST_F(HashTableTest, AnswersAMissingKeyWithNullOrAnEmptyText)
{
    HashTable table;
    table.AddObj("key", "value");
    EXPECT_EQ(table.getValue("Key"), nullptr);
    EXPECT_STREQ(table.getStringValue("Key"), "");
    EXPECT_STREQ(table.getStringValue("ke"), "");
    EXPECT_STREQ(table.getStringValue(""), "");
}

TEST_F(HashTableTest, TellsTextsFromObjects)
{
    Witness object;
    HashTable table;
    table.AddObj("text", "value");
    table.AddObj("object", &object);
    EXPECT_EQ(table.getValue("text"), nullptr);
    EXPECT_STREQ(table.getStringValue("object"), "");
}

TEST_F(HashTableTest, KeepsCopiesOfKeyAndText)
{
    HashTable table;
    {
        std::string key(500, 'k');
        std::string text(500, 't');
        table.AddObj(key.c_str(), text.c_str());
        key.assign(500, 'x');
        text.assign(500, 'x');
    }
    EXPECT_EQ(table.getStringValue(std::string(500, 'k').c_str()), std::string(500, 't'));
}

TEST_F(HashTableTest, HoldsTheEmptyKeyLikeAnyOther)
{
    HashTable table;
    table.AddObj("", "nameless");
    EXPECT_STREQ(table.getStringValue(""), "nameless");
    table.Remove("");
    EXPECT_EQ(table.getCount(), 0);
}

TEST_F(HashTableTest, IsNotHarmedByANullKey)
{
    Witness object;
    HashTable table;
    table.setDeleteFlag(true);
    const char* const none = nullptr;
    table.AddObj(none, &object);
    table.AddObj(none, "text");
    EXPECT_EQ(table.getCount(), 0);
    EXPECT_EQ(table.getValue(none), nullptr);
    EXPECT_STREQ(table.getStringValue(none), "");
    table.Remove(none);
    EXPECT_EQ(Witness::alive, 1);
}

TEST_F(HashTableTest, TakesANullTextForAnEmptyOne)
{
    HashTable table;
    table.AddObj("key", static_cast<const char*>(nullptr));
    EXPECT_EQ(table.getCount(), 1);
    EXPECT_STREQ(table.getStringValue("key"), "");
}

TEST_F(HashTableTest, GivesItsValuesByPositionInTheOrderOfAdding)
{
    Witness objects[20];
    HashTable table;
    for (int i = 0; i < 20; ++i)
        table.AddObj(nameOf(19 - i).c_str(), &objects[i]);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(table.getValue(i), &objects[i]) << i;
}

TEST_F(HashTableTest, AnswersABadPositionWithNull)
{
    Witness object;
    HashTable table;
    table.AddObj("key", &object);
    for (const int index : {-1, 1, INT_MIN, INT_MAX})
        EXPECT_EQ(table.getValue(index), nullptr) << index;
}

TEST_F(HashTableTest, ReplacesAValueInItsPlace)
{
    Witness first;
    Witness second;
    Witness other;
    HashTable table;
    table.AddObj("a", &first);
    table.AddObj("b", &other);
    table.AddObj("a", &second);
    EXPECT_EQ(table.getCount(), 2);
    EXPECT_EQ(table.getValue(0), &second);
    EXPECT_EQ(table.getValue(1), &other);
    EXPECT_EQ(table.getValue("a"), &second);
}

TEST_F(HashTableTest, ReplacesATextByAnObjectAndBack)
{
    Witness object;
    HashTable table;
    table.AddObj("key", "text");
    table.AddObj("key", &object);
    EXPECT_EQ(table.getValue("key"), &object);
    EXPECT_STREQ(table.getStringValue("key"), "");
    table.AddObj("key", "again");
    EXPECT_EQ(table.getValue("key"), nullptr);
    EXPECT_STREQ(table.getStringValue("key"), "again");
}

TEST_F(HashTableTest, MayBeGivenTheTextItHolds)
{
    HashTable table;
    table.AddObj("key", "the value");
    table.AddObj("key", table.getStringValue("key") + 4);
    EXPECT_STREQ(table.getStringValue("key"), "value");
}

TEST_F(HashTableTest, ForgetsARemovedKeyOnly)
{
    HashTable table;
    for (const char* key : {"a", "b", "c", "d"})
        table.AddObj(key, key);
    table.Remove("b");
    table.Remove("not there");
    EXPECT_EQ(table.getCount(), 3);
    EXPECT_STREQ(table.getStringValue("b"), "");
    for (const char* key : {"a", "c", "d"})
        EXPECT_STREQ(table.getStringValue(key), key);
    EXPECT_STREQ(table.AtString(1), "c");
    table.AddObj("b", "back");
    EXPECT_STREQ(table.AtString(3), "back");
    EXPECT_STREQ(table.getStringValue("d"), "d");
}

TEST_F(HashTableTest, ForgetsTheKeyOfAnEntryRemovedByPosition)
{
    HashTable table;
    for (const char* key : {"a", "b", "c"})
        table.AddObj(key, key);
    ArrayList& list = table;
    list.RemoveAt(0);
    list.RemoveAt(7);
    EXPECT_STREQ(table.getStringValue("a"), "");
    EXPECT_STREQ(table.getStringValue("b"), "b");
    EXPECT_STREQ(table.getStringValue("c"), "c");
    table.AddObj("c", "changed");
    EXPECT_EQ(table.getCount(), 2);
    EXPECT_STREQ(table.AtString(1), "changed");
}

TEST_F(HashTableTest, IsEmptyAfterClearThroughItsBase)
{
    HashTable table;
    table.AddObj("key", "value");
    ArrayList& list = table;
    list.Clear();
    EXPECT_EQ(table.getCount(), 0);
    EXPECT_STREQ(table.getStringValue("key"), "");
    table.AddObj("key", "new");
    EXPECT_STREQ(table.getStringValue("key"), "new");
    EXPECT_EQ(table.getCount(), 1);
}

TEST_F(HashTableTest, MayHoldEntriesWithoutAKey)
{
    HashTable table;
    table.AddObj("key", "value");
    table.Add("keyless");
    table.AddObj("other", "third");
    EXPECT_EQ(table.getCount(), 3);
    EXPECT_STREQ(table.AtString(1), "keyless");
    table.RemoveAt(1);
    EXPECT_STREQ(table.getStringValue("other"), "third");
    EXPECT_STREQ(table.getStringValue("key"), "value");
}

TEST_F(HashTableTest, FreesNothingWithoutTheDeleteFlag)
{
    Witness objects[4];
    {
        HashTable table;
        table.AddObj("a", &objects[0]);
        table.AddObj("a", &objects[1]);
        table.Remove("a");
        table.AddObj("b", &objects[2]);
        table.ClearAll();
        EXPECT_EQ(table.getCount(), 0);
        table.AddObj("c", &objects[3]);
    }
    EXPECT_EQ(Witness::alive, 4);
}

TEST_F(HashTableTest, FreesItsValuesOnClearAllWithTheDeleteFlag)
{
    HashTable table;
    table.setDeleteFlag(true);
    table.AddObj("a", new Witness);
    table.AddObj("b", new Witness);
    table.AddObj("c", "text");
    table.ClearAll();
    EXPECT_EQ(Witness::alive, 0);
    EXPECT_EQ(table.getCount(), 0);
    EXPECT_EQ(table.getValue("a"), nullptr);
    table.AddObj("a", new Witness);
    EXPECT_EQ(table.getCount(), 1);
    table.ClearAll();
    EXPECT_EQ(Witness::alive, 0);
}

TEST_F(HashTableTest, FreesItsValuesWhenItDiesWithTheDeleteFlag)
{
    {
        HashTable table;
        table.setDeleteFlag(true);
        table.AddObj("a", new Witness);
        table.AddObj("b", new Witness);
    }
    EXPECT_EQ(Witness::alive, 0);
}

TEST_F(HashTableTest, FreesARemovedValueWithTheDeleteFlag)
{
    HashTable table;
    table.setDeleteFlag(true);
    table.AddObj("a", new Witness);
    table.AddObj("b", new Witness);
    table.Remove("a");
    EXPECT_EQ(Witness::alive, 1);
    table.RemoveAt(0);
    EXPECT_EQ(Witness::alive, 0);
}

TEST_F(HashTableTest, FreesAReplacedValueWithTheDeleteFlag)
{
    HashTable table;
    table.setDeleteFlag(true);
    table.AddObj("a", new Witness);
    table.AddObj("a", new Witness);
    EXPECT_EQ(Witness::alive, 1);
    table.AddObj("a", "text");
    EXPECT_EQ(Witness::alive, 0);
}

TEST_F(HashTableTest, DoesNotFreeAValueThatIsStoredAgain)
{
    HashTable table;
    table.setDeleteFlag(true);
    Witness* const object = new Witness;
    table.AddObj("a", object);
    table.AddObj("a", object);
    EXPECT_EQ(Witness::alive, 1);
    EXPECT_EQ(table.getValue("a"), object);
}

TEST_F(HashTableTest, FreesNothingOnClearEvenWithTheDeleteFlag)
{
    Witness object;
    {
        HashTable table;
        table.setDeleteFlag(true);
        table.AddObj("a", &object);
        table.Clear();
    }
    EXPECT_EQ(Witness::alive, 1);
}

TEST_F(HashTableTest, IsEmptyBeforeTheFirstOfItsValuesDies)
{
    HashTable table;
    table.setDeleteFlag(true);
    table.AddObj("curious", new Curious(table));
    table.AddObj("other", new Witness);
    table.ClearAll();
    EXPECT_EQ(Witness::alive, 0);
    EXPECT_EQ(table.getCount(), 1);
    EXPECT_STREQ(table.getStringValue("other"), "stored at the end");
}

TEST_F(HashTableTest, StaysFastWithManyKeysLoadedAndReloaded)
{
    constexpr int keys = 100000;
    const auto begin = std::chrono::steady_clock::now();
    HashTable table;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < keys; ++i)
            table.AddObj(nameOf(i).c_str(), std::to_string(i + round).c_str());
    }
    EXPECT_EQ(table.getCount(), keys);
    for (int i = 0; i < keys; ++i)
        ASSERT_EQ(table.getStringValue(nameOf(i).c_str()), std::to_string(i + 1));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

TEST_F(HashTableTest, CannotBeCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<HashTable>);
    EXPECT_FALSE(std::is_copy_assignable_v<HashTable>);
    EXPECT_TRUE(std::has_virtual_destructor_v<HashTable>);
}
