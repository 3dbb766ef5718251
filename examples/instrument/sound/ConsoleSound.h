#pragma once

#include "resource/SoundBase.h"

#include <string>

/// A sound back end for a machine without a loudspeaker: each sound is a line on standard output.
class ConsoleSound : public PANFx::Resource::SoundBase
{
public:
    /// Whether a touch can be heard; all other sounds always can.
    void setTouchSound(bool bOn) { m_bTouchSound = bOn; }

    /// How loud everything is; 0 is silence.
    void setVolume(int nVolume) { m_nVolume = nVolume; }

    void playSound(std::string strSound, int nFirst, int nSecond) override;
    void playSystemSound(std::string strSound) override;
    void playTouchSound() override;
    void playAlertSound() override;
    void playPopupSound() override;
    void playCompleteSound() override;
    void playVoiceSound(std::string strSound) override;
    void playWarningSound() override;

private:
    void write(const std::string& strSound) const;

    bool m_bTouchSound = true;
    int m_nVolume = 2;
};
