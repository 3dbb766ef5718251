#pragma once

#include "pages/InstrumentPage.h"

/// The last measurements as a table, with their mean values beside it.
class ResultsPage : public InstrumentPage
{
public:
    using InstrumentPage::InstrumentPage;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;
};
