#include "common/tamfx/Object.h"

namespace TAMFx::Data {

Object::~Object() = default;

} // namespace TAMFx::Data
