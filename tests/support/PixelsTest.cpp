#include "support/Pixels.h"

#include "support/EventLoop.h"

#include <QPainter>
#include <QWidget>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace PANFx::Testing;

namespace {

// 20 by 10 and blue but for a red rectangle, and a hole that it leaves alone
class Picture : public QWidget
{
public:
    Picture() { setGeometry(0, 0, 20, 10); }

    QRect red{3, 2, 4, 5};
    QRect hole{15, 0, 5, 10};

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setClipRegion(QRegion(rect()) - hole);
        painter.fillRect(rect(), Qt::blue);
        painter.fillRect(red, Qt::red);
    }
};

} // namespace

TEST(Pixels, grabShowsThePaintOverAKnownBackground)
{
    Picture widget;
    const QImage image = Pixels::grab(&widget);
    EXPECT_EQ(image.size(), QSize(20, 10));
    EXPECT_EQ(Pixels::at(image, 3, 2), QColor(Qt::red));
    EXPECT_EQ(Pixels::at(image, 0, 0), QColor(Qt::blue));
    EXPECT_EQ(Pixels::at(image, 15, 0), Pixels::untouched);
    EXPECT_EQ(Pixels::at(Pixels::grab(&widget, Qt::white), 15, 0), QColor(Qt::white));
}

TEST(Pixels, grabBringsTheChildrenAlong)
{
    QWidget page;
    page.setGeometry(0, 0, 40, 40);
    Picture picture;
    picture.setParent(&page);
    picture.move(10, 10);
    picture.show();
    const QImage image = Pixels::grab(&page);
    EXPECT_EQ(Pixels::at(image, 13, 12), QColor(Qt::red));
    EXPECT_EQ(Pixels::at(image, 0, 0), Pixels::untouched);
    picture.setParent(nullptr);
}

TEST(Pixels, countAndBoxTellWhereInkIs)
{
    Picture widget;
    const QImage image = Pixels::grab(&widget);
    EXPECT_EQ(Pixels::count(image, Qt::red), 20);
    EXPECT_EQ(Pixels::count(image, Qt::red, QRect(0, 0, 4, 100)), 5);
    EXPECT_EQ(Pixels::count(image, Pixels::untouched), 50);
    EXPECT_EQ(Pixels::inkInside(image, widget.red, Qt::blue), 20);
    EXPECT_EQ(Pixels::inkOutside(image, widget.red, Qt::blue), 50);
    EXPECT_EQ(Pixels::inkBox(image), QRect(0, 0, 15, 10));
    EXPECT_EQ(Pixels::inkBox(Pixels::canvas(QSize(5, 5))), QRect());
}

TEST(Pixels, sameFindsASinglePixel)
{
    QImage one = Pixels::canvas(QSize(9, 9), Qt::white);
    QImage other = one;
    EXPECT_TRUE(Pixels::same(one, other));
    other.setPixelColor(7, 8, QColor(255, 255, 254));
    const ::testing::AssertionResult result = Pixels::same(one, other);
    EXPECT_FALSE(result);
    EXPECT_STREQ(result.message(),
                 "1 pixels differ, the first at 7,8: #ffffffff, expected #fffffffe");
    EXPECT_FALSE(Pixels::same(one, Pixels::canvas(QSize(9, 8), Qt::white)));
}

TEST(Pixels, aPixelOutsideOfTheImageIsAFault)
{
    EXPECT_NONFATAL_FAILURE(Pixels::at(Pixels::canvas(QSize(2, 2)), 2, 0), "no pixel at 2,0");
}

TEST(PaintCounter, countsPaintsAndTheirArea)
{
    Picture widget;
    widget.show();
    PaintCounter paints(&widget);
    EXPECT_EQ(paints.count(), 0);
    widget.update();
    EXPECT_EQ(paints.count(), 0);
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 1);
    EXPECT_EQ(paints.area(), 200);
    widget.update(1, 1, 2, 3);
    paints.reset();
    EXPECT_EQ(paints.count(), 0);
    EXPECT_TRUE(paints.region().isEmpty());
    widget.update(1, 1, 2, 3);
    EventLoop::deliver();
    EXPECT_EQ(paints.region(), QRegion(1, 1, 2, 3));
    EXPECT_EQ(paints.area(), 6);
}

TEST(PaintCounter, seesASynchronousRepaint)
{
    Picture widget;
    widget.show();
    PaintCounter paints(&widget);
    widget.repaint();
    widget.repaint();
    EXPECT_EQ(paints.count(), 2);
}
