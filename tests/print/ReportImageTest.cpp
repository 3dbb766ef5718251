#include "print/ReportImage.h"

#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QCoreApplication>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QProcess>

using namespace PANFx::Testing;

namespace {

constexpr int atLeft = Qt::AlignLeft;
constexpr int atRight = Qt::AlignRight;
constexpr int atCentre = Qt::AlignHCenter | Qt::AlignVCenter;

// a point is a dot, so sizes are the same in pixels
QFont font(int size, int stretch)
{
    QFont made(QStringLiteral("Droid Sans Mono"));
    made.setPixelSize(size);
    made.setStretch(stretch);
    made.setStyleStrategy(QFont::NoSubpixelAntialias);
    return made;
}

const auto F0 = [] { return font(24, 85); };
const auto F2 = [] { return font(23, 100); };
const auto F3 = [] { return font(23, 75); };
const auto F4 = [] { return font(23, 65); };
const auto F5 = [] { return font(23, 55); };
const auto F6 = [] { return font(22, 70); };
const auto F8 = [] { return font(21, 60); };

QFont tight()
{
    QFont made = F0();
    made.setLetterSpacing(QFont::AbsoluteSpacing, -0.8);
    return made;
}

QStringList linesOf(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char('\n'));
}

QImage draw(const char* text, int width = 384, int mode = 0)
{
    return PANFx::Print::drawReport(linesOf(text), width, mode);
}

// Paper drawn by hand, text by text.
class Hand
{
public:
    explicit Hand(int lines)
        : m_paper(384, lines * 32, QImage::Format_RGB32)
    {
        m_paper.fill(Qt::white);
    }

    Hand& text(int line, int from, int to, int flags, const QFont& font, const char* utf8)
    {
        QPainter painter(&m_paper);
        painter.setFont(font);
        painter.drawText(QRect(QPoint(from, 32 + 32 * line), QPoint(to, 63 + 32 * line)), flags,
                         QString::fromUtf8(utf8));
        return *this;
    }

    const QImage& paper() const { return m_paper; }

private:
    QImage m_paper;
};

// right minus left of the text's bounds, measured undecoded
int measured(const QFont& font, const char* text)
{
    const QRect bounds = QFontMetrics(font).boundingRect(QString::fromLatin1(text));
    return bounds.right() - bounds.left();
}

class ReportImageTest : public PanelTest
{
};

} // namespace

TEST_F(ReportImageTest, IsAsHighAsItsLines)
{
    EXPECT_EQ(draw("").size(), QSize(384, 32));
    EXPECT_EQ(draw("a\nb\n").size(), QSize(384, 96));
    EXPECT_EQ(draw("a").format(), QImage::Format_RGB32);
}

TEST_F(ReportImageTest, BeginsBlankAndLeavesTheLastLineOut)
{
    const QImage paper = draw("|||||\nWWW\nXXX");
    EXPECT_EQ(Pixels::inkInside(paper, QRect(0, 0, 384, 64), Qt::white), 0);
    EXPECT_GT(Pixels::inkInside(paper, QRect(0, 64, 384, 32), Qt::white), 0);
    EXPECT_TRUE(Pixels::same(paper, Hand(3).text(1, 0, 383, atCentre, F0(), "WWW").paper()));
    EXPECT_EQ(Pixels::inkBox(draw("WWW"), Qt::white), QRect());
}

namespace {

const char* const everyKindOfLine =
    "Report\nmode\n#Heading\n#A heading that is much too wide to fit the paper in its font\n"
    "1|GLU|98|70-110|mg/dL\n2|CHOLEST1|1234567890|0.123-45.67890|mmol/L\nNa|140|mmol|H\n"
    "@fitted\n@a line of which the letters are moved together a little\nplain\n";

constexpr const char* pictureVariable = "QTPANFX_TEST_PICTURE";

} // namespace

