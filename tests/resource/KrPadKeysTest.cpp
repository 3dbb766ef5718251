#include "resource/HangulJudge.h"
#include "resource/KrPadProbe.h"
#include "support/LogCapture.h"

#include <climits>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <vector>

// What a reader of the screen sees, key by key.

using namespace PANFx::Testing;

namespace {

const char* const stateNames[] = {"", "CHO", "JOONG", "JONG1", "JONG2", "JONG3"};

/** Each key's text and state: "하 JONG1; 한 JONG2". A text before the keys counts as typed. */
std::string steps(const std::u16string& keys, const std::u16string& typedBefore = u"")
{
    KrPadProbe pad;
    HangulJudge judge;
    for (const char16_t character : typedBefore)
        judge.take(hangulKey(character));
    pad.type(typedBefore);
    std::ostringstream told;
    for (const char16_t character : keys) {
        const std::u16string shown = pad.type({character});
        judge.take(hangulKey(character));
        EXPECT_EQ(pad.state().told(), judge.told());
        told << (told.tellp() > 0 ? "; " : "") << (shown.empty() ? "empty" : utf8(shown)) << " "
             << stateNames[pad.m_nFlag];
    }
    return told.str();
}

std::string shown(const std::u16string& keys)
{
    return utf8(KrPadProbe().type(keys));
}

struct Row
{
    const char16_t* before; // keys that lead to the state
    const char16_t* key;
    const char* expected;
};

void expectRows(const std::vector<Row>& rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(steps(row.key, row.before), row.expected) << utf8(row.before) << utf8(row.key);
}

} // namespace

TEST(KrPadKeys, composesTheWorkedSequences)
{
    expectRows({
        {u"", u"ㅎㅏㄴㄱㅡㄹ", "ㅎ JOONG; 하 JONG1; 한 JONG2; 한ㄱ JOONG; 한그 JONG1; 한글 JONG2"},
        {u"", u"ㄷㅏㄹㄱㅏ", "ㄷ JOONG; 다 JONG1; 달 JONG2; 닭 JONG3; 달가 JONG1"},
        {u"", u"ㄱㅏㅂㅅㅏ", "ㄱ JOONG; 가 JONG1; 갑 JONG2; 값 JONG3; 갑사 JONG1"},
        {u"", u"ㄱㅗㅏㄴ", "ㄱ JOONG; 고 JONG1; 과 JONG1; 관 JONG2"},
        {u"", u"ㄱㅏㄱㅅ", "ㄱ JOONG; 가 JONG1; 각 JONG2; 각ㅅ JOONG"},
        {u"", u"ㄱㅏㄸ", "ㄱ JOONG; 가 JONG1; 가ㄸ JOONG"},
        {u"", u"ㅗㅏㅏ", "ㅗ CHO; ㅘ CHO; ㅘㅏ CHO"},
        {u"", u"ㅏㄱㅏㅏ", "ㅏ CHO; ㅏㄱ JOONG; ㅏ가 JONG1; ㅏ가ㅏ CHO"},
        {u"ㄷㅏㄹ", u"ㄱ<<<<", "닭 JONG3; 달 JONG2; 다 JONG1; ㄷ JOONG; empty CHO"},
        {u"ㄱㅗㅏ", u"ㄴ<<<<", "관 JONG2; 과 JONG1; 고 JONG1; ㄱ JOONG; empty CHO"},
    });
}

