#include "print/ImagePrint.h"

#include "print/PrinterForTest.h"
#include "support/PanelTest.h"
#include "support/SerialPort.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <type_traits>
#include <unistd.h>

using namespace PANFx::Testing;

namespace {

class ImagePrintTest : public PanelTest
{
protected:
    SerialPort m_port;
    PrinterForTest m_printer;
};

} // namespace

static_assert(std::has_virtual_destructor_v<ImagePrint>);

TEST_F(ImagePrintTest, StartsWithItsDefaults)
{
    EXPECT_EQ(m_printer.m_nWidth, 384);
    EXPECT_EQ(m_printer.m_nHeight, 20);
    EXPECT_EQ(m_printer.m_strFontName, "Droid Sans Mono");
    EXPECT_EQ(m_printer.m_nFontSize, 24);
    EXPECT_EQ(m_printer.m_strCodecName, "UTF-8");
    EXPECT_EQ(m_printer.m_nOffsetX, 10);
    EXPECT_EQ(m_printer.m_nOffsetY, 32);
    EXPECT_EQ(m_printer.m_strText, QString());
    EXPECT_FALSE(m_printer.m_strText.isNull());
    EXPECT_EQ(m_printer.m_nPrintMode, 0);
    EXPECT_FALSE(m_printer.m_bCancel);
    EXPECT_TRUE(m_port.calls().empty());
}

// classes that applications derive count on it
TEST_F(ImagePrintTest, HasItsFieldsInTheirOrder)
{
    const std::vector<const void*> fields = {
        &m_printer.m_nWidth,    &m_printer.m_nHeight,      &m_printer.m_strFontName,
        &m_printer.m_nFontSize, &m_printer.m_strCodecName, &m_printer.m_nOffsetX,
        &m_printer.m_nOffsetY,  &m_printer.m_strText,      &m_printer.m_nPrintMode,
        &m_printer.m_bCancel,   &m_printer.m_logger};
    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<const void*>()));
}

// only the destructor is virtual
TEST_F(ImagePrintTest, CallsNothingThatADerivedClassHas)
{
    class Derived : public ImagePrint
    {
    public:
        int checkStatusPrinter(int) { return -1; }
        int clearPrintBuffer() { return ++cleared; }
        int cleared = 0;
    };
    Derived printer;
    QImage image = whiteImage(24);
    EXPECT_EQ(printer.Printer_BitImage(image, 1), 0);
    m_port.answer = [](const std::string&) { return "\x7E"; };
    EXPECT_EQ(printer.Printer_BitImage(image, 1), -1);
    EXPECT_EQ(printer.cleared, 0);
}

TEST_F(ImagePrintTest, StoresWhatItIsGiven)
{
    m_printer.setImageSize(300, 40);
    m_printer.setFont("Serif", 12);
    m_printer.setCodecName("EUC-KR");
    m_printer.setOffset(-1, 7);
    m_printer.setPrintMode(2);
    m_printer.CancelPrint();
    EXPECT_EQ(m_printer.m_nWidth, 300);
    EXPECT_EQ(m_printer.m_nHeight, 40);
    EXPECT_EQ(m_printer.m_strFontName, "Serif");
    EXPECT_EQ(m_printer.m_nFontSize, 12);
    EXPECT_EQ(m_printer.m_strCodecName, "EUC-KR");
    EXPECT_EQ(m_printer.m_nOffsetX, -1);
    EXPECT_EQ(m_printer.m_nOffsetY, 7);
    EXPECT_EQ(m_printer.m_nPrintMode, 2);
    EXPECT_TRUE(m_printer.m_bCancel);
}

TEST_F(ImagePrintTest, WritesUnderItsOwnName)
{
    m_printer.checkStatusPrinter(0);
    log().expectError("[sendCmd2Printer] file descripter < 0 error", 1, "ImagePrint");
    ASSERT_FALSE(log().lines().empty());
    EXPECT_EQ(log().lines().front().identity, "QTPANFx ImagePrint     ");
}

// ---- the port

