// What a key types and what it shows, in both languages, plain and shifted.

#include "components/pads/KeyButtonTest.h"
#include "resource/QwertyPadFactory.h"

#include <syslog.h>

using namespace PANFx::Testing;

namespace {

class ZELKeyButtonFaceTest : public KeyButtonTest
{
};

} // namespace

// ---- what it types

TEST_F(ZELKeyButtonFaceTest, keysSpellASyllable)
{
    PANFx::Resource::QwertyPadFactory composer;
    composer.setMaxLength(8);
    composer.changeLang("kr");
    QString text;
    for (const char* const lang2 : {"code='3131' index='0'", "code='314F' index='0'",
                                    "code='3142' index='7' code2='3143' index2='8'"}) {
        Key* const made = keyWith("code='61'", lang2);
        text = composer.getCompleteText(made->getKeyCode(second, false), made->getKeyIndex(false));
    }
    EXPECT_EQ(QString::fromUtf8(text.toLatin1()), QStringLiteral("\uAC11"));
}

TEST_F(ZELKeyButtonFaceTest, givesTheCodesOfItsLanguagesPlainAndShifted)
{
    struct Case
    {
        const char* element;
        const char* lang2;
        int plain;
        int shifted;
        int plain2;
        int shifted2;
        int index;
        int shiftedIndex;
    };
    const char* const both = "code='61' code2='41'";
    const std::vector<Case> cases{
        {"", "", -1, -1, -1, -1, -1, -1},
        {"code='61'", "", 0x61, 0x61, 0x61, 0x61, -1, -1},
        {both, "", 0x61, 0x41, 0x61, 0x41, -1, -1},
        {"code2='41'", "", -1, 0x41, -1, 0x41, -1, -1},
        {"code='61'", "code='3141' code2='3142'", 0x61, 0x61, 0x3141, 0x3142, -1, -1},
        {"", "code='3141'", -1, -1, 0x3141, 0x3141, -1, -1},
        // a second language without a shifted code never shifts, also where there is an index
        {both, "code='3141' index='6'", 0x61, 0x41, 0x3141, 0x3141, 6, 6},
        {both, "code='3141' index='6' index2='7'", 0x61, 0x41, 0x3141, 0x3141, 6, 6},
        {both, "code='3141' code2='3142' index='6' index2='7'", 0x61, 0x41, 0x3141, 0x3142, 6, 7},
        // the shifted code decides over the index, also where there is none
        {both, "code='3141' code2='3142' index='6'", 0x61, 0x41, 0x3141, 0x3142, 6, -1},
        // without a plain code the key is not in the second language, but its indexes stay
        {both, "code2='3142' index='6' index2='7'", 0x61, 0x41, 0x61, 0x41, 6, 7},
        {both, "title='x' index='6'", 0x61, 0x41, 0x61, 0x41, 6, 6},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(std::string(one.element) + " / " + one.lang2);
        Key* const made = keyWith(one.element, one.lang2);
        EXPECT_EQ(made->getKeyCode(second, false), one.plain2);
        EXPECT_EQ(made->getKeyCode(second, true), one.shifted2);
        for (const short language : std::vector<short>{1, 0, 3, -1}) {
            EXPECT_EQ(made->getKeyCode(language, false), one.plain) << language;
            EXPECT_EQ(made->getKeyCode(language, true), one.shifted) << language;
        }
        EXPECT_EQ(made->getKeyIndex(false), one.index);
        EXPECT_EQ(made->getKeyIndex(true), one.shiftedIndex);
    }
}

// ---- its face

TEST_F(ZELKeyButtonFaceTest, shiftChangesTheFace)
{
    struct Case
    {
        const char* element;
        const char* lang2;
        short language;
        std::string shifted;
        std::string plain;
    };
    const char* const both = "code='61' code2='41'";
    const char* const all = "title='x' title2='y' code='3141' code2='3142'";
    const std::vector<Case> cases{
        {both, "", first, "A", "a"},
        {both, all, first, "A", "a"},
        {both, all, second, "y", "x"},
        {both, all, 3, "A", "a"},
        {both, all, 0, "A", "a"},
        // not in the second language: as in the first one
        {both, "", second, "A", "a"},
        {both, "title='x' title2='y' code2='3142'", second, "A", "a"},
        // titles of the second language are shown also when there are none
        {both, "code='3141' code2='3142'", second, "", ""},
        {"", all, second, "y", "x"},
        // a code shows its lowest byte
        {"code='162' code2='AC41'", "", first, "A", "b"},
        {"code='E9' code2='C9'", "", first, byte(0xC9), byte(0xE9)},
        {"code='AC00' code2='100'", "", first, byte(0), byte(0)},
        {"code2='41'", "", first, "A", byte(0xFF)},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(std::string(one.element) + " / " + one.lang2);
        Key* const made = keyWith(one.element, one.lang2);
        EXPECT_EQ(paints(made, [&] { made->setShiftMode(one.language, true); }), 1);
        EXPECT_EQ(made->getTitle(), one.shifted);
        EXPECT_EQ(paints(made, [&] { made->setShiftMode(one.language, false); }), 1);
        EXPECT_EQ(made->getTitle(), one.plain);
    }
}

