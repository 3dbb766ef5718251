#include "events/ZELUpdateInfoEvent.h"

#include "support/EventRecorder.h"
#include "support/LogCapture.h"

#include <QCoreApplication>

#include <climits>
#include <gtest/gtest.h>

using namespace PANFx::Testing;

namespace {

const QEvent::Type application = QEvent::Type(2000);

} // namespace

TEST(ZELUpdateInfoEvent, beginsEmpty)
{
    ZELUpdateInfoEvent event(application);
    EXPECT_EQ(event.type(), application);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "");
    EXPECT_EQ(event.getImageCount(), 0);
    EXPECT_EQ(event.getUpdateItem(0), nullptr);
    EXPECT_EQ(event.m_logger.m_strIdentity, "Unknown Unknown        ");
    EXPECT_EQ(event.getClassType(), "ZELUpdateInfoEvent");
}

TEST(ZELUpdateInfoEvent, keepsCopiesInTheOrderOfAdding)
{
    ZELUpdateInfoEvent event(application);
    ZELUpdateInfoItem item(0, "1.0");
    event.addUpdateItem(&item);
    item.setImageID(1);
    item.setImageVersion("2.0");
    event.addUpdateItem(&item);
    ASSERT_EQ(event.getImageCount(), 2);
    EXPECT_EQ(event.m_arrItem.Count(), 2);
    EXPECT_EQ(event.getUpdateItem(0)->getImageName(), "Boot");
    EXPECT_EQ(event.getUpdateItem(0)->getImageVersion(), "1.0");
    EXPECT_EQ(event.getUpdateItem(1)->getImageName(), "Kernel");
    EXPECT_EQ(event.getUpdateItem(1)->getImageVersion(), "2.0");
    EXPECT_NE(event.getUpdateItem(1), &item);
}

TEST(ZELUpdateInfoEvent, givesTheStoredItemItself)
{
    ZELUpdateInfoEvent event(application);
    ZELUpdateInfoItem item(0, "1.0");
    event.addUpdateItem(&item);
    event.getUpdateItem(0)->setImageVersion("1.1");
    EXPECT_EQ(event.getUpdateItem(0)->getImageVersion(), "1.1");
    EXPECT_EQ(item.getImageVersion(), "1.0");
}

TEST(ZELUpdateInfoEvent, hasNoItemOutsideItsCount)
{
    ZELUpdateInfoEvent event(application);
    ZELUpdateInfoItem item(0, "1.0");
    event.addUpdateItem(&item);
    for (const int index : {-1, event.getImageCount(), INT_MIN, INT_MAX})
        EXPECT_EQ(event.getUpdateItem(index), nullptr) << index;
}

TEST(ZELUpdateInfoEvent, refusesNoItem)
{
    LogCapture::instance().expectError("[addUpdateItem] the item is NULL", 1, "Unknown");
    ZELUpdateInfoEvent event(application);
    event.addUpdateItem(nullptr);
    EXPECT_EQ(event.getImageCount(), 0);
}

TEST(ZELUpdateInfoEvent, livesWithAnEmptyPlaceInItsList)
{
    ZELUpdateInfoEvent event(application);
    ZELUpdateInfoItem item(0, "1.0");
    event.m_arrItem.Add(static_cast<TAMFx::Data::Object*>(nullptr));
    event.addUpdateItem(&item);
    EXPECT_EQ(event.getImageCount(), 2);
    EXPECT_EQ(event.getUpdateItem(0), nullptr);
    EXPECT_EQ(event.getUpdateItem(1)->getImageVersion(), "1.0");
}

TEST(ZELUpdateInfoEvent, ownsItsItemsWhereItsListDoesNot)
{
    ZELUpdateInfoEvent event(application);
    ZELUpdateInfoItem item(0, std::string(100, 'x'));
    event.addUpdateItem(&item);
    event.addUpdateItem(&item);
    const TAMFx::Data::Object* const first = event.m_arrItem.At(0);
    event.m_arrItem.RemoveAt(0);
    delete first; // a second time, if the list had done it
    EXPECT_EQ(event.getImageCount(), 1);
}

TEST(ZELUpdateInfoEvent, isReadByThePageThatItIsPostedTo)
{
    class Page : public QWidget
    {
    public:
        std::string m_versions;

    protected:
        bool event(QEvent* event) override
        {
            if (auto* const news = dynamic_cast<ZELUpdateInfoEvent*>(event)) {
                for (int i = 0; i < news->getImageCount(); ++i)
                    m_versions += news->getUpdateItem(i)->getImageName() + " " +
                                  news->getUpdateItem(i)->getImageVersion() + ";";
            }
            return QWidget::event(event);
        }
    } page;
    auto* const news = new ZELUpdateInfoEvent(application);
    ZELUpdateInfoItem boot(0, "1.0");
    ZELUpdateInfoItem app(3, "2.7");
    news->addUpdateItem(&boot);
    news->addUpdateItem(&app);
    QCoreApplication::postEvent(&page, news);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(page.m_versions, "Boot 1.0;App 2.7;");
}

TEST(ZELUpdateInfoEvent, holdsItsItemsBeforeItsLoggerSoThatTheyEndAfterIt)
{
    const ZELUpdateInfoEvent event(application);
    EXPECT_LT(static_cast<const void*>(&event.m_arrItem),
              static_cast<const void*>(&event.m_logger));
}
