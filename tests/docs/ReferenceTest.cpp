#include "docs/Reference.h"

#include <gtest/gtest.h>

using namespace PANFx::Testing;

namespace {

const char* const smallReference = "## Events\n"
                                   "\n"
                                   "| Event | Number | Class |\n"
                                   "|---|---|---|\n"
                                   "| `EVENT_MOUSE_UP` | 1552 | `ZELEvent` |\n"
                                   "\n"
                                   "### `knob`\n"
                                   "\n"
                                   "Class `ZELKnob`. It turns.\n"
                                   "\n"
                                   "| Element | Attribute | Value |\n"
                                   "|---|---|---|\n"
                                   "| | `title` | text; `@key` |\n"
                                   "| `up`, `down` | `x`, `y` | pixels |\n"
                                   "| `board` | | |\n"
                                   "\n"
                                   "| Id | Types |\n"
                                   "|---|---|\n"
                                   "| `num0` | `nothing` |\n"
                                   "\n"
                                   "| Event | Sender and id |\n"
                                   "|---|---|\n"
                                   "| 1552 `EVENT_MOUSE_UP`, 1571 `EVENT_LONG_PRESS` | itself |\n"
                                   "| any from 1600 | itself |\n"
                                   "\n"
                                   "### `dial`\n"
                                   "\n"
                                   "Class `ZELDial`. `size` in the text is no name.\n"
                                   "\n"
                                   "Reads what [`knob`](#knob) reads.\n"
                                   "\n"
                                   "| Element | Attribute | Value |\n"
                                   "|---|---|---|\n"
                                   "| | `max` | number |\n"
                                   "\n"
                                   "Posts what [`knob`](#knob) posts.\n";

const Names ofTheKnob{{"", "title"}, {"up", ""},    {"up", "x"},   {"up", "y"},
                      {"down", ""},  {"down", "x"}, {"down", "y"}, {"board", ""}};

const Events known{{1552, "EVENT_MOUSE_UP"}, {1571, "EVENT_LONG_PRESS"}};

using Sentences = std::vector<std::string>;

} // namespace

TEST(Reference, FindsTheKeywordsByTheirClasses)
{
    const Reference reference(smallReference);
    EXPECT_EQ(reference.keywords(), (std::vector<std::string>{"knob", "dial"}));
    EXPECT_EQ(reference.section("dial").className, "ZELDial");
    EXPECT_TRUE(reference.has("Events"));
    EXPECT_FALSE(reference.has("lever"));
}

TEST(Reference, ReadsTheNamesOfItsTables)
{
    EXPECT_EQ(Reference(smallReference).reads("knob"), ofTheKnob);
}

TEST(Reference, TakesOverWhatAnotherKeywordReads)
{
    Names expected = ofTheKnob;
    expected.insert({"", "max"});
    EXPECT_EQ(Reference(smallReference).reads("dial"), expected);
}

TEST(Reference, ReadsEventsWithTheNumberInFrontOrBehind)
{
    const Reference reference(smallReference);
    EXPECT_EQ(reference.section("Events").posts, (Events{{1552, "EVENT_MOUSE_UP"}}));
    EXPECT_EQ(reference.posts("dial").posts, known);
    EXPECT_EQ(reference.posts("dial").anyFrom, 1600);
}

TEST(Reference, DiffersInAnAttributeThatItMisses)
{
    const Sentences missing{"read, but not documented: attribute \"x\" of child element \"up\""};
    Names documented = ofTheKnob;
    documented.erase({"up", "x"});
    EXPECT_EQ(differences(documented, ofTheKnob), missing);
}

TEST(Reference, DiffersInNamesThatNoCodeReads)
{
    const Sentences bogus{"documented, but not read: attribute \"colour\"",
                          "documented, but not read: child element \"handle\""};
    Names documented = ofTheKnob;
    documented.insert({"", "colour"});
    documented.insert({"handle", ""});
    EXPECT_EQ(differences(documented, ofTheKnob), bogus);
}

TEST(Reference, AgreesWhereNothingDiffers)
{
    EXPECT_EQ(differences(ofTheKnob, ofTheKnob), Sentences());
    EXPECT_EQ(differences({"", {}, known, 1600, "", ""}, known, {1552, 1571, 1600, 1701}),
              Sentences());
}

TEST(Reference, DiffersInEvents)
{
    const ReferenceSection wrongNumber{"", {}, {{1551, "EVENT_MOUSE_UP"}}, 0, "", ""};
    EXPECT_EQ(differences(wrongNumber, known, {1551}),
              Sentences{"no such event: 1551 EVENT_MOUSE_UP"});
    const ReferenceSection both{"", {}, known, 0, "", ""};
    EXPECT_EQ(differences(both, known, {1552}),
              Sentences{"documented, but not posted: 1571 EVENT_LONG_PRESS"});
    EXPECT_EQ(differences(both, known, {1552, 1571, 1559}),
              Sentences{"posted, but not documented: 1559"});
}
