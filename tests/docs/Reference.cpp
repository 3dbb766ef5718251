#include "docs/Reference.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <sstream>

namespace PANFx::Testing {

namespace {

std::string trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// "| a | b |" gives "a", "b"
std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream row(line.substr(1));
    for (std::string cell; std::getline(row, cell, '|');)
        cells.push_back(trimmed(cell));
    return cells;
}

// what stands between backticks; one empty name where nothing does
std::vector<std::string> namesIn(const std::string& cell)
{
    static const std::regex quoted("`([^`]+)`");
    std::vector<std::string> names;
    for (std::sregex_iterator at(cell.begin(), cell.end(), quoted), end; at != end; ++at)
        names.push_back((*at)[1]);
    if (names.empty())
        names.emplace_back();
    return names;
}

// "1552 `EVENT_MOUSE_UP`", or "`EVENT_MOUSE_UP` | 1552" of the table of all
void addEvents(const std::string& line, ReferenceSection& section)
{
    static const std::regex numberFirst(R"((\d+) `(EVENT_\w+)`)");
    static const std::regex nameFirst(R"(`(EVENT_\w+)` \| (\d+))");
    static const std::regex any(R"(any from (\d+))");
    for (std::sregex_iterator at(line.begin(), line.end(), numberFirst), end; at != end; ++at)
        section.posts[std::stoi((*at)[1])] = (*at)[2];
    std::smatch found;
    if (std::regex_search(line, found, nameFirst))
        section.posts[std::stoi(found[2])] = found[1];
    if (std::regex_search(line, found, any))
        section.anyFrom = std::stoi(found[1]);
}

void addNames(const std::vector<std::string>& cells, ReferenceSection& section)
{
    if (cells.size() < 2)
        return;
    for (const std::string& element : namesIn(cells[0])) {
        if (!element.empty())
            section.reads.insert({element, ""});
        for (const std::string& attribute : namesIn(cells[1])) {
            if (!attribute.empty())
                section.reads.insert({element, attribute});
        }
    }
}

std::string described(const std::string& element, const std::string& attribute)
{
    if (attribute.empty())
        return "child element \"" + element + "\"";
    return "attribute \"" + attribute + "\"" +
           (element.empty() ? "" : " of child element \"" + element + "\"");
}

} // namespace

Reference::Reference(const std::string& text)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        readLine(line);
}

Reference Reference::ofTheProject()
{
    std::ifstream file(QTPANFX_SOURCE_DIR "/docs/layout-reference.md");
    EXPECT_TRUE(file.is_open());
    return Reference(std::string(std::istreambuf_iterator<char>(file), {}));
}

void Reference::readLine(const std::string& line)
{
    static const std::regex heading("#{2,3} `?([^`]+)`?");
    static const std::regex classOf("^Class `(\\w+)`");
    static const std::regex readsAs("^Reads what \\[`(\\w+)`\\]");
    static const std::regex postsAs("^Posts what \\[`(\\w+)`\\]");
    std::smatch found;
    ReferenceSection& section = m_sections[m_heading];
    if (std::regex_match(line, found, heading)) {
        m_heading = found[1];
        m_headings.push_back(m_heading);
    } else if (line.empty() || line[0] != '|') {
        m_table.clear();
        if (std::regex_search(line, found, classOf))
            section.className = found[1];
        if (std::regex_search(line, found, readsAs))
            section.readsAs = found[1];
        if (std::regex_search(line, found, postsAs))
            section.postsAs = found[1];
    } else if (m_table.empty()) {
        m_table = cellsOf(line).front();
    } else if (m_table == "Element") {
        addNames(cellsOf(line), section);
    } else if (m_table == "Event") {
        addEvents(line, section);
    }
}

bool Reference::has(const std::string& heading) const
{
    return std::find(m_headings.begin(), m_headings.end(), heading) != m_headings.end();
}

ReferenceSection Reference::section(const std::string& heading) const
{
    const auto found = m_sections.find(heading);
    return found == m_sections.end() ? ReferenceSection() : found->second;
}

Names Reference::reads(const std::string& heading) const
{
    const ReferenceSection own = section(heading);
    Names names = own.readsAs.empty() || own.readsAs == heading ? Names() : reads(own.readsAs);
    names.insert(own.reads.begin(), own.reads.end());
    return names;
}

ReferenceSection Reference::posts(const std::string& heading) const
{
    const ReferenceSection own = section(heading);
    return own.postsAs.empty() || own.postsAs == heading ? own : posts(own.postsAs);
}

std::vector<std::string> Reference::keywords() const
{
    std::vector<std::string> keywords;
    for (const std::string& heading : m_headings) {
        if (!section(heading).className.empty())
            keywords.push_back(heading);
    }
    return keywords;
}

std::vector<std::string> differences(const Names& documented, const Names& read)
{
    std::vector<std::string> all;
    for (const auto& [element, attribute] : documented) {
        if (read.count({element, attribute}) == 0)
            all.push_back("documented, but not read: " + described(element, attribute));
    }
    for (const auto& [element, attribute] : read) {
        if (documented.count({element, attribute}) == 0)
            all.push_back("read, but not documented: " + described(element, attribute));
    }
    return all;
}

std::vector<std::string> differences(const ReferenceSection& documented, const Events& known,
                                     const std::set<int>& posted)
{
    std::vector<std::string> all;
    for (const auto& [number, name] : documented.posts) {
        const auto found = known.find(number);
        const std::string event = std::to_string(number) + " " + name;
        if (found == known.end() || found->second != name)
            all.push_back("no such event: " + event);
        else if (posted.count(number) == 0)
            all.push_back("documented, but not posted: " + event);
    }
    for (const int number : posted) {
        const bool any = documented.anyFrom > 0 && number >= documented.anyFrom;
        if (!any && documented.posts.count(number) == 0)
            all.push_back("posted, but not documented: " + std::to_string(number));
    }
    return all;
}

} // namespace PANFx::Testing
