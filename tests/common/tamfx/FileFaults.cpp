// The library is built for large files: the same names must be given to the calls here.
#undef _FILE_OFFSET_BITS
#define _FILE_OFFSET_BITS 64

#include "common/tamfx/FileFaults.h"

#include <cerrno>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace PANFx::Testing {

namespace {

// null also while a wish is at work
FileFaults* active = nullptr;

/** No wishes, and the same errno behind, for as long as one wish is at work; it may throw. */
class Aside
{
public:
    Aside()
        : m_faults(std::exchange(active, nullptr))
    {
    }
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;
    ~Aside()
    {
        active = m_faults;
        errno = m_error;
    }

private:
    FileFaults* const m_faults;
    const int m_error = errno;
};

/** What a wish gives, or @p otherwise where there is none. */
template <typename Result, typename... Arguments>
Result asked(std::function<Result(Arguments...)> FileFaults::*wish, Result otherwise,
             const std::common_type_t<Arguments>&... arguments)
{
    FileFaults* const faults = active;
    if (!faults || !(faults->*wish))
        return otherwise;
    const Aside aside;
    return (faults->*wish)(arguments...);
}

/** Whether a call is to fail, with errno as its error then. */
template <typename Wish, typename... Arguments>
bool refused(Wish wish, Arguments... arguments)
{
    const int error = asked(wish, 0, arguments...);
    if (error != 0)
        errno = error;
    return error != 0;
}

} // namespace

FileFaults::FileFaults()
{
    if (std::exchange(active, this))
        std::abort();
}

FileFaults::~FileFaults()
{
    active = nullptr;
}

} // namespace PANFx::Testing

// ---- the definitions that stand in front of the C library's
//
// What goes through takes a form of the call that is none of these.

using namespace PANFx::Testing;

#define IN_FRONT                                                                                   \
    __attribute__((visibility("default"), used, no_sanitize("address", "undefined", "thread")))

extern "C" {

// by its assembler name, since the system's headers may have a checked inline form of it
ssize_t faults_read(int descriptor, void* buffer, size_t size) __asm__("read") IN_FRONT;

ssize_t faults_read(int descriptor, void* buffer, size_t size)
{
    if (refused(&FileFaults::onRead))
        return -1;
    return syscall(SYS_read, descriptor, buffer, size);
}

IN_FRONT int flock(int descriptor, int operation) noexcept
{
    if (refused(&FileFaults::onFlock))
        return -1;
    return static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

IN_FRONT int fchown(int descriptor, uid_t owner, gid_t group) noexcept
{
    if (refused(&FileFaults::onFchown, owner, group))
        return -1;
    return fchownat(descriptor, "", owner, group, AT_EMPTY_PATH);
}

IN_FRONT int ftruncate(int descriptor, off_t size) noexcept
{
    if (refused(&FileFaults::onFtruncate))
        return -1;
    using Ftruncate = int (*)(int, off_t);
    return reinterpret_cast<Ftruncate>(dlsym(RTLD_NEXT, "ftruncate64"))(descriptor, size);
}

IN_FRONT int fstat(int descriptor, struct stat* status) noexcept
{
    // filled also where it fails, so that nobody lives on what stood there by chance
    const int result = fstatat(descriptor, "", status, AT_EMPTY_PATH);
    return refused(&FileFaults::onFstat) ? -1 : result;
}

IN_FRONT int stat(const char* path, struct stat* status) noexcept
{
    const int result = fstatat(AT_FDCWD, path, status, 0);
    if (result == 0 && asked(&FileFaults::onAnotherDevice, false, std::string(path)))
        ++status->st_dev;
    return result;
}

} // extern "C"
