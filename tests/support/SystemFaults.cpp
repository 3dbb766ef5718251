#include "support/SystemFaults.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <optional>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <unistd.h>
#include <vector>

namespace PANFx::Testing {

namespace {

struct Fault
{
    SystemCall call;
    std::string pathEnding;
    int error;
    int skip;
    int times;
};

struct ShortWrite
{
    std::string pathEnding;
    size_t bytes;
};

struct Call
{
    SystemCall call;
    std::string path;
    std::string secondPath;
    std::string arguments;
};

struct Record
{
    std::mutex mutex;
    std::vector<Fault> faults;
    std::vector<ShortWrite> shortWrites;
    std::vector<Call> calls;
};

// Looked at by every call of the program, from the first one that a shared library makes while
// it starts: so it needs no constructor.
std::atomic<bool> watching{false};
std::atomic<DeviceInFront*> deviceInFront{nullptr};

Record& record()
{
    static Record* const theRecord = new Record; // outlives the last call of the program
    return *theRecord;
}

bool endsWith(const std::string& text, const std::string& ending)
{
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

bool matches(const Call& call, SystemCall which, const std::string& pathEnding)
{
    return call.call == which &&
           (endsWith(call.path, pathEnding) ||
            (!call.secondPath.empty() && endsWith(call.secondPath, pathEnding)));
}

std::string pathOf(int descriptor)
{
    char link[64];
    snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    char path[4096];
    const ssize_t size = readlink(link, path, sizeof path);
    return size > 0 ? std::string(path, static_cast<size_t>(size)) : std::string();
}

// the error that the call is to fail with; nothing when it is to go through
std::optional<int> noteAndJudge(SystemCall which, std::string path, std::string secondPath,
                                std::string arguments)
{
    const std::lock_guard<std::mutex> lock(record().mutex);
    record().calls.push_back({which, std::move(path), std::move(secondPath), std::move(arguments)});
    for (Fault& fault : record().faults) {
        if (!matches(record().calls.back(), fault.call, fault.pathEnding))
            continue;
        if (fault.skip > 0) {
            --fault.skip;
            continue;
        }
        if (fault.times == 0)
            continue;
        if (fault.times > 0)
            --fault.times;
        return fault.error;
    }
    return std::nullopt;
}

// true when the call must fail; errno is set then, and kept as it was otherwise
bool refused(SystemCall which, const char* path, const char* secondPath = nullptr,
             const std::string& arguments = "")
{
    const int before = errno;
    const std::optional<int> error =
        noteAndJudge(which, path ? path : "", secondPath ? secondPath : "", arguments);
    errno = error.value_or(before);
    return error.has_value();
}

bool refusedOn(SystemCall which, int descriptor)
{
    const int before = errno;
    const std::string path = pathOf(descriptor);
    errno = before;
    return refused(which, path.c_str());
}

size_t allowedBytes(int descriptor, size_t bytes)
{
    const int before = errno;
    const std::string path = pathOf(descriptor);
    errno = before;
    const std::lock_guard<std::mutex> lock(record().mutex);
    for (const ShortWrite& limit : record().shortWrites) {
        if (endsWith(path, limit.pathEnding) && bytes > limit.bytes)
            return limit.bytes;
    }
    return bytes;
}

template <typename Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

SystemFaults::SystemFaults()
{
    {
        const std::lock_guard<std::mutex> lock(record().mutex);
        record().faults.clear();
        record().shortWrites.clear();
        record().calls.clear();
    }
    if (watching.exchange(true)) {
        fprintf(stderr, "two SystemFaults at a time\n");
        abort();
    }
}

SystemFaults::~SystemFaults()
{
    watching = false;
}

void SystemFaults::fail(SystemCall call, int error, const std::string& pathEnding, int skip,
                        int times)
{
    const std::lock_guard<std::mutex> lock(record().mutex);
    record().faults.push_back({call, pathEnding, error, skip, times});
}

void SystemFaults::shortenWrites(size_t bytes, const std::string& pathEnding)
{
    const std::lock_guard<std::mutex> lock(record().mutex);
    record().shortWrites.push_back({pathEnding, bytes});
}

int SystemFaults::count(SystemCall call, const std::string& pathEnding) const
{
    const std::lock_guard<std::mutex> lock(record().mutex);
    int found = 0;
    for (const Call& made : record().calls)
        found += matches(made, call, pathEnding) ? 1 : 0;
    return found;
}

std::string SystemFaults::lastPath(SystemCall call, const std::string& pathEnding) const
{
    const std::lock_guard<std::mutex> lock(record().mutex);
    std::string last;
    for (const Call& made : record().calls) {
        if (matches(made, call, pathEnding))
            last = made.path;
    }
    return last;
}

std::vector<std::string> SystemFaults::arguments(SystemCall call) const
{
    const std::lock_guard<std::mutex> lock(record().mutex);
    std::vector<std::string> found;
    for (const Call& made : record().calls) {
        if (made.call == call)
            found.push_back(made.arguments);
    }
    return found;
}

void setDeviceInFront(DeviceInFront* device)
{
    deviceInFront = device;
}

} // namespace PANFx::Testing

// ---- the definitions that stand in front of the C library's
//
// They are named by their assembler name, so that neither the checked inline forms of the
// system's headers (-D_FORTIFY_SOURCE) nor the large-file redirections (-D_FILE_OFFSET_BITS=64)
// get in the way, whichever a distribution switches on. Each form that those can call has its
// own definition.

using namespace PANFx::Testing;

#define IN_FRONT_OF(name)                                                                          \
    __asm__(name) __attribute__((visibility("default"), used,                                      \
                                 no_sanitize("address", "undefined", "thread")))

extern "C" {

FILE* faults_fopen(const char* path, const char* mode) IN_FRONT_OF("fopen");
FILE* faults_fopen64(const char* path, const char* mode) IN_FRONT_OF("fopen64");
int faults_open(const char* path, int flags, ...) IN_FRONT_OF("open");
int faults_open64(const char* path, int flags, ...) IN_FRONT_OF("open64");
int faults_open_2(const char* path, int flags) IN_FRONT_OF("__open_2");
int faults_open64_2(const char* path, int flags) IN_FRONT_OF("__open64_2");
int faults_openat(int folder, const char* path, int flags, ...) IN_FRONT_OF("openat");
int faults_openat64(int folder, const char* path, int flags, ...) IN_FRONT_OF("openat64");
int faults_openat_2(int folder, const char* path, int flags) IN_FRONT_OF("__openat_2");
int faults_openat64_2(int folder, const char* path, int flags) IN_FRONT_OF("__openat64_2");
int faults_fsync(int descriptor) IN_FRONT_OF("fsync");
int faults_rename(const char* from, const char* to) IN_FRONT_OF("rename");
int faults_renameat(int fromFolder, const char* from, int toFolder, const char* to)
    IN_FRONT_OF("renameat");
ssize_t faults_write(int descriptor, const void* bytes, size_t size) IN_FRONT_OF("write");
int faults_semget(key_t key, int semaphores, int flags) IN_FRONT_OF("semget");
int faults_semop(int id, struct sembuf* operations, size_t count) IN_FRONT_OF("semop");
int faults_semctl(int id, int semaphore, int command, ...) IN_FRONT_OF("semctl");

} // extern "C"

namespace {

FILE* openStream(const char* name, const char* path, const char* mode)
{
    using Fopen = FILE* (*)(const char*, const char*);
    if (watching && refused(SystemCall::Fopen, path))
        return nullptr;
    return next<Fopen>(name)(path, mode);
}

int openFile(const char* name, const char* path, int flags, mode_t mode)
{
    using Open = int (*)(const char*, int, ...);
    int result = -1;
    if (DeviceInFront* const device = deviceInFront; device && device->open(path, flags, result))
        return result;
    if (watching && refused(SystemCall::Open, path))
        return -1;
    return next<Open>(name)(path, flags, mode);
}

int openFileAt(const char* name, int folder, const char* path, int flags, mode_t mode)
{
    using Openat = int (*)(int, const char*, int, ...);
    if (watching && refused(SystemCall::Open, path))
        return -1;
    return next<Openat>(name)(folder, path, flags, mode);
}

// only these two bring a mode along
bool hasMode(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

union SemaphoreArgument {
    int val;
    void* buffer;
};

std::string textOf(key_t key, int semaphores, int flags)
{
    char text[64];
    snprintf(text, sizeof text, "%d %d 0%o", static_cast<int>(key), semaphores,
             static_cast<unsigned>(flags));
    return text;
}

std::string textOf(const struct sembuf* operations, size_t count)
{
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        text += "{" + std::to_string(operations[i].sem_num) + "," +
                std::to_string(operations[i].sem_op) + "," + std::to_string(operations[i].sem_flg) +
                "}";
    }
    return text;
}

bool hasArgument(int command)
{
    return command != IPC_RMID && command != GETVAL && command != GETPID && command != GETNCNT &&
           command != GETZCNT;
}

} // namespace

#define MODE_BEHIND(last)                                                                          \
    mode_t mode = 0;                                                                               \
    if (hasMode(flags)) {                                                                          \
        va_list arguments;                                                                         \
        va_start(arguments, last);                                                                 \
        mode = va_arg(arguments, mode_t);                                                          \
        va_end(arguments);                                                                         \
    }

FILE* faults_fopen(const char* path, const char* mode)
{
    return openStream("fopen", path, mode);
}

FILE* faults_fopen64(const char* path, const char* mode)
{
    return openStream("fopen64", path, mode);
}

int faults_open(const char* path, int flags, ...)
{
    MODE_BEHIND(flags)
    return openFile("open", path, flags, mode);
}

int faults_open64(const char* path, int flags, ...)
{
    MODE_BEHIND(flags)
    return openFile("open64", path, flags, mode);
}

int faults_open_2(const char* path, int flags)
{
    return openFile("open", path, flags, 0);
}

int faults_open64_2(const char* path, int flags)
{
    return openFile("open64", path, flags, 0);
}

int faults_openat(int folder, const char* path, int flags, ...)
{
    MODE_BEHIND(flags)
    return openFileAt("openat", folder, path, flags, mode);
}

int faults_openat64(int folder, const char* path, int flags, ...)
{
    MODE_BEHIND(flags)
    return openFileAt("openat64", folder, path, flags, mode);
}

int faults_openat_2(int folder, const char* path, int flags)
{
    return openFileAt("openat", folder, path, flags, 0);
}

int faults_openat64_2(int folder, const char* path, int flags)
{
    return openFileAt("openat64", folder, path, flags, 0);
}

int faults_fsync(int descriptor)
{
    using Fsync = int (*)(int);
    if (watching && refusedOn(SystemCall::Fsync, descriptor))
        return -1;
    return next<Fsync>("fsync")(descriptor);
}

int faults_rename(const char* from, const char* to)
{
    using Rename = int (*)(const char*, const char*);
    if (watching && refused(SystemCall::Rename, from, to))
        return -1;
    return next<Rename>("rename")(from, to);
}

int faults_renameat(int fromFolder, const char* from, int toFolder, const char* to)
{
    using Renameat = int (*)(int, const char*, int, const char*);
    if (watching && refused(SystemCall::Rename, from, to))
        return -1;
    return next<Renameat>("renameat")(fromFolder, from, toFolder, to);
}

ssize_t faults_write(int descriptor, const void* bytes, size_t size)
{
    using Write = ssize_t (*)(int, const void*, size_t);
    ssize_t result = -1;
    if (DeviceInFront* const device = deviceInFront;
        device && device->write(descriptor, bytes, size, result))
        return result;
    if (watching) {
        if (refusedOn(SystemCall::Write, descriptor))
            return -1;
        size = allowedBytes(descriptor, size);
    }
    return next<Write>("write")(descriptor, bytes, size);
}

int faults_semget(key_t key, int semaphores, int flags)
{
    using Semget = int (*)(key_t, int, int);
    if (watching && refused(SystemCall::Semget, "", nullptr, textOf(key, semaphores, flags)))
        return -1;
    return next<Semget>("semget")(key, semaphores, flags);
}

int faults_semop(int id, struct sembuf* operations, size_t count)
{
    using Semop = int (*)(int, struct sembuf*, size_t);
    if (watching && refused(SystemCall::Semop, "", nullptr, textOf(operations, count)))
        return -1;
    return next<Semop>("semop")(id, operations, count);
}

int faults_semctl(int id, int semaphore, int command, ...)
{
    using Semctl = int (*)(int, int, int, ...);
    SemaphoreArgument argument{};
    if (hasArgument(command)) {
        va_list arguments;
        va_start(arguments, command);
        argument = va_arg(arguments, SemaphoreArgument);
        va_end(arguments);
    }
    if (watching && refused(SystemCall::Semctl, ""))
        return -1;
    return next<Semctl>("semctl")(id, semaphore, command, argument);
}
