#pragma once

#include "support/SystemFaults.h"

#include <deque>
#include <functional>
#include <map>
#include <pthread.h>
#include <set>
#include <string>
#include <termios.h>
#include <vector>

namespace PANFx::Testing {

/** The calls into the system that the way to the printer makes. */
enum class PortCall {
    Open,
    Flush,     ///< tcflush
    Configure, ///< tcsetattr
    Write,
    Select,
    Read,
    Close,
    Sleep,
    Usleep,
};

/** One call as it was made. */
struct PortCallMade
{
    PortCall call;
    long argument; ///< flags of open, queue of tcflush, action of tcsetattr, bytes asked for by
                   ///< read, time-out of select in microseconds, seconds or microseconds to sleep
    std::string text; ///< path of open, bytes of write, bytes that read gave
};

/** What a call does instead of what it should: fails with an error, or does less. */
struct PortFault
{
    int error = 0; ///< 0 for a short write, an end of file, a time-out
    int taken = 0; ///< bytes that a short write takes
};

/**
 * Stands in front of the serial port "/dev/ttyS1" and of sleep and usleep for as long as the
 * object lives. Every call is counted and can be made to fail; sleeps only count. One object at a
 * time, and only the calls of the thread that built it. Closing a port a second time fails the
 * test.
 */
class SerialPort : private DeviceInFront
{
public:
    enum class Line {
        Scripted, ///< the object itself is the line: what is written goes nowhere
        Real,     ///< calls that are not made to fail go on to the system
    };

    explicit SerialPort(Line line = Line::Scripted);
    ~SerialPort() override;

    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;

    /**
     * Bytes for the line's reader as an answer to what one write wrote, behind what short writes
     * through the same descriptor took of it before; "" for none. What it gives comes with one
     * read. Good answers to the two requests unless set otherwise.
     */
    std::function<std::string(const std::string& written)> answer;

    /** Called before each call is made. */
    std::function<void(const PortCallMade& call)> onCall;

    /** Called before a file that is not the port is opened. */
    std::function<void(const std::string& path)> onOtherFile;

    /** The next reads give these, one each, whatever room the reader has asked for. */
    void give(const std::vector<std::string>& bytes);

    /** The call of that number, of all calls from 0, does this instead. */
    void failCall(int number, PortFault fault);

    /**
     * Calls of a kind do this instead.
     * @param skip the first so many go through
     * @param times so many after them; -1 for all
     */
    void fail(PortCall call, PortFault fault, int skip = 0, int times = -1);

    const std::vector<PortCallMade>& calls() const { return m_calls; }
    int count(PortCall call) const;
    /** The arguments of the calls of a kind, in their order. */
    std::vector<long> arguments(PortCall call) const;

    /** All bytes that a write has taken, through whatever descriptor. */
    const std::string& written() const { return m_written; }

    /** Ports that are open now. */
    int openPorts() const { return static_cast<int>(m_descriptors.size()); }

    /** What tcsetattr was given last. */
    const termios& settings() const { return m_settings; }

    // the calls themselves, for the definitions in front of the system's
    bool isPort(int descriptor) const { return m_descriptors.count(descriptor) > 0; }
    bool wasPort(int descriptor) const { return m_closed.count(descriptor) > 0; }
    ssize_t read(int descriptor, void* buffer, size_t size);
    int select(int descriptors, fd_set* readable, timeval* timeOut);
    int flush(int descriptor, int queue);
    int configure(int descriptor, int action, const termios* settings);
    int close(int descriptor);
    void sleep(PortCall call, long time);

    /** The object, for the thread that built it. */
    static SerialPort* active();

private:
    struct KindFault
    {
        PortCall call;
        PortFault fault;
        int skip;
        int times;
    };

    bool open(const char* path, int flags, int& result) override;
    bool write(int descriptor, const void* bytes, size_t size, ssize_t& result) override;
    const PortFault* note(PortCall call, long argument, const std::string& text);
    const PortFault* faultFor(PortCall call);
    ssize_t take(int descriptor, const std::string& text);

    const Line m_line;
    const pthread_t m_thread = pthread_self();
    std::vector<PortCallMade> m_calls;
    std::map<int, PortFault> m_faults;
    std::vector<KindFault> m_kindFaults;
    std::set<int> m_descriptors;
    std::set<int> m_closed;           // which the system may have given to others since
    std::map<int, std::string> m_cut; // what short writes took, by descriptor
    std::deque<std::string> m_input;
    std::string m_written;
    termios m_settings{};
};

} // namespace PANFx::Testing
