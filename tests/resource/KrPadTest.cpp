#include "resource/KrPad.h"

#include "resource/HangulJudge.h"
#include "resource/KrPadProbe.h"
#include "support/VirtualSlot.h"

#include <algorithm>
#include <climits>
#include <functional>
#include <gtest/gtest.h>
#include <type_traits>
#include <utility>
#include <vector>

// The composer's operations, one by one, over the alphabet of HangulLetters.

using namespace PANFx::Testing;
using PANFx::Resource::KrPad;
using PANFx::Resource::LangPad;

namespace {

const HangulJudge fresh;

// as if a syllable with everything in it were under composition
void fill(KrPadProbe& pad)
{
    pad.m_strText = QStringLiteral("text");
    pad.m_nCho = 1;
    pad.m_nJoong1 = 2;
    pad.m_nJoong2 = 3;
    pad.m_nJong1 = 4;
    pad.m_nJong2 = 5;
    pad.m_nJoong = 6;
    pad.m_nJong = 7;
    pad.m_nFlag = 5;
    pad.m_chComposing = 0xAC01;
}

} // namespace

TEST(KrPad, holdsItsFieldsInTheirOrder)
{
    const KrPadProbe pad;
    const std::vector<const void*> fields{&pad.m_nCho,   &pad.m_nJoong1, &pad.m_nJoong2,
                                          &pad.m_nJong1, &pad.m_nJong2,  &pad.m_nJoong,
                                          &pad.m_nJong,  &pad.m_nFlag,   &pad.m_chComposing};
    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
}

TEST(KrPad, isALangPadWithAllItsOperationsInTheirOrder)
{
    EXPECT_TRUE((std::is_base_of_v<LangPad, KrPad>));
    using Feed = QString (KrPad::*)(int, int);
    using Read = QString (KrPad::*)();
    const std::intptr_t table[] = {
        slot(&KrPad::clear),
        slot(static_cast<Feed>(&KrPad::getCompleteText)),
        slot(static_cast<Read>(&KrPad::getCompleteText)),
        slot(&KrPad::backspace),
        slot(&KrPad::space),
        slot(&KrPad::setCompleteText),
    };
    std::intptr_t place = 2; // a virtual destructor takes two places
    for (const std::intptr_t found : table)
        EXPECT_EQ(found / slotSize, place++);
}

TEST(KrPad, startsEmpty)
{
    KrPadProbe pad;
    EXPECT_TRUE(pad.m_strText.isNull());
    EXPECT_TRUE(pad.getCompleteText().isNull());
    EXPECT_EQ(pad.state().told(), fresh.told());
    EXPECT_EQ(pad.m_nFlag, 1);
    EXPECT_EQ(pad.m_nJong, 0);
    EXPECT_EQ(pad.m_nCho, -1);
}

TEST(KrPad, clearsEverything)
{
    KrPadProbe pad;
    pad.clear();
    EXPECT_TRUE(pad.m_strText.isNull());
    fill(pad);
    pad.clear();
    EXPECT_TRUE(pad.m_strText.isNull());
    EXPECT_EQ(pad.state().told(), fresh.told());
}

TEST(KrPad, forgetsLettersButNeitherStateNorCharacter)
{
    KrPadProbe pad;
    fill(pad);
    pad.clearPhoneme();
    HangulJudge expected;
    expected.text = u"text";
    expected.flag = 5;
    expected.composing = 0xAC01;
    EXPECT_EQ(pad.state().told(), expected.told());
}

TEST(KrPad, setsTheFirstStateAndNothingElse)
{
    KrPadProbe pad;
    fill(pad);
    HangulJudge expected = pad.state();
    expected.flag = 1;
    pad.initFlag();
    EXPECT_EQ(pad.state().told(), expected.told());
}

// ---- the alphabet

