#pragma once

#include "Analyser.h"
#include "pages/InstrumentPage.h"

/// Live readings: one channel large, with its gauge and trend; a touch on a tile chooses another.
class MeasurePage : public InstrumentPage
{
public:
    using InstrumentPage::InstrumentPage;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;

private:
    bool choose(const std::string& strName);
    void showTiles();
    void showGauge(const Analyser::Channel& channel);
    void showTrend(const Analyser::Channel& channel);

    std::size_t m_nChannel = 0; ///< the one that is shown large
};
