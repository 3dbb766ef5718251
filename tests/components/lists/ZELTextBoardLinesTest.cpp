#include "components/lists/BoardTest.h"

#include <algorithm>
#include <ctime>
#include <random>

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

class ZELTextBoardLinesTest : public BoardTest
{
protected:
    void speakChinese()
    {
        writeConfig("chn", resources);
        ASSERT_EQ(Resource::ZELResourceMgr::getInstance()->m_strLocale, "chn");
    }

    // the rules said once more, from the lines' side: what stands on each line
    static QStringList broken(const QStringList& units, const QString& separator, int width,
                              int indent)
    {
        QStringList lines;
        int next = 0;
        do {
            const bool first = lines.isEmpty();
            QString line;
            for (int onLine = 0; next < units.size(); ++onLine, ++next) {
                const bool begins = !first && onLine == 0; // stands here whether it fits or not
                QString unit = units.at(next);
                if (begins && unit.startsWith(QLatin1Char(' ')))
                    unit.remove(0, 1);
                if (!begins && widthOf(line + unit) > (first ? width : width - indent))
                    break;
                line += unit + separator;
            }
            lines.append(first && indent > 0 ? QStringLiteral("||") + line : line);
        } while (next < units.size());
        return lines;
    }

    static QStringList words(const QString& paragraph) { return paragraph.split(QLatin1Char(' ')); }

    static QStringList pairs(QString paragraph)
    {
        QStringList units;
        const int head = static_cast<int>(paragraph.indexOf(QLatin1Char(' '))) + 1;
        units.append(paragraph.left(head));
        for (paragraph.remove(0, head); !paragraph.isEmpty(); paragraph.remove(0, 2))
            units.append(paragraph.left(2));
        return units;
    }

    // texts of letters, blanks, line ends and what else is in the alphabet
    void compareRandomTexts(const QString& alphabet, bool chinese)
    {
        std::mt19937 random(20240601);
        const auto below = [&random](int limit) {
            return static_cast<int>(random() % static_cast<unsigned>(limit));
        };
        for (int i = 0; i < 60; ++i) {
            const int width = columns(2 + below(12)) + below(5);
            const int indent = i % 3 == 0 ? 0 : below(4) * columns(1) / 2 - (i % 7 == 0 ? 20 : 0);
            Board* const board = this->board(width, 200, "indent='" + std::to_string(indent) + "'");
            QString text;
            for (int length = below(150); length > 0; --length)
                text += alphabet.at(below(static_cast<int>(alphabet.size())));
            QStringList expected;
            for (const QString& paragraph : text.split(QLatin1Char('\n')))
                expected += broken(chinese ? pairs(paragraph) : words(paragraph),
                                   chinese ? QString() : QStringLiteral(" "), width, indent);
            board->setText(text.toStdString());
            EXPECT_EQ(board->m_lstLines, expected)
                << width << " " << indent << " \"" << text.toStdString() << "\"";
            delete board;
        }
    }
};

} // namespace

// ---- words

TEST_F(ZELTextBoardLinesTest, breaksBetweenWords)
{
    Board* const board = boardOf(10, 10);
    EXPECT_EQ(board->linesOf("one"), Lines{"one "});
    EXPECT_EQ(board->linesOf("one two"), Lines{"one two "});
    EXPECT_EQ(board->linesOf("one two three"), (Lines{"one two ", "three "}));
    EXPECT_EQ(board->linesOf("aaa bbb cc dddd eeeeeeee f"),
              (Lines{"aaa bbb cc ", "dddd ", "eeeeeeee f "}));
}

TEST_F(ZELTextBoardLinesTest, theBlankBehindAWordNeedsNoRoom)
{
    Board* const board = boardOf(10, 10);
    EXPECT_EQ(board->linesOf("aaaa bbbbb"), Lines{"aaaa bbbbb "}) << "ten columns, and a blank";
    EXPECT_EQ(board->linesOf("aaaa bbbbbb"), (Lines{"aaaa ", "bbbbbb "}));
    EXPECT_EQ(board->linesOf("aaaaaaaaaa b"), (Lines{"aaaaaaaaaa ", "b "}));
}

TEST_F(ZELTextBoardLinesTest, eachLineEndBeginsAParagraph)
{
    Board* const board = boardOf(10, 10);
    EXPECT_EQ(board->linesOf("one\ntwo\n\nthree\n"), (Lines{"one ", "two ", " ", "three ", " "}));
    EXPECT_EQ(board->linesOf("one\r\ntwo"), (Lines{"one\r ", "two "})) << "10 alone counts";
}

