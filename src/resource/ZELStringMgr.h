#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/HashTable.h"

#include <string>

namespace PANFx::Resource {

/**
 * Holds the display texts of the current language, one column of the file
 * "StringTable.Resource" in the resource directory.
 */
class QTPANFX_EXPORT ZELStringMgr
{
public:
    /** Without texts, until changeLocale(). */
    ZELStringMgr();
    virtual ~ZELStringMgr();

    /** @param strBasePath the resource directory, with a slash at its end */
    void setBasePath(std::string strBasePath);

    /**
     * Loads the column of a language over what the table holds. The table is never cleared: an
     * entry that the file lacks, or that lacks the column, keeps the text loaded before, and an
     * entry whose column is empty is removed.
     * @return false, with an error line, when the file can't be loaded
     */
    bool changeLocale(std::string strLocale);

    /** The text of a key in UTF-8; "" for an unknown key. */
    std::string getLocaleString(std::string strKey);

    TAMFx::Data::Collection::HashTable m_tableStrings; ///< key to text
    std::string m_strBasePath;                         ///< as setBasePath() got it
    Common::SysLogger m_logger{"QTPANFx", "ZELStringMgr"};
};

} // namespace PANFx::Resource
