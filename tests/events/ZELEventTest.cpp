#include "events/ZELEvent.h"

#include "events/EventNumbers.h"
#include "events/ZELErrorEvent.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "events/ZELResultEvent.h"
#include "events/ZELStringEvent.h"
#include "events/ZELUpdateInfoEvent.h"
#include "events/ZELUpdateStatusEvent.h"
#include "support/EventRecorder.h"
#include "support/VirtualSlot.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QtGlobal>

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>

using namespace PANFx::Testing;

namespace {

const QEvent::Type application = QEvent::Type(2000);

} // namespace

TEST(ZELEvent, hasNeitherSenderNorIdUnlessGiven)
{
    const ZELEvent event(EVENT_WINDOW_ACTIVATE);
    EXPECT_EQ(event.type(), 1550);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "");
}

TEST(ZELEvent, takesAnIdAlone)
{
    const ZELEvent event(EVENT_MOUSE_UP, "ok");
    EXPECT_EQ(event.type(), 1552);
    EXPECT_EQ(event.m_pSender, nullptr);
    EXPECT_EQ(event.m_strID, "ok");
}

TEST(ZELEvent, takesSenderAndId)
{
    QObject sender;
    const ZELEvent event(EVENT_MOUSE_UP, &sender, "ok");
    EXPECT_EQ(event.type(), 1552);
    EXPECT_EQ(event.m_pSender, &sender);
    EXPECT_EQ(event.m_strID, "ok");
}

TEST(ZELEvent, isCopiedWithTypeSenderAndId)
{
    QObject sender;
    ZELEvent original(EVENT_TAB_DOWN, &sender, "tab");
    ZELEvent copy(original);
    original.m_strID = "changed";
    EXPECT_EQ(copy.type(), EVENT_TAB_DOWN);
    EXPECT_EQ(copy.m_pSender, &sender);
    EXPECT_EQ(copy.m_strID, "tab");
    EXPECT_EQ(copy.getClassType(), "ZELEvent");
}

TEST(ZELEvent, isCopiedWithoutWhatHappenedToTheOriginal)
{
    ZELEvent original(EVENT_MOUSE_UP, "ok");
    original.ignore();
    EXPECT_TRUE(ZELEvent(original).isAccepted());
}

TEST(ZELEvent, isHandedOnAsACopyWhileItIsBeingDelivered)
{
    // the copy of a posted event can be posted, and lives and dies on its own
    class HandsOn : public QWidget
    {
    public:
        EventRecorder m_next;

    protected:
        bool event(QEvent* event) override
        {
            if (ZELEvent* const ours = ZELEvent::from(event))
                QCoreApplication::postEvent(&m_next, new ZELEvent(*ours));
            return QWidget::event(event);
        }
    };
    HandsOn widget;
    QCoreApplication::postEvent(&widget, new ZELEvent(EVENT_MOUSE_UP, &widget, "ok"));
    const RecordedEvent arrived = widget.m_next.takeOne();
    EXPECT_EQ(arrived.type, EVENT_MOUSE_UP);
    EXPECT_EQ(arrived.sender, &widget);
    EXPECT_EQ(arrived.id, "ok");
}

TEST(ZELEvent, keepsEveryByteOfTheId)
{
    EXPECT_EQ(ZELEvent(EVENT_MOUSE_UP, "\xED\x99\x95\xEC\x9D\xB8").m_strID,
              "\xED\x99\x95\xEC\x9D\xB8");
}

TEST(ZELEvent, isDeletedThroughItsBase)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ZELEvent>);
    // long texts, so that a wrong destructor leaks
    const std::string text(100, 'x');
    std::unique_ptr<QEvent> event =
        std::make_unique<ZELStringEvent>(application, text, text, text, text);
    event.reset();
    event = std::make_unique<ZELErrorEvent>(application, 1u, 'K', text);
}

