#include "components/text/ZELLabel.h"

#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <climits>
#include <cstdlib>

using namespace PANFx::Testing;
using PANFx::Components::ZELLabel;
using PANFx::Resource::Font;
using PANFx::Resource::ZELResourceMgr;

namespace {

constexpr int toLeft = 0x81;
constexpr int toRight = 0x82;
constexpr int centred = 0x84;

const QString shortText = QStringLiteral("Hpx");
const QString longText = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");

class ZELLabelPaintTest : public PanelTest
{
protected:
    // a label of 90 by 24 at 40, 50 with what else its element and its position hold
    ZELLabel* build(const QString& title, const std::string& attributes = "style='normal'",
                    const std::string& position = "")
    {
        return buildComponent<ZELLabel>("label", "<ok title='" + title.toStdString() + "' " +
                                                     attributes +
                                                     "><position x='40' y='50' width='90' "
                                                     "height='24' " +
                                                     position + "/></ok>");
    }

    static Font* style(const std::string& name)
    {
        return ZELResourceMgr::getInstance()->getFont(name);
    }

    // a text drawn as a label is to draw it
    static void drawText(QImage& image, const QRect& rectangle, const QColor& colour,
                         const QString& text, int align, const std::string& styleName = "normal")
    {
        QPainter painter(&image);
        painter.setFont(*style(styleName)->m_pFont);
        painter.setPen(colour);
        painter.drawText(rectangle, align, text);
    }

    static QImage expected(const QString& text, int align, const std::string& styleName = "normal",
                           const QSize& size = QSize(90, 24))
    {
        QImage image = Pixels::canvas(size);
        drawText(image, QRect(QPoint(0, 0), size), *style(styleName)->m_pColor, text, align,
                 styleName);
        return image;
    }

    static QImage expectedWithShadow(const QString& text, int align,
                                     const std::string& styleName = "normal")
    {
        QImage image = Pixels::canvas(QSize(90, 24));
        drawText(image, QRect(1, 1, 90, 24), Qt::white, text, align, styleName);
        drawText(image, QRect(0, 0, 90, 24), *style(styleName)->m_pColor, text, align, styleName);
        return image;
    }

    static QString elided(const QString& text, int width)
    {
        return QFontMetrics(*style("normal")->m_pFont).elidedText(text, Qt::ElideRight, width, 0);
    }

    // the same but for the rounding of colours that are mixed twice
    static bool alike(const QColor& a, const QColor& b)
    {
        return std::abs(a.red() - b.red()) <= 6 && std::abs(a.green() - b.green()) <= 6 &&
               std::abs(a.blue() - b.blue()) <= 6;
    }

    static int ink(QWidget* widget)
    {
        return Pixels::inkInside(Pixels::grab(widget), widget->rect());
    }
};

} // namespace

// ---- where the text lies

TEST_F(ZELLabelPaintTest, paintsItsTitleInItsStyle)
{
    ZELLabel* const label = build(shortText, "style='pressed'");
    const QImage image = Pixels::grab(label);
    EXPECT_TRUE(Pixels::same(image, expected(shortText, toLeft, "pressed")));
    EXPECT_GT(Pixels::count(image, Qt::red), 0);
    EXPECT_EQ(Pixels::count(image, Qt::black), 0);
}

TEST_F(ZELLabelPaintTest, theTextLiesAtTheSideThatTheAlignmentSays)
{
    const QRect atLeft =
        Pixels::inkBox(Pixels::grab(build(shortText, "style='normal'", "align='left'")));
    const QRect atRight =
        Pixels::inkBox(Pixels::grab(build(shortText, "style='normal'", "align='right'")));
    const QRect inTheMiddle =
        Pixels::inkBox(Pixels::grab(build(shortText, "style='normal'", "align='center'")));
    EXPECT_LE(atLeft.left(), 3);
    EXPECT_LT(atLeft.right(), 45);
    EXPECT_GE(atRight.right(), 86);
    EXPECT_GT(atRight.left(), 45);
    EXPECT_NEAR(inTheMiddle.left(), 89 - inTheMiddle.right(), 3);
    for (const QRect& box : {atLeft, atRight, inTheMiddle}) {
        EXPECT_NEAR(box.width(), atLeft.width(), 1); // letters lie between pixels too
        EXPECT_EQ(box.height(), atLeft.height());
        EXPECT_EQ(box.top(), atLeft.top());
        EXPECT_NEAR(box.center().y(), 12, 4);
    }
}

