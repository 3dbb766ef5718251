#include "components/editors/ZELImageDateEdit.h"

#include "components/editors/EditorTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageDateEdit;

namespace {

class OpenDate : public OpenedEdit<ZELImageDateEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    using ZELImageDateEdit::m_nDateOrder;
    using ZELImageDateEdit::m_strDay;
    using ZELImageDateEdit::m_strFixedYear;
    using ZELImageDateEdit::m_strMonth;
    using ZELImageDateEdit::m_strYear;
    using ZELImageDateEdit::processText;
};

enum Order : unsigned {
    MDY,
    DMY,
    YMD,
};

class ZELImageDateEditTest : public EditorTest
{
protected:
    // an empty field in an order
    OpenDate* date(unsigned order = MDY)
    {
        auto* const edit = make<OpenDate>("ZELImageDateEdit");
        edit->setDateOrder(order);
        return edit;
    }

    // what stands in an empty field of an order after keys
    std::string typed(unsigned order, const std::string& keys)
    {
        OpenDate* const edit = date(order);
        type(*edit, keys);
        return edit->text();
    }

    // the same with a fixed year
    std::string typedAfter(unsigned fixedYear, unsigned order, const std::string& keys)
    {
        OpenDate* const edit = date(order);
        edit->setFixedYear(fixedYear);
        type(*edit, keys);
        return edit->text();
    }
};

} // namespace

TEST_F(ZELImageDateEditTest, startsEmptyInTheOrderMonthDayYear)
{
    auto* const edit = buildComponent<ZELImageDateEdit>("imageDateEdit", "<ok style='normal'/>");
    EXPECT_EQ(edit->text(), "//");
    EXPECT_EQ(edit->m_strType, "ZELImageDateEdit");
    OpenDate* const open = date();
    EXPECT_EQ(open->m_nDateOrder, 0U);
    EXPECT_TRUE(open->m_strFixedYear.isEmpty());
    EXPECT_TRUE(open->m_strYear.isEmpty());
    EXPECT_TRUE(open->m_strMonth.isEmpty());
    EXPECT_TRUE(open->m_strDay.isEmpty());
}

// ---- the parts digit by digit

TEST_F(ZELImageDateEditTest, aFirstMonthDigitOfTwoOrMoreClosesTheMonth)
{
    EXPECT_EQ(typed(MDY, "0"), "0//");
    EXPECT_EQ(typed(MDY, "1"), "1//");
    EXPECT_EQ(typed(MDY, "2"), "02//");
    EXPECT_EQ(typed(MDY, "5"), "05//");
    EXPECT_EQ(typed(MDY, "9"), "09//");
}

TEST_F(ZELImageDateEditTest, aMonthIsHeldAtTwelve)
{
    EXPECT_EQ(typed(MDY, "1 0"), "10//");
    EXPECT_EQ(typed(MDY, "1 2"), "12//");
    EXPECT_EQ(typed(MDY, "1 3"), "12//");
    EXPECT_EQ(typed(MDY, "1 7"), "12//");
}

TEST_F(ZELImageDateEditTest, aSecondZeroIsRefusedInAMonthAndInADay)
{
    EXPECT_EQ(typed(MDY, "0 0"), "0//");
    EXPECT_EQ(typed(MDY, "0 0 7"), "07//");
    EXPECT_EQ(typed(MDY, "12 0 0"), "12/0/");
    EXPECT_EQ(typed(MDY, "12 0 0 9"), "12/09/");
    EXPECT_EQ(typed(DMY, "0 0"), "0//");
    EXPECT_EQ(typed(DMY, "12 0 0 7"), "12/07/");
    EXPECT_EQ(typed(YMD, "2024 0 0 7"), "2024/07/");
    EXPECT_EQ(typed(YMD, "2024 12 0 0"), "2024/12/0");
}

TEST_F(ZELImageDateEditTest, aFirstDayDigitOfFourOrMoreClosesTheDay)
{
    EXPECT_EQ(typed(MDY, "12 3"), "12/3/");
    EXPECT_EQ(typed(MDY, "12 4"), "12/04/");
    EXPECT_EQ(typed(DMY, "3"), "3//");
    EXPECT_EQ(typed(DMY, "4"), "04//");
    EXPECT_EQ(typed(YMD, "2024 12 3"), "2024/12/3");
    EXPECT_EQ(typed(YMD, "2024 12 4"), "2024/12/04");
}

