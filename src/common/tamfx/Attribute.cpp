#include "common/tamfx/Attribute.h"

#include <cstring>

namespace TAMFx::Common::Xml {

Attribute::Attribute(const char* pszName, const char* pszValue)
{
    const std::size_t nName = std::strlen(pszName ? pszName : "") + 1;
    const std::size_t nValue = std::strlen(pszValue ? pszValue : "") + 1;
    char* pTexts = new char[nName + nValue];
    std::memcpy(pTexts, pszName ? pszName : "", nName);
    std::memcpy(pTexts + nName, pszValue ? pszValue : "", nValue);
    m_pszName = pTexts;
    m_pszValue = pTexts + nName;
}

Attribute::~Attribute()
{
    // Those from a file are never destroyed: they vanish with the memory of their document.
    delete[] m_pszName;
}

} // namespace TAMFx::Common::Xml
