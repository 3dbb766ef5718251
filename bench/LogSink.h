#pragma once

#include <string>
#include <sys/types.h>

namespace bench {

/**
 * The log socket of a run. Where the machine has none and we may make one, we listen at /dev/log
 * and lose all lines, so that a line costs its writer what it costs on a machine with a log. A
 * socket that is there already is used as it is and never touched.
 */
class LogSink
{
public:
    LogSink();
    ~LogSink();

    LogSink(const LogSink&) = delete;
    LogSink& operator=(const LogSink&) = delete;

    /** One sentence for the head of the table. */
    const std::string& description() const { return m_description; }

    enum class Mode {
        Drop, ///< the socket itself drops the lines; so it is from the start
        Read, ///< a process wakes up for each line and reads it
        Gone  ///< nothing is at /dev/log
    };

    /** True when the socket is ours, so that its mode may be changed for a while. */
    bool isOurs() const { return m_reader > 0; }

    /** Changes what our socket does; without one it does nothing. */
    void setMode(Mode mode);

private:
    bool listen();

    int m_socket = -1;
    pid_t m_reader = -1;
    Mode m_mode = Mode::Read;
    std::string m_description;
};

} // namespace bench
