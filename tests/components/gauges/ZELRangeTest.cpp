// What both kinds of range have in common: buttons, events, wrapping, destruction.

#include "components/gauges/ZELRange.h"

#include "components/gauges/RangeTest.h"
#include "components/text/ZELLabel.h"

#include <QPointer>

#include <climits>
#include <utility>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELEditRange;
using Components::ZELProgressRange;
using Components::ZELRange;

namespace {

class RangeSlots : public ZELRange
{
public:
    static std::vector<std::intptr_t> inOrder()
    {
        return {slot(&RangeSlots::setStep), slot(&RangeSlots::setEnable),
                slot(&RangeSlots::paintEvent)};
    }
};

template <class Range>
struct Sample
{
};

template <>
struct Sample<ZELEditRange>
{
    static constexpr const char* keyword = "editrange";
    static constexpr const char* type = "ZELEditRange";
    static constexpr const char* identity = "QTPANFx ZELEditRange   ";
    static std::string xml()
    {
        return "<rng style='normal'><position x='10' y='20' width='180' height='40'/>"
               "<param a='one' b='two' c='three'/>" +
               button("upbtn", 140) + button("downbtn", 0) +
               "<editor x='40' y='0' width='100' height='40'/></rng>";
    }
    static std::string button(const std::string& name, int x)
    {
        return "<" + name + " x='" + std::to_string(x) +
               "' y='0' width='40' height='30' up='up.png' down='down.png' dim='dim.png'/>";
    }
    static void expectLines(LogCapture& log, int times)
    {
        log.expectError("[setLayout] editor pLayout == NULL", times, "ZELImageEdit");
        log.expectError("[getImage] No FileName Error", 4 * times, "ZELImageMgr");
    }
};

template <>
struct Sample<ZELProgressRange>
{
    static constexpr const char* keyword = "range";
    static constexpr const char* type = "ZELProgressRange";
    static constexpr const char* identity = "QTPANFx ZELProgressRange";
    static std::string xml()
    {
        return "<rng max='2'><position x='10' y='20' width='180' height='40'/>"
               "<bgimg file='back.png'/><thumbimg file='thumb.png'/>" +
               Sample<ZELEditRange>::button("upbtn", 140) +
               Sample<ZELEditRange>::button("downbtn", 0) + "</rng>";
    }
    static void expectLines(LogCapture& log, int times)
    {
        log.expectError("[setLayout] upbtn pLayout == NULL", times, "ZELImageButton");
        log.expectError("[setLayout] downbtn pLayout == NULL", times, "ZELImageButton");
    }
};

template <class Base>
class ZELRangeTest : public RangeTest
{
protected:
    using Open = OpenRange<Base>;

    // three steps, 0 to 2
    Open* makeRange()
    {
        Sample<Base>::expectLines(log(), 1);
        return make<Open>(Sample<Base>::xml(), Sample<Base>::type);
    }

    // a third part, as an application's own range may have one
    Components::ZELLabel* makeExtra(Open* range)
    {
        auto* const extra = new Components::ZELLabel(range, "extra", "ZELLabel", element("<x/>"));
        range->m_pExtra = extra;
        return extra;
    }
};

using Kinds = ::testing::Types<ZELEditRange, ZELProgressRange>;
struct KindNames
{
    template <class Range>
    static std::string GetName(int)
    {
        return Sample<Range>::type;
    }
};
TYPED_TEST_SUITE(ZELRangeTest, Kinds, KindNames);

} // namespace

TYPED_TEST(ZELRangeTest, isARangeWithItsOwnNameAndItsOperationsInTheirPlaces)
{
    Sample<TypeParam>::expectLines(this->log(), 1);
    auto* const built = this->template buildComponent<TypeParam>(Sample<TypeParam>::keyword,
                                                                 Sample<TypeParam>::xml());
    EXPECT_EQ(built->m_strType, Sample<TypeParam>::type);
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_EQ(this->makeRange()->m_logger.m_strIdentity, Sample<TypeParam>::identity);
    std::intptr_t place = slot(&ZELComponent::getQWidget);
    for (const std::intptr_t each : RangeSlots::inOrder())
        EXPECT_EQ(each, place += slotSize);
    EXPECT_EQ(OpenRange<TypeParam>::slotOfEvent(), place + slotSize);
}

