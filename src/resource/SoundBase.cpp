#include "resource/SoundBase.h"

namespace PANFx::Resource {

SoundBase::SoundBase() = default;

SoundBase::~SoundBase() = default;

void SoundBase::initialize() {}

} // namespace PANFx::Resource
