#pragma once

#include "LogSink.h"
#include "PageGenerator.h"
#include "Table.h"

#include <string>

namespace bench {

/** What all groups of measurements share. */
struct Run
{
    const Site& site;
    LogSink& sink;
    Table& table;
    bool bQuick = false;
    std::string pictures = {}; ///< directory for pictures of what was painted; "" for none
};

// Each measures one group and writes its rows.
void measurePageLoads(Run& run);
void measurePageSwitch(Run& run);
void measureTouch(Run& run);
void measureImageHit(Run& run);
void measureStringTable(Run& run);
void measureLogLine(Run& run);
void measureCompose(Run& run);
void measureTyping(Run& run);
void measureLists(Run& run);
void measureLongText(Run& run); ///< a part of the lists
void measureGauges(Run& run);
void measurePrint(Run& run);
void measureMemory(Run& run);
void measureStart(Run& run);
void measureSize(Run& run);

// The work of child processes. What measures memory needs a process that has not freed big pages
// before, and writes one number to the standard output: bytes.

/** Growth per page of a candidate that is built, shown, painted and deleted. */
void childPageCycles(const Site& site, const std::string& candidate);

/** Growth per change of language; @p styles is the number of styles in the style file. */
void childLocaleCycles(const Site& site, int styles);

/** Touches the buttons of a common page; writes a line "key click repaint" for each candidate. */
void childTouch(const Site& site, int turns);

/** Touches a cell of a list; writes a line for each candidate. */
void childCellTouch(const Site& site, int turns);

/** Prints over a pseudo-terminal; writes lines of nanoseconds and bytes. */
void childPrint(const Site& site, int turns);

/** Heap of one page of a candidate, built, shown and painted. */
void childHeap(const Site& site, const std::string& candidate, const std::string& page);

// names of the generated pages
constexpr const char* pictures60 = "pictures60";
constexpr const char* pictures60b = "pictures60b"; ///< a second one, to switch to
constexpr const char* pictures600 = "pictures600";
constexpr const char* common60 = "common60";
constexpr const char* common60b = "common60b";
constexpr const char* common600 = "common600";

/** Whether the library makes buttons, which the common pages need. */
bool libraryHasButtons();

} // namespace bench
