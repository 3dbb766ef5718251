#include "events/ZELRangeEvent.h"

#include "events/EventNumbers.h"

#include <QObject>

#include <gtest/gtest.h>

TEST(ZELRangeEvent, carriesANumber)
{
    QObject sender;
    ZELRangeEvent event(EVENT_RANGE_CHANGED, &sender, "volume", -3);
    EXPECT_EQ(event.type(), 1558);
    EXPECT_EQ(event.m_pSender, &sender);
    EXPECT_EQ(event.m_strID, "volume");
    EXPECT_EQ(event.m_nValue, -3);
    EXPECT_EQ(event.getClassType(), "ZELRangeEvent");
}

TEST(ZELRangeEvent, isCopiedWhole)
{
    QObject sender;
    ZELRangeEvent original(EVENT_PAGE_UP, &sender, "scroll", 12);
    original.ignore();
    ZELRangeEvent copy(original);
    EXPECT_EQ(copy.type(), EVENT_PAGE_UP);
    EXPECT_EQ(copy.m_pSender, &sender);
    EXPECT_EQ(copy.m_strID, "scroll");
    EXPECT_EQ(copy.m_nValue, 12);
    EXPECT_TRUE(copy.isAccepted());
    EXPECT_EQ(copy.getClassType(), "ZELRangeEvent");
}
