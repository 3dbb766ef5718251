#include "components/editors/ZELImageTimeEdit.h"

#include "components/editors/EditorTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageTimeEdit;

namespace {

class OpenTime : public OpenedEdit<ZELImageTimeEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    using ZELImageTimeEdit::m_strAmPm;
    using ZELImageTimeEdit::m_strHour;
    using ZELImageTimeEdit::m_strMinute;
    using ZELImageTimeEdit::processText;

    /** What stands in the field: "12:3 AM". */
    std::string shown() const
    {
        return (m_strHour + QLatin1Char(':') + m_strMinute + QLatin1Char(' ') + m_strAmPm)
            .toStdString();
    }
};

class ZELImageTimeEditTest : public EditorTest
{
protected:
    OpenTime* time() { return make<OpenTime>("ZELImageTimeEdit"); }

    // what stands in an empty field after keys
    std::string typed(const std::string& keys)
    {
        OpenTime* const edit = time();
        type(*edit, keys);
        return edit->shown();
    }

    // what stands in a field after a text
    std::string set(const std::string& text)
    {
        OpenTime* const edit = time();
        edit->setText(text);
        return edit->shown();
    }
};

} // namespace

TEST_F(ZELImageTimeEditTest, startsEmptyInTheMorning)
{
    auto* const edit = buildComponent<ZELImageTimeEdit>("imageTimeEdit", "<ok style='normal'/>");
    EXPECT_EQ(edit->text(), "");
    EXPECT_TRUE(edit->isAM());
    EXPECT_EQ(edit->m_strType, "ZELImageTimeEdit");
    EXPECT_EQ(time()->shown(), ": AM");
}

TEST_F(ZELImageTimeEditTest, aFirstHourDigitOfTwoOrMoreClosesTheHour)
{
    EXPECT_EQ(typed("0"), "0: AM");
    EXPECT_EQ(typed("1"), "1: AM");
    EXPECT_EQ(typed("2"), "02: AM");
    EXPECT_EQ(typed("7"), "07: AM");
    EXPECT_EQ(typed("9"), "09: AM");
}

TEST_F(ZELImageTimeEditTest, anHourRunsFromOneToTwelve)
{
    EXPECT_EQ(typed("1 0"), "10: AM");
    EXPECT_EQ(typed("1 2"), "12: AM");
    EXPECT_EQ(typed("1 3"), "12: AM");
    EXPECT_EQ(typed("1 5"), "12: AM");
    EXPECT_EQ(typed("0 0"), "0: AM") << "refused";
    EXPECT_EQ(typed("0 0 4"), "04: AM");
}

TEST_F(ZELImageTimeEditTest, aMinuteRunsToFiftyNine)
{
    EXPECT_EQ(typed("2 3"), "02:3 AM");
    EXPECT_EQ(typed("2 3 9"), "02:39 AM");
    EXPECT_EQ(typed("2 3 9 1 5"), "02:39 AM") << "further digits are ignored";
    EXPECT_EQ(typed("2 5 9"), "02:59 AM");
    EXPECT_EQ(typed("2 6"), "02:06 AM");
    EXPECT_EQ(typed("2 7"), "02:07 AM");
    EXPECT_EQ(typed("2 0 0"), "02:00 AM");
}

TEST_F(ZELImageTimeEditTest, lettersSetTheMarkAtAnyTime)
{
    EXPECT_EQ(typed("P"), ": PM");
    EXPECT_EQ(typed("1 P"), "1: PM");
    EXPECT_EQ(typed("12 30 P"), "12:30 PM");
    EXPECT_EQ(typed("12 30 P A"), "12:30 AM");
    EXPECT_EQ(typed("P p a M"), ": PM") << "lower-case letters don't count";
}

