#pragma once

#include "common/Export.h"

#include <string>

namespace PANFx::Resource {

/**
 * A sound back end, which an application derives and registers with SoundFactory. What the texts
 * and numbers mean is the back end's own affair. The order of the operations is fixed.
 */
class QTPANFX_EXPORT SoundBase
{
public:
    SoundBase();
    virtual ~SoundBase();

    SoundBase(const SoundBase&) = delete;
    SoundBase& operator=(const SoundBase&) = delete;

    /** The application's own; the library never calls it. Does nothing here. */
    virtual void initialize();

    virtual void playSound(std::string strSound, int nFirst, int nSecond) = 0;
    virtual void playSystemSound(std::string strSound) = 0;
    virtual void playTouchSound() = 0;
    virtual void playAlertSound() = 0;
    virtual void playPopupSound() = 0;
    virtual void playCompleteSound() = 0;
    virtual void playVoiceSound(std::string strSound) = 0;
    virtual void playWarningSound() = 0;
};

} // namespace PANFx::Resource
