#include "common/tamfx/XmlException.h"

namespace TAMFx::Common::Xml {

// Defined here, and not in the header, so that there is one type of this name in the process and
// a handler in another library catches it.
XmlException::~XmlException() = default;

} // namespace TAMFx::Common::Xml
