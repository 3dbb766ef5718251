#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/HashTable.h"

#include <string>

namespace PANFx::Resource {

class Font;

/**
 * The named styles of the current language, from the file "default.style" in the language's
 * directory or else in the resource directory.
 *
 * The styles of earlier languages stay allocated, so that a component built before a change
 * keeps a valid pointer: each change costs the memory of one set of fonts.
 */
class QTPANFX_EXPORT ZELFontMgr
{
public:
    /** Without styles, until changeLocale(). */
    ZELFontMgr();
    virtual ~ZELFontMgr();

    /** @param strBasePath the resource directory, with a slash at its end */
    void setBasePath(std::string strBasePath);

    /** The style of that name, which stays the manager's; null when unknown. */
    Font* getFont(std::string strName);

    /** Loads the style file of a language. A file that can't be loaded leaves no styles. */
    void changeLocale(std::string strLocale);

    TAMFx::Data::Collection::HashTable m_tableFonts; ///< style name to Font, delete flag false
    std::string m_strBasePath;                       ///< as setBasePath() got it
    std::string m_strStylePath;                      ///< the file finally used
    std::string m_strLocale;                         ///< "" for the default language
    Common::SysLogger m_logger{"QTPANFx", "ZELFontMgr"};
};

} // namespace PANFx::Resource
