#include "components/pictures/ZELChartImageBox.h"

#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QPainter>

#include <climits>
#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELChartImageBox;
using PANFx::Components::ZELImageBox;

namespace {

const QColor lineColour(79, 122, 200);

class ZELChartImageBoxTest : public PanelTest
{
protected:
    void SetUp() override
    {
        writePicture("grey.png", 10, 10, QColor(200, 200, 200));
        m_chart = build("<chart file='grey.png' width='100' height='80'/>");
        ASSERT_NE(m_chart, nullptr);
    }

    ZELChartImageBox* build(const std::string& xml)
    {
        return buildComponent<ZELChartImageBox>("chartimagebox", xml);
    }

    // a zigzag over the whole width that none of its segments shares with another
    void setZigzag()
    {
        for (int i = 0; i < ZELChartImageBox::pointLimit; ++i) {
            m_chart->m_nPointX[i] = 2 + 5 * i;
            m_chart->m_nPointY[i] = i % 2 == 0 ? 10 : 70;
        }
    }

    // the chart's line between its first so many points, over its picture or over nothing
    QImage expected(int points, bool picture = true) const
    {
        QImage image = Pixels::canvas(m_chart->size());
        if (picture)
            image.fill(QColor(200, 200, 200));
        QPainter painter(&image);
        painter.setPen(QPen(lineColour, 2, Qt::SolidLine));
        for (int i = 0; i + 1 < points; ++i)
            painter.drawLine(m_chart->m_nPointX[i], m_chart->m_nPointY[i],
                             m_chart->m_nPointX[i + 1], m_chart->m_nPointY[i + 1]);
        return image;
    }

    QImage withPoints(int points)
    {
        m_chart->setTotalPoint(points);
        return Pixels::grab(m_chart);
    }

    ZELChartImageBox* m_chart = nullptr;
};

} // namespace

TEST_F(ZELChartImageBoxTest, startsWithTwentyPointsAtNothing)
{
    EXPECT_EQ(m_chart->getToalPoint(), 20);
    EXPECT_EQ(m_chart->m_nTotalPoint, 20);
    EXPECT_EQ(std::size(m_chart->m_nPointX), 20u);
    EXPECT_EQ(std::size(m_chart->m_nPointY), 20u);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(m_chart->m_nPointX[i], 0);
        EXPECT_EQ(m_chart->m_nPointY[i], 0);
    }
}

TEST_F(ZELChartImageBoxTest, isAnImageBoxWithItsLayout)
{
    EXPECT_EQ(m_chart->m_strType, "ZELChartImageBox");
    EXPECT_NE(dynamic_cast<ZELImageBox*>(m_chart), nullptr);
    EXPECT_EQ(m_chart->getQWidget(), m_chart);
    EXPECT_EQ(build("<c file='grey.png' x='1' y='2' width='3' height='4'/>")->geometry(),
              QRect(1, 2, 3, 4));
    EXPECT_EQ(build("<c file='grey.png'/>")->geometry(), QRect(0, 0, 0, 0));
}

TEST_F(ZELChartImageBoxTest, keepsAnyNumberOfPoints)
{
    for (const int points : {5, 0, -3, 21, INT_MAX, INT_MIN}) {
        m_chart->setTotalPoint(points);
        EXPECT_EQ(m_chart->getToalPoint(), points);
    }
}

// ---- painting

TEST_F(ZELChartImageBoxTest, drawsItsLineOverThePicture)
{
    setZigzag();
    EXPECT_TRUE(Pixels::same(Pixels::grab(m_chart), expected(20)));
}

TEST_F(ZELChartImageBoxTest, theLineIsTwoPixelsWideAndOfOneColour)
{
    for (int i = 0; i < 20; ++i) {
        m_chart->m_nPointX[i] = i < 10 ? 20 : 80;
        m_chart->m_nPointY[i] = 40;
    }
    const QImage image = Pixels::grab(m_chart);
    for (int x = 25; x < 75; ++x)
        EXPECT_EQ(Pixels::count(image, lineColour, QRect(x, 0, 1, 80)), 2) << x;
    EXPECT_EQ(Pixels::at(image, 50, 40), lineColour);
    EXPECT_EQ(Pixels::count(image, lineColour) + Pixels::count(image, QColor(200, 200, 200)),
              100 * 80); // no smoothing in between
}

TEST_F(ZELChartImageBoxTest, fivePointsAreFourSegments)
{
    setZigzag();
    const QImage image = withPoints(5);
    EXPECT_TRUE(Pixels::same(image, expected(5)));
    EXPECT_FALSE(Pixels::same(image, expected(4)));
    EXPECT_FALSE(Pixels::same(image, expected(6)));
    // on half height each segment is crossed once
    int crossings = 0;
    for (int x = 1; x < image.width(); ++x) {
        if (Pixels::at(image, x, 40) == lineColour && Pixels::at(image, x - 1, 40) != lineColour)
            ++crossings;
    }
    EXPECT_EQ(crossings, 4);
}

TEST_F(ZELChartImageBoxTest, eachNumberOfPointsHasOneSegmentLess)
{
    setZigzag();
    for (int points = 2; points <= 20; ++points)
        EXPECT_TRUE(Pixels::same(withPoints(points), expected(points))) << points;
}

