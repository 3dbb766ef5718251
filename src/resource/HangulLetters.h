#pragma once

#include <QtGlobal>

/**
 * The Hangul alphabet in numbers, as Unicode orders it: consonants 0 to 18, vowels 0 to 20,
 * finals 0 to 27, where 0 is none. Any number is taken; what is no letter gives what is said here
 * or what the arithmetic makes of it, wrapped to the width of the result.
 */
namespace PANFx::Resource::HangulLetters {

constexpr int none = -1;              ///< no letter
constexpr int noFinal = 0;            ///< a syllable that ends in its vowel
constexpr int firstLetter = 0x3131;   ///< code of ㄱ
constexpr int lastConsonant = 0x314E; ///< code of ㅎ
constexpr int lastLetter = 0x3163;    ///< code of ㅣ

/** The low 16 bits. */
constexpr ushort character(int code)
{
    return static_cast<ushort>(code);
}

/** Character of a consonant; the run goes on past 18, a negative number gives the first one. */
int consonantCode(int consonant);

/** Character of a vowel. */
int vowelCode(int vowel);

/** The consonant as a final; noFinal for one that can't be a final and for what is none. */
int finalOf(int consonant);

/** The vowel that two make; none if they don't. */
int joinVowels(int first, int second);

/** The final that two consonants make; none if they don't. */
int joinFinals(int first, int second);

/** Character of the syllable of an initial, a vowel and a final. */
ushort syllable(int initial, int vowel, int final);

} // namespace PANFx::Resource::HangulLetters
