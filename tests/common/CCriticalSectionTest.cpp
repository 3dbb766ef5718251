#include "common/CCriticalSection.h"

#include "support/SystemFaults.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sched.h>
#include <stdexcept>
#include <string>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/wait.h>
#include <thread>
#include <type_traits>
#include <unistd.h>
#include <vector>

using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;
using TAMFx::Util::System::CCriticalSection;
using TAMFx::Util::System::CriticalSectionGuard;
using TAMFx::Util::System::Semaphore;

namespace {

union SemaphoreArgument {
    int val;
    semid_ds* buffer;
};

int valueOf(int id)
{
    return semctl(id, 0, GETVAL);
}

bool exists(int id)
{
    return valueOf(id) >= 0;
}

// Gives the other thread the processor until it has got somewhere, as the system sees it.
bool reached(const std::function<bool()>& place)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!place()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::yield();
    }
    return true;
}

bool someoneWaitsForZero(int id)
{
    return reached([id] { return semctl(id, 0, GETZCNT) == 1; });
}

bool someoneWaitsForMore(int id)
{
    return reached([id] { return semctl(id, 0, GETNCNT) == 1; });
}

// what a child process makes of it: its exit status, -1 when it died
int inAChild(const std::function<int()>& action)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(action());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(CCriticalSection, isASemaphoreThatHoldsItsId)
{
    EXPECT_TRUE((std::is_base_of_v<Semaphore, CCriticalSection>));
    EXPECT_FALSE(std::is_polymorphic_v<Semaphore>);
    EXPECT_EQ(sizeof(Semaphore), sizeof(int));
    EXPECT_TRUE(std::has_virtual_destructor_v<CCriticalSection>);
}

TEST(CCriticalSection, makesOnePrivateSemaphoreThatAllMayUse)
{
    const CCriticalSection section;
    ASSERT_GE(section.m_nSemID, 0);
    semid_ds state{};
    SemaphoreArgument argument{};
    argument.buffer = &state;
    ASSERT_EQ(semctl(section.m_nSemID, 0, IPC_STAT, argument), 0);
    EXPECT_EQ(state.sem_perm.__key, IPC_PRIVATE);
    EXPECT_EQ(state.sem_nsems, 1u);
    EXPECT_EQ(state.sem_perm.mode & 0777, 0666);
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
}

TEST(CCriticalSection, asksTheSystemInItsFixedWords)
{
    using Strings = std::vector<std::string>;
    const SystemFaults faults;
    CCriticalSection section;
    EXPECT_EQ(faults.arguments(SystemCall::Semget), Strings{"0 1 03666"});
    section.Lock();
    EXPECT_EQ(faults.arguments(SystemCall::Semop), Strings{"{0,0,0}{0,1,0}"});
    section.Unlock();
    EXPECT_EQ(faults.arguments(SystemCall::Semop), (Strings{"{0,0,0}{0,1,0}", "{0,-1,0}"}));
}

TEST(CCriticalSection, isNoOtherSectionsSemaphore)
{
    CCriticalSection one;
    CCriticalSection other;
    EXPECT_NE(one.m_nSemID, other.m_nSemID);
    one.Lock();
    other.Lock();
    other.Unlock();
    one.Unlock();
}

TEST(CCriticalSection, setsTheFirstValueOnlyOfASemaphoreThatItGot)
{
    SystemFaults faults;
    const CCriticalSection section;
    EXPECT_EQ(faults.count(SystemCall::Semget), 1);
    EXPECT_EQ(faults.count(SystemCall::Semctl), 1);
    faults.fail(SystemCall::Semget, ENOSPC);
    const CCriticalSection refused;
    EXPECT_LT(refused.m_nSemID, 0);
    EXPECT_EQ(faults.count(SystemCall::Semctl), 1);
}

TEST(CCriticalSection, addsOneToLockAndTakesOneToUnlock)
{
    CCriticalSection section;
    section.Lock();
    EXPECT_EQ(valueOf(section.m_nSemID), 1);
    section.Unlock();
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
    section.Lock();
    section.Unlock();
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
}

TEST(CCriticalSection, needsOneCallForEachStep)
{
    CCriticalSection section;
    SystemFaults faults;
    section.Lock();
    EXPECT_EQ(faults.count(SystemCall::Semop), 1);
    section.Unlock();
    EXPECT_EQ(faults.count(SystemCall::Semop), 2);
}

TEST(CCriticalSection, keepsOtherThreadsWaiting)
{
    CCriticalSection section;
    std::atomic<bool> inside{false};
    section.Lock();
    std::thread other([&] {
        section.Lock();
        inside = true;
        section.Unlock();
    });
    EXPECT_TRUE(someoneWaitsForZero(section.m_nSemID));
    EXPECT_FALSE(inside);
    section.Unlock();
    other.join();
    EXPECT_TRUE(inside);
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
}

