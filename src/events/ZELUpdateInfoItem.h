#pragma once

#include "common/Export.h"

#include <string>

/** One software image with its version. */
class QTPANFX_EXPORT ZELUpdateInfoItem
{
public:
    ZELUpdateInfoItem(int nImageID, std::string strImageVersion);

    int getImageID();
    void setImageID(int nImageID);
    std::string getImageVersion();
    void setImageVersion(std::string strImageVersion);

    /** "Boot", "Kernel", "Rootfs", "App", "QTE", "DSP", "XML", "Sys" for 0 to 7, else "unknown". */
    std::string getImageName();

    int m_nImageID;
    std::string m_strImageVersion;
};
