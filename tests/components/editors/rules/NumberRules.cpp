#include "components/editors/rules/NumberRules.h"

#include "components/editors/rules/Digits.h"

#include <algorithm>
#include <charconv>

namespace PANFx::Testing {

bool NumberRules::key(char c)
{
    return places == 0 ? integerKey(c) : decimalKey(c);
}

bool NumberRules::integerKey(char c)
{
    const double v = value();
    if (v == max || number.size() >= maxLength || c == '.')
        return false;
    if (c == '-') {
        if (number.empty())
            number = "-"; // stored, and not to be seen until the next repaint
        return false;
    }
    if (!isDigit(c))
        return false;
    if (number == "0")
        number = std::string(1, c);
    else if (hasRange && v * 10 + digitValue(c) > max)
        number = std::to_string(static_cast<long long>(max));
    else
        number += c;
    return true;
}

bool NumberRules::decimalKey(char c)
{
    const size_t point = number.rfind('.');
    const bool hasPoint = point != std::string::npos;
    if (number.size() >= maxLength)
        return false;
    if (hasPoint && static_cast<int>(number.size() - 1 - point) == places)
        return false;
    if (c == '-') {
        if (!number.empty())
            return false;
        number = "-";
        return true;
    }
    if (c == '.') {
        if (hasPoint)
            return false;
        number += number.empty() ? "0." : ".";
        return true;
    }
    if (c == '0' && zero())
        return true;
    if (!isDigit(c))
        return false;
    if (number == "0")
        number = std::string(1, c);
    else if (!hasRange)
        number += c;
    else
        checkRange(c);
    return true;
}

// a zero behind a text of no value; whether that was the case
bool NumberRules::zero()
{
    if (number.empty()) {
        number = "0";
        return true;
    }
    if (value() != 0)
        return false;
    const size_t point = number.rfind('.');
    if (point == std::string::npos)
        number += number.front() == '-' ? "0." : ".0";
    else if (static_cast<int>(number.size() - point) <= places)
        number += '0';
    return true;
}

void NumberRules::checkRange(char c)
{
    const std::string extended = number + c;
    const double v = valueOf(extended);
    const double tenth = v / 10;
    if (v > max) {
        if (v - max < 1.0)
            number = fixed(max, places);
        else
            number = fixed(std::min(max, tenth), tenth - max > 0 ? places : 1);
    } else if (v < min && min < 0) {
        if (min - v < 1.0)
            number = fixed(min, places);
        else
            number = fixed(std::max(min, tenth), min - tenth > 0 ? places : 1);
    } else {
        number = extended;
    }
}

void NumberRules::backspace()
{
    if (!number.empty())
        number.pop_back();
}

void NumberRules::clear()
{
    number.clear();
}

bool NumberRules::setText(const std::string& wanted)
{
    if (wanted == "." || wanted == "-") {
        number = wanted == "." ? "0." : "-";
        return true;
    }
    const double v = valueOf(wanted);
    if (hasRange && (v < min || v > max))
        return false;
    number = fixed(v, places);
    return true;
}

void NumberRules::setRange(int lower, int upper)
{
    hasRange = true;
    min = lower;
    max = upper;
}

void NumberRules::focusOut()
{
    if (number.empty())
        return;
    const double v = value();
    number = fixed(min > v ? min : v, places);
}

double NumberRules::valueOf(const std::string& text)
{
    double found = 0;
    const char* const end = text.data() + text.size();
    return std::from_chars(text.data(), end, found).ec == std::errc() ? found : 0;
}

std::string NumberRules::fixed(double number, int places)
{
    char text[400];
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed,
                                   places < 0 ? 6 : places);
    return std::string(text, end.ptr);
}

} // namespace PANFx::Testing
