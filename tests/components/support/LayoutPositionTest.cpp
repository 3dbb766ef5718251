// LayoutPosition is not exported: it is tested through the components that use it.

#include "components/ZELComponent.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QWidget>

#include <ostream>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;

namespace {

constexpr int largest = QWIDGETSIZE_MAX;

// where the four numbers of a layout put a component
class LayoutPositionTest : public PanelTest
{
protected:
    void SetUp() override { writePicture("a.png", 8, 8, Qt::red); }

    // a label reads its position from a child element, the boxes read it from their own
    QWidget* build(const std::string& keyword, const std::string& numbers)
    {
        const std::string xml =
            keyword == "label" ? "<ok title='x' style='normal'><position " + numbers + "/></ok>"
                               : "<ok file='a.png' " + numbers + "/>";
        auto* const component = buildComponent<ZELComponent>(keyword, xml);
        return component ? component->getQWidget() : nullptr;
    }

    QRect labelAt(const std::string& numbers) { return build("label", numbers)->geometry(); }
    QRect boxAt(const std::string& numbers) { return build("imagebox", numbers)->geometry(); }
};

const char* const keywords[] = {"label", "imagebox", "pieimagebox", "chartimagebox"};

// one number of a layout and what it counts as
struct Reading
{
    const char* text;
    int number;
    friend std::ostream& operator<<(std::ostream& out, const Reading& reading)
    {
        return out << '"' << reading.text << '"';
    }
};

class LayoutNumberTest : public LayoutPositionTest, public ::testing::WithParamInterface<Reading>
{
};

} // namespace

TEST_F(LayoutPositionTest, theFourNumbersAreTheRectangle)
{
    for (const char* keyword : keywords) {
        SCOPED_TRACE(keyword);
        QWidget* const widget = build(keyword, "x='10' y='20' width='30' height='40'");
        EXPECT_EQ(widget->geometry(), QRect(QPoint(10, 20), QPoint(39, 59)));
    }
}

TEST_F(LayoutPositionTest, theOrderOfTheAttributesIsFree)
{
    EXPECT_EQ(labelAt("height='40' width='30' y='20' x='10'"), QRect(10, 20, 30, 40));
    EXPECT_EQ(boxAt("height='40' width='30' y='20' x='10'"), QRect(10, 20, 30, 40));
}

TEST_F(LayoutPositionTest, eachNumberOfALabelHasItsDefault)
{
    EXPECT_EQ(labelAt(""), QRect(0, 0, 1, 1));
    EXPECT_EQ(labelAt("x='7'"), QRect(7, 0, 1, 1));
    EXPECT_EQ(labelAt("y='7'"), QRect(0, 7, 1, 1));
    EXPECT_EQ(labelAt("width='7'"), QRect(0, 0, 7, 1));
    EXPECT_EQ(labelAt("height='7'"), QRect(0, 0, 1, 7));
}

TEST_F(LayoutPositionTest, eachNumberOfABoxHasItsDefault)
{
    EXPECT_EQ(boxAt(""), QRect(0, 0, 0, 0));
    EXPECT_EQ(boxAt("y='2' width='30' height='40'"), QRect(0, 2, 30, 40));
    EXPECT_EQ(boxAt("x='1' width='30' height='40'"), QRect(1, 0, 30, 40));
    EXPECT_EQ(boxAt("x='1' y='2' height='40'"), QRect(1, 2, 0, 40));
    EXPECT_EQ(boxAt("x='1' y='2' width='30'"), QRect(1, 2, 30, 0));
}

TEST_F(LayoutPositionTest, namesAreComparedExactly)
{
    EXPECT_EQ(labelAt("X='7' Y='7' Width='7' HEIGHT='7'"), QRect(0, 0, 1, 1));
    EXPECT_EQ(boxAt("X='7' Y='7' Width='7' HEIGHT='7'"), QRect(0, 0, 0, 0));
}

TEST_P(LayoutNumberTest, isReadAsFarAsItIsANumber)
{
    const std::string text = GetParam().text;
    const int number = GetParam().number;
    EXPECT_EQ(labelAt("x='" + text + "'"), QRect(number, 0, 1, 1));
    EXPECT_EQ(labelAt("y='" + text + "'"), QRect(0, number, 1, 1));
    EXPECT_EQ(boxAt("x='" + text + "' width='9' height='9'"), QRect(number, 0, 9, 9));
    EXPECT_EQ(boxAt("y='" + text + "' width='9' height='9'"), QRect(0, number, 9, 9));
    const int size = std::max(number, 0); // what Qt makes of a size below nothing
    EXPECT_EQ(labelAt("width='" + text + "' height='9'"), QRect(0, 0, size, 9));
    EXPECT_EQ(labelAt("width='9' height='" + text + "'"), QRect(0, 0, 9, size));
    EXPECT_EQ(boxAt("width='" + text + "' height='9'"), QRect(0, 0, size, 9));
    EXPECT_EQ(boxAt("width='9' height='" + text + "'"), QRect(0, 0, 9, size));
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, LayoutNumberTest,
    ::testing::Values(Reading{"12", 12}, Reading{"+12", 12}, Reading{"-12", -12},
                      Reading{" 12", 12}, Reading{"12px", 12}, Reading{"12.9", 12},
                      Reading{"012", 12}, Reading{"1e3", 1}, Reading{"0x10", 0}, Reading{"", 0},
                      Reading{" ", 0}, Reading{"abc", 0}, Reading{"-", 0}, Reading{"--5", 0},
                      Reading{"16777215", largest}, Reading{"16777216", largest},
                      Reading{"2147483647", largest}, Reading{"2147483648", largest},
                      Reading{"99999999999999999999999", largest}, Reading{"-16777216", -largest},
                      Reading{"-2147483648", -largest},
                      Reading{"-99999999999999999999999", -largest}));

TEST_F(LayoutPositionTest, aPlaceThatIsAllTooLargeIsPaintedWithoutHarm)
{
    const std::string numbers[] = {
        "x='2147483647' y='2147483647' width='2147483647' height='2147483647'",
        "x='-2147483648' y='-2147483648' width='2147483647' height='2147483647'",
        "x='0' y='0' width='2147483647' height='20'",
        "x='0' y='0' width='20' height='2147483647'",
    };
    for (const char* keyword : keywords) {
        for (const std::string& place : numbers) {
            SCOPED_TRACE(keyword + (": " + place));
            QWidget* const widget = build(keyword, place);
            ASSERT_NE(widget, nullptr);
            EventLoop::deliver();
            delete widget;
        }
    }
}

TEST_F(LayoutPositionTest, aPlaceWithoutAreaPaintsNothing)
{
    for (const char* keyword : keywords) {
        for (const char* place : {"x='5' y='5' width='0' height='20'", "x='5' y='5' width='20' "
                                                                       "height='-20'"}) {
            SCOPED_TRACE(keyword);
            QWidget* const widget = build(keyword, place);
            EventLoop::deliver();
            EXPECT_EQ(Pixels::inkInside(Pixels::grab(&panel()), panel().rect()), 0);
            delete widget;
        }
    }
}
