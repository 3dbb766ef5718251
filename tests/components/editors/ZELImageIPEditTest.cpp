#include "components/editors/ZELImageIPEdit.h"

#include "components/editors/EditorTest.h"

#include <cstring>

using namespace PANFx::Testing;
using PANFx::Components::ZELImageIPEdit;

namespace {

class OpenIP : public OpenedEdit<ZELImageIPEdit>
{
public:
    using OpenedEdit::OpenedEdit;

    using ZELImageIPEdit::m_nCurOctet;
    using ZELImageIPEdit::m_szIP;
};

class ZELImageIPEditTest : public EditorTest
{
protected:
    OpenIP* address() { return make<OpenIP>("ZELImageIPEdit"); }

    // the text of an empty field after keys
    std::string typed(const std::string& keys)
    {
        OpenIP* const edit = address();
        type(*edit, keys);
        return edit->text();
    }

    // digits and octet of a field after a text
    std::string set(const std::string& text)
    {
        OpenIP* const edit = address();
        edit->setText("9.9.9.9");
        edit->setText(text);
        return stored(edit);
    }

    static std::string stored(const OpenIP* edit)
    {
        return edit->m_szIP + (" " + std::to_string(edit->m_nCurOctet));
    }
};

} // namespace

TEST_F(ZELImageIPEditTest, startsEmpty)
{
    auto* const edit = buildComponent<ZELImageIPEdit>("imageIPEdit", "<ok style='normal'/>");
    EXPECT_EQ(edit->text(), "");
    EXPECT_FALSE(edit->isValidIP());
    EXPECT_EQ(edit->m_strType, "ZELImageIPEdit");
    const char empty[13] = {};
    EXPECT_EQ(std::memcmp(address()->m_szIP, empty, sizeof empty), 0);
}

TEST_F(ZELImageIPEditTest, movesOnByItselfWhereNoFurtherDigitFits)
{
    OpenIP* const edit = address();
    const struct
    {
        char key;
        const char* text;
        const char* stored;
    } rows[] = {
        {'1', "1", "001 0"},
        {'9', "19", "019 0"},
        {'2', "192.", "192 1"},
        {'1', "192.1", "192001 1"},
        {'6', "192.16", "192016 1"},
        {'8', "192.168.", "192168 2"},
        {'0', "192.168.0", "192168000 2"},
        {'.', "192.168.0.", "192168000 3"},
        {'1', "192.168.0.1", "192168000001 3"},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(edit->isValidIP());
        press(*edit, row.key);
        EXPECT_EQ(edit->text(), row.text);
        EXPECT_EQ(stored(edit), row.stored);
    }
    EXPECT_TRUE(edit->isValidIP());
}

TEST_F(ZELImageIPEditTest, anOctetIsFullFromTwentySixOn)
{
    EXPECT_EQ(typed("1 0"), "10");
    EXPECT_EQ(typed("2 5"), "25");
    EXPECT_EQ(typed("2 6"), "26.");
    EXPECT_EQ(typed("3 0"), "30.");
    EXPECT_EQ(typed("1 2 3"), "123.");
    EXPECT_EQ(typed("2 5 5"), "255.");
    EXPECT_EQ(typed("9"), "9") << "one digit waits";
}

TEST_F(ZELImageIPEditTest, theDigitThatDoesNotFitBeginsTheNextOctet)
{
    EXPECT_EQ(typed("2 5 6"), "25.6");
    EXPECT_EQ(typed("2 5 9 9"), "25.99.");
    EXPECT_EQ(typed("2 5 6 . 2 5 6 ."), "25.6.25.6") << "in the last one the point is refused";
}

TEST_F(ZELImageIPEditTest, zerosNeedThePointKey)
{
    EXPECT_EQ(typed("0"), "0");
    EXPECT_EQ(typed("0 0 0"), "0");
    EXPECT_EQ(typed("0 . 0 . 0 . 0"), "0.0.0.0");
    EXPECT_EQ(typed("0 0 7"), "7");
    EXPECT_EQ(typed("1 0 0"), "100.");
}

TEST_F(ZELImageIPEditTest, thePointClosesAnOctetThatHasBegun)
{
    EXPECT_EQ(typed("."), "");
    EXPECT_EQ(typed("1 ."), "1.");
    EXPECT_EQ(typed("1 . ."), "1.") << "nothing there to be closed";
    EXPECT_EQ(typed("1 2 3 ."), "123.") << "it has moved on already";
    EXPECT_EQ(typed("1.2.3.4."), "1.2.3.4") << "the last one stays open";
    EXPECT_EQ(typed("1.2.3.4.5"), "1.2.3.45");
}

TEST_F(ZELImageIPEditTest, theLastOctetRefusesWhatDoesNotFit)
{
    OpenIP* const edit = address();
    type(*edit, "1.2.3.25");
    EXPECT_FALSE(edit->processText('6'));
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("6"); }));
    EXPECT_EQ(edit->text(), "1.2.3.25");
    EXPECT_TRUE(edit->processText('5'));
    EXPECT_EQ(edit->text(), "1.2.3.255");
    EXPECT_EQ(edit->m_nCurOctet, 3) << "it doesn't move on from the last one";
    EXPECT_FALSE(edit->processText('0'));
    EXPECT_FALSE(edit->processText('.'));
    EXPECT_EQ(stored(edit), "001002003255 3");
}

