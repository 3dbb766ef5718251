#pragma once

#include "common/Export.h"
#include "common/Semaphore.h"

/** Locks of the operating system. */
namespace TAMFx::Util::System {

/**
 * A lock made of one private System V semaphore. It is not recursive: a thread that takes it
 * twice waits for itself for ever. Where the system gives no semaphore, the section runs
 * unprotected.
 */
class QTPANFX_EXPORT CCriticalSection : public Semaphore
{
public:
    /** Makes the semaphore, with the lock free. */
    CCriticalSection();

    /** Removes the semaphore when its id is above 0; an id of exactly 0 is left in place. */
    virtual ~CCriticalSection();

    CCriticalSection(const CCriticalSection&) = delete;
    CCriticalSection& operator=(const CCriticalSection&) = delete;

    /** Waits until the lock is free and takes it. */
    void Lock();

    /** Gives the lock back. Without a Lock before it waits, for ever if nobody takes the lock. */
    void Unlock();
};

/** Takes a CCriticalSection and gives it back, also when an exception passes. */
class QTPANFX_EXPORT CriticalSectionGuard
{
public:
    /** Waits until the lock is free and takes it. @param section has to outlive this object */
    explicit CriticalSectionGuard(CCriticalSection& section)
        : m_section(section)
    {
        m_section.Lock();
    }

    ~CriticalSectionGuard() { m_section.Unlock(); }

    CriticalSectionGuard(const CriticalSectionGuard&) = delete;
    CriticalSectionGuard& operator=(const CriticalSectionGuard&) = delete;

private:
    CCriticalSection& m_section;
};

} // namespace TAMFx::Util::System
