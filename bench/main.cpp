#include "LogSink.h"
#include "Process.h"
#include "groups/Groups.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sched.h>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace bench;

constexpr const char* usage =
    "usage: qtpanfx_bench [--quick] [--only GROUP] [--save-pictures DIR]\n"
    "  --quick          fewer turns, rough figures\n"
    "  --only GROUP     one of those that are listed below\n"
    "  --save-pictures  leaves what each candidate painted in DIR\n"
    "Ends with 1 when a measurement is not valid; a missed goal is only marked.\n";

struct Options
{
    bool bQuick = false;
    std::string only;
    std::string pictures;
    // the work of a child process
    std::string site;
    std::string child;
    std::string childArgument;
    std::string page;
};

struct Group
{
    const char* name;
    void (*measure)(Run&);
};

constexpr Group groups[] = {
    {"load", measurePageLoads},  {"switch", measurePageSwitch},   {"touch", measureTouch},
    {"image", measureImageHit},  {"strings", measureStringTable}, {"log", measureLogLine},
    {"compose", measureCompose}, {"typing", measureTyping},       {"lists", measureLists},
    {"gauges", measureGauges},   {"print", measurePrint},         {"memory", measureMemory},
    {"start", measureStart},     {"size", measureSize},
};

void printUsage()
{
    std::fputs(usage, stderr);
    std::fputs("Groups:", stderr);
    for (const Group& group : groups)
        std::fprintf(stderr, " %s", group.name);
    std::fputs("\n", stderr);
}

bool isGroup(const std::string& name)
{
    return std::any_of(std::begin(groups), std::end(groups),
                       [&name](const Group& group) { return name == group.name; });
}

bool readOptions(const std::vector<std::string>& words, Options& options)
{
    std::size_t at = 0;
    const auto next = [&words, &at] { return at < words.size() ? words[at++] : std::string(); };
    while (at < words.size()) {
        const std::string word = next();
        if (word == "--quick")
            options.bQuick = true;
        else if (word == "--only") {
            options.only = next();
            // a group that nobody knows would measure nothing and miss no goal
            if (!isGroup(options.only))
                return false;
        } else if (word == "--save-pictures")
            options.pictures = next();
        else if (word == "--site")
            options.site = next();
        else if (word == "--page")
            options.page = next();
        else if (word == "--memory-pages" || word == "--memory-locale" || word == "--heap" ||
                 word == "--touch" || word == "--cell-touch" || word == "--print") {
            options.child = word;
            options.childArgument = next();
        } else
            return false;
    }
    return options.child.empty() == options.site.empty();
}

/** Inherited by all child processes. Qt reads these when the application object is made. */
void prepareEnvironment(const Site& site)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_QPA_UPDATE_IDLE_TIME", "0", 1); // else an update waits for 5 ms
    setenv("QT_FONT_DPI", "72", 1);
    setenv("QT_QUICK_BACKEND", "software", 1);
    setenv("XDG_CACHE_HOME", (site.root() + "/cache").c_str(), 1); // of compiled QML
    setenv("QTPANFX_SYSROOT", site.root().c_str(), 1);
    setenv("XDG_RUNTIME_DIR", site.root().c_str(), 0);
    unsetenv("QML_DISABLE_DISK_CACHE");
    unsetenv("QT_SCALE_FACTOR");
}

void writePages(const Site& site)
{
    site.write(homePage());
    site.write(picturePage(pictures60, 60));
    site.write(picturePage(pictures60b, 60));
    site.write(picturePage(pictures600, 600));
    site.write(commonPage(common60, 60));
    site.write(commonPage(common60b, 60));
    site.write(commonPage(common600, 600));
}

std::string firstLineWith(const char* path, const std::string& word)
{
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        if (line.find(word) != std::string::npos)
            return line.substr(line.find(':') == std::string::npos ? 0 : line.find(':') + 2);
    }
    return "unknown";
}

void printHead(const LogSink& sink, bool realTime, bool quick)
{
    const std::time_t now = std::time(nullptr);
    char date[32];
    std::strftime(date, sizeof date, "%Y-%m-%d %H:%M", std::localtime(&now));
    std::printf("QTPANFx beside its peers, %s, Qt %s, offscreen\n", date, qVersion());
    std::printf("%s, %ld cores, load before the run %s\n",
                firstLineWith("/proc/cpuinfo", "model name").c_str(), sysconf(_SC_NPROCESSORS_ONLN),
                firstLineWith("/proc/loadavg", "").substr(0, 14).c_str());
    std::printf("Log: %s.\n", sink.description().c_str());
    std::puts(realTime ? "Scheduled in real time: other work does not interrupt a measurement."
                       : "Scheduled as usual: other work of the machine is in the figures.");
    if (quick)
        std::puts("A quick run: few turns, rough figures.");
#ifndef NDEBUG
    std::printf("Not a Release build: the figures are worth nothing.\n");
#endif
}

int runChildWork(const Options& options)
{
    const Site site(options.site);
    const auto number = [&options] { return std::stoi(options.childArgument); };
    if (options.child == "--memory-pages")
        childPageCycles(site, options.childArgument);
    else if (options.child == "--memory-locale")
        childLocaleCycles(site, number());
    else if (options.child == "--touch")
        childTouch(site, number());
    else if (options.child == "--cell-touch")
        childCellTouch(site, number());
    else if (options.child == "--print")
        childPrint(site, number());
    else
        childHeap(site, options.childArgument, options.page);
    return 0;
}

int runGroups(const Options& options, const Site& site, LogSink& sink, bool realTime)
{
    Table table;
    Run run{site, sink, table, options.bQuick, options.pictures};
    printHead(sink, realTime, options.bQuick);
    for (const Group& group : groups) {
        if (options.only.empty() || options.only == group.name)
            group.measure(run);
    }
    std::printf("\n%d goals missed, %d faults of measurement\n", table.missedGoals(),
                table.faults());
    return table.faults() == 0 ? 0 : 1;
}

/** Keeps other work of the machine out of the figures, where the machine lets us. */
bool askForRealTime()
{
    const sched_param parameters{1};
    return sched_setscheduler(0, SCHED_FIFO, &parameters) == 0;
}

/** A new directory, removed with all that is in it. */
class TemporaryDirectory
{
public:
    TemporaryDirectory()
        : m_path((std::filesystem::temp_directory_path() / "qtpanfx-bench-XXXXXX").string())
    {
        if (!mkdtemp(m_path.data()))
            throw std::runtime_error("cannot make a temporary directory");
    }

    ~TemporaryDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

int runAll(const Options& options, int argc, char** argv)
{
    const TemporaryDirectory directory;
    const Site site(directory.path());
    prepareEnvironment(site);
    const bool realTime = askForRealTime();
    LogSink sink; // forks, so before the application
    QApplication application(argc, argv);
    site.create();
    writePages(site);
    if (!options.pictures.empty())
        std::filesystem::create_directories(options.pictures);
    return runGroups(options, site, sink, realTime);
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    if (!readOptions({argv + 1, argv + argc}, options)) {
        printUsage();
        return 2;
    }
    try {
        if (options.child.empty())
            return runAll(options, argc, argv);
        QApplication application(argc, argv);
        return runChildWork(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "qtpanfx_bench: %s\n", error.what());
        return 1;
    }
}
