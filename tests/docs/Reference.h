#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

/**
 * Names that are read: (element, attribute). An empty element is the component's own, an empty
 * attribute the child element as such.
 */
using Names = std::set<std::pair<std::string, std::string>>;

/** Events by number, with their names. */
using Events = std::map<int, std::string>;

/** What docs/layout-reference.md says of one keyword, or below another heading. */
struct ReferenceSection
{
    std::string className; ///< of "Class `ZELLabel`"
    Names reads;           ///< of the tables that begin with "Element"
    Events posts;          ///< of the tables that begin with "Event"
    int anyFrom = 0;       ///< of "any from 1552": these numbers are posted too; 0 for none
    std::string readsAs;   ///< of "Reads what [`button`]"
    std::string postsAs;   ///< of "Posts what [`button`]"
};

/** The reference of layout files, as its tables say it. */
class Reference
{
public:
    explicit Reference(const std::string& text);

    /** The one of the project. */
    static Reference ofTheProject();

    /** Whether there is a section of that heading: a keyword, or such as "The page". */
    bool has(const std::string& heading) const;

    /** A section; an empty one for a heading that is not there. */
    ReferenceSection section(const std::string& heading) const;

    /** What a section says, with what it takes over from others. */
    Names reads(const std::string& heading) const;

    /** The same of events; of its own, or those of the section that it names. */
    ReferenceSection posts(const std::string& heading) const;

    /** All headings of sections that name a class: the keywords, in their order. */
    std::vector<std::string> keywords() const;

private:
    void readLine(const std::string& line);

    std::vector<std::string> m_headings;
    std::map<std::string, ReferenceSection> m_sections;
    std::string m_heading;
    std::string m_table; ///< first column of the table that is being read
};

/** What the reference and the code do not agree in, as sentences. */
std::vector<std::string> differences(const Names& documented, const Names& read);

/** The same of events: posted is what was seen. */
std::vector<std::string> differences(const ReferenceSection& documented, const Events& known,
                                     const std::set<int>& posted);

} // namespace PANFx::Testing
