// What a line edit reports of the finger and of the focus, and which of its frames it shows.

#include "components/text/LineEditTest.h"

using namespace PANFx::Testing;

namespace {

class ZELLineEditTouchTest : public LineEditTest
{
};

// notes the numbers of the library's events at the moment when a widget gets them
class Arrivals : public QObject
{
public:
    Arrivals(QWidget* widget, std::vector<int>& numbers)
        : m_numbers(numbers)
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() >= EVENT_MOUSE_DOWN)
            m_numbers.push_back(event->type());
        return false;
    }

private:
    std::vector<int>& m_numbers;
};

} // namespace

// ---- the finger and the focus

TEST_F(ZELLineEditTouchTest, theFocusThatATouchTakesSelectsNothing)
{
    OpenLine* const made = line();
    line()->setFocus();
    made->setFocusPolicy(Qt::NoFocus); // else Qt's own focus of a click comes first
    made->setText(QStringLiteral("ab"));
    Touch::tap(made);
    EXPECT_TRUE(made->hasFocus());
    EXPECT_FALSE(made->hasSelectedText());
    QTest::keyClicks(made, QStringLiteral("c"));
    EXPECT_EQ(made->text(), QStringLiteral("abc"));
}

TEST_F(ZELLineEditTouchTest, whatItReportsIsQueuedAndNotSent)
{
    OpenLine* const made = line();
    std::vector<int> arrived;
    const Arrivals arrivals(&panel(), arrived);
    Touch::press(made);
    Touch::release(made);
    made->clearFocus();
    EXPECT_EQ(arrived, std::vector<int>{});
    EventLoop::deliver();
    EXPECT_EQ(arrived, (std::vector<int>{1551, 1552, 1560}));
}

TEST_F(ZELLineEditTouchTest, aTapGivesPressAndReleaseAndTakesTheFocus)
{
    OpenLine* const made = line();
    Touch::pressWindow(made, Touch::middleInWindow(made));
    const RecordedEvent press = panel().takeOne();
    EXPECT_EQ(press.type, 1551);
    EXPECT_EQ(press.classType, "ZELEvent");
    EXPECT_EQ(press.sender, made);
    EXPECT_EQ(press.id, "ok");
    EXPECT_EQ(press.receiver, &panel());
    EXPECT_TRUE(made->hasFocus());
    EXPECT_EQ(shownState(made), down);
    Touch::releaseWindow(made, Touch::middleInWindow(made));
    const RecordedEvent release = panel().takeOne();
    EXPECT_EQ(release.type, 1552);
    EXPECT_EQ(release.classType, "ZELEvent");
    EXPECT_EQ(release.sender, made);
    EXPECT_EQ(release.id, "ok");
    EXPECT_EQ(shownState(made), down) << "it has the focus now";
}

TEST_F(ZELLineEditTouchTest, theLostFocusIsTold)
{
    OpenLine* const made = line();
    Touch::tapWindow(made);
    panel().take();
    made->clearFocus();
    EXPECT_EQ(shownState(made), up);
    const RecordedEvent lost = panel().takeOne();
    EXPECT_EQ(lost.type, 1560);
    EXPECT_EQ(lost.classType, "ZELEvent");
    EXPECT_EQ(lost.sender, made);
    EXPECT_EQ(lost.id, "ok");
}

TEST_F(ZELLineEditTouchTest, aFocusThatComesOtherwiseIsNotSeen)
{
    OpenLine* const made = line();
    made->setFocus();
    EXPECT_TRUE(made->hasFocus());
    EXPECT_EQ(shownState(made), up);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELLineEditTouchTest, theFirstFieldOfAWindowGetsTheFocusUnasked)
{
    EventRecorder page;
    auto* const made = new OpenLine(&page, "ok", "ZELLineEdit", element(field()));
    page.show();
    page.activateWindow();
    EXPECT_TRUE(EventLoop::waitFor([&] { return made->hasFocus(); }));
    EXPECT_EQ(shownState(made), up);
    EXPECT_EQ(page.takeTypes(), Types{});
}

