#pragma once

#include "components/buttons/ButtonTest.h"
#include "events/ZELErrorEvent.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "events/ZELResultEvent.h"
#include "events/ZELStringEvent.h"
#include "support/VirtualSlot.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** The classes of events that can come under a number. */
enum class Kind { Plain, Event, Range, List, String, Error, Result };

constexpr Kind allKinds[] = {Kind::Plain,  Kind::Event, Kind::Range, Kind::List,
                             Kind::String, Kind::Error, Kind::Result};

/** An event as it reaches a row, a header or a list. Its id is "cell" unless told otherwise. */
struct Incoming
{
    int type = 0;
    Kind kind = Kind::List;
    int row = 0;
    int column = 0;
    bool header = false;
    int value = 7; ///< of a Kind::Range
    QObject* sender = nullptr;
    std::string id = "cell";

    std::unique_ptr<QEvent> make() const
    {
        const auto number = QEvent::Type(type);
        switch (kind) {
        case Kind::Plain:
            return std::make_unique<QEvent>(number);
        case Kind::Event:
            return std::make_unique<ZELEvent>(number, sender, id);
        case Kind::Range:
            return std::make_unique<ZELRangeEvent>(number, sender, id, value);
        case Kind::List:
            return std::make_unique<ZELListEvent>(number, sender, id, row, column, header);
        case Kind::String:
            return withId(std::make_unique<ZELStringEvent>(number, "1", "2", "3", "4"));
        case Kind::Error:
            return withId(std::make_unique<ZELErrorEvent>(number, 1u, 'A', "text"));
        case Kind::Result:
            return withId(std::make_unique<ZELResultEvent>(number, 1, nullptr));
        }
        return nullptr;
    }

    friend std::ostream& operator<<(std::ostream& out, const Incoming& event)
    {
        static const char* const names[] = {"plain",  "event", "range", "list",
                                            "string", "error", "result"};
        return out << names[int(event.kind)] << " " << event.type << " (" << event.row << ", "
                   << event.column << ")" << (event.header ? " header" : "");
    }

private:
    std::unique_ptr<QEvent> withId(std::unique_ptr<ZELEvent> event) const
    {
        event->m_pSender = sender;
        event->m_strID = id;
        return event;
    }
};

/** Every number from a click up to the last that a list posts, and the one of a closed pad. */
inline std::vector<int> allNumbers()
{
    std::vector<int> numbers;
    for (int number = EVENT_MOUSE_UP; number <= EVENT_LIST_ITEM_FOCUS_OUT; ++number)
        numbers.push_back(number);
    numbers.push_back(EVENT_NUMPAD_CLOSE);
    return numbers;
}

/** What became of an event: the handler's answer, and what the handler's parent got. */
struct Outcome
{
    bool result = false;
    std::vector<std::string> posted; ///< "1585 ZELListEvent lst (1, 2) header", "1581 ... lst 7"
    std::vector<std::string> lines;  ///< of the class that was asked for

    friend bool operator==(const Outcome& one, const Outcome& other)
    {
        return one.result == other.result && one.posted == other.posted && one.lines == other.lines;
    }
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
    {
        out << (outcome.result ? "true" : "false");
        for (const auto* texts : {&outcome.posted, &outcome.lines}) {
            for (const std::string& text : *texts)
                out << "; " << text;
        }
        return out;
    }
};

/** A component of this folder whose inside is open, as it is to an application's derived class. */
template <class Base>
class OpenedPart : public Base
{
public:
    using Base::Base;

    using Base::m_logger;

    bool event(QEvent* event) override { return Base::event(event); }
    void paintEvent(QPaintEvent* event) override { Base::paintEvent(event); }

    static std::intptr_t slotOfPaint() { return slot(&OpenedPart::paintEvent); }
    static std::intptr_t slotOfEvent() { return slot(&OpenedPart::event); }
};

/**
 * The fixture of what pages: elements of lists and their parts, and events handed to them. The
 * pictures are those of the buttons; a background is cyan.
 */
class ListTest : public ButtonTest
{
protected:
    ListTest() { writePicture("back.png", 40, 20, Qt::cyan); }

    // ---- elements

    static std::string group(const std::string& keyword, const std::string& elements)
    {
        return "<" + keyword + ">" + elements + "</" + keyword + ">";
    }

    static std::string at(int x, int y, int width, int height, const char* element = "position")
    {
        return std::string("<") + element + " x='" + std::to_string(x) + "' y='" +
               std::to_string(y) + "' width='" + std::to_string(width) + "' height='" +
               std::to_string(height) + "'/>";
    }

