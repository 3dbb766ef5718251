#include "events/ZELUpdateStatusItem.h"

#include <gtest/gtest.h>

TEST(ZELUpdateStatusItem, holdsIdAndPercent)
{
    ZELUpdateStatusItem item(1, 40);
    EXPECT_EQ(item.getImageID(), 1);
    EXPECT_EQ(item.getUpdatePercent(), 40);
    item.setImageID(2);
    item.setUpdatePercent(-5);
    EXPECT_EQ(item.m_nImageID, 2);
    EXPECT_EQ(item.m_nUpdatePercent, -5);
    item.setUpdatePercent(1000);
    EXPECT_EQ(item.getUpdatePercent(), 1000);
    EXPECT_EQ(item.getImageName(), "Rootfs");
}
