#include "events/ZELUpdateStatusEvent.h"

#include "support/LogCapture.h"

#include <climits>
#include <gtest/gtest.h>
#include <initializer_list>

using PANFx::Testing::LogCapture;

namespace {

const QEvent::Type application = QEvent::Type(2000);

class ZELUpdateStatusEventTest : public ::testing::Test
{
protected:
    void add(std::initializer_list<int> percents)
    {
        for (const int percent : percents) {
            ZELUpdateStatusItem item(m_event.getImageCount(), percent);
            m_event.addUpdateStatusItem(&item);
        }
    }

    ZELUpdateStatusEvent m_event{application};
};

} // namespace

TEST_F(ZELUpdateStatusEventTest, beginsEmpty)
{
    EXPECT_EQ(m_event.type(), application);
    EXPECT_EQ(m_event.m_pSender, nullptr);
    EXPECT_EQ(m_event.m_strID, "");
    EXPECT_EQ(m_event.getImageCount(), 0);
    EXPECT_EQ(m_event.getUpdateStatusItem(0), nullptr);
    EXPECT_EQ(m_event.m_logger.m_strIdentity, "Unknown Unknown        ");
    EXPECT_EQ(m_event.getClassType(), "ZELUpdateStatusEvent");
}

TEST_F(ZELUpdateStatusEventTest, keepsCopiesInTheOrderOfAdding)
{
    ZELUpdateStatusItem item(6, 10);
    m_event.addUpdateStatusItem(&item);
    item.setUpdatePercent(99);
    m_event.addUpdateStatusItem(&item);
    ASSERT_EQ(m_event.getImageCount(), 2);
    EXPECT_EQ(m_event.getUpdateStatusItem(0)->getUpdatePercent(), 10);
    EXPECT_EQ(m_event.getUpdateStatusItem(1)->getUpdatePercent(), 99);
    EXPECT_EQ(m_event.getUpdateStatusItem(1)->getImageName(), "XML");
}

TEST_F(ZELUpdateStatusEventTest, hasNoItemOutsideItsCount)
{
    add({10});
    for (const int index : {-1, m_event.getImageCount(), INT_MIN, INT_MAX})
        EXPECT_EQ(m_event.getUpdateStatusItem(index), nullptr) << index;
}

TEST_F(ZELUpdateStatusEventTest, refusesNoItem)
{
    LogCapture::instance().expectError("[addUpdateStatusItem] the item is NULL", 1, "Unknown");
    m_event.addUpdateStatusItem(nullptr);
    EXPECT_EQ(m_event.getImageCount(), 0);
}

TEST_F(ZELUpdateStatusEventTest, truncatesTheAverage)
{
    add({10, 20, 35});
    EXPECT_EQ(m_event.getAveragePercent(), 21);
}

TEST_F(ZELUpdateStatusEventTest, truncatesANegativeAverageTowardsZero)
{
    add({-10, -20, -35});
    EXPECT_EQ(m_event.getAveragePercent(), -21);
}

TEST_F(ZELUpdateStatusEventTest, averagesWhateverItIsGiven)
{
    add({0});
    EXPECT_EQ(m_event.getAveragePercent(), 0);
    add({300});
    EXPECT_EQ(m_event.getAveragePercent(), 150);
    add({INT_MAX, INT_MAX, INT_MAX});
    EXPECT_EQ(m_event.getAveragePercent(), (3LL * INT_MAX + 300) / 5);
}

TEST_F(ZELUpdateStatusEventTest, followsAChangeOfAStoredItem)
{
    add({10, 20});
    m_event.getUpdateStatusItem(0)->setUpdatePercent(50);
    EXPECT_EQ(m_event.getAveragePercent(), 35);
}

TEST_F(ZELUpdateStatusEventTest, countsAnEmptyPlaceInTheDivisor)
{
    add({90});
    m_event.m_arrItem.Add(static_cast<TAMFx::Data::Object*>(nullptr));
    EXPECT_EQ(m_event.getImageCount(), 2);
    EXPECT_EQ(m_event.getUpdateStatusItem(1), nullptr);
    EXPECT_EQ(m_event.getAveragePercent(), 45);
}

TEST_F(ZELUpdateStatusEventTest, hasNoAverageOfNoItems)
{
    LogCapture::instance().expectError("[getAveragePercent] no items", 1, "Unknown");
    EXPECT_EQ(m_event.getAveragePercent(), 0);
}

TEST_F(ZELUpdateStatusEventTest, ownsItsItemsWhereItsListDoesNot)
{
    add({10, 20});
    const TAMFx::Data::Object* const first = m_event.m_arrItem.At(0);
    m_event.m_arrItem.RemoveAt(0);
    delete first; // a second time, if the list had done it
    EXPECT_EQ(m_event.getAveragePercent(), 20);
}

TEST_F(ZELUpdateStatusEventTest, holdsItsItemsBeforeItsLoggerSoThatTheyEndAfterIt)
{
    EXPECT_LT(static_cast<const void*>(&m_event.m_arrItem),
              static_cast<const void*>(&m_event.m_logger));
}
