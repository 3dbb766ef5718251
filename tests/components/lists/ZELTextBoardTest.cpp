#include "components/lists/BoardTest.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELTextBoard;

namespace {

class ZELTextBoardTest : public BoardTest
{
};

} // namespace

// ---- building

TEST_F(ZELTextBoardTest, isAComponentFirstAndAWidgetSecond)
{
    expectScrollLines();
    auto* const board =
        buildComponent<ZELTextBoard>("textboard", page(boardElement(300, 200) + components()));
    EXPECT_EQ(board->m_strType, "ZELTextBoard");
    EXPECT_EQ(static_cast<void*>(static_cast<ZELComponent*>(board)), static_cast<void*>(board));
    EXPECT_EQ(board->getQWidget(), static_cast<QWidget*>(board));
    EXPECT_EQ(board->geometry(), QRect(10, 20, 600, 400));
    board->hideWindow();
    EXPECT_TRUE(board->isHidden());
    board->showWindow();
    EXPECT_TRUE(board->isVisible());
}

TEST_F(ZELTextBoardTest, hasItsOwnOperationsBehindThoseOfAComponent)
{
    EXPECT_EQ(Board::slotOfPress(), slot(&ZELComponent::getQWidget) + slotSize);
    EXPECT_EQ(Board::slotOfRelease(), Board::slotOfPress() + slotSize);
    EXPECT_EQ(Board::slotOfPaint(), Board::slotOfRelease() + slotSize);
    EXPECT_EQ(Board::slotOfEvent(), Board::slotOfPaint() + slotSize);
}

TEST_F(ZELTextBoardTest, startsWithTheDefaults)
{
    expectScrollLines();
    const Board* const board = make<Board>(page(components()), "ZELTextBoard");
    EXPECT_EQ(board->m_logger.m_strIdentity, "QTPANFx ZELTextBoard   ");
    EXPECT_EQ(board->m_nNowPage, 1);
    EXPECT_EQ(board->m_nTotalPage, 1);
    EXPECT_EQ(board->m_nAlign, 0x21) << "as there is no element \"board\"";
    EXPECT_EQ(board->m_nIndent, 0);
    EXPECT_EQ(board->m_strTitle, "");
    EXPECT_EQ(board->m_strText, "");
    EXPECT_TRUE(board->m_lstLines.isEmpty());
    EXPECT_EQ(board->m_rcBoard.topLeft(), QPoint(0, 0));
    EXPECT_EQ(board->m_rcBoard.bottomRight(), QPoint(-1, -1));
    EXPECT_EQ(board->m_pFont, style("normal"));
    EXPECT_EQ(board->m_pTitleFont, style("normal")) << "the same where none is named";
    EXPECT_EQ(board->m_pScroll, const_cast<Board*>(board)->getSubComponent("scr"));
}

TEST_F(ZELTextBoardTest, readsItsTextArea)
{
    const Board* const board =
        this->board(200, 100, "align='right' indent='15'", "style='normal' titlestyle='big'");
    EXPECT_EQ(board->m_rcBoard, QRect(10, 20, 200, 100));
    EXPECT_EQ(board->m_nAlign, 0x82);
    EXPECT_EQ(board->m_nIndent, 15);
    EXPECT_EQ(board->m_pTitleFont, style("big"));
}

