#include "windows/ZELMainFrame.h"

#include "support/EventLoop.h"
#include "support/JournalPage.h"

#include <QPointer>

#include <algorithm>

using namespace PANFx;
using namespace PANFx::Testing;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

class ZELMainFrameRemoveTest : public PagesTest
{
protected:
    ZELMainFrameRemoveTest() { addPages({"a", "b", "c", "hidden"}); }

    /** Moves through pages, and forgets what that led to. */
    void visit(const Strings& ids)
    {
        for (const std::string& id : ids)
            frame().moveTo(id);
        EventLoop::deliver();
        steps();
        log().startHere();
    }

    std::string liveIds()
    {
        std::string ids;
        for (const ZELChildWindow* page : frame().m_dqChildWindows)
            ids += page->m_strID + " ";
        return ids;
    }

    /** The steps so far that are deaths, in their order. */
    Strings deaths()
    {
        Strings found;
        for (const std::string& step : steps()) {
            if (step.compare(0, 7, "delete ") == 0)
                found.push_back(step.substr(7));
        }
        return found;
    }

    void expectTooShortAHistory(int entries)
    {
        log().expectError("[moveBackEx] nIndex (" + std::to_string(entries) + ") < 2", 1,
                          "ZELMainFrame");
    }

    /** A page that the frame may have forgotten; null when it died. */
    static QPointer<QWidget> watch(ZELChildWindow* page) { return QPointer<QWidget>(page); }
};

TEST_F(ZELMainFrameRemoveTest, deletesAllButTheNamedPageAndGoesBack)
{
    visit({"a", "b", "c"});
    const QPointer<QWidget> c = watch(frame().getCurrentWindow());
    frame().removeAllChildWnd("c");

    EXPECT_FALSE(c.isNull());
    EXPECT_EQ(
        log().texts("ZELMainFrame"),
        (Strings{"[D] [removeAllChildWnd] start", "[D] [removeAllChildWnd] before delete a Window",
                 "[D] [removeAllChildWnd] finished window deletion",
                 "[D] [removeAllChildWnd] before delete b Window",
                 "[D] [removeAllChildWnd] finished window deletion", "[I] [moveBackEx] b <== c",
                 "[D] [findChild] Cannot Find Window (ID: b)", "[D] [removeAllChildWnd] end"}));
    EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
    EXPECT_EQ(liveIds(), "b ");
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "b");
}

TEST_F(ZELMainFrameRemoveTest, deletesInOrderOfCreationAndMovesAfterwards)
{
    visit({"a", "b", "c"});
    frame().removeAllChildWnd("c");
    EventLoop::deliver();
    EXPECT_EQ(steps(), (Strings{"delete a", "delete b", "create b", "activating b", "show b",
                                "disable c", "hide c", "activated b", "event 1550 b"}));
}

TEST_F(ZELMainFrameRemoveTest, eachDeathStandsBetweenItsTwoLines)
{
    visit({"a", "b"});
    bool reached = false;
    at("delete a", [&] {
        reached = true;
        EXPECT_EQ(log().count("[D] [removeAllChildWnd] before delete a Window"), 1);
        EXPECT_EQ(log().count("[D] [removeAllChildWnd] finished window deletion"), 0);
    });
    frame().removeAllChildWnd("b");
    EXPECT_TRUE(reached);
}

TEST_F(ZELMainFrameRemoveTest, theLockIsFreeDuringTheDeletionAndTakenForTheNavigation)
{
    visit({"a", "b"});
    std::string held;
    journal().onStep = [&](const std::string& step) {
        if (step == "delete a" || step == "activating a" || step == "activated a")
            held += step + (lockHeld() ? " held, " : " free, ");
    };
    frame().removeAllChildWnd("b");
    EXPECT_EQ(held, "delete a free, activating a held, activated a free, ");
}

TEST_F(ZELMainFrameRemoveTest, theSparedPageIsUnknownAfterwards)
{
    visit({"a", "b"});
    ZELChildWindow* const spared = frame().getCurrentWindow();
    frame().removeAllChildWnd("b");
    EXPECT_EQ(frame().findChild("b"), nullptr);
    EXPECT_EQ(spared->parent(), &frame());
    EXPECT_FALSE(spared->isVisible());
    EXPECT_FALSE(spared->isEnabled());

    ZELChildWindow* const another = frame().moveTo("b");
    EXPECT_NE(another, spared);
    EXPECT_EQ(liveIds(), "a b ");
}

