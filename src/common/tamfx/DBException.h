#pragma once

#include "common/tamfx/Exception.h"

namespace TAMFx::DB {

/** A database operation failed. Thrown by value; the number is SQLite's result code. */
class TAMFX_EXPORT DBException : public Common::Exception
{
public:
    using Exception::Exception;
    ~DBException() override;
};

} // namespace TAMFx::DB