TEST_F(ZELLabelPaintTest, eachAlignmentIsPaintedAsQtDoes)
{
    EXPECT_TRUE(Pixels::same(Pixels::grab(build(shortText, "style='normal'", "align='left'")),
                             expected(shortText, toLeft)));
    EXPECT_TRUE(Pixels::same(Pixels::grab(build(shortText, "style='normal'", "align='right'")),
                             expected(shortText, toRight)));
    EXPECT_TRUE(Pixels::same(Pixels::grab(build(shortText, "style='normal'", "align='center'")),
                             expected(shortText, centred)));
}

TEST_F(ZELLabelPaintTest, theInkStaysInsideTheLabel)
{
    for (const char* align : {"left", "right", "center"}) {
        for (const QString& text : {shortText, longText}) {
            SCOPED_TRACE(align);
            ZELLabel* const label =
                build(text, "style='normal' shadow='true'", std::string("align='") + align + "'");
            const QImage image = Pixels::grab(&panel());
            EXPECT_GT(Pixels::inkInside(image, label->geometry()), 0);
            EXPECT_EQ(Pixels::inkOutside(image, label->geometry()), 0);
            delete label;
        }
    }
}

TEST_F(ZELLabelPaintTest, aNewAlignmentShowsAtTheNextPaint)
{
    ZELLabel* const label = build(shortText);
    label->setAlign(Qt::AlignRight | Qt::AlignBottom);
    EXPECT_TRUE(
        Pixels::same(Pixels::grab(label), expected(shortText, Qt::AlignRight | Qt::AlignBottom)));
}

TEST_F(ZELLabelPaintTest, withoutAPositionTheTextIsCentred)
{
    auto* const label = buildComponent<ZELLabel>("label", "<ok title='Hpx' style='normal'/>");
    label->setGeometry(0, 0, 90, 24);
    EXPECT_TRUE(Pixels::same(Pixels::grab(label), expected(shortText, centred)));
}

TEST_F(ZELLabelPaintTest, aLabelPaintsNoBackground)
{
    const QImage image = Pixels::grab(build(shortText), Qt::cyan);
    EXPECT_GT(Pixels::count(image, Qt::cyan), 90 * 24 / 2);
    EXPECT_EQ(Pixels::at(image, 89, 0), QColor(Qt::cyan));
}

// ---- what is painted

TEST_F(ZELLabelPaintTest, theTitleIsUtf8)
{
    const QString mixed = QString::fromUtf8("\xea\xb0\x80\xc3\xa9z");
    EXPECT_TRUE(Pixels::same(Pixels::grab(build(mixed)), expected(mixed, toLeft)));
}

TEST_F(ZELLabelPaintTest, whatIsNoUtf8IsReplacedByteByByte)
{
    ZELLabel* const label = build(shortText);
    label->setTitle("a\xea\xb0"); // a letter cut short
    EXPECT_TRUE(Pixels::same(Pixels::grab(label),
                             expected(QString::fromUtf8("a\xef\xbf\xbd\xef\xbf\xbd"), toLeft)));
}

TEST_F(ZELLabelPaintTest, aLineBreakOfTheLayoutBreaksTheLine)
{
    const QImage image = Pixels::grab(build(QStringLiteral("H\\nH")));
    EXPECT_TRUE(Pixels::same(image, expected(QStringLiteral("H\nH"), toLeft)));
    EXPECT_FALSE(Pixels::same(image, expected(QStringLiteral("H\\nH"), toLeft)));
}