TEST_F(ZELTextBoardTest, theTextAreaTakesWhatItLeavesOutFromThePosition)
{
    expectScrollLines(2);
    const Board* const board = make<Board>(page("<board/>" + components()), "ZELTextBoard");
    EXPECT_EQ(board->m_rcBoard, QRect(10, 20, 600, 400));
    EXPECT_EQ(board->m_nAlign, 0x81);
    EXPECT_EQ(board->m_nIndent, 0);
    const Board* const bare = make<Board>(
        "<brd style='normal'><board height='90'/>" + components() + "</brd>", "ZELTextBoard");
    EXPECT_EQ(bare->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(bare->m_rcBoard, QRect(0, 0, 1, 90));
}

TEST_F(ZELTextBoardTest, findsItsScrollInItsElementToo)
{
    expectScrollLines();
    Board* const board = make<Board>(
        page(boardElement(300, 200) + group("listscroll", scrollElement)), "ZELTextBoard");
    ASSERT_NE(board->m_pScroll, nullptr);
    EXPECT_EQ(board->m_pScroll, board->getSubComponent("scr"));
}

TEST_F(ZELTextBoardTest, walksItsChildComponentsAloneWhereThereIsOne)
{
    expectScrollLines();
    Board* const board = make<Board>(
        page(boardElement(300, 200) + group("button", cell("outside", 0)) + components()),
        "ZELTextBoard");
    EXPECT_EQ(board->getComponentCount(), 1);
}

TEST_F(ZELTextBoardTest, makesAndShowsItsPartsBeforeItReadsItsLayout)
{
    expectScrollLines();
    log().expectError("[createSubComponent] Fail to create a component (nosuch, x)");
    log().expectError("[setLayout] brd has no font", 1, "ZELTextBoard");
    Board board(
        &panel(), "brd", "ZELTextBoard",
        element("<brd>" + group("listscroll", scrollElement) + "<nosuch><x/></nosuch></brd>"));
    log().expectInOrder({"[E] [createSubComponent] Fail to create a component (nosuch, x)",
                         "[E] [setLayout] brd has no font"});
    EXPECT_TRUE(board.m_pScroll->testAttribute(Qt::WA_WState_ExplicitShowHide));
    EXPECT_TRUE(board.m_pScroll->isVisibleTo(&board));
}

TEST_F(ZELTextBoardTest, theFirstOfTwoScrollsTurnsThePages)
{
    expectScrollLines(2);
    Board* const board = make<Board>(
        page(boardElement(300, 200) +
             group("listscroll", scrollElement + "<scr2>" + label + pageUp + pageDown + "</scr2>")),
        "ZELTextBoard");
    EXPECT_EQ(board->m_pScroll, board->getSubComponent("scr"));
}

// ---- lines and pages

TEST_F(ZELTextBoardTest, countsTheLinesOfAPageAndThoseOfTheTitle)
{
    struct Case
    {
        const char* title;
        int height;
    };
    const int body = heightOf("normal");
    for (const Case& c : {Case{"normal", 10 * body}, Case{"normal", 10 * body + body - 1},
                          Case{"big", 10 * body}, Case{"big", 10 * body + body - 1},
                          Case{"tiny", 10 * body}, Case{"tiny", 10 * body + body - 1},
                          Case{"normal", body}, Case{"big", body}, Case{"big", 2 * body - 1}}) {
        const Board* const board = this->board(
            300, c.height, "", std::string("style='normal' titlestyle='") + c.title + "'");
        EXPECT_EQ(board->m_nLineHeight, body);
        EXPECT_EQ(board->m_nPageLines, c.height / body) << c.title << c.height;
        // rows left below the title, to the nearest whole number towards none
        const double below = double(c.height - heightOf(c.title)) / body;
        EXPECT_EQ(board->m_nTitleLines, c.height / body - int(below)) << c.title << c.height;
    }
}

TEST_F(ZELTextBoardTest, aTitleOfOneLineTakesOneLine)
{
    EXPECT_EQ(boardOf(20, 10)->m_nTitleLines, 1);
    const int body = heightOf("normal");
    EXPECT_EQ(board(300, 10 * body, "", "style='normal' titlestyle='big'")->m_nTitleLines, 2);
    EXPECT_EQ(board(300, 11 * body - 1, "", "style='normal' titlestyle='tiny'")->m_nTitleLines, 0);
}

TEST_F(ZELTextBoardTest, countsPagesWithTheTitlesLines)
{
    Board* const board = boardOf(20, 10); // one line for the title
    for (const auto& [lines, pages] :
         {std::make_pair(1, 1), std::make_pair(9, 1), std::make_pair(10, 2), std::make_pair(19, 2),
          std::make_pair(20, 3), std::make_pair(29, 3), std::make_pair(300, 31)}) {
        log().startHere();
        board->setText(paragraphs(lines));
        EXPECT_EQ(board->m_lstLines.size(), lines);
        EXPECT_EQ(board->m_nTotalPage, pages) << lines;
        EXPECT_EQ(board->m_pScroll->m_nTotalPage, pages);
        EXPECT_EQ(log().count("[D] total page : " + std::to_string(pages), "ZELTextBoard"), 1);
    }
}

TEST_F(ZELTextBoardTest, countsPagesWithoutLinesOfATitle)
{
    const int body = heightOf("normal");
    Board* const board = this->board(300, 11 * body - 1, "", "style='normal' titlestyle='tiny'");
    ASSERT_EQ(board->m_nTitleLines, 0);
    ASSERT_EQ(board->m_nPageLines, 10);
    board->setText(paragraphs(20));
    EXPECT_EQ(board->m_nTotalPage, 2);
    board->setText(paragraphs(21));
    EXPECT_EQ(board->m_nTotalPage, 3);
    board->setText("");
    EXPECT_EQ(board->m_nTotalPage, 1);
}

TEST_F(ZELTextBoardTest, aShortBoardGivesItsFirstPageToTheTitle)
{
    Board* const board = boardOf(20, 1);
    ASSERT_EQ(board->m_nTitleLines, 1);
    board->setText("a");
    EXPECT_EQ(board->m_nTotalPage, 2);
    board->setText("");
    EXPECT_EQ(board->m_nTotalPage, 2) << "an empty text is one line";
}

TEST_F(ZELTextBoardTest, aNewTextGoesBackToPageOne)
{
    Board* const board = boardOf(20, 10);
    board->setText(paragraphs(50));
    board->m_pScroll->setListNowPage(4);
    send(board, {EVENT_PAGE_DOWN, Kind::Range});
    EXPECT_EQ(board->m_nNowPage, 4);
    for (const int lines : {50, 3}) {
        board->setText(paragraphs(lines));
        EXPECT_EQ(board->m_nNowPage, 1);
        EXPECT_EQ(board->m_pScroll->m_nNowPage, 1);
    }
    EXPECT_EQ(board->getText(), paragraphs(3));
    EXPECT_TRUE(panel().take().empty());
}

TEST_F(ZELTextBoardTest, aNewTextDoesNotRepaintTheOldOne)
{
    Board* const board = boardOf(20, 10);
    EventLoop::deliver();
    PaintCounter paints(board);
    board->setText(paragraphs(50));
    EventLoop::deliver();
    EXPECT_FALSE(paints.region().intersects(board->m_rcBoard));
}

TEST_F(ZELTextBoardTest, keepsAlignAndIndentForLater)
{
    Board* const board = boardOf(20, 10);
    board->setText("a");
    board->setAlign(0x84);
    board->setIndent(12);
    EXPECT_EQ(board->m_nAlign, 0x84);
    EXPECT_EQ(board->m_nIndent, 12);
    EXPECT_EQ(board->m_lstLines, QStringList{QStringLiteral("a ")});
    EXPECT_EQ(board->linesOf("a"), Lines{"||a "}) << "with the next text";
}

// ---- events

TEST_F(ZELTextBoardTest, everyNumberAndClassEndsHereAndTwoTurnThePage)
{
    Board* const board = boardOf(20, 10);
    board->setText(paragraphs(100));
    board->m_pScroll->setListNowPage(5);
    EventLoop::deliver();
    for (const int type : allNumbers()) {
        for (const Kind kind : allKinds) {
            board->m_nNowPage = 2;
            EventLoop::deliver();
            PaintCounter paints(board);
            const Outcome outcome = handOver(board, "ZELTextBoard", {type, kind});
            EXPECT_TRUE(outcome.result) << type;
            EXPECT_TRUE(outcome.posted.empty()) << type;
            const bool turns = type == EVENT_PAGE_UP || type == EVENT_PAGE_DOWN;
            EXPECT_EQ(board->m_nNowPage, turns ? 5 : 2) << type << ": from the scroll";
            EventLoop::deliver();
            EXPECT_EQ(paints.count() > 0, turns) << type;
        }
    }
}

TEST_F(ZELTextBoardTest, anythingBelowAClickIsQts)
{
    Board* const board = boardOf(20, 10);
    for (const int type : {1000, int(EVENT_WINDOW_ACTIVATE), int(EVENT_MOUSE_DOWN)}) {
        for (const Kind kind : allKinds)
            EXPECT_EQ(handOver(board, "ZELTextBoard", {type, kind}), (Outcome{true, {}, {}}));
    }
    EXPECT_FALSE(send(board, {900, Kind::Plain})) << "Qt's own range, and unknown to it";
}

TEST_F(ZELTextBoardTest, itsScrollTurnsItsPages)
{
    Board* const board = boardOf(20, 10);
    board->setText(paragraphs(30));
    Touch::tapWindow(partOf(board->m_pScroll, "downbtn")->getQWidget());
    EventLoop::deliver();
    EXPECT_EQ(board->m_nNowPage, 2);
    Touch::tapWindow(partOf(board->m_pScroll, "upbtn")->getQWidget());
    EventLoop::deliver();
    EXPECT_EQ(board->m_nNowPage, 1);
    EXPECT_TRUE(panel().take().empty()) << "a page turn ends here";
}

TEST_F(ZELTextBoardTest, reportsATouchAtTheReleaseAlone)
{
    Board* const board = boardOf(20, 10);
    Touch::pressWindow(board, QPoint(40, 60));
    EXPECT_TRUE(panel().take().empty());
    Touch::releaseWindow(board, QPoint(790, 470));
    EXPECT_EQ(toldOne(board), "1552 ZELEvent brd") << "wherever the finger is";
}

TEST_F(ZELTextBoardTest, aTouchOnADimButtonOfItsScrollIsATouchOnTheBoard)
{
    Board* const board = boardOf(20, 10);
    board->setText("a");
    const QWidget* const up = partOf(board->m_pScroll, "upbtn")->getQWidget();
    ASSERT_FALSE(up->isEnabled());
    Touch::tapWindow(up);
    EXPECT_EQ(toldOne(board), "1552 ZELEvent brd");
}

TEST_F(ZELTextBoardTest, withoutAParentItSaysSo)
{
    expectScrollLines();
    Board board(nullptr, "brd", "ZELTextBoard",
                element(page(boardElement(300, 200) + components())));
    log().expectError("[mouseReleaseEvent] brd has no parent", 1, "ZELTextBoard");
    Touch::tap(&board);
}

// ---- bad layouts

TEST_F(ZELTextBoardTest, aNullLayoutGivesABoardWithoutAnything)
{
    log().expectError("[createSubComponent] ZELTextBoard, Node * pLayout == NULL");
    log().expectError("[setLayout] brd pLayout == NULL", 1, "ZELTextBoard");
    log().expectError("[paintEvent] brd has no font", 1, "ZELTextBoard");
    log().expectError("[setText] brd has no scroll", 1, "ZELTextBoard");
    auto* const board = new Board(&panel(), "brd", "ZELTextBoard", nullptr);
    log().expectInOrder({"[E] [createSubComponent] ZELTextBoard, Node * pLayout == NULL",
                         "[E] [setLayout] brd pLayout == NULL"});
    EXPECT_EQ(board->geometry(), QRect(0, 0, 100, 30)) << "never placed";
    EXPECT_EQ(board->m_nPageLines, 1);
    board->showWindow();
    board->setText("one\ntwo");
    EXPECT_EQ(board->getText(), "one\ntwo");
    Pixels::grab(board);
    Pixels::grab(board);
    EXPECT_TRUE(send(board, {EVENT_PAGE_DOWN, Kind::Range}));
}

TEST_F(ZELTextBoardTest, withoutAScrollItStillPreparesItsPages)
{
    Board* const board =
        make<Board>(page(boardElement(300, 10 * heightOf("normal"))), "ZELTextBoard");
    log().expectError("[setText] brd has no scroll", 1, "ZELTextBoard");
    board->setText(paragraphs(30));
    EXPECT_EQ(board->m_nTotalPage, 4);
    EXPECT_EQ(board->m_lstLines.size(), 30);
    EXPECT_EQ(log().count("[D] total page : 4", "ZELTextBoard"), 1);
    EXPECT_TRUE(send(board, {EVENT_PAGE_DOWN, Kind::Range}));
    EXPECT_EQ(board->m_nNowPage, 1);
    EXPECT_GT(Pixels::inkInside(Pixels::grab(board), board->m_rcBoard), 0);
}

TEST_F(ZELTextBoardTest, aScrollThatIsGoneIsNone)
{
    Board* const board = boardOf(20, 10);
    delete board->getSubComponent("scr")->getQWidget();
    log().expectError("[setText] brd has no scroll", 1, "ZELTextBoard");
    board->setText(paragraphs(30));
    EXPECT_TRUE(send(board, {EVENT_PAGE_DOWN, Kind::Range}));
    EXPECT_EQ(board->m_nNowPage, 1);
}

TEST_F(ZELTextBoardTest, withoutAStyleItKeepsTheTextAndPaintsNothing)
{
    for (const char* attributes : {"", "style='nosuch'", "titlestyle='big'"}) {
        log().expectError("[setLayout] brd has no font", 1, "ZELTextBoard");
        Board* const board = this->board(200, 100, "", attributes);
        board->setText("one two\nthree");
        EXPECT_EQ(board->getText(), "one two\nthree");
        EXPECT_EQ(board->m_lstLines.size(), 2);
        EXPECT_EQ(Pixels::inkInside(Pixels::grab(board), board->m_rcBoard), 0);
        log().verify();
    }
}

TEST_F(ZELTextBoardTest, aTitleStyleThatThereIsNotLeavesTheTextToBeRead)
{
    log().expectError("[setLayout] brd has no title font", 1, "ZELTextBoard");
    Board* const board =
        this->board(200, 10 * heightOf("normal"), "", "style='normal' titlestyle='nosuch'");
    EXPECT_EQ(board->m_nPageLines, 10);
    EXPECT_EQ(board->m_nTitleLines, 1) << "as with the style of the text";
    board->setText("one");
    EXPECT_GT(Pixels::inkInside(Pixels::grab(board), board->m_rcBoard), 0);
}

TEST_F(ZELTextBoardTest, aBoardLowerThanALineHasOnePageAndShowsNothing)
{
    const std::string lower = "[setText] brd: the board is lower than a line";
    for (const int height : {heightOf("normal") - 1, 0, -50}) {
        log().expectError(lower, 1, "ZELTextBoard");
        Board* const board = this->board(200, height);
        board->setText(paragraphs(30));
        EXPECT_EQ(board->m_nTotalPage, 1);
        EXPECT_EQ(board->m_lstLines.size(), 30);
        EXPECT_EQ(Pixels::inkInside(Pixels::grab(board), QRect(0, 0, 480, 400)), 0);
        log().verify();
    }
    expectScrollLines();
    log().expectError(lower, 1, "ZELTextBoard");
    make<Board>(page(components()), "ZELTextBoard")->setText("no board at all");
}
