#pragma once

#include "components/lists/ListTest.h"
#include "components/lists/ZELListScroll.h"
#include "components/lists/ZELTextBoard.h"

#include <QStringList>

#include <string>
#include <vector>

namespace PANFx::Testing {

/** A text board whose inside is open. */
class Board : public OpenedPart<Components::ZELTextBoard>
{
public:
    using OpenedPart::OpenedPart;

    using ZELTextBoard::m_lstLines;
    using ZELTextBoard::m_nAlign;
    using ZELTextBoard::m_nIndent;
    using ZELTextBoard::m_nLineHeight;
    using ZELTextBoard::m_nNowPage;
    using ZELTextBoard::m_nPageLines;
    using ZELTextBoard::m_nTitleLines;
    using ZELTextBoard::m_nTotalPage;
    using ZELTextBoard::m_pFont;
    using ZELTextBoard::m_pScroll;
    using ZELTextBoard::m_pTitleFont;
    using ZELTextBoard::m_rcBoard;
    using ZELTextBoard::m_strText;
    using ZELTextBoard::m_strTitle;

    /** The lines that a text is broken into, UTF-8. */
    std::vector<std::string> linesOf(const std::string& text)
    {
        setText(text);
        std::vector<std::string> lines;
        for (const QString& line : m_lstLines)
            lines.push_back(line.toStdString());
        return lines;
    }

    static std::intptr_t slotOfPress() { return slot(&Board::mousePressEvent); }
    static std::intptr_t slotOfRelease() { return slot(&Board::mouseReleaseEvent); }
};

/**
 * The fixture of text boards: "brd", 600 by 400 at 10, 20, with a scroll at its right. The styles
 * are "normal", "big", whose lines are higher, and "tiny". The fonts are those of a typewriter,
 * so widths can be counted in columns.
 */
class BoardTest : public ListTest
{
protected:
    using Lines = std::vector<std::string>;

    BoardTest()
    {
        writeStyle("<style><Font>"
                   "<normal size='14' family='DejaVu Sans Mono' color='000000'/>"
                   "<big size='24' family='DejaVu Sans Mono' color='ff0000'/>"
                   "<tiny size='5' family='DejaVu Sans Mono' color='0000ff'/>"
                   "</Font></style>");
    }

    static int heightOf(const std::string& styleName)
    {
        return QFontMetrics(*style(styleName)->m_pFont).height();
    }

    static int widthOf(const QString& text)
    {
        return QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(text);
    }

    /** The pixels that so many letters take. */
    static int columns(int count) { return widthOf(QString(count, QLatin1Char('M'))); }

    static std::string boardElement(int width, int height, const std::string& attributes = "")
    {
        return "<board x='10' y='20' width='" + std::to_string(width) + "' height='" +
               std::to_string(height) + "' " + attributes + "/>";
    }

    static std::string page(const std::string& parts,
                            const std::string& attributes = "style='normal'")
    {
        return "<brd " + attributes + ">" + at(10, 20, 600, 400) + parts + "</brd>";
    }

    static std::string components()
    {
        return group("Components", group("listscroll", "<scr>" + at(500, 0, 60, 120) + label +
                                                           pageUp + pageDown + "</scr>"));
    }

    /** A board with a scroll, on the panel and shown; its text area begins at 10, 20. */
    Board* board(int width, int height, const std::string& boardAttributes = "",
                 const std::string& attributes = "style='normal'")
    {
        expectScrollLines();
        return make<Board>(
            page(boardElement(width, height, boardAttributes) + components(), attributes),
            "ZELTextBoard");
    }

    /** One that is so many columns wide and so many lines of its font high. */
    Board* boardOf(int columnCount, int lines, int indentColumns = 0)
    {
        return board(columns(columnCount), lines * heightOf("normal"),
                     "indent='" + std::to_string(columns(indentColumns)) + "'");
    }

    /** A text of so many paragraphs of one letter each: "a\nb\nc". */
    static std::string paragraphs(int count)
    {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += (i > 0 ? "\n" : "") + std::string(1, static_cast<char>('a' + i % 26));
        return text;
    }
};

} // namespace PANFx::Testing
