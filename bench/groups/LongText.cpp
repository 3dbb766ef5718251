// A long text in a text board: broken into lines when it is set.

#include "Candidate.h"
#include "Harness.h"
#include "groups/Groups.h"
#include "peers/PanelFrame.h"

#include "components/lists/ZELTextBoard.h"

#include <QStringList>
#include <QTextLayout>

#include <cstdlib>

namespace bench {

namespace {

using PANFx::Components::ZELTextBoard;

constexpr const char* pageName = "board";
constexpr const char* boardId = "text";
constexpr int boardWidth = 600;
constexpr int paragraphWords = 80;
constexpr double growthTolerance = 1.5;

/** The library's board with its lines shown. */
class Board : public ZELTextBoard
{
public:
    static int linesOf(const ZELTextBoard& board)
    {
        return static_cast<int>((board.*(&Board::m_lstLines)).size());
    }
};

std::string boardLayout()
{
    const std::string scroll = "<scroll><position x=\"620\" y=\"0\" width=\"80\" height=\"300\"/>"
                               "<page x=\"0\" y=\"100\" width=\"80\" height=\"48\" style=\"body\"/>"
                               "<upbtn x=\"0\" y=\"0\" width=\"80\" height=\"48\"/>"
                               "<downbtn x=\"0\" y=\"200\" width=\"80\" height=\"48\"/></scroll>";
    return std::string("<textboard><") + boardId +
           " style=\"body\"><position x=\"20\" y=\"20\" width=\"720\" height=\"440\"/>"
           "<board x=\"0\" y=\"0\" width=\"" +
           std::to_string(boardWidth) + "\" height=\"440\"/><Components><listscroll>" + scroll +
           "</listscroll></Components></" + boardId + "></textboard>";
}

std::string textOf(std::size_t bytes)
{
    const char* const words[] = {"The",    "sample", "is",     "drawn", "into", "a",
                                 "clean",  "tube",   "before", "it",    "can",  "be",
                                 "placed", "under",  "the",    "needle"};
    std::string text;
    for (unsigned i = 0; text.size() < bytes; ++i)
        text += words[(i * 7 + i / 5) % std::size(words)] +
                std::string(i % paragraphWords == paragraphWords - 1 ? "\n" : " ");
    text.resize(bytes);
    return text;
}

/** What somebody does by hand who wants the same lines. */
QStringList linesByHand(const std::string& text)
{
    const QFont font(QString::fromLatin1(Site::fontFamily), Site::pointSize);
    QStringList lines;
    const QStringList paragraphs = QString::fromStdString(text).split(QLatin1Char('\n'));
    for (const QString& paragraph : paragraphs) {
        QTextLayout layout(paragraph, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(boardWidth);
            lines.append(paragraph.mid(line.textStart(), line.textLength()));
        }
        layout.endLayout();
    }
    return lines;
}

} // namespace

void measureLongText(Run& run)
{
    run.site.writeComponents(pageName, boardLayout());
    const std::unique_ptr<Candidate> panel = maker("ours").make(run.site);
    panel->open();
    panel->load(pageName);
    settle();
    auto& board = currentFrame().component<ZELTextBoard>(boardId);

    const std::vector<int> kilobytes = {100, 50, 10};
    const std::string longest = textOf(100000);
    QStringList byHand;
    std::vector<Course> courses = {{"QTextLayout, 100 kB", [&](Watch& watch) {
                                        watch.start();
                                        byHand = linesByHand(longest);
                                        watch.lap();
                                    }}};
    for (const int size : kilobytes)
        courses.push_back({"QTPANFx, " + std::to_string(size) + " kB",
                           [&board, text = textOf(std::size_t(size) * 1000)](Watch& watch) {
                               watch.start();
                               board.setText(text);
                               watch.lap();
                               settle();
                           }});
    alternate(courses, run.bQuick ? Plan{2, 1, 2} : Plan{16, 1, 2});

    board.setText(longest);
    if (std::abs(Board::linesOf(board) - static_cast<int>(byHand.size())) > byHand.size() / 100)
        run.table.fault("the text board made " + std::to_string(Board::linesOf(board)) +
                        " lines, by hand there are " + std::to_string(byHand.size()));
    const auto time = [&courses](std::size_t course) { return courses[course].laps[0].median(); };
    run.table.group("A text of 100 kB broken into lines of 600 pixels: ZELTextBoard::setText");
    for (std::size_t i = 0; i < 2; ++i)
        run.table.ratio(courses[i].name, milliseconds(time(i)), time(i) / time(0));
    run.table.group("ZELTextBoard::setText, time for a byte (1.00 = in 10 kB)");
    const double smallest = time(courses.size() - 1) / kilobytes.back();
    for (std::size_t i = courses.size() - 1; i > 0; --i) {
        const double growth = time(i) / kilobytes[i - 1] / smallest;
        run.table.ratio(courses[i].name, milliseconds(time(i)), growth, {growthTolerance});
    }
    panel->unload();
}

} // namespace bench
