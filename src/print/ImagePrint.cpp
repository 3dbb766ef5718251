#include "print/ImagePrint.h"

#include "common/systemPath.h"
#include "print/SerialLine.h"

#include <cerrno>
#include <utility>

// The class's data and its way to the printer; what is sent as a print job is in
// ImagePrintJob.cpp.

using PANFx::Print::closeLine;
using PANFx::Print::openLine;
using PANFx::Print::pauseMicroseconds;
using PANFx::Print::pauseSeconds;
using PANFx::Print::readBytes;
using PANFx::Print::waitForBytes;
using PANFx::Print::writeBytes;

namespace {

constexpr char statusRequest[] = {0x10, 0x04, 0x04};
constexpr char bufferRequest[] = {0x10, 0x04, 0x07};
constexpr unsigned char resetAndClear[] = {0x1B, 0x40, 0x10, 0x05, 0x02};

constexpr int answerSize = 6; // more than any answer, so that one too long is seen
constexpr int bufferSize = 15000;
constexpr unsigned char statusGood = 0x12;
constexpr unsigned char statusBad = 0x7E;

constexpr int answerRounds = 4;

// A request for the free space is itself written to the blocked line, and blocked there asks in
// turn, each time on one more descriptor.
constexpr int mostNestedRequests = 64;

bool isBlocked(int written)
{
    return written < 0 && (errno == EAGAIN || errno == EINTR);
}

// The ranges share their ends on purpose: a value there waits twice.
void waitForFreeSpace(int free)
{
    if (free <= 2048)
        pauseSeconds(10);
    if (free >= 2048 && free <= 4096)
        pauseSeconds(8);
    if (free >= 4096 && free <= 10240)
        pauseSeconds(4);
    if (free >= 10240 && free <= 15360)
        pauseMicroseconds(50000);
}

unsigned char byteOf(char byte)
{
    return static_cast<unsigned char>(byte);
}

} // namespace

ImagePrint::ImagePrint()
    : m_strText(QLatin1String(""))
{
}

ImagePrint::~ImagePrint() = default;

void ImagePrint::setImageSize(int width, int height)
{
    m_nWidth = width;
    m_nHeight = height;
}

void ImagePrint::setFont(std::string name, int size)
{
    m_strFontName = std::move(name);
    m_nFontSize = size;
}

void ImagePrint::setCodecName(std::string name)
{
    m_strCodecName = std::move(name);
}

void ImagePrint::setOffset(int x, int y)
{
    m_nOffsetX = x;
    m_nOffsetY = y;
}

void ImagePrint::setPrintMode(int mode)
{
    m_nPrintMode = mode;
}

void ImagePrint::CancelPrint()
{
    m_bCancel = true;
}

int ImagePrint::initPrinter(termios* /*settings*/)
{
    const int fd = openLine(PANFx::Common::systemPath("/dev/ttyS1"));
    if (fd < 0) {
        m_logger.WriteError("[%s] fd open error", "initPrinter");
        return -1;
    }
    return fd;
}

void ImagePrint::deInitPrinter(int fd, termios* /*settings*/)
{
    if (fd >= 1)
        closeLine(fd);
}

int ImagePrint::uart_write_byte(int fd, unsigned char byte)
{
    const char data = static_cast<char>(byte);
    return writeBytes(fd, &data, 1);
}

int ImagePrint::uart_write(int fd, const char* data, int length)
{
    if (!data || length == 0)
        return 0;
    int tries = 0;
    int done = 0;
    for (;;) {
        const int n = writeBytes(fd, data + done, length - done);
        if (isBlocked(n)) {
            const int free = freeSpaceForBlockedWrite();
            m_logger.WriteDebug("[%s] Print Error : %d", "uart_write", free);
            if (free == -1)
                return -1;
            waitForFreeSpace(free);
            continue;
        }
        ++tries;
        if (tries > length || n < 0) {
            m_logger.WriteError("[%s] Print Error : %d %d (%d)", "uart_write", n, tries, length);
            return -1;
        }
        done += n;
        if (done == length)
            return done;
        m_logger.WriteDebug("write[%d], offset[%d] \n", n, done);
    }
}