TEST(KrPad, countsEveryCodeUpToTheLastConsonantAsAConsonant)
{
    const KrPad pad;
    for (const int code : {INT_MIN, -1, 0, 8, 0x3130, 0x3131, 0x314D, 0x314E})
        EXPECT_TRUE(pad.isJaeum(code)) << code;
    for (const int code : {0x314F, 0x3150, 0x3163, 0x3164, 0xAC00, INT_MAX})
        EXPECT_FALSE(pad.isJaeum(code)) << code;
}

TEST(KrPad, knowsCharacterAndFinalOfEachConsonant)
{
    const struct
    {
        char16_t letter;
        int code;
        int final;
    } rows[] = {
        {u'ㄱ', 0x3131, 1},  {u'ㄲ', 0x3132, 2},  {u'ㄴ', 0x3134, 4},  {u'ㄷ', 0x3137, 7},
        {u'ㄸ', 0x3138, 0},  {u'ㄹ', 0x3139, 8},  {u'ㅁ', 0x3141, 16}, {u'ㅂ', 0x3142, 17},
        {u'ㅃ', 0x3143, 0},  {u'ㅅ', 0x3145, 19}, {u'ㅆ', 0x3146, 20}, {u'ㅇ', 0x3147, 21},
        {u'ㅈ', 0x3148, 22}, {u'ㅉ', 0x3149, 0},  {u'ㅊ', 0x314A, 23}, {u'ㅋ', 0x314B, 24},
        {u'ㅌ', 0x314C, 25}, {u'ㅍ', 0x314D, 26}, {u'ㅎ', 0x314E, 27},
    };
    const KrPad pad;
    int index = 0;
    for (const auto& row : rows) {
        EXPECT_EQ(row.letter, row.code);
        EXPECT_EQ(pad.getJaeumCode(index), row.code) << index;
        EXPECT_EQ(pad.getJongsungIndex(index), row.final) << index;
        EXPECT_EQ(HangulJudge::finalOf(index), row.final) << index;
        ++index;
    }
    EXPECT_EQ(index, 19);
}

TEST(KrPad, hasNoFinalForAnythingElse)
{
    const KrPad pad;
    for (const int index : {-1, -2, 19, 20, 27, 1000, INT_MAX, INT_MIN})
        EXPECT_EQ(pad.getJongsungIndex(index), 0) << index;
}

TEST(KrPad, countsCharactersOnPastTheConsonants)
{
    const KrPad pad;
    EXPECT_EQ(pad.getJaeumCode(19), 0x314F);
    EXPECT_EQ(pad.getJaeumCode(100), 0x31A0);
    EXPECT_EQ(pad.getJaeumCode(-1), -1);
    for (const int index : {-2, -100, INT_MIN})
        EXPECT_EQ(pad.getJaeumCode(index), 0x3131) << index;
    EXPECT_EQ(pad.getJaeumCode(INT_MAX), INT_MIN + 0x313B); // wraps
}

TEST(KrPad, knowsTheCharacterOfEachVowel)
{
    const KrPad pad;
    const std::u16string vowels = u"ㅏㅐㅑㅒㅓㅔㅕㅖㅗㅘㅙㅚㅛㅜㅝㅞㅟㅠㅡㅢㅣ";
    int index = 0;
    for (const char16_t vowel : vowels)
        EXPECT_EQ(pad.getMoeumCode(index++), vowel);
    EXPECT_EQ(index, 21);
    EXPECT_EQ(pad.getMoeumCode(21), 0x3164);
    EXPECT_EQ(pad.getMoeumCode(-1), -1);
    EXPECT_EQ(pad.getMoeumCode(-2), 0x314D);
    EXPECT_EQ(pad.getMoeumCode(INT_MAX), INT_MIN + 0x314E); // wraps
}

// ---- joining