// run in another process by the test behind it
TEST_F(ReportImageTest, DISABLED_savesAReport)
{
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPointSize(36);
    EXPECT_EQ(QFontInfo(font).pixelSize(), qEnvironmentVariableIntValue("QTPANFX_TEST_DPI") / 2);
    EXPECT_TRUE(draw(everyKindOfLine).save(qEnvironmentVariable(pictureVariable), "PNG"));
}

TEST_F(ReportImageTest, IsTheSameAtEveryResolution)
{
    const QString path = QFile::decodeName(realPath("/tmp/report.png").c_str());
    for (const char* dpi : {"72", "100", "192"}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QTPANFX_TEST_DPI"), QLatin1String(dpi));
        for (const char* shards : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"})
            environment.remove(QLatin1String(shards)); // else the test may be left out
        environment.insert(QLatin1String(pictureVariable), path);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--gtest_also_run_disabled_tests"),
                       QStringLiteral("--gtest_filter=ReportImageTest.DISABLED_savesAReport")});
        ASSERT_TRUE(program.waitForFinished(20000));
        ASSERT_EQ(program.exitCode(), 0) << program.readAllStandardOutput().toStdString();
        EXPECT_TRUE(
            Pixels::same(draw(everyKindOfLine), QImage(path).convertToFormat(QImage::Format_RGB32)))
            << dpi;
        removeFile("/tmp/report.png");
    }
}

TEST_F(ReportImageTest, DrawsTwentyFourDotsToTwentyFourPoints)
{
    // a letter of this font is as high as the font tells
    const QImage paper = draw("Hg\n");
    const QRect ink = Pixels::inkBox(paper, Qt::white);
    const QFontMetrics metrics(F0());
    EXPECT_GE(ink.height(), metrics.capHeight());
    EXPECT_LE(ink.height(), metrics.height());
    EXPECT_LT(metrics.height(), 32);
    EXPECT_EQ(ink.width() / 2, metrics.boundingRect(QStringLiteral("Hg")).width() / 2);
}

