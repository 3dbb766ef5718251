#pragma once

#include <string>

namespace PANFx::Testing {

/** One key as the keyboard delivers it. */
struct HangulKey
{
    int code;
    int index;
};

/**
 * The key of a character: letters with their number, u'<' for backspace, anything else as a key
 * outside the alphabet.
 */
HangulKey hangulKey(char16_t character);

/**
 * What the Hangul composer holds, and its rules stated a second time, in other words and from
 * other tables than the library's: the judge of the composer's tests.
 */
struct HangulJudge
{
    std::u16string text; ///< committed
    int cho = -1;
    int joong1 = -1;
    int joong2 = -1;
    int jong1 = -1;
    int jong2 = -1;
    int joong = -1;
    int jong = 0;
    int flag = 1;
    int composing = 0;

    /** Takes a key as it comes from the keyboard. */
    void take(HangulKey key);

    /** Takes a key that counts as a letter, whatever its code. */
    void takeLetter(HangulKey key);

    /** The text as it is shown. */
    std::u16string shown() const;

    /** A vowel pair that is held although the syllable's vowel is a single one. */
    bool hasForgottenPair() const { return flag == 3 && joong2 != -1 && joong == joong1; }

    bool operator==(const HangulJudge& other) const;

    /** All fields in one line, for messages. */
    std::string told() const;

    // what the alphabet says
    static int finalOf(int consonant);
    static int vowelOf(int first, int second);   ///< -1 for no pair
    static int clusterOf(int first, int second); ///< -1 for no pair
    static int syllable(int initial, int vowel, int final);

private:
    void consonant(HangulKey key);
    void vowel(HangulKey key);
    void backspace();
    void commit();
    void forget();
    void startConsonant(HangulKey key);
    void startVowel(HangulKey key);
    bool widenVowel(int index);
    bool widenFinal(int index);
    void moveOn(int initial, int staying, int index);
    void showSyllable();
};

std::string utf8(const std::u16string& text);

} // namespace PANFx::Testing