TEST_F(ZELImageDateEditTest, aDayIsHeldAtThirtyOneWhateverTheMonth)
{
    EXPECT_EQ(typed(MDY, "12 31"), "12/31/");
    EXPECT_EQ(typed(MDY, "12 32"), "12/31/");
    EXPECT_EQ(typed(MDY, "02 39"), "02/31/");
    EXPECT_EQ(typed(DMY, "35"), "31//");
}

TEST_F(ZELImageDateEditTest, aYearDoesNotBeginWithZero)
{
    EXPECT_EQ(typed(MDY, "12 25 0"), "12/25/");
    EXPECT_EQ(typed(DMY, "25 12 0 0 2"), "25/12/2");
    EXPECT_EQ(typed(YMD, "0"), "//");
    EXPECT_EQ(typed(YMD, "0 2 0"), "20//");
}

TEST_F(ZELImageDateEditTest, aFullDateTakesNoFurtherDigit)
{
    EXPECT_EQ(typed(MDY, "12 25 2024 7"), "12/25/2024");
    EXPECT_EQ(typed(DMY, "25 12 2024 7"), "25/12/2024");
    EXPECT_EQ(typed(YMD, "2024 12 25 7"), "2024/12/25");
}

// ---- the last day of the month

TEST_F(ZELImageDateEditTest, theFourthYearDigitHoldsTheDayAgainstTheMonth)
{
    EXPECT_EQ(typed(MDY, "02 30 202"), "02/30/202") << "not before";
    EXPECT_EQ(typed(MDY, "02 30 2024"), "02/29/2024");
    EXPECT_EQ(typed(MDY, "02 30 2023"), "02/28/2023");
    EXPECT_EQ(typed(MDY, "02 30 2000"), "02/29/2000");
    EXPECT_EQ(typed(MDY, "02 30 1900"), "02/28/1900");
    EXPECT_EQ(typed(MDY, "02 28 2024"), "02/28/2024") << "a real day stands";
    EXPECT_EQ(typed(DMY, "31 04 202"), "31/04/202");
    EXPECT_EQ(typed(DMY, "31 04 2024"), "30/04/2024");
}

TEST_F(ZELImageDateEditTest, yearFirstTheSecondDayDigitHoldsTheDayAgainstTheMonth)
{
    EXPECT_EQ(typed(YMD, "2024 2 3"), "2024/02/3");
    EXPECT_EQ(typed(YMD, "2024 2 3 1"), "2024/02/29");
    EXPECT_EQ(typed(YMD, "2023 2 3 1"), "2023/02/28");
    EXPECT_EQ(typed(YMD, "2024 4 3 1"), "2024/04/30");
}

TEST_F(ZELImageDateEditTest, aYearIsHeldAt2999WhenItIsComplete)
{
    EXPECT_EQ(typed(MDY, "12 25 345"), "12/25/345");
    EXPECT_EQ(typed(MDY, "12 25 3456"), "12/25/2999");
    EXPECT_EQ(typed(DMY, "25 12 3000"), "25/12/2999");
    EXPECT_EQ(typed(MDY, "12 25 2999"), "12/25/2999");
    EXPECT_EQ(typed(MDY, "02 31 3004"), "02/28/2999") << "the day is that of the year that stands";
}

TEST_F(ZELImageDateEditTest, yearFirstAYearBeyond2999StandsUntilTheDayIsComplete)
{
    EXPECT_EQ(typed(YMD, "3500 01"), "3500/01/");
    EXPECT_EQ(typed(YMD, "3500 01 3"), "3500/01/3");
    EXPECT_EQ(typed(YMD, "3500 01 3 1"), "2999/01/31");
    EXPECT_EQ(typed(YMD, "3500 01 4"), "2999/01/04");
    EXPECT_EQ(typed(YMD, "3004 02 3 0"), "2999/02/28");
}

TEST_F(ZELImageDateEditTest, yearFirstADayClosedByOneDigitLeavesTheLastDayAlone)
{
    OpenDate* const edit = date(YMD);
    type(*edit, "2023");
    edit->m_strMonth = QStringLiteral("13"); // a month without days
    type(*edit, "9");
    EXPECT_EQ(edit->text(), "2023/13/09");
}

TEST_F(ZELImageDateEditTest, aDigitBehindAMonthOfOneDigitExtendsTheMonth)
{
    EXPECT_EQ(typed(YMD, "2024 1"), "2024/1/");
    EXPECT_EQ(typed(YMD, "2024 1 5"), "2024/12/");
    EXPECT_EQ(typed(MDY, "1 0 3"), "10/3/");
    EXPECT_EQ(typed(DMY, "1 5 1 1"), "15/11/");
}

