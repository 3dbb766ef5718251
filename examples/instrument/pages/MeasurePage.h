#pragma once

#include "Analyser.h"
#include "pages/InstrumentPage.h"

#include <array>
#include <vector>

class ZELErrorEvent;

/// Live readings: one channel large, with its gauge, trend and upper limit; the buttons at the
/// bottom choose another.
class MeasurePage : public InstrumentPage
{
public:
    MeasurePage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;

private:
    using Values = std::array<double, 4>; ///< in the order of the channels

    bool choose(const std::string& strID);
    void stepLimit(const std::string& strID, int nSteps);
    void save();
    void startMean();
    void takeReading();
    void takeFault(const ZELErrorEvent& fault);
    bool store(const Values& values);

    /// What the next measurement is called: the name typed, the code scanned, or "".
    std::string sampleName() const;

    void showChoice(std::size_t nChannel, bool bChosen);
    void showSample();
    void showButtons();
    void showMean();
    void showGauge(const Analyser::Channel& channel);
    void showState(const Analyser::Channel& channel);
    void showTrend(const Analyser::Channel& channel);

    std::vector<Analyser::Channel> m_shown; ///< the readings on the page
    std::size_t m_nChannel = 0;             ///< the one that is shown large
    Values m_sums = {};                     ///< of the readings that a mean is taken of
    int m_nTaken = 0;                       ///< how many these are
    bool m_bAveraging = false;              ///< a mean is being taken
    int m_nHeld = 0;                        ///< readings for which those on the page stand still
    std::string m_strFaulty;                ///< channel whose sensor is at fault, or ""
    std::string m_strFault;                 ///< what is wrong with it, in words
    bool m_bFaultReported = false;          ///< since the last reading
    bool m_bStepped = false;                ///< the button that is held has stepped already
};