TEST(CCriticalSection, letsOneThreadInAtATime)
{
    CCriticalSection section;
    int counter = 0; // not atomic: the section is what protects it
    const auto count = [&] {
        for (int i = 0; i < 2000; ++i) {
            const CriticalSectionGuard guard(section);
            const int seen = counter;
            std::this_thread::yield();
            counter = seen + 1;
        }
    };
    std::thread other(count);
    count();
    other.join();
    EXPECT_EQ(counter, 4000);
}

TEST(CCriticalSection, isNotRecursive)
{
    CCriticalSection section;
    std::atomic<bool> twice{false};
    std::thread other([&] {
        section.Lock();
        section.Lock();
        twice = true;
    });
    EXPECT_TRUE(someoneWaitsForZero(section.m_nSemID));
    EXPECT_FALSE(twice);
    section.Unlock(); // lets the thread end
    other.join();
    EXPECT_TRUE(twice);
}

TEST(CCriticalSection, waitsInUnlockUntilSomebodyLocks)
{
    CCriticalSection section;
    std::atomic<bool> unlocked{false};
    std::thread other([&] {
        section.Unlock();
        unlocked = true;
    });
    EXPECT_TRUE(someoneWaitsForMore(section.m_nSemID));
    EXPECT_FALSE(unlocked);
    section.Lock();
    other.join();
    EXPECT_TRUE(unlocked);
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
}

TEST(CCriticalSection, goesOnWaitingAfterASignal)
{
    struct sigaction before
    {
    };
    struct sigaction nothing
    {
    };
    nothing.sa_handler = [](int) {};
    ASSERT_EQ(sigaction(SIGUSR1, &nothing, &before), 0);
    CCriticalSection section;
    std::atomic<bool> inside{false};
    section.Lock();
    SystemFaults faults;
    std::thread other([&] {
        section.Lock();
        inside = true;
    });
    EXPECT_TRUE(someoneWaitsForZero(section.m_nSemID));
    pthread_kill(other.native_handle(), SIGUSR1);
    EXPECT_TRUE(reached([&] { return faults.count(SystemCall::Semop) == 2; }));
    EXPECT_TRUE(someoneWaitsForZero(section.m_nSemID));
    EXPECT_FALSE(inside);
    section.Unlock();
    other.join();
    EXPECT_TRUE(inside);
    EXPECT_EQ(valueOf(section.m_nSemID), 1);
    sigaction(SIGUSR1, &before, nullptr);
}

TEST(CCriticalSection, isNotGivenBackForAProcessThatDies)
{
    CCriticalSection section;
    EXPECT_EQ(inAChild([&] {
                  section.Lock();
                  return 0;
              }),
              0);
    EXPECT_EQ(valueOf(section.m_nSemID), 1);
}

TEST(CCriticalSection, runsUnprotectedWithoutASemaphore)
{
    SystemFaults faults;
    faults.fail(SystemCall::Semget, ENOSPC);
    {
        CCriticalSection section;
        EXPECT_LT(section.m_nSemID, 0);
        section.Lock();
        section.Lock();
        section.Unlock();
    }
    EXPECT_EQ(faults.count(SystemCall::Semctl), 0);
}

TEST(CCriticalSection, removesItsSemaphore)
{
    int id = -1;
    {
        const CCriticalSection section;
        id = section.m_nSemID;
        if (id == 0)
            GTEST_SKIP() << "the very first semaphore of the system is left in place on purpose";
        EXPECT_TRUE(exists(id));
    }
    EXPECT_FALSE(exists(id));
}

TEST(CCriticalSection, leavesASemaphoreWithTheIdZeroInPlace)
{
    int id = -1;
    SystemFaults faults;
    {
        CCriticalSection section;
        id = section.m_nSemID;
        section.m_nSemID = 0;
    }
    EXPECT_EQ(faults.count(SystemCall::Semctl), 1) << "more than the first value was set";
    EXPECT_TRUE(exists(id));
    EXPECT_EQ(semctl(id, 0, IPC_RMID), 0);
}

TEST(CCriticalSection, takesTheIdZeroForAValidOne)
{
    // where no semaphore was ever made, the first one gets the id 0
    const int result = inAChild([] {
        if (unshare(CLONE_NEWIPC) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWIPC) != 0)
            return 2;
        SystemFaults faults;
        int state = 0;
        {
            CCriticalSection section;
            if (section.m_nSemID != 0 || faults.count(SystemCall::Semctl) != 1)
                return 3;
            section.Lock();
            state = valueOf(0);
            section.Unlock();
        }
        return state == 1 && exists(0) ? 0 : 4;
    });
    if (result == 2)
        GTEST_SKIP() << "this system gives the test no semaphores of its own";
    EXPECT_EQ(result, 0);
}

TEST(CriticalSectionGuard, holdsTheSectionWhileItLives)
{
    CCriticalSection section;
    {
        const CriticalSectionGuard guard(section);
        EXPECT_EQ(valueOf(section.m_nSemID), 1);
    }
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
}

TEST(CriticalSectionGuard, givesTheSectionBackWhenAnExceptionPasses)
{
    CCriticalSection section;
    const auto fail = [&] {
        const CriticalSectionGuard guard(section);
        throw std::runtime_error("out of luck");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(valueOf(section.m_nSemID), 0);
}