TEST_F(ZELMainFrameRemoveTest, withoutAHiddenMainPageNothingIsKeptAside)
{
    visit({"a", "b"});
    frame().removeAllChildWnd("b");
    EXPECT_EQ(liveIds(), "a ") << "made anew by the way back";
    EXPECT_EQ(frame().asked(), (Strings{"a", "b", "a"}));
}

TEST_F(ZELMainFrameRemoveTest, theHiddenMainPageSurvivesAsTheOnlyEntry)
{
    frame().setHiddenMainWindowID("hidden");
    visit({"hidden", "a", "b"});
    ZELChildWindow* const hidden = frame().findChild("hidden");
    bool reached = false;
    at("create a", [&] {
        reached = true;
        EXPECT_EQ(liveIds(), "hidden ");
    });
    frame().removeAllChildWnd("b");
    EXPECT_TRUE(reached);
    EXPECT_EQ(frame().findChild("hidden"), hidden);
    EXPECT_EQ(liveIds(), "hidden a ");
    EXPECT_EQ(deaths(), Strings{"a"});
    EXPECT_EQ(log().count("[D] [removeAllChildWnd] finished window deletion"), 1);
}

TEST_F(ZELMainFrameRemoveTest, aHiddenMainPageThatIsNamedIsSparedAndNotPutBack)
{
    frame().setHiddenMainWindowID("hidden");
    visit({"a", "hidden"});
    ZELChildWindow* const hidden = frame().getCurrentWindow();
    frame().removeAllChildWnd("hidden");
    EXPECT_EQ(deaths(), Strings{"a"});
    EXPECT_EQ(liveIds(), "a ");
    EXPECT_EQ(frame().findChild("hidden"), nullptr);
    EXPECT_EQ(hidden->m_strID, "hidden") << "alive";
}

TEST_F(ZELMainFrameRemoveTest, ofSeveralHiddenMainPagesTheLastIsKeptAndTheOthersLiveOnUnknown)
{
    frame().setHiddenMainWindowID("hidden");
    visit({"a", "hidden", "b"});
    expectNoBackgroundLines();
    auto* const last = new JournalPage("hidden", &frame(), "empty", sharedJournal());
    const QPointer<QWidget> earlier = watch(frame().findChild("hidden"));
    frame().m_dqChildWindows.push_back(last);
    steps();
    // the way back leads to the hidden main page
    frame().removeAllChildWnd("b");
    EXPECT_FALSE(earlier.isNull());
    EXPECT_EQ(liveIds(), "hidden ");
    EXPECT_EQ(frame().findChild("hidden"), last);
    EXPECT_EQ(deaths(), Strings{"a"});
}

TEST_F(ZELMainFrameRemoveTest, allPagesOfTheNamedIdAreSpared)
{
    visit({"a", "b"});
    expectNoBackgroundLines();
    auto* const twin = new JournalPage("b", &frame(), "empty", sharedJournal());
    frame().m_dqChildWindows.push_front(twin);
    const QPointer<QWidget> first = watch(twin);
    const QPointer<QWidget> second = watch(frame().getCurrentWindow());
    steps();
    frame().removeAllChildWnd("b");
    EXPECT_EQ(deaths(), Strings{"a"});
    EXPECT_FALSE(first.isNull());
    EXPECT_FALSE(second.isNull());
}

TEST_F(ZELMainFrameRemoveTest, emptyEntriesAreDropped)
{
    visit({"a", "b"});
    frame().m_dqChildWindows.push_front(nullptr);
    frame().m_dqChildWindows.push_back(nullptr);
    frame().removeAllChildWnd("b");
    EXPECT_EQ(frame().m_dqChildWindows.size(), 1u);
    EXPECT_EQ(liveIds(), "a ");
}

TEST_F(ZELMainFrameRemoveTest, movesToTheHiddenMainPageWhereTheApplicationAsksForIt)
{
    frame().setHiddenMainWindowID("hidden");
    frame().m_bMoveToHiddenMain = true;
    visit({"hidden", "a", "b"});
    ZELChildWindow* const hidden = frame().findChild("hidden");
    frame().removeAllChildWnd("b");
    EventLoop::deliver();
    EXPECT_EQ(steps(), (Strings{"delete a", "activating hidden", "show hidden", "enable hidden",
                                "disable b", "hide b", "activated hidden", "event 1550 hidden"}));
    EXPECT_EQ(frame().getCurrentWindow(), hidden);
    EXPECT_EQ(frame().history(), (Strings{"hidden", "a", "b", "hidden"}));
    EXPECT_EQ(log().texts("ZELMainFrame").back(), "[D] [removeAllChildWnd] end");
}

