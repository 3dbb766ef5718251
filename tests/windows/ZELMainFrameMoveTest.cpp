#include "windows/ZELMainFrame.h"

#include "events/EventNumbers.h"
#include "support/EventLoop.h"
#include "support/JournalPage.h"

#include <QCoreApplication>

#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

class ZELMainFrameMoveTest : public PagesTest
{
protected:
    ZELMainFrameMoveTest() { addPages({"a", "b", "c", "main"}); }

    std::string current()
    {
        ZELChildWindow* const page = frame().getCurrentWindow();
        return page ? page->m_strID : "none";
    }

    std::string liveIds()
    {
        std::string ids;
        for (const ZELChildWindow* page : frame().m_dqChildWindows)
            ids += page ? page->m_strID + " " : "null ";
        return ids;
    }

    /** The steps so far, and those that what is queued leads to. */
    Strings allSteps()
    {
        EventLoop::deliver();
        return steps();
    }
};

// ---- looking up and making pages

TEST_F(ZELMainFrameMoveTest, findChildOnlySearches)
{
    EXPECT_EQ(frame().findChild("a"), nullptr);
    EXPECT_TRUE(frame().asked().empty());
    ZELChildWindow* const page = frame().getZELChildWindow("a");
    EXPECT_EQ(frame().findChild("a"), page);
    EXPECT_EQ(frame().findChild("A"), nullptr) << "ids are compared exactly";
    EXPECT_EQ(frame().findChild("a "), nullptr);
}

TEST_F(ZELMainFrameMoveTest, findChildTellsAtDebugLevelWhatItDoesNotFind)
{
    log().startHere();
    frame().findChild("nowhere");
    EXPECT_EQ(log().texts(), Strings{"[D] [findChild] Cannot Find Window (ID: nowhere)"});
    EXPECT_EQ(log().lines()[0].className(), "ZELMainFrame");

    frame().getZELChildWindow("a");
    log().startHere();
    frame().findChild("a");
    EXPECT_EQ(log().texts(), Strings());
}

TEST_F(ZELMainFrameMoveTest, findChildPassesOverEmptyEntriesAndTakesTheFirstMatch)
{
    ZELChildWindow* const first = frame().getZELChildWindow("a");
    expectNoBackgroundLines();
    auto* const second = new JournalPage("a", &frame(), "empty", sharedJournal());
    frame().m_dqChildWindows = {nullptr, first, nullptr, second};
    EXPECT_EQ(frame().findChild("a"), first);
    EXPECT_EQ(frame().findChild("b"), nullptr);
}

TEST_F(ZELMainFrameMoveTest, aPageIsMadeOnceAndKept)
{
    ZELChildWindow* const page = frame().getZELChildWindow("a");
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(frame().getZELChildWindow("a"), page);
    frame().getZELChildWindow("c");
    frame().getZELChildWindow("b");
    EXPECT_EQ(frame().asked(), (Strings{"a", "c", "b"}));
    EXPECT_EQ(liveIds(), "a c b ") << "in order of creation";
    EXPECT_EQ(page->parent(), &frame());
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(frame().history(), Strings());
    EXPECT_EQ(current(), "none");
}

TEST_F(ZELMainFrameMoveTest, aRefusedPageIsNotStoredAndAskedForAgain)
{
    EXPECT_EQ(frame().getZELChildWindow("unknown"), nullptr);
    EXPECT_EQ(frame().getZELChildWindow("unknown"), nullptr);
    EXPECT_EQ(frame().asked(), (Strings{"unknown", "unknown"}));
    EXPECT_TRUE(frame().m_dqChildWindows.empty());
}

TEST_F(ZELMainFrameMoveTest, aPageWithAnotherIdThanAskedForIsNeverFoundAgain)
{
    frame().addPage("alias", [this](const std::string&) {
        expectNoBackgroundLines();
        return new JournalPage("a", &frame(), "empty", sharedJournal());
    });
    ZELChildWindow* const first = frame().getZELChildWindow("alias");
    EXPECT_NE(frame().getZELChildWindow("alias"), first);
    EXPECT_EQ(liveIds(), "a a ");
    EXPECT_EQ(frame().findChild("a"), first);
}

TEST_F(ZELMainFrameMoveTest, getZELChildWindowTakesNoLock)
{
    at("create a", [this] {
        EXPECT_FALSE(lockHeld());
        EXPECT_NE(frame().getZELChildWindow("b"), nullptr);
        EXPECT_EQ(frame().findChild("c"), nullptr);
    });
    frame().getZELChildWindow("a");
    EXPECT_EQ(liveIds(), "b a ");
}

