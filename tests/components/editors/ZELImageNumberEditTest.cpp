#include "components/editors/ZELImageNumberEdit.h"

#include "components/editors/EditorTest.h"
#include "support/DecimalComma.h"

#include <QFocusEvent>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageNumberEdit;

namespace {

class OpenNumber : public OpenedEdit<ZELImageNumberEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    using ZELImageNumberEdit::checkRange;
    using ZELImageNumberEdit::m_bRange;
    using ZELImageNumberEdit::m_dMax;
    using ZELImageNumberEdit::m_dMin;
    using ZELImageNumberEdit::m_nDecimalPlace;
    using ZELImageNumberEdit::m_strNumber;
    using ZELImageNumberEdit::processDoubleText;
    using ZELImageNumberEdit::processIntText;

    void loseFocus()
    {
        QFocusEvent out(QEvent::FocusOut);
        focusOutEvent(&out);
    }
};

class ZELImageNumberEditTest : public EditorTest
{
protected:
    using Types = std::vector<int>;

    OpenNumber* unlimited(int places)
    {
        auto* const edit = make<OpenNumber>("ZELImageNumberEdit");
        edit->setDecimalplace(places);
        return edit;
    }

    OpenNumber* number(int places, int min, int max)
    {
        OpenNumber* const edit = unlimited(places);
        edit->setRange(min, max);
        return edit;
    }

    // the text of a field after keys
    static std::string after(OpenNumber* edit, const std::string& keys)
    {
        type(*edit, keys);
        return edit->text();
    }

    // the text of a field whose number stands there, when the focus has gone
    static std::string left(OpenNumber* edit, const std::string& standing)
    {
        edit->m_strNumber = standing;
        edit->loseFocus();
        return edit->text();
    }

    // what checkRange makes of a number that stands and a character
    static std::string checked(OpenNumber* edit, const std::string& standing, char c)
    {
        edit->m_strNumber = standing;
        edit->checkRange(c);
        return edit->text();
    }

    // what becomes of a text that is set
    static std::string set(OpenNumber* edit, const std::string& text)
    {
        edit->m_strNumber = "before";
        edit->setText(text);
        return edit->text();
    }
};

} // namespace

TEST_F(ZELImageNumberEditTest, startsEmptyAsAnIntegerFieldWithoutARange)
{
    auto* const edit =
        buildComponent<ZELImageNumberEdit>("imageNumberEdit", "<ok style='normal'/>");
    EXPECT_EQ(edit->text(), "");
    EXPECT_EQ(edit->getDecimalplace(), 0);
    EXPECT_EQ(edit->m_strType, "ZELImageNumberEdit");
    auto* const open = make<OpenNumber>("ZELImageNumberEdit");
    EXPECT_EQ(open->m_dMin, 0.0);
    EXPECT_EQ(open->m_dMax, 0.0);
    EXPECT_FALSE(open->m_bRange);
    open->setDecimalplace(3);
    EXPECT_EQ(open->getDecimalplace(), 3);
}

// ---- integers

TEST_F(ZELImageNumberEditTest, integersStopAtTheMaximum)
{
    OpenNumber* const edit = number(0, 0, 100);
    EXPECT_EQ(after(edit, "1 0 0"), "100");
    for (const char key : std::string("0123456789.-x")) {
        EXPECT_FALSE(edit->processIntText(key)) << key;
        EXPECT_EQ(edit->text(), "100") << key;
    }
    EXPECT_EQ(after(edit, "< 5"), "100") << "10 and a 5 are above it";
    EXPECT_EQ(after(edit, "<< 5"), "15");
}

TEST_F(ZELImageNumberEditTest, anIntegerThatWouldPassTheMaximumBecomesIt)
{
    EXPECT_EQ(after(number(0, 0, 100), "2 0"), "20");
    EXPECT_EQ(after(number(0, 0, 100), "2 0 0"), "100");
    EXPECT_EQ(after(number(0, 0, 5), "9"), "5");
    EXPECT_EQ(after(number(0, -100, -10), "5"), "-10");
    EXPECT_EQ(after(number(0, 0, 2147483647), "9999999999"), "2147483647");
}

TEST_F(ZELImageNumberEditTest, integersDoNotLookAtTheMinimumUntilTheFocusGoes)
{
    OpenNumber* const edit = number(0, 10, 100);
    EXPECT_EQ(after(edit, "5"), "5");
    edit->loseFocus();
    EXPECT_EQ(edit->text(), "10");
    EXPECT_EQ(after(number(0, -10, 10), "- 9 9"), "-99");
}