TEST_F(ZELImageDateEditTest, tellsTheLastDayOfAMonth)
{
    OpenDate* const edit = date();
    const unsigned days[] = {30, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31, 0, 0};
    for (unsigned month = 0; month < 15; ++month)
        EXPECT_EQ(edit->getLastDay(2023, month), days[month]) << month;
    EXPECT_EQ(edit->getLastDay(2024, 2), 29U);
    EXPECT_EQ(edit->getLastDay(2000, 2), 29U);
    EXPECT_EQ(edit->getLastDay(1900, 2), 28U);
    EXPECT_EQ(edit->getLastDay(0, 2), 29U) << "year 0 can be divided by 400";
}

// ---- a fixed year

TEST_F(ZELImageDateEditTest, aFixedYearStaysAtClearAndBackspace)
{
    OpenDate* const edit = date();
    edit->setFixedYear(20);
    EXPECT_EQ(edit->text(), "//20");
    type(*edit, "12 25 24");
    EXPECT_EQ(edit->text(), "12/25/2024");
    type(*edit, "<<");
    EXPECT_EQ(edit->text(), "12/25/20");
    type(*edit, "<");
    EXPECT_EQ(edit->text(), "12/2/20") << "behind the fixed digits the day goes";
    type(*edit, "<<<<");
    EXPECT_EQ(edit->text(), "//20");
    type(*edit, "12");
    edit->clear();
    EXPECT_EQ(edit->text(), "//20");
    edit->setDateOrder(YMD);
    type(*edit, "24 12 25 <<<< << <<");
    EXPECT_EQ(edit->text(), "20//");
}

TEST_F(ZELImageDateEditTest, afterAFixedYearAZeroIsTaken)
{
    EXPECT_EQ(typedAfter(20, MDY, "12 25 0"), "12/25/200");
    EXPECT_EQ(typedAfter(20, MDY, "12 25 0 9"), "12/25/2009");
    EXPECT_EQ(typedAfter(2, DMY, "25 12 0"), "25/12/20");
}

TEST_F(ZELImageDateEditTest, theYearChecksOnlyWhereALaterDigitCompletesIt)
{
    EXPECT_EQ(typedAfter(202, MDY, "02 31 3"), "02/31/2023") << "first digit behind the fixed ones";
    EXPECT_EQ(typedAfter(345, DMY, "31 02 6"), "31/02/3456");
    EXPECT_EQ(typedAfter(20, MDY, "02 31 23"), "02/28/2023");
}

TEST_F(ZELImageDateEditTest, aWholeFixedYearTakesOneDigitMoreUnchecked)
{
    EXPECT_EQ(typedAfter(2024, MDY, "02 31"), "02/31/2024");
    EXPECT_EQ(typedAfter(2024, MDY, "02 31 5"), "02/31/20245");
    EXPECT_EQ(typedAfter(2024, MDY, "02 31 5 6"), "02/31/20245");
    EXPECT_EQ(typedAfter(2024, DMY, "31 02 0 1"), "31/02/20240");
    EXPECT_EQ(typedAfter(2024, YMD, "02 31"), "2024/02/29") << "entry begins at the month";
    EXPECT_EQ(typedAfter(2024, YMD, "02 31 5"), "2024/02/29");
}

TEST_F(ZELImageDateEditTest, yearFirstTheFixedYearIsExtendedToFourDigits)
{
    EXPECT_EQ(typedAfter(20, YMD, "2 4 3"), "2024/03/");
    EXPECT_EQ(typedAfter(20, YMD, "0 0"), "2000//");
}

TEST_F(ZELImageDateEditTest, aFixedYearOfZeroIsADigit)
{
    OpenDate* const edit = date();
    edit->setFixedYear(20);
    edit->setFixedYear(0);
    EXPECT_EQ(edit->text(), "//0");
    edit->clear();
    EXPECT_EQ(edit->text(), "//0");
}

TEST_F(ZELImageDateEditTest, settingAFixedYearReplacesTheYearAndLeavesTheRest)
{
    OpenDate* const edit = date();
    type(*edit, "12 25 2024");
    EXPECT_FALSE(repaints(edit, [edit] { edit->setFixedYear(199); }));
    EXPECT_EQ(edit->text(), "12/25/199");
}

// ---- backspace