TEST_F(ImagePrintTest, OpensThePortWithItsSettings)
{
    const int fd = m_printer.initPrinter(nullptr);
    EXPECT_GE(fd, 1);
    ASSERT_EQ(m_port.calls().size(), 3U);
    EXPECT_EQ(m_port.calls()[0].call, PortCall::Open);
    EXPECT_EQ(m_port.calls()[0].text, realPath("/dev/ttyS1"));
    EXPECT_EQ(m_port.calls()[0].argument, O_RDWR | O_NOCTTY | O_NONBLOCK);
    EXPECT_EQ(m_port.calls()[1].call, PortCall::Flush);
    EXPECT_EQ(m_port.calls()[1].argument, TCIFLUSH);
    EXPECT_EQ(m_port.calls()[2].call, PortCall::Configure);
    EXPECT_EQ(m_port.calls()[2].argument, TCSANOW);
    m_printer.deInitPrinter(fd, nullptr);
    EXPECT_EQ(m_port.openPorts(), 0);
}

TEST_F(ImagePrintTest, ConfiguresARawLineWithHardwareFlowControl)
{
    m_printer.deInitPrinter(m_printer.initPrinter(nullptr), nullptr);
    const termios& settings = m_port.settings();
    EXPECT_EQ(settings.c_iflag, tcflag_t(IGNPAR));
    EXPECT_EQ(settings.c_oflag, tcflag_t(0));
    EXPECT_EQ(settings.c_cflag, tcflag_t(B115200 | CS8 | CREAD | CRTSCTS));
    EXPECT_EQ(settings.c_lflag, tcflag_t(0));
    for (int i = 0; i < NCCS; ++i) {
        const int expected = i == VSTART ? 0x11 : i == VSTOP ? 0x13 : 0;
        EXPECT_EQ(settings.c_cc[i], expected) << i;
    }
}

TEST_F(ImagePrintTest, LeavesTheGivenSettingsAlone)
{
    termios settings{};
    settings.c_cflag = 1234;
    m_printer.deInitPrinter(m_printer.initPrinter(&settings), &settings);
    EXPECT_EQ(settings.c_cflag, tcflag_t(1234));
}

TEST_F(ImagePrintTest, TellsOfAPortThatCannotBeOpened)
{
    m_port.fail(PortCall::Open, {ENOENT});
    EXPECT_EQ(m_printer.initPrinter(nullptr), -1);
    EXPECT_EQ(m_port.calls().size(), 1U);
    log().expectError("[initPrinter] fd open error");
}

TEST_F(ImagePrintTest, IgnoresThatThePortCannotBeFlushedOrConfigured)
{
    m_port.fail(PortCall::Flush, {EIO});
    m_port.fail(PortCall::Configure, {EINVAL});
    const int fd = m_printer.initPrinter(nullptr);
    EXPECT_GE(fd, 1);
    EXPECT_EQ(m_port.calls().size(), 3U);
    m_printer.deInitPrinter(fd, nullptr);
}

TEST_F(ImagePrintTest, ClosesNoDescriptorBelowOne)
{
    m_printer.deInitPrinter(0, nullptr);
    m_printer.deInitPrinter(-1, nullptr);
    EXPECT_NE(fcntl(0, F_GETFD), -1);
}

// ---- the descriptors of a program without standard input or output

namespace {

// Closes one of the program's own descriptors, so that the next file opened gets it.
class FreedDescriptor
{
public:
    explicit FreedDescriptor(int descriptor)
        : m_descriptor(descriptor)
        , m_kept(fcntl(descriptor, F_DUPFD_CLOEXEC, 3))
    {
        close(m_descriptor);
    }

    ~FreedDescriptor()
    {
        if (m_kept >= 0)
            dup2(m_kept, m_descriptor);
        close(m_kept);
    }

    FreedDescriptor(const FreedDescriptor&) = delete;
    FreedDescriptor& operator=(const FreedDescriptor&) = delete;

private:
    const int m_descriptor;
    const int m_kept;
};

class ImagePrintDescriptorTest : public PanelTest
{
protected:
    // the result of an operation that gets 0 for its port, which it is to leave open
    template <typename Operation>
    static int onDescriptorZero(const Operation& operation)
    {
        const FreedDescriptor freed(0);
        SerialPort port;
        ImagePrint printer;
        const int result = operation(printer);
        EXPECT_TRUE(port.isPort(0));
        EXPECT_EQ(port.count(PortCall::Open), 1);
        EXPECT_EQ(port.count(PortCall::Close), 0);
        return result;
    }
};

} // namespace

