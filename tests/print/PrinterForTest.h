#pragma once

#include "print/ImagePrint.h"
#include "print/PrintDots.h"

#include <QImage>

#include <string>

namespace PANFx::Testing {

/** The printer class with its fields shown. */
class PrinterForTest : public ImagePrint
{
public:
    using ImagePrint::m_bCancel;
    using ImagePrint::m_logger;
    using ImagePrint::m_nFontSize;
    using ImagePrint::m_nHeight;
    using ImagePrint::m_nOffsetX;
    using ImagePrint::m_nOffsetY;
    using ImagePrint::m_nPrintMode;
    using ImagePrint::m_nWidth;
    using ImagePrint::m_strCodecName;
    using ImagePrint::m_strFontName;
    using ImagePrint::m_strText;
};

/** A string that may hold zeros, from a literal. */
template <size_t size>
std::string bytes(const char (&literal)[size])
{
    return std::string(literal, size - 1);
}

inline const std::string jobStart = bytes("\x1B\x40\x1B\x33\x18");
inline const std::string jobEnd = bytes("\x0A\x0A\x0A\x0A\x0D");
inline const std::string bandHead = bytes("\x1B\x2A\x21\x80\x01");
inline const std::string statusRequest = bytes("\x10\x04\x04");
inline const std::string bufferRequest = bytes("\x10\x04\x07");
inline const std::string resetAndClear = bytes("\x1B\x40\x10\x05\x02");

/** A band as it goes out, head and line feed included. */
inline std::string bandBytes(const std::string& columns)
{
    return bandHead + columns + '\x0A';
}

inline const std::string whiteBand = bandBytes(std::string(1152, '\0'));

/** An image for the paper, white. */
inline QImage whiteImage(int rows, int columns = 384)
{
    QImage image(columns, rows, QImage::Format_RGB32);
    image.fill(0xFFFFFFFF);
    return image;
}

} // namespace PANFx::Testing
