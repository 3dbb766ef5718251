#pragma once

#include "resource/LangPad.h"

namespace PANFx::Resource {

/** Composer of Spanish, French, German, Italian and Portuguese: appends characters as they come. */
class QTPANFX_EXPORT EspPad : public LangPad
{
public:
    /** Holds no text. */
    EspPad();
    EspPad(const EspPad&) = default;
    EspPad& operator=(const EspPad&) = default;
    ~EspPad() override;
};

} // namespace PANFx::Resource
