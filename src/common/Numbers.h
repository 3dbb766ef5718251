#pragma once

#include "common/Export.h"

#include <string>

namespace PANFx::Common {

/**
 * The whole number at the start of @p text, read with strtol in base 10: 0 when there is none,
 * held at the limits of int when it is larger. A null text gives 0.
 */
QTPANFX_EXPORT int toInt(const char* text);

/** The decimal number at the start of @p text, with a decimal point whatever the locale says. */
QTPANFX_EXPORT double toDouble(const char* text);

/**
 * A number in fixed notation, as "%.*f" writes it with a decimal point whatever the locale says.
 * @param places decimal places; a negative number stands for 6, one above 1,100 for 1,100, which
 *               is more than any double has
 */
QTPANFX_EXPORT std::string toFixed(double value, int places);

} // namespace PANFx::Common
