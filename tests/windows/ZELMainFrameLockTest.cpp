#include "windows/ZELMainFrame.h"

#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/DBException.h"
#include "common/tamfx/XmlException.h"
#include "support/JournalPage.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <future>
#include <new>
#include <stdexcept>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <thread>

using namespace PANFx;
using namespace PANFx::Testing;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

// Polls a condition of the system that no event tells; bounded, so a fault can't hang the test.
bool comesTrue(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::yield();
    }
    return true;
}

class ZELMainFrameLockTest : public PagesTest
{
protected:
    ZELMainFrameLockTest() { addPages({"a", "b", "c"}); }

    int semaphore() { return frame().m_csNavigation.m_nSemID; }

    /** How many threads wait for the lock, of whatever process. */
    static int waitingToEnter(int id) { return semctl(id, 0, GETZCNT); }
    static int waitingToLeave(int id) { return semctl(id, 0, GETNCNT); }

    static void setTo(int id, int value)
    {
        union {
            int val;
            void* buffer;
        } argument{};
        argument.val = value;
        semctl(id, 0, SETVAL, argument);
    }

    /** Says for each step so far whether the lock was held: "show a: held". */
    void noteTheLock()
    {
        journal().onStep = [this](const std::string& step) {
            m_states.push_back(step + (lockHeld() ? ": held" : ": free"));
        };
    }

    Strings states() { return std::exchange(m_states, {}); }

    /**
     * Has a call made at a step that waits for its own thread, and frees it from outside once it
     * is seen to wait.
     */
    void expectToWaitForItself(const std::string& step, const std::function<void()>& call)
    {
        const int id = semaphore();
        std::future<bool> rescue;
        bool reached = false;
        at(step, [&] {
            journal().onStep = nullptr;
            reached = true;
            rescue = std::async(std::launch::async, [id] {
                const bool waited = comesTrue([id] { return waitingToEnter(id) == 1; });
                setTo(id, 0);
                // the outer hold was taken away from it, and is given back once it is missed
                const bool missed = comesTrue([id] { return waitingToLeave(id) == 1; });
                setTo(id, 1);
                return waited && missed;
            });
            call();
        });
        frame().moveToEx("b", true, true);
        EXPECT_TRUE(reached);
        ASSERT_TRUE(rescue.valid());
        EXPECT_TRUE(rescue.get()) << "nobody waited";
        EXPECT_FALSE(lockHeld());
    }

private:
    Strings m_states;
};

TEST_F(ZELMainFrameLockTest, isHeldFromTheLookUpToTheEndOfTheMove)
{
    frame().moveTo("a");
    noteTheLock();
    frame().moveTo("b", true, true);
    EXPECT_EQ(states(), (Strings{"create b: held", "activating b: held", "show b: held",
                                 "disable a: held", "hide a: held", "activated b: free"}));
    frame().moveBack(true);
    EXPECT_EQ(states(), (Strings{"activating a: held", "show a: held", "enable a: held",
                                 "disable b: held", "hide b: held", "activated a: free"}));
    EXPECT_FALSE(lockHeld());
}

TEST_F(ZELMainFrameLockTest, isHeldAcrossARebuildOnTheWayBack)
{
    frame().moveTo("a");
    frame().moveTo("b");
    noteTheLock();
    frame().removeAllChildWnd("b");
    const Strings all = states();
    EXPECT_EQ(all.at(0), "delete a: free");
    EXPECT_EQ(all.at(1), "create a: held");
    EXPECT_EQ(all.back(), "activated a: free");
}

TEST_F(ZELMainFrameLockTest, isFreeAfterEachKindOfMove)
{
    log().expectError("[moveToEx] Window is NULL", 2);
    log().expectError("[moveBackEx] nIndex (0) < 2");
    const std::vector<std::function<void()>> moves = {
        [this] { frame().getCurrentWindow(); },
        [this] { frame().moveBackEx(true); },
        [this] { frame().moveToEx("unknown", true, true); },
        [this] { frame().moveTo("unknown", true, true); },
        [this] { frame().moveToEx("a", true, true); },
        [this] { frame().moveTo("b", true, true); },
        [this] { frame().moveBackEx(true); },
        [this] { frame().moveTo("c", true, true); },
        [this] { frame().moveBack(true); },
    };
    for (size_t i = 0; i < moves.size(); ++i) {
        moves[i]();
        EXPECT_FALSE(lockHeld()) << i;
    }
}