// ---- the change of page

TEST_F(ZELMainFrameMoveTest, theFirstMoveMakesShowsAndActivatesThePage)
{
    ZELChildWindow* const page = frame().moveTo("a", true, true);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(steps(), (Strings{"create a", "activating a", "show a", "activated a"}));
    EXPECT_EQ(allSteps(), Strings{"event 1550 a"}) << "posted, so it comes last";
    EXPECT_TRUE(page->isVisible());
    EXPECT_EQ(page->geometry(), QRect(0, 0, 800, 480));
    EXPECT_EQ(current(), "a");
    EXPECT_EQ(frame().history(), Strings{"a"});
}

TEST_F(ZELMainFrameMoveTest, theNewPageIsShownBeforeTheOldOneIsDisabledAndHidden)
{
    ZELChildWindow* const a = frame().moveTo("a");
    allSteps();
    ZELChildWindow* const b = frame().moveTo("b");
    EXPECT_EQ(allSteps(), (Strings{"create b", "activating b", "show b", "disable a", "hide a",
                                   "activated b", "event 1550 b"}));
    EXPECT_FALSE(a->isVisible());
    EXPECT_FALSE(a->isEnabled());
    EXPECT_TRUE(b->isVisible());
    EXPECT_TRUE(b->isEnabled());
}

TEST_F(ZELMainFrameMoveTest, aPageThatComesBackIsShownAndThenEnabled)
{
    ZELChildWindow* const a = frame().moveTo("a");
    frame().moveTo("b");
    allSteps();
    EXPECT_EQ(frame().moveTo("a"), a);
    EXPECT_EQ(allSteps(), (Strings{"activating a", "show a", "enable a", "disable b", "hide b",
                                   "activated a", "event 1550 a"}));
    EXPECT_EQ(frame().asked(), (Strings{"a", "b"}));
}

TEST_F(ZELMainFrameMoveTest, activatingFindsThePageCurrentUpdatingAndNotYetShown)
{
    ZELChildWindow* const a = frame().moveTo("a");
    ZELChildWindow* const b = frame().getZELChildWindow("b");
    b->setUpdatesEnabled(false);
    allSteps();
    bool reached = false;
    at("activating b", [&] {
        reached = true;
        EXPECT_EQ(frame().m_pCurrentWindow, b);
        EXPECT_TRUE(b->updatesEnabled());
        EXPECT_FALSE(b->isVisible());
        EXPECT_TRUE(a->isVisible());
        EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
        QCoreApplication::sendPostedEvents(b, EVENT_WINDOW_ACTIVATE); // none is there yet
    });
    frame().moveTo("b");
    EXPECT_TRUE(reached);
    EXPECT_EQ(steps(), (Strings{"activating b", "show b", "disable a", "hide a", "activated b"}));
}

TEST_F(ZELMainFrameMoveTest, theActivateEventIsPostedBeforeThePageIsShown)
{
    frame().recorder().listenAt(frame().getZELChildWindow("a"));
    steps();
    at("show a", [this] {
        QCoreApplication::sendPostedEvents(frame().m_pCurrentWindow, EVENT_WINDOW_ACTIVATE);
    });
    frame().moveTo("a");
    EXPECT_EQ(allSteps(), (Strings{"activating a", "show a", "event 1550 a", "activated a"}));

    const RecordedEvent event = frame().recorder().takeOne();
    EXPECT_EQ(event.type, 1550);
    EXPECT_EQ(event.classType, "ZELEvent");
    EXPECT_EQ(event.sender, nullptr);
    EXPECT_EQ(event.id, "");
}

TEST_F(ZELMainFrameMoveTest, aPageIsCurrentAgainWhateverItsHooksMadeOfIt)
{
    ZELChildWindow* const a = frame().moveTo("a");
    at("show b", [&] { frame().m_pCurrentWindow = a; });
    frame().moveTo("b");
    EXPECT_EQ(current(), "b");
}

TEST_F(ZELMainFrameMoveTest, withoutActivatingThereIsNeitherHookNorEvent)
{
    EXPECT_NE(frame().moveToEx("a", true, false), nullptr);
    EXPECT_EQ(allSteps(), (Strings{"create a", "show a"}));
    frame().moveTo("b", true, false);
    EXPECT_EQ(allSteps(), (Strings{"create b", "show b", "disable a", "hide a", "activated b"}))
        << "activated() is called all the same";
    frame().moveBack(false);
    EXPECT_EQ(allSteps(), (Strings{"show a", "enable a", "disable b", "hide b", "activated a"}));
}

