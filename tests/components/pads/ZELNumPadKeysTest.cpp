// What the keys of a pad do to the edit, and what the pad reports of them.

#include "components/editors/ZELImageDateEdit.h"
#include "components/editors/ZELImageIPEdit.h"
#include "components/editors/ZELImageNumberEdit.h"
#include "components/pads/NumPadTest.h"

#include <stdexcept>

using namespace PANFx::Testing;
using namespace PANFx::Components;

namespace {

// what one report of a key leads to
struct Reaction
{
    std::vector<std::string> calls;
    std::vector<int> reports;
};

class ZELNumPadKeysTest : public NumPadTest
{
protected:
    void SetUp() override
    {
        m_pad = make();
        m_spy = attachSpy(m_pad);
        panel().take();
    }

    // every row of what is done for a number from a key; all others do nothing
    static Reaction expected(QEvent::Type type, const std::string& id)
    {
        if (id == "backspace") {
            if (type == EVENT_MOUSE_UP || type == EVENT_LONG_PRESS)
                return {{"backspace"}, {-1}};
            if (type == EVENT_LONG_PRESS_HELD)
                return {{"setText literal ''"}, {-1}};
        }
        if (type != EVENT_MOUSE_UP)
            return {};
        if (id.compare(0, 3, "num") == 0)
            return {{"addText string '" + id.substr(id.size() - 1) + "'"}, {id.back() - '0'}};
        if (id == "dot")
            return {{"addText literal '.'"}, {100}};
        if (id == "comma")
            return {{"addText literal ','"}, {100}};
        if (id == "ampm")
            return {{"changeAMPM"}, {100}};
        if (id == "empty")
            return {{"addText literal 'own'"}, {100}};
        return {};
    }

    std::vector<int> tap(const std::string& id)
    {
        Touch::tapWindow(m_pad->key(id));
        return reports(m_pad);
    }

    OpenPad* m_pad = nullptr;
    SpyEdit* m_spy = nullptr;
};

// an edit that reports what the pad does to it, and notes whether the pad is there as it goes
class TellingEdit : public SpyEdit
{
public:
    TellingEdit(QWidget* parent, TAMFx::Common::Xml::Node* layout, const OpenPad* pad)
        : SpyEdit(parent, "edit", "ZELImageTimeEdit", layout)
        , m_pad(pad)
    {
    }

    void setText(const char*) override { tell(); }
    void addText(const char*) override { tell(); }
    void addText(std::string) override { tell(); }
    void backspace() override { tell(); }

    bool padWasHidden = false;

protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        padWasHidden = m_pad->isHidden();
        SpyEdit::focusOutEvent(event);
    }

private:
    void tell()
    {
        QCoreApplication::postEvent(parent(), new ZELEvent(EVENT_RANGE_CHANGED, this, m_strID));
    }

    const OpenPad* m_pad;
};

constexpr QEvent::Type reported[] = {
    EVENT_WINDOW_ACTIVATE, EVENT_MOUSE_DOWN, EVENT_MOUSE_UP,        EVENT_TIMER,
    EVENT_RANGE_CHANGED,   EVENT_FOCUS_IN,   EVENT_FOCUS_OUT,       EVENT_TAB_DOWN,
    EVENT_LONG_PRESS,      EVENT_PAGE_UP,    EVENT_LONG_PRESS_HELD, EVENT_LIST_ITEM_CLICK,
    EVENT_NUMPAD_CLOSE};

} // namespace

// ---- which number from which key does what

TEST_F(ZELNumPadKeysTest, eachKeyReactsToItsOwnNumbersOnly)
{
    for (const QEvent::Type type : reported) {
        for (const std::string& id : keysWithout("close")) {
            const Reaction reaction = expected(type, id);
            EXPECT_TRUE(send(m_pad, type, m_pad->key(id), id)) << type << id;
            EXPECT_EQ(m_spy->take(), reaction.calls) << type << id;
            EXPECT_EQ(reports(m_pad), reaction.reports) << type << id;
        }
    }
}

