#pragma once

#include "common/Export.h"

#include <string>

namespace PANFx::Common {

/**
 * The path under which the operating system finds an absolute path of the instrument: the value
 * of the environment variable QTPANFX_SYSROOT and then @p strPath. Unset means nothing in front.
 * A library built with the option QTPANFX_SYSROOT switched off gives the path back as it is.
 *
 * It lets a development machine run against a directory that looks like the instrument's file
 * system. Each path of the library passes through here once, on its way to the system; log lines
 * show the path without the front.
 */
QTPANFX_EXPORT std::string systemPath(const std::string& strPath);

} // namespace PANFx::Common
