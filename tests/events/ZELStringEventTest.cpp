#include "events/ZELStringEvent.h"

#include "support/LogCapture.h"

#include <climits>
#include <gtest/gtest.h>

using PANFx::Testing::LogCapture;

namespace {

const QEvent::Type application = QEvent::Type(2000);

} // namespace

TEST(ZELStringEvent, countsItsTextsFromOne)
{
    ZELStringEvent event(application, "a", "b", "c", "d");
    EXPECT_EQ(event.type(), application);
    EXPECT_EQ(event.getString(1), "a");
    EXPECT_EQ(event.getString(2), "b");
    EXPECT_EQ(event.getString(3), "c");
    EXPECT_EQ(event.getString(4), "d");
}

TEST(ZELStringEvent, givesTheIdAsTextZero)
{
    ZELStringEvent event(application, "a", "b", "c", "d");
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.getString(0), "");
    event.m_strID = "worker";
    EXPECT_EQ(event.getString(0), "worker");
}

TEST(ZELStringEvent, hasNoTextOutsideZeroToFour)
{
    ZELStringEvent event(application, "a", "b", "c", "d");
    event.m_strID = "worker";
    for (const int n : {-1, 5, INT_MIN, INT_MAX}) {
        LogCapture::instance().expectError("[getString] worker has no string " + std::to_string(n),
                                           1, "ZELStringEvent");
        EXPECT_EQ(event.getString(n), "");
    }
}

TEST(ZELStringEvent, callsItselfAPlainEvent)
{
    EXPECT_EQ(ZELStringEvent(application, "a", "b", "c", "d").getClassType(), "ZELEvent");
}
