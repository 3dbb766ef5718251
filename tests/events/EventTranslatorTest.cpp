#include "events/EventTranslator.h"

#include "events/EventNumbers.h"
#include "events/ZELErrorEvent.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "events/ZELResultEvent.h"
#include "events/ZELStringEvent.h"
#include "events/ZELUpdateInfoEvent.h"
#include "events/ZELUpdateStatusEvent.h"
#include "support/EndThroughBase.h"
#include "support/EventRecorder.h"
#include "support/LogCapture.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using namespace PANFx::Testing;

namespace {

const QEvent::Type application = QEvent::Type(2000);

class EventTranslatorTest : public ::testing::Test
{
protected:
    EventRecorder m_page;
    QObject m_sender;
};

} // namespace

TEST_F(EventTranslatorTest, refusesNothingAtAll)
{
    EXPECT_FALSE(EventTranslator::eventHandler(nullptr, &m_page));
    EXPECT_TRUE(m_page.take().empty());
}

TEST_F(EventTranslatorTest, neverForwardsWhatLiesBelowThePress)
{
    ZELEvent activate(EVENT_WINDOW_ACTIVATE, &m_sender, "home");
    EXPECT_FALSE(EventTranslator::eventHandler(&activate, &m_page));
    QEvent ofQt(QEvent::MouseButtonPress);
    EXPECT_FALSE(EventTranslator::eventHandler(&ofQt, &m_page));
    EXPECT_TRUE(m_page.take().empty());
    EXPECT_TRUE(LogCapture::instance().lines().empty());
}

TEST_F(EventTranslatorTest, forwardsAPlainEventFromThePressOn)
{
    for (const QEvent::Type type : {EVENT_MOUSE_DOWN, EVENT_MOUSE_UP, EVENT_TIMER,
                                    EVENT_NUMPAD_CLOSE, application, QEvent::Type(65535)}) {
        ZELEvent event(type, &m_sender, "ok");
        EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page)) << type;
        const RecordedEvent copy = m_page.takeOne();
        EXPECT_EQ(copy.type, type);
        EXPECT_EQ(copy.classType, "ZELEvent");
        EXPECT_EQ(copy.sender, &m_sender);
        EXPECT_EQ(copy.id, "ok");
    }
}

TEST_F(EventTranslatorTest, forwardsAListEventWithItsPlace)
{
    ZELListEvent event(EVENT_LIST_ITEM_CLICK, &m_sender, "list", 4, 2, true);
    EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page));
    const RecordedEvent copy = m_page.takeOne();
    EXPECT_EQ(copy.type, EVENT_LIST_ITEM_CLICK);
    EXPECT_EQ(copy.classType, "ZELListEvent");
    EXPECT_EQ(copy.sender, &m_sender);
    EXPECT_EQ(copy.id, "list");
    EXPECT_EQ(copy.row, 4);
    EXPECT_EQ(copy.column, 2);
    EXPECT_TRUE(copy.header);
}

TEST_F(EventTranslatorTest, forwardsARangeEventWithItsValue)
{
    ZELRangeEvent event(EVENT_RANGE_CHANGED, &m_sender, "volume", -7);
    EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page));
    const RecordedEvent copy = m_page.takeOne();
    EXPECT_EQ(copy.type, EVENT_RANGE_CHANGED);
    EXPECT_EQ(copy.classType, "ZELRangeEvent");
    EXPECT_EQ(copy.sender, &m_sender);
    EXPECT_EQ(copy.id, "volume");
    EXPECT_EQ(copy.value, -7);
}

TEST_F(EventTranslatorTest, forwardsAnEventWithoutASender)
{
    ZELEvent event(EVENT_MOUSE_UP);
    EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page));
    const RecordedEvent copy = m_page.takeOne();
    EXPECT_EQ(copy.sender, nullptr);
    EXPECT_EQ(copy.id, "");
}

