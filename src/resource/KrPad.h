#pragma once

#include "resource/LangPad.h"

namespace PANFx::Resource {

/**
 * Composes Hangul syllables from letters as they are typed, with one syllable under composition
 * behind the committed text. It keeps the syllable's parts, so that backspace takes back one letter
 * and a final consonant moves on to the next syllable when a vowel follows it.
 *
 * Letters have numbers, which the keyboard's layout gives to its keys: consonants 0 to 18 in the
 * order of Unicode's initials, vowels 0 to 20 in the order of its medials, finals 0 to 27 in the
 * order of its finals, where 0 is none. A key's index is not checked: another one goes into the
 * arithmetic of syllables as it is, and the result wraps to 16 bits.
 */
class QTPANFX_EXPORT KrPad : public LangPad
{
public:
    /** Holds no text, and nothing under composition. */
    KrPad();
    KrPad(const KrPad&) = default;
    KrPad& operator=(const KrPad&) = default;
    ~KrPad() override;

    /** Drops the text and the composition. */
    void clear() override;

    /**
     * Takes one key and returns the text as it is shown after it.
     * @param nCode UTF-16 value of the letter on the key. One outside 0x3131 to 0x3163 ends the
     *        composition and is appended, its low 16 bits where nothing was under composition, its
     *        low 8 bits (Latin-1) behind a syllable
     * @param nIndex number of the consonant or vowel; read for letters only
     */
    QString getCompleteText(int nCode, int nIndex) override;

    /** The committed text with the character under composition behind it. */
    QString getCompleteText() override;

    /**
     * Takes back one letter of the composition; without one, the last character of the committed
     * text, which is a whole syllable.
     */
    void backspace() override;

    /** Ends the composition and appends one blank. */
    void space() override;

    /** Replaces all by committed text; no composition is rebuilt from it. */
    void setCompleteText(QString strText) override;

    /** Forgets the letters of the syllable; what is shown and the state stay. */
    void clearPhoneme();

    /** Sets the state in which nothing, or a vowel without an initial, is under composition. */
    void initFlag();

    /** True for every code up to 0x314E: all that is greater counts as a vowel. */
    bool isJaeum(int nCode) const;

    /** The final number of a consonant; 0 for one that can't be a final and for a bad index. */
    int getJongsungIndex(int nIndex) const;

    /** The character of a vowel, -1 for -1; other bad indexes are counted on. */
    int getMoeumCode(int nIndex) const;

    /**
     * The character of a consonant, -1 for -1. Above 18 the run goes on past the consonants; other
     * negative indexes give the first one.
     */
    int getJaeumCode(int nIndex) const;

    /** Joins the two vowel keys into the syllable's vowel; 1 when they join, else 0. */
    int combineMoeum();

    /** Joins the two final consonants into the syllable's final; 1 when they join, else 0. */
    int combineJaeum();

    /** The syllable of initial, vowel and final, 0 to 0xFFFF. */
    int combineHangle() const;

    /** Takes one letter; codes below 0x3131 count as consonants, those above 0x3163 as vowels. */
    void makeHangle(int nCode, int nIndex);

protected:
    /** What is under composition, and so which letters can join it. */
    enum State : int {
        CHO = 1, ///< nothing, or a vowel without an initial
        JOONG,   ///< a lone consonant, waiting for a vowel
        JONG1,   ///< initial and vowel
        JONG2,   ///< a syllable with a single final
        JONG3    ///< a syllable with a compound final
    };

    /// @{
    /**
     * Take one letter as in the state of that name, whatever the state is; the letter sets the next
     * one.
     */
    void makeHangle_CHO(int nCode, int nIndex);
    void makeHangle_JOONG(int nCode, int nIndex);
    void makeHangle_JONG1(int nCode, int nIndex);
    void makeHangle_JONG2(int nCode, int nIndex);
    void makeHangle_JONG3(int nCode, int nIndex);
    /// @}

    int m_nCho = -1;          ///< initial, as a consonant
    int m_nJoong1 = -1;       ///< first vowel key
    int m_nJoong2 = -1;       ///< second vowel key of a pair
    int m_nJong1 = -1;        ///< first final, as a consonant
    int m_nJong2 = -1;        ///< second final, as a consonant
    int m_nJoong = -1;        ///< the syllable's vowel, single or combined
    int m_nJong = 0;          ///< the syllable's final, as a final
    int m_nFlag = CHO;        ///< the State
    ushort m_chComposing = 0; ///< the character under composition as it is shown, 0 for none

private:
    struct Rules; // the transitions as a table, in KrPadRules.cpp

    void commit();
    void endComposition();
    QString shownText() const;
    void takeLetter(State state, int nCode, int nIndex);
    void takeBack();
};

} // namespace PANFx::Resource
