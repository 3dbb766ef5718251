#pragma once

#include "common/Export.h"

#include <string>

/** One software image with its version. */
class QTPANFX_EXPORT ZELUpdateInfoItem
{
public:
    /** Takes both as they are; only ids from 0 to 7 have a name. */
    ZELUpdateInfoItem(int nImageID, std::string strImageVersion);

    /** The id as it was given, which may be one without a name. */
    int getImageID();

    /** Any number is taken; 0 to 7 have a name. */
    void setImageID(int nImageID);

    /** The version as it was given; its form is the application's. */
    std::string getImageVersion();

    /** Any text is taken. */
    void setImageVersion(std::string strImageVersion);

    /** "Boot", "Kernel", "Rootfs", "App", "QTE", "DSP", "XML", "Sys" for 0 to 7, else "unknown". */
    std::string getImageName();

    int m_nImageID;
    std::string m_strImageVersion;
};