TEST_F(ZELTextBoardLinesTest, anEmptyTextIsOneLine)
{
    EXPECT_EQ(boardOf(10, 10)->linesOf(""), Lines{" "});
    EXPECT_EQ(boardOf(10, 10, 2)->linesOf(""), Lines{"|| "});
    EXPECT_EQ(boardOf(10, 10, 2)->linesOf("\n"), (Lines{"|| ", "|| "}));
}

TEST_F(ZELTextBoardLinesTest, severalBlanksAreEmptyWords)
{
    Board* const board = boardOf(10, 10);
    EXPECT_EQ(board->linesOf("a  b"), Lines{"a  b "});
    EXPECT_EQ(board->linesOf(" a"), Lines{" a "});
    EXPECT_EQ(board->linesOf("a "), Lines{"a  "});
    EXPECT_EQ(board->linesOf("aaaaaaaaa   b"), (Lines{"aaaaaaaaa  ", " b "}))
        << "an empty word too goes to the next line where it no longer fits";
}

TEST_F(ZELTextBoardLinesTest, aWordThatIsTooLongIsNotCut)
{
    Board* const board = boardOf(10, 10);
    const std::string word(11, 'x');
    EXPECT_EQ(board->linesOf(word), (Lines{"", word + " "})) << "an empty line goes before it";
    EXPECT_EQ(board->linesOf("a " + word + " b"), (Lines{"a ", word + " ", "b "}));
    EXPECT_EQ(board->linesOf(word + " " + word), (Lines{"", word + " ", word + " "}));
}

TEST_F(ZELTextBoardLinesTest, aHangingIndentNarrowsTheFurtherLines)
{
    Board* const board = boardOf(10, 10, 2);
    EXPECT_EQ(board->linesOf("aaaa bbbbb cccc ddd eee"),
              (Lines{"||aaaa bbbbb ", "cccc ddd ", "eee "}));
    EXPECT_EQ(board->linesOf("aaaa bbbb cccc dddd"), (Lines{"||aaaa bbbb ", "cccc ", "dddd "}))
        << "nine columns do not fit into eight";
    EXPECT_EQ(board->linesOf("a\nb"), (Lines{"||a ", "||b "})) << "each paragraph";
    EXPECT_EQ(board->linesOf(std::string(11, 'x')), (Lines{"||", std::string(11, 'x') + " "}));
}

TEST_F(ZELTextBoardLinesTest, anIndentOfOnePixelMarksAndOneOfNoneDoesNot)
{
    Board* const board = boardOf(10, 10);
    board->setIndent(1);
    EXPECT_EQ(board->linesOf("aaaaaaaaaa b"), (Lines{"||aaaaaaaaaa ", "b "}));
    board->setIndent(0);
    EXPECT_EQ(board->linesOf("a"), Lines{"a "});
    board->setIndent(-columns(2));
    EXPECT_EQ(board->linesOf("aaaaaaaaaa bbbbbbb cccc"), (Lines{"aaaaaaaaaa ", "bbbbbbb cccc "}))
        << "a negative one widens";
}

TEST_F(ZELTextBoardLinesTest, theMarkInATextIsText)
{
    EXPECT_EQ(boardOf(10, 10)->linesOf("||a"), Lines{"||a "});
}

TEST_F(ZELTextBoardLinesTest, agreesWithAnotherStatementOfTheRules)
{
    compareRandomTexts(QStringLiteral("abcdefghijklm    \n"), false);
    compareRandomTexts(QString::fromUtf8("aé가 \n|"), false);
}

// ---- Chinese

TEST_F(ZELTextBoardLinesTest, chineseBreaksAfterTwoCharacters)
{
    speakChinese();
    Board* const board = boardOf(5, 10);
    EXPECT_EQ(board->linesOf("abcd"), Lines{"abcd"}) << "and gets no blank";
    EXPECT_EQ(board->linesOf("abcdefghi"), (Lines{"abcd", "efghi"}));
    EXPECT_EQ(board->linesOf("abcde"), Lines{"abcde"}) << "the last may be one";
    EXPECT_EQ(board->linesOf(""), Lines{""});
    EXPECT_EQ(board->linesOf("ab\n\ncd"), (Lines{"ab", "", "cd"}));
}

