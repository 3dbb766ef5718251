#pragma once

#include <string>

/// What the user has set. It lives as long as the program; pages come and go with the language.
struct Settings
{
    bool bTouchSound = true;
    bool bAutoHold = false; ///< readings stand still for a while after they have been saved
    bool bAlarmMuted = false;
    bool bStirrerPaused = false;
    std::string strStirrerSpeed = "medium"; ///< name of its radio button
    bool bOldestFirst = false;              ///< order of the results
};