TEST_F(ZELImageIPEditTest, repaintsForWhatChangesAndForNothingElse)
{
    OpenIP* const edit = address();
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("."); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->backspace(); })) << "empty";
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("0"); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("0"); })) << "taken, though it stays 0";
    EXPECT_TRUE(repaints(edit, [edit] { edit->addText("."); }));
    EXPECT_FALSE(repaints(edit, [edit] { edit->addText("."); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->backspace(); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->clear(); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText("1.2.3.4"); }));
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText("1.2"); })) << "cleared";
    EXPECT_TRUE(repaints(edit, [edit] { edit->setText(""); }));
}

TEST_F(ZELImageIPEditTest, backspaceTakesDigitsOfTheValue)
{
    OpenIP* const edit = address();
    type(*edit, "192");
    const char* const rows[] = {"192 0", "019 0", "001 0", " 0", " 0"};
    for (const char* row : rows) {
        edit->backspace();
        EXPECT_EQ(stored(edit), row);
    }
    EXPECT_EQ(edit->text(), "");
}

TEST_F(ZELImageIPEditTest, backspaceStepsBackOverThePoint)
{
    OpenIP* const edit = address();
    type(*edit, "1.20.3");
    const char* const rows[] = {"1.20.", "1.20", "1.2", "1.", "1", ""};
    for (const char* row : rows) {
        edit->backspace();
        EXPECT_EQ(edit->text(), row);
    }
    EXPECT_EQ(typed("10.0 <"), "10.") << "a zero goes at once";
    EXPECT_EQ(typed("1.2.3.255 <<< <"), "1.2.3");
}

TEST_F(ZELImageIPEditTest, backInAFullOctetADigitBeginsTheNext)
{
    EXPECT_EQ(typed("192 <"), "192");
    OpenIP* const edit = address();
    type(*edit, "192 <");
    EXPECT_EQ(stored(edit), "192 0");
    type(*edit, "7");
    EXPECT_EQ(edit->text(), "192.7");
}

TEST_F(ZELImageIPEditTest, anAddressOfFourOctetsIsTaken)
{
    EXPECT_EQ(set("1.2.3.4"), "001002003004 3");
    EXPECT_EQ(set("192.168.000.001"), "192168000001 3");
    EXPECT_EQ(set("255.255.255.255"), "255255255255 3");
    EXPECT_EQ(set("1.2.3.4."), "001002003004 3");
    EXPECT_EQ(set("..."), " 0") << "the point behind the third octet ends the text";
    EXPECT_EQ(set("...."), "000000000000 3") << "nothing is 0";
    OpenIP* const edit = address();
    edit->setText(std::string("10.0.0.1"));
    EXPECT_TRUE(edit->isValidIP());
    EXPECT_EQ(edit->text(), "10.0.0.1");
}

TEST_F(ZELImageIPEditTest, aFifthOctetTakesThePlaceOfTheFourth)
{
    EXPECT_EQ(set("1.2.3.4.5"), "001002003005 3");
    EXPECT_EQ(set("1.2.3.4.5.6"), "001002003006 3");
    EXPECT_EQ(set("1.2.3.4.999"), "001002003004 3");
}

TEST_F(ZELImageIPEditTest, threeOctetsPassToo)
{
    EXPECT_EQ(set("1.2.3"), "001002003 3");
    EXPECT_EQ(set("1.2.3.999"), "001002003 3");
    OpenIP* const edit = address();
    edit->setText("1.2.3");
    EXPECT_EQ(edit->text(), "1.2.3.");
    EXPECT_FALSE(edit->isValidIP());
    EXPECT_TRUE(edit->processText(std::string("1.2.3")));
}

TEST_F(ZELImageIPEditTest, whatIsNoAddressClearsTheField)
{
    for (const char* text : {"1", "1.2", "1.2.3.", "300.1.1.1", "1.256.1.1", "1.2.256.1", "."})
        EXPECT_EQ(set(text), " 0") << text;
    EXPECT_EQ(set(""), " 0") << "the empty string";
    EXPECT_EQ(set("abc.d.e.f"), "000000000000 3") << "rubbish is 0";
    OpenIP* const edit = address();
    EXPECT_FALSE(edit->processText(std::string("1.2")));
}

TEST_F(ZELImageIPEditTest, setTextWithNullOrNothingClears)
{
    OpenIP* const edit = address();
    edit->setText("1.2.3.4");
    edit->setText("");
    EXPECT_EQ(stored(edit), " 0");
    edit->setText("1.2.3.4");
    edit->setText(static_cast<const char*>(nullptr));
    EXPECT_EQ(stored(edit), " 0");
    const char empty[13] = {};
    edit->setText("1.2.3.4");
    edit->clear();
    EXPECT_EQ(std::memcmp(edit->m_szIP, empty, sizeof empty), 0) << "all thirteen bytes";
}