TEST(ZELEvent, tellsItsKindByAString)
{
    const std::unique_ptr<ZELEvent> events[] = {
        std::make_unique<ZELEvent>(application),
        std::make_unique<ZELErrorEvent>(),
        std::make_unique<ZELListEvent>(application, nullptr, "", 0, 0, false),
        std::make_unique<ZELRangeEvent>(application, nullptr, "", 0),
        std::make_unique<ZELResultEvent>(application, 0, nullptr),
        std::make_unique<ZELStringEvent>(application, "", "", "", ""),
        std::make_unique<ZELUpdateInfoEvent>(application),
        std::make_unique<ZELUpdateStatusEvent>(application),
    };
    const char* const kinds[] = {"ZELEvent",           "ZELErrorEvent",       "ZELListEvent",
                                 "ZELRangeEvent",      "ZELResultEvent",      "ZELEvent",
                                 "ZELUpdateInfoEvent", "ZELUpdateStatusEvent"};
    for (size_t i = 0; i < std::size(kinds); ++i)
        EXPECT_EQ(events[i]->getClassType(), kinds[i]) << i;
}

TEST(ZELEvent, isFoundBehindAnEventOfQt)
{
    ZELListEvent list(EVENT_MOUSE_UP, nullptr, "row", 1, 2, false);
    EXPECT_EQ(ZELEvent::from(&list), &list);
    QEvent plain(EVENT_MOUSE_UP);
    EXPECT_EQ(ZELEvent::from(&plain), nullptr);
    EXPECT_EQ(ZELEvent::from(nullptr), nullptr);
}

TEST(ZELEvent, comesInThroughTheEventOperationAndCountsAsHandled)
{
    EventRecorder page;
    ZELEvent event(EVENT_WINDOW_ACTIVATE, "ok");
    EXPECT_TRUE(QCoreApplication::sendEvent(&page, &event));
    EXPECT_EQ(page.takeOne().type, 1550);
}

TEST(ZELEvent, arrivesInTheOrderOfPostingAndNeverInsideThePost)
{
    EventRecorder page;
    int arrived = 0;
    class Counter : public QObject
    {
    public:
        explicit Counter(int& count)
            : m_count(count)
        {
        }
        bool eventFilter(QObject*, QEvent* event) override
        {
            m_count += event->type() >= EVENT_WINDOW_ACTIVATE ? 1 : 0;
            return false;
        }

    private:
        int& m_count;
    } counter(arrived);
    page.installEventFilter(&counter);
    for (const char* id : {"a", "b", "c"})
        QCoreApplication::postEvent(&page, new ZELEvent(EVENT_MOUSE_UP, id));
    EXPECT_EQ(arrived, 0);
    std::string order;
    for (const RecordedEvent& event : page.take())
        order += event.id;
    EXPECT_EQ(order, "abc");
    EXPECT_EQ(arrived, 3);
}

TEST(ZELEvent, isDroppedWhereTheReceiverIsGone)
{
    auto page = std::make_unique<EventRecorder>();
    EventRecorder other;
    QCoreApplication::postEvent(page.get(), new ZELEvent(EVENT_MOUSE_UP, page.get(), "gone"));
    QCoreApplication::postEvent(&other, new ZELEvent(EVENT_MOUSE_UP, page.get(), "kept"));
    const QObject* const sender = page.get();
    page.reset();
    // the sender may be dead: its address is all that is left of it
    const RecordedEvent arrived = other.takeOne();
    EXPECT_EQ(arrived.id, "kept");
    EXPECT_TRUE(arrived.sender == sender);
}

TEST(ZELEvent, isHarmlessWithoutAReceiver)
{
    QCoreApplication::postEvent(nullptr, new ZELEvent(EVENT_MOUSE_UP, "ok"));
}

TEST(ZELEvent, comesFromAThreadOfTheApplication)
{
    EventRecorder page;
    std::thread worker([&page] {
        for (int i = 0; i < 100; ++i)
            QCoreApplication::postEvent(&page, new ZELErrorEvent(application, 7u, 'K', "worker"));
    });
    worker.join();
    const std::vector<RecordedEvent> arrived = page.take(2000);
    ASSERT_EQ(arrived.size(), 100u);
    EXPECT_EQ(arrived.front().classType, "ZELErrorEvent");
}

TEST(ZELEvent, hasItsClassTypeAsTheFirstOperationBehindThoseOfQEvent)
{
    const auto word = static_cast<std::intptr_t>(sizeof(void*));
    std::intptr_t behind = 2; // a virtual destructor takes two places, and Qt 5 has no more
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    behind = std::max(slot(&QEvent::setAccepted), slot(&QEvent::clone)) / word + 1;
#endif
    EXPECT_EQ(slot(&ZELEvent::getClassType) / word, behind);
}
