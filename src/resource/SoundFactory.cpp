#include "resource/SoundFactory.h"

#include "resource/SoundBase.h"

#include <utility>

namespace PANFx::Resource {

SoundFactory* SoundFactory::m_pInstance = nullptr;

SoundFactory* SoundFactory::getInstance()
{
    if (!m_pInstance)
        m_pInstance = new SoundFactory;
    return m_pInstance;
}

void SoundFactory::destroyInstance()
{
    delete m_pInstance;
    m_pInstance = nullptr;
}

SoundFactory::SoundFactory() = default;

SoundFactory::~SoundFactory()
{
    // first out of reach: a back end may play through the factory as it ends
    delete std::exchange(m_pSound, nullptr);
}

void SoundFactory::registerSound(SoundBase* pSound)
{
    m_pSound = pSound;
}

SoundBase* SoundFactory::getSoundObject()
{
    return m_pSound;
}

void SoundFactory::playTouchSound()
{
    if (m_pSound)
        m_pSound->playTouchSound();
}

void SoundFactory::playAlertSound()
{
    if (m_pSound)
        m_pSound->playAlertSound();
}

void SoundFactory::playPopupSound()
{
    if (m_pSound)
        m_pSound->playPopupSound();
}

void SoundFactory::playCompleteSound()
{
    if (m_pSound)
        m_pSound->playCompleteSound();
}

void SoundFactory::playWarningSound()
{
    if (m_pSound)
        m_pSound->playWarningSound();
}

void SoundFactory::playSystemSound(std::string strSound)
{
    if (m_pSound)
        m_pSound->playSystemSound(std::move(strSound));
}

void SoundFactory::playVoiceSound(std::string strSound)
{
    if (m_pSound)
        m_pSound->playVoiceSound(std::move(strSound));
}

void SoundFactory::playSound(std::string strSound, int nFirst, int nSecond)
{
    if (m_pSound)
        m_pSound->playSound(std::move(strSound), nFirst, nSecond);
}

} // namespace PANFx::Resource
