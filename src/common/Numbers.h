#pragma once

#include "common/Export.h"

namespace PANFx::Common {

/**
 * The whole number at the start of @p text, read with strtol in base 10: 0 when there is none,
 * held at the limits of int when it is larger. A null text gives 0.
 */
QTPANFX_EXPORT int toInt(const char* text);

/** The decimal number at the start of @p text, with a decimal point whatever the locale says. */
QTPANFX_EXPORT double toDouble(const char* text);

} // namespace PANFx::Common
