#include "common/tamfx/Table.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>

using TAMFx::Data::Collection::Table;

namespace {

Table twoByTwo()
{
    Table table;
    table.addColumn("id");
    table.addColumn("name");
    table.addRow();
    table.addRow();
    table.setValue(0, 0, "1");
    table.setValue(0, 1, "");
    table.setValue(1, 0, "2");
    return table;
}

} // namespace

TEST(TableTest, StartsEmpty)
{
    const Table table;
    EXPECT_EQ(table.getColumnCount(), 0);
    EXPECT_EQ(table.getRowCount(), 0);
}

TEST(TableTest, NamesItsColumns)
{
    const Table table = twoByTwo();
    EXPECT_EQ(table.getColumnCount(), 2);
    EXPECT_STREQ(table.getColumnName(0), "id");
    EXPECT_STREQ(table.getColumnName(1), "name");
    EXPECT_EQ(table.getColumnIndex("name"), 1);
    EXPECT_EQ(table.getColumnIndex("Name"), -1);
    EXPECT_EQ(table.getColumnIndex(nullptr), -1);
}

TEST(TableTest, FindsTheFirstOfTwoColumnsOfOneName)
{
    Table table;
    table.addColumn("id");
    table.addColumn("id");
    EXPECT_EQ(table.getColumnIndex("id"), 0);
}

TEST(TableTest, TakesAColumnWithoutAName)
{
    Table table;
    table.addColumn(nullptr);
    table.addColumn("id");
    ASSERT_EQ(table.getColumnCount(), 2);
    EXPECT_STREQ(table.getColumnName(0), "");
    EXPECT_EQ(table.getColumnIndex(""), 0);
    EXPECT_EQ(table.getColumnIndex("id"), 1);
}

TEST(TableTest, GivesCellsByPositionAndByName)
{
    const Table table = twoByTwo();
    EXPECT_EQ(table.getRowCount(), 2);
    EXPECT_STREQ(table.getValue(1, 0), "2");
    EXPECT_STREQ(table.getValue(1, "id"), "2");
    EXPECT_STREQ(table.getValue(1, "nothing"), "");
}

TEST(TableTest, TellsADatabaseNullFromAnEmptyText)
{
    const Table table = twoByTwo();
    EXPECT_STREQ(table.getValue(0, 1), "");
    EXPECT_FALSE(table.isNull(0, 1));
    EXPECT_STREQ(table.getValue(1, 1), "");
    EXPECT_TRUE(table.isNull(1, 1));
    EXPECT_TRUE(table.isNull(1, "name"));
    EXPECT_FALSE(table.isNull(0, "name"));
}

TEST(TableTest, MakesACellNullAgain)
{
    Table table = twoByTwo();
    table.setValue(0, 0, nullptr);
    EXPECT_TRUE(table.isNull(0, 0));
    EXPECT_STREQ(table.getValue(0, 0), "");
}

TEST(TableTest, IsNotHarmedByABadIndex)
{
    Table table = twoByTwo();
    for (const int index : {-1, 2, INT_MIN, INT_MAX}) {
        EXPECT_STREQ(table.getColumnName(index), "");
        EXPECT_STREQ(table.getValue(index, 0), "");
        EXPECT_STREQ(table.getValue(0, index), "");
        EXPECT_TRUE(table.isNull(index, 0));
        EXPECT_TRUE(table.isNull(0, index));
        table.setValue(index, 0, "x");
        table.setValue(0, index, "x");
    }
    EXPECT_STREQ(table.getValue(0, 0), "1");
    EXPECT_STREQ(table.getValue(1, 0), "2");
}

TEST(TableTest, FillsALateColumnWithNulls)
{
    Table table = twoByTwo();
    table.addColumn("late");
    EXPECT_TRUE(table.isNull(1, 2));
    table.setValue(1, 2, "set");
    EXPECT_STREQ(table.getValue(1, "late"), "set");
}

TEST(TableTest, DropsRowsAndColumnsOnClear)
{
    Table table = twoByTwo();
    table.Clear();
    EXPECT_EQ(table.getColumnCount(), 0);
    EXPECT_EQ(table.getRowCount(), 0);
    EXPECT_STREQ(table.getValue(0, 0), "");
}
