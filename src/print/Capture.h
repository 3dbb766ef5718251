#pragma once

#include "common/Export.h"

/** Pictures of the whole screen. */
class QTPANFX_EXPORT Capture
{
public:
    /** Holds nothing: the pictures are taken by a static operation. */
    Capture();
    virtual ~Capture();

    /**
     * Saves the screen as a JPEG file, whatever the name's extension. Failures are not reported.
     *
     * Where the platform has no picture of its screen, the visible windows are painted one over
     * the other.
     * @param quality of the JPEG, 0 to 100; -1 for Qt's default
     * @param fileName path in Latin-1; null or "" takes "/tmp/screen_yyMMdd_hhmmss.jpg" with the
     *                 local time, so that two within a second are one file
     */
    static void viewCapture(int quality, const char* fileName);
};