TEST_F(ZELNumPadKeysTest, theCloseKeyClosesByItsClickOnly)
{
    for (const QEvent::Type type : reported) {
        m_pad->showWindow();
        EXPECT_TRUE(send(m_pad, type, m_pad->key("close"), "close"));
        const bool click = type == EVENT_MOUSE_UP;
        EXPECT_EQ(m_pad->isHidden(), click) << type;
        EXPECT_EQ(panel().takeTypes(), click ? Types{EVENT_NUMPAD_CLOSE} : Types{}) << type;
    }
    EXPECT_EQ(m_spy->take(), Calls{});
}

TEST_F(ZELNumPadKeysTest, aReportThatWasHandledGoesOnToQtToo)
{
    Types wentOn;
    Calls before;
    m_pad->wentOn = [&](int type) {
        wentOn.push_back(type);
        before = m_spy->take();
    };
    for (const QEvent::Type type : {EVENT_MOUSE_UP, EVENT_LONG_PRESS, EVENT_LONG_PRESS_HELD}) {
        for (const std::string& id : allKeys()) {
            send(m_pad, type, m_pad->key(id), id);
            EXPECT_EQ(std::exchange(wentOn, {}), Types{type}) << type << id;
            EXPECT_EQ(before, expected(type, id).calls) << type << id << ": the key works first";
        }
    }
}

TEST_F(ZELNumPadKeysTest, theEditIsServedBeforeTheKeyIsReported)
{
    auto* const telling = new TellingEdit(&panel(), element("<edit style='normal'/>"), m_pad);
    m_pad->setEdit(telling);
    const std::vector<std::pair<QEvent::Type, const char*>> all = {
        {EVENT_MOUSE_UP, "num5"},        {EVENT_MOUSE_UP, "num00"},
        {EVENT_MOUSE_UP, "dot"},         {EVENT_MOUSE_UP, "comma"},
        {EVENT_MOUSE_UP, "empty"},       {EVENT_MOUSE_UP, "backspace"},
        {EVENT_LONG_PRESS, "backspace"}, {EVENT_LONG_PRESS_HELD, "backspace"}};
    for (const auto& [type, id] : all) {
        send(m_pad, type, m_pad->key(id), id);
        EXPECT_EQ(panel().takeTypes(), (Types{EVENT_RANGE_CHANGED, EVENT_MOUSE_UP})) << type << id;
    }
}

TEST_F(ZELNumPadKeysTest, aStrangerAndNobodyDoNothing)
{
    auto* const stranger = buildComponent<ZELImageButton>(
        "button", "<num5><image up='key.png' down='key.png'/></num5>");
    for (const QEvent::Type type : reported) {
        for (QObject* const sender : {static_cast<QObject*>(stranger),
                                      static_cast<QObject*>(nullptr), static_cast<QObject*>(m_pad)})
            EXPECT_TRUE(send(m_pad, type, sender, "num5"));
    }
    EXPECT_EQ(m_spy->take(), Calls{});
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELNumPadKeysTest, aKeyThatIsMissingIsNotNobody)
{
    auto* const made = make(pad({"num0", "num00", "close"}));
    SpyEdit* const spy = attachSpy(made);
    for (const QEvent::Type type : {EVENT_MOUSE_UP, EVENT_LONG_PRESS, EVENT_LONG_PRESS_HELD})
        EXPECT_TRUE(send(made, type, nullptr, "num5"));
    EXPECT_EQ(spy->take(), Calls{});
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELNumPadKeysTest, theSenderTellsTheKindOfKeyAndTheIdWhatItTypes)
{
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("num1"), "num7");
    EXPECT_EQ(m_spy->take(), Calls{"addText string '7'"});
    EXPECT_EQ(reports(m_pad), std::vector<int>{7});
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("num1"), "dot");
    EXPECT_EQ(m_spy->take(), Calls{"addText string 't'"});
    EXPECT_EQ(reports(m_pad), std::vector<int>{0});
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("dot"), "comma");
    EXPECT_EQ(m_spy->take(), Calls{"addText literal ','"});
    EXPECT_EQ(reports(m_pad), std::vector<int>{100});
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("dot"), "num1");
    EXPECT_EQ(m_spy->take(), Calls{});
    EXPECT_EQ(reports(m_pad), std::vector<int>{100});
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("backspace"), "dot");
    EXPECT_EQ(m_spy->take(), Calls{"backspace"});
    EXPECT_EQ(reports(m_pad), std::vector<int>{-1});
}

