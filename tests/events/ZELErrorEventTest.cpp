#include "events/ZELErrorEvent.h"

#include <QObject>

#include <gtest/gtest.h>

namespace {

const QEvent::Type application = QEvent::Type(2000);

} // namespace

TEST(ZELErrorEvent, standsForAnUnknownErrorWhenNothingIsGiven)
{
    const ZELErrorEvent event;
    EXPECT_EQ(event.type(), 65535);
    EXPECT_EQ(event.m_nCode, 4294967295u);
    EXPECT_EQ(event.m_cKind, ' ');
    EXPECT_EQ(event.m_strMessage, "");
    EXPECT_EQ(event.m_nDetail, 0u);
    EXPECT_FALSE(event.m_bFlag1);
    EXPECT_FALSE(event.m_bFlag2);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "");
}

TEST(ZELErrorEvent, takesDetailAndFlags)
{
    const ZELErrorEvent event(application, 5u, true, false, "lid open");
    EXPECT_EQ(event.type(), application);
    EXPECT_EQ(event.m_nCode, 0u);
    EXPECT_EQ(event.m_cKind, 'A');
    EXPECT_EQ(event.m_strMessage, "lid open");
    EXPECT_EQ(event.m_nDetail, 5u);
    EXPECT_TRUE(event.m_bFlag1);
    EXPECT_FALSE(event.m_bFlag2);
    EXPECT_TRUE(ZELErrorEvent(application, 5u, false, true, "").m_bFlag2);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "");
}

TEST(ZELErrorEvent, takesCodeAndKind)
{
    const ZELErrorEvent event(application, 4001u, 'K', "lid open");
    EXPECT_EQ(event.type(), application);
    EXPECT_EQ(event.m_nCode, 4001u);
    EXPECT_EQ(event.m_cKind, 'K');
    EXPECT_EQ(event.m_strMessage, "lid open");
    EXPECT_EQ(event.m_nDetail, 0u);
    EXPECT_FALSE(event.m_bFlag1);
    EXPECT_FALSE(event.m_bFlag2);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "");
}

TEST(ZELErrorEvent, isCopiedWhole)
{
    QObject sender;
    ZELErrorEvent original(application, 5u, true, false, "lid open");
    original.m_nCode = 7;
    original.m_cKind = 'Z';
    original.m_bFlag2 = true;
    original.m_pSender = &sender;
    original.m_strID = "id";
    ZELErrorEvent copy(original);
    EXPECT_EQ(copy.type(), application);
    EXPECT_EQ(copy.m_nCode, 7u);
    EXPECT_EQ(copy.m_cKind, 'Z');
    EXPECT_EQ(copy.m_strMessage, "lid open");
    EXPECT_EQ(copy.m_nDetail, 5u);
    EXPECT_TRUE(copy.m_bFlag1);
    EXPECT_TRUE(copy.m_bFlag2);
    EXPECT_EQ(copy.m_pSender, &sender);
    EXPECT_EQ(copy.m_strID, "id");
    EXPECT_EQ(copy.getClassType(), "ZELErrorEvent");
    EXPECT_EQ(ZELErrorEvent(ZELErrorEvent()).type(), 65535);
}