TEST_F(ImagePrintDescriptorTest, LeavesZeroOpenAndAsksNothingOfIt)
{
    EXPECT_EQ(onDescriptorZero([](ImagePrint& printer) { return printer.checkPrinterRxBuf(); }),
              -1);
    log().expectError("[sendCmd2Printer] file descripter < 0 error");
}

TEST_F(ImagePrintDescriptorTest, LeavesZeroOpenWhenClearing)
{
    EXPECT_EQ(onDescriptorZero([](ImagePrint& printer) { return printer.clearPrintBuffer(); }), 0);
}

TEST_F(ImagePrintDescriptorTest, LeavesZeroOpenBehindAJob)
{
    EXPECT_EQ(onDescriptorZero([](ImagePrint& printer) {
                  QImage image = whiteImage(23);
                  return printer.Printer_BitImage(image, 1);
              }),
              0);
}

TEST_F(ImagePrintDescriptorTest, ClosesOne)
{
    fflush(stdout);
    const FreedDescriptor freed(1);
    SerialPort port;
    ImagePrint printer;
    const int fd = printer.initPrinter(nullptr);
    printer.deInitPrinter(fd, nullptr);
    EXPECT_EQ(fd, 1);
    EXPECT_EQ(port.arguments(PortCall::Close), std::vector<long>{1});
}

// ---- status

TEST_F(ImagePrintTest, TakesAReadyPrinterForGood)
{
    const int fd = m_printer.initPrinter(nullptr);
    EXPECT_EQ(m_printer.checkStatusPrinter(fd), 0);
    EXPECT_EQ(m_port.written(), statusRequest);
    log().expectInOrder(
        {"[D] [READ PRINTER DATA << 0x12  /  ret = 1]", "[D] [checkStatusPrinter] OK  - 0x12"});
    EXPECT_EQ(m_port.openPorts(), 1);
    m_printer.deInitPrinter(fd, nullptr);
}

TEST_F(ImagePrintTest, TellsABadStatusFromAnyOther)
{
    const int fd = m_printer.initPrinter(nullptr);
    m_port.answer = [](const std::string&) { return "\x7E"; };
    EXPECT_EQ(m_printer.checkStatusPrinter(fd), -1);
    log().expectInOrder(
        {"[D] [READ PRINTER DATA << 0x7E  /  ret = 1]", "[D] [checkStatusPrinter] NG  - 0x7E"});
    m_port.answer = [](const std::string&) { return "\xF2"; };
    EXPECT_EQ(m_printer.checkStatusPrinter(fd), -2);
    log().expectInOrder(
        {"[D] [READ PRINTER DATA << 0xF2  /  ret = 1]", "[D] [checkStatusPrinter] NG  - 0xF2"});
    m_printer.deInitPrinter(fd, nullptr);
}

TEST_F(ImagePrintTest, TakesAGoodStatusWithMoreBehindItForGood)
{
    const int fd = m_printer.initPrinter(nullptr);
    m_port.answer = [](const std::string&) { return "\x12\x34"; };
    EXPECT_EQ(m_printer.checkStatusPrinter(fd), 0);
    log().expectInOrder(
        {"[D] [READ PRINTER DATA << 0x12  /  ret = 0]", "[D] [checkStatusPrinter] OK  - 0x12"});
    m_printer.deInitPrinter(fd, nullptr);
}

TEST_F(ImagePrintTest, WaitsForASilentPrinterForTwelveTenthsOfASecond)
{
    const int fd = m_printer.initPrinter(nullptr);
    m_port.answer = [](const std::string&) { return ""; };
    EXPECT_EQ(m_printer.checkStatusPrinter(fd), -2);
    EXPECT_EQ(m_port.arguments(PortCall::Select), std::vector<long>(4, 300000));
    EXPECT_EQ(log().count("[D] select timeout\n"), 4);
    EXPECT_EQ(m_port.count(PortCall::Read), 0);
    log().expectError("[sendCmd2Printer] uart_read_select error");
    log().expectInOrder(
        {"[D] [READ PRINTER DATA << 0x0  /  ret = -1]", "[D] [checkStatusPrinter] NG  - 0x0"});
    m_printer.deInitPrinter(fd, nullptr);
}

