#include "components/editors/ZELImageTimeEdit.h"

#include "components/editors/EditorTest.h"
#include "components/editors/EditorWalk.h"
#include "components/editors/rules/Digits.h"
#include "components/editors/rules/TimeRules.h"
#include "support/DecimalComma.h"

#include <set>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageTimeEdit;

namespace {

class WalkedTime : public OpenedEdit<ZELImageTimeEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    bool enterKey(char c) { return processText(c); }

    void enter(const TimeRules& rules)
    {
        m_strHour = QString::fromStdString(rules.hour);
        m_strMinute = QString::fromStdString(rules.minute);
        m_strAmPm = QString::fromStdString(rules.mark);
    }

    std::string state() const
    {
        return (m_strHour + QLatin1Char('|') + m_strMinute + QLatin1Char('|') + m_strAmPm)
            .toStdString();
    }
};

using TimeWalk = EditorWalk<TimeRules, WalkedTime>;

TimeWalk::Operation texts(const std::string& text)
{
    return TimeWalk::silent(
        "setText " + text, [text](TimeRules& rules) { rules.setText(text); },
        [text](WalkedTime& edit) { edit.setText(text); });
}

TimeWalk::Operation changedMark()
{
    return {"ampm",
            [](TimeRules& rules) {
                rules.changeMark();
                return rules.isAM();
            },
            [](WalkedTime& edit) {
                edit.changeAMPM();
                return edit.isAM();
            }};
}

std::string allCharacters()
{
    std::string all;
    for (int code = 1; code < 256; ++code)
        all += static_cast<char>(code);
    return all;
}

const std::string someCharacters = "0123456789APap:-\xFF";

std::vector<TimeWalk::Operation> timeOperations(const std::string& keys)
{
    std::vector<TimeWalk::Operation> all;
    for (const char c : keys)
        all.push_back(
            TimeWalk::key("character " + std::to_string(static_cast<unsigned char>(c)), c));
    all.push_back(TimeWalk::silent(
        "backspace", [](TimeRules& rules) { rules.backspace(); },
        [](WalkedTime& edit) { edit.backspace(); }));
    all.push_back(TimeWalk::silent(
        "clear", [](TimeRules& rules) { rules.clear(); }, [](WalkedTime& edit) { edit.clear(); }));
    all.push_back(changedMark());
    for (const std::string text : {"24:00", "12:3", "13:05", "10:-5"})
        all.push_back(texts(text));
    return all;
}

std::string brokenPromise(const TimeRules& /*before*/, const TimeRules& after)
{
    if (numberOf(after.hour) > 12 || after.hour == "00" || after.hour.size() > 2)
        return "no hour";
    if (numberOf(after.minute) > 59 || after.minute.size() > 2)
        return "no minute";
    return "";
}

using TimeWalkTest = EditorTest;

} // namespace

TEST_F(TimeWalkTest, everyCharacterInEveryStateFollowsTheRules)
{
    auto* const edit = make<WalkedTime>("ZELImageTimeEdit");
    edit->hideWindow();
    TimeWalk walk(*edit, timeOperations(underSanitizer ? someCharacters : allCharacters()));
    walk.promise = brokenPromise;
    walk.from(TimeRules());
    walk.run();
    WalkCounts("time").add(walk);

    std::set<std::string> times;
    for (const TimeRules& state : walk.found()) {
        edit->enter(state);
        const std::string time = edit->text();
        if (time.empty())
            continue;
        if (time.find('-') == std::string::npos) // a sign comes from a text, not from keys
            times.insert(time);
        EXPECT_LT(time, "24:00");
        edit->clear();
        edit->setText(time);
        EXPECT_EQ(edit->text(), time) << "a time that was read can be set again";
    }
    EXPECT_EQ(times.size(), 24U * 60U) << "every minute of the day can be typed";
    EXPECT_EQ(edit->m_strText, "") << "the text of the base has no part";
}

TEST_F(TimeWalkTest, everyTextOfDigitsFollowsTheRules)
{
    auto* const edit = make<WalkedTime>("ZELImageTimeEdit");
    edit->hideWindow();
    for (int hour = 0; hour <= 99; ++hour) {
        for (int minute = 0; minute <= 99; ++minute) {
            const std::string text = padded(hour, 2) + ":" + padded(minute, 2);
            TimeRules rules;
            rules.setText(text);
            edit->setText(text);
            EXPECT_EQ(edit->state(), rules.state()) << text;
            EXPECT_EQ(edit->text(), rules.text()) << text;
            if (hour < 24 && minute < 60) {
                EXPECT_EQ(edit->text(), text);
            }
            for (const bool am : {true, false}) {
                rules.setText(hour, minute, am);
                edit->setText(hour, minute, am);
                EXPECT_EQ(edit->state(), rules.state()) << text << " " << am;
            }
        }
    }
}

TEST_F(TimeWalkTest, theLocaleOfTheProcessDoesNotMatter)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    auto* const edit = make<WalkedTime>("ZELImageTimeEdit");
    edit->hideWindow();
    TimeWalk walk(*edit, timeOperations(someCharacters));
    walk.from(TimeRules());
    walk.run();
    WalkCounts("time under a decimal comma").add(walk);
}
