#pragma once

#include "common/Export.h"

#include <string>

/** One software image with its progress in percent, which the class does not limit. */
class QTPANFX_EXPORT ZELUpdateStatusItem
{
public:
    ZELUpdateStatusItem(int nImageID, int nUpdatePercent);

    int getImageID();
    void setImageID(int nImageID);
    int getUpdatePercent();
    void setUpdatePercent(int nUpdatePercent);

    /** "Boot", "Kernel", "Rootfs", "App", "QTE", "DSP", "XML", "Sys" for 0 to 7, else "unknown". */
    std::string getImageName();

    int m_nImageID;
    int m_nUpdatePercent;
};