TEST(KrPadKeys, goesEachWayFromEachState)
{
    expectRows({
        {u"", u"ㄱ", "ㄱ JOONG"},           // a consonant with nothing shown
        {u"ㅏ", u"ㄱ", "ㅏㄱ JOONG"},       // and behind a lone vowel
        {u"", u"ㅏ", "ㅏ CHO"},             // the first vowel
        {u"ㅗ", u"ㅏ", "ㅘ CHO"},           // one that joins it
        {u"ㅏ", u"ㅗ", "ㅏㅗ CHO"},         // one that does not
        {u"ㅗㅏ", u"ㅣ", "ㅘㅣ CHO"},       // a third one
        {u"ㄱ", u"ㅏ", "가 JONG1"},         // a vowel behind a consonant
        {u"ㄱ", u"ㄱ", "ㄱㄱ JOONG"},       // a second consonant
        {u"ㄱㅜ", u"ㅓ", "궈 JONG1"},       // a vowel that joins
        {u"ㄱㅓ", u"ㅜ", "거ㅜ CHO"},       // one that does not
        {u"ㄱㅜㅓ", u"ㅣ", "궈ㅣ CHO"},     // a third one
        {u"ㄱㅏ", u"ㄴ", "간 JONG2"},       // a final
        {u"ㄱㅏ", u"ㅃ", "가ㅃ JOONG"},     // a consonant that is none
        {u"ㄱㅏㄴ", u"ㅈ", "갅 JONG3"},     // two finals that join
        {u"ㄱㅏㄴ", u"ㄱ", "간ㄱ JOONG"},   // two that do not
        {u"ㄱㅏㄴ", u"ㅗ", "가노 JONG1"},   // the final moves on
        {u"ㄱㅏㄴㅈ", u"ㄱ", "갅ㄱ JOONG"}, // a consonant behind two finals
        {u"ㄱㅏㄴㅈ", u"ㅗ", "간조 JONG1"}, // the second final moves on
    });
}

TEST(KrPadKeys, takesBackEachStepOfEachState)
{
    expectRows({
        {u"ㅗㅏ", u"<", "ㅗ CHO"},
        {u"ㅏ", u"<", "empty CHO"},
        {u"ㄱ", u"<", "empty CHO"},
        {u"ㄱㅏ", u"<", "ㄱ JOONG"},
        {u"ㄱㅗㅏ", u"<", "고 JONG1"},
        {u"ㄱㅏㄴ", u"<", "가 JONG1"},
        {u"ㄱㅏㄴㅎ", u"<", "간 JONG2"},
        // what was taken back can be typed anew
        {u"ㅗㅏ<", u"ㅣ", "ㅚ CHO"},
        {u"ㄱㅏ<", u"ㅗ", "고 JONG1"},
        {u"ㄱㅗㅏ<", u"ㅣ", "괴 JONG1"},
        {u"ㄱㅗㅏㄴ<", u"ㅏ", "과ㅏ CHO"},
        {u"ㄱㅏㄴ<", u"ㅂ", "갑 JONG2"},
        {u"ㄱㅏㄴㅎ<", u"ㅈ", "갅 JONG3"},
        {u"ㄱㅏㄴㅎ<", u"ㅏ", "가나 JONG1"},
    });
}

TEST(KrPadKeys, movesAFinalOn)
{
    EXPECT_EQ(shown(u"ㄱㅏㄴㅏ"), "가나");
    EXPECT_EQ(shown(u"ㄷㅏㄹㄱㅏ"), "달가");
    EXPECT_EQ(shown(u"ㄱㅏㄲㅏ"), "가까");
    EXPECT_EQ(shown(u"ㅎㅏㄹㅎㅗㅏㄴ"), "할환");
}

TEST(KrPadKeys, makesEachCompoundFinalAndTakesItApart)
{
    const struct
    {
        const char16_t* finals;
        const char* together;
        const char* apart;
    } rows[] = {{u"ㄴㅈ", "갅", "간자"}, {u"ㄴㅎ", "갆", "간하"}, {u"ㄹㄱ", "갉", "갈가"},
                {u"ㄹㅁ", "갊", "갈마"}, {u"ㄹㅂ", "갋", "갈바"}, {u"ㄹㅅ", "갌", "갈사"},
                {u"ㄹㅌ", "갍", "갈타"}, {u"ㄹㅍ", "갎", "갈파"}, {u"ㄹㅎ", "갏", "갈하"},
                {u"ㅂㅅ", "값", "갑사"}};
    for (const auto& row : rows) {
        const std::u16string keys = std::u16string(u"ㄱㅏ") + row.finals;
        EXPECT_EQ(shown(keys), row.together);
        EXPECT_EQ(shown(keys + u"ㅏ"), row.apart);
    }
}

TEST(KrPadKeys, neverMakesAFinalOfGiyeokAndSiot)
{
    EXPECT_EQ(shown(u"ㄱㅏㄱㅅ"), "각ㅅ");
    EXPECT_EQ(shown(u"ㄱㅏㄱㅅㅏ"), "각사");
}

