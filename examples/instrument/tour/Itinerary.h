#pragma once

#include "tour/ListItinerary.h"
#include "tour/PrintItinerary.h"
#include "tour/SettingsItinerary.h"
#include "tour/StepList.h"
#include "tour/TourDatabase.h"
#include "tour/TypingItinerary.h"

#include <string>
#include <vector>

class Analyser;
class InstrumentFrame;
class Screen;

/// The steps of the tour through the whole instrument. They refer to it and must not outlive it.
class Itinerary : private StepList
{
public:
    /// Papers and pictures that the tour makes besides its steps go to `strDir`.
    Itinerary(InstrumentFrame& frame, Screen& screen, const QString& strDir);

    std::vector<TourStep> steps();

private:
    void firstLook();
    void limit();
    void results();
    void settings();
    void calibration();
    void saving();
    void fault();
    void korean();
    void otherLanguages();
    void clearing();

    void addLanguage(const std::string& strName, const std::string& strLocale);

    /// A look at pages and dialogs in the language that is in force, from the home page on.
    void looksIn(const std::string& strName, const std::string& strLocale);

    Analyser& analyser();

    /// Pauses the stirrer or lets it run, without a way through the settings.
    Action pauseStirrer(bool bPaused);

    InstrumentFrame& m_frame;
    TourDatabase m_database;
    SettingsItinerary m_settings;
    TypingItinerary m_typing;
    ListItinerary m_lists;
    PrintItinerary m_printing;
};
