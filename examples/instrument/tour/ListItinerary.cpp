#include "tour/ListItinerary.h"

#include "InstrumentFrame.h"
#include "pages/ResultsPage.h"
#include "pages/SamplesPage.h"
#include "tour/Screen.h"

#include <algorithm>
#include <memory>

using Order = RecordQuery::Order;

namespace {

const int pageRows = 7;
const int manyTicks = 60; // more than there are pages
const std::string pageOn = "records/scroll/downbtn";
const std::string pageBack = "records/scroll/upbtn";

bool areSame(const std::vector<Record>& some, const std::vector<Record>& others)
{
    const auto isSame = [](const Record& one, const Record& other) { return one.nID == other.nID; };
    return std::equal(some.begin(), some.end(), others.begin(), others.end(), isSame);
}

bool areOf(const std::vector<Record>& records, const std::string& strSample)
{
    return std::all_of(records.begin(), records.end(),
                       [&](const Record& record) { return record.strSample == strSample; });
}

} // namespace

ListItinerary::ListItinerary(InstrumentFrame& frame, Screen& screen)
    : StepList(screen)
    , m_frame(frame)
{
}

template <class Page>
void ListItinerary::addOn(const std::string& strPage, const std::string& strName, Actions actions,
                          const std::string& strClaim, std::function<bool(Page&)> isTrue)
{
    claim(add(strName, strPage, std::move(actions)), strClaim, [this, isTrue] {
        auto* pPage = dynamic_cast<Page*>(m_frame.getCurrentWindow());
        return pPage != nullptr && isTrue(*pPage);
    });
}

void ListItinerary::addResults(const std::string& strName, Actions actions,
                               const std::string& strClaim,
                               std::function<bool(ResultsPage&)> isTrue)
{
    addOn("results", strName, std::move(actions), strClaim, std::move(isTrue));
}

void ListItinerary::addSamples(const std::string& strName, Actions actions,
                               const std::string& strClaim,
                               std::function<bool(SamplesPage&)> isTrue)
{
    addOn("samples", strName, std::move(actions), strClaim, std::move(isTrue));
}

bool ListItinerary::showsPage(ResultsPage& page, int nPage)
{
    const RecordQuery& query = m_frame.settings().results;
    const int nPages = (m_frame.records().count(query.samples) + pageRows - 1) / pageRows;
    const std::vector<Record> stored =
        m_frame.records().records(query, (nPage - 1) * pageRows, pageRows);
    return !stored.empty() && areSame(page.shownRecords(), stored) &&
           m_screen.text("records/scroll") == std::to_string(nPage) + "/" + std::to_string(nPages);
}

int ListItinerary::pageNow()
{
    return QString::fromStdString(m_screen.text("records/scroll"))
        .section(QLatin1Char('/'), 0, 0)
        .toInt();
}

bool ListItinerary::isSorted(ResultsPage& page, Order order, bool bAscending)
{
    std::vector<Record> stored = m_frame.records().records({});
    const auto isLess = [order](const Record& one, const Record& other) {
        return order == Order::time
                   ? one.strTime < other.strTime
                   : one.values[Analyser::temperatureAt] < other.values[Analyser::temperatureAt];
    };
    const auto isBefore = [&](const Record& one, const Record& other) {
        return bAscending ? isLess(one, other) : isLess(other, one);
    };
    const Record& first = *std::min_element(stored.begin(), stored.end(), isBefore);
    const std::vector<Record>& shown = page.shownRecords();
    return shown.size() == pageRows && std::is_sorted(shown.begin(), shown.end(), isBefore) &&
           !isBefore(first, shown.front());
}

void ListItinerary::selecting()
{
    addResults("rows-picked",
               {goHome(), goHome(), tap("results"), tap("records/row1/pick"),
                tap("records/row3/pick"), tap("records/row4/sample")},
               "three rows are selected", [](ResultsPage& page) {
                   const std::vector<Record>& shown = page.shownRecords();
                   return areSame(page.selectedRecords(), {shown[1], shown[3], shown[4]});
               });
    addResults("row-dropped", {tap("records/row3/pick")}, "two are left", [](ResultsPage& page) {
        const std::vector<Record>& shown = page.shownRecords();
        return areSame(page.selectedRecords(), {shown[1], shown[4]});
    });
}

