#include "components/lists/BoardTest.h"

#include <climits>

using namespace PANFx;
using namespace PANFx::Testing;

namespace {

constexpr int wrappedLeft = 0x1021;
constexpr int wrappedCentre = 0x1024;

class ZELTextBoardPaintTest : public BoardTest
{
protected:
    // a board of 20 columns and 5 lines, the first of them for the title, and an indent of two
    Board* hanging()
    {
        Board* const made = boardOf(20, 5, 2);
        EXPECT_EQ(made->m_nTitleLines, 1);
        return made;
    }

    // what is painted left of the scroll
    static QImage painted(Board* board) { return Pixels::grab(board).copy(0, 0, 490, 400); }

    static QImage empty() { return filled(QSize(490, 400), Pixels::untouched); }

    // a text in a row of the board, so many pixels from its left
    static void expectLine(QImage& image, const Board* board, int row, int left,
                           const QString& text)
    {
        QRect rect = board->m_rcBoard.translated(0, row * heightOf("normal"));
        rect.setLeft(rect.left() + left);
        drawText(image, text, rect, wrappedLeft, "normal", Qt::black);
    }

    static void turnTo(Board* board, int page)
    {
        board->m_pScroll->setListNowPage(page);
        board->m_nNowPage = page;
    }
};

} // namespace

TEST_F(ZELTextBoardPaintTest, paintsNothingBeforeItHasAText)
{
    Board* const board = hanging();
    log().startHere();
    EXPECT_TRUE(Pixels::same(painted(board), empty()));
    EXPECT_GE(log().count("[D] [paintEvent] start", "ZELTextBoard"), 1);
}

