#pragma once

#include "common/tamfx/Exception.h"

namespace TAMFx::Common::Xml {

/**
 * A file was read and is no well-formed XML. Thrown as a pointer that nobody frees. The text is
 * "<file name without its directory>: line L, column C: <what>", the number is the line.
 */
class TAMFX_EXPORT XmlException : public Exception
{
public:
    using Exception::Exception;
    ~XmlException() override;
};

} // namespace TAMFx::Common::Xml
