#include "print/SerialLine.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <sys/select.h>
#include <termios.h>
#include <unistd.h>

namespace PANFx::Print {

namespace {

constexpr int waitMicroseconds = 300000;

termios lineSettings()
{
    termios settings{};
    settings.c_iflag = IGNPAR;
    settings.c_oflag = 0;
    settings.c_cflag = B115200 | CS8 | CREAD | CRTSCTS;
    settings.c_lflag = 0;
    settings.c_cc[VMIN] = 0;
    settings.c_cc[VTIME] = 0;
    settings.c_cc[VSTART] = 0x11;
    settings.c_cc[VSTOP] = 0x13;
    return settings;
}

} // namespace

int openLine(const std::string& path)
{
    const int fd = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (fd < 0)
        return fd;
    const termios settings = lineSettings();
    ::tcflush(fd, TCIFLUSH);
    ::tcsetattr(fd, TCSANOW, &settings);
    return fd;
}

int writeBytes(int fd, const char* data, int size)
{
    if (size < 0) {
        errno = EINVAL;
        return -1;
    }
    return static_cast<int>(::write(fd, data, static_cast<std::size_t>(size)));
}

int readBytes(int fd, char* buffer, int size)
{
    if (size < 0) {
        errno = EINVAL;
        return -1;
    }
    return static_cast<int>(::read(fd, buffer, static_cast<std::size_t>(size)));
}

void closeLine(int fd)
{
    ::close(fd);
}

int waitForBytes(int fd)
{
    if (fd < 0 || fd >= FD_SETSIZE) {
        errno = EBADF; // a set has no room for it
        return -1;
    }
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(fd, &readable);
    timeval timeOut{0, waitMicroseconds};
    return ::select(fd + 1, &readable, nullptr, nullptr, &timeOut);
}

void pauseSeconds(unsigned seconds)
{
    ::sleep(seconds);
}

void pauseMicroseconds(unsigned microseconds)
{
    ::usleep(microseconds);
}

} // namespace PANFx::Print
