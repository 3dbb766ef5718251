// A list from its file to the screen, other texts in its cells as after a turn of its pages, and a
// touch of a cell.

#include "Candidate.h"
#include "Harness.h"
#include "Process.h"
#include "groups/Groups.h"
#include "groups/Lineup.h"

#include <QCoreApplication>

#include <cstdio>
#include <map>

namespace bench {

namespace {

constexpr const char* listName = "list10x6";

const Likeness likeTexts{0.005, 0.005}; // hardly more is painted than 60 short texts
const QPoint touchedCell(370, 216);     // in row 4, column 3

Lineup listLineup(const Site& site, const std::vector<std::string>& keys)
{
    Lineup lineup(site, keys);
    for (Lineup::Entry& entry : lineup.entries()) {
        if (entry.key == "plain")
            entry.name = "QUiLoader, QTableWidget";
    }
    return lineup;
}

void measureListLoad(Run& run)
{
    Lineup lineup =
        listLineup(run.site, {"code", "ours", "plain", "qml-memory", "qml-cache", "qml-text"});
    measureLoad(run, lineup, {listName, "List of 10 rows by 6 columns", likeTexts},
                run.bQuick ? Plan{4} : Plan{51});
}

void measureRefill(Run& run)
{
    Lineup lineup = listLineup(run.site, {"code", "ours", "plain", "qml-memory"});
    Likeness refilled = likeTexts;
    refilled.change = [](Candidate& candidate) { candidate.refill(cellTexts(7)); };
    lineup.comparePictures(run.table, listName, {}, refilled);
    int page = 0;
    const auto refill = [&page](Candidate& candidate) { candidate.refill(cellTexts(++page % 9)); };
    std::vector<Course> courses;
    for (Lineup::Entry& entry : lineup.entries()) {
        entry.pCandidate->load(listName);
        settle();
        courses.push_back(changeCourse(entry.name, *entry.pCandidate, refill));
    }
    alternate(courses, run.bQuick ? Plan{5} : Plan{51});
    run.table.group("Other texts in all 60 cells until painted, as after a turn of the page");
    ratioRows(run.table, courses, 0, {});
}

Course cellCourse(const std::string& key, Candidate& candidate)
{
    return {key, [&candidate](Watch& watch) {
                candidate.onCell = [&watch](int row, int column) {
                    if (row == 4 && column == 3)
                        watch.lap();
                };
                candidate.activate();
                watch.start();
                candidate.press(touchedCell);
                candidate.release(touchedCell);
                while (watch.laps().empty())
                    QCoreApplication::processEvents();
                settle();
            }};
}

void measureCellTouch(Run& run)
{
    const EnvironmentVariable silence("LD_PRELOAD", besideOwnPath("qtpanfx_bench_silent_log.so"));
    const std::map<std::string, double> values = figuresOf(runChild(
        {ownPath(), "--site", run.site.root(), "--cell-touch", run.bQuick ? "10" : "200"}));
    if (values.size() != 3) {
        run.table.fault("the child process for touches of cells failed");
        return;
    }
    run.table.group("Press and release until the page has row and column, log calls empty");
    const double table = values.at("plain");
    run.table.ratio("QTableWidget::cellClicked", microseconds(table), 1);
    run.table.ratio("QTPANFx, three posts", microseconds(values.at("ours")),
                    values.at("ours") / table);
    run.table.ratio("QML plain", microseconds(values.at("qml-memory")),
                    values.at("qml-memory") / table);
}

} // namespace

void childCellTouch(const Site& site, int turns)
{
    std::vector<std::unique_ptr<Candidate>> candidates;
    std::vector<Course> courses;
    for (const char* key : {"plain", "ours", "qml-memory"}) {
        candidates.push_back(maker(key).make(site));
        Candidate& candidate = *candidates.back();
        candidate.onCell = [](int, int) {};
        candidate.open();
        candidate.load(listName);
        courses.push_back(cellCourse(key, candidate));
    }
    settle();
    alternate(courses, Plan{turns, 8, 8});
    for (const Course& course : courses)
        std::printf("%s %.1f\n", course.name.c_str(), course.laps[0].median());
}

void measureLists(Run& run)
{
    run.site.write(listPage(listName));
    measureListLoad(run);
    measureRefill(run);
    measureCellTouch(run);
    measureLongText(run);
}

} // namespace bench
