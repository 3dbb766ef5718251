#include "support/SystemLogSocket.h"

#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace PANFx::Testing {

namespace {

constexpr const char* logPath = "/dev/log";
constexpr const char* lockPath = "/tmp/qtpanfx-tests-dev-log.lock";

sockaddr_un logAddress()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, logPath, sizeof address.sun_path - 1);
    return address;
}

// a socket that a killed test left behind has nobody behind it
bool somebodyListens()
{
    const int probe = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = logAddress();
    const bool connected =
        connect(probe, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(probe);
    return connected;
}

} // namespace

SystemLogSocket::SystemLogSocket()
{
    m_lock = open(lockPath, O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (m_lock < 0 || flock(m_lock, LOCK_EX) != 0 || somebodyListens())
        return;
    unlink(logPath);
    m_socket = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const sockaddr_un address = logAddress();
    if (bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(m_socket);
        m_socket = -1;
    }
}

SystemLogSocket::~SystemLogSocket()
{
    if (m_socket >= 0) {
        close(m_socket);
        unlink(logPath);
    }
    if (m_lock >= 0)
        close(m_lock); // gives the lock back
}

std::string SystemLogSocket::receive()
{
    char line[8192];
    const ssize_t size = recv(m_socket, line, sizeof line, 0);
    return size > 0 ? std::string(line, static_cast<size_t>(size)) : std::string();
}

} // namespace PANFx::Testing
