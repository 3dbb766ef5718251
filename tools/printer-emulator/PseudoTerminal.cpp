#include "printer-emulator/PseudoTerminal.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace PrinterEmulator {

namespace {

[[noreturn]] void fail(const std::string& what)
{
    throw std::runtime_error(what + ": " + strerror(errno));
}

void closeOnce(int& descriptor)
{
    if (descriptor >= 0)
        close(descriptor);
    descriptor = -1;
}

// Nothing is echoed or translated from the first byte on, whoever opens the port later.
void makeRaw(int descriptor)
{
    termios settings{};
    tcgetattr(descriptor, &settings);
    cfmakeraw(&settings);
    settings.c_cc[VMIN] = 0;
    settings.c_cc[VTIME] = 0;
    tcsetattr(descriptor, TCSANOW, &settings);
}

} // namespace

PseudoTerminal::PseudoTerminal(const std::string& port)
    : m_port(port)
{
    try {
        open();
        link();
    } catch (...) {
        closeOnce(m_farEnd);
        closeOnce(m_line);
        throw;
    }
}

PseudoTerminal::~PseudoTerminal()
{
    unplug();
}

void PseudoTerminal::open()
{
    m_line = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    char device[64];
    if (m_line < 0 || grantpt(m_line) != 0 || unlockpt(m_line) != 0 ||
        ptsname_r(m_line, device, sizeof device) != 0)
        fail("no pseudo-terminal");
    m_device = device;
    m_farEnd = ::open(device, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_farEnd < 0)
        fail(m_device);
    makeRaw(m_farEnd);
}

void PseudoTerminal::link()
{
    struct stat there
    {
    };
    if (lstat(m_port.c_str(), &there) == 0) {
        if (!S_ISLNK(there.st_mode))
            throw std::runtime_error(m_port + ": is there and is no link, so it is left alone");
        if (::unlink(m_port.c_str()) != 0)
            fail(m_port);
    }
    if (symlink(m_device.c_str(), m_port.c_str()) != 0)
        fail(m_port);
}

bool PseudoTerminal::wait(int milliseconds) const
{
    pollfd line{m_line, POLLIN, 0};
    return poll(&line, 1, milliseconds) > 0 && (line.revents & POLLIN);
}

std::vector<std::uint8_t> PseudoTerminal::read(std::size_t most)
{
    std::vector<std::uint8_t> bytes(most);
    const ssize_t size = ::read(m_line, bytes.data(), bytes.size());
    bytes.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return bytes;
}

void PseudoTerminal::write(const std::vector<std::uint8_t>& bytes)
{
    if (!bytes.empty() && ::write(m_line, bytes.data(), bytes.size()) < 0)
        fail(m_port);
}

void PseudoTerminal::unplug()
{
    char device[64];
    const ssize_t size = readlink(m_port.c_str(), device, sizeof device);
    const bool isOurs =
        size > 0 && m_line >= 0 && m_device == std::string(device, static_cast<std::size_t>(size));
    if (isOurs)
        ::unlink(m_port.c_str());
    closeOnce(m_farEnd);
    closeOnce(m_line);
}

} // namespace PrinterEmulator