TEST(KrPadKeys, makesThatFinalForAKeyThatNoKeyboardHas)
{
    KrPadProbe pad;
    pad.type(u"ㄱㅏㄲ");
    EXPECT_EQ(pad.getCompleteText(u'ㅅ', 19).toStdString(), "갃");
    EXPECT_EQ(pad.m_nFlag, 5);
    EXPECT_EQ(pad.getCompleteText(8, 0).toStdString(), "갂");
}

TEST(KrPadKeys, leavesThreeConsonantsOutOfFinals)
{
    EXPECT_EQ(steps(u"ㄸ", u"ㄱㅏ"), "가ㄸ JOONG");
    EXPECT_EQ(steps(u"ㅃ", u"ㄱㅏ"), "가ㅃ JOONG");
    EXPECT_EQ(steps(u"ㅉ", u"ㄱㅏ"), "가ㅉ JOONG");
    EXPECT_EQ(shown(u"ㄱㅏㄸㅏ"), "가따");
}

TEST(KrPadKeys, joinsNothingToALoneVowelButAVowel)
{
    EXPECT_EQ(shown(u"ㅏㄱ"), "ㅏㄱ");
    EXPECT_EQ(steps(u"ㅏ", u"ㅏ"), "ㅏㅏ CHO");
    KrPadProbe pad;
    pad.type(u"ㅏㅏ");
    EXPECT_EQ(pad.m_strText.toStdString(), "ㅏ");
    EXPECT_EQ(pad.m_chComposing, u'ㅏ');
    EXPECT_EQ(shown(u"ㅏㅗㅏ"), "ㅏㅘ");
}

TEST(KrPadKeys, joinsNoThirdVowel)
{
    EXPECT_EQ(steps(u"ㅏ", u"ㄱㅗㅏ"), "과ㅏ CHO");
    KrPadProbe pad;
    pad.type(u"ㄱㅗㅏㅏ");
    EXPECT_EQ(pad.m_strText.toStdString(), "과");
}

TEST(KrPadKeys, commitsACompoundFinalBehindWhichAConsonantComes)
{
    EXPECT_EQ(steps(u"ㄱ", u"ㄷㅏㄹㄱ"), "닭ㄱ JOONG");
    EXPECT_EQ(shown(u"ㄷㅏㄹㄱㄱㅏ"), "닭가");
}

TEST(KrPadKeys, keepsTheVowelsOfALonePairBehindAConsonant)
{
    EXPECT_EQ(shown(u"ㅗㅏㄱㅗ"), "ㅘ고");
    EXPECT_EQ(steps(u"ㅏ", u"ㅗㅏㄱㅗ"), "ㅘ고ㅏ CHO");
    KrPadProbe pad;
    pad.type(u"ㅗㅏㄱㅗ");
    EXPECT_EQ(pad.m_nJoong2, 0);
    EXPECT_EQ(pad.m_nJoong1, 8);
    EXPECT_EQ(steps(u"<<<<", u"ㅗㅏㄱㅏ"), "ㅘ가 JONG1; ㅘㄱ JOONG; ㅘ CHO; empty CHO");
    // a second consonant forgets them
    EXPECT_EQ(shown(u"ㅗㅏㄱㄱㅗㅏ"), "ㅘㄱ과");
}

TEST(KrPadKeys, keepsThemAsTheConsonantComes)
{
    KrPadProbe pad;
    pad.type(u"ㅗㅏ");
    HangulJudge expected = pad.state();
    expected.text = u"ㅘ";
    expected.cho = 0;
    expected.composing = u'ㄱ';
    expected.flag = 2;
    pad.type(u"ㄱ");
    EXPECT_EQ(pad.state().told(), expected.told());
}

TEST(KrPadKeys, changesNoVowelFieldForAConsonantOnEmptyGround)
{
    KrPadProbe pad;
    pad.m_nJoong1 = 8;
    pad.m_nJoong2 = 0;
    pad.m_nJoong = 9;
    pad.m_nJong2 = 4;
    HangulJudge expected = pad.state();
    expected.cho = 0;
    expected.composing = u'ㄱ';
    expected.flag = 2;
    pad.type(u"ㄱ");
    EXPECT_EQ(pad.state().told(), expected.told());
}

