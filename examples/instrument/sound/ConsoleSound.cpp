#include "sound/ConsoleSound.h"

#include <cstdio>

void ConsoleSound::write(const std::string& strSound) const
{
    if (m_nVolume == 0)
        return;
    std::printf("sound: %s, volume %d\n", strSound.c_str(), m_nVolume);
    std::fflush(stdout);
}

void ConsoleSound::playSound(std::string strSound, int nFirst, int nSecond)
{
    write(strSound + " " + std::to_string(nFirst) + " " + std::to_string(nSecond));
}

void ConsoleSound::playSystemSound(std::string strSound)
{
    write("system " + strSound);
}

void ConsoleSound::playTouchSound()
{
    if (m_bTouchSound)
        write("touch");
}

void ConsoleSound::playAlertSound()
{
    write("alert");
}

void ConsoleSound::playPopupSound()
{
    write("popup");
}

void ConsoleSound::playCompleteSound()
{
    write("complete");
}

void ConsoleSound::playVoiceSound(std::string strSound)
{
    write("voice " + strSound);
}

void ConsoleSound::playWarningSound()
{
    write("warning");
}
