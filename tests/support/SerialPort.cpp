#include "support/SerialPort.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/select.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace PANFx::Testing {

namespace {

const std::string portPath = "/dev/ttyS1";

std::atomic<SerialPort*> theActive{nullptr};

template <typename Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool endsWith(const std::string& text, const std::string& ending)
{
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

int outcomeOf(const PortFault& fault)
{
    return fault.error == 0 ? 0 : -1;
}

// a printer that is ready and whose buffer is empty
std::string goodAnswer(const std::string& written)
{
    if (written == std::string("\x10\x04\x04", 3))
        return "\x12";
    if (written == std::string("\x10\x04\x07", 3))
        return std::string(2, '\0');
    return "";
}

} // namespace

SerialPort::SerialPort(Line line)
    : answer(goodAnswer)
    , m_line(line)
{
    if (theActive.exchange(this))
        abort();
    setDeviceInFront(this);
}

SerialPort::~SerialPort()
{
    setDeviceInFront(nullptr);
    theActive = nullptr;
    for (const int descriptor : m_descriptors)
        ::close(descriptor);
}

SerialPort* SerialPort::active()
{
    SerialPort* const port = theActive;
    return port && pthread_equal(port->m_thread, pthread_self()) ? port : nullptr;
}

void SerialPort::give(const std::vector<std::string>& bytes)
{
    m_input.insert(m_input.end(), bytes.begin(), bytes.end());
}

void SerialPort::failCall(int number, PortFault fault)
{
    m_faults[number] = fault;
}

void SerialPort::fail(PortCall call, PortFault fault, int skip, int times)
{
    m_kindFaults.push_back({call, fault, skip, times});
}

int SerialPort::count(PortCall call) const
{
    return static_cast<int>(arguments(call).size());
}

std::vector<long> SerialPort::arguments(PortCall call) const
{
    std::vector<long> found;
    for (const PortCallMade& made : m_calls) {
        if (made.call == call)
            found.push_back(made.argument);
    }
    return found;
}

const PortFault* SerialPort::faultFor(PortCall call)
{
    const auto byNumber = m_faults.find(static_cast<int>(m_calls.size()) - 1);
    if (byNumber != m_faults.end())
        return &byNumber->second;
    for (KindFault& fault : m_kindFaults) {
        if (fault.call != call || fault.times == 0)
            continue;
        if (fault.skip > 0) {
            --fault.skip;
            continue;
        }
        if (fault.times > 0)
            --fault.times;
        return &fault.fault;
    }
    return nullptr;
}

// what the call is made to do instead; errno is set then
const PortFault* SerialPort::note(PortCall call, long argument, const std::string& text)
{
    m_calls.push_back({call, argument, text});
    if (onCall)
        onCall(m_calls.back());
    const PortFault* const fault = faultFor(call);
    if (fault)
        errno = fault->error;
    return fault;
}

bool SerialPort::open(const char* path, int flags, int& result)
{
    if (active() != this)
        return false;
    if (!endsWith(path, portPath)) {
        if (onOtherFile)
            onOtherFile(path);
        return false;
    }
    if (note(PortCall::Open, flags, path)) {
        result = -1;
        return true;
    }
    const char* const real = m_line == Line::Real ? path : "/dev/null";
    result = static_cast<int>(syscall(SYS_openat, AT_FDCWD, real, flags, 0));
    if (result >= 0)
        m_descriptors.insert(result);
    return true;
}

bool SerialPort::write(int descriptor, const void* bytes, size_t size, ssize_t& result)
{
    if (active() != this || !isPort(descriptor))
        return false;
    const std::string text(static_cast<const char*>(bytes), size);
    const PortFault* const fault = note(PortCall::Write, static_cast<long>(size), text);
    if (fault && (fault->error != 0 || fault->taken == 0)) {
        result = outcomeOf(*fault);
        return true;
    }
    if (fault) {
        result = take(descriptor, text.substr(0, static_cast<size_t>(fault->taken)));
        m_cut[descriptor] += text.substr(0, static_cast<size_t>(result));
        return true;
    }
    result = take(descriptor, text);
    if (m_line == Line::Scripted) {
        const std::string back = answer(m_cut[descriptor] + text);
        m_cut.erase(descriptor);
        if (!back.empty())
            m_input.push_back(back);
    }
    return true;
}

ssize_t SerialPort::take(int descriptor, const std::string& text)
{
    const ssize_t taken = m_line == Line::Real
                              ? syscall(SYS_write, descriptor, text.data(), text.size())
                              : static_cast<ssize_t>(text.size());
    if (taken > 0)
        m_written.append(text, 0, static_cast<size_t>(taken));
    return taken;
}

ssize_t SerialPort::read(int descriptor, void* buffer, size_t size)
{
    if (const PortFault* const fault = note(PortCall::Read, static_cast<long>(size), ""))
        return outcomeOf(*fault);
    if (m_line == Line::Real)
        return syscall(SYS_read, descriptor, buffer, size);
    if (m_input.empty())
        return 0;
    std::string& bytes = m_input.front();
    const size_t taken = std::min(size, bytes.size());
    memcpy(buffer, bytes.data(), taken);
    m_calls.back().text = bytes.substr(0, taken);
    bytes.erase(0, taken);
    if (bytes.empty())
        m_input.pop_front();
    return static_cast<ssize_t>(taken);
}

int SerialPort::select(int descriptors, fd_set* readable, timeval* timeOut)
{
    const long time = timeOut->tv_sec * 1000000 + timeOut->tv_usec;
    if (const PortFault* const fault = note(PortCall::Select, time, ""))
        return outcomeOf(*fault);
    if (m_line == Line::Real) {
        using Select = int (*)(int, fd_set*, fd_set*, fd_set*, timeval*);
        return next<Select>("select")(descriptors, readable, nullptr, nullptr, timeOut);
    }
    if (!m_input.empty())
        return 1;
    FD_ZERO(readable);
    return 0;
}

int SerialPort::flush(int descriptor, int queue)
{
    if (const PortFault* const fault = note(PortCall::Flush, queue, ""))
        return outcomeOf(*fault);
    if (m_line == Line::Real)
        return next<int (*)(int, int)>("tcflush")(descriptor, queue);
    m_input.clear();
    return 0;
}

int SerialPort::configure(int descriptor, int action, const termios* settings)
{
    m_settings = *settings;
    if (const PortFault* const fault = note(PortCall::Configure, action, ""))
        return outcomeOf(*fault);
    if (m_line == Line::Real)
        return next<int (*)(int, int, const termios*)>("tcsetattr")(descriptor, action, settings);
    return 0;
}

int SerialPort::close(int descriptor)
{
    const PortFault* const fault = note(PortCall::Close, descriptor, "");
    m_descriptors.erase(descriptor);
    m_closed.insert(descriptor);
    m_cut.erase(descriptor);
    syscall(SYS_close, descriptor); // a close that fails has closed all the same
    return fault ? outcomeOf(*fault) : 0;
}

void SerialPort::sleep(PortCall call, long time)
{
    note(call, time, "");
}

} // namespace PANFx::Testing

