#include "common/CCriticalSection.h"

#include <cerrno>
#include <sys/ipc.h>
#include <sys/sem.h>

namespace TAMFx::Util::System {

namespace {

// IPC_CREAT, IPC_EXCL, read and write for all
constexpr int creationMode = 03666;

// the fourth argument of semctl; the system's headers leave its declaration to the caller
union SemaphoreArgument {
    int val;
    semid_ds* buf;
    unsigned short* array;
};

// A signal ends the wait without the lock, so the wait begins again; any other failure means
// that there is no semaphore, and the section runs unprotected.
void change(int id, sembuf* operations, size_t count)
{
    while (semop(id, operations, count) == -1 && errno == EINTR) {
    }
}

} // namespace

CCriticalSection::CCriticalSection()
{
    m_nSemID = semget(IPC_PRIVATE, 1, creationMode);
    if (m_nSemID < 0)
        return;
    SemaphoreArgument free{};
    semctl(m_nSemID, 0, SETVAL, free);
}

CCriticalSection::~CCriticalSection()
{
    if (m_nSemID > 0)
        semctl(m_nSemID, 0, IPC_RMID);
}

void CCriticalSection::Lock()
{
    sembuf waitForZeroThenAdd[2] = {{0, 0, 0}, {0, 1, 0}};
    change(m_nSemID, waitForZeroThenAdd, 2);
}

void CCriticalSection::Unlock()
{
    sembuf subtract[1] = {{0, -1, 0}};
    change(m_nSemID, subtract, 1);
}

} // namespace TAMFx::Util::System
