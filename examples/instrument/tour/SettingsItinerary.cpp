#include "tour/SettingsItinerary.h"

#include "InstrumentFrame.h"
#include "tour/Screen.h"

namespace {

const int halfUpdate = 1200; // milliseconds
const int wholeUpdate = 5100;
const char firmware[] = "1.0.0"; // that the instrument begins with

} // namespace

SettingsItinerary::SettingsItinerary(InstrumentFrame& frame, Screen& screen)
    : StepList(screen)
    , m_frame(frame)
{
}

SettingsItinerary::Action SettingsItinerary::look(const std::string& strGauge)
{
    return {[this, strGauge] {
                m_nStored = m_frame.records().count({});
                m_nGauge = m_screen.number(strGauge);
            },
            0};
}

void SettingsItinerary::mean()
{
    const std::string strRing = "mean.progress";
    claim(add("averaging", "measure",
              {goHome(), tap("measure"), look(strRing), tap("mean"), tick("", 3)}),
          "most readings are taken, and nothing can be saved", [this, strRing] {
              const int nPercent = m_screen.number(strRing);
              return m_nGauge == 0 && nPercent >= 60 && nPercent < 100 &&
                     !m_screen.isEnabled("save") && !m_screen.isEnabled("mean");
          });
    claim(add("averaged", "measure", {tick("", 2)}), "the mean is stored", [this, strRing] {
        return m_frame.records().count({}) == m_nStored + 1 && m_screen.number(strRing) == 0 &&
               m_screen.isEnabled("save");
    });
}

void SettingsItinerary::brightness()
{
    const std::string strUp = "brightness/upbtn";
    const std::string strDown = "brightness/downbtn";
    claim(add("tab-sound", "settings", {goHome(), tap("settings"), tap("tab_sound")}),
          "the second tab is shown alone", [this] {
              return m_screen.number("tabs") == 1 && m_screen.isVisible("volume") &&
                     !m_screen.isVisible("alarm") && !m_screen.isVisible("calibrate");
          });
    claim(add("brighter", "settings", {tap(strUp), tap(strUp), tap(strUp)}),
          "it cannot become brighter", [this, strUp] {
              return m_frame.settings().nBrightness == 9 && m_screen.number("brightness") == 9 &&
                     !m_screen.isEnabled(strUp);
          });
    claim(add("darker", "settings",
              {tap(strUp), tap(strDown), tap(strDown), tap(strDown), tap(strDown)}),
          "it is darker", [this, strUp, strDown] {
              return m_frame.settings().nBrightness == 5 && m_screen.isEnabled(strUp) &&
                     m_screen.isEnabled(strDown);
          });
}

void SettingsItinerary::volume()
{
    const std::string strUp = "volume/upbtn";
    const std::string strDown = "volume/downbtn";
    claim(add("loud", "settings", {tap(strUp)}), "it cannot become louder",
          [this, strUp] { return m_frame.settings().nVolume == 3 && !m_screen.isEnabled(strUp); });
    claim(add("silent", "settings", {tap(strDown), tap(strDown), tap(strDown)}),
          "there is no sound", [this, strDown] {
              return m_frame.settings().nVolume == 0 && !m_screen.isEnabled(strDown);
          });
    claim(add("volume-medium", "settings", {tap(strUp), tap(strUp)}), "the sound is back",
          [this] { return m_frame.settings().nVolume == 2 && m_screen.number("volume") == 2; });
}

void SettingsItinerary::otherTabs()
{
    claim(add("tab-pressed", "settings", {press("tab_sensor")}), "the press brings the tab up",
          [this] { return m_screen.number("tabs") == 2 && m_screen.isVisible("calibrate"); });
    claim(add("tab-system", "settings", {release(), tap("tab_system")}),
          "the fourth tab is shown alone", [this] {
              return m_screen.number("tabs") == 3 && m_screen.isVisible("go_update") &&
                     !m_screen.isVisible("calibrate");
          });
}

void SettingsItinerary::help()
{
    claim(add("help", "settings", {tap("ask")}), "it is the help for this tab",
          [this] { return m_screen.isVisible("help/@help.system"); });
    claim(add("help-operation", "settings", {tap("tab_operation")}),
          "it has become that for the first tab", [this] {
              return m_screen.number("tabs") == 0 && m_screen.isVisible("help/@help.operation");
          });
    claim(add("help-closed", "settings", {tap("help")}), "the help is closed",
          [this] { return !m_screen.isVisible("help"); });
}

