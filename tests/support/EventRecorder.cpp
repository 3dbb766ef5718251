#include "support/EventRecorder.h"

#include "events/ZELEvent.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "support/EventLoop.h"

#include <gtest/gtest.h>
#include <ostream>
#include <utility>

namespace PANFx::Testing {

namespace {

// the library's own numbers begin at 1550; an application's are above them
constexpr int firstNumber = 1550;

} // namespace

std::ostream& operator<<(std::ostream& out, const RecordedEvent& event)
{
    out << event.type << " " << event.classType << " id \"" << event.id << "\" sender "
        << event.sender;
    if (event.classType == "ZELListEvent")
        out << " row " << event.row << " column " << event.column
            << (event.header ? " of the header" : "");
    if (event.classType == "ZELRangeEvent")
        out << " value " << event.value;
    return out;
}

EventRecorder::EventRecorder(QWidget* parent)
    : QWidget(parent)
{
    setPalette(QPalette(Qt::black));
    setGeometry(0, 0, 800, 480);
}

void EventRecorder::listenAt(QWidget* widget)
{
    widget->installEventFilter(this);
}

std::vector<RecordedEvent> EventRecorder::take()
{
    EventLoop::deliver();
    return std::exchange(m_events, {});
}

std::vector<int> EventRecorder::takeTypes()
{
    std::vector<int> types;
    for (const RecordedEvent& event : take())
        types.push_back(event.type);
    return types;
}

std::vector<RecordedEvent> EventRecorder::take(int type)
{
    std::vector<RecordedEvent> found;
    for (const RecordedEvent& event : take()) {
        if (event.type == type)
            found.push_back(event);
    }
    return found;
}

RecordedEvent EventRecorder::takeOne()
{
    const std::vector<RecordedEvent> all = take();
    EXPECT_EQ(all.size(), 1u) << ::testing::PrintToString(all);
    return all.size() == 1 ? all.front() : RecordedEvent();
}

const std::vector<RecordedEvent>& EventRecorder::events()
{
    EventLoop::deliver();
    return m_events;
}

bool EventRecorder::event(QEvent* event)
{
    note(this, event);
    return QWidget::event(event);
}

bool EventRecorder::eventFilter(QObject* watched, QEvent* event)
{
    note(qobject_cast<QWidget*>(watched), event);
    return QWidget::eventFilter(watched, event);
}

void EventRecorder::note(QWidget* receiver, QEvent* event)
{
    if (event->type() < firstNumber)
        return;
    RecordedEvent noted;
    noted.type = event->type();
    noted.receiver = receiver;
    if (auto* const ours = dynamic_cast<ZELEvent*>(event)) {
        noted.classType = ours->getClassType();
        noted.sender = ours->m_pSender;
        noted.id = ours->m_strID;
    }
    if (const auto* const inList = dynamic_cast<ZELListEvent*>(event)) {
        noted.row = inList->m_nRow;
        noted.column = inList->m_nColumn;
        noted.header = inList->m_bHeader;
    }
    if (const auto* const ofRange = dynamic_cast<ZELRangeEvent*>(event))
        noted.value = ofRange->m_nValue;
    m_events.push_back(noted);
}

} // namespace PANFx::Testing
