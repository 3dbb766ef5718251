#pragma once

#include "tour/Itinerary.h"
#include "tour/Screen.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <string>
#include <vector>

/// Walks through the instrument as a user does, by touches, and keeps a picture of every step. It
/// goes on from timers, and so also while a dialog waits in a loop of its own.
class Tour
{
public:
    /// The pictures go to `strDir`, which is made when it is missing.
    Tour(InstrumentFrame& frame, const QString& strDir);

    /// Runs the application's event loop until the end of the tour. True if every step came to its
    /// page and its dialog, in its language, kept its claim, had room for all its texts, and left a
    /// picture with something on it.
    bool run();

private:
    void goOn(int nMilliseconds);
    void passOn(int nPostings);
    void proceed();
    void finishStep();

    /// What is wrong after a step, or "".
    std::string fault(const QImage& image);
    std::string keep(const QImage& image);
    void report(const std::string& strFault);

    Screen m_screen;
    QString m_strDir;
    Itinerary m_itinerary; ///< what the steps refer to
    std::vector<TourStep> m_steps;
    std::size_t m_nStep = 0;
    std::size_t m_nAction = 0;
    bool m_bWaits = false; ///< for something that an action has not found
    int m_nFailed = 0;
    QElapsedTimer m_clock; ///< since the last action of the step
    QObject m_life;        ///< timers end with it
};
