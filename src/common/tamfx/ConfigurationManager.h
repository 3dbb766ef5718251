#pragma once

#include "common/tamfx/Export.h"

#include <memory>
#include <vector>

namespace TAMFx::Data::Properties {
class FileProperty;
}

/** Access to the configuration files of a process. */
namespace TAMFx::Config {

/** Keeps the configuration files that the process has opened, each of them once. */
class TAMFX_EXPORT ConfigurationManager
{
public:
    /** The one manager of the process. */
    static ConfigurationManager* GetManager();

    // Applications call this one by its place in the table of virtual operations: keep it first.

    /**
     * Opens a configuration file. The object stays the manager's and lives as long as the
     * process. Opening a file again gives the same object, by whatever path it was named, and
     * reads the file again unless changes wait for Update. A missing file gives an object without
     * keys, and Update creates the file. The mode has no influence.
     * @throws ConfigurationException* when the file is there and cannot be read, or is a
     * directory; an object of an earlier call keeps its values then. Never returns null.
     */
    virtual Data::Properties::FileProperty* openProperty(const char* pszPath, int nMode);

    ConfigurationManager(const ConfigurationManager&) = delete;
    ConfigurationManager& operator=(const ConfigurationManager&) = delete;
    virtual ~ConfigurationManager();

private:
    ConfigurationManager();

    std::vector<std::unique_ptr<Data::Properties::FileProperty>> m_files;
};

} // namespace TAMFx::Config
