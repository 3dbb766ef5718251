#include "resource/HangulJudge.h"

#include <QString>

#include <tuple>

namespace PANFx::Testing {

namespace {

// Unicode's orders of initials and finals; a blank stands for no final
const std::u16string initials = u"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ";
const std::u16string finals = u" ㄱㄲㄳㄴㄵㄶㄷㄹㄺㄻㄼㄽㄾㄿㅀㅁㅂㅄㅅㅆㅇㅈㅊㅋㅌㅍㅎ";

// two letters and what they make; ㄱ and ㅅ are missing on purpose
const char16_t* const vowelPairs[] = {u"ㅗㅏㅘ", u"ㅗㅐㅙ", u"ㅗㅣㅚ", u"ㅜㅓㅝ",
                                      u"ㅜㅔㅞ", u"ㅜㅣㅟ", u"ㅡㅣㅢ"};
const char16_t* const clusters[] = {u"ㄴㅈㄵ", u"ㄴㅎㄶ", u"ㄹㄱㄺ", u"ㄹㅁㄻ", u"ㄹㅂㄼ",
                                    u"ㄹㅅㄽ", u"ㄹㅌㄾ", u"ㄹㅍㄿ", u"ㄹㅎㅀ", u"ㅂㅅㅄ"};

int placeIn(const std::u16string& order, char16_t letter)
{
    const std::size_t place = order.find(letter);
    return place == std::u16string::npos ? -1 : static_cast<int>(place);
}

bool isVowelLetter(char16_t letter)
{
    return letter >= u'ㅏ' && letter <= u'ㅣ';
}

int low16(long long value)
{
    return static_cast<int>(value & 0xFFFF);
}

} // namespace

std::string utf8(const std::u16string& text)
{
    return QString::fromStdU16String(text).toStdString();
}

HangulKey hangulKey(char16_t character)
{
    if (character == u'<')
        return {8, -1};
    if (isVowelLetter(character))
        return {character, character - u'ㅏ'};
    return {character, placeIn(initials, character)};
}

// ---- the alphabet

int HangulJudge::finalOf(int consonant)
{
    if (consonant < 0 || consonant >= static_cast<int>(initials.size()))
        return 0;
    const int place = placeIn(finals, initials[static_cast<std::size_t>(consonant)]);
    return place < 0 ? 0 : place;
}

int HangulJudge::vowelOf(int first, int second)
{
    for (const char16_t* pair : vowelPairs) {
        if (first == pair[0] - u'ㅏ' && second == pair[1] - u'ㅏ')
            return pair[2] - u'ㅏ';
    }
    return -1;
}

int HangulJudge::clusterOf(int first, int second)
{
    if (first == placeIn(initials, u'ㄲ') && second == placeIn(finals, u'ㅅ'))
        return placeIn(finals, u'ㄳ'); // the one odd pair: finals' numbers, so no key makes it
    for (const char16_t* pair : clusters) {
        if (first == placeIn(initials, pair[0]) && second == placeIn(initials, pair[1]))
            return placeIn(finals, pair[2]);
    }
    return -1;
}

int HangulJudge::syllable(int initial, int vowel, int final)
{
    return low16(u'가' + 21LL * 28 * initial + 28LL * vowel + final);
}

// ---- keys

void HangulJudge::take(HangulKey key)
{
    if (key.code == 8) {
        backspace();
    } else if (key.code >= u'ㄱ' && key.code <= u'ㅣ') {
        takeLetter(key);
    } else {
        int last = low16(key.code);
        if (composing != 0) {
            commit();
            last = key.code & 0xFF;
        }
        text += static_cast<char16_t>(last);
        forget();
        composing = 0;
        flag = 1;
    }
}

void HangulJudge::takeLetter(HangulKey key)
{
    if (key.code <= u'ㅎ')
        consonant(key);
    else
        vowel(key);
}

void HangulJudge::consonant(HangulKey key)
{
    if (flag == 1) {
        if (composing != 0)
            commit();
        cho = key.index;
        composing = low16(key.code);
        flag = 2;
    } else if (flag == 3 && finalOf(key.index) != 0) {
        jong = finalOf(key.index);
        jong1 = key.index;
        flag = 4;
        showSyllable();
    } else if (flag == 4 && widenFinal(key.index)) {
        flag = 5;
        showSyllable();
    } else {
        startConsonant(key);
    }
}

void HangulJudge::vowel(HangulKey key)
{
    if (flag == 1 && joong1 == -1) {
        composing = low16(key.code);
        joong1 = key.index;
    } else if (flag == 1 && widenVowel(key.index)) {
        composing = low16(u'ㅏ' + static_cast<long long>(joong));
    } else if (flag == 2) {
        joong = joong1 = key.index;
        flag = 3;
        showSyllable();
    } else if (flag == 3 && widenVowel(key.index)) {
        showSyllable();
    } else if (flag == 4) {
        moveOn(jong1, 0, key.index);
    } else if (flag == 5) {
        moveOn(jong2, finalOf(jong1), key.index);
    } else {
        startVowel(key);
    }
}

void HangulJudge::backspace()
{
    if (composing == 0) {
        if (!text.empty())
            text.pop_back();
    } else if (flag == 1 && joong2 != -1) {
        joong2 = -1;
        joong = joong1;
        composing = low16(u'ㅏ' + static_cast<long long>(joong1));
    } else if (flag == 1 || flag == 2) {
        forget();
        composing = 0;
        flag = 1;
    } else if (flag == 3 && joong2 == -1) {
        joong1 = joong = -1;
        composing = cho == -1  ? 0xFFFF
                    : cho < 0  ? u'ㄱ'
                    : cho < 19 ? initials[static_cast<std::size_t>(cho)]
                               : low16(0x313CLL + cho);
        flag = 2;
    } else if (flag == 3) {
        joong2 = -1;
        joong = joong1;
        showSyllable();
    } else if (flag == 4) {
        jong1 = -1;
        jong = 0;
        flag = 3;
        showSyllable();
    } else if (flag == 5) {
        jong2 = -1;
        jong = finalOf(jong1);
        flag = 4;
        showSyllable();
    }
}

// ---- steps

void HangulJudge::commit()
{
    text += static_cast<char16_t>(composing);
}

void HangulJudge::forget()
{
    cho = joong1 = joong2 = jong1 = jong2 = joong = -1;
    jong = 0;
}

void HangulJudge::startConsonant(HangulKey key)
{
    commit();
    forget();
    cho = key.index;
    composing = low16(key.code);
    flag = 2;
}

void HangulJudge::startVowel(HangulKey key)
{
    commit();
    forget();
    joong = joong1 = key.index;
    composing = low16(key.code);
    flag = 1;
}

// The number -1 is "no second letter", which always goes with the first.
bool HangulJudge::widenVowel(int index)
{
    if (joong2 != -1)
        return false;
    const int wide = index == -1 ? joong1 : vowelOf(joong1, index);
    if (index != -1 && wide == -1)
        return false;
    joong2 = index;
    joong = wide;
    return true;
}

bool HangulJudge::widenFinal(int index)
{
    const int wide = index == -1 ? finalOf(jong1) : clusterOf(jong1, index);
    if (wide == -1)
        return false;
    jong2 = index;
    jong = wide;
    return true;
}

void HangulJudge::moveOn(int initial, int staying, int index)
{
    composing = syllable(cho, joong, staying);
    commit();
    forget();
    cho = initial;
    joong = joong1 = index;
    flag = 3;
    showSyllable();
}

void HangulJudge::showSyllable()
{
    composing = syllable(cho, joong, jong);
}

// ---- looking at it

std::u16string HangulJudge::shown() const
{
    return composing == 0 ? text : text + static_cast<char16_t>(composing);
}

bool HangulJudge::operator==(const HangulJudge& other) const
{
    const auto fields = [](const HangulJudge& judge) {
        return std::tie(judge.cho, judge.joong1, judge.joong2, judge.jong1, judge.jong2,
                        judge.joong, judge.jong, judge.flag, judge.composing, judge.text);
    };
    return fields(*this) == fields(other);
}

std::string HangulJudge::told() const
{
    std::string line = "\"" + utf8(text) + "\" + U+" +
                       QString::number(composing, 16).toUpper().toStdString() + ", state " +
                       std::to_string(flag);
    for (const int field : {cho, joong1, joong2, jong1, jong2, joong, jong})
        line += " " + std::to_string(field);
    return line;
}

} // namespace PANFx::Testing
