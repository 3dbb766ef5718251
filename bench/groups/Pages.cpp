#include "groups/Groups.h"
#include "groups/Lineup.h"

#include "components/ComponentFactory.h"
#include "components/ZELComponent.h"

#include <QWidget>

namespace bench {

namespace {

constexpr Goal liveGoal{1.3};
constexpr Goal paintedGoal{1.15};
constexpr Goal growthGoal{10.5};
constexpr Goal switchGoal{1.1};

void measureGrowth(Run& run, Lineup& lineup, const std::string& small, const std::string& large)
{
    std::vector<Course> courses;
    for (const char* key : {"code", "ours"}) {
        Candidate& candidate = lineup.candidate(key);
        courses.push_back(loadCourse(key, candidate, small));
        courses.push_back(loadCourse(key, candidate, large));
    }
    alternate(courses, run.bQuick ? Plan{3} : Plan{16});
    const auto growth = [&courses](std::size_t first) {
        return courses[first + 1].laps[0].median() / courses[first].laps[0].median();
    };
    run.table.group("Growth of live, " + large + " against " + small + ", as a factor");
    run.table.value("code (the floor)", fixed(growth(0), 2), growth(0));
    run.table.value("QTPANFx", fixed(growth(2), 2), growth(2), growthGoal);
}

void measureSwitch(Run& run, const std::string& title, const std::string& first,
                   const std::string& second)
{
    Lineup lineup(run.site); // its windows end up with both pages in them
    std::vector<Course> courses;
    for (Lineup::Entry& entry : lineup.entries()) {
        entry.pCandidate->keep(first, second);
        settle();
        courses.push_back(changeCourse(entry.name, *entry.pCandidate,
                                       [](Candidate& candidate) { candidate.switchPage(); }));
    }
    alternate(courses, run.bQuick ? Plan{5} : Plan{51});
    run.table.group(title);
    ratioRows(run.table, courses, 0, switchGoal);
}

} // namespace

bool libraryHasButtons()
{
    QWidget parent;
    return PANFx::Components::ComponentFactory::getInstance()->createComponent(
               &parent, "button", "probe", nullptr) != nullptr;
}

void measurePageLoads(Run& run)
{
    const Plan plan = run.bQuick ? Plan{4} : Plan{51};
    const Plan largePlan = run.bQuick ? Plan{2, 1, 2} : Plan{16, 2, 4};
    Lineup lineup(run.site);
    measureLoad(run, lineup, {pictures60, "Page load, 60 image boxes", {}, liveGoal, paintedGoal},
                plan);
    measureLoad(run, lineup, {pictures600, "Page load, 600 image boxes", {}, liveGoal}, largePlan);
    measureGrowth(run, lineup, pictures60, pictures600);
    if (!libraryHasButtons()) {
        run.table.group("Page load, 24 buttons, 24 labels, 12 image boxes");
        run.table.note("not measured: the library makes no buttons");
        return;
    }
    measureLoad(
        run, lineup,
        {common60, "Page load, 24 buttons, 24 labels, 12 image boxes", {}, liveGoal, paintedGoal},
        plan);
    measureLoad(run, lineup,
                {common600, "Page load, 240 buttons, 240 labels, 120 image boxes", {}, liveGoal},
                largePlan);
    measureGrowth(run, lineup, common60, common600);
}

void measurePageSwitch(Run& run)
{
    measureSwitch(run, "Switch between two built pages of 60 image boxes until painted", pictures60,
                  pictures60b);
    if (libraryHasButtons())
        measureSwitch(run, "Switch between two built common pages of 60 widgets until painted",
                      common60, common60b);
}

} // namespace bench
