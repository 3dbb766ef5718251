// The transport of ImagePrint, and SerialLine beneath it, which is not exported.

#include "print/PrinterForTest.h"
#include "support/PanelTest.h"
#include "support/SerialPort.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace PANFx::Testing;

namespace {

class ImagePrintTransportTest : public PanelTest
{
protected:
    ImagePrintTransportTest() { m_fd = m_printer.initPrinter(nullptr); }
    ~ImagePrintTransportTest() override
    {
        m_port.onCall = nullptr; // it may write to what was the test's own
        m_printer.deInitPrinter(m_fd, nullptr);
    }

    // the waits of a write that is blocked once, while the printer tells this free space
    std::string waitsFor(int free)
    {
        const int waiting = 15000 - free;
        m_port.answer = [waiting](const std::string&) {
            return std::string{static_cast<char>(waiting % 256), static_cast<char>(waiting / 256)};
        };
        const size_t before = m_port.calls().size();
        m_port.fail(PortCall::Write, {EAGAIN}, 0, 1);
        EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), 3);
        std::string waits;
        for (size_t i = before; i < m_port.calls().size(); ++i) {
            const PortCallMade& made = m_port.calls()[i];
            if (made.call == PortCall::Sleep)
                waits += " " + std::to_string(made.argument) + "s";
            if (made.call == PortCall::Usleep)
                waits += " " + std::to_string(made.argument) + "us";
        }
        EXPECT_EQ(log().count("[D] [uart_write] Print Error : " + std::to_string(free)), 1);
        log().startHere();
        return waits;
    }

    SerialPort m_port;
    PrinterForTest m_printer;
    int m_fd = -1;
};

} // namespace

// ---- writing

TEST_F(ImagePrintTransportTest, WritesOneByteOnceWhateverComesOfIt)
{
    EXPECT_EQ(m_printer.uart_write_byte(m_fd, 0xFE), 1);
    EXPECT_EQ(m_port.written(), "\xFE");
    m_port.fail(PortCall::Write, {EAGAIN}, 0, 1);
    EXPECT_EQ(m_printer.uart_write_byte(m_fd, 0x01), -1);
    m_port.fail(PortCall::Write, {}, 0, 1);
    EXPECT_EQ(m_printer.uart_write_byte(m_fd, 0x01), 0);
    EXPECT_EQ(m_port.count(PortCall::Write), 3);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ImagePrintTransportTest, WritesNothingForNoData)
{
    EXPECT_EQ(m_printer.uart_write(m_fd, nullptr, 3), 0);
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 0), 0);
    EXPECT_EQ(m_port.count(PortCall::Write), 0);
}

TEST_F(ImagePrintTransportTest, WritesAllAtOnceWhereItCan)
{
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), 3);
    EXPECT_EQ(m_port.arguments(PortCall::Write), std::vector<long>{3});
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ImagePrintTransportTest, GoesOnBehindAWriteThatTookNothing)
{
    m_port.fail(PortCall::Write, {}, 0, 2);
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), 3);
    EXPECT_EQ(m_port.written(), "abc");
    EXPECT_EQ(log().count("[D] write[0], offset[0] \n"), 2);
    EXPECT_EQ(m_port.count(PortCall::Usleep) + m_port.count(PortCall::Sleep), 0);
}

TEST_F(ImagePrintTransportTest, GoesOnBehindWhatWasTaken)
{
    m_port.fail(PortCall::Write, {0, 1}, 0, 1);
    m_port.fail(PortCall::Write, {0, 2}, 0, 1);
    m_port.fail(PortCall::Write, {EAGAIN}, 0, 1);
    EXPECT_EQ(m_printer.uart_write(m_fd, "abcdef", 6), 6);
    EXPECT_EQ(m_port.written(), "abc" + bufferRequest + "def");
    EXPECT_EQ(m_port.arguments(PortCall::Write), (std::vector<long>{6, 5, 3, 3, 3}));
    EXPECT_EQ(m_port.calls().back().text, "def");
    EXPECT_EQ(log().texts(),
              (std::vector<std::string>{"[D] write[1], offset[1] \n", "[D] write[2], offset[3] \n",
                                        "[D] [checkPrinterRxBuf] rxBuf [15000] \n",
                                        "[D] [uart_write] Print Error : 15000"}));
}

TEST_F(ImagePrintTransportTest, StopsOneTryBehindTheLength)
{
    m_port.fail(PortCall::Write, {});
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), -1);
    EXPECT_EQ(m_port.count(PortCall::Write), 4);
    EXPECT_EQ(log().count("[D] write[0], offset[0] \n"), 3);
    log().expectError("[uart_write] Print Error : 0 4 (3)");
}

