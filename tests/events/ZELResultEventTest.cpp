#include "events/ZELResultEvent.h"

#include <gtest/gtest.h>

namespace {

const QEvent::Type application = QEvent::Type(2000);

} // namespace

TEST(ZELResultEvent, carriesAResultAndData)
{
    int data = 5;
    ZELResultEvent event(application, -2, &data);
    EXPECT_EQ(event.type(), application);
    EXPECT_EQ(event.m_nResult, -2);
    EXPECT_EQ(event.m_pResultData, &data);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "");
    EXPECT_EQ(event.getClassType(), "ZELResultEvent");
}

TEST(ZELResultEvent, takesOtherDataAndOwnsNone)
{
    int first = 1;
    int second = 2;
    {
        ZELResultEvent event(application, 0, &first);
        event.setResultData(&second);
        EXPECT_EQ(event.m_pResultData, &second);
        EXPECT_EQ(event.m_nResult, 0);
        event.setResultData(nullptr);
        EXPECT_EQ(event.m_pResultData, nullptr);
        event.setResultData(&second);
    }
    EXPECT_EQ(first + second, 3);
}
