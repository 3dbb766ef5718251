#include "components/editors/rules/TimeRules.h"

#include "components/editors/rules/Digits.h"

#include <algorithm>

namespace PANFx::Testing {

bool TimeRules::key(char c)
{
    if (c == 'A' || c == 'P') {
        mark = std::string(1, c) + "M";
        return true;
    }
    if (!isDigit(c))
        return false;
    const int d = digitValue(c);
    if (hour.empty()) {
        hour = d < 2 ? std::string(1, c) : padded(d, 2);
    } else if (minute.empty() && hour.size() == 1) {
        const int v = 10 * numberOf(hour) + d;
        if (v > 0)
            hour = padded(std::min(v, 12), 2);
    } else if (minute.empty()) {
        minute = d < 6 ? std::string(1, c) : padded(d, 2);
    } else if (minute.size() == 1) {
        minute += c;
    }
    return true;
}

void TimeRules::backspace()
{
    std::string& part = minute.empty() ? hour : minute;
    if (!part.empty())
        part.pop_back();
}

void TimeRules::clear()
{
    *this = TimeRules();
}

void TimeRules::changeMark()
{
    mark = mark == "AM" ? "PM" : "AM";
}

bool TimeRules::setText(const std::string& time)
{
    if (time.size() < 5)
        return false;
    const int h = numberOf(time.substr(0, 2));
    setText(h, numberOf(time.substr(3, 2)), h < 12);
    return true;
}

void TimeRules::setText(int hourNumber, int minuteNumber, bool am)
{
    if (hourNumber > 12)
        hourNumber %= 12;
    if (hourNumber == 0)
        hourNumber = 12;
    hour = padded(hourNumber, 2);
    minute = padded(minuteNumber > 59 ? 0 : minuteNumber, 2);
    mark = am ? "AM" : "PM";
}

std::string TimeRules::text() const
{
    if (hour.empty() || minute.size() < 2)
        return "";
    int h = numberOf(hour);
    if (mark == "AM")
        h %= 12;
    else if (h < 12)
        h += 12;
    return padded(h, 2) + ":" + padded(numberOf(minute), 2);
}

} // namespace PANFx::Testing