TEST_F(ZELNumPadKeysTest, anEmptyIdThrows)
{
    // straight to the pad: not every build of Qt lets an exception through, that for ARM doesn't
    ZELEvent click(EVENT_MOUSE_UP, m_pad->key("num1"), "");
    try {
        m_pad->event(&click);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::out_of_range& fault) {
        EXPECT_EQ(std::string(fault.what()).compare(0, 20, "basic_string::substr"), 0)
            << fault.what();
    }
    EXPECT_EQ(m_spy->take(), Calls{});
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELNumPadKeysTest, theHandlersMayBeCalledByAnApplication)
{
    ZELEvent digit(EVENT_MOUSE_UP, "any3");
    m_pad->onNumBtnPress(&digit);
    ZELEvent dot(EVENT_MOUSE_UP, "dot");
    m_pad->onETCBtnPress(&dot);
    m_pad->onBspacePress(nullptr);
    m_pad->onBspacePressLong(nullptr);
    m_pad->sendEvent(42);
    EXPECT_EQ(m_spy->take(), (Calls{"addText string '3'", "addText literal '.'", "backspace",
                                    "setText literal ''"}));
    EXPECT_EQ(reports(m_pad), (std::vector<int>{3, 100, -1, -1, 42}));
    m_pad->onClosePress(nullptr);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_NUMPAD_CLOSE});
}

TEST_F(ZELNumPadKeysTest, aHandlerThatNeedsItsEventTellsThatThereIsNone)
{
    m_pad->onNumBtnPress(nullptr);
    m_pad->onETCBtnPress(nullptr);
    log().expectError("[onNumBtnPress] pad got no event", 1, "ZELNumPad");
    log().expectError("[onETCBtnPress] pad got no event", 1, "ZELNumPad");
    EXPECT_EQ(m_spy->take(), Calls{});
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELNumPadKeysTest, withoutAParentTellsThatNobodyHears)
{
    OpenPad alone(nullptr, "alone", "ZELNumPad", element(pad()));
    alone.sendEvent(1);
    alone.onClosePress(nullptr);
    log().expectError("[sendEvent] alone has no parent", 1, "ZELNumPad");
    log().expectError("[onClosePress] alone has no parent", 1, "ZELNumPad");
}

// ---- real touches

TEST_F(ZELNumPadKeysTest, aTapOfEachKeyTypesAndIsReported)
{
    for (int type = 0; type <= 4; ++type) {
        m_pad->setType(type);
        for (const std::string& id : keysWithout("close")) {
            if (!m_pad->key(id)->isVisible())
                continue;
            const Reaction reaction = expected(EVENT_MOUSE_UP, id);
            EXPECT_EQ(tap(id), reaction.reports) << type << id;
            EXPECT_EQ(m_spy->take(), reaction.calls) << type << id;
        }
    }
}

TEST_F(ZELNumPadKeysTest, theDoubleZeroTypesOneZero)
{
    EXPECT_EQ(tap("num00"), std::vector<int>{0});
    EXPECT_EQ(m_spy->take(), Calls{"addText string '0'"});
}

TEST_F(ZELNumPadKeysTest, withoutAnEditTheKeysAreStillReported)
{
    m_pad->setEdit(nullptr);
    EXPECT_EQ(m_pad->getEdit(), nullptr);
    m_pad->setType(1);
    EXPECT_EQ(tap("num5"), std::vector<int>{5});
    EXPECT_EQ(tap("dot"), std::vector<int>{100});
    EXPECT_EQ(tap("backspace"), std::vector<int>{-1});
    send(m_pad, EVENT_LONG_PRESS_HELD, m_pad->key("backspace"), "backspace");
    EXPECT_EQ(reports(m_pad), std::vector<int>{-1});
    for (const char* const id : {"comma", "ampm", "empty"}) {
        send(m_pad, EVENT_MOUSE_UP, m_pad->key(id), id);
        EXPECT_EQ(reports(m_pad), std::vector<int>{100}) << id;
    }
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("close"), "close");
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_NUMPAD_CLOSE});
    EXPECT_EQ(m_spy->take(), Calls{});
}