TEST_F(ReportImageTest, IsGray)
{
    const QImage paper = draw("#Heading\na|b|c|d\nplain\n@fitted\n");
    for (int y = 0; y < paper.height(); ++y) {
        for (int x = 0; x < 384; ++x) {
            const QRgb pixel = paper.pixel(x, y);
            ASSERT_TRUE(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
        }
    }
}

// ---- plain lines

TEST_F(ReportImageTest, CentresPlainLinesByTheirPlace)
{
    const char* const text = "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\n";
    for (const int mode : {0, 1, 2, 3, -2}) {
        SCOPED_TRACE(mode);
        Hand hand(11);
        for (int line = 0; line < 10; ++line) {
            const bool centred = line == 1 || (mode == 2 ? line == 8 : line == 0);
            const char letter[] = {static_cast<char>('a' + line), '\0'};
            hand.text(line, 0, 383, centred ? atCentre : atLeft, F0(), letter);
        }
        EXPECT_TRUE(Pixels::same(draw(text, 384, mode), hand.paper()));
    }
}

TEST_F(ReportImageTest, PrintsThreePartsWithTheirSeparators)
{
    EXPECT_TRUE(
        Pixels::same(draw("\n\na|b|c\n"), Hand(4).text(2, 0, 383, atLeft, F0(), "a|b|c").paper()));
    EXPECT_TRUE(
        Pixels::same(draw("\n\n@a|b|c\n"), Hand(4).text(2, 0, 383, atLeft, F0(), "a|b|c").paper()));
}

TEST_F(ReportImageTest, PrintsMarksInTheMiddleOfALine)
{
    EXPECT_TRUE(
        Pixels::same(draw("\n\na#b@c\n"), Hand(4).text(2, 0, 383, atLeft, F0(), "a#b@c").paper()));
    EXPECT_TRUE(
        Pixels::same(draw("\n\n #b\n"), Hand(4).text(2, 0, 383, atLeft, F0(), " #b").paper()));
}

TEST_F(ReportImageTest, CutsAPlainLineThatIsTooWide)
{
    const char* const wide = "\n\nWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW\n";
    EXPECT_TRUE(Pixels::same(
        draw(wide),
        Hand(4).text(2, 0, 383, atLeft, F0(), "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW").paper()));
}

// ---- headings

TEST_F(ReportImageTest, DrawsAHeadingInTheNormalFontWhereItFits)
{
    EXPECT_TRUE(Pixels::same(draw("#Result\n#Two\n"), Hand(3)
                                                          .text(0, 0, 383, atLeft, F0(), "Result")
                                                          .text(1, 0, 383, atLeft, F0(), "Two")
                                                          .paper()));
}

TEST_F(ReportImageTest, DrawsAHeadingNarrowerWhereItIsTooWide)
{
    const int width = measured(F0(), "Heading");
    EXPECT_TRUE(Pixels::same(draw("#Heading\n", width + 1),
                             Hand(2).text(0, 0, 383, atLeft, F0(), "Heading").paper()));
    EXPECT_TRUE(Pixels::same(draw("#Heading\n", width),
                             Hand(2).text(0, 0, 383, atLeft, F3(), "Heading").paper()));
}

TEST_F(ReportImageTest, MeasuresAHeadingUndecoded)
{
    // five letters of three bytes each: they would fit, their bytes do not
    const char* const text = "결과보고서";
    const int width = QFontMetrics(F0()).boundingRect(QString::fromUtf8(text)).width() + 20;
    ASSERT_GT(measured(F0(), text), width);
    const std::string line = "#" + std::string(text) + "\n";
    EXPECT_TRUE(Pixels::same(draw(line.c_str(), width),
                             Hand(2).text(0, 0, 383, atLeft, F3(), text).paper()));
}

TEST_F(ReportImageTest, DrawsNothingForAHeadingWithoutText)
{
    EXPECT_TRUE(Pixels::same(draw("#\n"), Hand(2).paper()));
    EXPECT_TRUE(Pixels::same(draw("#\n", 0), Hand(2).paper())); // its width is -1
}

TEST_F(ReportImageTest, TakesAHeadingForItBeforeItsColumns)
{
    EXPECT_TRUE(
        Pixels::same(draw("#a|b|c|d\n"), Hand(2).text(0, 0, 383, atLeft, F0(), "a|b|c|d").paper()));
    EXPECT_TRUE(Pixels::same(draw("#a|b|c|d|e\n"),
                             Hand(2).text(0, 0, 383, atLeft, F0(), "a|b|c|d|e").paper()));
}

// ---- four columns

TEST_F(ReportImageTest, DrawsFourColumns)
{
    EXPECT_TRUE(Pixels::same(draw("Na|140|mmol|H\n"), Hand(2)
                                                          .text(0, 0, 84, atLeft, F0(), "Na")
                                                          .text(0, 85, 199, atCentre, F0(), "140")
                                                          .text(0, 195, 299, atCentre, F0(), "mmol")
                                                          .text(0, 300, 384, atRight, F0(), "H")
                                                          .paper()));
}

TEST_F(ReportImageTest, CutsEachOfFourColumns)
{
    const char* const wide = "WWWWWWWWWWWW";
    EXPECT_TRUE(Pixels::same(draw("WWWWWWWWWWWW|WWWWWWWWWWWW|WWWWWWWWWWWW|WWWWWWWWWWWW\n"),
                             Hand(2)
                                 .text(0, 0, 84, atLeft, F0(), wide)
                                 .text(0, 85, 199, atCentre, F0(), wide)
                                 .text(0, 195, 299, atCentre, F0(), wide)
                                 .text(0, 300, 384, atRight, F0(), wide)
                                 .paper()));
}

TEST_F(ReportImageTest, KeepsEmptyPartsOfFour)
{
    EXPECT_TRUE(
        Pixels::same(draw("|||d\n"), Hand(2).text(0, 300, 384, atRight, F0(), "d").paper()));
    EXPECT_TRUE(Pixels::same(draw("|||\n"), Hand(2).paper()));
}

TEST_F(ReportImageTest, TakesFourColumnsBeforeAFittedLine)
{
    EXPECT_TRUE(Pixels::same(draw("@a|b|c|d\n"), Hand(2)
                                                     .text(0, 0, 84, atLeft, F0(), "@a")
                                                     .text(0, 85, 199, atCentre, F0(), "b")
                                                     .text(0, 195, 299, atCentre, F0(), "c")
                                                     .text(0, 300, 384, atRight, F0(), "d")
                                                     .paper()));
}

TEST_F(ReportImageTest, DrawsTheFirstOfFourColumnsInTheNormalFont)
{
    EXPECT_TRUE(
        Pixels::same(draw("#Heading\na|||\n", 10), Hand(3)
                                                       .text(0, 0, 383, atLeft, F3(), "Heading")
                                                       .text(1, 0, 84, atLeft, F0(), "a")
                                                       .paper()));
}

// ---- five columns

TEST_F(ReportImageTest, DrawsFiveColumns)
{
    EXPECT_TRUE(
        Pixels::same(draw("1|GLU|98|70-110|mg\n"), Hand(2)
                                                       .text(0, 0, 12, atLeft, F0(), "1")
                                                       .text(0, 22, 93, atLeft, F0(), "GLU")
                                                       .text(0, 97, 187, atCentre, F0(), "98")
                                                       .text(0, 194, 315, atCentre, F3(), "70-110")
                                                       .text(0, 308, 384, atRight, F0(), "mg")
                                                       .paper()));
}

TEST_F(ReportImageTest, IgnoresWhatFollowsTheFifthColumn)
{
    EXPECT_TRUE(
        Pixels::same(draw("||||e|f|g\n"), Hand(2).text(0, 308, 384, atRight, F0(), "e").paper()));
}

TEST_F(ReportImageTest, ChoosesTheFontsOfFiveColumnsByTheirLengths)
{
    struct Case
    {
        int column;
        int length;
        QFont font;
    };
    struct Place
    {
        int from;
        int to;
        int flags;
    };
    const std::vector<Place> places = {{0, 12, atLeft},
                                       {22, 93, atLeft},
                                       {97, 187, atCentre},
                                       {194, 315, atCentre},
                                       {308, 384, atRight}};
    const std::vector<Case> cases = {
        {0, 1, F0()},  {0, 9, F0()},  {1, 7, F0()}, {1, 8, F8()},  {1, 20, F8()}, {2, 7, F0()},
        {2, 8, F2()},  {2, 30, F2()}, {3, 1, F3()}, {3, 12, F3()}, {3, 13, F6()}, {3, 14, F8()},
        {3, 25, F8()}, {4, 5, F0()},  {4, 6, F4()}, {4, 7, F4()},  {4, 8, F5()},  {4, 15, F5()}};
    for (const Case& one : cases) {
        SCOPED_TRACE("column " + std::to_string(one.column) + ", " + std::to_string(one.length));
        const std::string text = std::string("8642097531864209753186420975318642")
                                     .substr(0, static_cast<size_t>(one.length));
        std::string line = "||||\n";
        line.insert(static_cast<size_t>(one.column), text);
        const Place& place = places[static_cast<size_t>(one.column)];
        EXPECT_TRUE(Pixels::same(
            draw(line.c_str()),
            Hand(2).text(0, place.from, place.to, place.flags, one.font, text.c_str()).paper()));
    }
}

TEST_F(ReportImageTest, ReturnsToTheNormalFontBehindEachColumn)
{
    EXPECT_TRUE(Pixels::same(draw("1|12345678|12345|12345678901234|12345\n2||||\n"),
                             Hand(3)
                                 .text(0, 0, 12, atLeft, F0(), "1")
                                 .text(0, 22, 93, atLeft, F8(), "12345678")
                                 .text(0, 97, 187, atCentre, F0(), "12345")
                                 .text(0, 194, 315, atCentre, F8(), "12345678901234")
                                 .text(0, 308, 384, atRight, F0(), "12345")
                                 .text(1, 0, 12, atLeft, F0(), "2")
                                 .paper()));
}

TEST_F(ReportImageTest, CountsBytesForTheLengthOfAColumn)
{
    // three letters are nine bytes; two are six
    EXPECT_TRUE(Pixels::same(draw("|포도당|나트|칼륨나트|혈당\n"),
                             Hand(2)
                                 .text(0, 22, 93, atLeft, F8(), "포도당")
                                 .text(0, 97, 187, atCentre, F0(), "나트")
                                 .text(0, 194, 315, atCentre, F3(), "칼륨나트")
                                 .text(0, 308, 384, atRight, F4(), "혈당")
                                 .paper()));
}

TEST_F(ReportImageTest, TakesFiveColumnsBeforeAFittedLine)
{
    EXPECT_TRUE(Pixels::same(
        draw("@a|b|||\n"),
        Hand(2).text(0, 0, 12, atLeft, F0(), "@a").text(0, 22, 93, atLeft, F0(), "b").paper()));
}

// ---- the font that the line before has left

TEST_F(ReportImageTest, DrawsTheFirstOfFiveColumnsInTheFontOfTheLineBefore)
{
    struct Case
    {
        const char* before;
        QFont font;
    };
    const int width = 40;
    for (const Case& one : std::vector<Case>{{"", F0()},
                                             {"#ab", F0()},
                                             {"#Heading", F3()},
                                             {"@ab", F0()},
                                             {"@fitted", tight()},
                                             {"a|b|c|d", F0()},
                                             {"a|b|c|d|e", F0()},
                                             {"plain line", F0()}}) {
        SCOPED_TRACE(one.before);
        const std::string before = std::string("\n\n") + one.before + "\n";
        QImage expected = draw((before + "\n").c_str(), width);
        Hand row(5);
        row.text(3, 0, 12, atLeft, one.font, "88").text(3, 22, 93, atLeft, one.font, "123");
        QPainter(&expected).drawImage(0, 128, row.paper(), 0, 128, 384, 32);
        EXPECT_TRUE(Pixels::same(draw((before + "88||||\n").c_str(), width).copy(0, 128, 20, 32),
                                 expected.copy(0, 128, 20, 32)));
        // a short second column is drawn in it as well
        EXPECT_TRUE(Pixels::same(draw((before + "88|123|||\n").c_str(), width), expected));
    }
}

TEST_F(ReportImageTest, KeepsTheFontOfALineBeforeOverManyEmptyHeadings)
{
    // also where the painting goes on in another piece of the paper
    std::string text;
    for (int line = 0; line < 600; ++line)
        text += line % 2 ? "88||||\n" : "#Heading\n";
    const QImage paper = draw(text.c_str(), 40);
    const QImage first = paper.copy(0, 32, 384, 64);
    for (int pair = 1; pair < 300; ++pair)
        ASSERT_TRUE(Pixels::same(paper.copy(0, 32 + pair * 64, 384, 64), first)) << pair;
    text = "\n" + text; // rows behind headings at the other places
    const QImage shifted = draw(text.c_str(), 40);
    for (int pair = 0; pair < 300; ++pair)
        ASSERT_TRUE(Pixels::same(shifted.copy(0, 64 + pair * 64, 384, 64), first)) << pair;
}

// ---- fitted lines

TEST_F(ReportImageTest, DrawsAFittedLineAsItIsWhereItFits)
{
    const int width = measured(F0(), "Fitted");
    EXPECT_TRUE(Pixels::same(draw("@Fitted\n", width + 1),
                             Hand(2).text(0, 0, 383, atLeft, F0(), "Fitted").paper()));
    EXPECT_TRUE(Pixels::same(draw("@Fitted\n", width),
                             Hand(2).text(0, 0, 383, atLeft, tight(), "Fitted").paper()));
}

TEST_F(ReportImageTest, CentresTheFittedLineOne)
{
    EXPECT_TRUE(Pixels::same(draw("@a\n@b\n@c\n", 384, 2), Hand(4)
                                                               .text(0, 0, 383, atLeft, F0(), "a")
                                                               .text(1, 0, 383, atCentre, F0(), "b")
                                                               .text(2, 0, 383, atLeft, F0(), "c")
                                                               .paper()));
}

TEST_F(ReportImageTest, MovesTheLettersOfAWideLineTogether)
{
    const auto inkWidth = [](int width) {
        return Pixels::inkBox(draw("@HHHHHHHHHHHHHHHHHHHHH\n", width), Qt::white).width();
    };
    // twenty gaps, each by 0.8 of a dot
    EXPECT_NEAR(inkWidth(384) - inkWidth(10), 16, 1);
}

TEST_F(ReportImageTest, MeasuresEachFittedLineWithoutSpacing)
{
    // the second is as wide as the first, and narrowing must not carry over
    const int width = measured(F0(), "Fitted");
    EXPECT_TRUE(Pixels::same(draw("\n\n@Fitted\n@Fitted\n@a\n", width),
                             Hand(6)
                                 .text(2, 0, 383, atLeft, tight(), "Fitted")
                                 .text(3, 0, 383, atLeft, tight(), "Fitted")
                                 .text(4, 0, 383, atLeft, F0(), "a")
                                 .paper()));
}

TEST_F(ReportImageTest, MeasuresAFittedLineUndecoded)
{
    const char* const text = "검사결과";
    const int width = QFontMetrics(F0()).boundingRect(QString::fromUtf8(text)).width() + 20;
    ASSERT_GT(measured(F0(), text), width);
    const std::string line = "@" + std::string(text) + "\n";
    EXPECT_TRUE(Pixels::same(draw(line.c_str(), width),
                             Hand(2).text(0, 0, 383, atLeft, tight(), text).paper()));
}

TEST_F(ReportImageTest, DrawsNothingForAFittedLineWithoutText)
{
    EXPECT_TRUE(Pixels::same(draw("@\n"), Hand(2).paper()));
}

// ---- text

TEST_F(ReportImageTest, DecodesWhatItDraws)
{
    EXPECT_TRUE(Pixels::same(draw("\n\n혈당 5.4 µmol\n"),
                             Hand(4).text(2, 0, 383, atLeft, F0(), "혈당 5.4 µmol").paper()));
}

TEST_F(ReportImageTest, DrawsALetterCutByASeparatorAsItIs)
{
    // the first byte of a letter, and what follows it
    EXPECT_TRUE(Pixels::same(draw("\n\n\xEA|\xB0\x80||\n"),
                             Hand(4)
                                 .text(2, 0, 84, atLeft, F0(), "\xEA")
                                 .text(2, 85, 199, atCentre, F0(), "\xB0\x80")
                                 .paper()));
}

// ---- length

TEST_F(ReportImageTest, DrawsEveryLineOfALongReport)
{
    std::string text;
    for (int line = 0; line < 1100; ++line)
        text += "@WWW\n";
    const QImage paper = draw(text.c_str());
    ASSERT_EQ(paper.size(), QSize(384, 1101 * 32));
    const QImage line = paper.copy(0, 32 + 2 * 32, 384, 32);
    EXPECT_GT(Pixels::inkInside(line, line.rect(), Qt::white), 0);
    for (int number = 2; number < 1100; ++number)
        ASSERT_TRUE(Pixels::same(paper.copy(0, 32 + number * 32, 384, 32), line)) << number;
}