TEST_F(ZELMainFrameMoveTest, theExFormsLeaveActivatedOut)
{
    frame().moveToEx("a", true, true);
    EXPECT_EQ(allSteps(), (Strings{"create a", "activating a", "show a", "event 1550 a"}));
    frame().moveToEx("b", true, true);
    allSteps();
    EXPECT_EQ(frame().moveBackEx(true), frame().findChild("a"));
    EXPECT_EQ(allSteps(), (Strings{"activating a", "show a", "enable a", "disable b", "hide b",
                                   "event 1550 a"}));
    frame().moveToEx("b", true, false);
    allSteps();
    frame().moveBackEx(false);
    EXPECT_EQ(allSteps(), (Strings{"show a", "enable a", "disable b", "hide b"}));
}

TEST_F(ZELMainFrameMoveTest, aMoveToThePageOnScreenRunsAllHooksAndHidesNothing)
{
    ZELChildWindow* const a = frame().moveTo("a");
    allSteps();
    EXPECT_EQ(frame().moveTo("a", true, true), a);
    EXPECT_EQ(allSteps(), (Strings{"activating a", "activated a", "event 1550 a"}));
    EXPECT_EQ(frame().history(), (Strings{"a", "a"}));
    EXPECT_TRUE(a->isVisible());
    EXPECT_TRUE(a->isEnabled());
}

TEST_F(ZELMainFrameMoveTest, moveItselfWorksOnThePagesItIsGiven)
{
    ZELChildWindow* const a = frame().moveTo("a");
    ZELChildWindow* const b = frame().moveTo("b");
    ZELChildWindow* const c = frame().getZELChildWindow("c");
    allSteps();
    frame().move(a, c, false);
    EXPECT_EQ(allSteps(), (Strings{"show c"})) << "a was disabled and hidden already";
    EXPECT_TRUE(b->isVisible()) << "it was not named";
    EXPECT_EQ(current(), "c");
    EXPECT_EQ(frame().history(), (Strings{"a", "b"})) << "no matter for the history";

    frame().move(nullptr, b, true);
    EXPECT_EQ(allSteps(), (Strings{"activating b", "event 1550 b"}));
    EXPECT_TRUE(c->isVisible());
    EXPECT_EQ(current(), "b");
}

TEST_F(ZELMainFrameMoveTest, moveToNowhereDoesNothing)
{
    ZELChildWindow* const a = frame().moveTo("a");
    allSteps();
    log().startHere();
    frame().move(a, nullptr, true);
    frame().move(nullptr, nullptr, true);
    EXPECT_EQ(allSteps(), Strings());
    EXPECT_EQ(log().texts(), Strings());
    EXPECT_EQ(current(), "a");
    EXPECT_TRUE(a->isVisible());
}

TEST_F(ZELMainFrameMoveTest, theStateOfAPageThatIsLeftStays)
{
    ZELChildWindow* const a = frame().moveTo("a");
    a->setObjectName(QStringLiteral("written by the user"));
    frame().moveTo("b");
    frame().moveTo("c");
    EXPECT_EQ(frame().moveTo("a"), a);
    EXPECT_EQ(a->objectName(), QStringLiteral("written by the user"));
}

// ---- the history

TEST_F(ZELMainFrameMoveTest, theHistoryTakesEachIdThatAsksForIt)
{
    frame().moveTo("a", true, true);
    frame().moveToEx("b", true, true);
    frame().moveTo("a", true, false);
    EXPECT_EQ(frame().history(), (Strings{"a", "b", "a"}));
    frame().moveToEx("c", false, false);
    frame().moveTo("c", false, true);
    EXPECT_EQ(frame().history(), (Strings{"a", "b", "a"}));
    EXPECT_EQ(current(), "c");
}

TEST_F(ZELMainFrameMoveTest, unnamedArgumentsMeanHistoryAndActivating)
{
    frame().moveTo("a");
    frame().moveToEx("b");
    EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
    allSteps();
    frame().moveBackEx();
    EXPECT_EQ(steps().front(), "activating a");
    frame().moveTo("b");
    allSteps();
    frame().moveBack();
    EXPECT_EQ(steps().front(), "activating a");
}

TEST_F(ZELMainFrameMoveTest, theMainPageResetsTheHistoryAndStandsInItTwice)
{
    frame().setMainWindowID("main");
    frame().moveTo("main");
    frame().moveTo("a");
    frame().moveTo("b");
    EXPECT_EQ(frame().history(), (Strings{"main", "a", "b"}));
    frame().moveTo("main", true, true);
    EXPECT_EQ(frame().history(), (Strings{"main", "main"}));

    EXPECT_EQ(frame().moveBack(true)->m_strID, "main") << "back to the main page itself";
    EXPECT_EQ(frame().history(), Strings{"main"});
}

