#include "support/EventRecorder.h"

#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "events/ZELStringEvent.h"

#include <QCoreApplication>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <sstream>

using PANFx::Testing::EventRecorder;
using PANFx::Testing::RecordedEvent;

TEST(EventRecorder, notesWhatEachClassOfEventSays)
{
    EventRecorder recorder;
    QObject sender;
    QCoreApplication::postEvent(&recorder, new ZELEvent(EVENT_MOUSE_UP, &sender, "ok"));
    QCoreApplication::postEvent(
        &recorder, new ZELListEvent(EVENT_LIST_ITEM_CLICK, &sender, "list", 2, 3, true));
    QCoreApplication::postEvent(&recorder, new ZELRangeEvent(EVENT_PAGE_UP, &sender, "scroll", 7));
    QCoreApplication::postEvent(&recorder, new QEvent(QEvent::Type(2000)));

    const std::vector<RecordedEvent> all = recorder.take();
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[0].type, EVENT_MOUSE_UP);
    EXPECT_EQ(all[0].classType, "ZELEvent");
    EXPECT_EQ(all[0].sender, &sender);
    EXPECT_EQ(all[0].id, "ok");
    EXPECT_EQ(all[0].receiver, &recorder);
    EXPECT_EQ(all[1].classType, "ZELListEvent");
    EXPECT_EQ(all[1].row, 2);
    EXPECT_EQ(all[1].column, 3);
    EXPECT_TRUE(all[1].header);
    EXPECT_EQ(all[2].classType, "ZELRangeEvent");
    EXPECT_EQ(all[2].value, 7);
    EXPECT_EQ(all[3].type, 2000);
    EXPECT_EQ(all[3].classType, "");
    EXPECT_TRUE(recorder.take().empty());
}

TEST(EventRecorder, leavesQtsOwnEventsOut)
{
    EventRecorder recorder;
    recorder.show();
    recorder.resize(10, 10);
    recorder.hide();
    EXPECT_TRUE(recorder.take().empty());
}

TEST(EventRecorder, listensAtOtherWidgetsWhichStillGetTheirEvents)
{
    EventRecorder recorder;
    EventRecorder page;
    recorder.listenAt(&page);
    QCoreApplication::postEvent(&page, new ZELEvent(EVENT_MOUSE_UP));
    const RecordedEvent heard = recorder.takeOne();
    EXPECT_EQ(heard.receiver, &page);
    EXPECT_EQ(page.takeTypes(), std::vector<int>{EVENT_MOUSE_UP});
}

TEST(EventRecorder, takesOneNumberAlone)
{
    EventRecorder recorder;
    for (const QEvent::Type type : {EVENT_MOUSE_DOWN, EVENT_MOUSE_UP, EVENT_MOUSE_DOWN})
        QCoreApplication::postEvent(&recorder, new ZELEvent(type));
    EXPECT_EQ(recorder.events().size(), 3u);
    EXPECT_EQ(recorder.take(EVENT_MOUSE_DOWN).size(), 2u);
    EXPECT_TRUE(recorder.events().empty());
}

TEST(EventRecorder, failsTheTestForNoneOrSeveralWhereOneIsExpected)
{
    EventRecorder recorder;
    EXPECT_NONFATAL_FAILURE(recorder.takeOne(), "all.size()");
    QCoreApplication::postEvent(&recorder, new ZELEvent(EVENT_MOUSE_UP));
    QCoreApplication::postEvent(&recorder, new ZELEvent(EVENT_MOUSE_UP));
    EXPECT_NONFATAL_FAILURE(recorder.takeOne(), "1552 ZELEvent");
}

TEST(EventRecorder, printsEventsReadably)
{
    std::ostringstream out;
    RecordedEvent event;
    event.type = EVENT_LIST_ITEM_CLICK;
    event.classType = "ZELListEvent";
    event.id = "list";
    event.row = 1;
    event.column = 2;
    out << event;
    EXPECT_NE(out.str().find("1585 ZELListEvent id \"list\""), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("row 1 column 2"), std::string::npos) << out.str();
}
