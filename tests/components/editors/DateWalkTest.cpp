#include "components/editors/ZELImageDateEdit.h"

#include "components/editors/EditorTest.h"
#include "components/editors/EditorWalk.h"
#include "components/editors/rules/DateRules.h"
#include "components/editors/rules/Digits.h"
#include "support/DecimalComma.h"

#include <algorithm>
#include <set>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageDateEdit;

namespace {

class WalkedDate : public OpenedEdit<ZELImageDateEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    bool enterKey(char c) { return processText(c); }

    void enter(const DateRules& rules)
    {
        m_nDateOrder = rules.order;
        m_strFixedYear = QString::fromStdString(rules.fixedYear);
        m_strYear = QString::fromStdString(rules.year);
        m_strMonth = QString::fromStdString(rules.month);
        m_strDay = QString::fromStdString(rules.day);
    }

    std::string state() const
    {
        std::string all = std::to_string(m_nDateOrder);
        all.reserve(24);
        for (const QString* part : {&m_strFixedYear, &m_strYear, &m_strMonth, &m_strDay}) {
            all += '|';
            for (const QChar c : *part)
                all += c.toLatin1();
        }
        return all;
    }
};

using DateWalk = EditorWalk<DateRules, WalkedDate>;

// Years of each kind; the walk goes through them and their beginnings. 28 and 29 days in
// February, the edges at 999, 1000, 2999, 3000, and a leap year beyond the last one allowed.
std::vector<std::string> yearsOfEachKind()
{
    if (underSanitizer)
        return {"999", "2023", "2024", "3004"};
    return {"1",    "4",    "100",  "400",  "999",  "1000", "1900",
            "2000", "2023", "2024", "2999", "3000", "3004", "9999"};
}

const std::set<std::string>& yearsWalked()
{
    static const std::set<std::string> all = [] {
        std::set<std::string> begun{""};
        for (const std::string& year : yearsOfEachKind()) {
            for (size_t length = 1; length <= year.size(); ++length)
                begun.insert(year.substr(0, length));
        }
        return begun;
    }();
    return all;
}

bool yearIsWalked(const std::string& year)
{
    // zeros in front, as a year set by a number has them, can be typed without end
    const size_t zeros = std::min(year.find_first_not_of('0'), year.size());
    return year.size() <= 5 && yearsWalked().count(year.substr(zeros)) > 0;
}

// each length of a month and of a day, what is typed on the way to it, and the ends
bool monthAndDayAreWalked(const DateRules& rules)
{
    using Parts = std::set<std::string>;
    static const Parts months = underSanitizer
                                    ? Parts{"", "0", "1", "02", "12"}
                                    : Parts{"", "0", "1", "01", "02", "04", "05", "10", "12"};
    static const Parts days = underSanitizer ? Parts{"", "0", "3", "04", "29", "31"}
                                             : Parts{"",   "0",  "1",  "2",  "3",  "01", "04",
                                                     "05", "10", "12", "28", "29", "30", "31"};
    return months.count(rules.month) > 0 && days.count(rules.day) > 0;
}

DateWalk::Operation digits(const std::string& text)
{
    return DateWalk::silent(
        "setText " + text, [text](DateRules& rules) { rules.setText(text); },
        [text](WalkedDate& edit) { edit.setText(text); });
}

DateWalk::Operation order(unsigned wanted)
{
    return DateWalk::silent(
        "order " + std::to_string(wanted),
        [wanted](DateRules& rules) { rules.setDateOrder(wanted); },
        [wanted](WalkedDate& edit) { edit.setDateOrder(wanted); });
}

std::vector<DateWalk::Operation> dateOperations()
{
    std::vector<DateWalk::Operation> all;
    for (const char c : std::string("0123456789/x"))
        all.push_back(DateWalk::key(std::string(1, c), c));
    all.push_back(DateWalk::silent(
        "backspace", [](DateRules& rules) { rules.backspace(); },
        [](WalkedDate& edit) { edit.backspace(); }));
    all.push_back(DateWalk::silent(
        "clear", [](DateRules& rules) { rules.clear(); }, [](WalkedDate& edit) { edit.clear(); }));
    for (const unsigned wanted : {0U, 1U, 2U})
        all.push_back(order(wanted));
    all.push_back(digits("1225202"));
    all.push_back(digits("12252024"));
    return all;
}

// a day of the calendar that is in use, told without the rules of the field
bool isRealDate(int year, int month, int day)
{
    if (month < 1 || month > 12 || day < 1)
        return false;
    const bool leapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int february = leapYear ? 29 : 28;
    const bool isShort = month == 4 || month == 6 || month == 9 || month == 11;
    return day <= (month == 2 ? february : isShort ? 30 : 31);
}