TEST_F(ZELMainFrameLockTest, aPageMayNavigateOnwardFromActivated)
{
    at("activated a", [this] { EXPECT_EQ(frame().moveTo("b")->m_strID, "b"); });
    EXPECT_EQ(frame().moveTo("a", true, true)->m_strID, "a");
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "b");
    EXPECT_EQ(frame().history(), (Strings{"a", "b"}));
    EXPECT_EQ(steps(), (Strings{"create a", "activating a", "show a", "activated a", "create b",
                                "activating b", "show b", "disable a", "hide a", "activated b"}));
}

TEST_F(ZELMainFrameLockTest, aPageMayGoBackFromActivated)
{
    frame().moveTo("a");
    at("activated b", [this] { frame().moveBack(true); });
    frame().moveTo("b", true, true);
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "a");
    EXPECT_EQ(frame().history(), Strings{"a"});
    EXPECT_TRUE(frame().getCurrentWindow()->isVisible());
}

TEST_F(ZELMainFrameLockTest, anotherThreadWaitsForTheEndOfTheMove)
{
    ZELChildWindow* const a = frame().moveTo("a");
    std::future<ZELChildWindow*> answer;
    at("activating b", [&] {
        answer = std::async(std::launch::async, [this] { return frame().getCurrentWindow(); });
        EXPECT_TRUE(comesTrue([this] { return waitingToEnter(semaphore()) == 1; }));
    });
    ZELChildWindow* const b = frame().moveToEx("b", true, true);
    ASSERT_TRUE(answer.valid());
    EXPECT_EQ(answer.get(), b);
    EXPECT_NE(a, b);
}

TEST_F(ZELMainFrameLockTest, aMoveWaitsForAnotherThread)
{
    frame().moveTo("a");
    steps();
    frame().m_csNavigation.Lock();
    Strings before;
    std::thread holder([&] {
        EXPECT_TRUE(comesTrue([this] { return waitingToEnter(semaphore()) == 1; }));
        before = steps();
        frame().m_csNavigation.Unlock();
    });
    frame().moveTo("b", true, true);
    holder.join();
    EXPECT_EQ(before, Strings()) << "the page was made before the lock was free";
    EXPECT_EQ(steps().front(), "create b");
}

TEST_F(ZELMainFrameLockTest, constructionAndActivatingWouldWaitForThemselves)
{
    frame().moveTo("a");
    expectToWaitForItself("create b", [this] { frame().getCurrentWindow(); });
    expectToWaitForItself("activating b", [this] { frame().getCurrentWindow(); });
    expectToWaitForItself("activating b", [this] { frame().moveToEx("c", true, false); });
    expectToWaitForItself("activating b", [this] { frame().moveBackEx(false); });
    expectToWaitForItself("activating b", [this] { frame().moveTo("c", true, false); });
    expectToWaitForItself("activating b", [this] { frame().moveBack(false); });
}

TEST_F(ZELMainFrameLockTest, lookUpsAndIdsNeedNoLock)
{
    bool reached = false;
    at("activating a", [&] {
        reached = true;
        EXPECT_NE(frame().findChild("a"), nullptr);
        EXPECT_NE(frame().getZELChildWindow("b"), nullptr);
        frame().setMainWindowID("a");
        frame().setHiddenMainWindowID("b");
        EXPECT_TRUE(lockHeld());
    });
    frame().moveTo("a", true, true);
    EXPECT_TRUE(reached);
}

// ---- exceptions pass, and the lock doesn't stay behind

template <typename Thrown>
void throwNew()
{
    static Thrown thrown("a fault");
    throw &thrown; // nobody frees what the foundation throws as a pointer
}

struct Fault
{
    const char* name;
    void (*raise)();
};

const Fault faults[] = {
    {"XmlException*", throwNew<TAMFx::Common::Xml::XmlException>},
    {"ConfigurationException*", throwNew<TAMFx::Config::ConfigurationException>},
    {"Exception*", throwNew<TAMFx::Common::Exception>},
    {"DBException", [] { throw TAMFx::DB::DBException("a fault"); }},
    {"out_of_range", [] { throw std::out_of_range("deque::_M_range_check"); }},
    {"bad_alloc", [] { throw std::bad_alloc(); }},
    {"int", [] { throw 5; }},
};