TEST_F(ZELImageTimeEditTest, theMarkChangesToAndFro)
{
    OpenTime* const edit = time();
    EXPECT_TRUE(repaints(edit, [edit] { edit->changeAMPM(); }));
    EXPECT_FALSE(edit->isAM());
    EXPECT_EQ(edit->shown(), ": PM");
    edit->changeAMPM();
    EXPECT_TRUE(edit->isAM());
    EXPECT_EQ(edit->shown(), ": AM");
    edit->m_strAmPm.clear();
    EXPECT_TRUE(edit->isAM()) << "all but PM";
    edit->changeAMPM();
    EXPECT_EQ(edit->shown(), ": AM");
}

TEST_F(ZELImageTimeEditTest, handsOutTwentyFourHours)
{
    const struct
    {
        const char* typed;
        const char* text;
    } rows[] = {
        {"12 00 A", "00:00"}, {"12 00 P", "12:00"}, {"01 00 P", "13:00"}, {"01 05 A", "01:05"},
        {"11 59 A", "11:59"}, {"11 59 P", "23:59"}, {"12 30 A", "00:30"}, {"7 7", "07:07"},
    };
    for (const auto& row : rows) {
        OpenTime* const edit = time();
        type(*edit, row.typed);
        EXPECT_EQ(edit->text(), row.text) << row.typed;
    }
}

TEST_F(ZELImageTimeEditTest, anIncompleteTimeHasNoText)
{
    for (const char* keys : {"", "1", "12", "12 3", "P", "12 30 <"}) {
        OpenTime* const edit = time();
        type(*edit, keys);
        EXPECT_EQ(edit->text(), "") << keys;
    }
    OpenTime* const edit = time();
    type(*edit, "12 30");
    edit->m_strHour = QStringLiteral("1");
    EXPECT_EQ(edit->text(), "01:30") << "one digit of an hour is enough";
}

TEST_F(ZELImageTimeEditTest, backspaceTakesMinuteThenHourAndLeavesTheMark)
{
    OpenTime* const edit = time();
    type(*edit, "12 3 P");
    for (const char* shown : {"12: PM", "1: PM", ": PM", ": PM"}) {
        EXPECT_TRUE(repaints(edit, [edit] { edit->backspace(); }));
        EXPECT_EQ(edit->shown(), shown);
    }
    EXPECT_TRUE(repaints(edit, [edit] { edit->clear(); }));
    EXPECT_EQ(edit->shown(), ": AM") << "clearing sets it back";
    EXPECT_EQ(typed("7 < 0"), "0: AM") << "the zero put in front stays, and is a digit";
    EXPECT_EQ(typed("7 < 9"), "09: AM");
    EXPECT_EQ(typed("7 8 < 5"), "07:05 AM");
}

TEST_F(ZELImageTimeEditTest, setTextReadsTwentyFourHours)
{
    EXPECT_EQ(set("00:30"), "12:30 AM");
    EXPECT_EQ(set("13:05"), "01:05 PM");
    EXPECT_EQ(set("12:00"), "12:00 PM");
    EXPECT_EQ(set("11:59"), "11:59 AM");
    EXPECT_EQ(set("23:59"), "11:59 PM");
    EXPECT_EQ(set("24:00"), "12:00 PM");
    EXPECT_EQ(set("12:60"), "12:00 PM") << "a minute above 59 is none";
    EXPECT_EQ(set("09x15 and more"), "09:15 AM") << "any separator, and what follows is skipped";
    EXPECT_EQ(set("7:30x"), "07:00 AM") << "two characters each, wherever the separator stands";
    EXPECT_EQ(set("ab:cd"), "12:00 AM");
    OpenTime* const edit = time();
    edit->setText("24:00");
    EXPECT_EQ(edit->text(), "12:00");
}

