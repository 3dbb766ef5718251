#pragma once

#include "common/Export.h"

#include <string>

/** One software image with its progress in percent, which the class does not limit. */
class QTPANFX_EXPORT ZELUpdateStatusItem
{
public:
    /** Takes both as they are; only ids from 0 to 7 have a name. */
    ZELUpdateStatusItem(int nImageID, int nUpdatePercent);

    /** The id as it was given, which may be one without a name. */
    int getImageID();

    /** Any number is taken; 0 to 7 have a name. */
    void setImageID(int nImageID);

    /** The percent as they were given, also below 0 or above 100. */
    int getUpdatePercent();

    /** Any number is taken, also below 0 or above 100. */
    void setUpdatePercent(int nUpdatePercent);

    /** "Boot", "Kernel", "Rootfs", "App", "QTE", "DSP", "XML", "Sys" for 0 to 7, else "unknown". */
    std::string getImageName();

    int m_nImageID;
    int m_nUpdatePercent;
};
