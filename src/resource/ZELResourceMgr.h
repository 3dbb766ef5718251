#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "resource/ZELFontMgr.h"
#include "resource/ZELImageMgr.h"
#include "resource/ZELStringMgr.h"

#include <string>

class QPixmap;

namespace TAMFx::Data::Properties {
class FileProperty;
}

/** What changes with the language, sounds, and the composers of the on-screen keyboard. */
namespace PANFx::Resource {

class Font;

/**
 * The one door to all data that changes with the language: pictures, styles and texts by name.
 *
 * Reads the language and the resource directory once, when first used, from the keys "Language"
 * and "ResourcePath" of "/data/config/config_zelapp.cfg". Belongs to the event loop's thread.
 */
class QTPANFX_EXPORT ZELResourceMgr
{
public:
    /** The one instance, made on first use. */
    static ZELResourceMgr* getInstance();

    /**
     * Deletes the instance; the next getInstance makes a new one. Best called when no window is
     * left: one that is shows no pictures any more.
     */
    static void destroyInstance();

    virtual ~ZELResourceMgr();

    ZELResourceMgr(const ZELResourceMgr&) = delete;
    ZELResourceMgr& operator=(const ZELResourceMgr&) = delete;

    /** The resource directory, with a slash at its end. */
    std::string getBasePath();

    /**
     * Switches pictures, styles and texts. Live windows are left as they are, and the
     * configuration file is not written: making the language last is the application's task.
     */
    void changeLocale(std::string strLocale);

    /** The picture of that file name, which stays the cache's; see ZELImageMgr::getImage. */
    QPixmap* getImage(std::string strName);

    /** The style of that name, which stays the manager's; null when unknown. */
    Font* getFont(std::string strName);

    /**
     * The text to show for a text of a layout: "@key" selects an entry of the string table, ""
     * where the key is unknown; any other text is itself. Each backslash followed by n becomes a
     * line feed. UTF-8 in and out.
     */
    std::string getLocaleString(std::string strText);

    std::string m_strLocale;   ///< current locale; "" is the default language
    std::string m_strBasePath; ///< resource directory

    /** The configuration, not owned; null when it could not be opened. */
    TAMFx::Data::Properties::FileProperty* m_pProperty = nullptr;

protected:
    /**
     * Reads the configuration and loads styles and texts; an unknown language becomes the default
     * one and is written back. Without a configuration no directory is set.
     */
    ZELResourceMgr();

    ZELImageMgr m_imageMgr;
    ZELFontMgr m_fontMgr;
    ZELStringMgr m_stringMgr;
    Common::SysLogger m_logger{"QTPANFx", "ZELResourceMgr"};

    static ZELResourceMgr* m_pInstance; ///< owned; null until first used

private:
    void readProperties();
    void writeProperty(const char* key, const std::string& value);
};

} // namespace PANFx::Resource
