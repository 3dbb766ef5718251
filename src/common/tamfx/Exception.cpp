#include "common/tamfx/Exception.h"

namespace TAMFx::Common {

Exception::Exception(const char* pszMessage, int nCode)
    : m_strMessage(pszMessage)
    , m_nCode(nCode)
{
}

Exception::~Exception() = default;

} // namespace TAMFx::Common
