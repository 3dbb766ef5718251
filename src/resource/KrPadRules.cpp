#include "resource/KrPad.h"

#include "resource/HangulLetters.h"

namespace PANFx::Resource {

using namespace HangulLetters;

/** How each key changes the composition, as a table. */
struct KrPad::Rules
{
    enum Key { Consonant, Vowel, Backspace };
    struct Transition
    {
        State state;
        Key key;
        bool (*condition)(KrPad& pad, int index);
        void (*action)(KrPad& pad, int code, int index);
        State next;
    };
    static const Transition table[];

    /** Takes the first row of the state and key whose condition holds. */
    static void apply(KrPad& pad, int state, Key key, int code, int index);

    // ---- conditions; those that try to join a letter have joined it when they hold

    static bool otherwise(KrPad&, int) { return true; }
    static bool nothingIsShown(KrPad& pad, int) { return pad.m_chComposing == 0; }
    static bool thereIsNoVowel(KrPad& pad, int) { return pad.m_nJoong1 == none; }
    static bool vowelIsAPair(KrPad& pad, int) { return pad.m_nJoong2 != none; }
    static bool itCanBeFinal(KrPad& pad, int index) { return pad.getJongsungIndex(index) != 0; }

    static bool itJoinsTheVowel(KrPad& pad, int index)
    {
        if (pad.m_nJoong2 != none)
            return false;
        pad.m_nJoong2 = index;
        if (pad.combineMoeum() == 1)
            return true;
        pad.m_nJoong2 = none;
        return false;
    }

    static bool itJoinsTheFinal(KrPad& pad, int index)
    {
        pad.m_nJong2 = index;
        if (pad.combineJaeum() == 1)
            return true;
        pad.m_nJong2 = none;
        return false;
    }

    // ---- actions

    // the vowel fields stay as they are, and so does what a lone vowel left in them
    static void showConsonant(KrPad& pad, int code, int index)
    {
        pad.m_nCho = index;
        pad.m_chComposing = character(code);
    }

    static void commitAndShowConsonant(KrPad& pad, int code, int index)
    {
        pad.commit();
        showConsonant(pad, code, index);
    }

    static void commitAndStartConsonant(KrPad& pad, int code, int index)
    {
        pad.commit();
        pad.clearPhoneme();
        showConsonant(pad, code, index);
    }

    static void showVowel(KrPad& pad, int code, int index)
    {
        pad.m_chComposing = character(code);
        pad.m_nJoong1 = index;
    }

    static void commitAndStartVowel(KrPad& pad, int code, int index)
    {
        pad.commit();
        pad.clearPhoneme();
        showVowel(pad, code, index);
        pad.m_nJoong = index;
    }

    static void showJoinedVowel(KrPad& pad, int, int)
    {
        pad.m_chComposing = character(vowelCode(pad.m_nJoong));
    }

    static void addVowel(KrPad& pad, int, int index) { showWithVowel(pad, index); }

    static void addFinal(KrPad& pad, int, int index)
    {
        pad.m_nJong = pad.getJongsungIndex(index);
        pad.m_nJong1 = index;
        showSyllable(pad);
    }

    static void showJoined(KrPad& pad, int, int) { showSyllable(pad); }

    static void moveOnlyFinal(KrPad& pad, int, int index)
    {
        moveFinal(pad, pad.m_nJong1, 0, index);
    }

    static void moveSecondFinal(KrPad& pad, int, int index)
    {
        moveFinal(pad, pad.m_nJong2, pad.getJongsungIndex(pad.m_nJong1), index);
    }

    // ---- backspace

    static void dropAll(KrPad& pad, int, int)
    {
        pad.clearPhoneme();
        pad.m_chComposing = 0;
    }

    static void splitLoneVowel(KrPad& pad, int, int)
    {
        dropSecondVowel(pad);
        pad.m_chComposing = character(vowelCode(pad.m_nJoong));
    }

    static void splitVowel(KrPad& pad, int, int)
    {
        dropSecondVowel(pad);
        showSyllable(pad);
    }

