#include "resource/EspPad.h"

namespace PANFx::Resource {

EspPad::EspPad() = default;

EspPad::~EspPad() = default;

} // namespace PANFx::Resource