TYPED_TEST(ZELRangeTest, startsAtStep0WithTheButtonDownDim)
{
    auto* const range = this->makeRange();
    EXPECT_EQ(range->m_nStep, 0);
    EXPECT_EQ(range->dims(), "down");
    EXPECT_FALSE(range->m_bWrap);
    EXPECT_EQ(range->m_pExtra, nullptr);
    EXPECT_EQ(range->geometry(), QRect(10, 20, 180, 40));
    EXPECT_EQ(range->m_pUpBtn->geometry(), QRect(140, 0, 40, 30));
    EXPECT_EQ(range->m_pDownBtn->geometry(), QRect(0, 0, 40, 30));
    EXPECT_EQ(range->m_pUpBtn->m_strID, "upbtn");
    EXPECT_EQ(range->m_pDownBtn->m_strID, "downbtn");
    EXPECT_TRUE(range->m_pUpBtn->isVisible());
    EXPECT_TRUE(range->m_pDownBtn->isVisible());
    EXPECT_EQ(this->panel().takeTypes(), (std::vector<int>{}));
}

TYPED_TEST(ZELRangeTest, buildsTheComponentsOfItsElementAndThenItsButtons)
{
    std::string xml = Sample<TypeParam>::xml();
    xml.insert(xml.rfind("</rng>"), "<label><more title='t' style='normal'/></label>");
    Sample<TypeParam>::expectLines(this->log(), 1);
    auto* const range = this->template make<OpenRange<TypeParam>>(xml, Sample<TypeParam>::type);
    ASSERT_EQ(range->getComponentCount(), 1);
    QWidget* const more = range->getSubComponent("more")->getQWidget();
    EXPECT_TRUE(more->isVisible());
    const QObjectList& children = range->children();
    EXPECT_EQ(children.indexOf(more), 0);
    EXPECT_EQ(children.indexOf(range->m_pUpBtn), 1);
    EXPECT_EQ(children.indexOf(range->m_pDownBtn), 2);
}

TYPED_TEST(ZELRangeTest, eachTouchOfAButtonStepsAndTellsTheStep)
{
    auto* const range = this->makeRange();
    for (const char* told : {"1558 ZELRangeEvent rng 1", "1558 ZELRangeEvent rng 2"}) {
        Touch::tapWindow(range->m_pUpBtn);
        EXPECT_EQ(this->toldOne(range), told);
    }
    EXPECT_EQ(range->dims(), "up");
    Touch::tapWindow(range->m_pUpBtn);
    EXPECT_EQ(this->panel().takeTypes(), (std::vector<int>{})) << "a dim button takes no touch";
    for (const char* told : {"1558 ZELRangeEvent rng 1", "1558 ZELRangeEvent rng 0"}) {
        Touch::tapWindow(range->m_pDownBtn);
        EXPECT_EQ(this->toldOne(range), told);
    }
    EXPECT_EQ(range->dims(), "down");
}

TYPED_TEST(ZELRangeTest, whatBecomesOfAnEvent)
{
    struct Case
    {
        int type;
        Kind kind;
        bool sender;
        std::string id;
        std::vector<std::string> posted;
        int step;
    };
    auto* const range = this->makeRange();
    for (const Case& row :
         std::vector<Case>{{1552, Kind::Event, true, "upbtn", {"1558 ZELRangeEvent rng 2"}, 2},
                           {1552, Kind::Event, true, "downbtn", {"1558 ZELRangeEvent rng 0"}, 0},
                           {1552, Kind::List, true, "upbtn", {"1558 ZELRangeEvent rng 2"}, 2},
                           {1552, Kind::Event, true, "editor", {}, 1},
                           {1552, Kind::Event, true, "", {}, 1},
                           {1552, Kind::Event, true, "UpBtn", {}, 1},
                           {1552, Kind::Event, false, "upbtn", {}, 1},
                           {1551, Kind::Event, true, "upbtn", {}, 1},
                           {1559, Kind::Event, true, "upbtn", {}, 1},
                           {1571, Kind::Event, true, "upbtn", {}, 1},
                           {1572, Kind::Event, true, "upbtn", {}, 1},
                           {1558, Kind::Range, true, "upbtn", {}, 1}}) {
        range->setStep(1);
        Incoming event{row.type, row.kind};
        event.sender = row.sender ? range->m_pUpBtn : nullptr;
        event.id = row.id;
        SCOPED_TRACE(event);
        EXPECT_EQ(this->handOver(range, Sample<TypeParam>::type, event),
                  (Outcome{true, row.posted, {}}));
        EXPECT_EQ(range->m_nStep, row.step);
    }
}

