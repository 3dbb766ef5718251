#pragma once

#include "pages/InstrumentPage.h"

/// The ten languages.
class LanguagePage : public InstrumentPage
{
public:
    LanguagePage(const std::string& strID, InstrumentFrame* pFrame);

protected:
    bool event(QEvent* pEvent) override;
};
