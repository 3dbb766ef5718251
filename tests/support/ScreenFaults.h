#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

#include <vector>

namespace PANFx::Testing {

/**
 * Stands in front of what Qt tells of the screen, for as long as the object lives: so the one
 * platform that tests run on passes for another. One object at a time.
 */
class ScreenFaults
{
public:
    ScreenFaults();
    ~ScreenFaults();

    ScreenFaults(const ScreenFaults&) = delete;
    ScreenFaults& operator=(const ScreenFaults&) = delete;

    /** There is no screen at all. */
    bool noScreen = false;

    /** The name of the platform; the one that it is where this is empty. */
    QString platform;

    /** What the screen shows; null where nothing can be had of it. */
    QPixmap shown;

    /** The parts of the screen that were asked for. */
    std::vector<QRect> grabbed;
};

} // namespace PANFx::Testing
