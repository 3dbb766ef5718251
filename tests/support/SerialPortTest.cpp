#include "support/SerialPort.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

using PANFx::Testing::PortCall;
using PANFx::Testing::SerialPort;

namespace {

int openPort()
{
    return open("/nowhere/dev/ttyS1", O_RDWR);
}

} // namespace

TEST(SerialPort, StandsInForThePortWhileItLives)
{
    {
        SerialPort port;
        const int fd = openPort();
        ASSERT_GE(fd, 0);
        EXPECT_EQ(write(fd, "\x10\x04\x04", 3), 3);
        char answer[4] = {};
        EXPECT_EQ(read(fd, answer, 4), 1);
        EXPECT_EQ(answer[0], '\x12');
        EXPECT_EQ(read(fd, answer, 4), 0);
        EXPECT_EQ(port.openPorts(), 1);
        EXPECT_EQ(close(fd), 0);
        EXPECT_EQ(port.openPorts(), 0);
        EXPECT_EQ(port.calls().size(), 5U);
    }
    EXPECT_EQ(openPort(), -1);
}

TEST(SerialPort, LeavesOtherDescriptorsAlone)
{
    SerialPort port;
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    EXPECT_EQ(write(ends[1], "a", 1), 1);
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(ends[0], &readable);
    timeval timeOut{1, 0};
    EXPECT_EQ(select(ends[0] + 1, &readable, nullptr, nullptr, &timeOut), 1);
    char byte = 0;
    EXPECT_EQ(read(ends[0], &byte, 1), 1);
    EXPECT_EQ(byte, 'a');
    close(ends[0]);
    close(ends[1]);
    EXPECT_TRUE(port.calls().empty());
}

TEST(SerialPort, CountsSleepsInsteadOfSleeping)
{
    SerialPort port;
    const auto start = std::chrono::steady_clock::now();
    sleep(10);
    usleep(900000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(port.arguments(PortCall::Sleep), std::vector<long>{10});
    EXPECT_EQ(port.arguments(PortCall::Usleep), std::vector<long>{900000});
}

TEST(SerialPort, FailsTheCallsItIsToldTo)
{
    SerialPort port;
    port.failCall(1, {EIO});
    port.fail(PortCall::Write, {}, 1, 1);
    const int fd = openPort();
    errno = 0;
    EXPECT_EQ(write(fd, "a", 1), -1);
    EXPECT_EQ(errno, EIO);
    EXPECT_EQ(write(fd, "b", 1), 1);
    EXPECT_EQ(write(fd, "c", 1), 0);
    EXPECT_EQ(write(fd, "d", 1), 1);
    EXPECT_EQ(port.written(), "bd");
}

TEST(SerialPort, CutsAWriteShort)
{
    SerialPort port;
    port.fail(PortCall::Write, {0, 2}, 0, 1);
    port.fail(PortCall::Write, {}, 0, 1);
    const int fd = openPort();
    EXPECT_EQ(write(fd, "\x10\x04\x04", 3), 2);
    EXPECT_EQ(write(fd, "\x04", 1), 0);
    EXPECT_EQ(port.written(), "\x10\x04");
    char answer[4] = {};
    EXPECT_EQ(read(fd, answer, 4), 0);
    EXPECT_EQ(write(fd, "\x04", 1), 1); // only now is the request whole
    EXPECT_EQ(port.written(), "\x10\x04\x04");
    EXPECT_EQ(read(fd, answer, 4), 1);
    EXPECT_EQ(answer[0], '\x12');
}

TEST(SerialPort, FailsATestThatClosesAPortTwice)
{
    SerialPort port;
    const int fd = openPort();
    EXPECT_EQ(close(fd), 0);
    EXPECT_NONFATAL_FAILURE(close(fd), "is closed a second time");
    EXPECT_EQ(port.count(PortCall::Close), 1);
}

TEST(SerialPort, SeesOtherFilesBeforeTheyAreOpened)
{
    SerialPort port;
    std::string seen;
    port.onOtherFile = [&seen](const std::string& path) { seen = path; };
    close(openPort());
    EXPECT_EQ(seen, "");
    close(open("/dev/null", O_RDONLY));
    EXPECT_EQ(seen, "/dev/null");
}

TEST(SerialPort, SeesOnlyTheThreadThatBuiltIt)
{
    SerialPort port;
    std::thread([] { EXPECT_EQ(openPort(), -1); }).join();
    EXPECT_TRUE(port.calls().empty());
}