TEST_F(ImagePrintTransportTest, StopsAtAHardFailure)
{
    m_port.fail(PortCall::Write, {EIO});
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), -1);
    EXPECT_EQ(m_port.count(PortCall::Write), 1);
    log().expectError("[uart_write] Print Error : -1 1 (3)");
}

TEST_F(ImagePrintTransportTest, RefusesALengthBelowZero)
{
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", -1), -1);
    EXPECT_EQ(m_port.count(PortCall::Write), 0);
    log().expectError("[uart_write] Print Error : -1 1 (-1)");
}

// each value on a boundary waits twice
TEST_F(ImagePrintTransportTest, WaitsByTheFreeSpaceOfThePrinter)
{
    EXPECT_EQ(waitsFor(0), " 10s");
    EXPECT_EQ(waitsFor(2047), " 10s");
    EXPECT_EQ(waitsFor(2048), " 10s 8s");
    EXPECT_EQ(waitsFor(2049), " 8s");
    EXPECT_EQ(waitsFor(4095), " 8s");
    EXPECT_EQ(waitsFor(4096), " 8s 4s");
    EXPECT_EQ(waitsFor(4097), " 4s");
    EXPECT_EQ(waitsFor(10239), " 4s");
    EXPECT_EQ(waitsFor(10240), " 4s 50000us");
    EXPECT_EQ(waitsFor(10241), " 50000us");
    EXPECT_EQ(waitsFor(15000), " 50000us");
}

TEST_F(ImagePrintTransportTest, CountsANegativeFreeSpaceAsNone)
{
    EXPECT_EQ(waitsFor(-2), " 10s");
    EXPECT_EQ(waitsFor(-50000), " 10s");
}

TEST_F(ImagePrintTransportTest, EndsTheWriteAtAFreeSpaceOfMinusOne)
{
    m_port.fail(PortCall::Write, {EINTR}, 0, 1);
    m_port.answer = [](const std::string&) { return "\x99\x3A"; }; // 15001 bytes wait
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), -1);
    EXPECT_EQ(log().count("[D] [checkPrinterRxBuf] rxBuf [-1] \n"), 1);
    EXPECT_EQ(log().count("[D] [uart_write] Print Error : -1"), 1);
    EXPECT_EQ(m_port.count(PortCall::Sleep), 0);
}

TEST_F(ImagePrintTransportTest, DoesNotCountBlockedRoundsAsTries)
{
    for (int round = 0; round < 20; ++round) { // each with a request that gets through
        m_port.fail(PortCall::Write, {round % 2 ? EINTR : EAGAIN}, round == 0 ? 0 : 1, 1);
    }
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), 3);
    EXPECT_EQ(m_port.arguments(PortCall::Usleep), std::vector<long>(20, 50000));
    EXPECT_EQ(m_port.openPorts(), 1);
}

TEST_F(ImagePrintTransportTest, AsksForFreeSpaceOnAPortOfItsOwn)
{
    m_port.fail(PortCall::Write, {EAGAIN}, 0, 1);
    int most = 0;
    m_port.onCall = [&](const PortCallMade&) { most = std::max(most, m_port.openPorts()); };
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), 3);
    EXPECT_EQ(most, 2);
    EXPECT_EQ(m_port.written(), bufferRequest + "abc");
}

TEST_F(ImagePrintTransportTest, EndsTheWriteWhereThePortCannotBeOpenedAgain)
{
    m_port.fail(PortCall::Write, {EAGAIN});
    m_port.fail(PortCall::Open, {EMFILE});
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), -1);
    log().expectError("[initPrinter] fd open error");
    log().expectError("[checkPrinterRxBuf] Failed to open printer");
    EXPECT_EQ(log().count("[D] [uart_write] Print Error : -1"), 1);
}

// the request for the free space is blocked as well, and asks in turn
TEST_F(ImagePrintTransportTest, EndsTheWriteOnALineThatStaysBlocked)
{
    m_port.fail(PortCall::Write, {EAGAIN});
    int most = 0;
    m_port.onCall = [&](const PortCallMade&) { most = std::max(most, m_port.openPorts()); };
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), -1);
    log().expectError("[uart_write] the line stays blocked");
    log().expectError("[sendCmd2Printer] length != cmd size error", 64);
    EXPECT_EQ(log().count("[D] [uart_write] Print Error : -1"), 65);
    EXPECT_EQ(most, 65);
    EXPECT_EQ(m_port.openPorts(), 1);
    // and the next write starts afresh
    log().startHere();
    m_port.onCall = nullptr;
    EXPECT_EQ(m_printer.uart_write(m_fd, "abc", 3), -1);
    log().expectError("[uart_write] the line stays blocked");
    log().expectError("[sendCmd2Printer] length != cmd size error", 64);
}

