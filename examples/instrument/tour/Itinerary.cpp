#include "tour/Itinerary.h"

#include "ComponentAccess.h"
#include "InstrumentFrame.h"
#include "tour/Screen.h"

namespace {

// A report takes its time, so the tour prints where there are other letters to see on it; in German
// they are the umlauts.
bool printsThere(const std::string& strLocale)
{
    return strLocale == "ger" || strLocale == "rus" || strLocale == "chn";
}

const double lowLimit = 6; // of the pH value, which is above 7

} // namespace

Itinerary::Itinerary(InstrumentFrame& frame, Screen& screen, const QString& strDir)
    : StepList(screen)
    , m_frame(frame)
    , m_settings(frame, screen)
    , m_typing(frame, screen, m_database)
    , m_lists(frame, screen)
    , m_printing(frame, screen, strDir)
{
}

Analyser& Itinerary::analyser()
{
    return m_frame.analyser();
}

void Itinerary::firstLook()
{
    // a page that nobody has moved to from another one
    add("first-language", "language", {{[this] { m_frame.moveTo("language", true, true); }, 0}});
    add("first-language-chosen", "home", {tap("lang_en")});
    add("home", "home", {{[this] { m_frame.moveTo("home", true, true); }, 0}});
    add("home-pressed", "home", {press("measure")});
    add("measure", "measure", {release()});
    add("conductivity", "measure", {tap("cond")});
}

void Itinerary::limit()
{
    const auto ph = [this]() -> const Analyser::Channel& { return analyser().channels()[0]; };
    const double dStart = ph().dLimit;
    claim(add("limit-held", "measure", {tap("ph"), press("limit_minus", firstTick)}),
          "the limit goes down", [ph, dStart] { return ph().dLimit < dStart; });
    claim(add("limit-fast", "measure", {tick("limit_minus", 9)}), "the reading is above it",
          [ph] { return ph().isAboveLimit(); });
    claim(add("limit-released", "measure", {release()}), "the limit stays",
          [ph, dStart] { return ph().dLimit < dStart && ph().isAboveLimit(); });
}

void Itinerary::results()
{
    claim(add("results", "results", {goHome(), tap("results")}), "there is something to print",
          [this] { return m_screen.isEnabled("print") && m_screen.isEnabled("clear"); });
    add("question", "results", {tap("clear")}).strDialog = "question";
    add("question-pressed", "results", {press("no")}).strDialog = "question";
    claim(add("question-no", "results", {release()}), "the results are still there",
          [this] { return m_frame.records().count({}) > 0; });
}

void Itinerary::settings()
{
    add("settings", "settings", {goHome(), tap("settings")});
    claim(add("checks", "settings", {tap("touch_sound"), tap("auto_hold")}),
          "the sound is off and auto-hold on",
          [this] { return !m_frame.settings().bTouchSound && m_frame.settings().bAutoHold; });
    claim(add("paused", "settings", {tap("alarm"), tap("stirrer"), tap("speed/fast")}),
          "the speed cannot be chosen", [this] {
              return m_frame.settings().bAlarmMuted && m_frame.settings().bStirrerPaused &&
                     m_frame.settings().strStirrerSpeed == "medium";
          });
    claim(add("fast", "settings", {tap("alarm"), tap("stirrer"), tap("speed/fast")}),
          "the stirrer runs fast", [this] {
              return !m_frame.settings().bStirrerPaused &&
                     m_frame.settings().strStirrerSpeed == "fast";
          });
}

void Itinerary::calibration()
{
    const QDate before = analyser().calibrationDate();
    add("calibration", "settings", {tap("tab_sensor"), tap("calibrate"), tick("", 9)}).strDialog =
        "calibration";
    claim(add("calibration-cancelled", "settings", {tap("cancel")}), "the date is the old one",
          [this, before] { return analyser().calibrationDate() == before; });
    claim(add("calibrated", "settings", {tap("calibrate"), tick("", 24)}), "the date is a new one",
          [this, before] { return analyser().calibrationDate() != before; });
}

void Itinerary::saving()
{
    const int nStored = m_frame.records().count({});
    claim(add("saved", "measure", {goHome(), tap("measure"), tap("temp"), tap("save")}),
          "the readings are stored and held", [this, nStored] {
              return m_frame.records().count({}) == nStored + 1 && !m_screen.isEnabled("save");
          });
    add("back", "home", {tap("back")});
}

// What nobody stirs is no water for the oxygen sensor.
void Itinerary::fault()
{
    claim(add("fault", "measure",
              {goHome(), tap("settings"), tap("tab_operation"), tap("stirrer"), goHome(),
               tap("measure"), tap("oxygen"), tick("", 5)}),
          "the fault is told, and nothing can be saved", [this] {
              return m_screen.shows("Stirrer off") && !m_screen.isEnabled("save") &&
                     !m_screen.isEnabled("mean");
          });
    claim(add("fault-elsewhere", "measure", {tap("cond")}), "it is not that of this channel",
          [this] { return !m_screen.shows("Stirrer off") && !m_screen.isEnabled("save"); });
    claim(add("fault-over", "measure",
              {goHome(), tap("settings"), tap("stirrer"), goHome(), tap("measure"), tap("oxygen"),
               tick("", 1)}),
          "the readings can be saved again",
          [this] { return !m_screen.shows("Stirrer off") && m_screen.isEnabled("save"); });
    add("fault-left", "home", {goHome()});
}

