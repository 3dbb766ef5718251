#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;

/** Measured values of one kind, in nanoseconds unless their owner says otherwise. */
class Samples
{
public:
    void add(double value) { m_values.push_back(value); }
    std::size_t count() const { return m_values.size(); }

    /** Middle value, 0 without any. */
    double median() const;

private:
    std::vector<double> m_values;
};

/** A watch that a course starts where its counted work begins and reads at each lap. */
class Watch
{
public:
    void start() { m_start = Clock::now(); }

    /** Notes the time since start(). Laps are told apart by their order. */
    void lap() { add(std::chrono::duration<double, std::nano>(Clock::now() - m_start).count()); }

    /** Notes a time that was taken elsewhere. */
    void add(double nanoseconds) { m_laps.push_back(nanoseconds); }

    const std::vector<double>& laps() const { return m_laps; }

private:
    Clock::time_point m_start = Clock::now();
    std::vector<double> m_laps;
};

/** What one candidate does in one run. Only the time between the watch's calls counts. */
struct Course
{
    std::string name;
    std::function<void(Watch&)> run;
    std::vector<Samples> laps = {}; ///< one entry for each lap, filled by alternate()
};

/**
 * How candidates take turns. In each turn a candidate runs some times uncounted before it counts:
 * so it finds caches and branch predictors as it has left them itself. Without that, candidates
 * that share code or pictures would warm each other, and the one that shares least would lose.
 */
struct Plan
{
    int turns;
    int uncounted = 4;
    int counted = 4;
};

/** Lets all courses take turns, in an order drawn anew for each round of turns. */
void alternate(std::vector<Course>& courses, const Plan& plan);

/** Nanoseconds per call: the median over @p rounds batches of @p batch calls. */
double nanosecondsPerCall(const std::function<void()>& call, int batch, int rounds);

} // namespace bench
