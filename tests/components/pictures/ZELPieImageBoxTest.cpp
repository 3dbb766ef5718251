#include "components/pictures/ZELPieImageBox.h"

#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QBitmap>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <climits>
#include <cmath>
#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageBox;
using PANFx::Components::ZELPieImageBox;

namespace {

constexpr int side = 60;
constexpr int whole = side * side;

// what an application's own box can see
class OpenPie : public ZELPieImageBox
{
public:
    using ZELPieImageBox::ZELPieImageBox;

    using ZELPieImageBox::m_nAngle;
};

class ZELPieImageBoxTest : public PanelTest
{
protected:
    void SetUp() override
    {
        writePicture("red.png", side, side, Qt::red);
        m_pie = build("<pie file='red.png' width='60' height='60'/>");
        ASSERT_NE(m_pie, nullptr);
        EventLoop::deliver(); // the first paint of all
    }

    ZELPieImageBox* build(const std::string& xml)
    {
        return buildComponent<ZELPieImageBox>("pieimagebox", xml);
    }

    // the screen at the place of the pie, after all repaints; a mask counts from the next one on
    QImage screen(int degrees)
    {
        m_pie->SetAngle(degrees);
        EventLoop::deliver();
        return Pixels::grab(&panel()).copy(m_pie->geometry());
    }

    // how far a point lies round from the top, counter-clockwise, in degrees from 0 to 360
    static double turnOf(double x, double y)
    {
        const double turn = std::atan2(-x, -y) * 180.0 / M_PI;
        return turn < 0 ? turn + 360.0 : turn;
    }

    // Every pixel that lies clear of the sector's edges is open inside the sector and red
    // elsewhere. A negative sector runs clockwise.
    static void expectSector(const QImage& image, int degrees)
    {
        SCOPED_TRACE(degrees);
        constexpr double radius = side / 2.0;
        constexpr double clear = 2.5; // pixels
        int open = 0;
        for (int row = 0; row < side; ++row) {
            for (int column = 0; column < side; ++column) {
                const double x = column + 0.5 - radius;
                const double y = row + 0.5 - radius;
                const double distance = std::hypot(x, y);
                double turn = turnOf(x, y);
                if (degrees < 0)
                    turn = 360.0 - turn;
                const double sector = std::min(std::abs(degrees), 360);
                const double toEdge = std::min({turn, std::abs(turn - sector), 360.0 - turn});
                if (std::abs(distance - radius) < clear || distance < 2 * clear ||
                    toEdge * M_PI / 180.0 * distance < clear)
                    continue;
                const bool hidden = distance < radius && turn < sector;
                EXPECT_EQ(Pixels::at(image, column, row),
                          hidden ? Pixels::untouched : QColor(Qt::red))
                    << column << "," << row;
                open += hidden ? 1 : 0;
            }
        }
        if (std::abs(degrees) >= 45) {
            EXPECT_GT(open, 4 * std::min(std::abs(degrees), 360)) << "hardly a pixel judged";
        }
    }

    ZELPieImageBox* m_pie = nullptr;
};

} // namespace

TEST_F(ZELPieImageBoxTest, startsAtNoAngleAndShowsTheWholePicture)
{
    const OpenPie pie(&panel(), "p", "ZELPieImageBox", element("<p file='red.png'/>"));
    EXPECT_EQ(pie.m_nAngle, 0);
    EventLoop::deliver();
    EXPECT_EQ(Pixels::count(Pixels::grab(m_pie), Qt::red), whole);
}

TEST_F(ZELPieImageBoxTest, isAnImageBoxWithItsLayout)
{
    EXPECT_EQ(m_pie->m_strType, "ZELPieImageBox");
    EXPECT_NE(dynamic_cast<ZELImageBox*>(m_pie), nullptr);
    EXPECT_EQ(build("<p file='red.png' x='1' y='2' width='3' height='4'/>")->geometry(),
              QRect(1, 2, 3, 4));
    EXPECT_EQ(build("<p file='red.png'/>")->geometry(), QRect(0, 0, 0, 0));
    EXPECT_EQ(m_pie->getQWidget(), m_pie);
}

TEST_F(ZELPieImageBoxTest, countsTheAngleInSixteenthsOfADegree)
{
    OpenPie pie(&panel(), "p", "ZELPieImageBox", element("<p file='red.png'/>"));
    for (const int degrees : {0, 1, 90, 360, 400, -90, 100000}) {
        pie.SetAngle(degrees);
        EXPECT_EQ(pie.m_nAngle, degrees * 16);
    }
}

// ---- the mask