TEST_F(ZELImageNumberEditTest, theMinusSignIsStoredFirstAndNotRepainted)
{
    OpenNumber* const edit = number(0, -10, 10);
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("-"); }));
    EXPECT_EQ(edit->text(), "-");
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("-"); }));
    EXPECT_EQ(edit->text(), "-");
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("5"); }));
    EXPECT_EQ(edit->text(), "-5");
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("-"); }));
    EXPECT_EQ(edit->text(), "-5");
}

TEST_F(ZELImageNumberEditTest, aDigitIsAddedToTheValueWhateverItsSign)
{
    EXPECT_EQ(after(number(0, -100, 10), "- 5 3"), "-53") << "-50 and 3";
    OpenNumber* const edit = number(0, -1000, -48);
    edit->m_strNumber = "-5";
    EXPECT_EQ(after(edit, "3"), "-48") << "-47 is above -48";
}

TEST_F(ZELImageNumberEditTest, aLeadingZeroIsReplaced)
{
    EXPECT_EQ(after(number(0, 0, 100), "0 7"), "7");
    EXPECT_EQ(after(number(0, 0, 100), "0 0"), "0");
    EXPECT_EQ(after(number(0, 0, 5), "0 7"), "7") << "and the range not asked";
    EXPECT_EQ(after(number(0, -9, 9), "- 0 7"), "-07") << "only a zero that stands alone";
}

TEST_F(ZELImageNumberEditTest, integersTakeNoPointAndNoOtherCharacter)
{
    OpenNumber* const edit = number(0, 0, 100);
    type(*edit, "1");
    for (const char key : std::string(".,x-/:\xFF"))
        EXPECT_FALSE(repaints(edit, [edit, key] { press(*edit, key); })) << key;
    EXPECT_EQ(edit->text(), "1");
}

TEST_F(ZELImageNumberEditTest, anIntegerFieldWithoutARangeTakesNothingUntilANumberIsSet)
{
    OpenNumber* const edit = unlimited(0);
    EXPECT_EQ(after(edit, "5 - 0 ."), "");
    edit->setText("0");
    EXPECT_EQ(after(edit, "5 -"), "0");
    edit->setText("5");
    EXPECT_EQ(after(edit, "5 5 5 5"), "55555") << "no maximum";
    EXPECT_EQ(after(edit, "<<<<< 5"), "") << "and nothing again";
}

TEST_F(ZELImageNumberEditTest, aMaximumOfZeroTakesNothing)
{
    EXPECT_EQ(after(number(0, -10, 0), "5 -"), "");
    EXPECT_EQ(after(number(0, 100, 0), "5 - 0"), "") << "bounds the wrong way round";
}

TEST_F(ZELImageNumberEditTest, integersStopAtTheMaximumLength)
{
    OpenNumber* const edit = number(0, 0, 100000);
    edit->setMaxLength(3);
    EXPECT_EQ(after(edit, "1 2 3 4"), "123");
    EXPECT_FALSE(edit->processIntText('4'));
    edit->setMaxLength(0);
    edit->clear();
    EXPECT_EQ(after(edit, "-1"), "");
}

TEST_F(ZELImageNumberEditTest, aRangeIsTakenAsItIsAndLeavesTheText)
{
    OpenNumber* const edit = number(0, 0, 100);
    type(*edit, "55");
    EXPECT_FALSE(repaints(edit, [edit] { edit->setRange(100, 10); }));
    EXPECT_EQ(edit->text(), "55");
    EXPECT_EQ(edit->m_dMin, 100.0);
    EXPECT_EQ(edit->m_dMax, 10.0);
    EXPECT_TRUE(edit->m_bRange);
    EXPECT_FALSE(repaints(edit, [edit] { edit->setDecimalplace(2); }));
    EXPECT_EQ(edit->text(), "55");
}

// ---- decimals

TEST_F(ZELImageNumberEditTest, aPointAloneGetsItsZero)
{
    EXPECT_EQ(after(unlimited(2), "."), "0.");
    EXPECT_EQ(after(unlimited(2), ". ."), "0.") << "one only";
    EXPECT_EQ(after(unlimited(2), "5 ."), "5.");
    EXPECT_EQ(after(unlimited(2), "- ."), "-.");
    EXPECT_EQ(after(unlimited(2), "- . 5"), "-.5");
}

