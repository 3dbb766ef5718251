#include "resource/HangulJudge.h"
#include "resource/KrPadProbe.h"

#include <array>
#include <gtest/gtest.h>
#include <hangul.h>
#include <iostream>
#include <memory>
#include <random>
#include <vector>

// The composer beside libhangul's two-set keyboard, key by key until the two differ for the first
// time in a sequence. A difference is allowed only where the composer's own rules ask for it, and
// there it must come. From there on, and all the way for what libhangul can't tell, the rules as
// HangulJudge states them have the say.

using namespace PANFx::Testing;

namespace {

constexpr int longestOfAll = 4;
constexpr int longestOfFew = 6;
constexpr int randomSequences = 200000;
constexpr int longestAtRandom = 12;

struct TestKey
{
    HangulKey key;
    char16_t letter;
    int ascii; // on the two-set keyboard; 8 for backspace
};

const std::vector<TestKey>& keys()
{
    static const std::vector<TestKey> all = [] {
        const std::u16string letters =
            u"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎㅏㅐㅑㅒㅓㅔㅕㅖㅗㅛㅜㅠㅡㅣ<";
        const std::string ascii = "rRseEfaqQtTdwWczxvgkoiOjpuPhynbml\b";
        std::vector<TestKey> made;
        for (std::size_t i = 0; i < letters.size(); ++i)
            made.push_back({hangulKey(letters[i]), letters[i], ascii.at(i)});
        return made;
    }();
    return all;
}

/** The keys whose pairs, finals and leftovers meet most often. */
const std::vector<TestKey>& fewKeys()
{
    static const std::vector<TestKey> few = [] {
        const std::u16string letters = u"ㄱㄸㄹㅅㅏㅗㅣ<";
        std::vector<TestKey> made;
        for (const TestKey& key : keys()) {
            if (letters.find(key.letter) != std::u16string::npos)
                made.push_back(key);
        }
        return made;
    }();
    return few;
}

/** An editor around libhangul: the text that it committed, and what it is composing. */
class Libhangul
{
public:
    Libhangul()
        : m_context(hangul_ic_new("2"), hangul_ic_delete)
    {
        // two consonants without a vowel never make one letter
        hangul_ic_set_option(m_context.get(), HANGUL_IC_OPTION_NON_CHOSEONG_COMBI, false);
    }

    void reset()
    {
        hangul_ic_reset(m_context.get());
        m_text.clear();
    }

    void take(int ascii)
    {
        if (ascii != '\b') {
            m_taken = hangul_ic_process(m_context.get(), ascii) && m_taken;
            append(m_text, hangul_ic_get_commit_string(m_context.get()));
        } else if (!hangul_ic_backspace(m_context.get()) && !m_text.empty()) {
            m_text.pop_back();
        }
    }

    const std::u16string& text() const { return m_text; }

    std::u16string composing() const
    {
        std::u16string composing;
        append(composing, hangul_ic_get_preedit_string(m_context.get()));
        return composing;
    }

    /** False once a key was none of its letters. */
    bool hasTakenAll() const { return m_taken; }

private:
    static void append(std::u16string& text, const ucschar* from)
    {
        for (; *from != 0; ++from)
            text += static_cast<char16_t>(*from);
    }

    std::unique_ptr<HangulInputContext, decltype(&hangul_ic_delete)> m_context;
    std::u16string m_text;
    bool m_taken = true;
};

enum Difference {
    None,
    ClusterOfGiyeokAndSiot,      // the final ㄱ never joins ㅅ
    ForgottenPairKeepsVowel,     // the pair of an earlier lone vowel keeps a new one from joining
    ForgottenPairTakesBackspace, // and takes one backspace for itself
    Differences
};

const char* const told[Differences] = {"none", "final ㄱ and ㅅ stay apart",
                                       "a vowel that does not join because of an earlier pair",
                                       "a backspace that only forgets an earlier pair"};

/** What difference the composer's rules ask for at that key, with that held before it. */
Difference demanded(const HangulJudge& before, const TestKey& key)
{
    if (before.flag == 4 && before.jong == 1 && key.letter == u'ㅅ')
        return ClusterOfGiyeokAndSiot;
    if (!before.hasForgottenPair())
        return None;
    if (key.letter == u'<')
        return ForgottenPairTakesBackspace;
    const bool bVowel = key.letter >= u'ㅏ';
    return bVowel && HangulJudge::vowelOf(before.joong1, key.key.index) != -1
               ? ForgottenPairKeepsVowel
               : None;
}

/** What libhangul must be composing at that difference: the syllable as the rest of us know it. */
char16_t peerComposes(Difference difference, const HangulJudge& before, const TestKey& key)
{
    switch (difference) {
    case ClusterOfGiyeokAndSiot:
        return static_cast<char16_t>(HangulJudge::syllable(before.cho, before.joong, 3));
    case ForgottenPairKeepsVowel:
        return static_cast<char16_t>(HangulJudge::syllable(
            before.cho, HangulJudge::vowelOf(before.joong1, key.key.index), 0));
    default:
        return keys()[static_cast<std::size_t>(before.cho)].letter;
    }
}

class Comparison
{
public:
    /** One position in a sequence: both composers and whether libhangul still goes with us. */
    struct Place
    {
        KrPadProbe pad;
        HangulJudge judge;
        bool withPeer = true;
    };

