// What an image edit reports of the finger and of the focus, and which of its frames it shows.

#include "components/editors/FieldTest.h"
#include "events/EventNumbers.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageEdit;

namespace {

using Edit = OpenField<ZELImageEdit>;

class ZELImageEditTouchTest : public FieldTest
{
protected:
    void SetUp() override
    {
        m_edit = make<Edit>(field());
        ASSERT_TRUE(panel().isActiveWindow());
        panel().take();
    }

    // the elision's mode after a press there; elsewhere it stays as it is before
    int modeAfterPress(int x, int before)
    {
        m_edit->m_nElideMode = before;
        m_edit->forcePress(x);
        return m_edit->m_nElideMode;
    }

    Edit* m_edit = nullptr;
};

} // namespace

TEST_F(ZELImageEditTouchTest, aFirstTouchGivesFocusPressAndRelease)
{
    Touch::pressWindow(m_edit, Touch::middleInWindow(m_edit));
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_FOCUS_IN, EVENT_MOUSE_DOWN}));
    EXPECT_TRUE(m_edit->hasFocus());
    EXPECT_EQ(shownState(m_edit), down);
    Touch::releaseWindow(m_edit, Touch::middleInWindow(m_edit));
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_UP});
    EXPECT_EQ(shownState(m_edit), down);
}

TEST_F(ZELImageEditTouchTest, theNumbersAreThoseOfTheProtocol)
{
    Touch::tapWindow(m_edit);
    m_edit->clearFocus();
    EXPECT_EQ(panel().takeTypes(), (Types{1559, 1551, 1552, 1560}));
}

TEST_F(ZELImageEditTouchTest, aTouchOfAFocusedEditGivesNoFocusAgain)
{
    Touch::tapWindow(m_edit);
    panel().take();
    Touch::tapWindow(m_edit);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_MOUSE_DOWN, EVENT_MOUSE_UP}));
}

TEST_F(ZELImageEditTouchTest, eachReportIsAPlainEventOfTheEdit)
{
    Touch::tapWindow(m_edit);
    m_edit->clearFocus();
    const std::vector<RecordedEvent> events = panel().take();
    ASSERT_EQ(events.size(), 4u);
    for (const RecordedEvent& event : events) {
        EXPECT_EQ(event.classType, "ZELEvent");
        EXPECT_EQ(event.sender, static_cast<QWidget*>(m_edit));
        EXPECT_EQ(event.id, "ok");
        EXPECT_EQ(event.receiver, &panel());
    }
}

TEST_F(ZELImageEditTouchTest, aReleaseElsewhereIsAReleaseToo)
{
    const QPoint outside = m_edit->mapTo(&panel(), QPoint(300, 200));
    Touch::pressWindow(m_edit, Touch::middleInWindow(m_edit));
    Touch::dragWindow(m_edit, outside);
    Touch::releaseWindow(m_edit, outside);
    EXPECT_EQ(panel().takeTypes(), (Types{EVENT_FOCUS_IN, EVENT_MOUSE_DOWN, EVENT_MOUSE_UP}));
}

TEST_F(ZELImageEditTouchTest, theSecondPressOfAQuickPairIsAPress)
{
    Touch::tap(m_edit);
    panel().take();
    Touch::doubleClick(m_edit);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_DOWN});
}

TEST_F(ZELImageEditTouchTest, aPressOfAFocusedEditShowsTheDownPiecesAgain)
{
    Touch::tapWindow(m_edit);
    m_edit->setCurImage(m_edit->m_pUpStart, m_edit->m_pUpMid, m_edit->m_pUpEnd);
    ASSERT_EQ(shownState(m_edit), up);
    EXPECT_EQ(paints(m_edit, [this] { Touch::press(m_edit); }), 1);
    EXPECT_EQ(shownState(m_edit), down);
}

TEST_F(ZELImageEditTouchTest, aPressInAWindowThatIsNotActiveShowsTheDownPieces)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(EventLoop::waitFor([this] { return !panel().isActiveWindow(); }));
    panel().take();
    Touch::press(m_edit);
    EXPECT_FALSE(m_edit->hasFocus());
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_MOUSE_DOWN}) << "the focus comes with the window";
    EXPECT_EQ(shownState(m_edit), down);
    EXPECT_EQ(panel().focusWidget(), static_cast<QWidget*>(m_edit));
}

