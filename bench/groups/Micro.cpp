#include "Harness.h"
#include "Process.h"
#include "groups/Groups.h"

#include "common/SysLogger.h"
#include "resource/ZELResourceMgr.h"
#include "resource/ZELStringMgr.h"

#include <pugixml.hpp>
#include <syslog.h>
#include <unistd.h>
#include <unordered_map>

namespace bench {

namespace {

using PANFx::Common::SysLogger;
using PANFx::Resource::ZELResourceMgr;
using PANFx::Resource::ZELStringMgr;

constexpr const char* hitName = "p80x48_7.png";

void hitOften()
{
    for (int i = 0; i < 1000; ++i)
        ZELResourceMgr::getInstance()->getImage(hitName);
}

void askSystem()
{
    static_cast<void>(access("/", F_OK)); // the call is what counts
}

void proveNoSystemCall(Table& table)
{
    if (runsWithoutSystemCalls(askSystem) != 0) {
        table.note("system calls: not tested, the system can't forbid them here");
        return;
    }
    if (runsWithoutSystemCalls(hitOften) == 1)
        table.note("system calls: none; 1,000 hits ran in a process that may make no call");
    else
        table.fault("a repeated getImage makes a system call");
}

// ---- string table

using Strings = std::unordered_map<std::string, std::string>;

void loadByHand(const std::string& path, int column, Strings& strings)
{
    pugi::xml_document document;
    document.load_file(path.c_str());
    for (const pugi::xml_node& entry : document.document_element().children("String")) {
        pugi::xml_node child = entry.first_child();
        for (int i = 0; i < column; ++i)
            child = child.next_sibling();
        strings[entry.attribute("key").value()] = child.child_value();
    }
}

// ---- log

constexpr const char* lineText = "[%s] start strID: (%s), strResourceID: (%s)";

void logByHand(const std::string& identity)
{
    openlog(identity.c_str(), LOG_CONS | LOG_NDELAY, LOG_USER);
    syslog(LOG_DEBUG, lineText, "ZELChildWindow", "home", "home");
    closelog();
}

void logRows(Run& run, const std::string& with, int batch, int rounds)
{
    SysLogger logger;
    logger.SetIdentity("QTPANFx", "ZELChildWindow", false);
    const std::string identity = logger.m_strIdentity;
    const auto byHand = [&identity] { logByHand(identity); };
    const auto ours = [&logger] { logger.WriteInfo(lineText, "ZELChildWindow", "home", "home"); };
    Samples floor;
    Samples library;
    for (int round = 0; round < rounds; ++round) {
        floor.add(nanosecondsPerCall(byHand, batch, 1));
        library.add(nanosecondsPerCall(ours, batch, 1));
    }
    run.table.ratio("system library, " + with, microseconds(floor.median()), 1);
    run.table.ratio("SysLogger, " + with, microseconds(library.median()),
                    library.median() / floor.median());
}

} // namespace

void measureImageHit(Run& run)
{
    const std::string name = hitName;
    std::unordered_map<std::string, int> map;
    for (int i = 0; i < Site::pictureCount; ++i) {
        const std::string file = "p80x48_" + std::to_string(i) + ".png";
        map[file] = i;
        ZELResourceMgr::getInstance()->getImage(file);
    }
    volatile int found = 0;
    const double floor = nanosecondsPerCall(
        [&map, &name, &found] {
            // a copy, since the library takes names by value
            found = map.find(std::string(name))->second;
        },
        10000, 31);
    const double ours =
        nanosecondsPerCall([&name] { ZELResourceMgr::getInstance()->getImage(name); }, 10000, 31);
    run.table.group("A repeated getImage among 60 pictures (1.00 = std::unordered_map)");
    run.table.ratio("std::unordered_map", fixed(floor, 1) + " ns", 1);
    run.table.ratio("ZELResourceMgr::getImage", fixed(ours, 1) + " ns", ours / floor);
    proveNoSystemCall(run.table);
}

void measureStringTable(Run& run)
{
    const std::pair<const char*, int> columns[] = {{"kr", 0}, {"esp", 2}}; // by turns
    ZELStringMgr manager;
    manager.setBasePath("/app/bin/resource/"); // the library puts the root in front
    Strings strings;
    std::size_t floorTurn = 0;
    std::size_t turn = 0;
    std::vector<Course> courses;
    courses.push_back({"pugixml and std::unordered_map", [&](Watch& watch) {
                           watch.start();
                           loadByHand(run.site.stringTable(), columns[floorTurn++ % 2].second,
                                      strings);
                           watch.lap();
                       }});
    courses.push_back({"ZELStringMgr::changeLocale", [&](Watch& watch) {
                           watch.start();
                           manager.changeLocale(columns[turn++ % 2].first);
                           watch.lap();
                       }});
    alternate(courses, run.bQuick ? Plan{8} : Plan{31});
    run.table.group("Loading one language of a string table of 10 languages by 1,000 keys");
    const double floor = courses[0].laps[0].median();
    for (const Course& course : courses)
        run.table.ratio(course.name, milliseconds(course.laps[0].median()),
                        course.laps[0].median() / floor);
    if (manager.getLocaleString("text_999").empty() || strings["text_999"].empty())
        run.table.fault("the string table was not loaded");
}

void measureLogLine(Run& run)
{
    run.table.group("One log line (1.00 = the three system library calls)");
    if (!run.sink.isOurs()) {
        logRows(run, "as it is here", 4, 201);
        run.table.note("the other ways of the log: not measured, /dev/log is not ours");
        return;
    }
    logRows(run, "dropped", 4, 201);
    run.sink.setMode(LogSink::Mode::Read);
    logRows(run, "read", 4, 201);
    run.sink.setMode(LogSink::Mode::Gone);
    logRows(run, "no log", 4, 31);
    run.sink.setMode(LogSink::Mode::Drop);
}

} // namespace bench
