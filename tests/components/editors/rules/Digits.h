#pragma once

#include <string>

/**
 * Digits and their values for the judges of the value editors. Nothing here asks the process's
 * locale, and nothing is shared with the library.
 */
namespace PANFx::Testing {

inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline int digitValue(char c)
{
    return c - '0';
}

/** The number that a text begins with, 0 for none: "5/" is 5, "-04" is -4. It doesn't overflow. */
inline int numberOf(const std::string& text)
{
    const bool negative = !text.empty() && text.front() == '-';
    long value = 0;
    for (size_t i = negative ? 1 : 0; i < text.size() && isDigit(text[i]); ++i) {
        value = 10 * value + digitValue(text[i]);
        if (value > 999999999)
            value = 999999999;
    }
    return static_cast<int>(negative ? -value : value);
}

/** Zeros in front up to a width, a minus sign before them: 5 is "005", -4 is "-04". */
inline std::string padded(int number, size_t width)
{
    const bool negative = number < 0;
    std::string digits = std::to_string(negative ? -number : number);
    const size_t room = negative ? width - 1 : width;
    if (digits.size() < room)
        digits.insert(0, room - digits.size(), '0');
    return negative ? "-" + digits : digits;
}

} // namespace PANFx::Testing