TEST_F(ZELMainFrameMoveTest, theMainPageStandsInTheHistoryOnceWhenItDoesNotAskForIt)
{
    frame().setMainWindowID("main");
    frame().moveTo("a");
    frame().moveTo("b");
    frame().moveToEx("main", false, true);
    EXPECT_EQ(frame().history(), Strings{"main"});
}

TEST_F(ZELMainFrameMoveTest, aHistoryOfOneEntryIsNotReset)
{
    frame().setMainWindowID("main");
    frame().moveTo("a");
    frame().moveTo("main", true, true);
    EXPECT_EQ(frame().history(), (Strings{"a", "main"}));
    frame().moveTo("main", false, true);
    EXPECT_EQ(frame().history(), Strings{"main"}) << "two entries are";
    frame().moveTo("main", false, true);
    EXPECT_EQ(frame().history(), Strings{"main"});
    frame().moveTo("main", true, true);
    EXPECT_EQ(frame().history(), (Strings{"main", "main"}));
}

TEST_F(ZELMainFrameMoveTest, withoutAMainPageTheHistoryNeverResets)
{
    addPages({""});
    frame().moveTo("a");
    frame().moveTo("b");
    frame().moveTo("", true, true); // equal to the main page's id, which is none
    frame().moveTo("a");
    EXPECT_EQ(frame().history(), (Strings{"a", "b", "", "a"}));
}

TEST_F(ZELMainFrameMoveTest, otherPagesThanTheMainPageDoNotReset)
{
    frame().setMainWindowID("main");
    frame().moveTo("a");
    frame().moveTo("b");
    frame().moveTo("a");
    EXPECT_EQ(frame().history(), (Strings{"a", "b", "a"}));
}

// ---- back

TEST_F(ZELMainFrameMoveTest, moveBackGoesToTheSecondLastEntryAndDropsTheLast)
{
    ZELChildWindow* const a = frame().moveTo("a");
    frame().moveTo("b");
    frame().moveTo("c");
    allSteps();
    log().startHere();
    EXPECT_EQ(frame().moveBack(true)->m_strID, "b");
    EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
    EXPECT_EQ(log().texts("ZELMainFrame"), Strings{"[I] [moveBackEx] b <== c"});
    EXPECT_EQ(allSteps(), (Strings{"activating b", "show b", "enable b", "disable c", "hide c",
                                   "activated b", "event 1550 b"}));
    EXPECT_EQ(frame().moveBack(true), a);
    EXPECT_EQ(frame().history(), Strings{"a"});
    EXPECT_EQ(current(), "a");
}

TEST_F(ZELMainFrameMoveTest, moveBackDropsTheLastEntryWhateverPageIsOnScreen)
{
    frame().moveTo("a");
    frame().moveTo("b");
    frame().moveToEx("c", false, false);
    allSteps();
    log().startHere();
    EXPECT_EQ(frame().moveBack(true)->m_strID, "a");
    EXPECT_EQ(frame().history(), Strings{"a"});
    EXPECT_EQ(log().count("[I] [moveBackEx] a <== b"), 1);
    EXPECT_EQ(allSteps(), (Strings{"activating a", "show a", "enable a", "disable c", "hide c",
                                   "activated a", "event 1550 a"}));
}

TEST_F(ZELMainFrameMoveTest, moveBackNeedsTwoEntries)
{
    log().expectError("[moveBackEx] nIndex (0) < 2", 2, "ZELMainFrame");
    EXPECT_EQ(frame().moveBackEx(true), nullptr);
    EXPECT_EQ(frame().moveBack(true), nullptr);

    ZELChildWindow* const a = frame().moveTo("a");
    allSteps();
    log().expectError("[moveBackEx] nIndex (1) < 2", 2, "ZELMainFrame");
    EXPECT_EQ(frame().moveBackEx(true), nullptr);
    EXPECT_EQ(frame().moveBack(true), nullptr);
    EXPECT_EQ(frame().history(), Strings{"a"});
    EXPECT_EQ(frame().getCurrentWindow(), a);
    EXPECT_TRUE(a->isVisible());
    EXPECT_EQ(allSteps(), Strings());
    EXPECT_FALSE(lockHeld());
}