TEST_F(ZELMainFrameRemoveTest, theHiddenMainPageIsMadeWhenItWasNotThereYet)
{
    frame().setHiddenMainWindowID("hidden");
    frame().m_bMoveToHiddenMain = true;
    visit({"a"});
    frame().removeAllChildWnd("a");
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "hidden");
    EXPECT_EQ(liveIds(), "hidden ");
}

// ---- what it can't do

TEST_F(ZELMainFrameRemoveTest, onTheFirstPageThereIsNoWayBackAndItStaysOnScreen)
{
    visit({"a"});
    ZELChildWindow* const a = frame().getCurrentWindow();
    expectTooShortAHistory(1);
    frame().removeAllChildWnd("a");
    EXPECT_EQ(log().texts("ZELMainFrame"),
              (Strings{"[D] [removeAllChildWnd] start", "[E] [moveBackEx] nIndex (1) < 2",
                       "[D] [removeAllChildWnd] end"}));
    EXPECT_EQ(frame().getCurrentWindow(), a);
    EXPECT_TRUE(a->isVisible());
    EXPECT_EQ(liveIds(), "");

    ZELChildWindow* const again = frame().moveTo("a");
    EXPECT_NE(again, a);
    EXPECT_TRUE(again->isVisible());
    EXPECT_FALSE(a->isVisible());
}

TEST_F(ZELMainFrameRemoveTest, withoutAnyPageItOnlySaysSo)
{
    expectTooShortAHistory(0);
    frame().removeAllChildWnd("a");
    frame().m_bMoveToHiddenMain = true;
    log().expectError("[moveToEx] Window is NULL", 1, "ZELMainFrame");
    frame().removeAllChildWnd("");
    EXPECT_EQ(frame().getCurrentWindow(), nullptr);
}

TEST_F(ZELMainFrameRemoveTest, aHiddenMainPageThatCannotBeMadeLeavesTheScreenAsItIs)
{
    frame().m_bMoveToHiddenMain = true;
    for (const char* id : {"", "unknown"}) {
        frame().setHiddenMainWindowID(id);
        visit({"a"});
        ZELChildWindow* const a = frame().getCurrentWindow();
        const Strings before = frame().history();
        log().expectError("[moveToEx] Window is NULL", 1, "ZELMainFrame");
        frame().removeAllChildWnd("a");
        EXPECT_EQ(frame().getCurrentWindow(), a) << id;
        EXPECT_EQ(frame().history(), before) << id;
        EXPECT_FALSE(lockHeld()) << id;
    }
}

TEST_F(ZELMainFrameRemoveTest, aCurrentPageThatIsNotNamedDiesWithALineAndIsNotTouchedAgain)
{
    visit({"a", "b"});
    log().expectError("[removeAllChildWnd] deletes the current window b", 1, "ZELMainFrame");
    frame().removeAllChildWnd("a");
    EXPECT_EQ(deaths(), Strings{"b"});
    log().expectInOrder({"[D] [removeAllChildWnd] before delete b Window",
                         "[E] [removeAllChildWnd] deletes the current window b",
                         "[D] [removeAllChildWnd] finished window deletion",
                         "[I] [moveBackEx] a <== b"});
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "a");
    EXPECT_TRUE(frame().getCurrentWindow()->isVisible());
}

TEST_F(ZELMainFrameRemoveTest, noPageIsCurrentWhenTheCurrentOneDiedAndNoneFollowed)
{
    visit({"a"});
    expectTooShortAHistory(1);
    log().expectError("[removeAllChildWnd] deletes the current window a", 1, "ZELMainFrame");
    frame().removeAllChildWnd("elsewhere");
    EXPECT_EQ(frame().m_pCurrentWindow, nullptr) << "an application's frame may look at it";
    EXPECT_EQ(frame().getCurrentWindow(), nullptr);
    ZELChildWindow* const b = frame().moveTo("b");
    EXPECT_EQ(frame().getCurrentWindow(), b);
    EXPECT_TRUE(b->isVisible());
}

TEST_F(ZELMainFrameRemoveTest, aHiddenMainPageOnScreenIsKeptWithoutALine)
{
    frame().setHiddenMainWindowID("hidden");
    visit({"a", "hidden"});
    ZELChildWindow* const hidden = frame().getCurrentWindow();
    frame().removeAllChildWnd("elsewhere");
    EXPECT_EQ(liveIds(), "hidden a ");
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "a");
    EXPECT_FALSE(hidden->isVisible());
}