TEST_F(ZELNumPadKeysTest, anEditThatIsGoneIsNoEdit)
{
    EXPECT_EQ(m_pad->getEdit(), m_spy);
    delete m_spy;
    EXPECT_EQ(m_pad->getEdit(), nullptr);
    EXPECT_EQ(tap("num5"), std::vector<int>{5});
    send(m_pad, EVENT_MOUSE_UP, m_pad->key("close"), "close");
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_NUMPAD_CLOSE});
    EXPECT_EQ(m_pad->m_pEdit, nullptr);
}

TEST_F(ZELNumPadKeysTest, attachingAnEditDoesNothingElse)
{
    auto* const other =
        new SpyEdit(&panel(), "other", "ZELImageTimeEdit", element("<other style='normal'/>"));
    PaintCounter counter(m_pad);
    counter.reset();
    m_pad->setEdit(other);
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 0);
    EXPECT_EQ(m_pad->getEdit(), other);
    EXPECT_FALSE(other->hasFocus());
    EXPECT_EQ(panel().takeTypes(), Types{});
    tap("num1");
    EXPECT_EQ(m_spy->take(), Calls{});
    EXPECT_EQ(other->take(), Calls{"addText string '1'"});
}

TEST_F(ZELNumPadKeysTest, theTimeKeyWorksOnATimeEditOnly)
{
    SpyEdit* const spy = attachSpy(m_pad, "ZELImageTimeEditor"); // compared whole
    m_pad->setType(3);
    EXPECT_EQ(tap("ampm"), std::vector<int>{100});
    EXPECT_EQ(spy->take(), Calls{});
    spy->m_strType = "ZELImageTimeEdit";
    EXPECT_EQ(tap("ampm"), std::vector<int>{100});
    EXPECT_EQ(spy->take(), Calls{"changeAMPM"});
}

TEST_F(ZELNumPadKeysTest, theOwnKeyTypesTheTitleThatItHasNow)
{
    m_pad->setType(4);
    m_pad->setUserDefineButtonTitle(std::string("kg"));
    EXPECT_EQ(tap("empty"), std::vector<int>{100});
    EXPECT_EQ(m_spy->take(), Calls{"addText literal 'kg'"});
    m_pad->setUserDefineButtonTitle(nullptr);
    EXPECT_EQ(tap("empty"), std::vector<int>{100});
    EXPECT_EQ(m_spy->take(), Calls{"addText literal ''"});
}

TEST_F(ZELNumPadKeysTest, aDisabledPadTakesNoTouch)
{
    m_pad->setEnable(false);
    EXPECT_EQ(tap("num5"), std::vector<int>{});
    EXPECT_EQ(m_spy->take(), Calls{});
    m_pad->setEnable(true);
    EXPECT_EQ(tap("num5"), std::vector<int>{5});
}

// ---- closing

TEST_F(ZELNumPadKeysTest, closingTakesTheFocusFromItsEditAndKeepsIt)
{
    m_pad->setPopupMode(true);
    Touch::tapWindow(m_spy);
    ASSERT_TRUE(m_spy->hasFocus());
    panel().take();
    Touch::tapWindow(m_pad->key("close"));
    EXPECT_TRUE(m_pad->isHidden());
    EXPECT_FALSE(m_spy->hasFocus());
    EXPECT_EQ(m_pad->getEdit(), m_spy);
    const std::vector<RecordedEvent> events = panel().take();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].type, EVENT_FOCUS_OUT);
    EXPECT_EQ(events[1].type, 1701);
    EXPECT_EQ(events[1].classType, "ZELEvent");
    EXPECT_EQ(events[1].sender, static_cast<QWidget*>(m_pad));
    EXPECT_EQ(events[1].id, "pad");
}

TEST_F(ZELNumPadKeysTest, closingHidesThePadBeforeTheFocusGoes)
{
    auto* const telling = new TellingEdit(&panel(), element("<edit style='normal'/>"), m_pad);
    telling->showWindow();
    telling->setFocus();
    ASSERT_TRUE(telling->hasFocus());
    m_pad->setEdit(telling);
    panel().take();
    m_pad->onClosePress(nullptr);
    EXPECT_TRUE(telling->padWasHidden);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_FOCUS_OUT, EVENT_NUMPAD_CLOSE}));
}