    static void dropVowel(KrPad& pad, int, int)
    {
        pad.m_nJoong1 = none;
        pad.m_nJoong = none;
        pad.m_chComposing = character(pad.getJaeumCode(pad.m_nCho));
    }

    static void dropFinal(KrPad& pad, int, int)
    {
        pad.m_nJong1 = none;
        pad.m_nJong = 0;
        showSyllable(pad);
    }

    static void dropSecondFinal(KrPad& pad, int, int)
    {
        pad.m_nJong2 = none;
        pad.m_nJong = pad.getJongsungIndex(pad.m_nJong1);
        showSyllable(pad);
    }

    // ---- shared

    static void showSyllable(KrPad& pad) { pad.m_chComposing = character(pad.combineHangle()); }

    static void showWithVowel(KrPad& pad, int vowel)
    {
        pad.m_nJoong = vowel;
        pad.m_nJoong1 = vowel;
        showSyllable(pad);
    }

    static void dropSecondVowel(KrPad& pad)
    {
        pad.m_nJoong = pad.m_nJoong1;
        pad.m_nJoong2 = none;
    }

    // The last final becomes the initial of a new syllable; the old one keeps the final @p stays.
    static void moveFinal(KrPad& pad, int moves, int stays, int vowel)
    {
        pad.m_nJong = stays;
        showSyllable(pad);
        pad.commit();
        pad.clearPhoneme();
        pad.m_nCho = moves;
        showWithVowel(pad, vowel);
    }
};

// Rows of one state and key are tried in order.
const KrPad::Rules::Transition KrPad::Rules::table[] = {
    {CHO, Consonant, nothingIsShown, showConsonant, JOONG},
    {CHO, Consonant, otherwise, commitAndShowConsonant, JOONG},
    {CHO, Vowel, thereIsNoVowel, showVowel, CHO},
    {CHO, Vowel, itJoinsTheVowel, showJoinedVowel, CHO},
    {CHO, Vowel, otherwise, commitAndStartVowel, CHO},
    {CHO, Backspace, vowelIsAPair, splitLoneVowel, CHO},
    {CHO, Backspace, otherwise, dropAll, CHO},

    {JOONG, Vowel, otherwise, addVowel, JONG1},
    {JOONG, Consonant, otherwise, commitAndStartConsonant, JOONG},
    {JOONG, Backspace, otherwise, dropAll, CHO},

    {JONG1, Vowel, itJoinsTheVowel, showJoined, JONG1},
    {JONG1, Vowel, otherwise, commitAndStartVowel, CHO},
    {JONG1, Consonant, itCanBeFinal, addFinal, JONG2},
    {JONG1, Consonant, otherwise, commitAndStartConsonant, JOONG},
    {JONG1, Backspace, vowelIsAPair, splitVowel, JONG1},
    {JONG1, Backspace, otherwise, dropVowel, JOONG},

    {JONG2, Consonant, itJoinsTheFinal, showJoined, JONG3},
    {JONG2, Consonant, otherwise, commitAndStartConsonant, JOONG},
    {JONG2, Vowel, otherwise, moveOnlyFinal, JONG1},
    {JONG2, Backspace, otherwise, dropFinal, JONG1},

    {JONG3, Consonant, otherwise, commitAndStartConsonant, JOONG},
    {JONG3, Vowel, otherwise, moveSecondFinal, JONG1},
    {JONG3, Backspace, otherwise, dropSecondFinal, JONG2},
};

void KrPad::Rules::apply(KrPad& pad, int state, Key key, int code, int index)
{
    for (const Transition& row : table) {
        if (row.state == state && row.key == key && row.condition(pad, index)) {
            row.action(pad, code, index);
            pad.m_nFlag = row.next;
            return;
        }
    }
}

void KrPad::takeLetter(State state, int nCode, int nIndex)
{
    Rules::apply(*this, state, isJaeum(nCode) ? Rules::Consonant : Rules::Vowel, nCode, nIndex);
}

void KrPad::takeBack()
{
    Rules::apply(*this, m_nFlag, Rules::Backspace, 0, 0);
}

} // namespace PANFx::Resource