class ZELMainFrameFaultTest : public ZELMainFrameLockTest
{
protected:
    /** Deletes a page and takes it out of the frame's sequence. */
    void forget(ZELChildWindow* page)
    {
        std::deque<ZELChildWindow*>& pages = frame().m_dqChildWindows;
        pages.erase(std::remove(pages.begin(), pages.end(), page), pages.end());
        delete page;
    }

    /** Has the exception raised at a step and expects it to come out of the call. */
    void expectToPass(const std::string& step, const Fault& fault,
                      const std::function<void()>& call)
    {
        at(step, fault.raise);
        EXPECT_ANY_THROW(call()) << fault.name << " at " << step;
        journal().onStep = nullptr;
        EXPECT_FALSE(lockHeld()) << fault.name << " at " << step;
    }
};

TEST_F(ZELMainFrameFaultTest, thrownWhileAPageIsMadeForAMove)
{
    frame().moveTo("a");
    ZELChildWindow* const a = frame().getCurrentWindow();
    for (const Fault& fault : faults) {
        frame().addPage("bad", [&fault](const std::string&) -> ZELChildWindow* {
            fault.raise();
            return nullptr;
        });
        EXPECT_ANY_THROW(frame().moveTo("bad", true, true)) << fault.name;
        EXPECT_FALSE(lockHeld()) << fault.name;
        EXPECT_ANY_THROW(frame().moveToEx("bad", true, true)) << fault.name;
        EXPECT_FALSE(lockHeld()) << fault.name;
        EXPECT_EQ(frame().history(), Strings{"a"}) << fault.name;
        EXPECT_EQ(frame().m_dqChildWindows.size(), 1u) << fault.name;
        EXPECT_EQ(frame().getCurrentWindow(), a) << fault.name;
        EXPECT_TRUE(a->isVisible()) << fault.name;
    }
    EXPECT_EQ(frame().moveTo("b")->m_strID, "b");
}

TEST_F(ZELMainFrameFaultTest, thrownByTheConstructorOfAPage)
{
    frame().moveTo("a");
    for (const Fault& fault : faults) {
        steps();
        // the page is complete as far as the library made it, and goes away again
        expectToPass("create b", fault, [this] { frame().moveToEx("b", true, true); });
        EXPECT_EQ(
            frame().QObject::findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(),
            1)
            << fault.name;
    }
    EXPECT_EQ(frame().moveTo("b")->m_strID, "b");
}

TEST_F(ZELMainFrameFaultTest, thrownByActivating)
{
    frame().moveTo("a");
    for (const Fault& fault : faults)
        expectToPass("activating b", fault, [this] { frame().moveTo("b", false, true); });
    EXPECT_EQ(frame().moveTo("b")->m_strID, "b");
    for (const Fault& fault : faults) {
        frame().moveTo("b");
        expectToPass("activating a", fault, [this] {
            frame().moveBackEx(true);
            frame().moveBackEx(true);
        });
    }
}

TEST_F(ZELMainFrameFaultTest, thrownWhileAPageIsMadeForTheWayBack)
{
    for (const Fault& fault : faults) {
        frame().moveTo("a");
        frame().moveTo("b");
        const Strings before = frame().history();
        forget(frame().findChild("a"));
        frame().addPage("a", [&fault](const std::string&) -> ZELChildWindow* {
            fault.raise();
            return nullptr;
        });
        EXPECT_ANY_THROW(frame().moveBack(true)) << fault.name;
        EXPECT_FALSE(lockHeld()) << fault.name;
        EXPECT_EQ(frame().history().size(), before.size() - 1) << "the entry stays removed";
        EXPECT_EQ(frame().getCurrentWindow()->m_strID, "b") << fault.name;
        addPages({"a"});
    }
}

TEST_F(ZELMainFrameFaultTest, thrownByActivatedWhichRunsWithoutTheLock)
{
    for (const Fault& fault : faults)
        expectToPass("activated a", fault, [this] { frame().moveTo("a", true, true); });
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "a");
}

TEST_F(ZELMainFrameFaultTest, comesOutAsTheSameObject)
{
    static TAMFx::Common::Exception thrown("of the application");
    at("activating a", [] { throw &thrown; });
    try {
        frame().moveTo("a", true, true);
        FAIL() << "nothing was thrown";
    } catch (TAMFx::Common::Exception* caught) {
        EXPECT_EQ(caught, &thrown);
        EXPECT_STREQ(caught->GetMessage(), "of the application");
    }
}

} // namespace
