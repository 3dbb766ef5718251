#include "components/pictures/ZELImageBox.h"

#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>

#include <syslog.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageBox;

namespace {

// what an application's own box can see
class OpenBox : public ZELImageBox
{
public:
    using ZELImageBox::ZELImageBox;

    using ZELImageBox::m_nRotate;
    using ZELImageBox::m_pBGPixmap;
};

class ZELImageBoxTest : public PanelTest
{
protected:
    void SetUp() override
    {
        writePicture("quarters.png", quarters(40, 40));
        writePicture("small.png", 10, 6, Qt::red);
        writePicture("large.png", 30, 20, Qt::blue);
    }

    // red and green above blue and yellow
    static QImage quarters(int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.fillRect(0, 0, width / 2, height / 2, Qt::red);
        painter.fillRect(width / 2, 0, width, height / 2, Qt::green);
        painter.fillRect(0, height / 2, width / 2, height, Qt::blue);
        painter.fillRect(width / 2, height / 2, width, height, Qt::yellow);
        return image;
    }

    OpenBox* open(const std::string& xml)
    {
        return new OpenBox(&panel(), "b", "ZELImageBox", element(xml));
    }

    ZELImageBox* build(const std::string& xml)
    {
        return buildComponent<ZELImageBox>("imagebox", xml);
    }

    // the picture scaled into a box of that size and turned about its middle, as Qt does it
    QImage expected(const std::string& name, const QSize& size, int degrees = 0,
                    QPainter::RenderHints hints = QPainter::SmoothPixmapTransform)
    {
        const QString path = QString::fromStdString(realPath(resources + "img/" + name));
        QImage image = Pixels::canvas(size);
        QPainter painter(&image);
        painter.setRenderHints(hints);
        if (degrees != 0) {
            painter.translate(size.width() / 2, size.height() / 2);
            painter.rotate(degrees);
            painter.translate(-(size.width() / 2), -(size.height() / 2));
        }
        painter.drawPixmap(QRect(QPoint(0, 0), size), QPixmap(path));
        return image;
    }
};

using Texts = std::vector<std::string>;

} // namespace

// ---- layout

TEST_F(ZELImageBoxTest, startsWithNoPictureAndUnturned)
{
    expectNullLayoutLines("b");
    const OpenBox box(&panel(), "b", "ZELImageBox", nullptr);
    EXPECT_EQ(box.m_pBGPixmap, nullptr);
    EXPECT_EQ(box.m_nRotate, 0);
}

TEST_F(ZELImageBoxTest, takesItsPlaceFromItsOwnElementAndNotFromAChild)
{
    ZELImageBox* const box = build("<b file='small.png' x='1' y='2' width='30' height='40'>"
                                   "<position x='9' y='9' width='9' height='9'/></b>");
    EXPECT_EQ(box->geometry(), QRect(1, 2, 30, 40));
}

TEST_F(ZELImageBoxTest, theLayoutsPlaceReplacesThePicturesSize)
{
    EXPECT_EQ(build("<b file='small.png'/>")->geometry(), QRect(0, 0, 0, 0));
    EXPECT_EQ(build("<b file='small.png' x='3' y='4'/>")->geometry(), QRect(3, 4, 0, 0));
    EXPECT_EQ(build("<b file='small.png' width='9'/>")->geometry(), QRect(0, 0, 9, 0));
}

TEST_F(ZELImageBoxTest, withoutAFileNothingElseIsRead)
{
    log().expectError("[setLayout]  no File", 1, "ZELImageBox");
    ZELImageBox* const box = build("<b x='1' y='2' width='30' height='40' File='small.png'/>");
    EXPECT_EQ(box->geometry(), QRect(0, 0, 100, 30)); // where Qt puts a child
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(box), box->rect()), 0);
}

TEST_F(ZELImageBoxTest, aFileThatIsNotThereLeavesThePlace)
{
    log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
    ZELImageBox* const box = build("<b file='nosuch.png' x='1' y='2' width='30' height='40'/>");
    EXPECT_EQ(box->geometry(), QRect(1, 2, 30, 40));
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(box), box->rect()), 0);
}

TEST_F(ZELImageBoxTest, anEmptyFileIsAFileThatIsNotThere)
{
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
    EXPECT_EQ(build("<b file='' x='1' y='2' width='30' height='40'/>")->geometry(),
              QRect(1, 2, 30, 40));
}