TEST(KrPadKeys, neverReachesIntoCommittedTextWhileItComposes)
{
    EXPECT_EQ(steps(u"<<<", u"ㅎㅏㄴㅏ"), "하ㄴ JOONG; 하 CHO; empty CHO");
    EXPECT_EQ(steps(u"<<<", u"한글"), "한 CHO; empty CHO; empty CHO");
}

TEST(KrPadKeys, changesNothingElseWhenItTakesBackCommittedText)
{
    KrPadProbe pad;
    pad.m_strText = QStringLiteral("ab");
    pad.m_nFlag = 4;
    pad.m_nCho = 3;
    pad.m_nJoong2 = 5;
    HangulJudge expected = pad.state();
    expected.text = u"a";
    pad.backspace();
    EXPECT_EQ(pad.state().told(), expected.told());
    pad.backspace();
    pad.backspace();
    expected.text = u"";
    EXPECT_EQ(pad.state().told(), expected.told());
    KrPadProbe empty;
    empty.backspace();
    EXPECT_TRUE(empty.m_strText.isNull());
}

// ---- space and other keys

TEST(KrPadKeys, endsASyllableWithASpace)
{
    const HangulJudge reset;
    for (const char16_t* keys : {u"", u"ㅏ", u"ㅗㅏ", u"ㄱ", u"ㄱㅏ", u"ㄱㅏㄴ", u"ㄱㅏㄴㅎ"}) {
        KrPadProbe pad;
        HangulJudge expected;
        expected.text = pad.type(keys) + u" ";
        pad.space();
        EXPECT_EQ(pad.state().told(), expected.told());
    }
    EXPECT_EQ(steps(u"  ", u"a"), "a  CHO; a   CHO");
    EXPECT_EQ(shown(u"ㅎㅏㄴ ㅏ"), "한 ㅏ");
}

TEST(KrPadKeys, takesBackspaceAndSpaceWhateverTheirIndex)
{
    for (const int index : {-1, 0, 9, 19, INT_MAX, INT_MIN}) {
        KrPadProbe pad;
        pad.type(u"ㅎㅏㄴ");
        EXPECT_EQ(pad.getCompleteText(8, index).toStdString(), "하");
        EXPECT_EQ(pad.getCompleteText(0x20, index).toStdString(), "하 ");
    }
}

TEST(KrPadKeys, commitsASyllableTogetherWithAnotherKey)
{
    for (const char16_t* keys : {u"ㅏ", u"ㅗㅏ", u"ㄱ", u"ㄱㅏ", u"ㅎㅏㄴ", u"ㄱㅏㄴㅎ"}) {
        KrPadProbe pad;
        HangulJudge expected;
        expected.text = pad.type(keys) + u"7";
        EXPECT_EQ(pad.getCompleteText('7', 3).toStdU16String(), expected.text);
        EXPECT_EQ(pad.state().told(), expected.told());
    }
    EXPECT_EQ(steps(u"ㄴㅏ", u"ㅎㅏㄴ7"), "한7ㄴ JOONG; 한7나 JONG1");
    EXPECT_EQ(steps(u"<", u"ㅎㅏㄴ7"), "한 CHO");
}

TEST(KrPadKeys, keeps16BitsOfAnotherKeyOnlyWhileItComposesNothing)
{
    const struct
    {
        int code;
        int idle;
        int composing;
    } rows[] = {{0x41, 0x41, 0x41},      {0xE9, 0xE9, 0xE9},     {0x416, 0x416, 0x16},
                {0x3130, 0x3130, 0x30},  {0x3164, 0x3164, 0x64}, {0xAC00, 0xAC00, 0},
                {0x1F641, 0xF641, 0x41}, {-1, 0xFFFF, 0xFF},     {0, 0, 0},
                {0x10008, 8, 8},         {0x10020, 0x20, 0x20},  {INT_MIN, 0, 0},
                {0x13131, 0x3131, 0x31}};
    for (const auto& row : rows) {
        KrPadProbe idle;
        HangulJudge expected;
        idle.m_nJoong1 = 3; // is forgotten too
        idle.getCompleteText(row.code, 0);
        expected.text = {static_cast<char16_t>(row.idle)};
        EXPECT_EQ(idle.state().told(), expected.told());
        KrPadProbe composing;
        composing.type(u"ㅎㅏ");
        composing.getCompleteText(row.code, 0);
        expected.text = {u'하', static_cast<char16_t>(row.composing)};
        EXPECT_EQ(composing.state().text, expected.text);
        EXPECT_EQ(composing.state().told(), expected.told());
    }
}