TEST_F(ZELMainFrameMoveTest, moveBackMakesAPageAnewThatIsNoLongerAlive)
{
    ZELChildWindow* const a = frame().moveTo("a");
    a->setObjectName(QStringLiteral("used"));
    frame().moveTo("b");
    frame().m_dqChildWindows.pop_front();
    delete a;
    allSteps();
    ZELChildWindow* const again = frame().moveBack(true);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->m_strID, "a");
    EXPECT_TRUE(again->objectName().isEmpty());
    EXPECT_EQ(steps().front(), "create a");
    EXPECT_EQ(liveIds(), "b a ");
}

TEST_F(ZELMainFrameMoveTest, whenThePageBehindIsRefusedItsEntryStaysRemoved)
{
    frame().moveTo("a");
    frame().moveTo("b");
    ZELChildWindow* const c = frame().moveTo("c");
    frame().m_dqChildWindows.erase(frame().m_dqChildWindows.begin() + 1);
    frame().addPage("b", [](const std::string&) { return nullptr; });
    allSteps();
    log().startHere();
    log().expectError("[moveBackEx] Back Window is NULL", 1, "ZELMainFrame");
    EXPECT_EQ(frame().moveBack(true), nullptr);
    log().expectInOrder({"[I] [moveBackEx] b <== c", "[D] [findChild] Cannot Find Window (ID: b)",
                         "[E] [moveBackEx] Back Window is NULL"});
    EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
    EXPECT_EQ(frame().getCurrentWindow(), c);
    EXPECT_TRUE(c->isVisible());
    EXPECT_EQ(allSteps(), Strings());
    EXPECT_FALSE(lockHeld());
}

// ---- pages that throw

TEST_F(ZELMainFrameMoveTest, whatActivatingThrowsPassesAndTheNextMoveWorks)
{
    ZELChildWindow* const a = frame().moveTo("a");
    allSteps();
    at("activating b", [] { throw std::runtime_error("a fault of the application"); });
    EXPECT_THROW(frame().moveTo("b", true, true), std::runtime_error);
    EXPECT_FALSE(lockHeld());
    ZELChildWindow* const b = frame().findChild("b");
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(frame().getCurrentWindow(), b) << "the move had begun";
    EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
    EXPECT_TRUE(a->isVisible());
    EXPECT_TRUE(a->isEnabled());
    EXPECT_FALSE(b->isVisible());
    EXPECT_EQ(allSteps(), (Strings{"create b", "activating b"})) << "no activation is posted";

    ZELChildWindow* const c = frame().moveTo("c", true, true);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(frame().getCurrentWindow(), c);
    EXPECT_TRUE(c->isVisible());
    EXPECT_TRUE(c->isEnabled());
    EXPECT_FALSE(b->isVisible());
    EXPECT_TRUE(a->isVisible()) << "below the new page: only the page moved from is hidden";
    EXPECT_EQ(frame().history(), (Strings{"a", "b", "c"}));
    EXPECT_FALSE(lockHeld());
}

// ---- pages that can't be made

TEST_F(ZELMainFrameMoveTest, aRefusedMoveLeavesAllAsItWas)
{
    frame().setMainWindowID("unknown");
    ZELChildWindow* const a = frame().moveTo("a");
    frame().moveTo("a");
    allSteps();
    log().startHere();
    log().expectError("[moveToEx] Window is NULL", 2, "ZELMainFrame");
    EXPECT_EQ(frame().moveToEx("unknown", true, true), nullptr);
    EXPECT_EQ(frame().moveTo("unknown", true, true), nullptr);
    EXPECT_EQ(log().texts("ZELMainFrame"),
              (Strings{"[D] [findChild] Cannot Find Window (ID: unknown)",
                       "[E] [moveToEx] Window is NULL",
                       "[D] [findChild] Cannot Find Window (ID: unknown)",
                       "[E] [moveToEx] Window is NULL"}));
    EXPECT_EQ(frame().history(), (Strings{"a", "a"}));
    EXPECT_EQ(frame().getCurrentWindow(), a);
    EXPECT_TRUE(a->isVisible());
    EXPECT_EQ(allSteps(), Strings());
    EXPECT_FALSE(lockHeld());
}

TEST_F(ZELMainFrameMoveTest, aFirstVisitWritesNoMoreThanThatThePageWasNotThere)
{
    log().startHere();
    frame().moveTo("a");
    EXPECT_EQ(log().texts("ZELMainFrame"), Strings{"[D] [findChild] Cannot Find Window (ID: a)"});
    log().startHere();
    frame().moveTo("a");
    EXPECT_EQ(log().texts("ZELMainFrame"), Strings());
}

} // namespace