// ---- reading

TEST_F(ImagePrintTransportTest, ReadsNothingWithoutABuffer)
{
    char buffer[4];
    EXPECT_EQ(m_printer.uart_read(m_fd, nullptr, 1, 4), 0);
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, 0), 0);
    EXPECT_EQ(m_port.count(PortCall::Read), 0);
}

TEST_F(ImagePrintTransportTest, ReadsUntilTheLeastIsIn)
{
    char buffer[6] = {};
    m_port.give({"a", "bc", "defg"});
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 3, 6), 3);
    EXPECT_EQ(std::string(buffer), "abc");
    EXPECT_EQ(m_port.arguments(PortCall::Read), (std::vector<long>{6, 5}));
    EXPECT_EQ(log().texts(), std::vector<std::string>{"[D] read[1], offset[1] min[3], max[6] \n"});
}

TEST_F(ImagePrintTransportTest, ReadsNoMoreThanTheMost)
{
    char buffer[6] = {};
    m_port.give({"abcdef"});
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, 4), 4);
    EXPECT_EQ(std::string(buffer), "abcd");
}

TEST_F(ImagePrintTransportTest, TakesAnyFailedReadForAnError)
{
    char buffer[6];
    for (const int error : {EAGAIN, EINTR, EIO}) {
        m_port.fail(PortCall::Read, {error}, 0, 1);
        EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, 6), -1);
    }
    EXPECT_EQ(m_port.count(PortCall::Read), 3);
    log().expectError("[uart_read] read error", 3);
}

TEST_F(ImagePrintTransportTest, EndsReadingOneTryBehindTheMost)
{
    char buffer[3];
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, 3), -1);
    EXPECT_EQ(m_port.count(PortCall::Read), 4);
    EXPECT_EQ(log().countLevel('D'), 0);
    log().expectError("[uart_read] retry_cnt(4) < max length(3) error");
}

TEST_F(ImagePrintTransportTest, FailsTheLastTryThoughItFilledTheBuffer)
{
    char buffer[3];
    m_port.fail(PortCall::Read, {}, 0, 3);
    m_port.give({"abc"});
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, 3), -1);
    log().expectError("[uart_read] retry_cnt(4) < max length(3) error");
}

TEST_F(ImagePrintTransportTest, SucceedsAtTheLastAllowedTry)
{
    char buffer[3];
    m_port.fail(PortCall::Read, {}, 0, 2);
    m_port.give({"a"});
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, 3), 1);
    EXPECT_EQ(m_port.count(PortCall::Read), 3);
}

TEST_F(ImagePrintTransportTest, RefusesAMostBelowZero)
{
    char buffer[3];
    EXPECT_EQ(m_printer.uart_read(m_fd, buffer, 1, -3), -1);
    EXPECT_EQ(m_port.count(PortCall::Read), 0);
    log().expectError("[uart_read] read error");
}

// ---- waiting for an answer

TEST_F(ImagePrintTransportTest, WaitsFourRoundsForAnAnswer)
{
    char buffer[6];
    EXPECT_EQ(m_printer.uart_read_select(m_fd, buffer, 1, 6), -1);
    EXPECT_EQ(m_port.arguments(PortCall::Select), std::vector<long>(4, 300000));
    EXPECT_EQ(log().count("[D] select timeout\n"), 4);
}

TEST_F(ImagePrintTransportTest, TakesAnAnswerOfTheLastRound)
{
    char buffer[6];
    m_port.fail(PortCall::Select, {}, 0, 3);
    m_port.give({"a"});
    EXPECT_EQ(m_printer.uart_read_select(m_fd, buffer, 1, 6), 1);
    EXPECT_EQ(log().count("[D] select timeout\n"), 3);
    EXPECT_EQ(buffer[0], 'a');
}

TEST_F(ImagePrintTransportTest, EndsWaitingWhereSelectFails)
{
    char buffer[6];
    m_port.fail(PortCall::Select, {EINTR}, 1);
    EXPECT_EQ(m_printer.uart_read_select(m_fd, buffer, 1, 6), -1);
    EXPECT_EQ(log().texts(),
              (std::vector<std::string>{"[D] select timeout\n", "[D] select error\n"}));
    EXPECT_EQ(m_port.count(PortCall::Read), 0);
}

