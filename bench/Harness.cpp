#include "Harness.h"

#include <algorithm>
#include <random>

namespace bench {

double Samples::median() const
{
    if (m_values.empty())
        return 0;
    std::vector<double> sorted = m_values;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

namespace {

void takeTurn(Course& course, const Plan& plan)
{
    for (int run = 0; run < plan.uncounted + plan.counted; ++run) {
        Watch watch;
        course.run(watch);
        if (run < plan.uncounted)
            continue;
        course.laps.resize(watch.laps().size());
        for (std::size_t lap = 0; lap < watch.laps().size(); ++lap)
            course.laps[lap].add(watch.laps()[lap]);
    }
}

} // namespace

void alternate(std::vector<Course>& courses, const Plan& plan)
{
    std::vector<Course*> order;
    order.reserve(courses.size());
    for (Course& course : courses)
        order.push_back(&course);
    std::mt19937 random(1); // the same orders in every run
    for (int turn = 0; turn < plan.turns; ++turn) {
        std::shuffle(order.begin(), order.end(), random);
        for (Course* course : order)
            takeTurn(*course, plan);
    }
}

double nanosecondsPerCall(const std::function<void()>& call, int batch, int rounds)
{
    Samples samples;
    for (int round = 0; round < rounds; ++round) {
        const Clock::time_point start = Clock::now();
        for (int i = 0; i < batch; ++i)
            call();
        const std::chrono::duration<double, std::nano> time = Clock::now() - start;
        samples.add(time.count() / batch);
    }
    return samples.median();
}

} // namespace bench