    /** The element of a button of 40 by 30 in a row. */
    static std::string cell(const std::string& id, int x, const std::string& attributes = "")
    {
        return "<" + id + " " + attributes + "><image up='up.png' down='down.png' dim='dim.png'/>" +
               at(x, 0, 40, 30) + "</" + id + ">";
    }

    /** The element of a row or a header of 300 by 30. */
    static std::string row(const std::string& id, int y, const std::string& cells)
    {
        return "<" + id + ">" + at(0, y, 300, 30) + cells + "</" + id + ">";
    }

    static const std::string label;         ///< child of a scroll
    static const std::string pageUp;        ///< child of a scroll
    static const std::string pageDown;      ///< child of a scroll
    static const std::string scrollElement; ///< "scr", 60 by 120 at 310, 0, without long press

    /** The lines of the parts of scrolls, which are made without an element. */
    void expectScrollLines(int times = 1)
    {
        log().expectError("[setLayout] page pLayout == NULL", times, "ZELLabel");
        log().expectError("[setLayout] upbtn pLayout == NULL", times, "ZELImageButton");
        log().expectError("[setLayout] downbtn pLayout == NULL", times, "ZELImageButton");
    }

    /** The buttons of a scroll. */
    static Components::ZELComponent* partOf(QWidget* scroll, const std::string& id)
    {
        for (QObject* const child : scroll->children()) {
            auto* const part = dynamic_cast<Components::ZELComponent*>(child);
            if (part && part->m_strID == id)
                return part;
        }
        return nullptr;
    }

    /** Lets the clock of a held button that was made by a layout come round once. */
    static void tickHeld(QWidget* button)
    {
        auto* const timer = dynamic_cast<Components::Timer*>(button->findChild<QTimer*>());
        ASSERT_TRUE(timer && timer->isActive());
        QTimerEvent round(1);
        QCoreApplication::sendEvent(timer, &round);
        EventLoop::deliver();
    }

    // ---- events

    /** Hands an event straight to a widget, as the event loop does. */
    bool send(QWidget* widget, const Incoming& incoming)
    {
        const std::unique_ptr<QEvent> event = incoming.make();
        return QCoreApplication::sendEvent(widget, event.get());
    }

    /** The same, and what came of it; "self" in place of its id where the sender is the widget. */
    Outcome handOver(QWidget* widget, const std::string& className, const Incoming& incoming)
    {
        panel().take();
        log().startHere();
        Outcome outcome;
        outcome.result = send(widget, incoming);
        for (const RecordedEvent& event : panel().take())
            outcome.posted.push_back(told(event, widget));
        outcome.lines = log().texts(className);
        return outcome;
    }

    /** An event in short, with a remark when its sender is not the one expected. */
    static std::string told(const RecordedEvent& event, const QObject* sender)
    {
        std::string text = std::to_string(event.type) + " " + event.classType + " " + event.id;
        if (event.classType == "ZELListEvent")
            text += " (" + std::to_string(event.row) + ", " + std::to_string(event.column) + ")" +
                    (event.header ? " header" : "");
        if (event.classType == "ZELRangeEvent")
            text += " " + std::to_string(event.value);
        return event.sender == sender ? text : text + " from elsewhere";
    }

    /** The one event that reached the panel, in short; "" and a failed test for none or several. */
    std::string toldOne(const QObject* sender) { return told(panel().takeOne(), sender); }

    /** Announces the line about an event that is none of the library's. */
    void expectForeign(const std::string& id, int type, int times = 1)
    {
        log().expectError("[event] " + id + " got an event " + std::to_string(type) +
                              " that is no ZELEvent",
                          times);
    }
};

inline const std::string ListTest::label =
    "<page x='10' y='40' width='40' height='40' style='normal'/>";
inline const std::string ListTest::pageUp =
    "<upbtn x='0' y='0' width='60' height='40' up='up.png' down='down.png' dim='dim.png' "
    "longpress='false'/>";
inline const std::string ListTest::pageDown =
    "<downbtn x='0' y='80' width='60' height='40' up='up.png' down='down.png' dim='dim.png' "
    "longpress='false'/>";
inline const std::string ListTest::scrollElement =
    "<scr><position x='310' y='0' width='60' height='120'/>" + label + pageUp + pageDown + "</scr>";

} // namespace PANFx::Testing
