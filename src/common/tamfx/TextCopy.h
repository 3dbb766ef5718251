#pragma once

#include <cstring>
#include <memory>

namespace TAMFx::Common {

/** A copy of a text; null counts as "". */
inline std::unique_ptr<char[]> copyOfText(const char* pszText)
{
    const std::size_t nSize = std::strlen(pszText ? pszText : "") + 1;
    std::unique_ptr<char[]> pCopy(new char[nSize]);
    std::memcpy(pCopy.get(), pszText ? pszText : "", nSize);
    return pCopy;
}

} // namespace TAMFx::Common
