#pragma once

#include "pages/InstrumentPage.h"

/// The first page: the buttons to the other pages, and the present readings.
class HomePage : public InstrumentPage
{
public:
    using InstrumentPage::InstrumentPage;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;
};
