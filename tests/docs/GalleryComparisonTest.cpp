#include "gallery/Comparison.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

using gallery::looksOtherwise;
using gallery::pixelsOff;

namespace {

QImage plain(QSize size, QColor color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

const QSize ten(10, 10);

} // namespace

TEST(GalleryComparisonTest, FindsNothingBetweenTheSamePictures)
{
    EXPECT_EQ(pixelsOff(plain(ten, Qt::gray), plain(ten, Qt::gray)), 0);
    EXPECT_EQ(pixelsOff(QImage(), QImage()), 0);
}

TEST(GalleryComparisonTest, CountsPixelsOfWhichAChannelIsOffByMoreThan24)
{
    const QImage one = plain(ten, QColor(100, 100, 100));
    for (const QColor& slight : {QColor(124, 100, 76), QColor(76, 124, 100)}) {
        QImage other = one;
        other.setPixelColor(3, 4, slight);
        EXPECT_EQ(pixelsOff(one, other), 0);
    }
    for (const QColor& seen :
         {QColor(125, 100, 100), QColor(100, 75, 100), QColor(100, 100, 125)}) {
        QImage other = one;
        other.setPixelColor(3, 4, seen);
        EXPECT_EQ(pixelsOff(one, other), 1);
        EXPECT_EQ(pixelsOff(other, one), 1);
    }
}

TEST(GalleryComparisonTest, TakesPicturesOfOtherSizesForWhollyOff)
{
    EXPECT_EQ(pixelsOff(plain(ten, Qt::gray), plain(QSize(10, 11), Qt::gray)), 110);
    EXPECT_EQ(pixelsOff(plain(ten, Qt::gray), QImage()), 100);
}

TEST(GalleryComparisonTest, BearsAFewPixelsAtEdgesOnly)
{
    const QImage one = plain(ten, Qt::white);
    QImage other = one;
    for (int x = 0; x < 8; ++x)
        other.setPixelColor(x, 0, Qt::black);
    EXPECT_FALSE(looksOtherwise(one, other));
    other.setPixelColor(8, 0, Qt::black);
    EXPECT_TRUE(looksOtherwise(one, other));
}

TEST(GalleryComparisonTest, DrawsTheSampleOfTheFontsAlikeEachTime)
{
    const QImage sample = gallery::fontSample();
    EXPECT_EQ(sample, gallery::fontSample());
    EXPECT_GT(pixelsOff(sample, plain(sample.size(), Qt::white)), 1000);
}