TEST_F(ZELLabelPaintTest, anEmptyTitlePaintsNothing)
{
    ZELLabel* const label = build(shortText);
    label->setTitle(nullptr);
    EXPECT_EQ(ink(label), 0);
}

TEST_F(ZELLabelPaintTest, aTitleWithoutAStyleShowsNothing)
{
    ZELLabel* const label = build(shortText, "");
    EXPECT_EQ(ink(label), 0);
    label->setTitle("other");
    EXPECT_EQ(ink(label), 0);
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELLabelPaintTest, aStyleWithoutATitleIsNotReadAndNeedsSetFont)
{
    auto* const label = buildComponent<ZELLabel>(
        "label", "<ok style='normal'><position width='90' height='24'/></ok>");
    label->setTitle("Hpx");
    EXPECT_EQ(ink(label), 0);
    label->setFont(style("normal"));
    EXPECT_TRUE(Pixels::same(Pixels::grab(label), expected(shortText, toLeft)));
}

// ---- the two styles

TEST_F(ZELLabelPaintTest, theStyleInForceIsTheOnePainted)
{
    ZELLabel* const label = build(shortText, "style='normal' style2='pressed'");
    label->setFontStyle(1);
    EXPECT_TRUE(Pixels::same(Pixels::grab(label), expected(shortText, toLeft, "pressed")));
    label->setFontStyle(0);
    EXPECT_TRUE(Pixels::same(Pixels::grab(label), expected(shortText, toLeft, "normal")));
}

TEST_F(ZELLabelPaintTest, anyOtherStyleNumberPaintsNothing)
{
    ZELLabel* const label = build(shortText, "style='normal' style2='pressed' shadow='true'");
    for (const int number : {2, -1, 100, INT_MAX, INT_MIN}) {
        label->setFontStyle(number);
        EXPECT_EQ(ink(label), 0) << number;
    }
}

TEST_F(ZELLabelPaintTest, noStyleStandsInForTheOther)
{
    ZELLabel* const first = build(shortText, "style='normal' shadow='true'");
    first->setFontStyle(1);
    EXPECT_EQ(ink(first), 0);
    ZELLabel* const second = build(shortText, "style2='pressed' shadow='true'");
    EXPECT_EQ(ink(second), 0);
    second->setFontStyle(1);
    EXPECT_GT(ink(second), 0);
}

// ---- shadow

TEST_F(ZELLabelPaintTest, theShadowIsAWhiteCopyBelowTheText)
{
    for (const char* align : {"left", "right", "center"}) {
        SCOPED_TRACE(align);
        const int flags = *align == 'l' ? toLeft : *align == 'r' ? toRight : centred;
        EXPECT_TRUE(Pixels::same(Pixels::grab(build(shortText, "style='pressed' shadow='true'",
                                                    std::string("align='") + align + "'")),
                                 expectedWithShadow(shortText, flags, "pressed")));
    }
}

TEST_F(ZELLabelPaintTest, theShadowLiesOnePixelDownAndRight)
{
    writeStyle("<style><Font>"
               "<white size='14' family='DejaVu Sans Mono' color='ffffff'/>"
               "<hidden size='14' family='DejaVu Sans Mono' color='01fe03'/>" // as the ground
               "</Font></style>");
    const QImage text = Pixels::grab(build(shortText, "style='white'"));
    const QImage shadow = Pixels::grab(build(shortText, "style='hidden' shadow='true'"));
    int seen = 0;
    for (int y = 1; y < text.height(); ++y) {
        for (int x = 1; x < text.width(); ++x) {
            if (Pixels::at(text, x, y) != Pixels::untouched)
                continue; // here the text covers its shadow
            EXPECT_TRUE(alike(Pixels::at(shadow, x, y), Pixels::at(text, x - 1, y - 1)))
                << x << "," << y;
            seen += Pixels::at(shadow, x, y) != Pixels::untouched ? 1 : 0;
        }
    }
    EXPECT_GT(seen, 20);
}