// ---- the spared page's end

TEST_F(ZELMainFrameRemoveTest, theApplicationMayDeleteTheSparedPageLater)
{
    visit({"a", "b"});
    const QPointer<QWidget> spared = watch(frame().getCurrentWindow());
    frame().removeAllChildWnd("b");
    spared->deleteLater();
    EventLoop::deliverAndDelete();
    EXPECT_TRUE(spared.isNull());
    EXPECT_EQ(frame().moveTo("b")->m_strID, "b");
    EXPECT_EQ(frame().moveBack()->m_strID, "a");
}

TEST_F(ZELMainFrameRemoveTest, theSparedPageMayDieWhileItIsOnScreen)
{
    visit({"a"});
    const QPointer<QWidget> spared = watch(frame().getCurrentWindow());
    expectTooShortAHistory(1);
    frame().removeAllChildWnd("a");
    spared->deleteLater();
    EXPECT_EQ(frame().getCurrentWindow(), spared);
    EventLoop::deliverAndDelete();
    EXPECT_TRUE(spared.isNull());
    EXPECT_EQ(frame().getCurrentWindow(), nullptr);

    steps();
    EXPECT_NE(frame().moveTo("b"), nullptr);
    EventLoop::deliver();
    EXPECT_EQ(steps(),
              (Strings{"create b", "activating b", "show b", "activated b", "event 1550 b"}));
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "b");
    EXPECT_EQ(frame().moveBack()->m_strID, "a");
}

TEST_F(ZELMainFrameRemoveTest, aDeadPageOnScreenIsNotTouchedByTheWayBackEither)
{
    visit({"a", "b"});
    ZELChildWindow* const spared = frame().getCurrentWindow();
    frame().addPage("a", [](const std::string&) { return nullptr; });
    log().expectError("[moveBackEx] Back Window is NULL", 1, "ZELMainFrame");
    frame().removeAllChildWnd("b");
    EXPECT_EQ(frame().getCurrentWindow(), spared);
    delete spared;
    EXPECT_EQ(frame().getCurrentWindow(), nullptr);

    addPages({"a"});
    frame().moveTo("c");
    EXPECT_EQ(frame().moveBack(true)->m_strID, "a");
    EXPECT_EQ(frame().history(), Strings{"a"});
}

// ---- pages that an application deletes itself

TEST_F(ZELMainFrameRemoveTest, aPageThatTheApplicationDeletedIsUnknownAndMadeAnew)
{
    visit({"a", "b", "c"});
    delete frame().findChild("a");
    EXPECT_EQ(frame().findChild("a"), nullptr);
    EXPECT_EQ(deaths(), Strings{"a"});
    EXPECT_EQ(frame().moveBack()->m_strID, "b");
    EXPECT_EQ(frame().moveBack()->m_strID, "a");
    delete frame().findChild("c");
    expectTooShortAHistory(1);
    frame().removeAllChildWnd("a");
    EXPECT_EQ(deaths(), (Strings{"c", "b"}));
}

TEST_F(ZELMainFrameRemoveTest, aPageThatDiesWithAnotherIsNotDeletedTwice)
{
    visit({"a", "b", "c", "a"});
    ZELChildWindow* const outer = frame().findChild("b");
    frame().findChild("c")->setParent(outer);
    const QPointer<QWidget> inner = watch(frame().findChild("c"));
    frame().removeAllChildWnd("a");
    EXPECT_TRUE(inner.isNull());
    EXPECT_EQ(deaths(), (Strings{"b", "c"}));
}

TEST_F(ZELMainFrameRemoveTest, theHiddenMainPageMayDieWithAnotherOne)
{
    frame().setHiddenMainWindowID("hidden");
    visit({"hidden", "a", "b"});
    frame().findChild("hidden")->setParent(frame().findChild("a"));
    frame().removeAllChildWnd("b");
    EXPECT_EQ(liveIds(), "a ") << "made anew by the way back";
    EXPECT_EQ(deaths(), (Strings{"a", "hidden"}));
}

TEST_F(ZELMainFrameRemoveTest, sparedPagesThatNobodyDeletesGoWithTheFrame)
{
    auto other = std::make_unique<FrameForTest>();
    addPages(*other, {"a", "b"});
    other->moveTo("a");
    other->moveTo("b");
    other->removeAllChildWnd("b");
    steps();
    other.reset();
    Strings dead = deaths();
    std::sort(dead.begin(), dead.end());
    EXPECT_EQ(dead, (Strings{"a", "b"}));
}

} // namespace
