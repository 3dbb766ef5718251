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
    /** Does nothing. */
    SoundBase();
    virtual ~SoundBase();

    SoundBase(const SoundBase&) = delete;
    SoundBase& operator=(const SoundBase&) = delete;

    /** The application's own; the library never calls it. Does nothing here. */
    virtual void initialize();

    /** A sound by name and two numbers; the library never asks for it. */
    virtual void playSound(std::string strSound, int nFirst, int nSecond) = 0;

    /** A sound by name; the library never asks for it. */
    virtual void playSystemSound(std::string strSound) = 0;

    /** For a press of a button, unless its setSoundMode() says otherwise, and for a hold. */
    virtual void playTouchSound() = 0;

    /** The library never asks for it. */
    virtual void playAlertSound() = 0;

    /** For each dialog that opens, unless its setSoundPlay() says otherwise. */
    virtual void playPopupSound() = 0;

    /** The library never asks for it. */
    virtual void playCompleteSound() = 0;

    /** A voice by name; the library never asks for it. */
    virtual void playVoiceSound(std::string strSound) = 0;

    /** The library never asks for it. */
    virtual void playWarningSound() = 0;
};

} // namespace PANFx::Resource