void ListItinerary::paging()
{
    addResults("page-two", {tap(pageOn)}, "the second page is there, the selection stays",
               [this](ResultsPage& page) {
                   return showsPage(page, 2) && page.selectedRecords().size() == 2;
               });
    // a button that is held goes on by the real clock as well
    addResults("page-held", {press(pageOn, firstTick)}, "the button has turned a page by itself",
               [this](ResultsPage& page) { return pageNow() >= 3 && showsPage(page, pageNow()); });
    addResults("page-held-longer", {tick(pageOn, 5)}, "it has turned five more",
               [this](ResultsPage& page) { return pageNow() >= 8 && showsPage(page, pageNow()); });
    addResults("page-last", {tick(pageOn, manyTicks), release()}, "it is the last page",
               [this](ResultsPage& page) {
                   const int nCount = m_frame.records().count({});
                   return showsPage(page, (nCount + pageRows - 1) / pageRows) &&
                          !m_screen.isEnabled(pageOn) && m_screen.isEnabled(pageBack);
               });
    addResults("page-first", {press(pageBack, firstTick), tick(pageBack, manyTicks), release()},
               "it is the first page again", [this](ResultsPage& page) {
                   return showsPage(page, 1) && !m_screen.isEnabled(pageBack);
               });
}

void ListItinerary::sorting()
{
    addResults("warmest-first", {tap("records/head/temp")}, "the warmest come first",
               [this](ResultsPage& page) { return isSorted(page, Order::temperature, false); });
    addResults("coldest-first", {tap("records/head/temp")}, "the coldest come first",
               [this](ResultsPage& page) { return isSorted(page, Order::temperature, true); });
    addResults("fahrenheit", {tap("mean.temp")}, "the unit is changed", [this](ResultsPage& page) {
        return m_frame.analyser().isFahrenheit() && isSorted(page, Order::temperature, true);
    });
    addResults("newest-first", {tap("mean.temp"), tap("records/head/time")},
               "the newest come first", [this](ResultsPage& page) {
                   return !m_frame.analyser().isFahrenheit() && isSorted(page, Order::time, false);
               });
    addResults("oldest-first", {tap("records/head/time")}, "the oldest come first",
               [this](ResultsPage& page) { return isSorted(page, Order::time, true); });
    addResults("all-picked", {tap("records/head/time"), tap("records/head/pick")},
               "all of all pages are selected", [this](ResultsPage& page) {
                   return isSorted(page, Order::time, false) &&
                          areSame(page.selectedRecords(), m_frame.records().records({}));
               });
    addResults("none-picked", {tap("records/head/pick")}, "none is selected",
               [](ResultsPage& page) { return page.selectedRecords().empty(); });
}

void ListItinerary::filtering()
{
    addResults("names", {tap("filter")}, "the names are open", [this](ResultsPage&) {
        return m_screen.isVisible("filter_names") &&
               m_screen.text("filter_names/scroll").substr(0, 2) == "1\n";
    });
    addResults("names-next", {tap("filter_names/scroll/downbtn")}, "there are other names",
               [this](ResultsPage&) {
                   return m_screen.text("filter_names/scroll").substr(0, 2) == "2\n" &&
                          m_screen.text("filter_names/name3/text") == "River below";
               });
    addResults("name-chosen", {tap("filter_names/name3/text")}, "one sample is in the list",
               [this](ResultsPage& page) {
                   return !m_screen.isVisible("filter_names") &&
                          m_screen.text("filter") == "River below" && showsPage(page, 1) &&
                          areOf(page.shownRecords(), "River below");
               });
    addResults("name-all", {tap("filter"), tap("filter_names/name5/text")},
               "all samples are in the list", [this](ResultsPage& page) {
                   return m_frame.settings().results.samples.empty() && showsPage(page, 1);
               });
}

