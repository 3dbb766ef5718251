// Painting is not exported: it is tested through the components that use it.

#include "components/buttons/ZELImageButton.h"
#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QFont>
#include <QPainter>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageButton;
using PANFx::Resource::Font;
using PANFx::Resource::ZELResourceMgr;

namespace {

constexpr int centred = 0x84;

// how pictures and titles are drawn into their rectangles, seen through a button of 80 by 30
class PaintingTest : public PanelTest
{
protected:
    void SetUp() override
    {
        writePicture("red.png", 8, 8, Qt::red);
        writePicture("clear.png", 8, 8, Qt::transparent);
    }

    // what a button with these child elements paints
    QImage titled(const std::string& textPos, bool dim = false)
    {
        auto* const button = buildComponent<ZELImageButton>(
            "button", "<b title='Hpx' style='normal' dimstyle='dimmed'>"
                      "<position width='80' height='30'/><image up='clear.png' down='clear.png'/>" +
                          textPos + "</b>");
        button->setDimMode(dim);
        return Pixels::grab(button);
    }

    QImage pictured(const std::string& imagePos)
    {
        return Pixels::grab(buildComponent<ZELImageButton>(
            "button", "<b><position width='80' height='30'/><image up='red.png' down='red.png'/>" +
                          imagePos + "</b>"));
    }

    static void drawTitle(QImage& image, const QRect& rectangle, const std::string& style,
                          const QColor& colour)
    {
        QPainter painter(&image);
        painter.setFont(*ZELResourceMgr::getInstance()->getFont(style)->m_pFont);
        painter.setPen(colour);
        painter.drawText(rectangle, centred, QStringLiteral("Hpx"));
    }

    static QImage title(const QRect& rectangle)
    {
        QImage image = Pixels::canvas(QSize(80, 30));
        drawTitle(image, rectangle, "normal", Qt::black);
        return image;
    }

    static QImage engraved(const QRect& rectangle)
    {
        QImage image = Pixels::canvas(QSize(80, 30));
        drawTitle(image, rectangle.translated(1, 1), "dimmed", QColor(200, 200, 200));
        drawTitle(image, rectangle, "dimmed", QColor(128, 128, 128));
        return image;
    }

    static QImage picture(const QRect& rectangle)
    {
        QImage image = Pixels::canvas(QSize(80, 30));
        QPainter(&image).fillRect(rectangle, Qt::red);
        return image;
    }
};

const QRect whole(0, 0, 80, 30);

} // namespace

TEST_F(PaintingTest, aTitleIsDrawnIntoItsRectangle)
{
    EXPECT_TRUE(Pixels::same(titled("<textPos x='30' y='4' width='40' height='20'/>"),
                             title(QRect(30, 4, 40, 20))));
    EXPECT_FALSE(Pixels::same(title(QRect(30, 4, 40, 20)), title(whole)));
}

TEST_F(PaintingTest, withoutARectangleTheWholeWidgetIsTaken)
{
    EXPECT_TRUE(Pixels::same(titled(""), title(whole)));
    EXPECT_TRUE(Pixels::same(pictured(""), picture(whole)));
}

TEST_F(PaintingTest, aRectangleWithoutWidthCountsAsNone)
{
    EXPECT_TRUE(
        Pixels::same(titled("<textPos x='30' y='4' width='0' height='20'/>"), title(whole)));
    EXPECT_TRUE(
        Pixels::same(pictured("<imagePos x='30' y='4' width='0' height='20'/>"), picture(whole)));
}

TEST_F(PaintingTest, aRectangleWithoutHeightIsStillOne)
{
    EXPECT_TRUE(Pixels::same(titled("<textPos x='30' y='4' width='40' height='0'/>"),
                             title(QRect(30, 4, 40, 0))));
    EXPECT_TRUE(
        Pixels::same(pictured("<imagePos x='30' y='4' width='40' height='0'/>"), picture(QRect())));
}

TEST_F(PaintingTest, aPictureFillsItsRectangle)
{
    EXPECT_TRUE(Pixels::same(pictured("<imagePos x='30' y='4' width='40' height='20'/>"),
                             picture(QRect(30, 4, 40, 20))));
    EXPECT_TRUE(Pixels::same(pictured("<imagePos x='-5' y='-5' width='20' height='200'/>"),
                             picture(QRect(-5, -5, 20, 200))));
}

TEST_F(PaintingTest, anEngravedTitleHasAGreyCopyOnePixelDownAndRight)
{
    EXPECT_TRUE(Pixels::same(titled("<textPos x='30' y='4' width='40' height='20'/>", true),
                             engraved(QRect(30, 4, 40, 20))));
    EXPECT_TRUE(Pixels::same(titled("", true), engraved(whole)));
    EXPECT_GT(Pixels::count(titled("", true), QColor(200, 200, 200)), 0);
    EXPECT_EQ(Pixels::count(titled(""), QColor(200, 200, 200)), 0);
}
