// UpdateImageName is not exported: it is tested through the update events that use it.

#include "events/ZELUpdateInfoItem.h"
#include "events/ZELUpdateStatusItem.h"

#include <climits>
#include <gtest/gtest.h>
#include <type_traits>

TEST(UpdateItems, haveTheNamesOfTheInstrumentsImages)
{
    const char* const names[] = {"Boot", "Kernel", "Rootfs", "App", "QTE", "DSP", "XML", "Sys"};
    for (int id = 0; id < 8; ++id) {
        EXPECT_EQ(ZELUpdateInfoItem(id, "").getImageName(), names[id]);
        EXPECT_EQ(ZELUpdateStatusItem(id, 0).getImageName(), names[id]);
    }
}

TEST(UpdateItems, areUnknownBeyondTheTable)
{
    for (const int id : {8, 9, -1, -8, INT_MAX, INT_MIN}) {
        EXPECT_EQ(ZELUpdateInfoItem(id, "").getImageName(), "unknown") << id;
        EXPECT_EQ(ZELUpdateStatusItem(id, 0).getImageName(), "unknown") << id;
    }
}

TEST(UpdateItems, arePlainRecords)
{
    EXPECT_FALSE(std::is_polymorphic_v<ZELUpdateInfoItem>);
    EXPECT_FALSE(std::is_polymorphic_v<ZELUpdateStatusItem>);
}
