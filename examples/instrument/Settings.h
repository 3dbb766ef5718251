#pragma once

#include "Record.h"

#include <string>

/// What the user has set. It lives as long as the program; pages come and go with the language.
struct Settings
{
    bool bTouchSound = true;
    bool bAutoHold = false; ///< readings stand still for a while after they have been saved
    bool bAlarmMuted = false;
    bool bStirrerPaused = false;
    std::string strStirrerSpeed = "medium"; ///< name of its radio button
    int nBrightness = 6;                    ///< step of its range, from 0
    int nVolume = 2;                        ///< step of its range; 0 is off
    RecordQuery results;                    ///< what the results show

    std::string strDateOrder = "ymd"; ///< name of its radio button
    long long nClockOffset = 0;       ///< milliseconds from the machine's clock to the instrument's
    std::string strAddress = "192.168.0.20";
    int nInterval = 10; ///< minutes
    std::string strOperator = "OP-104";
    std::string strSampleName; ///< of the next sample, UTF-8; empty for a number in its place
    std::string strSampleCode; ///< what was scanned from its label
    std::string strNotes;      ///< lines of text, UTF-8

    std::string strFirmware = "1.0.0";
};