TEST(KrPadKeys, takesTheFirstAndTheLastLetterAsLetters)
{
    KrPadProbe pad;
    EXPECT_EQ(pad.getCompleteText(0x3131, 0).toStdString(), "ㄱ");
    EXPECT_EQ(pad.m_nFlag, 2);
    EXPECT_EQ(pad.getCompleteText(0x3163, 20).toStdString(), "기");
    EXPECT_EQ(pad.m_nFlag, 3);
    EXPECT_EQ(KrPadProbe().getCompleteText(0x314E, 18).toStdString(), "ㅎ");
}

// ---- indexes that no keyboard has

TEST(KrPadKeys, showsLoneLettersByCodeAndSyllablesByIndex)
{
    KrPadProbe pad;
    EXPECT_EQ(pad.getCompleteText(u'ㅎ', 0).toStdString(), "ㅎ");
    EXPECT_EQ(pad.getCompleteText(u'ㅣ', 0).toStdString(), "가");
    EXPECT_EQ(pad.getCompleteText(8, -1).toStdString(), "ㄱ");
}

TEST(KrPadKeys, wrapsASyllableOfABadIndexTo16Bits)
{
    const std::pair<int, ushort> rows[] = {
        {19, 0xD7A4}, {37, 0x00FC}, {-1, 0xA9B4}, {INT_MAX, 0xA9B4}, {INT_MIN, 0xAC00}};
    for (const auto& [index, character] : rows) {
        KrPadProbe pad;
        pad.getCompleteText(u'ㄱ', index);
        const QString text = pad.getCompleteText(u'ㅏ', 0);
        ASSERT_EQ(text.length(), 1);
        EXPECT_EQ(text.at(0).unicode(), character) << index;
    }
}

TEST(KrPadKeys, doesWithAnyCodeAndIndexWhatTheRulesSay)
{
    // letters, controls and numbers around and far beyond the tables
    const std::vector<int> codes = {8,      8,      0x20,   0x30,   0xE9,    0x3130, 0x3131,
                                    0x3132, 0x3134, 0x3139, 0x3142, 0x3145,  0x314E, 0x314F,
                                    0x3157, 0x315C, 0x3161, 0x3163, 0x3164,  0xAC00, 0,
                                    -1,     7,      9,      0x313C, INT_MAX, INT_MIN};
    const std::vector<int> indexes = {-1, 0,  1,  2,  4,  5,  7,  8,   9,       12,      13,
                                      16, 17, 18, 19, 20, 21, 27, 100, INT_MAX, INT_MIN, -2};
    std::mt19937 random(7);
    int states[6] = {};
    for (int sequence = 0; sequence < 20000; ++sequence) {
        KrPadProbe pad;
        HangulJudge judge;
        std::string typed;
        for (int i = 0; i < 12; ++i) {
            HangulKey key{codes[random() % codes.size()], indexes[random() % indexes.size()]};
            if (random() % 4 != 0) // most keys are letters, else nothing is ever composed
                key.code = static_cast<int>(0x3131 + random() % 0x33);
            typed += std::to_string(key.code) + "/" + std::to_string(key.index) + " ";
            const QString text = pad.getCompleteText(key.code, key.index);
            judge.take(key);
            ASSERT_TRUE(pad.agrees(judge))
                << typed << pad.state().told() << "; the rules say " << judge.told();
            ASSERT_TRUE(KrPadProbe::holds(text, judge.shown())) << typed;
            ++states[judge.flag];
        }
    }
    for (int state = 1; state < 6; ++state)
        EXPECT_GT(states[state], 100) << state;
    EXPECT_TRUE(LogCapture::instance().lines().empty()); // whatever comes, it tells nothing
}

TEST(KrPadKeys, composesNothingOnlyInTheFirstState)
{
    std::mt19937 random(11);
    const std::u16string keys = u"ㄱㄸㄹㅅㅏㅗㅣ< 7";
    KrPadProbe pad;
    for (int i = 0; i < 20000; ++i) {
        pad.type({keys[random() % keys.size()]});
        ASSERT_TRUE(pad.m_chComposing != 0 || pad.m_nFlag == 1) << pad.state().told();
    }
}