TEST(KrPad, joinsTheSevenVowelPairsAndNoOther)
{
    const std::vector<std::vector<int>> pairs = {
        {8, 0, 9}, {8, 1, 10}, {8, 20, 11}, {13, 4, 14}, {13, 5, 15}, {13, 20, 16}, {18, 20, 19}};
    int joined = 0;
    for (int first = -2; first <= 22; ++first) {
        for (int second = 0; second <= 22; ++second) {
            KrPadProbe pad;
            fill(pad);
            pad.m_nJoong1 = first;
            pad.m_nJoong2 = second;
            HangulJudge expected = pad.state();
            int result = 0;
            for (const auto& pair : pairs) {
                if (pair[0] == first && pair[1] == second) {
                    expected.joong = pair[2];
                    result = 1;
                    ++joined;
                }
            }
            EXPECT_EQ(pad.combineMoeum(), result) << first << " " << second;
            EXPECT_EQ(pad.state().told(), expected.told());
        }
    }
    EXPECT_EQ(joined, 7);
}

TEST(KrPad, takesAVowelWithoutASecondOneAsItIs)
{
    for (const int vowel : {-1, 0, 9, 20, 21, INT_MAX}) {
        KrPadProbe pad;
        fill(pad);
        pad.m_nJoong1 = vowel;
        pad.m_nJoong2 = -1;
        EXPECT_EQ(pad.combineMoeum(), 1);
        EXPECT_EQ(pad.m_nJoong, vowel);
        EXPECT_EQ(pad.m_nJoong1, vowel);
    }
}

TEST(KrPad, joinsTheElevenPairsOfFinalsAndNoOther)
{
    const std::vector<std::vector<int>> pairs = {{1, 19, 3},  {2, 12, 5},  {2, 18, 6}, {5, 0, 9},
                                                 {5, 6, 10},  {5, 7, 11},  {5, 9, 12}, {5, 16, 13},
                                                 {5, 17, 14}, {5, 18, 15}, {7, 9, 18}};
    int joined = 0;
    for (int first = -2; first <= 28; ++first) {
        for (int second = 0; second <= 28; ++second) {
            KrPadProbe pad;
            fill(pad);
            pad.m_nJong1 = first;
            pad.m_nJong2 = second;
            HangulJudge expected = pad.state();
            int result = 0;
            for (const auto& pair : pairs) {
                if (pair[0] == first && pair[1] == second) {
                    expected.jong = pair[2];
                    result = 1;
                    ++joined;
                }
            }
            EXPECT_EQ(pad.combineJaeum(), result) << first << " " << second;
            EXPECT_EQ(pad.state().told(), expected.told());
        }
    }
    EXPECT_EQ(joined, 11);
}

TEST(KrPad, takesAFinalWithoutASecondOneAsItIs)
{
    const std::pair<int, int> rows[] = {{0, 1}, {2, 4}, {18, 27}, {4, 0}, {-1, 0}, {19, 0}};
    for (const auto& [consonant, final] : rows) {
        KrPadProbe pad;
        fill(pad);
        pad.m_nJong1 = consonant;
        pad.m_nJong2 = -1;
        EXPECT_EQ(pad.combineJaeum(), 1);
        EXPECT_EQ(pad.m_nJong, final) << consonant;
    }
}

TEST(KrPad, makesEachSyllable)
{
    KrPadProbe pad;
    int expected = 0xAC00;
    for (pad.m_nCho = 0; pad.m_nCho < 19; ++pad.m_nCho) {
        for (pad.m_nJoong = 0; pad.m_nJoong < 21; ++pad.m_nJoong) {
            for (pad.m_nJong = 0; pad.m_nJong < 28; ++pad.m_nJong)
                ASSERT_EQ(pad.combineHangle(), expected++);
        }
    }
    EXPECT_EQ(expected, 0xD7A4);
}

