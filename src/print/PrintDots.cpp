#include "print/PrintDots.h"

#include <array>
#include <cstddef>

namespace PANFx::Print {

namespace {

constexpr int darkest = 181; // the first gray that leaves the paper white
constexpr int bits = 8;

// A loop without branches over whole rows, for the compiler to do many pixels at a time.
void markDots(const QRgb* pixels, uchar* dots)
{
    for (int x = 0; x < paperWidth; ++x) {
        const int gray =
            (11 * qRed(pixels[x]) + 16 * qGreen(pixels[x]) + 5 * qBlue(pixels[x])) >> 5;
        dots[x] = gray < darkest ? 1 : 0;
    }
}

// eight dots in one byte, the left one in the highest bit
void packRow(const uchar* dots, uchar* row)
{
    for (int x = 0; x < paperWidth; x += bits) {
        unsigned byte = 0;
        for (int bit = 0; bit < bits; ++bit)
            byte = byte << 1 | dots[x + bit];
        row[x / bits] = static_cast<uchar>(byte);
    }
}

// Eight rows of eight dots, the upper row in the highest byte, become eight columns: the bits
// change places across the diagonal, in pairs, then in blocks of two by two and of four by four.
quint64 columnsOf(quint64 rows)
{
    const auto swap = [&rows](int distance, quint64 mask) {
        const quint64 change = (rows ^ (rows >> distance)) & mask;
        rows ^= change ^ (change << distance);
    };
    swap(7, 0x00AA00AA00AA00AAU);
    swap(14, 0x0000CCCC0000CCCCU);
    swap(28, 0x00000000F0F0F0F0U);
    return rows;
}

} // namespace

QImage dotsOf(const QImage& image)
{
    if (image.width() < paperWidth)
        return QImage();
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    QImage dots(paperWidth, image.height(), QImage::Format_Mono);
    if (source.isNull() || dots.isNull())
        return QImage();
    dots.setColor(0, 0xFF000000);
    dots.setColor(1, 0xFFFFFFFF);
    std::array<uchar, paperWidth> row;
    for (int y = 0; y < dots.height(); ++y) {
        markDots(reinterpret_cast<const QRgb*>(source.constScanLine(y)), row.data());
        packRow(row.data(), dots.scanLine(y));
    }
    return dots;
}

int packBand(const QImage& dots, int band, unsigned char* bytes)
{
    constexpr int bytesOfColumn = bandRows / bits;
    for (int part = 0; part < bytesOfColumn; ++part) {
        const int top = band * bandRows + part * bits;
        std::array<const uchar*, bits> lines;
        for (int row = 0; row < bits; ++row)
            lines[static_cast<std::size_t>(row)] = dots.constScanLine(top + row);
        for (int x = 0; x < paperWidth; x += bits) {
            quint64 rows = 0;
            for (const uchar* line : lines)
                rows = rows << bits | line[x / bits];
            quint64 columns = columnsOf(rows);
            for (int column = x + bits - 1; column >= x; --column, columns >>= bits)
                bytes[column * bytesOfColumn + part] = static_cast<unsigned char>(columns & 0xFF);
        }
    }
    return bandBytes;
}

} // namespace PANFx::Print
