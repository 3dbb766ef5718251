#include "components/lists/LineBreaker.h"

#include "support/PanelTest.h"

#include <QFont>
#include <QFontMetrics>

#include <gtest/gtest.h>
#include <random>

namespace PANFx::Testing {

using Components::LineBreaker;

namespace {

QStringList unitsOf(const QString& paragraph, bool chinese)
{
    if (!chinese)
        return paragraph.split(QLatin1Char(' '));
    int place = static_cast<int>(paragraph.indexOf(QLatin1Char(' '))) + 1;
    QStringList units{paragraph.left(place)};
    for (; place < paragraph.size(); place += 2)
        units.append(paragraph.mid(place, 2));
    return units;
}

// each unit measured behind all that the line has already
QStringList measuredOneByOne(const QString& paragraph, const QFont& font, bool chinese, int width,
                             int further)
{
    const QFontMetrics metrics(font);
    const QString separator = QLatin1String(chinese ? "" : " ");
    QStringList lines;
    QString line;
    for (const QString& unit : unitsOf(paragraph, chinese)) {
        if (metrics.horizontalAdvance(line + unit) <= width) {
            line += unit + separator;
            continue;
        }
        lines.append(line);
        line = (unit.startsWith(QLatin1Char(' ')) ? unit.mid(1) : unit) + separator;
        width = further;
    }
    return lines << line;
}

QString randomText(std::mt19937& random, const QString& letters, int length)
{
    QString text;
    for (int i = 0; i < length; ++i)
        text += letters.at(static_cast<int>(random() % static_cast<unsigned>(letters.size())));
    return text;
}

class LineBreakerTest : public PanelTest
{
protected:
    QFont m_font{QStringLiteral("DejaVu Sans"), 12};
};

} // namespace

TEST_F(LineBreakerTest, BreaksWhereMeasuringEachWordBreaks)
{
    const QStringList alphabets = {QStringLiteral("ab iW. "), QString::fromUtf8("가나 fi다AV "),
                                   QString::fromUtf8("中文本 fTo字"), QStringLiteral("     a")};
    std::mt19937 random(7);
    for (int i = 0; i < 400; ++i) {
        const QString text =
            randomText(random, alphabets.at(i % 4), static_cast<int>(random() % 300));
        const int first = static_cast<int>(random() % 300);
        const int further = first - static_cast<int>(random() % 60);
        for (const bool chinese : {false, true}) {
            LineBreaker breaker(m_font, chinese);
            ASSERT_EQ(breaker.linesOf(text, first, further),
                      measuredOneByOne(text, m_font, chinese, first, further))
                << text.toStdString() << " " << first << " " << further << " " << chinese;
        }
    }
}

// In Chinese a line may be broken in the middle of a rare character, and half of one is a box that
// is wider than the whole. The first unit that does not fit breaks the line all the same.
TEST_F(LineBreakerTest, BreaksWithinARareCharacterWhereMeasuringEachUnitBreaks)
{
    const QString letters = QString::fromUtf8("血液𠮷分𠀀a ");
    std::mt19937 random(11);
    for (const int points : {10, 12, 13, 15}) {
        m_font.setPointSize(points);
        LineBreaker breaker(m_font, true);
        const QString fixed = QString::fromUtf8("血液分𠮷");
        const int whole = QFontMetrics(m_font).horizontalAdvance(fixed);
        ASSERT_EQ(breaker.linesOf(fixed, whole, whole),
                  measuredOneByOne(fixed, m_font, true, whole, whole))
            << points;
        for (int i = 0; i < 100; ++i) {
            const QString text = randomText(random, letters, static_cast<int>(random() % 60));
            const int width = 30 + static_cast<int>(random() % 200);
            ASSERT_EQ(breaker.linesOf(text, width, width),
                      measuredOneByOne(text, m_font, true, width, width))
                << points << " " << text.toStdString() << " " << width;
        }
    }
}

TEST_F(LineBreakerTest, GivesAnEmptyParagraphOneLine)
{
    EXPECT_EQ(LineBreaker(m_font, false).linesOf(QString(), 100, 100),
              QStringList(QStringLiteral(" ")));
    EXPECT_EQ(LineBreaker(m_font, true).linesOf(QString(), 100, 100), QStringList(QString()));
}

TEST_F(LineBreakerTest, PutsALongFirstWordBehindAnEmptyLine)
{
    EXPECT_EQ(LineBreaker(m_font, false).linesOf(QStringLiteral("long a"), 5, 5),
              (QStringList{QString(), QStringLiteral("long "), QStringLiteral("a ")}));
}

TEST_F(LineBreakerTest, GivesTheFirstLineAWidthOfItsOwn)
{
    const int wide = QFontMetrics(m_font).horizontalAdvance(QStringLiteral("one two"));
    EXPECT_EQ(
        LineBreaker(m_font, false).linesOf(QStringLiteral("one two one two"), wide, wide - 1),
        (QStringList{QStringLiteral("one two "), QStringLiteral("one "), QStringLiteral("two ")}));
}

// A letter that stands closer to the one before it takes less than it does on its own.
TEST_F(LineBreakerTest, LetsTheLineAsAWholeDecide)
{
    m_font.setLetterSpacing(QFont::AbsoluteSpacing, -3);
    const QString text = QStringLiteral("some words that stand close together");
    EXPECT_EQ(LineBreaker(m_font, false).linesOf(text, 120, 120),
              measuredOneByOne(text, m_font, false, 120, 120));
    m_font.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    EXPECT_EQ(LineBreaker(m_font, false).linesOf(text, 120, 120),
              measuredOneByOne(text, m_font, false, 120, 120));
}

} // namespace PANFx::Testing
