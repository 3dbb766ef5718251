#include "components/text/ZELLabel.h"
#include "examples/ExampleTest.h"
#include "support/EventLoop.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QTimer>

// the example as it stands, all but its start
#define main firstPageMain
#include "../examples/first-page/main.cpp"
#undef main

using namespace PANFx::Testing;

namespace {

class FirstPageTest : public ExampleTest
{
protected:
    FirstPageTest()
        : ExampleTest("first-page")
    {
        expectNoBackgroundLines();
        frame.show();
        page = frame.moveTo("hello", true, true);
        EventLoop::deliver();
    }

    QWidget* label(const char* id)
    {
        return dynamic_cast<PANFx::Components::ZELLabel*>(page->getSubComponent(id));
    }

    HelloFrame frame;
    ZELChildWindow* page = nullptr;
};

TEST_F(FirstPageTest, showsItsTwoTexts)
{
    ASSERT_NE(page, nullptr);
    for (const char* id : {"greeting", "bye"}) {
        ASSERT_NE(label(id), nullptr) << id;
        EXPECT_TRUE(label(id)->isVisible()) << id;
        EXPECT_FALSE(Pixels::inkBox(Pixels::grab(label(id))).isNull()) << id;
    }
}

TEST_F(FirstPageTest, aTouchOnTheSecondTextEndsTheProgram)
{
    ASSERT_NE(label("bye"), nullptr);
    QTimer::singleShot(0, &frame, [this] { Touch::tapWindow(label("bye")); });
    QTimer::singleShot(5000, &frame, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
}

/** Counts what a page is told of touches. */
class Listener : public QObject
{
public:
    int touches = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        touches += event->type() == EVENT_MOUSE_UP ? 1 : 0;
        return false;
    }
};

TEST_F(FirstPageTest, aTouchOnTheFirstTextDoesNot)
{
    ASSERT_NE(label("greeting"), nullptr);
    Listener listener;
    page->installEventFilter(&listener);
    QTimer::singleShot(0, &frame, [this] { Touch::tapWindow(label("greeting")); });
    QTimer::singleShot(200, &frame, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 1);
    EXPECT_EQ(listener.touches, 1);
}

} // namespace