TEST_F(ZELImageEditTouchTest, aPressTakesTheFocusForAReasonOfItsOwn)
{
    class Noting : public Edit
    {
    public:
        using Edit::Edit;
        std::vector<Qt::FocusReason> reasons;

    protected:
        void focusInEvent(QFocusEvent* event) override
        {
            reasons.push_back(event->reason());
            Edit::focusInEvent(event);
        }
    };
    auto* const noting = make<Noting>(field());
    Touch::press(noting);
    EXPECT_EQ(noting->reasons, std::vector<Qt::FocusReason>{Qt::OtherFocusReason});
}

TEST_F(ZELImageEditTouchTest, losingTheFocusShowsTheUpPiecesAndReportsIt)
{
    Touch::tapWindow(m_edit);
    panel().take();
    EXPECT_EQ(paints(m_edit, [this] { m_edit->clearFocus(); }), 1);
    EXPECT_EQ(shownState(m_edit), up);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_FOCUS_OUT});
}

TEST_F(ZELImageEditTouchTest, gainingTheFocusWithoutATouchShowsTheDownPieces)
{
    EXPECT_EQ(paints(m_edit, [this] { m_edit->setFocus(); }), 1);
    EXPECT_EQ(shownState(m_edit), down);
    EXPECT_EQ(panel().takeTypes(), Types{EVENT_FOCUS_IN});
}

TEST_F(ZELImageEditTouchTest, theFocusGoesFromOneEditToTheNext)
{
    auto* const other = new Edit(&panel(), "other", "ZELImageEdit", nullptr);
    expectNullLayoutLines("other");
    other->setGeometry(10, 100, 200, 44);
    other->showWindow();
    Touch::tapWindow(m_edit);
    panel().take();
    Touch::tapWindow(other);
    const std::vector<RecordedEvent> events = panel().take();
    ASSERT_EQ(events.size(), 4u);
    EXPECT_EQ(events[0].type, EVENT_FOCUS_OUT);
    EXPECT_EQ(events[0].id, "ok");
    EXPECT_EQ(events[1].type, EVENT_FOCUS_IN);
    EXPECT_EQ(events[1].id, "other");
    EXPECT_EQ(events[2].type, EVENT_MOUSE_DOWN);
    EXPECT_EQ(events[3].type, EVENT_MOUSE_UP);
}

TEST_F(ZELImageEditTouchTest, anEditWithoutAParentTellsThatNobodyHears)
{
    Edit alone(nullptr, "alone", "ZELImageEdit", element(field()));
    alone.forcePress();
    alone.forceRelease();
    alone.forceFocus(QEvent::FocusIn);
    alone.forceFocus(QEvent::FocusOut);
    for (const char* const operation :
         {"mousePressEvent", "mouseReleaseEvent", "focusInEvent", "focusOutEvent"})
        log().expectError("[" + std::string(operation) + "] alone has no parent", 1,
                          "ZELImageEdit");
}

// ---- dim mode

TEST_F(ZELImageEditTouchTest, dimModeShowsTheDimPiecesAndDisables)
{
    EXPECT_EQ(paints(m_edit, [this] { m_edit->setDimMode(true); }), 1);
    EXPECT_TRUE(m_edit->m_bDimMode);
    EXPECT_FALSE(m_edit->isEnabled());
    EXPECT_EQ(shownState(m_edit), dim);
    EXPECT_EQ(paints(m_edit, [this] { m_edit->setDimMode(false); }), 1);
    EXPECT_FALSE(m_edit->m_bDimMode);
    EXPECT_TRUE(m_edit->isEnabled());
    EXPECT_EQ(shownState(m_edit), up);
}

TEST_F(ZELImageEditTouchTest, inDimModeNoHandlerDoesAnything)
{
    m_edit->setElidedText(4);
    m_edit->m_nElideMode = 2;
    m_edit->setDimMode(true);
    m_edit->setEnabled(true); // as far as Qt is concerned it could take the focus
    EXPECT_EQ(paints(m_edit,
                     [this] {
                         m_edit->forcePress(10);
                         m_edit->forceRelease();
                         m_edit->forceFocus(QEvent::FocusIn);
                         m_edit->forceFocus(QEvent::FocusOut);
                     }),
              0);
    EXPECT_FALSE(m_edit->hasFocus());
    EXPECT_EQ(shownState(m_edit), dim);
    EXPECT_EQ(m_edit->m_nElideMode, 2);
    EXPECT_EQ(panel().takeTypes(), Types{});
}

