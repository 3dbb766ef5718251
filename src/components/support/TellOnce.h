#pragma once

#include <string>

namespace PANFx::Common {
class SysLogger;
}

namespace PANFx::Components {

/** Writes an error line the first time only: painting comes back too often to tell it each time. */
class TellOnce
{
public:
    /** Writes "[operation] id what". */
    void error(Common::SysLogger& logger, const char* pszOperation, const std::string& strID,
               const char* pszWhat);

private:
    bool m_bTold = false;
};

} // namespace PANFx::Components
