#include "support/Touch.h"

#include "support/EventLoop.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace PANFx::Testing;

namespace {

using Notes = std::vector<std::string>;

// writes down what it gets: "press 5,5"
class Pad : public QWidget
{
public:
    Pad(QWidget* parent, std::string name, Notes& notes)
        : QWidget(parent)
        , m_name(std::move(name))
        , m_notes(notes)
    {
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { note("press", event); }
    void mouseReleaseEvent(QMouseEvent* event) override { note("release", event); }
    void mouseMoveEvent(QMouseEvent* event) override { note("move", event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { note("double", event); }

private:
    void note(const char* what, const QMouseEvent* event)
    {
        const QPoint at = event->pos();
        m_notes.push_back(m_name + " " + what + " " + std::to_string(at.x()) + "," +
                          std::to_string(at.y()));
    }

    std::string m_name;
    Notes& m_notes;
};

class TouchTest : public ::testing::Test
{
protected:
    TouchTest()
    {
        m_page.setGeometry(0, 0, 200, 100);
        m_left.setGeometry(0, 0, 11, 11);
        m_right.setGeometry(100, 0, 11, 11);
        m_page.show();
        EventLoop::deliver();
    }

    Notes m_notes;
    Pad m_page{nullptr, "page", m_notes};
    Pad m_left{&m_page, "left", m_notes};
    Pad m_right{&m_page, "right", m_notes};
};

} // namespace

TEST_F(TouchTest, GoesToTheMiddleOrWhereItIsTold)
{
    Touch::tap(&m_left);
    Touch::tap(&m_right, QPoint(1, 2));
    EXPECT_EQ(m_notes, (Notes{"left press 5,5", "left release 5,5", "right press 1,2",
                              "right release 1,2"}));
}

TEST_F(TouchTest, TwoTapsAreNoDoubleClickButADoubleClickIs)
{
    Touch::tap(&m_left);
    Touch::tap(&m_left);
    Touch::tapWindow(&m_left);
    Touch::tapWindow(&m_left);
    EXPECT_EQ(std::count(m_notes.begin(), m_notes.end(), "left press 5,5"), 4);
    m_notes.clear();
    Touch::doubleClick(&m_left);
    EXPECT_EQ(m_notes, Notes{"left double 5,5"});
}

TEST_F(TouchTest, DragsWithTheButtonDown)
{
    Touch::press(&m_left);
    Touch::drag(&m_left, QPoint(7, 8));
    Touch::release(&m_left, QPoint(7, 8));
    EXPECT_EQ(m_notes, (Notes{"left press 5,5", "left move 7,8", "left release 7,8"}));
}

TEST_F(TouchTest, HoldRunsTheEventLoopBetweenPressAndRelease)
{
    QElapsedTimer clock;
    clock.start();
    Touch::hold(&m_left, 40);
    EXPECT_GE(clock.elapsed(), 39);
    EXPECT_EQ(m_notes, (Notes{"left press 5,5", "left release 5,5"}));
}

TEST_F(TouchTest, InTheWindowQtDecidesWhoGetsIt)
{
    EXPECT_EQ(Touch::middleInWindow(&m_right), QPoint(105, 5));
    Touch::tapWindow(&m_right);
    EXPECT_EQ(m_notes, (Notes{"right press 5,5", "right release 5,5"}));
}

TEST_F(TouchTest, InTheWindowADisabledWidgetIsPassedOver)
{
    m_right.setDisabled(true);
    Touch::tapWindow(&m_right);
    EXPECT_EQ(m_notes, (Notes{"page press 105,5", "page release 105,5"}));
}

TEST_F(TouchTest, InTheWindowTheReleaseGoesToTheHolder)
{
    Touch::pressWindow(&m_left, QPoint(5, 5));
    Touch::dragWindow(&m_left, QPoint(150, 60));
    Touch::releaseWindow(&m_left, QPoint(150, 60));
    EXPECT_EQ(m_notes.front(), "left press 5,5");
    EXPECT_EQ(m_notes.back(), "left release 150,60");
}

TEST_F(TouchTest, AWindowThatWasNeverShownIsAFault)
{
    EXPECT_NONFATAL_FAILURE(
        {
            QWidget hidden;
            Touch::pressWindow(&hidden, QPoint(0, 0));
        },
        "never shown");
}
