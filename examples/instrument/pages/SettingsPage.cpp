#include "pages/SettingsPage.h"

#include "InstrumentFrame.h"
#include "dialogs/CalibrationDialog.h"

#include "components/buttons/ZELIconCheckButton.h"
#include "components/buttons/ZELRadioGroup.h"
#include "events/EventNumbers.h"

using PANFx::Components::ZELCheckButton;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELIconCheckButton;
using PANFx::Components::ZELRadioGroup;

bool SettingsPage::event(QEvent* pEvent)
{
    if (pEvent->type() != EVENT_MOUSE_UP)
        return InstrumentPage::event(pEvent);
    const std::string strID = touchedID(pEvent);
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "go_clock")
        m_pFrame->moveTo("clock", true, true);
    else if (strID == "go_network")
        m_pFrame->moveTo("network", true, true);
    else if (strID == "calibrate")
        calibrate();
    else
        readSettings(); // a check or radio button has changed its state before it reports
    return true;
}

void SettingsPage::calibrate()
{
    CalibrationDialog dialog(m_pFrame);
    if (dialog.showAndWait() == CalibrationDialog::done)
        analyser().setCalibrated(m_pFrame->now().date());
    showValues();
}

bool SettingsPage::isChecked(const std::string& strButton)
{
    ZELComponent* pComponent = getSubComponent(strButton);
    if (auto* pCheck = componentAs<ZELCheckButton>(pComponent, "ZELCheckButton"))
        return pCheck->m_bChecked;
    auto* pRow = componentAs<ZELIconCheckButton>(pComponent, "ZELIconCheckButton");
    return pRow != nullptr && pRow->m_bChecked;
}

void SettingsPage::readSettings()
{
    Settings settings = m_pFrame->settings();
    settings.bTouchSound = isChecked("touch_sound");
    settings.bAutoHold = isChecked("auto_hold");
    settings.bAlarmMuted = isChecked("alarm");
    settings.bStirrerPaused = isChecked("stirrer");
    // a group without a choice keeps its last id, so the speed outlasts a pause
    auto* pSpeed = component<ZELRadioGroup>("speed", "ZELRadioGroup");
    if (pSpeed != nullptr && pSpeed->getSelectedButton() != nullptr)
        settings.strStirrerSpeed = pSpeed->m_strSelected;
    m_pFrame->setSettings(settings);
    showValues();
}

void SettingsPage::showValues()
{
    InstrumentPage::showValues();
    const Settings& settings = m_pFrame->settings();
    showCheck("touch_sound", settings.bTouchSound);
    showCheck("auto_hold", settings.bAutoHold);
    showRow("alarm", settings.bAlarmMuted, settings.bAlarmMuted ? "muted" : "on");
    showRow("stirrer", settings.bStirrerPaused, settings.bStirrerPaused ? "paused" : "running");
    showSpeed();
    setText("calibrated", dateText(analyser().calibrationDate()));
}

void SettingsPage::showCheck(const std::string& strButton, bool bChecked)
{
    if (auto* pCheck = component<ZELCheckButton>(strButton, "ZELCheckButton")) {
        pCheck->m_bChecked = bChecked;
        pCheck->update();
    }
}

// The texts of a row are not looked up in the string table, so this is done here.
void SettingsPage::showRow(const std::string& strRow, bool bChecked, const std::string& strState)
{
    if (auto* pRow = component<ZELIconCheckButton>(strRow, "ZELIconCheckButton")) {
        pRow->m_bChecked = bChecked;
        pRow->setTitle(localText("@" + strRow));
        pRow->setSecondText(localText("@" + strRow + "." + strState));
        pRow->update();
    }
}

void SettingsPage::showSpeed()
{
    auto* pSpeed = component<ZELRadioGroup>("speed", "ZELRadioGroup");
    if (pSpeed == nullptr)
        return;
    const Settings& settings = m_pFrame->settings();
    pSpeed->setDimMode(settings.bStirrerPaused, true);
    if (!settings.bStirrerPaused)
        pSpeed->setButtonSelect(settings.strStirrerSpeed.c_str());
}
