#include "support/LogCapture.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <syslog.h>

namespace PANFx::Testing {

namespace {

const std::string errorPrefix = "[E] ";

struct Announcement
{
    std::string text;
    std::string className;
    int times;
};

struct Record
{
    std::mutex mutex;
    std::vector<LogLine> lines;
    std::vector<LogCall> calls;
    std::vector<LogLine> errors; // kept apart, since startHere() must not hide them
    std::vector<Announcement> announcements;
    size_t firstLine = 0;
    size_t firstCall = 0;
    LogLine current; // what openlog said last
    bool passThrough = false;
};

Record& record()
{
    static Record* const theRecord = new Record; // outlives the last line of the program
    return *theRecord;
}

std::lock_guard<std::mutex> locked()
{
    return std::lock_guard<std::mutex>(record().mutex);
}

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

std::string formatted(const char* format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int size = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (size < 0)
        return "";
    std::string text(static_cast<size_t>(size) + 1, '\0');
    vsnprintf(text.data(), text.size(), format, arguments);
#pragma GCC diagnostic pop
    text.pop_back();
    return text;
}

template <typename Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void noteOpen(const char* identity, int option, int facility)
{
    const auto lock = locked();
    LogLine& current = record().current;
    current.identity = identity ? identity : "";
    current.option = option;
    current.facility = facility;
    current.open = true;
    record().calls.push_back(LogCall::Open);
    if (record().passThrough)
        next<void (*)(const char*, int, int)>("openlog")(identity, option, facility);
}

void noteWrite(int priority, const std::string& text)
{
    const auto lock = locked();
    LogLine line = record().current;
    line.priority = priority;
    line.text = text;
    record().lines.push_back(line);
    record().calls.push_back(LogCall::Write);
    if (startsWith(text, errorPrefix))
        record().errors.push_back(line);
    if (record().passThrough)
        next<void (*)(int, const char*, ...)>("syslog")(priority, "%s", text.c_str());
}

void noteClose()
{
    const auto lock = locked();
    record().current.open = false;
    record().calls.push_back(LogCall::Close);
    if (record().passThrough)
        next<void (*)()>("closelog")();
}

// takes one announcement that fits the line; one that names the class goes first
bool takeAnnouncement(const LogLine& error)
{
    Announcement* found = nullptr;
    for (Announcement& announced : record().announcements) {
        if (announced.times == 0 || errorPrefix + announced.text != error.text)
            continue;
        if (announced.className == error.className())
            found = &announced;
        else if (announced.className.empty() && !found)
            found = &announced;
    }
    if (found)
        --found->times;
    return found != nullptr;
}

} // namespace

std::string LogLine::className() const
{
    const size_t start = std::min(identity.find(' '), identity.size() - 1) + 1;
    return identity.substr(start, identity.find(' ', start) - start);
}

LogCapture& LogCapture::instance()
{
    static LogCapture theCapture;
    return theCapture;
}

void LogCapture::expectError(const std::string& text, int times, const std::string& className)
{
    const auto lock = locked();
    record().announcements.push_back({text, className, times});
}

void LogCapture::verify()
{
    std::vector<std::string> faults;
    {
        const auto lock = locked();
        std::map<std::string, int> unannounced; // each text once, however often it came
        for (const LogLine& error : record().errors) {
            if (!takeAnnouncement(error))
                ++unannounced[error.className() + ": " + error.text];
        }
        for (const auto& [line, times] : unannounced)
            faults.push_back("error line that was not announced, " + std::to_string(times) +
                             " times, of " + line);
        for (const Announcement& announced : record().announcements) {
            if (announced.times > 0)
                faults.push_back("error line that was announced and did not come, " +
                                 std::to_string(announced.times) + " times: " + errorPrefix +
                                 announced.text);
        }
        record().errors.clear();
        record().announcements.clear();
    }
    for (const std::string& fault : faults)
        ADD_FAILURE() << fault;
}

void LogCapture::reset()
{
    const auto lock = locked();
    Record& all = record();
    all.lines.clear();
    all.calls.clear();
    all.errors.clear();
    all.announcements.clear();
    all.firstLine = 0;
    all.firstCall = 0;
    all.passThrough = false;
}

void LogCapture::startHere()
{
    const auto lock = locked();
    record().firstLine = record().lines.size();
    record().firstCall = record().calls.size();
}

std::vector<LogLine> LogCapture::lines() const
{
    const auto lock = locked();
    const auto first = record().lines.begin() + static_cast<std::ptrdiff_t>(record().firstLine);
    return std::vector<LogLine>(first, record().lines.end());
}

std::vector<std::string> LogCapture::texts(const std::string& className) const
{
    std::vector<std::string> found;
    for (const LogLine& line : lines()) {
        if (className.empty() || line.className() == className)
            found.push_back(line.text);
    }
    return found;
}

int LogCapture::count(const std::string& text, const std::string& className) const
{
    const std::vector<std::string> all = texts(className);
    return static_cast<int>(std::count(all.begin(), all.end(), text));
}

int LogCapture::countLevel(char level) const
{
    const std::string prefix = std::string("[") + level + "] ";
    const std::vector<std::string> all = texts();
    return static_cast<int>(
        std::count_if(all.begin(), all.end(),
                      [&prefix](const std::string& text) { return startsWith(text, prefix); }));
}

void LogCapture::expectInOrder(const std::vector<std::string>& expected) const
{
    const std::vector<std::string> all = texts();
    auto from = all.begin();
    for (const std::string& text : expected) {
        const auto found = std::find(from, all.end(), text);
        if (found == all.end()) {
            const bool earlier = std::find(all.begin(), from, text) != from;
            ADD_FAILURE() << "log line " << (earlier ? "came too early: " : "is missing: ") << text
                          << "\nwritten: " << ::testing::PrintToString(all);
            return;
        }
        from = found + 1;
    }
}

std::vector<LogCall> LogCapture::calls() const
{
    const auto lock = locked();
    const auto first = record().calls.begin() + static_cast<std::ptrdiff_t>(record().firstCall);
    return std::vector<LogCall>(first, record().calls.end());
}

void LogCapture::passThrough(bool on)
{
    const auto lock = locked();
    record().passThrough = on;
}

} // namespace PANFx::Testing

