#include "resource/EnPad.h"

namespace PANFx::Resource {

EnPad::EnPad() = default;

EnPad::~EnPad() = default;

} // namespace PANFx::Resource
