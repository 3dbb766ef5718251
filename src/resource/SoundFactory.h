#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"

#include <string>

namespace PANFx::Resource {

class SoundBase;

/**
 * Forwards each sound to the one back end that the application registers. Without a back end
 * every call is silently nothing.
 */
class QTPANFX_EXPORT SoundFactory
{
public:
    /** The one instance, made on first use. */
    static SoundFactory* getInstance();

    /** Deletes the instance and with it the registered back end. */
    static void destroyInstance();

    virtual ~SoundFactory();

    SoundFactory(const SoundFactory&) = delete;
    SoundFactory& operator=(const SoundFactory&) = delete;

    /**
     * @param pSound owned from now on; null turns sound off. An earlier back end isn't deleted,
     *        it is the caller's again
     */
    void registerSound(SoundBase* pSound);

    /** The registered back end, or null. */
    SoundBase* getSoundObject();

    /// @{
    /** Calls the operation of that name of the back end. */
    void playTouchSound();
    void playAlertSound();
    void playPopupSound();
    void playCompleteSound();
    void playWarningSound();
    void playSystemSound(std::string strSound);
    void playVoiceSound(std::string strSound);
    void playSound(std::string strSound, int nFirst, int nSecond);
    /// @}

protected:
    /** For getInstance() only. */
    SoundFactory();

    SoundBase* m_pSound = nullptr; ///< owned once registered
    Common::SysLogger m_logger{"QTPANFx", "SoundFactory"};

    static SoundFactory* m_pInstance; ///< owned; null until first used
};

} // namespace PANFx::Resource
