#include "Table.h"

#include <cstdio>

namespace bench {

void Table::group(const std::string& title)
{
    std::printf("\n%s\n", title.c_str());
}

void Table::ratio(const std::string& name, const std::string& value, double ratio, Goal goal)
{
    row(name, value, fixed(ratio, 2), ratio, goal);
}

void Table::value(const std::string& name, const std::string& text, double value, Goal goal)
{
    row(name, text, "", value, goal);
}

void Table::note(const std::string& text)
{
    std::printf("  %s\n", text.c_str());
    std::fflush(stdout);
}

void Table::fault(const std::string& text)
{
    ++m_faults;
    std::printf("  FAULT: %s\n", text.c_str());
    std::fflush(stdout);
}

void Table::row(const std::string& name, const std::string& value, const std::string& ratio,
                double judged, Goal goal)
{
    std::string judgement;
    if (goal.isSet()) {
        const bool reached = judged <= goal.limit;
        m_missed += reached ? 0 : 1;
        judgement = "  at most " + fixed(goal.limit, 2) + (reached ? "  reached" : "  MISSED");
    }
    std::printf("  %-38s %12s %8s%s\n", name.c_str(), value.c_str(), ratio.c_str(),
                judgement.c_str());
    std::fflush(stdout);
}

std::string fixed(double value, int places)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", places, value);
    return text;
}

std::string microseconds(double nanoseconds)
{
    return fixed(nanoseconds / 1e3, 2) + " us";
}

std::string milliseconds(double nanoseconds)
{
    return fixed(nanoseconds / 1e6, 3) + " ms";
}

std::string kibibytes(double bytes)
{
    return fixed(bytes / 1024, 1) + " KiB";
}

} // namespace bench
