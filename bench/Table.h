#pragma once

#include <string>

namespace bench {

/** What a measured figure is to be at most; without one the figure is only shown. */
struct Goal
{
    double limit = -1;
    bool isSet() const { return limit >= 0; }
};

/** The one table that the program prints, row by row, with a title line above each group. */
class Table
{
public:
    /** Begins a group. @p title says what is measured and what 1.00 stands for. */
    void group(const std::string& title);

    /** A row with a measured value and its ratio to the group's floor; the goal is for the ratio.
     */
    void ratio(const std::string& name, const std::string& value, double ratio, Goal goal = {});

    /** A row whose measured value is itself what the goal is for. */
    void value(const std::string& name, const std::string& text, double value, Goal goal = {});

    /** A row that says in words what was found or why nothing was measured. */
    void note(const std::string& text);

    /** A fault of the measurement itself; the program then ends with 1. */
    void fault(const std::string& text);

    int missedGoals() const { return m_missed; }
    int faults() const { return m_faults; }

private:
    void row(const std::string& name, const std::string& value, const std::string& ratio,
             double judged, Goal goal);

    int m_missed = 0;
    int m_faults = 0;
};

std::string microseconds(double nanoseconds);
std::string milliseconds(double nanoseconds);
std::string kibibytes(double bytes);
std::string fixed(double value, int places);

} // namespace bench