TEST_F(ZELImageNumberEditTest, zerosMakeTheirOwnPoint)
{
    OpenNumber* const edit = unlimited(2);
    EXPECT_EQ(after(edit, "0"), "0");
    EXPECT_EQ(after(edit, "0"), "0.0");
    EXPECT_EQ(after(edit, "0"), "0.00");
    for (const char key : std::string("0123456789.-x")) {
        EXPECT_FALSE(edit->processDoubleText(key)) << key;
        EXPECT_EQ(edit->text(), "0.00") << key;
    }
    EXPECT_EQ(after(unlimited(2), "- 0"), "-0.");
    EXPECT_EQ(after(unlimited(2), "- 0 0 0 0"), "-0.00");
    EXPECT_EQ(after(unlimited(2), "5 0 . 0 0 0"), "50.00") << "behind a value they are digits";
}

TEST_F(ZELImageNumberEditTest, aZeroWithoutRoomChangesNothingAndRepaints)
{
    OpenNumber* const edit = unlimited(2);
    edit->m_strNumber = "0.000";
    EXPECT_TRUE(edit->processDoubleText('0'));
    EXPECT_EQ(edit->text(), "0.000");
    edit->setDecimalplace(-1);
    edit->m_strNumber = "0.";
    EXPECT_TRUE(edit->processDoubleText('0'));
    EXPECT_EQ(edit->text(), "0.");
}

TEST_F(ZELImageNumberEditTest, aSingleZeroIsReplacedWhateverTheRange)
{
    EXPECT_EQ(after(unlimited(1), "0 7"), "7");
    EXPECT_EQ(after(number(1, 0, 5), "0 7"), "7");
    EXPECT_EQ(after(number(1, 5, 10), "0"), "0") << "a zero is not held against it at all";
}

TEST_F(ZELImageNumberEditTest, theMinusSignStandsFirstOrNotAtAll)
{
    OpenNumber* const edit = unlimited(2);
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("-"); })) << "repainted among decimals";
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("-"); }));
    EXPECT_EQ(after(edit, "5 -"), "-5");
}

TEST_F(ZELImageNumberEditTest, allPlacesFilledTakeNothingMore)
{
    EXPECT_EQ(after(unlimited(1), "1 . 2 3 . -"), "1.2");
    EXPECT_EQ(after(unlimited(3), "1 . 2 3 4 5"), "1.234");
    EXPECT_EQ(after(unlimited(1), "1 . x , 2"), "1.2") << "what is no digit is skipped";
    OpenNumber* const edit = unlimited(1);
    type(*edit, "1.2");
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("3"); }));
    EXPECT_EQ(after(edit, "< 3"), "1.3");
}

TEST_F(ZELImageNumberEditTest, aDigitTooManyBecomesADecimal)
{
    OpenNumber* const onePlace = number(1, 0, 100);
    EXPECT_EQ(after(onePlace, "50"), "50");
    EXPECT_EQ(after(onePlace, "5"), "50.5");
    EXPECT_EQ(after(onePlace, "0123456789.-"), "50.5") << "all places filled";
    OpenNumber* const twoPlaces = number(2, 0, 100);
    EXPECT_EQ(after(twoPlaces, "505"), "50.5") << "one place at this step";
    EXPECT_EQ(after(twoPlaces, "5"), "50.55");
    EXPECT_EQ(after(number(1, -100, 10), "- 5 0"), "-50");
    EXPECT_EQ(after(number(1, -100, 10), "- 5 0 0"), "-50.0");
    EXPECT_EQ(after(number(1, -100, -10), "- 5"), "-10.0");
    EXPECT_EQ(after(number(1, 5, 10), "1"), "1");
    EXPECT_EQ(after(number(1, 5, 10), "1 5"), "1.5");
}

TEST_F(ZELImageNumberEditTest, theFocusLiftsWhatStandsBelowTheMinimum)
{
    OpenNumber* const edit = number(1, 5, 10);
    type(*edit, "15");
    edit->loseFocus();
    EXPECT_EQ(edit->text(), "5.0");
}

TEST_F(ZELImageNumberEditTest, decimalsAreHeldAtTheMaximum)
{
    OpenNumber* const edit = number(2, 0, 100);
    EXPECT_EQ(checked(edit, "50", '5'), "50.5");
    EXPECT_EQ(checked(edit, "10", '0'), "100") << "not above it";
    EXPECT_EQ(checked(edit, "100", '5'), "100.00") << "a tenth is above it too";
    EXPECT_EQ(checked(edit, "100.", '5'), "100.00") << "less than one above it";
    EXPECT_EQ(checked(edit, "99.", '9'), "99.9");
    EXPECT_EQ(checked(edit, "100.9", '9'), "100.00");
    EXPECT_EQ(checked(edit, "10", '1'), "10.1") << "just one above it is divided";
    EXPECT_EQ(checked(edit, "1000", '0'), "100.00");
    EXPECT_EQ(checked(edit, "100", '0'), "100.0") << "a tenth of exactly the maximum: one place";
}

