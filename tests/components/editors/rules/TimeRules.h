#pragma once

#include <string>

namespace PANFx::Testing {

/**
 * The rules of the time field, stated a second time without a widget: entry in twelve hours, the
 * value in twenty-four. Tests hold the field against it.
 */
class TimeRules
{
public:
    std::string hour;
    std::string minute;
    std::string mark = "AM";

    /** @return whether the field repaints for the character */
    bool key(char c);
    void backspace();
    void clear();
    void changeMark();

    /** A text of five characters: hour, any separator, minute. @return whether it was taken */
    bool setText(const std::string& time);
    void setText(int hourNumber, int minuteNumber, bool am);

    /** "HH:MM" of a whole time in twenty-four hours, else "". */
    std::string text() const;
    bool isAM() const { return mark != "PM"; }

    /** Everything that the field holds, for comparing. */
    std::string state() const { return hour + "|" + minute + "|" + mark; }
};

} // namespace PANFx::Testing
