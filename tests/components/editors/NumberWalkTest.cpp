#include "components/editors/ZELImageNumberEdit.h"

#include "components/editors/EditorTest.h"
#include "components/editors/EditorWalk.h"
#include "components/editors/rules/Digits.h"
#include "components/editors/rules/NumberRules.h"
#include "support/DecimalComma.h"

#include <QFocusEvent>

#include <climits>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageNumberEdit;

namespace {

class WalkedNumber : public OpenedEdit<ZELImageNumberEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    using ZELImageNumberEdit::processText;

    bool enterKey(char c)
    {
        return m_nDecimalPlace == 0 ? processIntText(c) : processDoubleText(c);
    }

    void enter(const NumberRules& rules) { m_strNumber = rules.number; }

    const std::string& state() const { return m_strNumber; }

    /** Limits and places as in the rules; a field can't lose its range but here. */
    void adopt(const NumberRules& rules)
    {
        m_bRange = rules.hasRange;
        m_dMin = rules.min;
        m_dMax = rules.max;
        setDecimalplace(rules.places);
        setMaxLength(rules.maxLength);
        m_strNumber = rules.number;
    }

    bool stillHas(const NumberRules& rules) const
    {
        return m_bRange == rules.hasRange && m_dMin == rules.min && m_dMax == rules.max &&
               m_nDecimalPlace == rules.places && m_nMaxLength == rules.maxLength;
    }

    void loseFocus()
    {
        QFocusEvent out(QEvent::FocusOut);
        focusOutEvent(&out);
    }
};

using NumberWalk = EditorWalk<NumberRules, WalkedNumber>;

NumberWalk::Operation setText(const std::string& text)
{
    return {"setText \"" + text + "\"", [text](NumberRules& rules) { return rules.setText(text); },
            [text](WalkedNumber& edit) { return edit.processText(text); }};
}

std::vector<NumberWalk::Operation> numberOperations()
{
    std::vector<NumberWalk::Operation> all;
    for (const char c : std::string("0123456789.-,x"))
        all.push_back(NumberWalk::key(std::string(1, c), c));
    all.push_back(NumberWalk::silent(
        "backspace", [](NumberRules& rules) { rules.backspace(); },
        [](WalkedNumber& edit) { edit.backspace(); }));
    all.push_back(NumberWalk::silent(
        "focus out", [](NumberRules& rules) { rules.focusOut(); },
        [](WalkedNumber& edit) { edit.loseFocus(); }));
    return all;
}

// what a field is filled and emptied with from outside: too much to go on from in each state
std::vector<NumberWalk::Operation> textOperations()
{
    std::vector<NumberWalk::Operation> all = {NumberWalk::silent(
        "clear", [](NumberRules& rules) { rules.clear(); },
        [](WalkedNumber& edit) { edit.clear(); })};
    for (const std::string text : {"", ".", "-", "-.", "0", "5", "-5", "50", "-50.5", "200", "1.26",
                                   "0.05", "rubbish", "7x", "99999999", "-0"})
        all.push_back(setText(text));
    all.push_back(NumberWalk::silent(
        "setText of its text", [](NumberRules& rules) { rules.setText(rules.text()); },
        [](WalkedNumber& edit) { edit.setText(edit.text()); }));
    return all;
}

bool isOneOf(char c, const std::string& wanted)
{
    return wanted.find(c) != std::string::npos;
}

// a sign, digits, a point, digits, any of them left out
bool isNumberInTheMaking(const std::string& text)
{
    size_t at = text.empty() || text[0] != '-' ? 0 : 1;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    if (at < text.size() && text[at] == '.')
        ++at;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at == text.size();
}

size_t placesOf(const std::string& text)
{
    const size_t point = text.find('.');
    return point == std::string::npos ? 0 : text.size() - 1 - point;
}

// Whether the number is where the range holds it as it is typed. Among integers the minimum isn't
// held, nor is one that isn't negative: it is passed through on the way to a longer number.
bool isInRange(const NumberRules& rules)
{
    const bool minimumHolds = rules.places != 0 && rules.min < 0;
    return rules.value() <= rules.max && (!minimumHolds || rules.value() >= rules.min);
}

std::string brokenPromise(const NumberRules& before, const NumberRules& after)
{
    if (!isNumberInTheMaking(after.text()))
        return "no number in the making";
    if (after.places > 0 && placesOf(after.text()) > static_cast<size_t>(after.places))
        return "too many places";
    const bool hasPromise = after.hasRange && after.min <= 0 && after.max >= 0;
    // a digit in the place of a single zero isn't held against the range
    const bool takesZerosPlace = before.text() == "0" && after.text().size() == 1;
    if (hasPromise && !takesZerosPlace && isInRange(before) && !isInRange(after))
        return "left the range";
    return "";
}

