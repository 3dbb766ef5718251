#include "components/buttons/ZELImageButton.h"

#include "components/buttons/ButtonTest.h"

#include <utility>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELImageButton;

namespace {

using Button = Opened<ZELImageButton>;

class ZELImageButtonPaintTest : public ButtonTest
{
protected:
    /** A button of one row of text, with elision or without. */
    QImage elidedTitle(const std::string& title, const std::string& textPos, bool dim = false)
    {
        auto* const button =
            make<Button>("<ok title='" + title + "' style='normal' dimstyle='dimmed'>" +
                         "<position width='200' height='40'/>" + textPos + "</ok>");
        button->setElidedText(true);
        button->setDimMode(dim);
        return Pixels::grab(button);
    }
};

} // namespace

TEST_F(ZELImageButtonPaintTest, aPictureIsScaledSmoothly)
{
    writeHalves("halves.png");
    auto* const button = make<Button>(
        "<ok><image up='halves.png' down='up.png'/><position width='80' height='40'/></ok>");
    const QImage seen = Pixels::grab(button);
    EXPECT_EQ(Pixels::inkInside(seen, button->rect()), 3200);
    EXPECT_GT(greys(seen, button->rect()), 0);
}

TEST_F(ZELImageButtonPaintTest, thePictureGoesIntoItsRectangleAndTheTitleIntoItsOwn)
{
    auto* const button =
        make<Button>(ok(styled, "<imagePos x='4' y='5' width='20' height='10'/>"
                                "<textPos x='30' y='0' width='50' height='40' align='right'/>"));
    QImage expected = Pixels::canvas(size);
    QPainter(&expected).fillRect(QRect(4, 5, 20, 10), Qt::green);
    drawText(expected, QStringLiteral("HHHH"), QRect(30, 0, 50, 40), toTheRight, "normal",
             Qt::black);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
}

TEST_F(ZELImageButtonPaintTest, theTitleTakesTheFirstStyleThatFits)
{
    struct Row
    {
        const char* styles;
        bool dim;
        bool pressed;
        const char* seen;
    };
    const Row rows[] = {
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", false, false, "normal"},
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", false, true, "pressed"},
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", true, false, "dimmed shadow"},
        {"style='normal' pressstyle='pressed' dimstyle='dimmed'", true, true, "dimmed shadow"},
        {"style='normal' pressstyle='pressed'", true, false, "normal"},
        {"style='normal' pressstyle='pressed'", true, true, "pressed"},
        {"style='normal' dimstyle='dimmed'", false, true, "normal"},
        {"dimstyle='dimmed'", true, false, "dimmed shadow"},
        {"dimstyle='dimmed'", false, false, ""},
        {"pressstyle='pressed'", false, true, "pressed"},
        {"pressstyle='pressed'", false, false, ""},
        {"", false, false, ""},
    };
    for (const Row& row : rows) {
        auto* const button = make<Button>("<ok title='HHHH' " + std::string(row.styles) +
                                          "><position width='80' height='40'/></ok>");
        button->m_bDimMode = row.dim;
        button->m_bPressed = row.pressed;
        EXPECT_EQ(coloursIn(Pixels::grab(button)), row.seen)
            << row.styles << (row.dim ? " dim" : "") << (row.pressed ? " pressed" : "");
    }
    log().expectError("[getImage] No FileName Error", 24, "ZELImageMgr");
}

TEST_F(ZELImageButtonPaintTest, theTitleIsUtf8)
{
    auto* const button = make<Button>(ok("title='a' style='normal'"));
    button->setTitle("\xC3\x84\xC3\x96");
    QImage expected = filled(size, Qt::green);
    drawText(expected, QString(QChar(0xC4)) + QChar(0xD6), QRect(0, 0, 80, 40), centred, "normal",
             Qt::black);
    EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected));
    EXPECT_EQ(button->getTitle(), "\xC3\x84\xC3\x96");
}

TEST_F(ZELImageButtonPaintTest, anElidedTitleIsTwoPixelsNarrowerThanItsRectangle)
{
    writePicture("clear.png", 8, 8, Qt::transparent);
    const QString text = QStringLiteral("ABCDEFGHIJKLMNOP");
    const QFontMetrics metrics(*style("normal")->m_pFont);
    const QRect rect(3, 0, 60, 40);
    const QString cut = metrics.elidedText(text, Qt::ElideRight, 58, 0);
    EXPECT_NE(cut, text);
    const std::string textPos = "<image up='clear.png' down='clear.png'/>"
                                "<textPos x='3' y='0' width='60' height='40' align='left'/>";
    QImage normal = Pixels::canvas(QSize(200, 40));
    drawText(normal, cut, rect, toTheLeft, "normal", Qt::black);
    EXPECT_TRUE(Pixels::same(elidedTitle("ABCDEFGHIJKLMNOP", textPos), normal));

    QImage dim = Pixels::canvas(QSize(200, 40));
    drawText(dim, cut, rect.translated(1, 1), toTheLeft, "dimmed", QColor(200, 200, 200));
    drawText(dim, cut, rect, toTheLeft, "dimmed", QColor(128, 128, 128));
    EXPECT_TRUE(Pixels::same(elidedTitle("ABCDEFGHIJKLMNOP", textPos, true), dim));
}

