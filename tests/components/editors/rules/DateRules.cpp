#include "components/editors/rules/DateRules.h"

#include "components/editors/rules/Digits.h"

#include <algorithm>

namespace PANFx::Testing {

bool DateRules::key(char c)
{
    lastDayLookedAt = false;
    if (!isDigit(c))
        return false;
    switch (order) {
    case MonthDayYear:
        monthDayYear(c);
        break;
    case DayMonthYear:
        dayMonthYear(c);
        break;
    default:
        yearMonthDay(c);
    }
    return true;
}

void DateRules::monthDayYear(char c)
{
    const bool yearUntouched = year.size() == fixedYear.size();
    if (month.empty())
        first(month, c, 2);
    else if (day.empty() && month.size() == 1)
        second(month, c, 12);
    else if (day.empty())
        first(day, c, 4);
    else if (yearUntouched && day.size() == 1)
        second(day, c, 31);
    else if (yearUntouched)
        firstOfYear(c);
    else
        laterOfYear(c);
}

void DateRules::dayMonthYear(char c)
{
    const bool yearUntouched = year.size() == fixedYear.size();
    if (day.empty())
        first(day, c, 4);
    else if (month.empty() && day.size() == 1)
        second(day, c, 31);
    else if (month.empty())
        first(month, c, 2);
    else if (yearUntouched && month.size() == 1)
        second(month, c, 12);
    else if (yearUntouched)
        firstOfYear(c);
    else
        laterOfYear(c);
}

void DateRules::yearMonthDay(char c)
{
    if (year.size() < 4) {
        if (!year.empty() || c != '0')
            year += c;
    } else if (month.empty()) {
        first(month, c, 2);
    } else if (day.empty() && month.size() == 1) {
        second(month, c, 12);
    } else if (day.empty()) {
        first(day, c, 4);
        if (day.size() == 2)
            capYear();
    } else if (day.size() == 1) {
        if (second(day, c, 31))
            checkYear();
    }
}

// a digit that no second one can follow closes the part at once
void DateRules::first(std::string& part, char c, int firstThatCloses)
{
    part = digitValue(c) < firstThatCloses ? std::string(1, c) : std::string("0") + c;
}

// whether the digit was taken: 00 is neither a month nor a day
bool DateRules::second(std::string& part, char c, int highest)
{
    const int value = numberOf(part) * 10 + digitValue(c);
    if (value == 0)
        return false;
    part = padded(std::min(value, highest), 2);
    return true;
}

void DateRules::firstOfYear(char c)
{
    if (!year.empty() || c != '0')
        year += c;
}

void DateRules::laterOfYear(char c)
{
    if (numberOf(year) >= 1000)
        return;
    year += c;
    if (year.size() == 4)
        checkYear();
}

void DateRules::capYear()
{
    if (numberOf(year) > 2999)
        year = "2999";
}

void DateRules::checkYear()
{
    capYear();
    lastDayLookedAt = true;
    const int last = static_cast<int>(
        lastDay(static_cast<unsigned>(numberOf(year)), static_cast<unsigned>(numberOf(month))));
    if (numberOf(day) > last)
        day = std::to_string(last);
}

void DateRules::backspace()
{
    lastDayLookedAt = false;
    const bool yearToGo = year.size() > fixedYear.size();
    std::string* part = nullptr;
    switch (order) {
    case MonthDayYear:
        part = yearToGo ? &year : !day.empty() ? &day : &month;
        break;
    case DayMonthYear:
        part = yearToGo ? &year : !month.empty() ? &month : &day;
        break;
    default:
        part = !day.empty() ? &day : !month.empty() ? &month : yearToGo ? &year : nullptr;
    }
    if (part && !part->empty())
        part->pop_back();
}

void DateRules::clear()
{
    lastDayLookedAt = false;
    year = fixedYear;
    month.clear();
    day.clear();
}

void DateRules::setDateOrder(unsigned wanted)
{
    lastDayLookedAt = false;
    order = wanted > 2 ? 0 : wanted;
}

void DateRules::setFixedYear(unsigned number)
{
    lastDayLookedAt = false;
    fixedYear = std::to_string(number);
    year = fixedYear;
}

bool DateRules::setText(const std::string& digits)
{
    lastDayLookedAt = false;
    if (digits.size() < 8)
        return false;
    const auto part = [&digits](size_t at, size_t length) {
        return static_cast<unsigned>(numberOf(digits.substr(at, length)));
    };
    if (order == MonthDayYear)
        setText(part(4, 4), part(0, 2), part(2, 2));
    else if (order == DayMonthYear)
        setText(part(4, 4), part(2, 2), part(0, 2));
    else
        setText(part(0, 4), part(4, 2), part(6, 2));
    return true;
}

void DateRules::setText(unsigned yearNumber, unsigned monthNumber, unsigned dayNumber)
{
    const unsigned limitedMonth = std::min(monthNumber, 12U);
    // the year as it was passed: a year that is cut to 2999 keeps its own 29 February
    const unsigned limitedDay = std::min(dayNumber, lastDay(yearNumber, limitedMonth));
    year = yearNumber == 0 ? "" : padded(static_cast<int>(std::min(yearNumber, 2999U)), 4);
    month = limitedMonth == 0 ? "" : padded(static_cast<int>(limitedMonth), 2);
    day = dayNumber == 0 ? "" : padded(static_cast<int>(limitedDay), 2);
    lastDayLookedAt = yearNumber < 3000;
}

std::string DateRules::text() const
{
    if (order == MonthDayYear)
        return month + "/" + day + "/" + year;
    if (order == DayMonthYear)
        return day + "/" + month + "/" + year;
    return year + "/" + month + "/" + day;
}

std::string DateRules::state() const
{
    std::string all = std::to_string(order);
    all.reserve(24);
    for (const std::string* part : {&fixedYear, &year, &month, &day}) {
        all += '|';
        all += *part;
    }
    return all;
}

unsigned DateRules::lastDay(unsigned yearNumber, unsigned monthNumber)
{
    constexpr unsigned days[] = {30, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (monthNumber > 12)
        return 0;
    const bool leapYear = yearNumber % 4 == 0 && (yearNumber % 100 != 0 || yearNumber % 400 == 0);
    return monthNumber == 2 && leapYear ? 29 : days[monthNumber];
}

bool DateRules::isComplete() const
{
    return year.size() >= 4 && month.size() == 2 && day.size() == 2;
}

} // namespace PANFx::Testing
