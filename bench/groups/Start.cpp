#include "Process.h"
#include "groups/Groups.h"
#include "groups/Lineup.h"

namespace bench {

namespace {

constexpr Goal startGoal{1.1};

// Each of these has a small program of its own, which loads the libraries that the candidate
// needs and no other's.
constexpr const char* started[] = {"code", "ours", "classes", "qml-cache"};

Course startCourse(Run& run, const std::string& key, const std::string& page)
{
    const std::vector<std::string> command = {besideOwnPath("qtpanfx_bench_start_" + key),
                                              run.site.root(), page};
    return {maker(key).name, [&run, command](Watch& watch) {
                const ChildResult result = runChild(command);
                watch.add(result.nanoseconds);
                if (!result.bGood)
                    run.table.fault(command.front() + " failed");
            }};
}

void startRows(Run& run, const std::string& title, const std::string& page)
{
    std::vector<Course> courses;
    for (const char* key : started)
        courses.push_back(startCourse(run, key, page));
    alternate(courses, run.bQuick ? Plan{9, 0, 1} : Plan{101, 0, 1});
    run.table.group(title);
    ratioRows(run.table, courses, 0, startGoal);
}

} // namespace

void measureStart(Run& run)
{
    startRows(run, "Process start to the first painted page of 60 image boxes", pictures60);
    if (libraryHasButtons())
        startRows(run, "Process start to the first painted common page of 60 widgets", common60);
}

} // namespace bench
