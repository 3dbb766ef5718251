#pragma once

#include "resource/LangPad.h"

namespace PANFx::Resource {

/** Composer of English, Russian and Chinese: appends characters as they come. */
class QTPANFX_EXPORT EnPad : public LangPad
{
public:
    /** Holds no text. */
    EnPad();
    EnPad(const EnPad&) = default;
    EnPad& operator=(const EnPad&) = default;
    ~EnPad() override;
};

} // namespace PANFx::Resource