TEST(KrPad, wrapsASyllableTo16Bits)
{
    const struct
    {
        int cho;
        int joong;
        int jong;
        int syllable;
    } rows[] = {{37, 0, 0, 0x00FC},      {-1, 0, 0, 0xA9B4},
                {0, -1, 0, 0xABE4},      {0, 0, -1, 0xABFF},
                {-1, -1, 0, 0xA998},     {100000, 21, 28, 0xE5E8},
                {INT_MAX, 0, 0, 0xA9B4}, {INT_MIN, INT_MIN, INT_MIN, 0xAC00}};
    for (const auto& row : rows) {
        KrPadProbe pad;
        pad.m_nCho = row.cho;
        pad.m_nJoong = row.joong;
        pad.m_nJong = row.jong;
        EXPECT_EQ(pad.combineHangle(), row.syllable) << row.cho;
        EXPECT_EQ(HangulJudge::syllable(row.cho, row.joong, row.jong), row.syllable) << row.cho;
    }
}

// ---- text

TEST(KrPad, showsTheCharacterUnderCompositionBehindTheText)
{
    KrPadProbe pad;
    pad.m_strText = QStringLiteral("ab");
    EXPECT_EQ(pad.getCompleteText().toStdString(), "ab");
    pad.m_chComposing = u'한';
    EXPECT_EQ(pad.getCompleteText().toStdString(), "ab한");
    EXPECT_EQ(pad.m_strText.toStdString(), "ab");
}

TEST(KrPad, hasASetTextAsCommittedText)
{
    KrPadProbe pad;
    fill(pad);
    pad.setCompleteText(QStringLiteral("other"));
    HangulJudge expected;
    expected.text = u"other";
    EXPECT_EQ(pad.state().told(), expected.told());
}

TEST(KrPad, rebuildsNoCompositionFromASetText)
{
    KrPadProbe pad;
    pad.type(u"ㅎㅏㄴ");
    pad.setCompleteText(pad.getCompleteText());
    EXPECT_EQ(utf8(pad.type(u"ㅏ")), "한ㅏ"); // the final can't leave any more
    EXPECT_EQ(utf8(pad.type(u"<")), "한");
    EXPECT_EQ(utf8(pad.type(u"<")), "");
}

TEST(KrPad, callsItsVirtualOperations)
{
    class NotingPad : public KrPad
    {
    public:
        void clear() override
        {
            m_calls.emplace_back("clear");
            KrPad::clear();
        }
        void backspace() override { m_calls.emplace_back("backspace"); }
        void space() override { m_calls.emplace_back("space"); }
        std::vector<std::string> m_calls;
    };
    NotingPad pad;
    pad.setCompleteText(QStringLiteral("a"));
    EXPECT_EQ(pad.KrPad::getCompleteText(8, 0).toStdString(), "a");
    EXPECT_EQ(pad.KrPad::getCompleteText(0x20, 0).toStdString(), "a");
    EXPECT_EQ(pad.m_calls, (std::vector<std::string>{"clear", "backspace", "space"}));
}

// ---- letters without the keyboard's range

TEST(KrPad, doesNothingInAStateThatItDoesNotKnow)
{
    for (const int flag : {0, -1, 6, INT_MAX}) {
        KrPadProbe pad;
        fill(pad);
        pad.m_nFlag = flag;
        const HangulJudge before = pad.state();
        pad.makeHangle(u'ㄱ', 0);
        pad.makeHangle(u'ㅏ', 0);
        pad.backspace();
        EXPECT_EQ(pad.state().told(), before.told()) << flag;
    }
}

TEST(KrPad, takesAnyCodeAsALetterWhenToldTo)
{
    for (const int code : {0, 8, 0x20, 0x3130, 0x3164, 0x13131, -1, INT_MAX, INT_MIN}) {
        for (const char16_t* typed : {u"", u"ㅏ", u"ㄱ", u"ㄱㅏ", u"ㄱㅏㄴ", u"ㄱㅏㄴㅎ"}) {
            KrPadProbe pad;
            pad.type(typed);
            HangulJudge judge = pad.state();
            pad.makeHangle(code, 3);
            judge.takeLetter({code, 3});
            EXPECT_EQ(pad.state().told(), judge.told()) << code;
        }
    }
}