// ---- the definitions that stand in front of the C library's; the checked forms are what a
// program built with -D_FORTIFY_SOURCE calls

using namespace PANFx::Testing;

#define IN_FRONT_OF(name) __asm__(name) __attribute__((visibility("default"), used))

extern "C" {

void capture_openlog(const char* identity, int option, int facility) IN_FRONT_OF("openlog");
void capture_syslog(int priority, const char* format, ...) IN_FRONT_OF("syslog");
void capture_vsyslog(int priority, const char* format, va_list arguments) IN_FRONT_OF("vsyslog");
void capture_syslog_chk(int priority, int flag, const char* format, ...)
    IN_FRONT_OF("__syslog_chk");
void capture_vsyslog_chk(int priority, int flag, const char* format, va_list arguments)
    IN_FRONT_OF("__vsyslog_chk");
void capture_closelog() IN_FRONT_OF("closelog");

} // extern "C"

void capture_openlog(const char* identity, int option, int facility)
{
    noteOpen(identity, option, facility);
}

void capture_syslog(int priority, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    noteWrite(priority, formatted(format, arguments));
    va_end(arguments);
}

void capture_vsyslog(int priority, const char* format, va_list arguments)
{
    noteWrite(priority, formatted(format, arguments));
}

void capture_syslog_chk(int priority, int /*flag*/, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    noteWrite(priority, formatted(format, arguments));
    va_end(arguments);
}

void capture_vsyslog_chk(int priority, int /*flag*/, const char* format, va_list arguments)
{
    noteWrite(priority, formatted(format, arguments));
}

void capture_closelog()
{
    noteClose();
}