TEST_F(ZELPieImageBoxTest, hidesASectorFromTheTopToTheLeft)
{
    for (const int degrees : {0, 1, 45, 90, 180, 251, 270, 359})
        expectSector(screen(degrees), degrees);
}

TEST_F(ZELPieImageBoxTest, aNegativeAngleHidesTheOtherWay)
{
    for (const int degrees : {-1, -90, -180, -270, -360, -400})
        expectSector(screen(degrees), degrees);
}

TEST_F(ZELPieImageBoxTest, halfATurnShowsTheRightHalf)
{
    const QImage image = screen(180);
    EXPECT_EQ(Pixels::count(image, Qt::red, QRect(32, 0, 28, side)), 28 * side);
    EXPECT_EQ(Pixels::at(image, 10, 30), Pixels::untouched);
}

TEST_F(ZELPieImageBoxTest, hidesSoManyPixels)
{
    EXPECT_EQ(Pixels::count(screen(0), Qt::red), 3600);
    EXPECT_EQ(Pixels::count(screen(90), Qt::red), 2929);
    EXPECT_EQ(Pixels::count(screen(180), Qt::red), 2248);
    EXPECT_EQ(Pixels::count(screen(270), Qt::red), 1589);
    EXPECT_EQ(Pixels::count(screen(360), Qt::red), 0);
    EXPECT_EQ(Pixels::count(screen(0), Qt::red), 3600);
}

TEST_F(ZELPieImageBoxTest, fromAFullTurnOnNothingIsDrawnAtAll)
{
    for (const int degrees : {360, 361, 400, 720, INT_MAX}) {
        const QImage image = screen(degrees);
        EXPECT_EQ(Pixels::inkInside(image, image.rect()), 0) << degrees;
    }
    EXPECT_GT(Pixels::count(screen(359), Qt::red), 0);
}

TEST_F(ZELPieImageBoxTest, theSmallestAngleOfAllKeepsItsDirection)
{
    expectSector(screen(INT_MIN), -360);
}

TEST_F(ZELPieImageBoxTest, theMaskIsThePieOfABitmapsPainter)
{
    for (const int degrees : {0, 30, 90, 180, 270, 360, 400, -90}) {
        QBitmap expected(side, side);
        expected.fill(Qt::color1);
        {
            QPainter painter(&expected);
            painter.setPen(Qt::color1);
            painter.setBrush(Qt::color0);
            painter.drawPie(QRect(0, 0, side, side), 90 * 16, degrees * 16);
        }
        screen(degrees);
        EXPECT_EQ(m_pie->mask(), QRegion(expected)) << degrees;
    }
}

TEST_F(ZELPieImageBoxTest, theMaskIsMadeAnewAtEachPaint)
{
    screen(90);
    m_pie->clearMask();
    EventLoop::deliver();
    m_pie->update();
    EventLoop::deliver();
    EXPECT_FALSE(m_pie->mask().contains(QPoint(20, 20)));
    m_pie->resize(100, 100);
    EventLoop::deliver();
    EXPECT_EQ(m_pie->mask().boundingRect(), QRect(0, 0, 100, 100));
    EXPECT_FALSE(m_pie->mask().contains(QPoint(30, 30)));
}

TEST_F(ZELPieImageBoxTest, aMaskIsStretchedToABoxThatIsNoSquare)
{
    m_pie->setGeometry(0, 0, 200, 60);
    screen(90);
    EXPECT_FALSE(m_pie->mask().contains(QPoint(50, 20)));
    EXPECT_TRUE(m_pie->mask().contains(QPoint(150, 20)));
    EXPECT_TRUE(m_pie->mask().contains(QPoint(50, 40)));
}

TEST_F(ZELPieImageBoxTest, theMaskOfAnAbsurdlyLargeBoxCoversThePictureAndNoMoreThanItNeeds)
{
    for (const char* place : {"width='2147483647' height='2147483647'",
                              "width='20' height='2147483647'", "width='2147483647' height='20'"}) {
        SCOPED_TRACE(place);
        ZELPieImageBox* const pie = build(std::string("<p file='red.png' ") + place + "/>");
        pie->SetAngle(90);
        EventLoop::deliver();
        const QSize mask = pie->mask().boundingRect().size();
        EXPECT_GE(mask.width(), std::min(pie->width(), side));
        EXPECT_GE(mask.height(), std::min(pie->height(), side));
        EXPECT_LE(mask.width(), 4096);
        EXPECT_LE(mask.height(), 4096);
        delete pie;
    }
}