TEST_F(ZELImageEditTouchTest, dimmingAFocusedEditTakesItsFocusWithoutAWord)
{
    Touch::tapWindow(m_edit);
    panel().take();
    m_edit->setDimMode(true);
    EXPECT_FALSE(m_edit->hasFocus());
    EXPECT_EQ(shownState(m_edit), dim);
    EXPECT_EQ(panel().takeTypes(), Types{});
    m_edit->setDimMode(false);
    EXPECT_EQ(shownState(m_edit), up);
}

TEST_F(ZELImageEditTouchTest, leavingDimModeAFocusedEditShowsTheDownPieces)
{
    Touch::tapWindow(m_edit);
    m_edit->setCurImage(nullptr, nullptr, nullptr);
    m_edit->setDimMode(false);
    EXPECT_EQ(shownState(m_edit), down);
}

TEST_F(ZELImageEditTouchTest, settingDimModeAgainIsNotLeftOut)
{
    m_edit->setDimMode(true);
    m_edit->setCurImage(nullptr, nullptr, nullptr);
    EXPECT_EQ(paints(m_edit, [this] { m_edit->setDimMode(true); }), 1);
    EXPECT_EQ(shownState(m_edit), dim);
}

// ---- the zones at the ends of a field that follows the finger

TEST_F(ZELImageEditTouchTest, theFirstTenthOfTheTextShowsItsHead)
{
    m_edit->setPadding(8, 0, 100, 44);
    m_edit->setElidedText(4);
    for (const int x : {8, 13, 18})
        EXPECT_EQ(modeAfterPress(x, 0), 1) << x;
    for (const int x : {0, 7, 19, 50})
        EXPECT_EQ(modeAfterPress(x, 0), 0) << x;
}

TEST_F(ZELImageEditTouchTest, theLastTenthShowsItsTailAndEndsAtTheWidth)
{
    m_edit->setPadding(8, 0, 100, 44);
    m_edit->setElidedText(4);
    for (const int x : {99, 100})
        EXPECT_EQ(modeAfterPress(x, 1), 0) << x;
    for (const int x : {50, 97, 98, 101, 104, 107, 108, 150})
        EXPECT_EQ(modeAfterPress(x, 1), 1) << x;
}

TEST_F(ZELImageEditTouchTest, aZoneIsTheWholeNumberOfPixelsBelowATenth)
{
    m_edit->setPadding(0, 0, 59, 44);
    m_edit->setElidedText(4);
    EXPECT_EQ(modeAfterPress(5, 0), 1);
    EXPECT_EQ(modeAfterPress(6, 0), 0);
    EXPECT_EQ(modeAfterPress(45, 1), 1);
    EXPECT_EQ(modeAfterPress(46, 1), 0);
    EXPECT_EQ(modeAfterPress(59, 1), 0);
    EXPECT_EQ(modeAfterPress(60, 1), 1);
}

TEST_F(ZELImageEditTouchTest, theZonesDoNothingInTheOtherModes)
{
    m_edit->setPadding(8, 0, 100, 44);
    for (const int mode : {0, 1, 2, 3}) {
        m_edit->setElidedText(mode);
        EXPECT_EQ(modeAfterPress(10, 2), 2);
        EXPECT_EQ(modeAfterPress(99, 2), 2);
    }
}

TEST_F(ZELImageEditTouchTest, aTapAtTheHeadShowsTheHeadAgainAndTypingTheTail)
{
    const std::string text = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    const auto shows = [this](Qt::TextElideMode mode, const std::string& whole) {
        const QString cut = QFontMetrics(*style("normal")->m_pFont)
                                .elidedText(QString::fromStdString(whole), mode, textArea.width());
        return Pixels::same(Pixels::grab(m_edit),
                            framedText(cut, textArea, toTheLeft, Qt::black, down));
    };
    m_edit->setElidedText(4);
    Touch::tapWindow(m_edit);
    m_edit->addText(text);
    EXPECT_TRUE(shows(Qt::ElideLeft, text));
    Touch::tapWindow(m_edit, m_edit->mapTo(&panel(), QPoint(10, 20)));
    EXPECT_TRUE(shows(Qt::ElideRight, text));
    Touch::tapWindow(m_edit, m_edit->mapTo(&panel(), QPoint(180, 20)));
    EXPECT_TRUE(shows(Qt::ElideLeft, text));
    Touch::tapWindow(m_edit, m_edit->mapTo(&panel(), QPoint(10, 20)));
    m_edit->backspace();
    EXPECT_TRUE(shows(Qt::ElideLeft, text.substr(0, text.size() - 1)));
}