TEST_F(ZELImageBoxTest, aNullElementIsOneErrorAndNothingElse)
{
    log().expectError("[setLayout] b pLayout == NULL", 1, "ZELImageBox");
    log().startHere();
    ZELImageBox box(&panel(), "b", "ZELImageBox", nullptr);
    ASSERT_EQ(log().lines().size(), 1u);
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELImageBox    ");
    EXPECT_EQ(log().lines()[0].priority, LOG_ERR);
    EXPECT_EQ(box.geometry(), QRect(0, 0, 100, 30));
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(&box), box.rect()), 0);
}

TEST_F(ZELImageBoxTest, aBoxMadeWithoutAnElementTakesPictureAndPlaceAfterwards)
{
    expectNullLayoutLines("b");
    ZELImageBox box(&panel(), "b", "ZELImageBox", nullptr);
    EXPECT_TRUE(box.setImage("large.png"));
    EXPECT_EQ(box.geometry(), QRect(0, 0, 30, 20));
    box.setGeometry(5, 6, 7, 8);
    EXPECT_EQ(Pixels::count(Pixels::grab(&box), Qt::blue), 7 * 8);
}

TEST_F(ZELImageBoxTest, aNullElementLaterLeavesPictureAndPlace)
{
    ZELImageBox* const box = build("<b file='large.png' width='30' height='20'/>");
    expectNullLayoutLines("b");
    box->setLayout(nullptr);
    log().expectError("[setLayout]  no File");
    box->setLayout(element("<b x='9'/>"));
    EXPECT_EQ(box->geometry(), QRect(0, 0, 30, 20));
    EXPECT_EQ(Pixels::count(Pixels::grab(box), Qt::blue), 30 * 20);
}

TEST_F(ZELImageBoxTest, onTheScreenALayoutGivesItThePicturesSizeBeforeItsPlace)
{
    class Box : public OpenBox
    {
    public:
        using OpenBox::OpenBox;
        std::vector<QSize> sizes;

    protected:
        void resizeEvent(QResizeEvent* event) override { sizes.push_back(event->size()); }
    };
    Box box(&panel(), "b", "ZELImageBox",
            element("<b file='small.png' x='5' y='6' width='50' height='40'/>"));
    const std::string large = "<b file='large.png' x='1' y='2' width='60' height='45'/>";
    const std::string missing = "<b file='nosuch.png' x='1' y='2' width='70' height='45'/>";
    box.showWindow();
    EventLoop::deliver();
    box.sizes.clear();
    box.setLayout(element(large));
    EXPECT_EQ(box.sizes, (std::vector<QSize>{{30, 20}, {60, 45}}));
    EXPECT_EQ(box.geometry(), QRect(1, 2, 60, 45));

    box.sizes.clear();
    log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
    box.setLayout(element(missing));
    EXPECT_EQ(box.sizes, (std::vector<QSize>{{70, 45}})) << "there is no picture to take it from";
}

// ---- changing the picture

TEST_F(ZELImageBoxTest, aNewPictureByNameGivesTheBoxItsSizeWhereItIs)
{
    ZELImageBox* const box = build("<b file='small.png' x='5' y='6' width='50' height='40'/>");
    log().startHere();
    EXPECT_TRUE(box->setImage("large.png"));
    EXPECT_EQ(box->geometry(), QRect(QPoint(5, 6), QPoint(34, 25)));
    EXPECT_EQ(Pixels::count(Pixels::grab(box), Qt::blue), 30 * 20);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELImageBoxTest, anUnknownNameTakesTheOldPictureAwayAndKeepsTheSize)
{
    OpenBox* const box = open("<b file='small.png' x='5' y='6' width='50' height='40'/>");
    EXPECT_NE(box->m_pBGPixmap, nullptr);
    log().expectError("[setImage] m_pBGPixmap == NULL", 1, "ZELImageBox");
    EXPECT_FALSE(box->setImage("nosuch.png"));
    EXPECT_EQ(box->m_pBGPixmap, nullptr);
    EXPECT_EQ(box->geometry(), QRect(5, 6, 50, 40));
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(box), box->rect()), 0);
}