void ListItinerary::samples()
{
    addSamples("samples", {tap("samples")}, "there is nothing to show or delete",
               [this](SamplesPage& page) {
                   return page.pickedSamples().empty() && !m_screen.isEnabled("show") &&
                          !m_screen.isEnabled("clear");
               });
    sortingSamples();
    addSamples("samples-all", {tap("samples/head/headcheck")}, "the head checks all of all pages",
               [this](SamplesPage& page) {
                   return page.pickedSamples().size() == m_frame.records().samples().size();
               });
    addSamples("samples-but-one", {tap("samples/row0/pick")}, "one is left out",
               [this](SamplesPage& page) {
                   return page.pickedSamples().size() + 1 == m_frame.records().samples().size();
               });
    addSamples("samples-none", {tap("samples/row0/pick"), tap("samples/head/headcheck")},
               "the head unchecks all",
               [](SamplesPage& page) { return page.pickedSamples().empty(); });
    addSamples(
        "samples-two",
        {tap("samples/row1/pick"), tap("samples/scroll/downbtn"), tap("samples/row2/sample")},
        "two of two pages are checked",
        [](SamplesPage& page) { return page.pickedSamples().size() == 2; });
    addResults("samples-shown", {tap("show")}, "the list has both", [this](ResultsPage& page) {
        return m_frame.settings().results.samples.size() == 2 && showsPage(page, 1);
    });
}

void ListItinerary::sortingSamples()
{
    const auto isSorted = [](const SamplesPage& page, const auto& isLess) {
        return page.samples().size() > pageRows &&
               std::is_sorted(page.samples().begin(), page.samples().end(), isLess);
    };
    const auto isMore = [](const SampleSummary& one, const SampleSummary& other) {
        return one.nCount > other.nCount;
    };
    addSamples("samples-most", {tap("samples/head/count")}, "the most measured come first",
               [isSorted, isMore](SamplesPage& page) { return isSorted(page, isMore); });
    addSamples("samples-least", {tap("samples/head/count")}, "the least measured come first",
               [isSorted, isMore](SamplesPage& page) {
                   return isSorted(page, [isMore](const auto& one, const auto& other) {
                       return isMore(other, one);
                   });
               });
    addSamples("samples-latest", {tap("samples/scroll/downbtn"), tap("samples/head/last")},
               "the latest come first, on the first page", [this, isSorted](SamplesPage& page) {
                   const bool bFirst = m_screen.text("samples/scroll").rfind("1/", 0) == 0;
                   return bFirst && isSorted(page, [](const auto& one, const auto& other) {
                              return one.strLast > other.strLast;
                          });
               });
    addSamples("samples-by-name", {tap("samples/head/sample")}, "they are in the order of names",
               [isSorted](SamplesPage& page) {
                   return isSorted(page, [](const auto& one, const auto& other) {
                       return one.strName < other.strName;
                   });
               });
}

void ListItinerary::deleting()
{
    const auto nStored = std::make_shared<int>(0);
    const Action count = {[this, nStored] { *nStored = m_frame.records().count({}); }, 0};
    addResults("row-picked", {count, tap("records/row0/pick"), tap("clear"), tap("yes")},
               "one measurement is gone", [this, nStored](ResultsPage&) {
                   return m_frame.records().count({}) == *nStored - 1;
               });
    TourStep& question =
        add("sample-question", "samples", {tap("samples"), tap("samples/row0/pick"), tap("clear")});
    question.strDialog = "question";
    const auto nSamples = std::make_shared<std::size_t>(0);
    const Action countNames = {[this, nSamples] { *nSamples = m_frame.records().samples().size(); },
                               0};
    addSamples("sample-gone", {countNames, tap("yes")}, "there is one sample less",
               [this, nSamples](SamplesPage& page) {
                   return m_frame.records().samples().size() == *nSamples - 1 &&
                          page.pickedSamples().empty();
               });
    addResults("all-again", {tap("back"), tap("filter"), tap("filter_names/name5/text")},
               "all samples are in the list", [this](ResultsPage& page) {
                   return m_frame.settings().results.samples.empty() && showsPage(page, 1);
               });
}