TEST_F(ZELNumPadKeysTest, closingLeavesTheFocusOfOthers)
{
    auto* const other =
        new SpyEdit(&panel(), "other", "ZELImageTimeEdit", element("<other style='normal'/>"));
    other->showWindow();
    other->setFocus();
    ASSERT_TRUE(other->hasFocus());
    panel().take();
    m_pad->setPopupMode(true);
    Touch::tapWindow(m_pad->key("close"));
    EXPECT_TRUE(other->hasFocus());
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_NUMPAD_CLOSE});
}

TEST_F(ZELNumPadKeysTest, closingLeavesAnEditThatHasTheFocusOnlyInItsOwnWindow)
{
    m_spy->setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(EventLoop::waitFor([this] { return !m_spy->hasFocus(); }));
    m_pad->onClosePress(nullptr);
    EXPECT_EQ(panel().focusWidget(), static_cast<QWidget*>(m_spy));
}

// ---- holding backspace

TEST_F(ZELNumPadKeysTest, aHeldBackspaceDeletesFourTimesThenEmptiesAndDeletesAtItsRelease)
{
    const QPoint at = Touch::middleInWindow(m_pad->key("backspace"));
    Touch::pressWindow(m_pad, at);
    ASSERT_TRUE(EventLoop::waitFor([this] { return m_spy->calls.size() >= 6; }, 10000));
    const size_t ticks = m_spy->calls.size();
    Touch::releaseWindow(m_pad, at);
    EventLoop::deliver();
    Calls expectedCalls(4, "backspace");
    expectedCalls.resize(ticks, "setText literal ''");
    expectedCalls.emplace_back("backspace");
    EXPECT_EQ(m_spy->take(), expectedCalls);
    EXPECT_EQ(reports(m_pad), std::vector<int>(ticks + 1, -1));
}

// ---- the edits, each in its own way

TEST_F(ZELNumPadKeysTest, aLongPressedBackspaceEmptiesEachKindOfEdit)
{
    const std::string plain = "<edit style='normal'/>";
    auto* const free = buildComponent<ZELImageEdit>("imageEdit", plain);
    auto* const date = buildComponent<ZELImageDateEdit>("imageDateEdit", plain);
    auto* const time = buildComponent<ZELImageTimeEdit>("imageTimeEdit", plain);
    auto* const address = buildComponent<ZELImageIPEdit>("imageIPEdit", plain);
    auto* const number = buildComponent<ZELImageNumberEdit>("imageNumberEdit", plain);
    const std::vector<std::tuple<ZELImageEdit*, const char*, const char*>> all = {
        {free, "free text", ""},
        {date, "12312024", "//"},
        {time, "13:05", ""},
        {address, "1.2.3.4", ""},
        {number, "42", ""}};
    for (const auto& [edit, text, empty] : all) {
        edit->setText(text);
        EXPECT_NE(edit->text(), empty);
        m_pad->setEdit(edit);
        send(m_pad, EVENT_LONG_PRESS_HELD, m_pad->key("backspace"), "backspace");
        EXPECT_EQ(edit->text(), empty) << edit->m_strType;
    }
}

TEST_F(ZELNumPadKeysTest, tapsFillEachKindOfEdit)
{
    const std::string plain = "<edit style='normal'/>";
    auto* const number = buildComponent<ZELImageNumberEdit>("imageNumberEdit", plain);
    number->setDecimalplace(1);
    m_pad->setEdit(number);
    m_pad->setType(1);
    for (const char* const id : {"num4", "dot", "num2"})
        tap(id);
    EXPECT_EQ(number->text(), "4.2");
    auto* const time = buildComponent<ZELImageTimeEdit>("imageTimeEdit", plain);
    m_pad->setEdit(time);
    m_pad->setType(3);
    for (const char* const id : {"num1", "num0", "num3", "num0", "ampm"})
        tap(id);
    EXPECT_EQ(time->text(), "22:30");
    auto* const date = buildComponent<ZELImageDateEdit>("imageDateEdit", plain);
    m_pad->setEdit(date);
    for (const char* const id : {"num3", "num7", "num2", "num0", "num2", "num6"})
        tap(id);
    EXPECT_EQ(date->text(), "03/07/2026");
    auto* const address = buildComponent<ZELImageIPEdit>("imageIPEdit", plain);
    m_pad->setEdit(address);
    m_pad->setType(1);
    for (const char* const id : {"num1", "dot", "num2", "backspace", "num3"})
        tap(id);
    EXPECT_EQ(address->text(), "1.3");
}
