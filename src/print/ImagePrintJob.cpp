#include "common/systemPath.h"
#include "print/ImagePrint.h"
#include "print/PrintDots.h"
#include "print/ReportImage.h"
#include "print/SerialLine.h"

#include <QFile>
#include <QImage>
#include <QStringList>

#include <array>
#include <cstddef>

// What a print job sends; the way to the printer is in ImagePrint.cpp.

namespace {

using PANFx::Print::bandRows;
using PANFx::Print::closeLine;
using PANFx::Print::paperWidth;

constexpr unsigned char jobStart[] = {0x1B, 0x40, 0x1B, 0x33, bandRows};
constexpr unsigned char jobEnd[] = {0x0A, 0x0A, 0x0A, 0x0A, 0x0D};
constexpr unsigned char bandHead[] = {0x1B, 0x2A, 0x21, paperWidth % 256, paperWidth / 256};
constexpr unsigned char bandEnd = 0x0A;

// What does not go out is not sent again.
template <std::size_t size>
void send(ImagePrint& printer, int fd, const unsigned char (&bytes)[size])
{
    for (const unsigned char byte : bytes)
        printer.uart_write_byte(fd, byte);
}

void pauseBehindByte(int number)
{
    PANFx::Print::pauseMicroseconds(number % 2048 == 2047 ? 500000 : 1);
}

void saveCopy(const QImage& dots)
{
    const std::string path = PANFx::Common::systemPath("/tmp/print.jpg");
    dots.save(QFile::decodeName(path.c_str()), "JPEG", 80);
}

} // namespace

int ImagePrint::printImageString(const char* text)
{
    m_bCancel = false;
    m_strText = QString::fromLatin1(text);
    const QStringList lines = m_strText.split(QLatin1Char('\n'));
    const int count = static_cast<int>(lines.size());
    m_logger.WriteDebug("[%s] string line count = %d", "printImageString", count);
    QImage image = PANFx::Print::drawReport(lines, m_nWidth, m_nPrintMode);
    if (image.isNull()) {
        m_logger.WriteError("[%s] no image for %d lines", "printImageString", count);
        return -1;
    }
    return Printer_BitImage(image, count);
}

int ImagePrint::Printer_BitImage(QImage& image, int lines)
{
    m_logger.WriteDebug("[%s] start %d", "Printer_BitImage", lines);
    m_logger.WriteDebug("[%s] #1", "Printer_BitImage");
    if (m_bCancel) {
        m_logger.WriteDebug("[%s] stop true", "Printer_BitImage");
        return 0;
    }
    const QImage dots = PANFx::Print::dotsOf(image);
    if (dots.isNull()) {
        m_logger.WriteError("[%s] image of %d columns, %d rows", "Printer_BitImage", image.width(),
                            image.height());
        return -1;
    }
    const int fd = initPrinter(nullptr);
    if (fd < 0) {
        m_logger.WriteError("[%s] Failed to open printer", "Printer_BitImage");
        return fd;
    }
    send(*this, fd, jobStart);
    if (m_bCancel) {
        m_logger.WriteDebug("[%s] stop", "Printer_BitImage");
        closeLine(fd);
        return 0;
    }
    saveCopy(dots);
    return sendBands(fd, dots);
}

// to the end of the job, with its result
int ImagePrint::sendBands(int fd, const QImage& dots)
{
    for (int band = 0; band < dots.height() / bandRows; ++band) {
        if (m_bCancel || checkStatusPrinter(fd) < 0)
            return stopBands(fd);
        if (!sendBand(fd, dots, band)) {
            closeLine(fd);
            clearPrintBuffer();
            m_logger.WriteDebug("[%s] nreturn -1", "Printer_BitImage");
            return -1;
        }
    }
    send(*this, fd, jobEnd);
    if (fd != 0)
        closeLine(fd);
    return 0;
}

// false when the band's last byte could not be written; the others are not looked at
bool ImagePrint::sendBand(int fd, const QImage& dots, int band)
{
    std::array<unsigned char, 65536> bytes;
    const int size = PANFx::Print::packBand(dots, band, bytes.data());
    send(*this, fd, bandHead);
    int written = 0;
    for (int i = 0; i < size; ++i) {
        written = uart_write_byte(fd, bytes[static_cast<std::size_t>(i)]);
        pauseBehindByte(i);
    }
    if (written == -1)
        return false;
    uart_write_byte(fd, bandEnd);
    return true;
}

int ImagePrint::stopBands(int fd)
{
    send(*this, fd, jobEnd);
    closeLine(fd);
    clearPrintBuffer();
    m_logger.WriteDebug("[%s] stop or checkstatus error", "Printer_BitImage");
    return -1;
}
