#pragma once

#include "resource/SoundBase.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

/** A sound back end that keeps what it was asked to play, also beyond its own end. */
class SoundProbe : public Resource::SoundBase
{
public:
    using Sounds = std::vector<std::string>;

    explicit SoundProbe(std::shared_ptr<Sounds> sounds)
        : m_sounds(std::move(sounds))
    {
    }
    ~SoundProbe() override { m_sounds->push_back("deleted"); }

    void initialize() override { m_sounds->push_back("initialize"); }
    void playSound(std::string sound, int first, int second) override
    {
        m_sounds->push_back("sound " + sound + " " + std::to_string(first) + " " +
                            std::to_string(second));
    }
    void playSystemSound(std::string sound) override { m_sounds->push_back("system " + sound); }
    void playTouchSound() override { m_sounds->push_back("touch"); }
    void playAlertSound() override { m_sounds->push_back("alert"); }
    void playPopupSound() override { m_sounds->push_back("popup"); }
    void playCompleteSound() override { m_sounds->push_back("complete"); }
    void playVoiceSound(std::string sound) override { m_sounds->push_back("voice " + sound); }
    void playWarningSound() override { m_sounds->push_back("warning"); }

private:
    std::shared_ptr<Sounds> m_sounds;
};

} // namespace PANFx::Testing