TEST_F(ZELLineEditTouchTest, aTouchOfAnotherFieldTakesTheFocusBeforeThePressIsTold)
{
    OpenLine* const one = line();
    OpenLine* const other = line();
    other->move(300, 200);
    other->setFocusPolicy(Qt::NoFocus); // else Qt gives it the focus before it hears of the press
    Touch::tapWindow(one);
    panel().take();
    Touch::pressWindow(other, Touch::middleInWindow(other));
    const std::vector<RecordedEvent> events = panel().take();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].type, 1560);
    EXPECT_EQ(events[0].sender, one);
    EXPECT_EQ(events[1].type, 1551);
    EXPECT_EQ(events[1].sender, other);
    EXPECT_EQ(shownState(one), up);
    EXPECT_EQ(shownState(other), down);
}

TEST_F(ZELLineEditTouchTest, aTouchTakesTheFocusWhateverTheFieldsPolicy)
{
    OpenLine* const made = line();
    made->setFocusPolicy(Qt::NoFocus);
    Touch::press(made);
    EXPECT_TRUE(made->hasFocus());
}

TEST_F(ZELLineEditTouchTest, theFocusThatGoesOnWhenItIsHiddenIsTold)
{
    OpenLine* const made = line();
    OpenLine* const next = line(); // somebody must be there to take it
    Touch::tap(made);
    panel().take();
    made->hideWindow();
    EXPECT_TRUE(next->hasFocus());
    EXPECT_EQ(shownState(made), up);
    const RecordedEvent lost = panel().takeOne();
    EXPECT_EQ(lost.type, 1560);
    EXPECT_EQ(lost.sender, made);
}

TEST_F(ZELLineEditTouchTest, withoutAFrameForThePressTheOneItHasStays)
{
    OpenLine* const made = make<OpenLine>("<ok style='normal'>" + frameOf(up, "imageup") +
                                          "<position width='200' height='44'/></ok>");
    Touch::tap(made);
    const Pieces atRest = {made->m_pUpStart, made->m_pUpMid, made->m_pUpEnd};
    EXPECT_EQ(current(made), atRest);
    EXPECT_EQ(panel().takeTypes(), (Types{1551, 1552}));
    made->setDimMode(true);
    made->setFocus();
    made->setDimMode(false);
    EXPECT_EQ(current(made), atRest);
}

TEST_F(ZELLineEditTouchTest, neitherCaretNorSelectionFollowsTheFinger)
{
    OpenLine* const made = line();
    made->setText(QStringLiteral("hello wide world"));
    const QPoint left(20, 5); // so far up that Qt looks at the place along the text
    const QPoint right(50, 5);
    ASSERT_LT(made->cursorPositionAt(left), made->cursorPositionAt(right));
    ASSERT_LT(made->cursorPositionAt(right), made->cursorPosition()) << "at the end of the text";
    const auto untouched = [&] {
        return !made->hasSelectedText() && made->cursorPosition() == made->text().size();
    };
    Touch::tap(made, left);
    EXPECT_TRUE(untouched()) << "a tap";
    Touch::press(made, left);
    Touch::drag(made, right);
    EXPECT_TRUE(untouched()) << "a drag";
    Touch::release(made, right);
    Touch::doubleClick(made, left);
    EXPECT_TRUE(untouched()) << "a second tap";
    Touch::drag(made, right);
    Touch::release(made, right);
    EXPECT_TRUE(untouched()) << "a drag after it";
    Touch::tap(made, left); // a third one soon after
    EXPECT_TRUE(untouched()) << "a third tap";
    QTest::keyClicks(made, QStringLiteral("!"));
    EXPECT_EQ(made->text(), QStringLiteral("hello wide world!"));
}

TEST_F(ZELLineEditTouchTest, theSecondOfTwoQuickTapsIsAPressToo)
{
    OpenLine* const made = line();
    Touch::tap(made);
    Touch::doubleClick(made);
    Touch::release(made);
    EXPECT_EQ(panel().takeTypes(), (Types{1551, 1552, 1551, 1552}));
}

