#include "common/systemPath.h"

#include <cstdlib>

namespace PANFx::Common {

std::string systemPath(const std::string& strPath)
{
#if defined(QTPANFX_WITH_SYSROOT)
    if (strPath.empty() || strPath.front() != '/')
        return strPath;
    const char* sysroot = secure_getenv("QTPANFX_SYSROOT");
    return sysroot ? sysroot + strPath : strPath;
#else
    return strPath;
#endif
}

} // namespace PANFx::Common