TEST_F(ZELImageBoxTest, aNewPictureByPointerGivesTheBoxItsSizeWhereItIs)
{
    QPixmap picture(12, 8);
    picture.fill(Qt::magenta);
    OpenBox* const box = open("<b file='small.png' x='5' y='6' width='50' height='40'/>");
    log().startHere();
    box->setImage(&picture);
    EXPECT_EQ(box->m_pBGPixmap, &picture);
    EXPECT_EQ(box->geometry(), QRect(5, 6, 12, 8));
    EXPECT_EQ(Pixels::count(Pixels::grab(box), Qt::magenta), 12 * 8);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELImageBoxTest, aNullPointerTakesThePictureAwayWithADebugLine)
{
    OpenBox* const box = open("<b file='small.png' x='5' y='6' width='50' height='40'/>");
    log().startHere();
    box->setImage(nullptr);
    ASSERT_EQ(log().texts("ZELImageBox"), Texts{"[D] [setImage] Background Image is NULL"});
    EXPECT_EQ(log().lines()[0].priority, LOG_DEBUG);
    EXPECT_EQ(box->m_pBGPixmap, nullptr);
    EXPECT_EQ(box->geometry(), QRect(5, 6, 50, 40));
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(box), box->rect()), 0);
}

TEST_F(ZELImageBoxTest, aPictureBelongsToItsGiver)
{
    QPixmap picture(12, 8);
    picture.fill(Qt::magenta);
    OpenBox* const box = open("<b file='small.png'/>");
    box->setImage(&picture);
    delete box;
    EXPECT_EQ(picture.size(), QSize(12, 8));
}

// ---- painting

TEST_F(ZELImageBoxTest, inItsOwnSizeThePictureIsPaintedAsItIs)
{
    ZELImageBox* const box = build("<b file='quarters.png' width='40' height='40'/>");
    EXPECT_TRUE(Pixels::same(Pixels::grab(box), quarters(40, 40)));
}

TEST_F(ZELImageBoxTest, thePictureIsScaledSmoothlyToTheBox)
{
    for (const QSize& size :
         {QSize(80, 80), QSize(100, 30), QSize(20, 20), QSize(13, 57), QSize(1, 1), QSize(7, 1)}) {
        SCOPED_TRACE(size.width());
        ZELImageBox* const box =
            build("<b file='quarters.png' x='10' y='10' width='" + std::to_string(size.width()) +
                  "' height='" + std::to_string(size.height()) + "'/>");
        EXPECT_TRUE(Pixels::same(Pixels::grab(box), expected("quarters.png", size)));
    }
    EXPECT_FALSE(Pixels::same(expected("quarters.png", QSize(100, 30)),
                              expected("quarters.png", QSize(100, 30), 0, {})));
}

TEST_F(ZELImageBoxTest, theWholePictureFillsTheWholeBox)
{
    ZELImageBox* const box = build("<b file='quarters.png' width='120' height='80'/>");
    const QImage image = Pixels::grab(box);
    EXPECT_EQ(Pixels::at(image, 0, 0), QColor(Qt::red));
    EXPECT_EQ(Pixels::at(image, 119, 0), QColor(Qt::green));
    EXPECT_EQ(Pixels::at(image, 0, 79), QColor(Qt::blue));
    EXPECT_EQ(Pixels::at(image, 119, 79), QColor(Qt::yellow));
    EXPECT_EQ(Pixels::at(image, 55, 36), QColor(Qt::red));
    EXPECT_EQ(Pixels::at(image, 64, 43), QColor(Qt::yellow));
}

TEST_F(ZELImageBoxTest, whatIsTransparentInThePictureStaysOpen)
{
    QImage holed(20, 20, QImage::Format_ARGB32);
    holed.fill(Qt::transparent);
    holed.setPixelColor(5, 5, Qt::red);
    writePicture("holed.png", holed);
    ZELImageBox* const box = build("<b file='holed.png' width='20' height='20'/>");
    const QImage image = Pixels::grab(box);
    EXPECT_EQ(Pixels::inkBox(image), QRect(5, 5, 1, 1));
    EXPECT_EQ(Pixels::at(image, 5, 5), QColor(Qt::red));
}