    Libhangul& peer() { return m_peer; }

    /** Gives the key to the composer and its judge, and compares. */
    void step(Place& place, const TestKey& key)
    {
        const QString shown = place.pad.getCompleteText(key.key.code, key.key.index);
        place.judge.take(key.key);
        ++m_steps;
        if (!place.pad.agrees(place.judge) || !KrPadProbe::holds(shown, place.judge.shown()))
            fail(place, "the rules say " + place.judge.told());
    }

    /** Compares with libhangul, which has taken the same keys. */
    void compare(Place& place, const HangulJudge& before, const TestKey& key)
    {
        const std::u16string composing = m_peer.composing();
        const bool same =
            KrPadProbe::holds(place.pad.m_strText, m_peer.text()) &&
            (composing.empty() ? place.pad.m_chComposing == 0
                               : composing.size() == 1 && composing[0] == place.pad.m_chComposing);
        const Difference difference = demanded(before, key);
        ++m_found[difference];
        if (same && difference == None)
            return;
        const std::u16string expected(1, peerComposes(difference, before, key));
        if (same || difference == None || m_peer.text() != before.text || composing != expected)
            fail(place, "libhangul has \"" + utf8(m_peer.text()) + "\" + \"" + utf8(composing) +
                            "\", expected difference: " + told[difference]);
        place.withPeer = false;
    }

    void report() const
    {
        std::cout << m_steps << " steps judged; beside libhangul: " << m_found[None] << " alike";
        for (int i = 1; i < Differences; ++i)
            std::cout << ", " << m_found[static_cast<std::size_t>(i)] << " " << told[i];
        std::cout << "\n";
    }

    void expectAllFound() const
    {
        for (int i = 0; i < Differences; ++i)
            EXPECT_GT(m_found[static_cast<std::size_t>(i)], 0) << told[i];
        EXPECT_TRUE(m_peer.hasTakenAll());
    }

    bool isGood() const { return m_failures == 0; }

    std::u16string path; // the sequence so far, for messages

private:
    void fail(const Place& place, const std::string& why)
    {
        if (++m_failures <= 10)
            ADD_FAILURE() << utf8(path) << ": " << place.pad.state().told() << "; " << why;
    }

    Libhangul m_peer;
    std::array<int, Differences> m_found{};
    long m_steps = 0;
    int m_failures = 0;
};

/** Walks all sequences below a place, depth first. */
void walk(Comparison& comparison, const std::vector<TestKey>& keys, const Comparison::Place& from,
          std::vector<int>& typed, int depth)
{
    for (const TestKey& key : keys) {
        Comparison::Place place = from;
        comparison.path += key.letter;
        typed.push_back(key.ascii);
        comparison.step(place, key);
        if (place.withPeer) {
            comparison.peer().reset();
            for (const int ascii : typed)
                comparison.peer().take(ascii);
            comparison.compare(place, from.judge, key);
        }
        if (depth > 1)
            walk(comparison, keys, place, typed, depth - 1);
        typed.pop_back();
        comparison.path.pop_back();
    }
}

/** A key for a sequence that goes far: half consonants, a third vowels, some backspaces. */
const TestKey& draw(std::mt19937& random)
{
    const auto kind = random() % 12;
    const auto any = random();
    if (kind < 6)
        return keys()[any % 19];
    return kind < 10 ? keys()[19 + any % 14] : keys().back();
}

const TestKey& drawOfFew(std::mt19937& random)
{
    return fewKeys()[random() % fewKeys().size()];
}

} // namespace

TEST(KrPadBesideLibhangul, agreesInAllShortSequences)
{
    Comparison comparison;
    std::vector<int> typed;
    walk(comparison, keys(), {}, typed, longestOfAll);
    comparison.report();
    EXPECT_TRUE(comparison.isGood());
}

TEST(KrPadBesideLibhangul, agreesInAllLongerSequencesOfFewKeys)
{
    Comparison comparison;
    std::vector<int> typed;
    walk(comparison, fewKeys(), {}, typed, longestOfFew);
    comparison.report();
    comparison.expectAllFound();
    EXPECT_TRUE(comparison.isGood());
}

TEST(KrPadBesideLibhangul, agreesInLongSequencesAtRandom)
{
    std::mt19937 random(20261121);
    Comparison comparison;
    for (int i = 0; i < randomSequences && comparison.isGood(); ++i) {
        Comparison::Place place;
        comparison.peer().reset();
        comparison.path.clear();
        const auto length = 1 + random() % longestAtRandom;
        for (std::size_t k = 0; k < length; ++k) {
            const TestKey& key = i % 4 == 0 ? drawOfFew(random) : draw(random);
            const HangulJudge before = place.judge;
            comparison.path += key.letter;
            comparison.step(place, key);
            if (place.withPeer) {
                comparison.peer().take(key.ascii);
                comparison.compare(place, before, key);
            }
        }
    }
    comparison.report();
    comparison.expectAllFound();
    EXPECT_TRUE(comparison.isGood());
}
