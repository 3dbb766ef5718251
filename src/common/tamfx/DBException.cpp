#include "common/tamfx/DBException.h"

namespace TAMFx::DB {

// Defined here, and not in the header, so that there is one type of this name in the process and
// a handler in another library catches it.
DBException::~DBException() = default;

} // namespace TAMFx::DB
