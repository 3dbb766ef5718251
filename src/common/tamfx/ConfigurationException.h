#pragma once

#include "common/tamfx/Exception.h"

namespace TAMFx::Config {

/**
 * A configuration file exists but cannot be read. Thrown as a pointer that nobody frees; the
 * number is the system's error number.
 */
class TAMFX_EXPORT ConfigurationException : public Common::Exception
{
public:
    using Exception::Exception;
    ~ConfigurationException() override;
};

} // namespace TAMFx::Config
