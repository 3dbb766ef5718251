#include "common/Numbers.h"

#include <algorithm>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <locale.h>

namespace PANFx::Common {

int toInt(const char* text)
{
    if (!text)
        return 0;
    const long value = std::strtol(text, nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

double toDouble(const char* text)
{
    if (!text)
        return 0.0;
    // Qt sets the process locale, and half of the panel's languages write a decimal comma
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text, nullptr, plain);
}

} // namespace PANFx::Common