TYPED_TEST(ZELRangeTest, whatItDoesNotKnowIsQts)
{
    auto* const range = this->makeRange();
    this->expectWidgetsAnswers(range);
    std::vector<int> numbers = allNumbers();
    numbers.push_back(EVENT_MOUSE_DOWN);
    for (const int number : numbers) {
        for (const Kind kind : {Kind::Event, Kind::Range, Kind::List}) {
            Incoming event{number, kind};
            event.sender = range->m_pUpBtn;
            EXPECT_TRUE(this->send(range, event)) << event;
        }
    }
    EXPECT_EQ(this->panel().takeTypes(), (std::vector<int>{}));
}

TYPED_TEST(ZELRangeTest, aClickThatIsNoEventOfTheLibraryStepsNothing)
{
    auto* const range = this->makeRange();
    this->expectForeign("rng", EVENT_MOUSE_UP);
    this->send(range, {EVENT_MOUSE_UP, Kind::Plain});
    EXPECT_EQ(range->m_nStep, 0);
    EXPECT_EQ(this->panel().takeTypes(), (std::vector<int>{}));
}

TYPED_TEST(ZELRangeTest, theStepIsToldAlsoWhereItIsClamped)
{
    auto* const range = this->makeRange();
    Incoming click{EVENT_MOUSE_UP, Kind::Event};
    click.sender = range->m_pDownBtn;
    click.id = "downbtn";
    EXPECT_EQ(this->handOver(range, "", click).posted,
              std::vector<std::string>{"1558 ZELRangeEvent rng 0"});
    range->setStep(2);
    click.id = "upbtn";
    EXPECT_EQ(this->handOver(range, "", click).posted,
              std::vector<std::string>{"1558 ZELRangeEvent rng 2"});
}

TYPED_TEST(ZELRangeTest, aTouchGoesThroughTheOperationOfTheDerivedClass)
{
    class Counting : public OpenRange<TypeParam>
    {
    public:
        using OpenRange<TypeParam>::OpenRange;
        void setStep(int step) override { asked.push_back(step); }
        std::vector<int> asked;
    };
    Sample<TypeParam>::expectLines(this->log(), 1);
    auto* const range =
        this->template make<Counting>(Sample<TypeParam>::xml(), Sample<TypeParam>::type);
    EXPECT_EQ(range->asked, (std::vector<int>{})) << "not within the constructor";
    range->m_pDownBtn->setDimMode(false);
    Touch::tap(range->m_pUpBtn);
    Touch::tap(range->m_pDownBtn);
    EventLoop::deliver();
    EXPECT_EQ(range->asked, (std::vector<int>{1, -1}));
    for (const int extreme : {INT_MAX, INT_MIN}) { // a number that cannot be stepped
        range->m_nStep = extreme;
        Incoming click{EVENT_MOUSE_UP, Kind::Event};
        click.sender = range;
        click.id = extreme > 0 ? "upbtn" : "downbtn";
        this->send(range, click);
        EXPECT_EQ(range->asked.back(), extreme);
    }
}

TYPED_TEST(ZELRangeTest, wrapsRoundByTouch)
{
    auto* const range = this->makeRange();
    range->setWrap(true);
    range->setStep(2);
    for (const int expected : {0, 1, 2, 0}) {
        Incoming click{EVENT_MOUSE_UP, Kind::Event};
        click.sender = range->m_pUpBtn;
        click.id = "upbtn";
        this->send(range, click);
        EXPECT_EQ(this->panel().takeOne().value, expected);
    }
    Incoming click{EVENT_MOUSE_UP, Kind::Event};
    click.sender = range->m_pDownBtn;
    click.id = "downbtn";
    this->send(range, click);
    EXPECT_EQ(this->panel().takeOne().value, 2);
    range->setWrap(false);
    EXPECT_FALSE(range->m_bWrap);
}