TEST_F(ZELImageBoxTest, turnsClockwiseAboutTheMiddle)
{
    ZELImageBox* const box = build("<b file='quarters.png' width='40' height='40'/>");
    struct
    {
        int degrees;
        QColor corners[4]; // top left, top right, bottom left, bottom right
    } const turns[] = {
        {90, {Qt::blue, Qt::red, Qt::yellow, Qt::green}},
        {180, {Qt::yellow, Qt::blue, Qt::green, Qt::red}},
        {270, {Qt::green, Qt::yellow, Qt::red, Qt::blue}},
        {-90, {Qt::green, Qt::yellow, Qt::red, Qt::blue}},
        {450, {Qt::blue, Qt::red, Qt::yellow, Qt::green}},
        {360, {Qt::red, Qt::green, Qt::blue, Qt::yellow}},
        {0, {Qt::red, Qt::green, Qt::blue, Qt::yellow}},
    };
    for (const auto& turn : turns) {
        SCOPED_TRACE(turn.degrees);
        box->setRotate(turn.degrees);
        const QImage image = Pixels::grab(box);
        EXPECT_EQ(Pixels::at(image, 10, 10), turn.corners[0]);
        EXPECT_EQ(Pixels::at(image, 30, 10), turn.corners[1]);
        EXPECT_EQ(Pixels::at(image, 10, 30), turn.corners[2]);
        EXPECT_EQ(Pixels::at(image, 30, 30), turn.corners[3]);
    }
}

TEST_F(ZELImageBoxTest, aTurnedPictureIsScaledFirstAndCutAtTheBox)
{
    for (const QSize& size : {QSize(40, 40), QSize(41, 41), QSize(60, 31), QSize(9, 50)}) {
        ZELImageBox* const box =
            build("<b file='quarters.png' x='10' y='10' width='" + std::to_string(size.width()) +
                  "' height='" + std::to_string(size.height()) + "'/>");
        for (const int degrees : {0, 1, 30, 45, 90, 135, 180, 270, -45, 405}) {
            SCOPED_TRACE(std::to_string(size.width()) + " at " + std::to_string(degrees));
            box->setRotate(degrees);
            EXPECT_TRUE(Pixels::same(Pixels::grab(box), expected("quarters.png", size, degrees)));
        }
    }
}

TEST_F(ZELImageBoxTest, aTurnBackToNothingPaintsAsBefore)
{
    ZELImageBox* const box = build("<b file='quarters.png' width='41' height='33'/>");
    const QImage before = Pixels::grab(box);
    box->setRotate(90);
    EXPECT_FALSE(Pixels::same(Pixels::grab(box), before));
    box->setRotate(0);
    EXPECT_TRUE(Pixels::same(Pixels::grab(box), before));
}

TEST_F(ZELImageBoxTest, theTurnStaysWithTheNextPicture)
{
    ZELImageBox* const box = build("<b file='small.png' width='40' height='40'/>");
    box->setRotate(90);
    box->setImage("quarters.png");
    EXPECT_TRUE(Pixels::same(Pixels::grab(box), expected("quarters.png", QSize(40, 40), 90)));
}

TEST_F(ZELImageBoxTest, aTurnWithoutAPicturePaintsNothing)
{
    log().expectError("[setLayout]  no File");
    ZELImageBox* const box = build("<b/>");
    box->setRotate(90);
    EXPECT_EQ(Pixels::inkInside(Pixels::grab(box), box->rect()), 0);
}

// ---- repainting

TEST_F(ZELImageBoxTest, turningRepaints)
{
    ZELImageBox* const box = build("<b file='quarters.png' width='40' height='40'/>");
    PaintCounter counter(box);
    box->setRotate(90);
    EXPECT_EQ(counter.count(), 0); // not at once
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 1);
    box->setRotate(90);
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 2);
}

TEST_F(ZELImageBoxTest, aPictureOfTheSameSizeWaitsForTheNextPaint)
{
    writePicture("other.png", 30, 20, Qt::green);
    ZELImageBox* const box = build("<b file='large.png' width='30' height='20'/>");
    PaintCounter counter(box);
    box->setImage("other.png");
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 0);
    box->setImage(nullptr);
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 0);
    box->update();
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 1);
}

TEST_F(ZELImageBoxTest, aPictureOfAnotherSizeIsPaintedBecauseTheBoxChanges)
{
    ZELImageBox* const box = build("<b file='small.png' width='10' height='6'/>");
    PaintCounter counter(box);
    box->setImage("large.png");
    EventLoop::deliver();
    EXPECT_EQ(counter.count(), 1);
}