std::string brokenPromise(const DateRules& before, const DateRules& after)
{
    const int month = numberOf(after.month);
    const int day = numberOf(after.day);
    if (month > 12 || after.month.size() > 2 || after.month == "00")
        return "no month";
    if (day > 31 || after.day.size() > 2 || after.day == "00")
        return "no day";
    if (after.lastDayLookedAt && numberOf(after.year) > 2999)
        return "a year beyond the last one";
    if (after.lastDayLookedAt && after.isComplete() &&
        !isRealDate(numberOf(after.year), month, day))
        return "no date of the calendar";
    if (before.fixedYear != after.fixedYear)
        return "the fixed year changed";
    return "";
}

class DateWalkTest : public EditorTest
{
protected:
    // one walk with a fixed year, through all three orders
    static void walk(WalkedDate& edit, WalkCounts& counts, const std::string& fixedYear,
                     bool everyDay)
    {
        SCOPED_TRACE("fixed year \"" + fixedYear + "\"");
        DateWalk walk(edit, dateOperations());
        walk.goesOn = [everyDay](const DateRules& rules) {
            return yearIsWalked(rules.year) && (everyDay || monthAndDayAreWalked(rules));
        };
        walk.promise = brokenPromise;
        DateRules start;
        if (!fixedYear.empty())
            start.setFixedYear(static_cast<unsigned>(numberOf(fixedYear)));
        walk.from(start);
        // what only numbers bring about: parts that are empty before a filled one, and a year
        // shorter than the fixed one
        for (const unsigned year : {0U, 1U, 999U, 2024U, 5000U}) {
            for (const unsigned month : {0U, 2U, 12U}) {
                for (const unsigned day : {0U, 1U, 31U}) {
                    DateRules set = start;
                    set.setText(year, month, day);
                    walk.from(set);
                }
            }
        }
        walk.run();
        counts.add(walk);
    }

    void walkAll(const std::vector<std::string>& fixedYears, bool everyDay)
    {
        auto* const edit = make<WalkedDate>("ZELImageDateEdit");
        edit->hideWindow();
        WalkCounts counts("date");
        for (const std::string& fixedYear : fixedYears)
            walk(*edit, counts, fixedYear, everyDay);
        EXPECT_EQ(edit->m_strText, "") << "the text of the base has no part";
    }
};

} // namespace

TEST_F(DateWalkTest, everyStepFromEveryStateFollowsTheRules)
{
    walkAll({""}, !underSanitizer);
}

TEST_F(DateWalkTest, everyStepWithAFixedYearFollowsTheRules)
{
    if (underSanitizer)
        walkAll({"20"}, false);
    else
        walkAll({"0", "2", "20", "202", "2024", "20245"}, false);
}

TEST_F(DateWalkTest, theLocaleOfTheProcessDoesNotMatter)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    walkAll({""}, false);
}

TEST_F(DateWalkTest, everyMonthOfEveryYearHasItsLastDay)
{
    auto* const edit = make<WalkedDate>("ZELImageDateEdit");
    for (int year = 0; year <= 3200; ++year) {
        EXPECT_EQ(edit->getLastDay(static_cast<unsigned>(year), 0), 30) << year;
        EXPECT_EQ(edit->getLastDay(static_cast<unsigned>(year), 13), 0) << year;
        for (int month = 1; month <= 12; ++month) {
            const auto last = static_cast<int>(
                edit->getLastDay(static_cast<unsigned>(year), static_cast<unsigned>(month)));
            EXPECT_TRUE(isRealDate(year, month, last)) << year << " " << month;
            EXPECT_FALSE(isRealDate(year, month, last + 1)) << year << " " << month;
        }
    }
}

TEST_F(DateWalkTest, everyDateThatIsTypedStandsAsTyped)
{
    auto* const edit = make<WalkedDate>("ZELImageDateEdit");
    edit->hideWindow();
    for (const int year : {1000, 1900, 1999, 2000, 2023, 2024, 2999}) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; isRealDate(year, month, day); ++day) {
                const std::string parts[] = {padded(month, 2), padded(day, 2), padded(year, 4)};
                const int places[][3] = {{0, 1, 2}, {1, 0, 2}, {2, 0, 1}};
                for (const unsigned order : {0U, 1U, 2U}) {
                    const auto& [a, b, c] = places[order];
                    edit->setDateOrder(order);
                    edit->clear();
                    // a digit that closes its part is typed without the zero in front
                    for (const int part : {a, b, c}) {
                        const std::string& digits = parts[part];
                        const bool closes =
                            part < 2 && digits[0] == '0' && digits[1] >= (part == 0 ? '2' : '4');
                        edit->addText(closes ? digits.substr(1) : digits);
                    }
                    const std::string wanted = parts[a] + "/" + parts[b] + "/" + parts[c];
                    EXPECT_EQ(edit->text(), wanted);
                    edit->clear();
                    edit->addText(wanted);
                    EXPECT_EQ(edit->text(), wanted) << "typed with all zeros and separators";
                }
            }
        }
    }
}