TEST_F(ZELImageTimeEditTest, theSignOfAMinuteIsACharacterOfItsOwn)
{
    OpenTime* const edit = time();
    edit->setText("10:-5");
    EXPECT_EQ(edit->shown(), "10:-5 AM");
    EXPECT_EQ(edit->text(), "10:-5");
    type(*edit, "<");
    EXPECT_EQ(edit->text(), "") << "incomplete";
    type(*edit, "0");
    EXPECT_EQ(edit->shown(), "10:-0 AM");
    EXPECT_EQ(edit->text(), "10:00") << "handed out as a number of two digits";
}

TEST_F(ZELImageTimeEditTest, setTextWithLessThanFiveCharactersChangesNothing)
{
    OpenTime* const edit = time();
    edit->setText("13:05");
    for (const char* text : {"1", "7:30", "    "})
        EXPECT_FALSE(repaints(edit, [edit, text] { edit->setText(text); })) << text;
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText(std::string()); }));
    EXPECT_EQ(edit->shown(), "01:05 PM");
}

TEST_F(ZELImageTimeEditTest, setTextWithNullOrNothingClears)
{
    OpenTime* const edit = time();
    edit->setText("13:05");
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText(""); }));
    EXPECT_EQ(edit->shown(), ": AM");
    edit->setText("13:05");
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(edit->shown(), ": AM");
}

TEST_F(ZELImageTimeEditTest, clearingGoesThroughTheVirtualOperation)
{
    class Cleared : public OpenTime
    {
    public:
        using OpenTime::OpenTime;
        using OpenTime::setText;
        void clear() override { ++clears; }
        int clears = 0;
    };
    auto* const edit = make<Cleared>("ZELImageTimeEdit");
    edit->setText("");
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(edit->clears, 2);
}

TEST_F(ZELImageTimeEditTest, numbersAreThoseOfTwelveHoursAndDoNotRepaint)
{
    OpenTime* const edit = time();
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText(10, 75, true); }));
    EXPECT_EQ(edit->shown(), "10:00 AM");
    const struct
    {
        int hour;
        const char* shown;
    } rows[] = {{0, "12:59 PM"},  {1, "01:59 PM"},  {12, "12:59 PM"}, {13, "01:59 PM"},
                {23, "11:59 PM"}, {24, "12:59 PM"}, {25, "01:59 PM"}};
    for (const auto& row : rows) {
        edit->setText(row.hour, 59, false);
        EXPECT_EQ(edit->shown(), row.shown) << row.hour;
    }
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText("10:10"); })) << "a text does";
}

TEST_F(ZELImageTimeEditTest, repaintsForDigitsTakenOrNotAndForMarks)
{
    OpenTime* const edit = time();
    for (const char* key : {"0", "0", "7", "3", "9", "9", "A", "P"})
        EXPECT_TRUE(repaints(edit, [edit, key] { edit->addText(key); })) << key;
    for (const char* key : {"p", ":", ".", "x", ""})
        EXPECT_FALSE(repaints(edit, [edit, key] { edit->addText(key); })) << key;
    EXPECT_EQ(edit->shown(), "07:39 PM");
    EXPECT_TRUE(edit->processText('9'));
    EXPECT_FALSE(edit->processText('a'));
}

TEST_F(ZELImageTimeEditTest, typesAWholeTimeAndSkipsWhatItDoesNotKnow)
{
    OpenTime* const edit = time();
    edit->addText("07:39 PM");
    EXPECT_EQ(edit->text(), "19:39");
    edit->clear();
    edit->addText(std::string("1x2\xC3\xA4:5 9"));
    EXPECT_EQ(edit->shown(), "12:59 AM");
    edit->clear();
    edit->addText(static_cast<const char*>(nullptr));
    edit->addText(std::string());
    EXPECT_EQ(edit->shown(), ": AM");
}

TEST_F(ZELImageTimeEditTest, theTextOfTheFreeFieldHasNoPart)
{
    OpenTime* const edit = time();
    edit->setMaxLength(1);
    edit->setText("13:05");
    EXPECT_EQ(edit->text(), "13:05");
    EXPECT_EQ(edit->m_strText, "");
}