TEST_F(ZELImageDateEditTest, backspaceGoesBackThroughThePartsInTheirOrder)
{
    const std::string orders[3][9] = {
        {"12/25/2024", "12/25/202", "12/25/20", "12/25/2", "12/25/", "12/2/", "12//", "1//", "//"},
        {"25/12/2024", "25/12/202", "25/12/20", "25/12/2", "25/12/", "25/1/", "25//", "2//", "//"},
        {"2024/12/25", "2024/12/2", "2024/12/", "2024/1/", "2024//", "202//", "20//", "2//", "//"},
    };
    for (const unsigned order : {MDY, DMY, YMD}) {
        OpenDate* const edit = date(order);
        edit->setText(2024, 12, 25);
        for (const std::string& text : orders[order]) {
            EXPECT_EQ(edit->text(), text);
            edit->backspace();
        }
        EXPECT_EQ(edit->text(), "//");
        EXPECT_TRUE(repaints(edit, [edit] { edit->backspace(); })) << "even with nothing to take";
        EXPECT_EQ(edit->text(), "//");
    }
}

TEST_F(ZELImageDateEditTest, backspaceLeavesTheZeroThatWasPutInFront)
{
    EXPECT_EQ(typed(MDY, "5 <"), "0//");
    EXPECT_EQ(typed(MDY, "5 < 5"), "05//");
    EXPECT_EQ(typed(MDY, "12 7 < 3"), "12/03/");
}

// ---- the order

TEST_F(ZELImageDateEditTest, theOrderChangesTheTextAndKeepsTheParts)
{
    OpenDate* const edit = date();
    edit->setText(2024, 12, 25);
    EXPECT_EQ(edit->text(), "12/25/2024");
    EXPECT_FALSE(repaints(edit, [edit] { edit->setDateOrder(DMY); }));
    EXPECT_EQ(edit->text(), "25/12/2024");
    edit->setDateOrder(YMD);
    EXPECT_EQ(edit->text(), "2024/12/25");
    edit->setDateOrder(7);
    EXPECT_EQ(edit->text(), "12/25/2024");
    EXPECT_EQ(edit->m_nDateOrder, 0U);
    edit->setDateOrder(3);
    EXPECT_EQ(edit->m_nDateOrder, 0U);
}

TEST_F(ZELImageDateEditTest, afterAChangeOfOrderTheLengthsAloneTellWhereTypingGoesOn)
{
    OpenDate* const edit = date(DMY);
    type(*edit, "31 1");
    edit->setDateOrder(MDY);
    type(*edit, "2");
    EXPECT_EQ(edit->text(), "1/31/2") << "the day is there, so the year begins";
    edit->setDateOrder(YMD);
    type(*edit, "024");
    EXPECT_EQ(edit->text(), "2024/1/31");
}

// ---- texts

TEST_F(ZELImageDateEditTest, typesAWholeDateAndSkipsWhatIsNoDigit)
{
    OpenDate* const edit = date();
    edit->addText("12/25/2024");
    EXPECT_EQ(edit->text(), "12/25/2024");
    edit->clear();
    edit->addText(std::string("a1-2b 2.5\xC3\xA4 2024"));
    EXPECT_EQ(edit->text(), "12/25/2024");
    edit->clear();
    edit->addText(static_cast<const char*>(nullptr));
    edit->addText("");
    edit->addText(std::string());
    EXPECT_EQ(edit->text(), "//");
}

TEST_F(ZELImageDateEditTest, repaintsForEachDigitTakenOrNotAndForNothingElse)
{
    OpenDate* const edit = date();
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("0"); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("0"); })) << "refused";
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("/"); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("x"); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText(""); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->clear(); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText("12252024"); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText("1225202"); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText(2024, 12, 25); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText(""); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText(std::string()); }));
    EXPECT_TRUE(edit->processText('0'));
    EXPECT_FALSE(edit->processText('/'));
}

TEST_F(ZELImageDateEditTest, setTextTakesEightDigitsInTheOrderOfTheField)
{
    OpenDate* const edit = date(MDY);
    edit->setText("12252024");
    EXPECT_EQ(edit->text(), "12/25/2024");
    edit->setText(std::string("0102200399"));
    EXPECT_EQ(edit->text(), "01/02/2003") << "what follows doesn't count";
    edit->setDateOrder(DMY);
    edit->setText("25122024");
    EXPECT_EQ(edit->text(), "25/12/2024");
    edit->setDateOrder(YMD);
    edit->setText("20241225");
    EXPECT_EQ(edit->text(), "2024/12/25");
}