TEST_F(ZELTextBoardLinesTest, chineseKeepsWhatStandsBeforeTheFirstBlankTogether)
{
    speakChinese();
    Board* const board = boardOf(5, 10);
    EXPECT_EQ(board->linesOf("a bcde"), (Lines{"a bc", "de"}));
    EXPECT_EQ(board->linesOf("abcdefg hi"), (Lines{"", "abcdefg ", "hi"}))
        << "too long, with its blank";
    EXPECT_EQ(board->linesOf("abcd "), Lines{"abcd "}) << "here the blank needs room";
    EXPECT_EQ(board->linesOf("abcde "), (Lines{"", "abcde "}));
    EXPECT_EQ(board->linesOf(" a"), Lines{" a"});
}

TEST_F(ZELTextBoardLinesTest, chineseDropsABlankThatWouldBeginALine)
{
    speakChinese();
    Board* const board = boardOf(5, 10);
    EXPECT_EQ(board->linesOf("a bc de"), (Lines{"a bc", "de"}));
    EXPECT_EQ(board->linesOf("a bc  de"), (Lines{"a bc", " de"})) << "one of them";
}

TEST_F(ZELTextBoardLinesTest, chineseHangsToo)
{
    speakChinese();
    EXPECT_EQ(boardOf(6, 10, 2)->linesOf("abcdefghijkl"), (Lines{"||abcdef", "ghij", "kl"}));
}

TEST_F(ZELTextBoardLinesTest, breaksChineseCharacters)
{
    speakChinese();
    const QString text = QString::fromUtf8("血液分析仪器设置");
    const QString head = text.left(4);
    const QString tail = text.mid(4);
    Board* const board = this->board(std::max(widthOf(head), widthOf(tail)), 200);
    EXPECT_EQ(board->linesOf(text.toStdString()), (Lines{head.toStdString(), tail.toStdString()}));
}

TEST_F(ZELTextBoardLinesTest, agreesWithAnotherStatementOfTheRulesInChinese)
{
    speakChinese();
    compareRandomTexts(QString::fromUtf8("abc血液分 \n"), true);
}

// ---- odd texts

TEST_F(ZELTextBoardLinesTest, aTextThatIsNotUtf8IsReadAsFarAsItGoes)
{
    Board* const board = boardOf(20, 10);
    EXPECT_EQ(board->linesOf("a\xFF\xC3 b\xED\xA0\x80"),
              Lines{QString::fromUtf8("a\xFF\xC3 b\xED\xA0\x80 ").toStdString()});
    EXPECT_EQ(board->getText(), "a\xFF\xC3 b\xED\xA0\x80") << "kept as it came";
}

TEST_F(ZELTextBoardLinesTest, aTextEndsAtAZeroByte)
{
    Board* const board = boardOf(20, 10);
    EXPECT_EQ(board->linesOf(std::string("a\0b", 3)), Lines{"a "});
    EXPECT_EQ(board->getText().size(), 3u);
}

TEST_F(ZELTextBoardLinesTest, oneVeryLongWordIsOneLine)
{
    Board* const board = boardOf(10, 10);
    const std::string word(100000, 'x');
    EXPECT_EQ(board->linesOf(word), (Lines{"", word + " "}));
    EXPECT_EQ(board->m_nTotalPage, 1);
}

TEST_F(ZELTextBoardLinesTest, aBoardWithoutWidthGivesALineForEachWord)
{
    for (const int width : {0, -30}) {
        Board* const board = this->board(width, 200);
        EXPECT_EQ(board->linesOf("a b"), (Lines{"", "a ", "b "})) << width;
    }
}

TEST_F(ZELTextBoardLinesTest, aLongTextTakesItsTimeInProportion)
{
    Board* const board = boardOf(40, 10);
    std::string part;
    while (part.size() < 10000)
        part += "some words that fill a paragraph of two lines or so\n";
    // the processor's time, which other work of the machine is not in
    const auto fastest = [&](const std::string& text) {
        std::clock_t best = -1;
        for (int i = 0; i < 3; ++i) {
            const std::clock_t start = std::clock();
            board->setText(text);
            const std::clock_t taken = std::clock() - start;
            best = best < 0 ? taken : std::min(best, taken);
        }
        return best;
    };
    const std::clock_t once = fastest(part);
    const auto linesOnce = board->m_lstLines.size();
    std::string whole;
    for (int i = 0; i < 10; ++i)
        whole += part;
    const std::clock_t tenTimes = fastest(whole);
    EXPECT_EQ(board->m_lstLines.size(), 10 * (linesOnce - 1) + 1);
    EXPECT_LT(tenTimes, 40 * once) << "ten, where it is in proportion, a hundred in its square";
}
