#pragma once

#include <QWidget>

#include <iosfwd>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** What a receiver could read from one event of the library, at the moment it arrived. */
struct RecordedEvent
{
    int type = 0;
    std::string classType;       ///< getClassType(); "" for an event of no class of the library
    QObject* sender = nullptr;   ///< to be compared only; it may have died since
    std::string id;              ///< the sender's id as the event carries it
    int row = -1;                ///< of a ZELListEvent
    int column = -1;             ///< of a ZELListEvent
    bool header = false;         ///< of a ZELListEvent
    int value = 0;               ///< of a ZELRangeEvent
    QWidget* receiver = nullptr; ///< to be compared only

    friend std::ostream& operator<<(std::ostream& out, const RecordedEvent& event);
};

/**
 * Stands where a page stands: the parent widget of components, which notes every event that
 * reaches it with a number of the library's range. Like a page it is 800 by 480 and black. It
 * can also listen at other widgets: an existing page, or a composite on its way.
 *
 * Events are queued on their way, so the operations that read deliver what is queued first.
 */
class EventRecorder : public QWidget
{
public:
    explicit EventRecorder(QWidget* parent = nullptr);

    /** Notes what reaches this widget too; the widget still gets it. */
    void listenAt(QWidget* widget);

    /** All events so far, and forgets them. */
    std::vector<RecordedEvent> take();

    /** The numbers of all events so far, and forgets them. */
    std::vector<int> takeTypes();

    /** All events of one number so far; the rest are forgotten too. */
    std::vector<RecordedEvent> take(int type);

    /** The one event since the last look; fails the test when it is none or several. */
    RecordedEvent takeOne();

    /** All events so far. */
    const std::vector<RecordedEvent>& events();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void note(QWidget* receiver, QEvent* event);

    std::vector<RecordedEvent> m_events;
};

} // namespace PANFx::Testing