TEST_F(ZELImageDateEditTest, setTextCutsATextWithSeparatorsAtTheSamePlaces)
{
    OpenDate* const edit = date(MDY);
    edit->setText("12/25/2024"); // "12", "/2", "5/20"
    EXPECT_EQ(edit->text(), "12//0005");
    edit->setDateOrder(YMD);
    edit->setText("2024/12/25"); // "2024", "/1", "2/"
    EXPECT_EQ(edit->text(), "2024//02");
}

TEST_F(ZELImageDateEditTest, aSignInAPartMakesItTheLargest)
{
    OpenDate* const edit = date(YMD);
    edit->setText("2024-1-5");
    EXPECT_EQ(edit->text(), "2024/12/31");
    edit->setText("-1230105");
    EXPECT_EQ(edit->text(), "2999/01/05");
    edit->setDateOrder(MDY);
    edit->setText("-1-52024");
    EXPECT_EQ(edit->text(), "12/31/2024");
}

TEST_F(ZELImageDateEditTest, setTextWithLessThanEightCharactersChangesNothing)
{
    OpenDate* const edit = date();
    edit->setText("12252024");
    for (const char* text : {"1", "1225202", "       "}) {
        edit->setText(text);
        EXPECT_EQ(edit->text(), "12/25/2024") << text;
    }
    edit->setText(std::string());
    EXPECT_EQ(edit->text(), "12/25/2024");
}

TEST_F(ZELImageDateEditTest, setTextWithNullOrNothingClearsDownToTheFixedYear)
{
    OpenDate* const edit = date();
    edit->setText("12252024");
    edit->setText("");
    EXPECT_EQ(edit->text(), "//");
    edit->setFixedYear(20);
    type(*edit, "12 25 24");
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(edit->text(), "//20");
}

TEST_F(ZELImageDateEditTest, clearingGoesThroughTheVirtualOperation)
{
    class Cleared : public OpenDate
    {
    public:
        using OpenDate::OpenDate;
        using OpenDate::setText;
        void clear() override { ++clears; }
        int clears = 0;
    };
    auto* const edit = make<Cleared>("ZELImageDateEdit");
    edit->setText("");
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(edit->clears, 2);
}

TEST_F(ZELImageDateEditTest, numbersAreHeldAtTheirLimits)
{
    OpenDate* const edit = date(YMD);
    edit->setText(2024, 2, 31);
    EXPECT_EQ(edit->text(), "2024/02/29");
    edit->setText(5000, 13, 31);
    EXPECT_EQ(edit->text(), "2999/12/31");
    edit->setText(2999, 1, 1);
    EXPECT_EQ(edit->text(), "2999/01/01");
    edit->setText(3000, 1, 1);
    EXPECT_EQ(edit->text(), "2999/01/01");
    edit->setText(7, 4, 99);
    EXPECT_EQ(edit->text(), "0007/04/30");
}

TEST_F(ZELImageDateEditTest, theDayIsThatOfTheYearAsItWasPassed)
{
    OpenDate* const edit = date(YMD);
    edit->setText(3004, 2, 31);
    EXPECT_EQ(edit->text(), "2999/02/29");
    edit->setText(0, 2, 31);
    EXPECT_EQ(edit->text(), "/02/29");
    edit->setText(2023, 0, 31);
    EXPECT_EQ(edit->text(), "2023//30");
}

TEST_F(ZELImageDateEditTest, zeroEmptiesAPartAndAFixedYearToo)
{
    OpenDate* const edit = date();
    edit->setFixedYear(20);
    edit->setText(0, 0, 0);
    EXPECT_EQ(edit->text(), "//");
    edit->setText("00000000");
    EXPECT_EQ(edit->text(), "//");
    edit->clear();
    EXPECT_EQ(edit->text(), "//20") << "it is only off the field";
}

TEST_F(ZELImageDateEditTest, aYearShorterThanTheFixedOneGoesOnAsALaterDigit)
{
    OpenDate* const edit = date();
    edit->setFixedYear(20);
    edit->setText(0, 12, 25);
    type(*edit, "0");
    EXPECT_EQ(edit->text(), "12/25/0");
    type(*edit, "<");
    EXPECT_EQ(edit->text(), "12/2/0") << "not longer than the fixed year: the day goes";
}

TEST_F(ZELImageDateEditTest, theTextOfTheFreeFieldHasNoPart)
{
    OpenDate* const edit = date();
    edit->setMaxLength(1);
    edit->setText("12252024");
    EXPECT_EQ(edit->text(), "12/25/2024");
    EXPECT_EQ(edit->m_strText, "");
}
