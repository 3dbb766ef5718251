#pragma once

#include "Candidate.h"
#include "Harness.h"
#include "Table.h"

#include <memory>
#include <string>
#include <vector>

namespace bench {

/** The candidates of a group with their windows open, the floor first. */
class Lineup
{
public:
    explicit Lineup(const Site& site);

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
    void comparePictures(Table& table, const std::string& page, const std::string& directory);

private:
    QImage paintedPicture(Candidate& candidate, const std::string& page) const;

    std::vector<Entry> m_entries;
};

/** Rows of one lap: medians and ratios to the first course; the goal is the library's. */
void ratioRows(Table& table, const std::vector<Course>& courses, std::size_t lap, Goal goal);

} // namespace bench
