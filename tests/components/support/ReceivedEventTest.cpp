// ReceivedEvent is not exported: it is tested through composites that get events of others.

#include "components/pads/NumPadTest.h"

#include <QEvent>

using namespace PANFx::Testing;

namespace {

// an event of an application's own class, under a number of its choice
class ForeignEvent : public QEvent
{
public:
    explicit ForeignEvent(QEvent::Type type)
        : QEvent(type)
    {
    }
};

class ReceivedEventTest : public NumPadTest
{
protected:
    void SetUp() override
    {
        m_pad = make();
        m_spy = attachSpy(m_pad);
        log().startHere();
    }

    template <class Event>
    bool get(int type)
    {
        Event event{QEvent::Type(type)};
        return QCoreApplication::sendEvent(m_pad, &event);
    }

    void expectStranger(int type, int times = 1)
    {
        log().expectError("[event] pad got an event " + std::to_string(type) +
                              " that is no ZELEvent",
                          times, "ZELNumPad");
    }

    OpenPad* m_pad = nullptr;
    SpyEdit* m_spy = nullptr;
};

} // namespace

TEST_F(ReceivedEventTest, anEventOfAnotherClassIsToldAndGoesOn)
{
    Types wentOn;
    m_pad->wentOn = [&wentOn](int type) { wentOn.push_back(type); };
    for (const int type : {1552, 1571, 1572}) {
        get<ForeignEvent>(type);
        get<QEvent>(type);
        expectStranger(type, 2);
    }
    EXPECT_EQ(wentOn, (Types{1552, 1552, 1571, 1571, 1572, 1572}));
    EXPECT_EQ(m_spy->take(), Calls{});
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ReceivedEventTest, numbersThatMeanNothingHereAreNotLookedAt)
{
    for (const int type : {1551, 1553, 1559, 1570, 1573, 1701})
        get<ForeignEvent>(type);
    get<QEvent>(QEvent::None);
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ReceivedEventTest, eachStrangerIsTold)
{
    for (int i = 0; i < 3; ++i)
        get<ForeignEvent>(1552);
    expectStranger(1552, 3);
}

TEST_F(ReceivedEventTest, aDerivedEventIsTaken)
{
    ZELRangeEvent event(EVENT_MOUSE_UP, m_pad->key("num4"), "num4", 77);
    QCoreApplication::sendEvent(m_pad, &event);
    EXPECT_EQ(m_spy->take(), Calls{"addText string '4'"});
    EXPECT_EQ(reports(m_pad), std::vector<int>{4});
}
