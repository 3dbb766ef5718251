#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace PANFx::Testing {

/** The calls into the system that a test can count and make fail. */
enum class SystemCall {
    Fopen,  ///< fopen, fopen64
    Open,   ///< open, open64, openat, openat64 and their checked forms
    Fsync,  ///< fsync
    Rename, ///< rename, renameat
    Write,  ///< write
    Semget, ///< semget
    Semop,  ///< semop
    Semctl, ///< semctl
};

/**
 * Counts calls into the system and makes chosen ones fail, for as long as the object lives. One
 * object at a time. Calls of the libraries and of the test program are seen, calls that the C
 * library makes inside itself are not (fwrite's own write, for example).
 *
 * A path is matched when it ends in the text given: "config_zelapp.cfg", or "" for every path.
 * Operations on a descriptor (fsync, write) are matched by the path that the descriptor stands
 * for, renames by the old or the new path, openat by its own argument. Semaphores have no path.
 */
class SystemFaults
{
public:
    SystemFaults();
    ~SystemFaults();

    SystemFaults(const SystemFaults&) = delete;
    SystemFaults& operator=(const SystemFaults&) = delete;

    /**
     * Makes calls fail with @p error in errno and without reaching the system.
     * @param skip the first so many matching calls go through
     * @param times so many calls fail after them; -1 for all
     */
    void fail(SystemCall call, int error, const std::string& pathEnding = "", int skip = 0,
              int times = -1);

    /** Lets each matching write take at most so many bytes, as a full pipe or disk would. */
    void shortenWrites(size_t bytes, const std::string& pathEnding = "");

    /** How many matching calls were made since the object was built, failed ones included. */
    int count(SystemCall call, const std::string& pathEnding = "") const;

    /** The last matching path that was handed in (the old one for a rename); "" for none. */
    std::string lastPath(SystemCall call, const std::string& pathEnding = "") const;

    /**
     * What each call was made with, in the order of the calls: "key semaphores flags" for semget,
     * the flags in octal; "{semaphore,change,flags}" for each operation of semop; "" for others.
     */
    std::vector<std::string> arguments(SystemCall call) const;
};

/** Takes calls on a device before the system, and any SystemFaults, sees them. */
class DeviceInFront
{
public:
    virtual ~DeviceInFront() = default;

    /** @return whether the call was taken; @p result and errno are its outcome then */
    virtual bool open(const char* path, int flags, int& result) = 0;

    /** @return whether the call was taken; @p result and errno are its outcome then */
    virtual bool write(int descriptor, const void* bytes, size_t size, ssize_t& result) = 0;
};

/** Puts a device in front, or null for none. */
void setDeviceInFront(DeviceInFront* device);

} // namespace PANFx::Testing
