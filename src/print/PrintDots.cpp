#include "print/PrintDots.h"

#include <algorithm>

namespace PANFx::Print {

namespace {

constexpr int darkest = 181; // the first gray that leaves the paper white

bool isDot(QRgb pixel)
{
    const int gray = (11 * qRed(pixel) + 16 * qGreen(pixel) + 5 * qBlue(pixel)) >> 5;
    return gray < darkest;
}

// eight pixels in one byte, the left one in the highest bit
void markRow(const QRgb* pixels, uchar* row)
{
    for (int x = 0; x < paperWidth; x += 8) {
        unsigned byte = 0;
        for (int bit = 0; bit < 8; ++bit)
            byte = byte << 1 | (isDot(pixels[x + bit]) ? 1U : 0U);
        row[x / 8] = static_cast<uchar>(byte);
    }
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
    for (int y = 0; y < dots.height(); ++y)
        markRow(reinterpret_cast<const QRgb*>(source.constScanLine(y)), dots.scanLine(y));
    return dots;
}

int packBand(const QImage& dots, int band, unsigned char* bytes)
{
    std::fill_n(bytes, bandBytes, static_cast<unsigned char>(0));
    for (int row = 0; row < bandRows; ++row) {
        const uchar* const line = dots.constScanLine(band * bandRows + row);
        const unsigned bit = 0x80U >> row % 8;
        for (int x = 0; x < paperWidth; ++x) {
            if (line[x / 8] & 0x80U >> x % 8) {
                unsigned char& byte = bytes[x * bandRows / 8 + row / 8];
                byte = static_cast<unsigned char>(byte | bit);
            }
        }
    }
    return bandBytes;
}

} // namespace PANFx::Print