const std::vector<int> bounds = {-1000, -100, -10, -1, 0, 1, 5, 10, 100, 1000};

struct Limits
{
    bool hasRange;
    int min;
    int max;
};

// every pair of the bounds, in either order, and none at all
std::vector<Limits> allLimits(const std::vector<int>& ends)
{
    std::vector<Limits> all = {{false, 0, 0}};
    for (const int min : ends) {
        for (const int max : ends)
            all.push_back({true, min, max});
    }
    return all;
}

class NumberWalkTest : public EditorTest
{
protected:
    // one walk through what can be typed of a few digits; all digits are tried everywhere
    void walk(const NumberRules& start, const std::string& digits, size_t longest)
    {
        SCOPED_TRACE("places " + std::to_string(start.places) + ", longest " +
                     std::to_string(start.maxLength) +
                     (start.hasRange ? ", range " + std::to_string(start.min) + " to " +
                                           std::to_string(start.max)
                                     : ""));
        NumberWalk walk(edit(), numberOperations());
        walk.goesOn = [&digits, longest](const NumberRules& rules) {
            for (const char c : rules.text()) {
                if (isDigit(c) && !isOneOf(c, digits))
                    return false;
            }
            return rules.text().size() <= longest;
        };
        walk.promise = brokenPromise;
        edit().adopt(start);
        for (const char* text : {"", "0", "5", "-5", "-", "."}) {
            NumberRules set = start;
            if (*text == '\0' || set.setText(text))
                walk.from(set);
        }
        walk.run();
        EXPECT_TRUE(edit().stillHas(start)) << "typing touches the number alone";
        EXPECT_EQ(edit().m_strText, "") << "the text of the base has no part";
        m_counts.add(walk);
    }

    void walkAll(const std::vector<int>& ends, const std::vector<int>& places,
                 const std::string& digits, size_t longest)
    {
        for (const Limits& limits : allLimits(ends)) {
            for (const int number : places)
                walk(rulesOf(limits, number), digits, longest);
        }
    }

    // what can be set, and set again, with all limits
    void setTexts()
    {
        for (const Limits& limits : allLimits(bounds)) {
            for (const int places : {-1, 0, 1, 2, 3}) {
                const NumberRules start = rulesOf(limits, places);
                NumberWalk walk(edit(), textOperations());
                edit().adopt(start);
                walk.from(start);
                walk.run();
                m_counts.add(walk);
            }
        }
    }

    static NumberRules rulesOf(const Limits& limits, int places)
    {
        NumberRules rules;
        if (limits.hasRange)
            rules.setRange(limits.min, limits.max);
        rules.places = places;
        return rules;
    }

    WalkedNumber& edit()
    {
        if (!m_edit) {
            m_edit = make<WalkedNumber>("ZELImageNumberEdit");
            m_edit->hideWindow();
            m_edit->setDimMode(true); // a loss of focus posts nothing
        }
        return *m_edit;
    }

    WalkedNumber* m_edit = nullptr;
    WalkCounts m_counts{"number"};
};

} // namespace

TEST_F(NumberWalkTest, everyStepFromEveryStateFollowsTheRules)
{
    if (underSanitizer)
        walkAll({-10, 0, 5, 100}, {0, 1, 2}, "05", 5);
    else
        walkAll(bounds, {-1, 0, 1, 2, 3}, "015", 6);
}

TEST_F(NumberWalkTest, allDigitsGoOnInARangeOfPracticalUse)
{
    const std::string all = "0123456789";
    walk(rulesOf({true, -99, 100}, 0), all, 3);
    walk(rulesOf({true, -20, 50}, 1), all, 8);
    if (!underSanitizer)
        walk(rulesOf({true, -1, 100}, 2), all, 8);
}

TEST_F(NumberWalkTest, everyLengthAllowedFollowsTheRules)
{
    for (const unsigned longest : {0U, 1U, 2U, 3U, 5U}) {
        for (const int places : {0, 1, 2}) {
            for (const Limits& limits : allLimits({-100, 0, 7, 100})) {
                NumberRules start = rulesOf(limits, places);
                start.maxLength = longest;
                walk(start, "05", 6);
            }
        }
    }
}

TEST_F(NumberWalkTest, theLargestRangesFollowTheRules)
{
    walkAll({INT_MIN, INT_MAX}, {0, 1, 2}, "29", 6);
}

TEST_F(NumberWalkTest, everyTextThatIsSetFollowsTheRules)
{
    setTexts();
}

TEST_F(NumberWalkTest, theLocaleOfTheProcessDoesNotMatter)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    walkAll({-100, 0, 5, 100}, {0, 1, 2}, "05", 6);
    setTexts();
}