TEST_F(ZELPieImageBoxTest, aPictureLargerThanAnyScreenIsMaskedAsAWhole)
{
    writePicture("long.png", 5000, 8, Qt::red);
    ZELPieImageBox* const pie = build("<p file='long.png' x='-4500' width='5000' height='8'/>");
    pie->SetAngle(0);
    EventLoop::deliver();
    EXPECT_EQ(pie->mask().boundingRect(), QRect(0, 0, 5000, 8));
    EXPECT_EQ(Pixels::at(Pixels::grab(&panel()), 400, 4), QColor(Qt::red));
}

// ---- the picture

TEST_F(ZELPieImageBoxTest, thePictureIsNotScaled)
{
    m_pie->setGeometry(0, 0, 100, 80);
    EventLoop::deliver();
    QImage expected = Pixels::canvas(QSize(100, 80));
    QPainter(&expected).fillRect(0, 0, side, side, Qt::red);
    EXPECT_TRUE(Pixels::same(Pixels::grab(m_pie), expected));
    m_pie->setGeometry(0, 0, 30, 20);
    EventLoop::deliver();
    EXPECT_EQ(Pixels::count(Pixels::grab(m_pie), Qt::red), 30 * 20);
}

TEST_F(ZELPieImageBoxTest, theTurnOfAnImageBoxPlaysNoPart)
{
    QImage halves(side, side, QImage::Format_RGB32);
    halves.fill(Qt::blue);
    QPainter(&halves).fillRect(0, 0, side, side / 2, Qt::green);
    writePicture("halves.png", halves);
    m_pie->setImage("halves.png");
    m_pie->setRotate(90);
    EventLoop::deliver();
    EXPECT_TRUE(Pixels::same(Pixels::grab(m_pie), halves));
}

TEST_F(ZELPieImageBoxTest, eachPaintWithoutAPictureIsAnError)
{
    m_pie->setImage(nullptr);
    PaintCounter counter(m_pie);
    log().startHere();
    for (int i = 0; i < 3; ++i) {
        m_pie->update();
        EventLoop::deliver();
    }
    EXPECT_EQ(counter.count(), 3);
    log().expectError("m_pBGPixmap is NULL", 3, "ZELPieImageBox");
    ASSERT_EQ(log().lines().size(), 3u);
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELPieImageBox ");
    EXPECT_EQ(log().lines()[0].priority, LOG_ERR);
    EXPECT_EQ(log().lines()[0].text, "[E] m_pBGPixmap is NULL");
}

TEST_F(ZELPieImageBoxTest, withoutAPictureNeitherMaskNorPixelsChange)
{
    screen(90);
    const QRegion before = m_pie->mask();
    m_pie->setImage(nullptr);
    log().expectError("m_pBGPixmap is NULL", 2);
    const QImage image = screen(180); // painted by the event loop and by the picture of it
    EXPECT_EQ(Pixels::inkInside(image, image.rect()), 0);
    EXPECT_EQ(m_pie->mask(), before);
}

TEST_F(ZELPieImageBoxTest, aPictureThatAChangeOfLanguageTookAwayIsNone)
{
    PANFx::Resource::ZELResourceMgr::getInstance()->changeLocale("kr");
    log().expectError("m_pBGPixmap is NULL", 1, "ZELPieImageBox");
    const QImage image = Pixels::grab(m_pie);
    EXPECT_EQ(Pixels::inkInside(image, image.rect()), 0);
}

TEST_F(ZELPieImageBoxTest, linesAboutTheLayoutAreThoseOfTheImageBox)
{
    log().expectError("[setLayout] p pLayout == NULL", 1, "ZELImageBox");
    const ZELPieImageBox bare(&panel(), "p", "ZELPieImageBox", nullptr);
    log().expectError("[setLayout]  no File", 1, "ZELImageBox");
    const ZELPieImageBox noFile(&panel(), "p", "ZELPieImageBox", element("<p/>"));
    log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
    const ZELPieImageBox missing(&panel(), "p", "ZELPieImageBox", element("<p file='no.png'/>"));
}

// ---- repainting

TEST_F(ZELPieImageBoxTest, settingAnAngleRepaintsAndTheMaskDoesNotGoOnForEver)
{
    PaintCounter counter(m_pie);
    for (const int degrees : {90, 180, 90, 0, 360, 45, 45}) {
        counter.reset();
        m_pie->SetAngle(degrees);
        EXPECT_EQ(counter.count(), 0);
        EventLoop::deliver();
        EXPECT_GE(counter.count(), 1) << degrees;
        EXPECT_LE(counter.count(), 2) << degrees; // a growing mask uncovers pixels once more
    }
}

TEST_F(ZELPieImageBoxTest, theSameAngleRepaintsOnce)
{
    screen(90);
    PaintCounter counter(m_pie);
    m_pie->SetAngle(90);
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 1);
}