TEST_F(ZELTextBoardPaintTest, theFirstPageLeavesTheTitlesRowsFree)
{
    Board* const board = hanging();
    board->setText("first\nsecond");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("first "));
    expectLine(expected, board, 2, 0, QStringLiteral("second "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
}

TEST_F(ZELTextBoardPaintTest, furtherLinesOfAParagraphHang)
{
    Board* const board = hanging();
    board->setText("aaaaaaaaaa bbbbbbbbb cccc");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("aaaaaaaaaa bbbbbbbbb "));
    expectLine(expected, board, 2, board->m_nIndent, QStringLiteral("cccc "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
    board->setIndent(60);
    EXPECT_FALSE(Pixels::same(painted(board), expected)) << "drawn with the indent of now";
}

TEST_F(ZELTextBoardPaintTest, aParagraphThatRunsOverThePageHangsOnTheNext)
{
    Board* const board = hanging();
    board->setText("a\nb\nc\ndddddddddddddddd eeeeeeeee"); // four lines fill page 1
    ASSERT_EQ(board->m_nTotalPage, 2);
    turnTo(board, 2);
    QImage expected = empty();
    expectLine(expected, board, 0, board->m_nIndent, QStringLiteral("eeeeeeeee "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
}

TEST_F(ZELTextBoardPaintTest, withoutAnIndentAllLinesStandAtTheLeft)
{
    Board* const board = boardOf(10, 5);
    board->setText("aaaaaaaaaa bb");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("aaaaaaaaaa "));
    expectLine(expected, board, 2, 0, QStringLiteral("bb "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
}

TEST_F(ZELTextBoardPaintTest, theSecondPageBeginsWhereTheFirstEnds)
{
    Board* const board = hanging();
    board->setText(paragraphs(12)); // a to d, e to i, j to l
    EXPECT_EQ(board->m_nTotalPage, 3);
    const auto expectPage = [&](int page, int firstRow, const QString& letters) {
        turnTo(board, page);
        QImage expected = empty();
        for (int i = 0; i < letters.size(); ++i)
            expectLine(expected, board, firstRow + i, 0, letters.mid(i, 1));
        EXPECT_TRUE(Pixels::same(painted(board), expected)) << page;
    };
    expectPage(1, 1, QStringLiteral("abcd"));
    expectPage(2, 0, QStringLiteral("efghi"));
    expectPage(3, 0, QStringLiteral("jkl"));
    expectPage(4, 0, QString());
}

TEST_F(ZELTextBoardPaintTest, aPageThatThereIsNotIsEmpty)
{
    Board* const board = hanging();
    board->setText(paragraphs(12));
    for (const int page : {0, -1, 99, INT_MAX, INT_MIN}) {
        board->m_nNowPage = page;
        EXPECT_TRUE(Pixels::same(painted(board), empty())) << page;
    }
}

TEST_F(ZELTextBoardPaintTest, aTouchOnTheScrollShowsTheNextPage)
{
    Board* const board = hanging();
    board->setText(paragraphs(12));
    const QImage first = painted(board);
    Touch::tapWindow(partOf(board->m_pScroll, "downbtn")->getQWidget());
    EventLoop::deliver();
    const QImage second = painted(board);
    EXPECT_FALSE(Pixels::same(first, second));
    turnTo(board, 2);
    EXPECT_TRUE(Pixels::same(painted(board), second));
}

TEST_F(ZELTextBoardPaintTest, aTitleStandsCentredAtTheTopOfPageOneInItsOwnStyle)
{
    Board* const board =
        this->board(columns(20), 10 * heightOf("normal"), "", "style='normal' titlestyle='big'");
    board->m_strTitle = "T\xC3\xA9";
    board->setText("a");
    ASSERT_EQ(board->m_nTitleLines, 2);
    QImage expected = empty();
    drawText(expected, QString::fromUtf8("T\xC3\xA9"), board->m_rcBoard, wrappedCentre, "big",
             Qt::red);
    expectLine(expected, board, 2, 0, QStringLiteral("a "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
    turnTo(board, 2);
    EXPECT_TRUE(Pixels::same(painted(board), empty())) << "on no other page";
}

TEST_F(ZELTextBoardPaintTest, isDrawnAtTheLeftWhateverTheAlignment)
{
    Board* const board = hanging();
    board->setText("a");
    const QImage first = painted(board);
    for (const int align : {0x81, 0x82, 0x84}) {
        board->setAlign(align);
        EXPECT_TRUE(Pixels::same(painted(board), first)) << align;
    }
}

TEST_F(ZELTextBoardPaintTest, aWordThatIsTooLongMayWrap)
{
    Board* const board = boardOf(10, 8);
    board->setText("aaaaaaaaa-bbbbbbbb");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QString()); // the empty line before it
    expectLine(expected, board, 2, 0, QStringLiteral("aaaaaaaaa-bbbbbbbb "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
}

TEST_F(ZELTextBoardPaintTest, aHangingWordThatIsTooLongWrapsAtTheRightEdgeOfTheBoard)
{
    Board* const board = boardOf(10, 8, 2);
    board->setText("cccccccc aaaa-bbbb"); // the second fits the board and not what hangs
    ASSERT_EQ(board->m_lstLines.size(), 2);
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("cccccccc "));
    expectLine(expected, board, 2, board->m_nIndent, QStringLiteral("aaaa-bbbb "));
    const QImage image = painted(board);
    EXPECT_TRUE(Pixels::same(image, expected));
    const QRect rowBelow(0, 20 + 3 * board->m_nLineHeight, 490, board->m_nLineHeight);
    EXPECT_GT(Pixels::inkInside(image, rowBelow), 0) << "its second half";
}

TEST_F(ZELTextBoardPaintTest, aMarkThatTheTextBringsIsShownBehindTheLibrarysOwn)
{
    Board* const board = hanging();
    board->setText("||x");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("||x "));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
}

TEST_F(ZELTextBoardPaintTest, aMarkThatTheTextBringsIsNotShown)
{
    Board* const board = hanging();
    board->setIndent(0);
    board->setText("||x");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("x "));
    EXPECT_TRUE(Pixels::same(painted(board), expected)) << "it is taken for the library's own";
}

TEST_F(ZELTextBoardPaintTest, paintsChinese)
{
    writeConfig("chn", resources);
    Board* const board = boardOf(5, 5);
    board->setText("abcdefg");
    QImage expected = empty();
    expectLine(expected, board, 1, 0, QStringLiteral("abcd"));
    expectLine(expected, board, 2, 0, QStringLiteral("efg"));
    EXPECT_TRUE(Pixels::same(painted(board), expected));
}
