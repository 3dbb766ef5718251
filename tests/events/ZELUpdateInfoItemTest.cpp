#include "events/ZELUpdateInfoItem.h"

#include <gtest/gtest.h>

TEST(ZELUpdateInfoItem, holdsIdAndVersion)
{
    ZELUpdateInfoItem item(3, "1.4.2");
    EXPECT_EQ(item.getImageID(), 3);
    EXPECT_EQ(item.getImageVersion(), "1.4.2");
    item.setImageID(5);
    item.setImageVersion("2.0");
    EXPECT_EQ(item.m_nImageID, 5);
    EXPECT_EQ(item.m_strImageVersion, "2.0");
    EXPECT_EQ(item.getImageID(), 5);
    EXPECT_EQ(item.getImageVersion(), "2.0");
    EXPECT_EQ(item.getImageName(), "DSP");
}
