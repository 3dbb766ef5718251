#include "resource/ZELResourceMgr.h"

#include "common/systemPath.h"
#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/ConfigurationManager.h"
#include "common/tamfx/FileProperty.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace PANFx::Resource {

using TAMFx::Config::ConfigurationException;
using TAMFx::Config::ConfigurationManager;

namespace {

constexpr const char* configurationPath = "/data/config/config_zelapp.cfg";
constexpr int configurationMode = 6302;
constexpr const char* defaultBasePath = "/app/bin/resource/";

constexpr const char* languageKey = "Language";
constexpr const char* resourcePathKey = "ResourcePath";

constexpr const char* lineFeed = "\\n"; // as a text writes it: a backslash and an n

bool isLocale(const std::string& locale)
{
    static constexpr const char* locales[] = {"",    "kr",  "esp", "fra", "ger",
                                              "ita", "rus", "pol", "chn", "por"};
    return std::find(std::begin(locales), std::end(locales), locale) != std::end(locales);
}

} // namespace

ZELResourceMgr* ZELResourceMgr::m_pInstance = nullptr;

ZELResourceMgr* ZELResourceMgr::getInstance()
{
    if (!m_pInstance)
        m_pInstance = new ZELResourceMgr;
    return m_pInstance;
}

void ZELResourceMgr::destroyInstance()
{
    delete m_pInstance;
    m_pInstance = nullptr;
}

ZELResourceMgr::ZELResourceMgr()
{
    try {
        m_pProperty = ConfigurationManager::GetManager()->openProperty(
            Common::systemPath(configurationPath).c_str(), configurationMode);
    } catch (ConfigurationException* exception) {
        if (exception)
            m_logger.WriteDebug("[%s] %s", "ZELResourceMgr", exception->GetMessage());
        m_pProperty = nullptr;
        return;
    }
    if (!m_pProperty) {
        m_logger.WriteError("[%s] no configuration: %s", "ZELResourceMgr", configurationPath);
        return;
    }
    readProperties();
    m_logger.WriteDebug("[%s] : Base Locale: %s, Base Resource Path: %s", "ZELResourceMgr",
                        m_strLocale.c_str(), m_strBasePath.c_str());
    m_imageMgr.setBasePath(m_strBasePath);
    m_imageMgr.changeLocale(m_strLocale);
    m_fontMgr.setBasePath(m_strBasePath);
    m_fontMgr.changeLocale(m_strLocale);
    m_stringMgr.setBasePath(m_strBasePath);
    m_stringMgr.changeLocale(m_strLocale);
    m_logger.WriteDebug("[ZELResourceMgr::ZELResourceMgr] end");
}

ZELResourceMgr::~ZELResourceMgr() = default;

void ZELResourceMgr::readProperties()
{
    m_strLocale = m_pProperty->getProperty(languageKey);
    m_strBasePath = m_pProperty->getProperty(resourcePathKey);
    if (!isLocale(m_strLocale)) {
        m_strLocale.clear();
        writeProperty(languageKey, m_strLocale);
    }
    if (m_strBasePath.empty()) {
        m_strBasePath = defaultBasePath;
        writeProperty(resourcePathKey, m_strBasePath);
    }
}

// A file that can't be written must not keep the panel from coming up.
void ZELResourceMgr::writeProperty(const char* key, const std::string& value)
{
    m_pProperty->setProperty(key, value.c_str());
    if (!m_pProperty->Update())
        m_logger.WriteError("[%s] cannot write %s", "ZELResourceMgr", configurationPath);
}

std::string ZELResourceMgr::getBasePath()
{
    return m_strBasePath;
}

void ZELResourceMgr::changeLocale(std::string strLocale)
{
    m_strLocale = std::move(strLocale);
    m_imageMgr.changeLocale(m_strLocale);
    m_fontMgr.changeLocale(m_strLocale);
    m_stringMgr.changeLocale(m_strLocale);
}

QPixmap* ZELResourceMgr::getImage(std::string strName)
{
    return m_imageMgr.getImage(std::move(strName));
}

Font* ZELResourceMgr::getFont(std::string strName)
{
    return m_fontMgr.getFont(std::move(strName));
}

std::string ZELResourceMgr::getLocaleString(std::string strText)
{
    if (strText.empty())
        return {};
    std::string text = strText.front() == '@' ? m_stringMgr.getLocaleString(strText.substr(1))
                                              : std::move(strText);
    text.resize(std::strlen(text.c_str())); // the text to show ends at the first NUL
    for (size_t at = text.find(lineFeed); at != std::string::npos; at = text.find(lineFeed, at + 1))
        text.replace(at, std::strlen(lineFeed), "\n");
    return text;
}

} // namespace PANFx::Resource
