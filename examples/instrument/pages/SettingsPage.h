#pragma once

#include "pages/InstrumentPage.h"

/// How the instrument works: sound, alarm, stirrer, calibration; and what it is.
class SettingsPage : public InstrumentPage
{
public:
    using InstrumentPage::InstrumentPage;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;

private:
    bool isChecked(const std::string& strButton);
    void readSettings();
    void calibrate();

    void showCheck(const std::string& strButton, bool bChecked);
    void showRow(const std::string& strRow, bool bChecked, const std::string& strState);
    void showSpeed();
};