TEST_F(ZELImageNumberEditTest, decimalsAreHeldAtANegativeMinimum)
{
    OpenNumber* const edit = number(2, -100, 10);
    EXPECT_EQ(checked(edit, "-50", '5'), "-50.5");
    EXPECT_EQ(checked(edit, "-10", '0'), "-100");
    EXPECT_EQ(checked(edit, "-100", '5'), "-100.00");
    EXPECT_EQ(checked(edit, "-100.", '5'), "-100.00");
    EXPECT_EQ(checked(edit, "-10", '1'), "-10.1") << "just one below it is divided";
    EXPECT_EQ(checked(edit, "-100", '0'), "-100.0") << "a tenth of exactly the minimum";
}

TEST_F(ZELImageNumberEditTest, aPositiveMinimumIsPassedThrough)
{
    EXPECT_EQ(checked(number(1, 50, 100), "", '7'), "7");
    EXPECT_EQ(checked(number(1, 50, 100), "1", '.'), "1.");
    EXPECT_EQ(checked(number(1, 0, 100), "-", '7'), "-7") << "so is one of zero";
}

TEST_F(ZELImageNumberEditTest, theRangeIsAskedForDigitsOnlyWhenThereIsOne)
{
    EXPECT_EQ(after(unlimited(2), "9 9 9 9 9"), "99999");
    EXPECT_EQ(after(unlimited(2), "- 9 9 9 9 9"), "-99999");
}

TEST_F(ZELImageNumberEditTest, decimalsMayPassTheMaximumLengthByOne)
{
    OpenNumber* const edit = unlimited(2);
    edit->setMaxLength(2);
    EXPECT_EQ(after(edit, "1 2 3"), "12");
    edit->clear();
    EXPECT_EQ(after(edit, "0 0"), "0.0");
    EXPECT_FALSE(edit->processDoubleText('0'));
    edit->clear();
    EXPECT_EQ(after(edit, "- 0 5"), "-0.");
    edit->setMaxLength(1);
    edit->clear();
    EXPECT_EQ(after(edit, "."), "0.");
    edit->setMaxLength(0);
    edit->clear();
    EXPECT_EQ(after(edit, "0 . -"), "");
}

// ---- texts

TEST_F(ZELImageNumberEditTest, setTextFormatsTheNumber)
{
    EXPECT_EQ(set(unlimited(2), "5"), "5.00");
    EXPECT_EQ(set(unlimited(1), "1.26"), "1.3");
    EXPECT_EQ(set(unlimited(0), "7.9"), "8");
    EXPECT_EQ(set(unlimited(2), "rubbish"), "0.00");
    EXPECT_EQ(set(unlimited(2), "7 apples"), "7.00");
    EXPECT_EQ(set(unlimited(1), "1e3"), "1000.0");
    EXPECT_EQ(set(unlimited(1), "-0.5"), "-0.5");
    EXPECT_EQ(set(unlimited(-1), "5"), "5.000000") << "places below 0 are six";
}

TEST_F(ZELImageNumberEditTest, setTextLeavesAPointOrASignThatStandsAlone)
{
    for (const int places : {0, 2}) {
        OpenNumber* const edit = number(places, 5, 10);
        EXPECT_EQ(set(edit, "."), "0.") << "whatever the range";
        EXPECT_EQ(set(edit, "-"), "-");
    }
}

TEST_F(ZELImageNumberEditTest, setTextOutsideTheRangeChangesNothing)
{
    OpenNumber* const edit = number(1, 0, 100);
    edit->setText("50");
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText("200"); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText("-1"); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->setText("100.01"); }));
    EXPECT_EQ(edit->text(), "50.0");
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText("100"); }));
    EXPECT_EQ(edit->text(), "100.0");
    EXPECT_EQ(set(edit, "0"), "0.0");
    EXPECT_EQ(set(number(0, 100, 0), "50"), "before") << "nothing lies in bounds turned round";
}

TEST_F(ZELImageNumberEditTest, anEmptyStringIsANumberAndAnEmptyLiteralClears)
{
    OpenNumber* const edit = number(2, 0, 100);
    EXPECT_EQ(set(edit, std::string()), "0.00");
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText(""); }));
    EXPECT_EQ(edit->text(), "");
    edit->setText("5");
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(edit->text(), "");
    EXPECT_EQ(set(number(2, 5, 100), std::string()), "before") << "0 lies outside";
}

TEST_F(ZELImageNumberEditTest, clearingGoesThroughTheVirtualOperation)
{
    class Cleared : public OpenNumber
    {
    public:
        using OpenNumber::OpenNumber;
        void clear() override { ++clears; }
        int clears = 0;
    };
    auto* const edit = make<Cleared>("ZELImageNumberEdit");
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText(""); })) << "whatever clear does";
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(edit->clears, 2);
}

