// Tabs and gauges: a page with tabs from its file to the screen, the other tab brought up, and
// gauges on their way from 0 to 100.

#include "Candidate.h"
#include "Harness.h"
#include "groups/Groups.h"
#include "groups/Lineup.h"

#include <QCoreApplication>

namespace bench {

namespace {

constexpr const char* oneFullTab = "tab60";
constexpr const char* twoFullTabs = "tabs60";
constexpr const char* roundPage = "round";
constexpr const char* barPage = "bar";
constexpr int steps = 101;
const Likeness likeTabs{0.2, 0.003}; // less than the labels

void measureTabLoad(Run& run)
{
    Lineup lineup(run.site);
    measureLoad(run, lineup, {oneFullTab, "Tab with 60 widgets and an empty one", likeTabs},
                run.bQuick ? Plan{4} : Plan{51});
}

void measureTabSwitch(Run& run)
{
    Lineup lineup(run.site, {"code", "ours", "classes", "plain", "qml-memory"});
    Likeness otherTab = likeTabs;
    otherTab.change = [](Candidate& candidate) { candidate.showTab(1); };
    lineup.comparePictures(run.table, twoFullTabs, {}, otherTab);
    std::vector<int> tabs(lineup.entries().size(), 0);
    std::vector<Course> courses;
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        Lineup::Entry& entry = lineup.entries()[i];
        entry.pCandidate->load(twoFullTabs);
        settle();
        courses.push_back(
            changeCourse(entry.name, *entry.pCandidate, [&tab = tabs[i]](Candidate& candidate) {
                candidate.showTab(tab = 1 - tab);
            }));
    }
    alternate(courses, run.bQuick ? Plan{5} : Plan{51});
    run.table.group("Switch between two tabs of 60 widgets until painted");
    ratioRows(run.table, courses, 0, {});
}

// A paint may ask for another one, as that of a widget does that changes its mask.
void paintAll(Candidate& candidate)
{
    bool painted = candidate.waitPainted();
    while (painted) {
        candidate.expectPaint();
        QCoreApplication::processEvents();
        painted = candidate.wasPainted();
    }
}

Course stepsCourse(const std::string& name, Candidate& candidate)
{
    return {name, [&candidate](Watch& watch) {
                candidate.activate();
                watch.start();
                for (int percent = 0; percent < steps; ++percent) {
                    candidate.expectPaint();
                    candidate.setPercent(percent);
                    paintAll(candidate);
                }
                watch.lap();
            }};
}

void measureGauge(Run& run, const std::string& page, const std::string& title,
                  const std::vector<std::string>& keys, const std::vector<std::string>& names)
{
    Lineup lineup(run.site, keys);
    Likeness half{0.03, 0.01};
    half.change = [](Candidate& candidate) { candidate.setPercent(50); };
    lineup.comparePictures(run.table, page, run.pictures, half);
    std::vector<Course> courses;
    for (std::size_t i = 0; i < names.size(); ++i) {
        Candidate& candidate = *lineup.entries()[i].pCandidate;
        candidate.load(page);
        candidate.setPercent(steps - 1);
        settle();
        courses.push_back(stepsCourse(names[i], candidate));
    }
    alternate(courses, run.bQuick ? Plan{2, 1, 2} : Plan{16, 1, 2});
    run.table.group(title);
    ratioRows(run.table, courses, 0, {});
}

} // namespace

void measureGauges(Run& run)
{
    run.site.write(tabPage(oneFullTab, {60, 0}));
    run.site.write(tabPage(twoFullTabs, {60, 60}));
    run.site.write(gaugePage(roundPage, Item::Kind::RoundGauge));
    run.site.write(gaugePage(barPage, Item::Kind::BarGauge));
    measureTabLoad(run);
    measureTabSwitch(run);
    measureGauge(run, roundPage, "Round gauge of 200 by 200, 101 steps, each until painted",
                 {"code", "ours"}, {"code, a pie without a mask", "QTPANFx"});
    measureGauge(run, barPage, "Bar gauge of 400 by 40, 101 steps, each until painted",
                 {"code", "ours", "plain", "qml-memory"},
                 {maker("code").name, maker("ours").name, "QProgressBar, style sheet",
                  maker("qml-memory").name});
}

} // namespace bench
