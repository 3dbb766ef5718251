#pragma once

#include "pages/InstrumentPage.h"

/// What the instrument is and how it is used: a long text to be read page by page.
class AboutPage : public InstrumentPage
{
public:
    AboutPage(const std::string& strID, InstrumentFrame* pFrame);

protected:
    bool event(QEvent* pEvent) override;
};
