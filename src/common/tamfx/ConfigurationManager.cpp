#include "common/tamfx/ConfigurationManager.h"

#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/FileAccess.h"
#include "common/tamfx/FileProperty.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace TAMFx::Config {

using Data::Properties::FileProperty;

namespace {

[[noreturn]] void fail(const std::string& strPath, int nError)
{
    const std::string strName = strPath.substr(strPath.rfind('/') + 1);
    static thread_local ConfigurationException exception;
    const std::string strMessage =
        "cannot read " + strName + ": " + std::system_category().message(nError);
    exception = ConfigurationException(strMessage.c_str(), nError);
    throw &exception;
}

} // namespace

ConfigurationManager::ConfigurationManager() = default;

ConfigurationManager::~ConfigurationManager() = default;

ConfigurationManager* ConfigurationManager::GetManager()
{
    static ConfigurationManager manager;
    return &manager;
}

FileProperty* ConfigurationManager::openProperty(const char* pszPath, int)
{
    if (!pszPath || !*pszPath)
        fail("a file without a name", EINVAL);
    const std::string strPath = Common::realPathOf(pszPath);
    for (const auto& pFile : m_files) {
        if (pFile->m_strPath != strPath)
            continue;
        if (const int nError = pFile->load())
            fail(pszPath, nError);
        return pFile.get();
    }
    std::unique_ptr<FileProperty> pFile(new FileProperty(strPath));
    if (const int nError = pFile->load())
        fail(pszPath, nError);
    m_files.push_back(std::move(pFile));
    return m_files.back().get();
}

} // namespace TAMFx::Config
