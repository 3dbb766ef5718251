#include "common/Numbers.h"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale.h>

namespace PANFx::Common {

namespace {

constexpr int mostPlaces = 1100;
constexpr int safeDigits = 9; // so many fit into an int

// Qt sets the process locale, and half of the panel's languages write a decimal comma.
locale_t plainLocale()
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return plain;
}

} // namespace

int toInt(const char* text)
{
    if (!text)
        return 0;
    // a few plain digits, as nearly all numbers of a layout are, without strtol's generality
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    int plain = 0;
    const char* at = text;
    for (; at - text < safeDigits && isDigit(*at); ++at)
        plain = 10 * plain + (*at - '0');
    if (at != text && !isDigit(*at))
        return plain;
    const long value = std::strtol(text, nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

double toDouble(const char* text)
{
    if (!text)
        return 0.0;
    return strtod_l(text, nullptr, plainLocale());
}

std::string toFixed(double value, int places)
{
    const int held = std::min(places, mostPlaces);
    const locale_t before = uselocale(plainLocale());
    const int length = std::snprintf(nullptr, 0, "%.*f", held, value);
    std::string text(static_cast<std::size_t>(std::max(length, 0)) + 1, '\0');
    std::snprintf(text.data(), text.size(), "%.*f", held, value);
    uselocale(before);
    text.pop_back();
    return text;
}

} // namespace PANFx::Common
