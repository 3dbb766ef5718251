#pragma once

#include "common/tamfx/Export.h"

/** Data in memory and in files. */
namespace TAMFx::Data {

/** Base of everything that a collection may store and free as an object. */
class TAMFX_EXPORT Object
{
public:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
    virtual ~Object();
};

} // namespace TAMFx::Data
