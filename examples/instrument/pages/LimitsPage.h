#pragma once

#include "pages/PadPage.h"

/// The limits of all channels in a list, each in a field of its row and in the unit that is shown,
/// and the readings beside them.
class LimitsPage : public PadPage
{
public:
    LimitsPage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;
    void fillField(const std::string& strField) override;
    void takeField(const std::string& strField) override;

private:
    std::size_t channelOf(const std::string& strField);
};