StepList::Action Itinerary::pauseStirrer(bool bPaused)
{
    return {[this, bPaused] {
                Settings settings = m_frame.settings();
                settings.bStirrerPaused = bPaused;
                m_frame.setSettings(settings);
            },
            0};
}

void Itinerary::addLanguage(const std::string& strName, const std::string& strLocale)
{
    m_strLocale = strLocale;
    const std::string strButton = "lang_" + (strLocale.empty() ? "en" : strLocale);
    add(strName, "home", {goHome(), goHome(), tap("language"), tap(strButton)});
}

void Itinerary::korean()
{
    add("language", "language", {goHome(), tap("language")});
    add("language-pressed", "language", {press("lang_kr")});
    m_strLocale = "kr";
    // the limit stays low, so that what is said then is to be seen in each language
    add("korean", "home", {release(), {[this] { analyser().setLimit(0, lowLimit); }, 0}});
    looksIn("korean", m_strLocale);
    append(m_printing.inLanguage("korean", m_strLocale));
}

void Itinerary::looksIn(const std::string& strName, const std::string& strLocale)
{
    const std::string strPrefix = strName + "-";
    claim(add(strPrefix + "measure", "measure", {tap("measure")}), "the reading is above its limit",
          [this] { return analyser().channels()[0].isAboveLimit(); });
    append(m_printing.looksIn(strName, strLocale));
    claim(add(strPrefix + "fault", "measure", {pauseStirrer(true), tap("oxygen"), tick("", 5)}),
          "the fault is told", [this] { return m_screen.shows(localText("@fault.still")); });
    add(strPrefix + "not-saved", "measure",
        {pauseStirrer(false), tick("", 1), {[this] { m_database.hold(); }, 0}, tap("save")})
        .strDialog = "retry";
    add(strPrefix + "limits", "limits",
        {{[this] { m_database.release(); }, 0}, tap("no"), tap("limit")});
    add(strPrefix + "averaging", "measure", {tap("back"), tap("cond"), tap("mean"), tick("", 3)});
    add(strPrefix + "results", "results", {goHome(), tap("results")});
    add(strPrefix + "question", "results", {tap("clear")}).strDialog = "question";
    add(strPrefix + "settings", "settings", {tap("no"), goHome(), tap("settings")});
    append(m_settings.languageSteps(strName, strLocale));
    add(strPrefix + "calibration", "settings", {tap("tab_sensor"), tap("calibrate"), tick("", 9)})
        .strDialog = "calibration";
    add(strPrefix + "clock", "clock", {tap("cancel"), tap("tab_system"), tap("go_clock")});
    add(strPrefix + "network", "network", {tap("back"), tap("go_network")});
    add(strPrefix + "notes", "notes",
        {tap("back"), goHome(), tap("measure"), tap("sample"), tap("go_notes")});
    add(strPrefix + "sample", "sample", {tap("back")});
    append(m_lists.stepsIn(strName, strLocale));
    add(strPrefix + "language", "language", {goHome(), tap("language")});
}

void Itinerary::otherLanguages()
{
    const char* others[][2] = {{"german", "ger"},  {"french", "fra"},     {"spanish", "esp"},
                               {"italian", "ita"}, {"portuguese", "por"}, {"polish", "pol"},
                               {"russian", "rus"}, {"chinese", "chn"}};
    for (const auto& [pszName, pszLocale] : others) {
        addLanguage(pszName, pszLocale);
        looksIn(pszName, pszLocale);
        if (printsThere(pszLocale))
            append(m_printing.inLanguage(pszName, pszLocale));
    }
    addLanguage("english", "");
}

void Itinerary::clearing()
{
    claim(add("cleared", "results", {tap("results"), tap("clear"), tap("yes")}),
          "nothing is left to print or clear", [this] {
              return m_frame.records().count({}) == 0 && !m_screen.isEnabled("print") &&
                     !m_screen.isEnabled("clear");
          });
    add("end", "home", {{[this] { m_frame.records().startAnew(); }, 0}, tap("back")});
}

std::vector<TourStep> Itinerary::steps()
{
    m_frame.records().startAnew(); // the steps count on what is stored
    firstLook();
    limit();
    results();
    append(m_printing.steps());
    settings();
    calibration();
    saving();
    fault();
    append(m_settings.steps());
    append(m_typing.steps());
    append(m_lists.steps());
    korean();
    otherLanguages();
    clearing();
    return takeSteps();
}
