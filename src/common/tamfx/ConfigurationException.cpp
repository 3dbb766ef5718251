#include "common/tamfx/ConfigurationException.h"

namespace TAMFx::Config {

// Defined here, and not in the header, so that there is one type of this name in the process and
// a handler in another library catches it.
ConfigurationException::~ConfigurationException() = default;

} // namespace TAMFx::Config