// the result so far is that of a read that gave nothing
TEST_F(ImagePrintTransportTest, KeepsTheResultOfAnEmptyRound)
{
    m_port.give({"a"});
    m_port.fail(PortCall::Select, {EIO}, 1);
    EXPECT_EQ(m_printer.uart_read_select(m_fd, nullptr, 1, 6), 0);
    EXPECT_EQ(m_port.count(PortCall::Select), 2);
}

TEST_F(ImagePrintTransportTest, TriesAnEmptyRoundAgain)
{
    m_port.give({"a"});
    EXPECT_EQ(m_printer.uart_read_select(m_fd, nullptr, 1, 6), 0);
    EXPECT_EQ(m_port.count(PortCall::Select), 4);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ImagePrintTransportTest, HandsOnWhatReadingFails)
{
    char buffer[6];
    m_port.give({"a"});
    m_port.fail(PortCall::Read, {EIO});
    EXPECT_EQ(m_printer.uart_read_select(m_fd, buffer, 1, 6), -1);
    EXPECT_EQ(m_port.count(PortCall::Select), 1);
    log().expectError("[uart_read] read error");
}

TEST_F(ImagePrintTransportTest, DoesNotWaitOnADescriptorThatSelectCannotTake)
{
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit raised{std::min<rlim_t>(limit.rlim_max, 4096), limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &raised), 0);
    const int high = fcntl(m_fd, F_DUPFD_CLOEXEC, FD_SETSIZE);
    if (high < 0)
        GTEST_SKIP() << "no descriptor above " << FD_SETSIZE << " to be had here";
    char buffer[6];
    EXPECT_EQ(m_printer.uart_read_select(high, buffer, 1, 6), -1);
    EXPECT_EQ(m_printer.uart_read_select(-1, buffer, 1, 6), -1);
    EXPECT_EQ(log().count("[D] select error\n"), 2);
    EXPECT_EQ(m_port.count(PortCall::Select), 0);
    close(high);
    setrlimit(RLIMIT_NOFILE, &limit);
}

// ---- commands

TEST_F(ImagePrintTransportTest, SendsACommandAndTakesItsAnswer)
{
    char answer[6] = {};
    m_port.answer = [](const std::string& written) { return written == "xyz" ? "AB" : ""; };
    EXPECT_EQ(m_printer.sendCmd2Printer(m_fd, "xyz", 3, answer, 6, 2), 1);
    EXPECT_EQ(std::string(answer), "AB");
    EXPECT_EQ(m_port.arguments(PortCall::Read), std::vector<long>{6});
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ImagePrintTransportTest, TellsALongerAnswer)
{
    char answer[6] = {};
    m_port.answer = [](const std::string&) { return "ABC"; };
    EXPECT_EQ(m_printer.sendCmd2Printer(m_fd, "xyz", 3, answer, 6, 2), 0);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ImagePrintTransportTest, SendsNothingToADescriptorBelowOne)
{
    char answer[6] = {};
    EXPECT_EQ(m_printer.sendCmd2Printer(0, "xyz", 3, answer, 6, 2), -1);
    EXPECT_EQ(m_printer.sendCmd2Printer(-1, "xyz", 3, answer, 6, 2), -1);
    log().expectError("[sendCmd2Printer] file descripter < 0 error", 2);
    EXPECT_EQ(m_port.count(PortCall::Write), 0);
}

TEST_F(ImagePrintTransportTest, TellsOfACommandThatDoesNotGoOut)
{
    char answer[6] = {};
    m_port.fail(PortCall::Write, {ENXIO});
    EXPECT_EQ(m_printer.sendCmd2Printer(m_fd, "xyz", 3, answer, 6, 2), -1);
    log().expectError("[uart_write] Print Error : -1 1 (3)");
    log().expectError("[sendCmd2Printer] length != cmd size error");
    EXPECT_EQ(m_port.count(PortCall::Select), 0);
}

TEST_F(ImagePrintTransportTest, TellsOfACommandWithoutAnswer)
{
    char answer[6] = {};
    m_port.answer = [](const std::string&) { return ""; };
    EXPECT_EQ(m_printer.sendCmd2Printer(m_fd, "xyz", 3, answer, 6, 2), -1);
    log().expectError("[sendCmd2Printer] uart_read_select error");
    // without room for an answer there is none either
    m_port.answer = [](const std::string&) { return "A"; };
    EXPECT_EQ(m_printer.sendCmd2Printer(m_fd, "xyz", 3, nullptr, 6, 1), -1);
    log().expectError("[sendCmd2Printer] uart_read_select error");
}
