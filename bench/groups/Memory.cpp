#include "Candidate.h"
#include "Harness.h"
#include "Process.h"
#include "groups/Groups.h"
#include "peers/PanelFrame.h"

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace bench {

namespace {

constexpr int warmUpCycles = 200; // until caches and pools have their size
constexpr int pageCycles = 1000;
constexpr int localeCycles = 100;
constexpr Goal heapGoal{1.5};

void report(double bytes)
{
    std::printf("%.1f\n", bytes);
}

void waitForPaint(Candidate& candidate, const std::string& page)
{
    candidate.expectPaint();
    candidate.load(page);
    candidate.waitPainted();
    settle();
}

double growthPerCycle(const std::function<void()>& cycle, int cycles)
{
    for (int i = 0; i < warmUpCycles; ++i)
        cycle();
    const double before = heapInUse();
    for (int i = 0; i < cycles; ++i)
        cycle();
    return (heapInUse() - before) / cycles;
}

/** Median over some children, since addresses and hash seeds differ between processes. */
double childBytes(Run& run, const std::vector<std::string>& arguments, int runs)
{
    // blocks in the allocator's cache of a thread count as used, so the children do without it
    const EnvironmentVariable tuning("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
    Samples samples;
    for (int i = 0; i < runs; ++i) {
        std::vector<std::string> command = {ownPath(), "--site", run.site.root()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        const ChildResult result = runChild(command);
        if (!result.bGood) {
            run.table.fault("the child process for " + arguments.front() + " failed");
            return 0;
        }
        samples.add(std::strtod(result.output.c_str(), nullptr));
    }
    return samples.median();
}

void growthRow(Run& run, const std::string& name, const std::vector<std::string>& arguments,
               Goal goal)
{
    const double bytes = childBytes(run, arguments, 1);
    run.table.value(name, fixed(bytes, 1) + " B", bytes, goal);
}

void heapRows(Run& run, const std::string& title, const std::string& page)
{
    run.table.group(title);
    double floor = 0;
    for (const Maker& maker : makers()) {
        const double bytes =
            childBytes(run, {"--heap", maker.key, "--page", page}, run.bQuick ? 1 : 5);
        if (maker.key == "code")
            floor = bytes;
        run.table.ratio(maker.name, kibibytes(bytes), bytes / floor,
                        maker.key == "ours" ? heapGoal : Goal{});
    }
}

} // namespace

void childPageCycles(const Site& site, const std::string& key)
{
    const std::unique_ptr<Candidate> pCandidate = maker(key).make(site);
    pCandidate->open();
    report(growthPerCycle(
        [&pCandidate] {
            waitForPaint(*pCandidate, pictures60);
            pCandidate->unload();
        },
        pageCycles));
}

void childLocaleCycles(const Site& site, int styles)
{
    site.writeStyles(styles);
    PanelFrame frame(nullptr);
    frame.moveTo(pictures60, true, true);
    frame.show();
    settle();
    bool korean = false;
    report(growthPerCycle(
        [&frame, &korean] {
            korean = !korean;
            frame.moveTo(pictures60b, true, true);
            settle();
            frame.changeLanguage(korean ? "kr" : "");
        },
        localeCycles));
}

void childHeap(const Site& site, const std::string& key, const std::string& page)
{
    const std::unique_ptr<Candidate> pCandidate = maker(key).make(site);
    pCandidate->open();
    for (int i = 0; i < 3; ++i) { // pictures, styles and whatever else is kept once
        waitForPaint(*pCandidate, page);
        pCandidate->unload();
    }
    const double before = heapInUse();
    waitForPaint(*pCandidate, page);
    report(heapInUse() - before);
}

void measureMemory(Run& run)
{
    run.table.group("Heap growth per cycle, each in a process of its own");
    growthRow(run, "code, 1,000 pages built and deleted", {"--memory-pages", "code"}, {});
    growthRow(run, "QTPANFx, 1,000 pages built and deleted", {"--memory-pages", "ours"}, {1});
    growthRow(run, "QTPANFx, 100 languages, no styles", {"--memory-locale", "0"}, {1});
    growthRow(run, "QTPANFx, 100 languages, 4 styles", {"--memory-locale", "4"}, {});
    heapRows(run, "Heap of one built page of 60 image boxes", pictures60);
    if (libraryHasButtons())
        heapRows(run, "Heap of one built common page of 60 widgets", common60);
}

} // namespace bench
