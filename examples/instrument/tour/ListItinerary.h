#pragma once

#include "Record.h"
#include "tour/StepList.h"

class InstrumentFrame;
class ResultsPage;
class SamplesPage;

/// The part of the tour on which lists are paged, sorted, cut down and selected from, and the long
/// text is read. It begins on any page and ends on the first one.
class ListItinerary : private StepList
{
public:
    ListItinerary(InstrumentFrame& frame, Screen& screen);

    /// The whole of it, in English. They refer to the itinerary and must not outlive it.
    std::vector<TourStep> steps();

    /// A look at the same pages in the language that is in force; the names of the steps begin
    /// with `strName`.
    std::vector<TourStep> stepsIn(const std::string& strName, const std::string& strLocale);

private:
    void selecting();
    void paging();
    void sorting();
    void filtering();
    void samples();
    void sortingSamples();
    void deleting();
    void recentNames();
    void reading();

    /// Adds a step on the results, after which that must be true.
    void addResults(const std::string& strName, Actions actions, const std::string& strClaim,
                    std::function<bool(ResultsPage&)> isTrue);

    /// The same on the samples.
    void addSamples(const std::string& strName, Actions actions, const std::string& strClaim,
                    std::function<bool(SamplesPage&)> isTrue);

    template <class Page>
    void addOn(const std::string& strPage, const std::string& strName, Actions actions,
               const std::string& strClaim, std::function<bool(Page&)> isTrue);

    /// The page of the list by its page turner.
    int pageNow();

    /// Whether the list shows what the database has for that page of it, counted from 1.
    bool showsPage(ResultsPage& page, int nPage);

    bool isSorted(ResultsPage& page, RecordQuery::Order order, bool bAscending);

    InstrumentFrame& m_frame;
};
