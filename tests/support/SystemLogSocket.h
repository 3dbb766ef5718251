#pragma once

#include <string>

namespace PANFx::Testing {

/**
 * Listens where the C library sends log lines, /dev/log, on a machine where nobody else does.
 * One test at a time on a machine can have it; others wait for it.
 */
class SystemLogSocket
{
public:
    SystemLogSocket();
    ~SystemLogSocket();

    SystemLogSocket(const SystemLogSocket&) = delete;
    SystemLogSocket& operator=(const SystemLogSocket&) = delete;

    /** False where a logger runs already or the place can't be written: skip the test then. */
    bool listening() const { return m_socket >= 0; }

    /** The next line as it was sent, "<11>Nov 21 04:52:58 ..."; "" when none is there. */
    std::string receive();

private:
    int m_lock = -1;
    int m_socket = -1;
};

} // namespace PANFx::Testing
