#include "components/support/TellOnce.h"

#include "common/SysLogger.h"

namespace PANFx::Components {

void TellOnce::error(Common::SysLogger& logger, const char* pszOperation, const std::string& strID,
                     const char* pszWhat)
{
    if (m_bTold)
        return;
    m_bTold = true;
    logger.WriteError("[%s] %s %s", pszOperation, strID.c_str(), pszWhat);
}

} // namespace PANFx::Components
