#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/HashTable.h"

#include <QPixmap>

#include <memory>
#include <string>
#include <unordered_map>

namespace PANFx::Resource {

/**
 * Loads pictures by file name, a language's own version first, and keeps each for as long as the
 * language stays. Components hold the pointers that it gives out and don't free them.
 *
 * A change of language frees the pixels of all pictures at once. The emptied QPixmap objects stay,
 * and are filled again when the same name is asked for, so that a window that outlives the change
 * shows nothing or the new picture and never reads freed memory. The end of the manager leaves them
 * empty too.
 */
class QTPANFX_EXPORT ZELImageMgr
{
public:
    /** Without a resource directory, until setBasePath(). */
    ZELImageMgr();
    virtual ~ZELImageMgr();

    /** @param strBasePath the resource directory, with a slash at its end */
    void setBasePath(std::string strBasePath);

    /** Switches the language and empties the cache, for the same language too. */
    void changeLocale(std::string strLocale);

    /**
     * The picture of that file name, which stays the manager's.
     * @return null for an empty name. A file that is missing or is no picture gives a pointer to
     *         a null QPixmap, and the failed look-up is remembered until the language changes
     */
    QPixmap* getImage(std::string strName);

    TAMFx::Data::Collection::HashTable
        m_tableImages;         ///< file name to an entry that leads to the picture
    std::string m_strBasePath; ///< as setBasePath() got it
    std::string m_strLocale;   ///< "" for the default language
    Common::SysLogger m_logger{"QTPANFx", "ZELImageMgr"};

private:
    std::string pathOf(const std::string& strName) const;
    QPixmap* shellOf(const std::string& strName);

    // what was ever given out, by name; the table's entries point here
    std::unordered_map<std::string, std::unique_ptr<QPixmap>> m_shells;
};

} // namespace PANFx::Resource
