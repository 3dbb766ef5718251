#pragma once

#include "tour/StepList.h"

#include <string>
#include <vector>

class InstrumentFrame;

/// The part of the tour with tabs, ranges, gauges, the help and the notes. It begins and ends on
/// the first page.
class SettingsItinerary : private StepList
{
public:
    SettingsItinerary(InstrumentFrame& frame, Screen& screen);

    /// They refer to the itinerary and must not outlive it.
    std::vector<TourStep> steps();

    /// What is to be seen of it in another language. It begins on the settings and ends on their
    /// last tab.
    std::vector<TourStep> languageSteps(const std::string& strName, const std::string& strLocale);

private:
    void mean();
    void brightness();
    void volume();
    void otherTabs();
    void help();
    void update();
    void updateDone();
    void notes();
    void scrolling();

    /// Notes how many results there are, and a gauge, for what a later claim compares with.
    Action look(const std::string& strGauge);

    InstrumentFrame& m_frame;
    int m_nStored = 0;
    int m_nGauge = 0;
};