TYPED_TEST(ZELRangeTest, setStepPostsNothingAndRepaintsAtOnce)
{
    auto* const range = this->makeRange();
    PaintCounter paints(range);
    range->setStep(1);
    EXPECT_GE(paints.count(), 1) << "nothing was delivered yet";
    EXPECT_EQ(this->panel().takeTypes(), (std::vector<int>{}));
}

TYPED_TEST(ZELRangeTest, aStepOfADisabledRangeUndimsItsButtons)
{
    auto* const range = this->makeRange();
    range->setEnable(false);
    EXPECT_EQ(range->dims(), "up down");
    range->setStep(1);
    EXPECT_EQ(range->dims(), "");
}

TYPED_TEST(ZELRangeTest, theSoundOfBothButtonsIsSwitched)
{
    auto* const range = this->makeRange();
    EXPECT_EQ(range->sounds(), "on on");
    range->setSoundMode(false);
    EXPECT_EQ(range->sounds(), "off off");
    Touch::tap(range->m_pUpBtn);
    EXPECT_EQ(this->touches(), 0);
    range->setSoundMode(true);
    Touch::tap(range->m_pUpBtn);
    EXPECT_EQ(this->touches(), 1);
}

TYPED_TEST(ZELRangeTest, withoutButtonsTheSoundIsTold)
{
    this->log().expectError("[createSubComponent] " + std::string(Sample<TypeParam>::type) +
                                ", Node * pLayout == NULL",
                            1, "ZELWindow");
    this->log().expectError("[setLayout] ok pLayout == NULL", 1, Sample<TypeParam>::type);
    auto* const range = this->template make<OpenRange<TypeParam>>("", Sample<TypeParam>::type);
    this->log().expectInOrder({"[E] [createSubComponent] " + std::string(Sample<TypeParam>::type) +
                                   ", Node * pLayout == NULL",
                               "[E] [setLayout] ok pLayout == NULL"});
    this->log().expectError("[setSoundMode] ok has not both buttons", 1, "ZELRange");
    range->setSoundMode(false);
    EXPECT_EQ(range->dims(), "");
    range->setEnable(false);
    range->setEnable(true);
    EXPECT_EQ(range->m_nStep, 0);
}

TYPED_TEST(ZELRangeTest, withOneButtonTheSoundIsToldAndStays)
{
    auto* const range = this->makeRange();
    delete std::exchange(range->m_pDownBtn, nullptr);
    this->log().expectError("[setSoundMode] rng has not both buttons", 1, "ZELRange");
    range->setSoundMode(false);
    Touch::tap(range->m_pUpBtn);
    EXPECT_EQ(this->touches(), 1);
}

TYPED_TEST(ZELRangeTest, deletesItsButtonsAndThenTheExtraPart)
{
    auto* const range = this->makeRange();
    auto* const extra = this->makeExtra(range);
    // as Qt's children they would die the other way round
    range->m_pDownBtn->lower();
    extra->lower();
    auto* const other = new QWidget(range);
    other->lower();
    std::string deaths;
    for (const auto& [widget, name] : {std::pair<QWidget*, const char*>(range->m_pUpBtn, "up "),
                                       {range->m_pDownBtn, "down "},
                                       {extra, "extra "},
                                       {other, "other"}})
        QObject::connect(widget, &QObject::destroyed, [&deaths, name = name] { deaths += name; });
    delete range;
    EXPECT_EQ(deaths, "up down extra other");
}

TYPED_TEST(ZELRangeTest, deletesNoPartTwice)
{
    auto* const range = this->makeRange();
    delete this->makeExtra(range);
    delete range->m_pUpBtn;
    range->setStep(1);
    range->setEnable(true);
    EXPECT_EQ(range->getStep(), 1) << "it goes on without";
    delete range->m_pDownBtn;
    range->setStep(0);
    delete range;
}

TYPED_TEST(ZELRangeTest, deletesTheExtraPartWhereverItLies)
{
    auto* const range = this->makeRange();
    const QPointer<QWidget> extra(this->makeExtra(range));
    extra->setParent(&this->panel());
    delete range;
    EXPECT_TRUE(extra.isNull());
}

TYPED_TEST(ZELRangeTest, showsAndHides)
{
    auto* const range = this->makeRange();
    range->hideWindow();
    EXPECT_TRUE(range->isHidden());
    range->showWindow();
    EXPECT_FALSE(range->isHidden());
}
