#pragma once

#include <functional>
#include <string>
#include <sys/types.h>

namespace PANFx::Testing {

/**
 * Stands in front of calls on files that hardly ever fail by themselves, for as long as the object
 * lives. Each wish is asked before the call is made, and may do what another process would do
 * meanwhile; it gives the error that the call is to fail with, or 0 to let it through. What a wish
 * calls itself goes through. One object at a time.
 */
class FileFaults
{
public:
    FileFaults();
    ~FileFaults();

    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;

    std::function<int()> onRead; ///< may also throw, as the memory to read into may run out
    std::function<int()> onFstat;
    std::function<int()> onFlock;
    std::function<int()> onFtruncate;
    std::function<int(uid_t owner, gid_t group)> onFchown;

    /** Whether a path that stat finds is told to lie on another device than it does. */
    std::function<bool(const std::string& path)> onAnotherDevice;
};

} // namespace PANFx::Testing
