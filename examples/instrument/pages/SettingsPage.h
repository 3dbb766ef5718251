#pragma once

#include "pages/InstrumentPage.h"

namespace PANFx::Components {
class ZELBubbleDialog;
class ZELTab;
} // namespace PANFx::Components

class ZELRangeEvent;

/// How the instrument works, and what it is, on four tabs, each with its help.
class SettingsPage : public InstrumentPage
{
public:
    SettingsPage(const std::string& strID, InstrumentFrame* pFrame);

    /// Comes up on the tab that was left, without the help.
    void activating() override;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;

private:
    bool touch(const std::string& strID);
    void changeRange(const ZELRangeEvent& change);
    bool isChecked(const std::string& strButton);
    void readSettings();
    void calibrate();
    void turnHelp();
    void placeHelp();

    void showSettings();
    void showCheck(const std::string& strButton, bool bChecked);
    void showRow(const std::string& strRow, bool bChecked, const std::string& strState);
    void showSpeed();
    void showRange(const std::string& strRange, const char* pszType, int nStep);

    PANFx::Components::ZELTab* m_pTabs;
    PANFx::Components::ZELBubbleDialog* m_pHelp;
    int m_nHelpTab = -1; ///< tab whose help is in the bubble
};
