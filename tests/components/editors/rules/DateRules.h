#pragma once

#include <string>

namespace PANFx::Testing {

/**
 * The rules of the date field, stated a second time without a widget: what stands in the field
 * after each operation. Tests hold the field against it.
 */
class DateRules
{
public:
    enum Order : unsigned {
        MonthDayYear,
        DayMonthYear,
        YearMonthDay,
    };

    unsigned order = MonthDayYear;
    std::string fixedYear;
    std::string year;
    std::string month;
    std::string day;
    bool lastDayLookedAt = false; ///< the operation just done held the day against the calendar

    /** @return whether the field takes notice of the character */
    bool key(char c);
    void backspace();
    void clear();
    void setDateOrder(unsigned wanted);
    void setFixedYear(unsigned number);

    /** Eight digits in the order of the field. @return whether the text was long enough */
    bool setText(const std::string& digits);
    void setText(unsigned yearNumber, unsigned monthNumber, unsigned dayNumber);

    std::string text() const;

    /** Everything that the field holds, for comparing. */
    std::string state() const;

    /** As the field has it: 30 in month 0, none in a month above 12. */
    static unsigned lastDay(unsigned yearNumber, unsigned monthNumber);

    /** Year, month and day are all there, with all their digits. */
    bool isComplete() const;

private:
    void monthDayYear(char c);
    void dayMonthYear(char c);
    void yearMonthDay(char c);

    static void first(std::string& part, char c, int firstThatCloses);
    static bool second(std::string& part, char c, int highest);
    void firstOfYear(char c);
    void laterOfYear(char c);
    void capYear();
    void checkYear();
};

} // namespace PANFx::Testing
