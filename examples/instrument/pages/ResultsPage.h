#pragma once

#include "pages/InstrumentPage.h"

/// The last measurements as a table, with their mean values beside it. A touch on the heads of
/// time and temperature turns the order round and changes the unit.
class ResultsPage : public InstrumentPage
{
public:
    ResultsPage(const std::string& strID, InstrumentFrame* pFrame);

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;

private:
    void turnOrder();
    void changeUnit();
    void askToClear();
    void showRow(std::size_t nRow);
    void showMeans();
};