void SettingsItinerary::update()
{
    // which images there are is asked once the page is up, and until then there is nothing to start
    claim(add("update", "update", {tap("tab_system"), tap("go_update")}),
          "the images are known, and nothing is loaded", [this] {
              return m_screen.number("total") == 0 && m_screen.isEnabled("start") &&
                     !m_screen.isEnabled("stop");
          });
    claim(add("update-running", "update", {tap("start"), wait(halfUpdate)}),
          "the first image is loaded, the last is not", [this] {
              return m_screen.number("item0") == 100 && m_screen.number("item3") < 100 &&
                     m_screen.number("total") > 25 && !m_screen.isEnabled("start") &&
                     m_screen.isEnabled("stop");
          });
    claim(add("update-stopped", "update", {tap("stop"), wait(50), look("total"), wait(300)}),
          "it stands still", [this] {
              return m_screen.number("total") == m_nGauge && m_nGauge < 100 &&
                     m_screen.isEnabled("start") && !m_screen.isEnabled("stop");
          });
}

void SettingsItinerary::updateDone()
{
    claim(add("update-left", "settings", {tap("start"), wait(300), tap("back")}),
          "the software is the old one",
          [this] { return m_frame.settings().strFirmware == firmware; });
    claim(
        add("update-done", "update", {tap("go_update"), wait(50), tap("start"), wait(wholeUpdate)}),
        "all images are loaded", [this] {
            return m_screen.number("item3") == 100 && m_screen.number("total") == 100 &&
                   !m_screen.isEnabled("start") && !m_screen.isEnabled("stop");
        });
    claim(add("updated", "settings", {tap("back")}), "the software is the new one",
          [this] { return m_frame.settings().strFirmware == "1.1.0"; });
}

void SettingsItinerary::notes()
{
    claim(add("notes", "notes", {goHome(), tap("measure"), tap("sample"), tap("go_notes")}),
          "there are none", [this] { return m_screen.text("notes").empty(); });
    Actions typed = taps("key_", "well");
    typed.insert(typed.begin(), tap("shift"));
    typed.push_back(tap("key_space"));
    typed.push_back(tap("key_3"));
    typed.push_back(tap("enter"));
    claim(add("notes-typed", "notes", typed), "there is a line",
          [this] { return m_screen.text("notes") == "Well 3\n"; });
    Actions hangul = taps("key_", "gksrmf");
    hangul.insert(hangul.begin(), tap("typing"));
    claim(add("notes-hangul", "notes", hangul), "there is a second one",
          [this] { return m_screen.text("notes") == "Well 3\n한글"; });
}

void SettingsItinerary::scrolling()
{
    const std::string strNotes = "Well 3\n한글\nClear, no smell.\nTaken at 9:40.\nBottle 2.";
    claim(add("notes-keys", "notes",
              {{[this] {
                    m_screen.type(QStringLiteral("\nClear, no smell.\nTaken at 9:40.\nBottle 2."));
                },
                0}}),
          "the last line is shown", [this, strNotes] {
              return m_screen.text("notes") == strNotes && m_screen.number("notes") > 0;
          });
    claim(add("notes-scrolled", "notes",
              {{[this] { m_screen.tapScrollBar("notes"); }, 0},
               {[this] { m_screen.tapScrollBar("notes"); }, 0}}),
          "the first line is shown", [this] { return m_screen.number("notes") == 0; });
    claim(add("notes-kept", "sample", {tap("back")}), "they are kept",
          [this, strNotes] { return m_frame.settings().strNotes == strNotes; });
    claim(add("notes-again", "notes", {tap("go_notes")}), "they are back",
          [this, strNotes] { return m_screen.text("notes") == strNotes; });
    add("notes-left", "home", {goHome(), goHome(), goHome()});
}

std::vector<TourStep> SettingsItinerary::steps()
{
    mean();
    brightness();
    volume();
    otherTabs();
    help();
    update();
    updateDone();
    notes();
    scrolling();
    return takeSteps();
}

std::vector<TourStep> SettingsItinerary::languageSteps(const std::string& strName,
                                                       const std::string& strLocale)
{
    m_strLocale = strLocale;
    const std::string names[] = {"operation", "sound", "sensor", "system"};
    for (const std::string& strTab : names) {
        Actions actions = {tap("tab_" + strTab), tap("ask")};
        if (strTab != names[0])
            actions.insert(actions.begin(), tap("help"));
        claim(add(strName + "-help-" + strTab, "settings", actions), "the help fits the tab",
              [this, strTab] { return m_screen.isVisible("help/@help." + strTab); });
    }
    add(strName + "-sound", "settings", {tap("help"), tap("tab_sound")});
    add(strName + "-sensor", "settings", {tap("tab_sensor")});
    add(strName + "-update", "update", {tap("tab_system"), tap("go_update")});
    claim(add(strName + "-system", "settings", {tap("back")}), "the last tab is shown",
          [this] { return m_screen.number("tabs") == 3; });
    return takeSteps();
}