TEST_F(ZELImageButtonPaintTest, theElisionWidthIsExactlyThatOfTheRectangleLessTwo)
{
    writePicture("clear.png", 8, 8, Qt::transparent);
    const int wide =
        QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(QStringLiteral("ABCD"));
    for (const int width : {wide + 2, wide + 1}) {
        const QImage seen = elidedTitle(
            "ABCD", "<image up='clear.png' down='clear.png'/><textPos x='3' y='0' height='40' "
                    "align='left' width='" +
                        std::to_string(width) + "'/>");
        QImage whole = Pixels::canvas(QSize(200, 40));
        drawText(whole, QStringLiteral("ABCD"), QRect(3, 0, width, 40), toTheLeft, "normal",
                 Qt::black);
        EXPECT_EQ(bool(Pixels::same(seen, whole)), width == wide + 2) << width;
    }
}

TEST_F(ZELImageButtonPaintTest, withoutATextRectangleAnElidedTitleVanishesButForOneLetter)
{
    writePicture("clear.png", 8, 8, Qt::transparent);
    const std::string image = "<image up='clear.png' down='clear.png'/>";
    for (const bool dim : {false, true}) {
        EXPECT_EQ(coloursIn(elidedTitle("HH", image, dim)), "") << dim;
        EXPECT_EQ(coloursIn(elidedTitle("H", image, dim)), dim ? "dimmed shadow" : "normal");
    }
}

TEST_F(ZELImageButtonPaintTest, elisionCannotBeSwitchedOff)
{
    auto* const button = make<Button>(ok(styled));
    button->setElidedText(false);
    EXPECT_TRUE(button->m_bElided);
    button->setElidedText(true);
    button->setElidedText(false);
    EXPECT_TRUE(button->m_bElided);
}

TEST_F(ZELImageButtonPaintTest, touchesAndDimModeRepaintAndSettersDoNot)
{
    auto* const button = make<Button>(ok(styled));
    PaintCounter paints(button);
    button->setTitle("other");
    button->setFont(style("pressed"));
    button->setSoundMode(false);
    button->setLongPress(true);
    button->setElidedText(true);
    button->setOrgPos(1, 2);
    EventLoop::deliver();
    EXPECT_EQ(paints.count(), 0);
    EXPECT_EQ(button->m_pFont, style("pressed"));
    for (const auto& act : std::vector<std::function<void()>>{
             [&] { button->forcePress(); }, [&] { button->forceRelease(); },
             [&] { button->setDimMode(true); }, [&] { button->setDimMode(false); }}) {
        paints.reset();
        act();
        EventLoop::deliver();
        EXPECT_EQ(paints.count(), 1);
    }
}

TEST_F(ZELImageButtonPaintTest, rectanglesBeyondTheButtonAreCutAtItsEdges)
{
    constexpr int most = QWIDGETSIZE_MAX; // numbers beyond it are held there
    const std::pair<const char*, int> numbers[] = {
        {"-30", -30}, {"-2147483648", -most}, {"2147483647", most}, {"100000", 100000}, {"1", 1}};
    for (const auto& [at, x] : numbers) {
        for (const auto& [length, width] : numbers) {
            const std::string rest =
                "y='2' height='30' x='" + std::string(at) + "' width='" + length + "'/>";
            auto* const button =
                make<Button>(ok(styled, "<imagePos " + rest + "<textPos align='left' " + rest));
            const QRect asked(x, 2, width, 30);
            EXPECT_EQ(button->m_imageRect, asked) << rest;
            EXPECT_EQ(button->m_textRect, asked) << rest;
            QImage expected = Pixels::canvas(size);
            QPainter painter(&expected);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawPixmap(asked, *picture("up.png"), QRect());
            painter.end();
            drawText(expected, QStringLiteral("HHHH"), asked, toTheLeft, "normal", Qt::black);
            EXPECT_TRUE(Pixels::same(Pixels::grab(button), expected)) << rest;
        }
    }
}
