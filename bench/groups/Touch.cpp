#include "Candidate.h"
#include "Harness.h"
#include "Process.h"
#include "groups/Groups.h"

#include <QCoreApplication>

#include <cstdio>
#include <map>

namespace bench {

namespace {

constexpr Goal clickGoal{0.5};
constexpr Goal repaintGoal{1.0};
const QPoint buttonPlace(40, 24); // in the middle of the first button

struct Touched
{
    std::string key;
    std::unique_ptr<Candidate> pCandidate;
};

std::vector<Touched> touchedCandidates(const Site& site)
{
    std::vector<Touched> all;
    for (const char* key : {"code", "ours", "plain", "qml-cache"})
        all.push_back({key, maker(key).make(site)});
    all.push_back({"qt-buttons", makeCodeWithQtButtons(site)});
    for (Touched& touched : all) {
        touched.pCandidate->open();
        touched.pCandidate->load(common60);
    }
    settle();
    return all;
}

Course repaintCourse(Touched& touched)
{
    Candidate& candidate = *touched.pCandidate;
    return {touched.key, [&candidate](Watch& watch) {
                candidate.onClick = [] {};
                candidate.activate();
                candidate.expectPaint();
                watch.start();
                candidate.press(buttonPlace);
                candidate.waitPainted();
                watch.lap();
                candidate.release(buttonPlace);
                settle();
            }};
}

// The watch stops in the handler; the repaint that follows is not counted.
Course clickCourse(Touched& touched)
{
    Candidate& candidate = *touched.pCandidate;
    return {touched.key, [&candidate](Watch& watch) {
                candidate.onClick = [&watch] { watch.lap(); };
                candidate.activate();
                watch.start();
                candidate.press(buttonPlace);
                candidate.release(buttonPlace);
                while (watch.laps().empty())
                    QCoreApplication::processEvents();
                settle();
            }};
}

std::map<std::string, double> measured(std::vector<Course> courses, int turns)
{
    alternate(courses, Plan{turns, 8, 8});
    std::map<std::string, double> medians;
    for (const Course& course : courses)
        medians[course.name] = course.laps[0].median();
    return medians;
}

/** A row for each pair of a key and a name; the first is the floor and the second is ours. */
void rows(Run& run, const std::map<std::string, double>& values,
          const std::vector<std::pair<std::string, std::string>>& names, Goal goal)
{
    const double floor = values.at(names[0].first);
    for (const auto& [key, name] : names)
        run.table.ratio(name, microseconds(values.at(key)), values.at(key) / floor,
                        key == names[1].first ? goal : Goal{});
}

} // namespace

void childTouch(const Site& site, int turns)
{
    std::vector<Touched> all = touchedCandidates(site);
    std::vector<Course> repaints;
    std::vector<Course> clicks;
    for (Touched& touched : all) {
        repaints.push_back(repaintCourse(touched));
        if (touched.key == "ours" || touched.key == "qt-buttons")
            clicks.push_back(clickCourse(touched));
    }
    for (const auto& [key, value] : measured(repaints, turns))
        std::printf("repaint:%s %.1f\n", key.c_str(), value);
    for (const auto& [key, value] : measured(clicks, turns))
        std::printf("click:%s %.1f\n", key.c_str(), value);
}

void measureTouch(Run& run)
{
    if (!libraryHasButtons())
        return;
    const EnvironmentVariable silence("LD_PRELOAD", besideOwnPath("qtpanfx_bench_silent_log.so"));
    const std::map<std::string, double> values = figuresOf(
        runChild({ownPath(), "--site", run.site.root(), "--touch", run.bQuick ? "10" : "200"}));
    if (values.size() != 7) {
        run.table.fault("the child process for touches failed");
        return;
    }
    run.table.group("Press and release until the handler has the click, log calls empty");
    rows(run, values,
         {{"click:qt-buttons", "code with QAbstractButton"},
          {"click:ours", "QTPANFx, page's event"}},
         clickGoal);
    run.table.group("Press until the button is repainted, log calls empty");
    rows(run, values,
         {{"repaint:code", maker("code").name},
          {"repaint:ours", maker("ours").name},
          {"repaint:qt-buttons", "code with QAbstractButton"},
          {"repaint:plain", maker("plain").name},
          {"repaint:qml-cache", "QML plain"}},
         repaintGoal);
}

} // namespace bench