TEST_F(ImagePrintTest, AsksNothingOfADescriptorThatIsNone)
{
    EXPECT_EQ(m_printer.checkStatusPrinter(-1), -1);
    EXPECT_TRUE(log().lines().empty());
    EXPECT_EQ(m_printer.checkStatusPrinter(0), -2);
    log().expectError("[sendCmd2Printer] file descripter < 0 error");
    EXPECT_TRUE(m_port.calls().empty());
}

// ---- free space

TEST_F(ImagePrintTest, CountsTheFreeBytesOfThePrinter)
{
    for (const auto& [answer, free] :
         std::vector<std::pair<std::string, int>>{{bytes("\x00\x00"), 15000},
                                                  {bytes("\x98\x3A"), 0},
                                                  {bytes("\xFF\x00"), 14745},
                                                  {bytes("\x00\x80"), -17768},
                                                  {bytes("\xFF\xFF"), -50535}}) {
        m_port.answer = [text = answer](const std::string&) { return text; };
        EXPECT_EQ(m_printer.checkPrinterRxBuf(), free);
        EXPECT_EQ(log().count("[D] [checkPrinterRxBuf] rxBuf [" + std::to_string(free) + "] \n"),
                  1);
        EXPECT_EQ(m_port.openPorts(), 0);
    }
    EXPECT_EQ(m_port.written().substr(0, 3), bufferRequest);
}

TEST_F(ImagePrintTest, TakesNoBufferAnswerOfThreeBytes)
{
    m_port.answer = [](const std::string&) { return "\x01\x01\x01"; };
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), -1);
    EXPECT_EQ(m_port.openPorts(), 0);
    EXPECT_EQ(log().countLevel('D'), 0);
}

TEST_F(ImagePrintTest, GivesUpOnABufferAnswerOfOneByte)
{
    m_port.answer = [](const std::string&) { return "\x01"; };
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), -1);
    EXPECT_EQ(m_port.count(PortCall::Read), 7);
    EXPECT_EQ(log().count("[D] read[1], offset[1] min[2], max[6] \n"), 1);
    EXPECT_EQ(log().countLevel('D'), 1);
    log().expectError("[uart_read] retry_cnt(7) < max length(6) error");
    log().expectError("[sendCmd2Printer] uart_read_select error");
    EXPECT_EQ(m_port.openPorts(), 0);
}

TEST_F(ImagePrintTest, PutsABufferAnswerTogetherFromTwoReads)
{
    m_port.answer = [this](const std::string&) {
        m_port.give({"\x01"});
        return "\x02";
    };
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), 15000 - 0x201);
    EXPECT_EQ(m_port.arguments(PortCall::Read), (std::vector<long>{6, 5}));
}

TEST_F(ImagePrintTest, NeedsAPortToCountFreeBytes)
{
    m_port.fail(PortCall::Open, {EBUSY});
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), -1);
    log().expectError("[initPrinter] fd open error");
    log().expectError("[checkPrinterRxBuf] Failed to open printer");
    EXPECT_EQ(m_port.calls().size(), 1U);
}

// ---- clearing

TEST_F(ImagePrintTest, ClearsThePrinterByteByByte)
{
    EXPECT_EQ(m_printer.clearPrintBuffer(), 0);
    EXPECT_EQ(m_port.written(), resetAndClear);
    EXPECT_EQ(m_port.arguments(PortCall::Write), std::vector<long>(5, 1));
    EXPECT_EQ(m_port.openPorts(), 0);
}

TEST_F(ImagePrintTest, IgnoresBytesThatDoNotGoOutWhenClearing)
{
    m_port.fail(PortCall::Write, {EIO});
    EXPECT_EQ(m_printer.clearPrintBuffer(), 0);
    EXPECT_EQ(m_port.count(PortCall::Write), 5);
    EXPECT_EQ(m_port.openPorts(), 0);
}

TEST_F(ImagePrintTest, NeedsAPortToClear)
{
    m_port.fail(PortCall::Open, {ENXIO});
    EXPECT_EQ(m_printer.clearPrintBuffer(), -1);
    log().expectError("[initPrinter] fd open error");
    log().expectError("[clearPrintBuffer] Failed to open printer");
}