TEST_F(ZELImageIPEditTest, neitherFormOfAddTextGoesThroughTheOther)
{
    class Handing : public OpenIP
    {
    public:
        using OpenIP::OpenIP;
        void addText(std::string text) override
        {
            ++strings;
            ZELImageIPEdit::addText(text.c_str());
        }
        void addText(const char* text) override
        {
            ++literals;
            ZELImageIPEdit::addText(text);
        }
        int strings = 0;
        int literals = 0;
    };
    auto* const edit = make<Handing>("ZELImageIPEdit");
    edit->addText("1");
    edit->addText(std::string("0"));
    EXPECT_EQ(edit->strings, 1);
    EXPECT_EQ(edit->literals, 1);
    EXPECT_EQ(edit->text(), "10");
}

TEST_F(ZELImageIPEditTest, textsGoThroughTheVirtualOperations)
{
    class Noted : public OpenIP
    {
    public:
        using OpenIP::OpenIP;
        void clear() override { notes += "clear "; }
        bool processText(char c) override
        {
            notes += std::string("key ") + c + " ";
            return false;
        }
        bool processText(std::string text) override
        {
            notes += "text " + text + " ";
            return text != "no" && ZELImageIPEdit::processText(text);
        }
        std::string notes;
    };
    auto* const edit = make<Noted>("ZELImageIPEdit");
    edit->notes.clear();
    static_cast<ZELImageIPEdit*>(edit)->addText("1.");
    static_cast<ZELImageIPEdit*>(edit)->addText(std::string("2"));
    static_cast<ZELImageIPEdit*>(edit)->setText("1.2");
    static_cast<ZELImageIPEdit*>(edit)->setText("");
    EXPECT_EQ(edit->notes, "key 1 key . key 2 text 1.2 clear clear ");
    EXPECT_TRUE(repaints(edit, [edit] { static_cast<ZELImageIPEdit*>(edit)->setText(""); }))
        << "whatever clear does";
}

TEST_F(ZELImageIPEditTest, takesFifteenCharactersAtOnce)
{
    OpenIP* const edit = address();
    edit->addText("100.100.100.100");
    EXPECT_EQ(edit->text(), "100.100.100.100");
    edit->clear();
    edit->addText("000000000000001"); // the fifteenth
    EXPECT_EQ(edit->text(), "1");
    edit->clear();
    edit->addText(std::string("0000000000000001")); // the sixteenth
    EXPECT_EQ(edit->text(), "0");
    edit->addText(static_cast<const char*>(nullptr));
    edit->addText("");
    edit->addText(std::string());
    EXPECT_EQ(edit->text(), "0");
}

// ---- other characters, as a pad of another kind may send them

TEST_F(ZELImageIPEditTest, anyCharacterCountsByItsDistanceFromZero)
{
    EXPECT_EQ(typed("A"), "17");
    EXPECT_EQ(typed("1 A"), "27.");
    EXPECT_EQ(typed("z"), "74") << "the first character never moves on";
    EXPECT_EQ(typed("z 1"), "74.1");
    EXPECT_EQ(typed("\xFF"), "207") << "on a machine of either kind of char";
    EXPECT_EQ(typed(","), "-4");
    OpenIP* const edit = address();
    type(*edit, ",");
    EXPECT_EQ(stored(edit), "-04 0");
    type(*edit, ",");
    EXPECT_EQ(stored(edit), "-44 0");
    type(*edit, "<");
    EXPECT_EQ(stored(edit), "-04 0");
    type(*edit, "<");
    EXPECT_EQ(stored(edit), " 0");
}

TEST_F(ZELImageIPEditTest, aNumberLongerThanAnOctetIsRefusedAndTold)
{
    for (const char* start : {"", "1.", "1.2.", "1.2.3."}) {
        OpenIP* const edit = address();
        type(*edit, start);
        type(*edit, ",,");
        const std::string before = stored(edit);
        EXPECT_FALSE(edit->processText(','));
        EXPECT_EQ(stored(edit), before) << start;
    }
    log().expectError("[processText] ok can't hold the octet -444", 4, "ZELImageIPEdit");
}

TEST_F(ZELImageIPEditTest, aTextEndsAtANumberLongerThanAnOctet)
{
    EXPECT_EQ(set("1.2.3.-1000"), "001002003 3") << "as at one above 255";
    log().expectError("[processText] ok can't hold the octet -1000", 1, "ZELImageIPEdit");
    EXPECT_EQ(set("1.2.-1000.4"), " 0");
    log().expectError("[processText] ok can't hold the octet -1000", 1, "ZELImageIPEdit");
    EXPECT_EQ(set("1.2.3.-99"), "001002003-99 3");
}

TEST_F(ZELImageIPEditTest, theTextOfTheFreeFieldHasNoPart)
{
    OpenIP* const edit = address();
    edit->setMaxLength(1);
    edit->setText("1.2.3.4");
    EXPECT_EQ(edit->text(), "1.2.3.4");
    EXPECT_EQ(edit->m_strText, "");
}
