#include "print/PrintDots.h"

#include "print/PrinterForTest.h"

#include <gtest/gtest.h>

using namespace PANFx::Print;
using PANFx::Testing::whiteImage;

namespace {

// whether a pixel of that colour becomes a dot
bool isDot(int red, int green, int blue)
{
    QImage image = whiteImage(1);
    image.setPixel(5, 0, qRgb(red, green, blue));
    const QImage dots = dotsOf(image);
    EXPECT_EQ(dots.pixelIndex(4, 0), 0);
    return dots.pixelIndex(5, 0) == 1;
}

std::string packed(const QImage& image, int band)
{
    std::string bytes(bandBytes, '\x55');
    EXPECT_EQ(packBand(dotsOf(image), band, reinterpret_cast<unsigned char*>(bytes.data())), 1152);
    return bytes;
}

} // namespace

TEST(PrintDots, ShowsDotsInWhiteOnBlack)
{
    const QImage dots = dotsOf(whiteImage(5));
    EXPECT_EQ(dots.size(), QSize(384, 5));
    EXPECT_EQ(dots.format(), QImage::Format_Mono);
    EXPECT_EQ(dots.color(0), 0xFF000000);
    EXPECT_EQ(dots.color(1), 0xFFFFFFFF);
}

TEST(PrintDots, PrintsAGrayOf180AndNotOf181)
{
    EXPECT_TRUE(isDot(180, 180, 180));
    EXPECT_FALSE(isDot(181, 181, 181));
    EXPECT_TRUE(isDot(0, 0, 0));
    EXPECT_FALSE(isDot(255, 255, 255));
}

TEST(PrintDots, WeighsTheColoursAndCutsTheGray)
{
    // 11 red + 16 green + 5 blue, of which 5791 is the last sum below 181
    EXPECT_TRUE(isDot(255, 186, 2));   // 5791
    EXPECT_FALSE(isDot(255, 186, 3));  // 5796
    EXPECT_TRUE(isDot(255, 186, 0));   // 5781
    EXPECT_FALSE(isDot(255, 187, 0));  // 5797
    EXPECT_TRUE(isDot(254, 187, 0));   // 5786
    EXPECT_TRUE(isDot(0, 255, 255));   // 5355
    EXPECT_FALSE(isDot(92, 255, 140)); // 5792
}

TEST(PrintDots, WritesEveryPixel)
{
    QImage image = whiteImage(24);
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 384; ++x)
            image.setPixel(x, y, (x * 7 + y * 3) % 5 ? 0xFFFFFFFF : 0xFF000000);
    }
    const QImage dots = dotsOf(image);
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 384; ++x)
            ASSERT_EQ(dots.pixelIndex(x, y), (x * 7 + y * 3) % 5 ? 0 : 1) << x << "," << y;
    }
}

TEST(PrintDots, TakesImagesOfAnyFormat)
{
    QImage image = whiteImage(1);
    image.setPixel(3, 0, 0xFF404040);
    for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                              QImage::Format_RGB888, QImage::Format_Grayscale8}) {
        const QImage dots = dotsOf(image.convertToFormat(format));
        EXPECT_EQ(dots.pixelIndex(3, 0), 1) << format;
        EXPECT_EQ(dots.pixelIndex(2, 0), 0) << format;
    }
}

TEST(PrintDots, NeedsAnImageAsWideAsThePaper)
{
    EXPECT_TRUE(dotsOf(whiteImage(10, 383)).isNull());
    EXPECT_TRUE(dotsOf(QImage()).isNull());
    EXPECT_EQ(dotsOf(whiteImage(10, 500)).size(), QSize(384, 10));
}

TEST(PrintDots, PacksTheUpperDotInTheHighestBit)
{
    for (int row = 0; row < 24; ++row) {
        QImage image = whiteImage(24);
        image.setPixel(2, row, 0xFF000000);
        std::string expected(1152, '\0');
        expected[6 + static_cast<size_t>(row) / 8] = static_cast<char>(0x80 >> row % 8);
        EXPECT_EQ(packed(image, 0), expected) << row;
    }
}

TEST(PrintDots, PacksColumnByColumn)
{
    for (const int column : {0, 7, 8, 191, 383}) {
        QImage image = whiteImage(24);
        for (int row = 0; row < 24; ++row)
            image.setPixel(column, row, 0xFF000000);
        std::string expected(1152, '\0');
        expected.replace(static_cast<size_t>(column) * 3, 3, 3, '\xFF');
        EXPECT_EQ(packed(image, 0), expected) << column;
    }
}

TEST(PrintDots, PacksTheBandAskedFor)
{
    QImage image = whiteImage(72);
    image.setPixel(0, 23, 0xFF000000);
    image.setPixel(1, 24, 0xFF000000);
    image.setPixel(2, 71, 0xFF000000);
    std::string expected(1152, '\0');
    expected[3] = '\x80';
    EXPECT_EQ(packed(image, 1), expected);
    expected[3] = '\0';
    expected[8] = '\x01';
    EXPECT_EQ(packed(image, 2), expected);
}
