#pragma once

#include "pages/InstrumentPage.h"

/// The ten languages, and what the instrument is.
class SettingsPage : public InstrumentPage
{
public:
    SettingsPage(const std::string& strID, InstrumentFrame* pFrame);

protected:
    bool event(QEvent* pEvent) override;
};