// An application's descriptors and stack must outlive a line that stays blocked.
int ImagePrint::freeSpaceForBlockedWrite()
{
    thread_local int nested = 0;
    if (nested == mostNestedRequests) {
        m_logger.WriteError("[%s] the line stays blocked", "uart_write");
        return -1;
    }
    ++nested;
    const int free = checkPrinterRxBuf();
    --nested;
    return free;
}

int ImagePrint::uart_read(int fd, char* buffer, int min, int max)
{
    if (!buffer || max == 0)
        return 0;
    int tries = 0;
    int done = 0;
    for (;;) {
        const int n = readBytes(fd, buffer + done, max - done);
        done += n;
        if (n < 0) {
            m_logger.WriteError("[%s] read error", "uart_read");
            return -1;
        }
        ++tries;
        if (tries > max) {
            m_logger.WriteError("[%s] retry_cnt(%d) < max length(%d) error", "uart_read", tries,
                                max);
            return -1;
        }
        if (done >= min)
            return done;
        if (n != 0)
            m_logger.WriteDebug("read[%d], offset[%d] min[%d], max[%d] \n", n, done, min, max);
    }
}

int ImagePrint::uart_read_select(int fd, char* buffer, int min, int max)
{
    int result = -1;
    for (int round = 0; round < answerRounds; ++round) {
        const int ready = waitForBytes(fd);
        if (ready < 0) {
            m_logger.WriteDebug("select error\n");
            return result;
        }
        if (ready == 0) {
            m_logger.WriteDebug("select timeout\n");
            continue;
        }
        result = uart_read(fd, buffer, min, max);
        if (result != 0)
            return result;
    }
    return result;
}

int ImagePrint::sendCmd2Printer(int fd, const char* command, int length, char* answer, int max,
                                int min)
{
    if (fd < 1) {
        m_logger.WriteError("[%s] file descripter < 0 error", "sendCmd2Printer");
        return -1;
    }
    if (uart_write(fd, command, length) != length) {
        m_logger.WriteError("[%s] length != cmd size error", "sendCmd2Printer");
        return -1;
    }
    const int received = uart_read_select(fd, answer, min, max);
    if (received < 1) {
        m_logger.WriteError("[%s] uart_read_select error", "sendCmd2Printer");
        return -1;
    }
    return received == min ? 1 : 0;
}

// Only the byte counts: a good one with others behind it is good.
int ImagePrint::checkStatusPrinter(int fd)
{
    if (fd < 0)
        return -1;
    char answer[answerSize] = {};
    const int ret = sendCmd2Printer(fd, statusRequest, sizeof statusRequest, answer, answerSize, 1);
    const unsigned status = byteOf(answer[0]);
    m_logger.WriteDebug("[READ PRINTER DATA << 0x%X  /  ret = %d]", status, ret);
    if (status == statusGood) {
        m_logger.WriteDebug("[%s] OK  - 0x%X", "checkStatusPrinter", status);
        return 0;
    }
    m_logger.WriteDebug("[%s] NG  - 0x%X", "checkStatusPrinter", status);
    return status == statusBad ? -1 : -2;
}

int ImagePrint::checkPrinterRxBuf()
{
    char answer[answerSize] = {};
    const int fd = initPrinter(nullptr);
    if (fd < 0) {
        m_logger.WriteError("[%s] Failed to open printer", "checkPrinterRxBuf");
        return -1;
    }
    const int ret = sendCmd2Printer(fd, bufferRequest, sizeof bufferRequest, answer, answerSize, 2);
    if (fd != 0)
        closeLine(fd);
    if (ret != 1)
        return -1;
    const int free = bufferSize - (byteOf(answer[1]) * 256 + byteOf(answer[0]));
    m_logger.WriteDebug("[%s] rxBuf [%d] \n", "checkPrinterRxBuf", free);
    return free;
}

int ImagePrint::clearPrintBuffer()
{
    const int fd = initPrinter(nullptr);
    if (fd < 0) {
        m_logger.WriteError("[%s] Failed to open printer", "clearPrintBuffer");
        return fd;
    }
    for (const unsigned char byte : resetAndClear)
        uart_write_byte(fd, byte);
    if (fd != 0)
        closeLine(fd);
    return 0;
}