TEST_F(ZELLabelPaintTest, theShadowIsWhiteWhateverTheColourOfTheText)
{
    for (const char* name : {"normal", "pressed", "dimmed"}) {
        SCOPED_TRACE(name);
        const std::string attribute = std::string("style='") + name + "'";
        ZELLabel* const plain = build(shortText, attribute);
        ZELLabel* const shadowed = build(shortText, attribute + " shadow='true'");
        // on white ground the shadow is not to be seen, on other ground it is
        EXPECT_TRUE(
            Pixels::same(Pixels::grab(shadowed, Qt::white), Pixels::grab(plain, Qt::white)));
        EXPECT_GT(Pixels::count(Pixels::grab(shadowed), Qt::white), 0);
        EXPECT_EQ(Pixels::count(Pixels::grab(plain), Qt::white), 0);
    }
}

TEST_F(ZELLabelPaintTest, theSecondStyleHasItsShadowToo)
{
    ZELLabel* const label = build(shortText, "style2='pressed' shadow='true'");
    label->setFontStyle(1);
    EXPECT_TRUE(
        Pixels::same(Pixels::grab(label), expectedWithShadow(shortText, toLeft, "pressed")));
}

// ---- elision

TEST_F(ZELLabelPaintTest, withoutElisionALongTextIsCut)
{
    EXPECT_TRUE(Pixels::same(Pixels::grab(build(longText)), expected(longText, toLeft)));
}

TEST_F(ZELLabelPaintTest, elidesAtTheRightToTheWholeWidth)
{
    ZELLabel* const label = build(longText);
    label->setElidedText();
    const QString text = elided(longText, 90);
    ASSERT_NE(text, longText);
    EXPECT_TRUE(text.endsWith(QChar(0x2026)));
    EXPECT_TRUE(Pixels::same(Pixels::grab(label), expected(text, toLeft)));
}

TEST_F(ZELLabelPaintTest, elidesFromTheVeryPixelThatIsMissing)
{
    ZELLabel* const label = build(shortText);
    label->setElidedText();
    const int natural = QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(shortText);
    EXPECT_NE(elided(shortText, natural - 1), shortText);
    EXPECT_EQ(elided(shortText, natural + 1), shortText);
    for (int width = natural - 2; width <= natural + 2; ++width) {
        label->resize(width, 24);
        EXPECT_TRUE(Pixels::same(Pixels::grab(label), expected(elided(shortText, width), toLeft,
                                                               "normal", QSize(width, 24))))
            << width;
    }
}

TEST_F(ZELLabelPaintTest, textAndShadowAreElidedAtTheSameCharacter)
{
    ZELLabel* const label = build(longText, "style='normal' shadow='true'");
    label->setElidedText();
    EXPECT_TRUE(
        Pixels::same(Pixels::grab(label), expectedWithShadow(elided(longText, 90), toLeft)));
}

TEST_F(ZELLabelPaintTest, theSecondStyleIsNeverElided)
{
    ZELLabel* const label = build(longText, "style='normal' style2='pressed' shadow='true'");
    label->setElidedText();
    label->setFontStyle(1);
    EXPECT_TRUE(Pixels::same(Pixels::grab(label), expectedWithShadow(longText, toLeft, "pressed")));
}

TEST_F(ZELLabelPaintTest, elisionFollowsTheWidthOfTheWidget)
{
    ZELLabel* const label = build(longText);
    label->setElidedText();
    label->resize(60, 24);
    EXPECT_TRUE(Pixels::same(Pixels::grab(label),
                             expected(elided(longText, 60), toLeft, "normal", QSize(60, 24))));
}