TEST_F(ZELImageNumberEditTest, addTextTakesCharactersOneByOne)
{
    OpenNumber* const edit = unlimited(2);
    edit->addText("1x2,.3-4");
    EXPECT_EQ(edit->text(), "12.34");
    edit->clear();
    edit->addText(std::string("-7.5"));
    EXPECT_EQ(edit->text(), "-7.5");
    edit->addText(static_cast<const char*>(nullptr));
    edit->addText("");
    edit->addText(std::string());
    EXPECT_EQ(edit->text(), "-7.5");
    OpenNumber* const integer = number(0, 0, 1000);
    integer->addText("1.2x3");
    EXPECT_EQ(integer->text(), "123");
}

TEST_F(ZELImageNumberEditTest, backspaceAndClearRepaintWhereThereIsSomething)
{
    OpenNumber* const edit = unlimited(2);
    EXPECT_FALSE(repaints(edit, [edit] { edit->backspace(); }));
    type(*edit, "1.5");
    EXPECT_TRUE(repaints(edit, [edit] { edit->backspace(); }));
    EXPECT_EQ(edit->text(), "1.");
    edit->backspace();
    EXPECT_EQ(edit->text(), "1");
    EXPECT_TRUE(repaints(edit, [edit] { edit->clear(); }));
    EXPECT_EQ(edit->text(), "");
    EXPECT_TRUE(repaints(edit, [edit] { edit->clear(); })) << "always";
}

// ---- the focus goes

TEST_F(ZELImageNumberEditTest, theFocusFormatsTheNumber)
{
    EXPECT_EQ(left(number(0, 0, 100), "3."), "3");
    EXPECT_EQ(left(number(2, 0, 100), "3."), "3.00");
    EXPECT_EQ(left(number(1, 0, 100), "-"), "0.0");
    EXPECT_EQ(left(number(1, 5, 100), "-"), "5.0");
    EXPECT_EQ(left(number(1, 0, 100), ""), "") << "an empty field stays empty";
    EXPECT_EQ(left(number(1, -9, 9), "-0."), "-0.0") << "a zero keeps its sign";
}

TEST_F(ZELImageNumberEditTest, theFocusLooksAtTheMinimumEvenWithoutARange)
{
    EXPECT_EQ(left(unlimited(1), "-5"), "0.0");
    EXPECT_EQ(left(unlimited(0), "-5"), "0");
    EXPECT_EQ(left(unlimited(1), "5"), "5.0");
    EXPECT_EQ(left(number(0, -10, 10), "-5"), "-5");
    EXPECT_EQ(left(number(0, -10, 10), "-50"), "-10");
}

TEST_F(ZELImageNumberEditTest, theFocusDoesNotLookAtTheMaximum)
{
    EXPECT_EQ(left(number(0, 0, 10), "50"), "50");
    EXPECT_EQ(left(number(1, 100, 0), "5"), "100.0") << "bounds the wrong way round";
}

TEST_F(ZELImageNumberEditTest, dimmingAFocusedFieldFormatsItAndPostsNothing)
{
    OpenNumber* const edit = number(1, 5, 10);
    edit->setFocus();
    EventLoop::deliver();
    ASSERT_TRUE(edit->hasFocus());
    type(*edit, "1");
    panel().take();
    edit->setDimMode(true);
    EXPECT_EQ(edit->text(), "5.0");
    EXPECT_EQ(panel().takeTypes(), Types{});
    edit->m_strNumber = "7";
    edit->loseFocus();
    EXPECT_EQ(edit->text(), "7.0");
    EXPECT_EQ(panel().takeTypes(), Types{});
}

// ---- wherever the process runs

TEST_F(ZELImageNumberEditTest, aDecimalPointIsOneInEveryLocale)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    OpenNumber* const edit = number(2, 0, 100);
    edit->setText("3.5");
    EXPECT_EQ(edit->text(), "3.50");
    edit->setText("3,5");
    EXPECT_EQ(edit->text(), "3.00");
    edit->clear();
    EXPECT_EQ(after(edit, "3.5"), "3.5");
    edit->loseFocus();
    EXPECT_EQ(edit->text(), "3.50");
    EXPECT_EQ(checked(edit, "50", '5'), "50.5");
}

TEST_F(ZELImageNumberEditTest, theTextOfTheFreeFieldHasNoPart)
{
    OpenNumber* const edit = unlimited(1);
    edit->setText("5");
    EXPECT_EQ(edit->m_strText, "");
}