TEST_F(ZELKeyButtonFaceTest, aKeyWithoutAShiftedCodeKeepsItsFace)
{
    struct Case
    {
        const char* element;
        const char* lang2;
        short language;
    };
    const std::vector<Case> cases{
        {"code='61'", "", first},
        {"", "", first},
        {"code='61'", "", second},
        {"code='61'", "title='x' title2='y' code='3141' code2='3142'", first},
        {"code='61' code2='41'", "title='x' title2='y' code='3141' index2='7'", second},
        {"code='61'", "title='x' title2='y' code2='3142'", second},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(std::string(one.element) + " / " + one.lang2);
        Key* const made = keyWith(one.element, one.lang2);
        log().startHere();
        for (const bool shift : {true, false})
            EXPECT_EQ(paints(made, [&] { made->setShiftMode(one.language, shift); }), 0);
        EXPECT_EQ(made->getTitle(), "T");
        EXPECT_TRUE(log().lines().empty());
    }
}

TEST_F(ZELKeyButtonFaceTest, tellsTheLogOfTheShift)
{
    Key* const made = key();
    log().startHere();
    made->setShiftMode(first, true);
    made->setShiftMode(first, false);
    made->setShiftMode(second, true);
    made->setShiftMode(second, false);
    EXPECT_EQ(log().texts(), (std::vector<std::string>{"[D] [setShiftMode] DEFAULT_LANG A",
                                                       "[D] [setShiftMode] DEFAULT_LANG a",
                                                       "[D] setShiftMode::SECOND_LANG\n",
                                                       "[D] setShiftMode::SECOND_LANG\n"}));
    EXPECT_EQ(log().lines()[0].identity, "QTPANFx ZELKeyButton   ");
    EXPECT_EQ(log().lines()[0].priority, LOG_DEBUG);
}

TEST_F(ZELKeyButtonFaceTest, tellsTheLogTheByteOfTheFace)
{
    Key* const made = keyWith("code='100' code2='E9'", "");
    log().startHere();
    made->setShiftMode(first, true);
    made->setShiftMode(first, false);
    EXPECT_EQ(log().texts(), (std::vector<std::string>{"[D] [setShiftMode] DEFAULT_LANG \xE9",
                                                       "[D] [setShiftMode] DEFAULT_LANG "}));
}

TEST_F(ZELKeyButtonFaceTest, theLanguageChangesTheFace)
{
    struct Case
    {
        const char* element;
        const char* lang2;
        short language;
        std::string face;
    };
    const std::vector<Case> cases{
        {"code='61' code2='41'", "", first, "a"},
        {"code='162'", "", first, "b"},
        {"code='AC00'", "", first, byte(0)},
        {"", "", first, byte(0xFF)},
        {"", "title='x' code='3141'", first, byte(0xFF)},
        {"code='61'", "title='x' title2='y' code='3141' code2='3142'", second, "x"},
        {"", "title='\xE3\x85\x81' code='3141'", second, hangul},
        // no title: the lowest byte of the code, whatever that shows
        {"code='61'", "code='3141'", second, "A"},
        {"code='61'", "title2='y' code='3142' code2='3141'", second, "B"},
        {"code='61'", "title='' code='AC00'", second, byte(0)},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(std::string(one.element) + " / " + one.lang2);
        Key* const made = keyWith(one.element, one.lang2);
        log().startHere();
        EXPECT_EQ(paints(made, [&] { made->changeKeyTitle(one.language); }), 1);
        EXPECT_EQ(made->getTitle(), one.face);
        EXPECT_TRUE(log().lines().empty());
    }
}

TEST_F(ZELKeyButtonFaceTest, aLanguageThatTheKeyHasNotKeepsTheFace)
{
    Key* const plain = keyWith("code='61' code2='41'", "");
    EXPECT_EQ(paints(plain, [&] { plain->changeKeyTitle(second); }), 0);
    EXPECT_EQ(plain->getTitle(), "T");
    Key* const titled = keyWith("code='61'", "title='x' code2='3142'");
    EXPECT_EQ(paints(titled, [&] { titled->changeKeyTitle(second); }), 0);
    EXPECT_EQ(titled->getTitle(), "T");
    Key* const whole = keyWith("code='61'", "title='x' code='3141'");
    for (const short language : std::vector<short>{0, 3, -1, 258}) {
        EXPECT_EQ(paints(whole, [&] { whole->changeKeyTitle(language); }), 0) << language;
        EXPECT_EQ(whole->getTitle(), "T") << language;
    }
}

TEST_F(ZELKeyButtonFaceTest, paintsItsFace)
{
    Key* const made = key(full, "<lang2 title='" + hangul + "' code='3141'/>");
    EXPECT_TRUE(shows(made, faced(QStringLiteral("a"))));
    made->changeKeyTitle(second);
    EXPECT_TRUE(shows(made, faced(QString::fromUtf8(hangul.c_str()))));
    made->setShiftMode(first, true);
    EXPECT_TRUE(shows(made, faced(QStringLiteral("A"))));
    Touch::press(made);
    EXPECT_TRUE(shows(made, faced(QStringLiteral("A"), Qt::blue, "pressed", Qt::red)));
}

TEST_F(ZELKeyButtonFaceTest, aByteThatIsNoLetterShowsAsOne)
{
    Key* const made = keyWith("style='normal'", "");
    made->changeKeyTitle(first);
    EXPECT_TRUE(shows(made, faced(QString(QChar(QChar::ReplacementCharacter)))));
    Key* const zero = keyWith("style='normal' code='AC00'", "");
    zero->changeKeyTitle(first);
    EXPECT_TRUE(shows(zero, filled(size, Qt::green)));
}

TEST_F(ZELKeyButtonFaceTest, withoutAStyleShowsNoFace)
{
    EXPECT_TRUE(shows(key("title='a' pressstyle='pressed'"), filled(size, Qt::green)));
}