TEST_F(ZELChartImageBoxTest, belowTwoPointsThereIsNoLine)
{
    setZigzag();
    for (const int points : {1, 0, -1, INT_MIN})
        EXPECT_EQ(Pixels::count(withPoints(points), QColor(200, 200, 200)), 100 * 80) << points;
}

TEST_F(ZELChartImageBoxTest, unsetPointsAreADotAtTheOrigin)
{
    const QImage image = Pixels::grab(m_chart);
    EXPECT_TRUE(Pixels::same(image, expected(20)));
    const int dot = Pixels::count(image, lineColour);
    EXPECT_GT(dot, 0);
    EXPECT_EQ(Pixels::count(image, lineColour, QRect(0, 0, 2, 2)), dot);
}

TEST_F(ZELChartImageBoxTest, withoutAPictureTheLineIsThereAllTheSame)
{
    setZigzag();
    m_chart->setImage(nullptr);
    EXPECT_TRUE(Pixels::same(Pixels::grab(m_chart), expected(20, false)));
}

TEST_F(ZELChartImageBoxTest, thePictureTurnsAndTheLineDoesNot)
{
    QImage halves(100, 80, QImage::Format_RGB32);
    halves.fill(Qt::white);
    QPainter(&halves).fillRect(0, 0, 100, 40, Qt::yellow);
    writePicture("halves.png", halves);
    m_chart->setImage("halves.png");
    setZigzag();
    m_chart->setRotate(180);
    const QImage turned = Pixels::grab(m_chart);
    EXPECT_EQ(Pixels::at(turned, 0, 5), QColor(Qt::white));
    const QImage line = expected(20, false);
    for (int y = 0; y < line.height(); ++y) {
        for (int x = 0; x < line.width(); ++x)
            EXPECT_EQ(Pixels::at(turned, x, y) == lineColour, Pixels::at(line, x, y) == lineColour)
                << x << "," << y;
    }
}

TEST_F(ZELChartImageBoxTest, pointsOutsideOfTheBoxAreCutAtIt)
{
    setZigzag();
    m_chart->m_nPointX[0] = -1000;
    m_chart->m_nPointY[19] = 5000;
    EXPECT_TRUE(Pixels::same(Pixels::grab(m_chart), expected(20)));
    m_chart->m_nPointX[5] = INT_MAX;
    m_chart->m_nPointY[5] = INT_MIN;
    EXPECT_GT(Pixels::count(Pixels::grab(m_chart), lineColour), 0);
}

TEST_F(ZELChartImageBoxTest, aboveTwentyPointsOnlyTwentyAreDrawnAndOneErrorSaysSo)
{
    setZigzag();
    log().expectError("[paintEvent] chart has 21 points, only 20 are drawn", 1, "ZELChartImageBox");
    EXPECT_TRUE(Pixels::same(withPoints(21), expected(20)));
    EXPECT_TRUE(Pixels::same(withPoints(INT_MAX), expected(20)));
    EXPECT_TRUE(Pixels::same(withPoints(20), expected(20)));
}

// ---- faults of the layout, which is read twice

TEST_F(ZELChartImageBoxTest, aNullElementIsToldTwice)
{
    log().expectError("[setLayout] c pLayout == NULL", 2, "ZELImageBox");
    log().startHere();
    const ZELChartImageBox chart(&panel(), "c", "ZELChartImageBox", nullptr);
    EXPECT_EQ(log().lines().size(), 2u);
    EXPECT_EQ(chart.geometry(), QRect(0, 0, 100, 30));
}

TEST_F(ZELChartImageBoxTest, aMissingFileIsToldTwice)
{
    log().expectError("[setLayout]  no File", 2, "ZELImageBox");
    const ZELChartImageBox chart(&panel(), "c", "ZELChartImageBox", element("<c x='1'/>"));
    EXPECT_EQ(chart.geometry(), QRect(0, 0, 100, 30));
}

TEST_F(ZELChartImageBoxTest, aPictureThatIsNotThereIsToldTwice)
{
    log().expectError("[setImage] m_pBGPixmap == NULL", 2, "ZELImageBox");
    const ZELChartImageBox chart(&panel(), "c", "ZELChartImageBox",
                                 element("<c file='no.png' x='1' y='2' width='3' height='4'/>"));
    EXPECT_EQ(chart.geometry(), QRect(1, 2, 3, 4));
}

TEST_F(ZELChartImageBoxTest, aGoodElementIsReadTwiceWithoutALine)
{
    log().startHere();
    const ZELChartImageBox chart(&panel(), "c", "ZELChartImageBox",
                                 element("<c file='grey.png' x='1' y='2' width='3' height='4'/>"));
    EXPECT_TRUE(log().lines().empty());
    EXPECT_EQ(chart.geometry(), QRect(1, 2, 3, 4));
}

// ---- repainting

TEST_F(ZELChartImageBoxTest, theNumberOfPointsAndThePointsDoNotRepaint)
{
    PaintCounter counter(m_chart);
    m_chart->setTotalPoint(5);
    setZigzag();
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 0);
    m_chart->update();
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 1);
}
