#pragma once

#include <functional>
#include <string>
#include <vector>

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
    int nLimit = 0;               ///< milliseconds until then, where it takes longer than usual
};

/// Steps of the tour, put together from touches. They refer to the list and must not outlive it.
class StepList
{
protected:
    using Action = TourStep::Action;
    using Actions = std::vector<Action>;

    static constexpr int firstTick = 1200; ///< milliseconds; a held button ticks after 1000

    explicit StepList(Screen& screen);

    TourStep& add(const std::string& strName, const std::string& strPage, Actions actions);
    static void claim(TourStep& step, const std::string& strClaim, std::function<bool()> isTrue);
    void append(std::vector<TourStep> steps);
    std::vector<TourStep> takeSteps();

    Action tap(const std::string& strID);
    Action press(const std::string& strID, int nTime = 0);
    Action release();
    Action goHome();
    static Action wait(int nMilliseconds);
    Action tick(const std::string& strID, int nTicks);

    /// Touches one key after the other; a key's id is the prefix and one character.
    Actions taps(const std::string& strPrefix, const std::string& strKeys);

    Screen& m_screen;
    std::string m_strLocale; ///< in force after the steps so far

private:
    std::vector<TourStep> m_steps;
};
