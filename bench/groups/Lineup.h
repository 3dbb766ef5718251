#pragma once

#include "Candidate.h"
#include "Harness.h"
#include "Table.h"
#include "groups/Groups.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

/** What pictures must have in common, as shares of the pixels. */
struct Likeness
{
    double inkAtLeast = 0.2; ///< that the floor must have painted
    double mayDiffer = 0.02; ///< edges of texts
    std::function<void(Candidate&)> change =
        {}; ///< made after the page is painted, if there is any
};

/** The candidates of a group with their windows open, the floor first. */
class Lineup
{
public:
    /** @param keys of the candidates, the floor first; all of them when there are none */
    explicit Lineup(const Site& site, const std::vector<std::string>& keys = {});

    struct Entry
    {
        std::string key;
        std::string name;
        std::unique_ptr<Candidate> pCandidate;
    };

    std::vector<Entry>& entries() { return m_entries; }
    Candidate& candidate(const std::string& key);

    /**
     * Compares what each candidate paints for @p page with the floor's picture: a page that
     * shows less is no competitor. Saves the pictures below @p directory unless that is "".
     */
    void comparePictures(Table& table, const std::string& page, const std::string& directory,
                         const Likeness& likeness = {});

private:
    QImage paintedPicture(Candidate& candidate, const std::string& page,
                          const Likeness& likeness) const;

    std::vector<Entry> m_entries;
};

/** What a candidate does to load a page and paint it, with a lap for each. */
Course loadCourse(const std::string& name, Candidate& candidate, const std::string& page);

/** What a candidate does for @p change until it is painted, on the page that it has loaded. */
Course changeCourse(const std::string& name, Candidate& candidate,
                    const std::function<void(Candidate&)>& change);

/** A page whose way from its file to the screen is measured. */
struct LoadedPage
{
    std::string name;
    std::string title; ///< in the table
    Likeness likeness = {};
    Goal live = {};
    Goal painted = {};
};

/** Compares what the candidates paint for a page, and writes the rows of its load: live, painted.
 */
void measureLoad(Run& run, Lineup& lineup, const LoadedPage& page, const Plan& plan);

/** Rows of one lap: medians and ratios to the first course; the goal is the library's. */
void ratioRows(Table& table, const std::vector<Course>& courses, std::size_t lap, Goal goal);

} // namespace bench
