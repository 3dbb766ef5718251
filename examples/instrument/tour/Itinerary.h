#pragma once

#include <functional>
#include <string>
#include <vector>

class Analyser;
class InstrumentFrame;
class Screen;

/// One step of the tour: what the user does, and what must be there afterwards.
struct TourStep
{
    /// A part of a step. What it sets going is over when the next one comes.
    struct Action
    {
        std::function<void()> run;
        int nTime = 0; ///< milliseconds until the next one, where it takes longer than usual
    };

    std::string strName;
    std::vector<Action> actions;
    std::string strPage;          ///< must be on screen
    std::string strLocale;        ///< must be in force
    std::string strDialog;        ///< must lie over the page; "" for none
    std::string strClaim;         ///< what else must be true, in words
    std::function<bool()> isTrue; ///< the same, to be tested
};

/// The steps of the tour through the whole instrument. They refer to it and must not outlive it.
class Itinerary
{
public:
    Itinerary(InstrumentFrame& frame, Screen& screen);

    std::vector<TourStep> steps();

private:
    using Action = TourStep::Action;
    using Actions = std::vector<Action>;

    void firstLook();
    void limit();
    void results();
    void settings();
    void calibration();
    void saving();
    void korean();
    void otherLanguages();
    void clearing();

    TourStep& add(const std::string& strName, const std::string& strPage, Actions actions);
    void addLanguage(const std::string& strName, const std::string& strLocale);
    static void claim(TourStep& step, const std::string& strClaim, std::function<bool()> isTrue);

    Action tap(const std::string& strID);
    Action press(const std::string& strID, int nTime = 0);
    Action release();
    Action goHome();
    Action tick(const std::string& strID, int nTicks);

    Analyser& analyser();

    InstrumentFrame& m_frame;
    Screen& m_screen;
    std::string m_strLocale; ///< in force after the steps so far
    std::vector<TourStep> m_steps;
};
