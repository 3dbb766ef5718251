#include "tour/TypingItinerary.h"

#include "InstrumentFrame.h"
#include "tour/Screen.h"
#include "tour/TourDatabase.h"

#include <cmath>
#include <map>

namespace {

const std::string padBackspace = "pad/backspace";
const std::string keyboardBackspace = "key_backspace";
const int emptyingTicks = 5;

const std::map<char, std::string> padKeys = {
    {'.', "pad/dot"}, {'A', "pad/ampm"}, {'O', "pad/empty"}, {'<', padBackspace}};

template <class Actions>
Actions operator+(Actions first, const Actions& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

TypingItinerary::TypingItinerary(InstrumentFrame& frame, Screen& screen, TourDatabase& database)
    : StepList(screen)
    , m_frame(frame)
    , m_database(database)
{
}

TypingItinerary::Action TypingItinerary::tapZero()
{
    return {[this] { m_screen.tap(m_screen.isVisible("pad/num0") ? "pad/num0" : "pad/num00"); }, 0};
}

TypingItinerary::Actions TypingItinerary::onPad(const std::string& strKeys)
{
    Actions actions;
    for (const char c : strKeys) {
        const auto special = padKeys.find(c);
        if (special != padKeys.end())
            actions.push_back(tap(special->second));
        else
            actions.push_back(c == '0' ? tapZero() : tap(std::string("pad/num") + c));
    }
    return actions;
}

TypingItinerary::Actions TypingItinerary::holdUntilEmpty(const std::string& strKey)
{
    return {press(strKey), tick(strKey, emptyingTicks), release()};
}

void TypingItinerary::addEntry(const std::string& strPage, const std::string& strName,
                               const std::string& strField, const std::string& strKeys,
                               const std::string& strText)
{
    const Actions emptied = Actions{tap(strField)} + holdUntilEmpty(padBackspace);
    claim(add(strName, strPage, emptied + onPad(strKeys)), strField + " is " + strText,
          [this, strField, strText] { return m_screen.text(strField) == strText; });
}

void TypingItinerary::addName(const std::string& strName, Actions actions,
                              const std::string& strText)
{
    claim(add(strName, "sample", std::move(actions)), "the name is \"" + strText + "\"",
          [this, strText] { return m_screen.text("name") == strText; });
}

void TypingItinerary::held()
{
    claim(add("clock", "clock", {goHome(), tap("settings"), tap("tab_system"), tap("go_clock")}),
          "there is no pad",
          [this] { return !m_screen.isVisible("pad") && !m_screen.isEnabled("set"); });
    claim(add("pad", "clock", {tap("date")}), "the pad is up, without a key for times",
          [this] { return m_screen.isVisible("pad") && !m_screen.isVisible("pad/ampm"); });
    const std::string strWhole = "2026/11/21"; // as long as any other date
    claim(add("backspace-held", "clock", {press(padBackspace, firstTick)}), "the last digits go",
          [this, strWhole] {
              const std::size_t nLength = m_screen.text("date").size();
              return nLength < strWhole.size() && nLength >= strWhole.size() - 4;
          });
    claim(add("backspace-emptied", "clock", {tick(padBackspace, emptyingTicks)}),
          "the date is empty", [this] { return m_screen.text("date") == "//"; });
    claim(add("date-ymd", "clock", Actions{release()} + onPad("20281<125")), "the date is whole",
          [this] { return m_screen.text("date") == "2028/12/05"; });
}

void TypingItinerary::dates()
{
    claim(add("pad-closed", "clock", {tap("pad/close")}), "the clock can be set",
          [this] { return !m_screen.isVisible("pad") && m_screen.isEnabled("set"); });
    claim(add("order", "clock", {tap("date_order/mdy")}), "the date is turned round", [this] {
        return m_frame.settings().strDateOrder == "mdy" && m_screen.text("date") == "12/05/2028";
    });
    addEntry("clock", "date-mdy", "date", "02312028", "02/29/2028");
    add("order-dmy", "clock", {tap("pad/close"), tap("date_order/dmy")});
    addEntry("clock", "date-dmy", "date", "31042027", "30/04/2027");
}

void TypingItinerary::times()
{
    addEntry("clock", "time-pm", "time", "0230A", "14:30");
    addEntry("clock", "time-am", "time", "1215", "00:15");
    claim(add("clock-set", "clock", {tap("pad/close"), tap("set")}), "the clock has been set",
          [this] {
              const QDateTime typed(QDate(2027, 4, 30), QTime(0, 15));
              const qint64 nPassed = typed.secsTo(m_frame.now());
              return nPassed >= 0 && nPassed < 60;
          });
    claim(add("order-ymd", "clock", {tap("date_order/ymd")}), "the order is the first one",
          [this] { return m_frame.settings().strDateOrder == "ymd"; });
}

void TypingItinerary::address()
{
    add("network", "network", {tap("back"), tap("go_network")});
    addEntry("network", "address-incomplete", "address", "1921680", "192.168.0");
    claim(add("address", "network", onPad(".17")), "the old address is in force", [this] {
        return m_screen.text("address") == "192.168.0.17" &&
               m_frame.settings().strAddress == "192.168.0.20";
    });
}

void TypingItinerary::numbers()
{
    // the next field is touched without the pad being closed
    addEntry("network", "interval-limit", "interval", "250", "240");
    claim(add("interval", "network", onPad("<<") + onPad("05") + Actions{tap("pad/close")}),
          "address and interval are in force", [this] {
              return m_frame.settings().strAddress == "192.168.0.17" &&
                     m_frame.settings().nInterval == 205;
          });
    addEntry("network", "ph-decimal", "ph_limit", "725", "7.25");
    addEntry("network", "ph-point", "ph_limit", "7.4", "7.4");
    claim(add("ph-limit", "network", {tap("pad/close")}), "the limit is in force", [this] {
        const double dLimit = m_frame.analyser().channels()[0].dLimit;
        return m_screen.text("ph_limit") == "7.40" && std::abs(dLimit - 7.4) < 0.001;
    });
}

void TypingItinerary::operatorCode()
{
    addEntry("network", "operator", "operator", "O417", "OP-417");
    claim(add("operator-set", "network", {tap("pad/close")}), "the operator is known", [this] {
        return !m_screen.isVisible("pad") && m_frame.settings().strOperator == "OP-417";
    });
}

void TypingItinerary::limits()
{
    const auto limitOf = [this](std::size_t nChannel) {
        return m_frame.analyser().channels()[nChannel].dLimit;
    };
    claim(add("limits", "limits", {goHome(), goHome(), tap("measure"), tap("limit")}),
          "there is no pad", [this] { return !m_screen.isVisible("pad"); });
    claim(add("limit-row", "limits", {tap("limits/cond/value")}), "the pad is up, without a point",
          [this] { return m_screen.isVisible("pad") && !m_screen.isVisible("pad/dot"); });
    addEntry("limits", "limit-whole", "limits/cond/value", "455", "455");
    const double dOxygen = m_frame.analyser().channels()[2].dLimit;
    claim(add("limit-other-row", "limits", {tap("limits/oxygen/value")}),
          "the limit that was left is in force, and the pad has a point", [this, limitOf, dOxygen] {
              return std::abs(limitOf(1) - 455) < 0.001 && std::abs(limitOf(2) - dOxygen) < 0.001 &&
                     m_screen.isVisible("pad/dot");
          });
    addEntry("limits", "limit-decimal", "limits/oxygen/value", "9.5", "9.5");
    claim(add("limit-closed", "limits", {tap("pad/close")}), "both limits are in force",
          [this, limitOf] {
              return !m_screen.isVisible("pad") && std::abs(limitOf(2) - 9.5) < 0.001 &&
                     m_screen.text("limits/oxygen/value") == "9.50";
          });
}

void TypingItinerary::english()
{
    addName("sample", {goHome(), goHome(), tap("measure"), tap("sample")}, "");
    addName("shift", {tap("shift")}, "");
    addName("english", taps("key_", "well") + Actions{tap("key_minus")} + taps("key_", "3"),
            "Well-3");
    addName("english-sign", {tap("key_space"), tap("shift"), tap("key_3")}, "Well-3 #");
}

void TypingItinerary::erased()
{
    const std::string strWhole = "Well-3 #";
    claim(add("name-held", "sample", {press(keyboardBackspace, firstTick)}),
          "the last characters go", [this, strWhole] {
              const std::string strName = m_screen.text("name");
              return !strName.empty() && strName.size() < strWhole.size() &&
                     strWhole.rfind(strName, 0) == 0;
          });
    addName("name-emptied", {tick(keyboardBackspace, emptyingTicks)}, "");
    addName("name-released", {release()}, "");
}

void TypingItinerary::korean()
{
    addName("hangul-letters", {tap("typing"), tap("key_g")}, "ㅎ");
    addName("hangul", taps("key_", "ksrmf"), "한글");
    addName("hangul-pair", Actions{tap("key_space")} + taps("key_", "ekfr"), "한글 닭");
    addName("hangul-back", {tap(keyboardBackspace), tap(keyboardBackspace)}, "한글 다");
    addName("hangul-finals", taps("key_", "frrkqt"), "한글 닭값");
    addName("hangul-shift", {tap("shift")}, "한글 닭값");
    addName("hangul-double", taps("key_", "ro"), "한글 닭값깨");
    addName("latin-again", Actions{tap("typing")} + taps("key_", "7"), "한글 닭값깨7");
}

void TypingItinerary::scanned()
{
    const std::string strName = "한글 닭값깨7";
    const std::string strCode = "4006381333931";
    claim(add("scanned", "sample",
              {tap("barcode"),
               {[this, strCode] { m_screen.scan(QString::fromStdString(strCode)); }, 0}}),
          "the code is read, the name untouched", [this, strName, strCode] {
              return m_screen.text("barcode") == strCode && m_screen.text("name") == strName;
          });
    claim(add("sample-named", "measure", {tap("enter")}), "the sample has its name and code",
          [this, strName, strCode] {
              return m_frame.settings().strSampleName == strName &&
                     m_frame.settings().strSampleCode == strCode;
          });
    refused(strName);
    claim(add("sample-saved", "results", {goHome(), tap("results")}), "the result has the name",
          [this, strName] {
              return m_frame.records().recentSamples(1) == std::vector{strName} &&
                     m_frame.settings().strSampleName.empty();
          });
}

// While another program holds the database, a measurement keeps its name until it is stored.
void TypingItinerary::refused(const std::string& strName)
{
    const Action hold = {[this] { m_database.hold(); }, 0};
    const Action release = {[this] { m_database.release(); }, 0};
    const auto isStored = [this, strName] { return m_frame.records().count({strName}) == 1; };
    add("not-saved", "measure", {hold, tap("save")}).strDialog = "retry";
    claim(add("not-saved-no", "measure", {release, tap("no")}), "name and code are still there",
          [this, strName, isStored] {
              const Settings& settings = m_frame.settings();
              return !isStored() && settings.strSampleName == strName &&
                     !settings.strSampleCode.empty() && m_screen.text("sample") == strName;
          });
    add("not-saved-again", "measure", {hold, tap("save")}).strDialog = "retry";
    claim(add("saved-late", "measure", {release, tap("yes")}), "it is stored after all", isStored);
}

// A label reader tells code and name, and a label without a name leaves the one that is there.
void TypingItinerary::labels()
{
    const auto isRead = [this](const std::string& strCode, const std::string& strName) {
        return [this, strCode, strName] {
            return m_screen.text("barcode") == strCode && m_screen.text("name") == strName;
        };
    };
    claim(add("label-read", "sample",
              {goHome(),
               tap("measure"),
               tap("sample"),
               {[this] { m_reader.read("4006381333948;Lake west"); }, 0}}),
          "the fields have its code and its name", isRead("4006381333948", "Lake west"));
    claim(add("label-nameless", "sample", {{[this] { m_reader.read("4006381333955"); }, 0}}),
          "the code is another one", isRead("4006381333955", "Lake west"));
    claim(add("label-pulled-off", "measure", {{[this] { m_reader.unplug(); }, 0}, tap("back")}),
          "nothing is kept", [this] { return m_frame.settings().strSampleName.empty(); });
}

std::vector<TourStep> TypingItinerary::steps()
{
    held();
    dates();
    times();
    address();
    numbers();
    operatorCode();
    limits();
    english();
    erased();
    korean();
    scanned();
    labels();
    return takeSteps();
}
