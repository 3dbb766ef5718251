#pragma once

#include "common/tamfx/Export.h"

namespace TAMFx::Common::Xml {

class XmlTreeBuilder;

/**
 * Name and value of an element's attribute. One built in memory holds copies of both; one from a
 * file points into the memory of its document and dies with the document.
 */
class TAMFX_EXPORT Attribute
{
public:
    /** Copies both texts; null counts as "". */
    Attribute(const char* pszName, const char* pszValue);
    Attribute(const Attribute&) = delete;
    Attribute& operator=(const Attribute&) = delete;
    ~Attribute();

    /** Never null. */
    const char* getName() const { return m_pszName; }

    /** Never null; "" for an empty attribute. */
    const char* getValue() const { return m_pszValue; }

private:
    friend class XmlTreeBuilder;
    struct FromFile
    {
    };
    Attribute(FromFile, const char* pszName, const char* pszValue)
        : m_pszName(pszName)
        , m_pszValue(pszValue)
    {
    }

    // In memory both texts share one buffer, which begins with the name.
    const char* m_pszName;
    const char* m_pszValue;
};

} // namespace TAMFx::Common::Xml