// ---- the definitions that stand in front of the C library's; open and write are with
// SystemFaults

using namespace PANFx::Testing;

#define IN_FRONT_OF(name)                                                                          \
    __asm__(name) __attribute__((visibility("default"), used,                                      \
                                 no_sanitize("address", "undefined", "thread")))

extern "C" {

ssize_t port_read(int descriptor, void* buffer, size_t size) IN_FRONT_OF("read");
ssize_t port_read_chk(int descriptor, void* buffer, size_t size, size_t room)
    IN_FRONT_OF("__read_chk");
int port_select(int descriptors, fd_set* readable, fd_set* writable, fd_set* others,
                timeval* timeOut) IN_FRONT_OF("select");
int port_tcflush(int descriptor, int queue) IN_FRONT_OF("tcflush");
int port_tcsetattr(int descriptor, int action, const termios* settings) IN_FRONT_OF("tcsetattr");
int port_close(int descriptor) IN_FRONT_OF("close");
unsigned port_sleep(unsigned seconds) IN_FRONT_OF("sleep");
int port_usleep(useconds_t microseconds) IN_FRONT_OF("usleep");

} // extern "C"

namespace {

SerialPort* portOf(int descriptor)
{
    SerialPort* const port = SerialPort::active();
    return port && port->isPort(descriptor) ? port : nullptr;
}

} // namespace

ssize_t port_read(int descriptor, void* buffer, size_t size)
{
    if (SerialPort* const port = portOf(descriptor))
        return port->read(descriptor, buffer, size);
    return next<ssize_t (*)(int, void*, size_t)>("read")(descriptor, buffer, size);
}

ssize_t port_read_chk(int descriptor, void* buffer, size_t size, size_t room)
{
    if (size > room)
        abort();
    return port_read(descriptor, buffer, size);
}

int port_select(int descriptors, fd_set* readable, fd_set* writable, fd_set* others,
                timeval* timeOut)
{
    for (int descriptor = 0; readable && descriptor < descriptors; ++descriptor) {
        SerialPort* const port = FD_ISSET(descriptor, readable) ? portOf(descriptor) : nullptr;
        if (port)
            return port->select(descriptors, readable, timeOut);
    }
    using Select = int (*)(int, fd_set*, fd_set*, fd_set*, timeval*);
    return next<Select>("select")(descriptors, readable, writable, others, timeOut);
}

int port_tcflush(int descriptor, int queue)
{
    if (SerialPort* const port = portOf(descriptor))
        return port->flush(descriptor, queue);
    return next<int (*)(int, int)>("tcflush")(descriptor, queue);
}

int port_tcsetattr(int descriptor, int action, const termios* settings)
{
    if (SerialPort* const port = portOf(descriptor))
        return port->configure(descriptor, action, settings);
    return next<int (*)(int, int, const termios*)>("tcsetattr")(descriptor, action, settings);
}

int port_close(int descriptor)
{
    if (SerialPort* const port = portOf(descriptor))
        return port->close(descriptor);
    const SerialPort* const port = SerialPort::active();
    const int result = next<int (*)(int)>("close")(descriptor);
    if (result != 0 && errno == EBADF && port && port->wasPort(descriptor))
        ADD_FAILURE() << "the port " << descriptor << " is closed a second time";
    return result;
}

unsigned port_sleep(unsigned seconds)
{
    if (SerialPort* const port = SerialPort::active()) {
        port->sleep(PortCall::Sleep, seconds);
        return 0;
    }
    return next<unsigned (*)(unsigned)>("sleep")(seconds);
}

int port_usleep(useconds_t microseconds)
{
    if (SerialPort* const port = SerialPort::active()) {
        port->sleep(PortCall::Usleep, microseconds);
        return 0;
    }
    return next<int (*)(useconds_t)>("usleep")(microseconds);
}