TEST_F(EventTranslatorTest, stripsAStringEventOfItsTexts)
{
    ZELStringEvent event(application, "a", "b", "c", "d");
    bool stripped = false;
    class Judge : public QObject
    {
    public:
        explicit Judge(bool& stripped)
            : m_stripped(stripped)
        {
        }
        bool eventFilter(QObject*, QEvent* arrived) override
        {
            if (arrived->type() == application)
                m_stripped = !dynamic_cast<ZELStringEvent*>(arrived);
            return false;
        }

    private:
        bool& m_stripped;
    } judge(stripped);
    m_page.installEventFilter(&judge);
    EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page));
    const RecordedEvent copy = m_page.takeOne();
    EXPECT_EQ(copy.type, application);
    EXPECT_EQ(copy.classType, "ZELEvent");
    EXPECT_TRUE(stripped);
    EXPECT_EQ(event.getString(4), "d");
}

TEST_F(EventTranslatorTest, leavesEventsOfOtherClassesToTheirOwner)
{
    ZELErrorEvent unknownError;
    ZELErrorEvent error(application, 1u, 'K', "lid open");
    ZELResultEvent result(application, 1, nullptr);
    ZELUpdateInfoEvent info(application);
    ZELUpdateStatusEvent status(application);
    class OwnEvent : public ZELEvent
    {
    public:
        using ZELEvent::ZELEvent;
        std::string getClassType() override { return "ZELEvents"; }
    } ofTheApplication(application);
    for (ZELEvent* event : std::initializer_list<ZELEvent*>{&unknownError, &error, &result, &info,
                                                            &status, &ofTheApplication})
        EXPECT_FALSE(EventTranslator::eventHandler(event, &m_page)) << event->getClassType();
    EXPECT_TRUE(m_page.take().empty());
    EXPECT_TRUE(LogCapture::instance().lines().empty());
}

TEST_F(EventTranslatorTest, refusesAnEventThatIsNoneOfOurs)
{
    LogCapture::instance().expectError("[eventHandler] event 1552 is no ZELEvent", 1,
                                       "EventTranslator");
    QEvent plain(EVENT_MOUSE_UP);
    EXPECT_FALSE(EventTranslator::eventHandler(&plain, &m_page));
    EXPECT_TRUE(m_page.take().empty());
}

TEST_F(EventTranslatorTest, postsNothingWithoutATarget)
{
    LogCapture::instance().expectError("[eventHandler] event 1552 of ok has no target", 1,
                                       "EventTranslator");
    ZELEvent event(EVENT_MOUSE_UP, &m_sender, "ok");
    EXPECT_FALSE(EventTranslator::eventHandler(&event, nullptr));
}

TEST_F(EventTranslatorTest, leavesTheIncomingEventAsItIs)
{
    auto event = std::make_unique<ZELListEvent>(EVENT_MOUSE_UP, &m_sender, "row", 1, 2, false);
    EXPECT_TRUE(EventTranslator::eventHandler(event.get(), &m_page));
    EXPECT_EQ(event->type(), EVENT_MOUSE_UP);
    EXPECT_EQ(event->m_strID, "row");
    EXPECT_EQ(event->m_nColumn, 2);
    event.reset(); // its owner's: the copy lives on
    EXPECT_EQ(m_page.takeOne().column, 2);
}

TEST_F(EventTranslatorTest, postsAndNeverCalls)
{
    ZELEvent event(EVENT_MOUSE_UP, &m_sender, "ok");
    auto gone = std::make_unique<EventRecorder>();
    EXPECT_TRUE(EventTranslator::eventHandler(&event, gone.get()));
    gone.reset(); // with what waits for it
    EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page));
    EXPECT_EQ(m_page.takeTypes(), std::vector<int>{EVENT_MOUSE_UP});
}

TEST_F(EventTranslatorTest, forwardsAnEventWhoseSenderDied)
{
    auto sender = std::make_unique<QObject>();
    const QObject* const address = sender.get();
    ZELEvent event(EVENT_MOUSE_UP, sender.get(), "ok");
    sender.reset();
    EXPECT_TRUE(EventTranslator::eventHandler(&event, &m_page));
    EXPECT_TRUE(m_page.takeOne().sender == address);
}

TEST_F(EventTranslatorTest, canBeDerivedFromAndDeletedThroughItsBase)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<EventTranslator>);
    EXPECT_TRUE(endsThroughItsBase<EventTranslator>());
}
