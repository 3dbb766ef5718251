#include "tour/StepList.h"

#include "tour/Screen.h"

#include <iterator>
#include <utility>

StepList::StepList(Screen& screen)
    : m_screen(screen)
{
}

TourStep& StepList::add(const std::string& strName, const std::string& strPage, Actions actions)
{
    TourStep step;
    step.strName = strName;
    step.actions = std::move(actions);
    step.strPage = strPage;
    step.strLocale = m_strLocale;
    m_steps.push_back(std::move(step));
    return m_steps.back();
}

void StepList::claim(TourStep& step, const std::string& strClaim, std::function<bool()> isTrue)
{
    step.strClaim = strClaim;
    step.isTrue = std::move(isTrue);
}

StepList::Action StepList::tap(const std::string& strID)
{
    return {[this, strID] { m_screen.tap(strID); }, 0};
}

StepList::Action StepList::press(const std::string& strID, int nTime)
{
    return {[this, strID] { m_screen.press(strID); }, nTime};
}

StepList::Action StepList::release()
{
    return {[this] { m_screen.release(); }, 0};
}

StepList::Action StepList::tick(const std::string& strID, int nTicks)
{
    return {[this, strID, nTicks] { m_screen.tick(strID, nTicks); }, 0};
}

StepList::Action StepList::goHome()
{
    return {[this] {
                if (m_screen.page() != "home")
                    m_screen.tap("back");
            },
            0};
}

StepList::Action StepList::wait(int nMilliseconds)
{
    return {[] {}, nMilliseconds};
}

StepList::Actions StepList::taps(const std::string& strPrefix, const std::string& strKeys)
{
    Actions actions;
    for (const char c : strKeys)
        actions.push_back(tap(strPrefix + c));
    return actions;
}

void StepList::append(std::vector<TourStep> steps)
{
    std::move(steps.begin(), steps.end(), std::back_inserter(m_steps));
}

std::vector<TourStep> StepList::takeSteps()
{
    return std::exchange(m_steps, {});
}
