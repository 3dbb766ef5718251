#include "events/ZELListEvent.h"

#include "events/EventNumbers.h"

#include <QObject>

#include <gtest/gtest.h>

TEST(ZELListEvent, tellsThePlaceInTheList)
{
    QObject sender;
    ZELListEvent event(EVENT_LIST_ITEM_CLICK, &sender, "name", 3, 1, false);
    EXPECT_EQ(event.type(), 1585);
    EXPECT_EQ(event.m_pSender, &sender);
    EXPECT_EQ(event.m_strID, "name");
    EXPECT_EQ(event.m_nRow, 3);
    EXPECT_EQ(event.m_nColumn, 1);
    EXPECT_FALSE(event.m_bHeader);
    EXPECT_EQ(event.getClassType(), "ZELListEvent");
    EXPECT_TRUE(ZELListEvent(EVENT_LIST_HEADER_CLICK, nullptr, "", 0, 0, true).m_bHeader);
}

TEST(ZELListEvent, isCopiedWhole)
{
    QObject sender;
    ZELListEvent original(EVENT_HEADER_DOWN, &sender, "head", -1, 7, true);
    original.ignore();
    ZELListEvent copy(original);
    EXPECT_EQ(copy.type(), EVENT_HEADER_DOWN);
    EXPECT_EQ(copy.m_pSender, &sender);
    EXPECT_EQ(copy.m_strID, "head");
    EXPECT_EQ(copy.m_nRow, -1);
    EXPECT_EQ(copy.m_nColumn, 7);
    EXPECT_TRUE(copy.m_bHeader);
    EXPECT_TRUE(copy.isAccepted());
    EXPECT_EQ(copy.getClassType(), "ZELListEvent");
}
