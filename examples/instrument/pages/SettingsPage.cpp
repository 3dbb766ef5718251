#include "pages/SettingsPage.h"

#include "InstrumentFrame.h"
#include "dialogs/CalibrationDialog.h"

#include "components/buttons/ZELIconCheckButton.h"
#include "components/buttons/ZELRadioGroup.h"
#include "components/containers/ZELBubbleDialog.h"
#include "components/containers/ZELTab.h"
#include "components/gauges/ZELRange.h"
#include "components/pictures/ZELImageBox.h"
#include "events/EventNumbers.h"
#include "events/ZELRangeEvent.h"

using PANFx::Components::ZELBubbleDialog;
using PANFx::Components::ZELCheckButton;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELIconCheckButton;
using PANFx::Components::ZELImageBox;
using PANFx::Components::ZELRadioGroup;
using PANFx::Components::ZELRange;
using PANFx::Components::ZELTab;

namespace {

const char* const tabNames[] = {"operation", "sound", "sensor", "system"};

/// Whether this is a check or radio button, which has changed its state before it reports.
bool isSetting(const std::string& strID)
{
    return strID == "touch_sound" || strID == "auto_hold" || strID == "alarm" ||
           strID == "stirrer" || strID.empty(); // the radio buttons come without an id
}

} // namespace

SettingsPage::SettingsPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_pTabs(component<ZELTab>("tabs", "ZELTab"))
    , m_pHelp(component<ZELBubbleDialog>("help", "ZELBubbleDialog"))
{
}

void SettingsPage::activating()
{
    if (m_pHelp != nullptr)
        m_pHelp->hideWindow();
    showSettings();
    InstrumentPage::activating();
}

bool SettingsPage::event(QEvent* pEvent)
{
    if (pEvent->type() == EVENT_TAB_DOWN)
        placeHelp();
    else if (pEvent->type() == EVENT_RANGE_CHANGED && rangeEvent(pEvent) != nullptr)
        changeRange(*rangeEvent(pEvent));
    else if (pEvent->type() != EVENT_MOUSE_UP || !touch(touchedID(pEvent)))
        return InstrumentPage::event(pEvent);
    return true;
}

bool SettingsPage::touch(const std::string& strID)
{
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "go_clock")
        m_pFrame->moveTo("clock", true, true);
    else if (strID == "go_network")
        m_pFrame->moveTo("network", true, true);
    else if (strID == "go_update")
        m_pFrame->moveTo("update", true, true);
    else if (strID == "ask" || strID == "help")
        turnHelp();
    else if (strID == "calibrate")
        calibrate();
    else if (isSetting(strID))
        readSettings();
    else
        return false;
    return true;
}

void SettingsPage::turnHelp()
{
    if (m_pHelp == nullptr)
        return;
    if (m_pHelp->isVisible()) {
        m_pHelp->hideWindow();
    } else {
        m_pHelp->showWindow();
        placeHelp();
    }
}

// Labels that are taken away live on, hidden, so this is done only when another tab is shown.
void SettingsPage::placeHelp()
{
    if (m_pHelp == nullptr || m_pTabs == nullptr || !m_pHelp->isVisible() ||
        m_nHelpTab == m_pTabs->getPage())
        return;
    m_nHelpTab = m_pTabs->getPage();
    const std::string strName = tabNames[m_nHelpTab];
    m_pHelp->deleteLabel();
    m_pHelp->addLable("@" + strName, "name", 32, 28, 336, 24);
    m_pHelp->addLable("@help." + strName, "note", 32, 54, 336, 68);
    m_pHelp->addLable("@help.close", "small", 32, 128, 336, 24);
    for (ZELComponent* pLabel : m_pHelp->m_dqSubComponents)
        pLabel->getQWidget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SettingsPage::calibrate()
{
    CalibrationDialog dialog(m_pFrame);
    if (dialog.showAndWait() == CalibrationDialog::done)
        analyser().setCalibrated(m_pFrame->now().date());
    showValues();
}

// The event tells the step of its touch. The range itself may be further on by now, so that is what
// is taken into force.
void SettingsPage::changeRange(const ZELRangeEvent& change)
{
    m_logger.WriteInfo("[changeRange] %s: step %d", change.m_strID.c_str(), change.m_nValue);
    readSettings();
}

bool SettingsPage::isChecked(const std::string& strButton)
{
    ZELComponent* pComponent = findComponent(m_dqSubComponents, strButton);
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
    if (auto* pBrightness = component<ZELRange>("brightness", "ZELProgressRange"))
        settings.nBrightness = pBrightness->getStep();
    if (auto* pVolume = component<ZELRange>("volume", "ZELEditRange"))
        settings.nVolume = pVolume->getStep();
    m_pFrame->setSettings(settings);
    showSettings();
}

void SettingsPage::showValues()
{
    InstrumentPage::showValues();
    setText("calibrated", dateText(analyser().calibrationDate()));
    setText("firmware", m_pFrame->settings().strFirmware);
}

// Not with each reading: one may come while the news of a touch is on its way, and would take the
// touch back.
void SettingsPage::showSettings()
{
    const Settings& settings = m_pFrame->settings();
    showCheck("touch_sound", settings.bTouchSound);
    showCheck("auto_hold", settings.bAutoHold);
    showRow("alarm", settings.bAlarmMuted, settings.bAlarmMuted ? "muted" : "on");
    showRow("stirrer", settings.bStirrerPaused, settings.bStirrerPaused ? "paused" : "running");
    showSpeed();
    showRange("brightness", "ZELProgressRange", settings.nBrightness);
    showRange("volume", "ZELEditRange", settings.nVolume);
    if (auto* pLevel = component<ZELImageBox>("volume.level", "ZELImageBox"))
        pLevel->setImage("volume_" + std::to_string(settings.nVolume) + ".png");
    setText("brightness.value", std::to_string(10 * (settings.nBrightness + 1)) + " %");
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

// A step that is set anew would end the look of a button that is held.
void SettingsPage::showRange(const std::string& strRange, const char* pszType, int nStep)
{
    auto* pRange = component<ZELRange>(strRange, pszType);
    if (pRange != nullptr && pRange->getStep() != nStep)
        pRange->setStep(nStep);
}