void ListItinerary::recentNames()
{
    const auto nameIs = [this](std::size_t nRecent) {
        return [this, nRecent] {
            const std::vector<std::string> names = m_frame.records().recentSamples(6);
            return !m_screen.isVisible("recent_names") && m_screen.text("name") == names[nRecent];
        };
    };
    claim(add("recent", "sample",
              {tap("back"), goHome(), tap("measure"), tap("sample"), tap("recent")}),
          "the last names are open", [this] { return m_screen.isVisible("recent_names"); });
    claim(add("recent-chosen", "sample", {tap("recent_names/name2/text")}),
          "the field has the name", nameIs(2));
    claim(add("recent-korean", "sample", {tap("recent"), tap("recent_names/name0/text")}),
          "the field has the Korean name", nameIs(0));
    claim(add("recent-typed", "sample", {tap("key_backspace"), tap("key_8")}),
          "the keys go on with it", [this] { return m_screen.text("name") == "한글 닭값깨8"; });
    claim(add("recent-saved", "measure", {tap("enter"), tap("save")}), "a sample has that name",
          [this] { return m_frame.records().count({"한글 닭값깨8"}) == 1; });
}

void ListItinerary::reading()
{
    const auto shows = [this](const std::string& strPage) {
        return [this, strPage] { return m_screen.text("text/scroll").rfind(strPage, 0) == 0; };
    };
    claim(add("about", "about", {goHome(), tap("about")}), "the text begins", shows("1/"));
    claim(add("about-two", "about", {tap("text/scroll/downbtn")}), "it is the second page",
          shows("2/"));
    claim(add("about-end", "about",
              {press("text/scroll/downbtn", firstTick), tick("text/scroll/downbtn", manyTicks),
               release()}),
          "it is the last page", [this] {
              const std::string strPages = m_screen.text("text/scroll");
              return strPages == "3/3" && !m_screen.isEnabled("text/scroll/downbtn");
          });
    add("about-back", "home", {tap("back")});
}

std::vector<TourStep> ListItinerary::steps()
{
    selecting();
    paging();
    sorting();
    filtering();
    samples();
    deleting();
    recentNames();
    reading();
    return takeSteps();
}

std::vector<TourStep> ListItinerary::stepsIn(const std::string& strName,
                                             const std::string& strLocale)
{
    m_strLocale = strLocale;
    addResults(strName + "-names", {goHome(), goHome(), tap("results"), tap("filter")},
               "the names are open",
               [this](ResultsPage&) { return m_screen.isVisible("filter_names"); });
    addSamples(strName + "-samples", {tap("filter"), tap("samples"), tap("samples/row1/pick")},
               "one is checked",
               [](SamplesPage& page) { return page.pickedSamples().size() == 1; });
    add(strName + "-sample-question", "samples", {tap("clear")}).strDialog = "question";
    claim(add(strName + "-recent", "sample",
              {tap("no"), goHome(), goHome(), tap("measure"), tap("sample"), tap("recent")}),
          "the last names are open", [this] { return m_screen.isVisible("recent_names"); });
    claim(add(strName + "-about", "about", {goHome(), goHome(), tap("about")}), "the text begins",
          [this] { return m_screen.text("text/scroll").rfind("1/", 0) == 0; });
    claim(add(strName + "-about-two", "about", {tap("text/scroll/downbtn")}),
          "it is the second page",
          [this] { return m_screen.text("text/scroll").rfind("2/", 0) == 0; });
    claim(add(strName + "-about-end", "about", {tap("text/scroll/downbtn")}), "it is the last page",
          [this] {
              return m_screen.text("text/scroll") == "3/3" &&
                     !m_screen.isEnabled("text/scroll/downbtn");
          });
    m_strLocale.clear();
    return takeSteps();
}