TEST_F(ZELLineEditTouchTest, aFingerThatSlidesOffStillReleases)
{
    OpenLine* const made = line();
    Touch::pressWindow(made, Touch::middleInWindow(made));
    Touch::dragWindow(made, QPoint(600, 400));
    EXPECT_EQ(panel().takeTypes(), Types{1551}) << "the move itself is not told";
    Touch::releaseWindow(made, QPoint(600, 400));
    EXPECT_EQ(panel().takeTypes(), Types{1552});
}

// ---- dim mode

TEST_F(ZELLineEditTouchTest, aDimmedFieldShowsItAndTakesNoInput)
{
    OpenLine* const made = line();
    made->setText(QStringLiteral("a"));
    EXPECT_EQ(paints(made, [&] { made->setDimMode(true); }), 1);
    EXPECT_TRUE(made->m_bDimMode);
    EXPECT_FALSE(made->isEnabled());
    EXPECT_EQ(shownState(made), dim);
    QTest::keyClicks(made, QStringLiteral("b"));
    EXPECT_EQ(made->text(), QStringLiteral("a"));
    Touch::tapWindow(made);
    EXPECT_FALSE(made->hasFocus());
    EXPECT_EQ(panel().takeTypes(), Types{});
    EXPECT_EQ(paints(made, [&] { made->setDimMode(false); }), 1);
    EXPECT_FALSE(made->m_bDimMode);
    EXPECT_TRUE(made->isEnabled());
    EXPECT_EQ(shownState(made), up);
}

TEST_F(ZELLineEditTouchTest, whileDimmedTheHandlersDoNothing)
{
    OpenLine* const made = line();
    made->setDimMode(true);
    const QPointF at(1, 1);
    QMouseEvent press(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent again(QEvent::MouseButtonDblClick, at, at, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, at, at, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QFocusEvent lost(QEvent::FocusOut);
    EXPECT_EQ(paints(made,
                     [&] {
                         made->mousePressEvent(&press);
                         made->mouseDoubleClickEvent(&again);
                         made->mouseReleaseEvent(&release);
                         made->focusOutEvent(&lost);
                     }),
              0);
    EXPECT_EQ(shownState(made), dim);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELLineEditTouchTest, theFocusThatDimModeTakesIsNotTold)
{
    OpenLine* const made = line();
    Touch::tapWindow(made);
    panel().take();
    made->setDimMode(true);
    EXPECT_FALSE(made->hasFocus());
    EXPECT_EQ(shownState(made), dim);
    EXPECT_EQ(panel().takeTypes(), Types{});
    made->setDimMode(false);
    EXPECT_FALSE(made->hasFocus()) << "the focus does not come back";
    EXPECT_EQ(shownState(made), up);
}

TEST_F(ZELLineEditTouchTest, undimmedWithTheFocusItShowsTheDownPieces)
{
    OpenLine* const made = line();
    made->setFocus();
    EXPECT_EQ(shownState(made), up);
    made->setDimMode(false);
    EXPECT_EQ(shownState(made), down);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELLineEditTouchTest, theSameDimModeAgainSetsThePiecesAnew)
{
    OpenLine* const made = line();
    for (const bool dimmed : {true, false}) {
        made->setDimMode(dimmed);
        made->setCurImage(nullptr, nullptr, nullptr);
        EXPECT_EQ(paints(made, [&] { made->setDimMode(dimmed); }), 1);
        EXPECT_EQ(shownState(made), dimmed ? dim : up);
    }
}

TEST_F(ZELLineEditTouchTest, withoutAFrameForDimModeNoneIsShown)
{
    OpenLine* const made = make<OpenLine>("<ok style='normal'>" + frameOf(up, "imageup") +
                                          "<position width='200' height='44'/></ok>");
    made->setDimMode(true);
    EXPECT_EQ(current(made), Pieces(3, nullptr));
}
