#include "resource/KrPad.h"

#include "resource/HangulLetters.h"

#include <utility>

namespace PANFx::Resource {

using namespace HangulLetters;

// ---- keys and text

KrPad::KrPad() = default;

KrPad::~KrPad() = default;

void KrPad::clear()
{
    LangPad::clear();
    endComposition();
}

QString KrPad::getCompleteText(int nCode, int nIndex)
{
    if (nCode == backspaceKey) {
        backspace();
    } else if (nCode == spaceKey) {
        space();
    } else if (nCode >= firstLetter && nCode <= lastLetter) {
        makeHangle(nCode, nIndex);
    } else if (m_chComposing == 0) {
        m_strText += QChar(character(nCode));
        endComposition();
    } else {
        // behind a syllable only Latin-1 survives, and applications rely on it
        commit();
        m_strText += QChar(ushort(uchar(nCode)));
        endComposition();
    }
    return shownText();
}

QString KrPad::getCompleteText()
{
    return shownText();
}

QString KrPad::shownText() const
{
    if (m_chComposing == 0)
        return m_strText;
    return m_strText + QChar(m_chComposing);
}

void KrPad::backspace()
{
    if (m_chComposing == 0)
        LangPad::backspace();
    else
        takeBack();
}

void KrPad::space()
{
    if (m_chComposing != 0)
        commit();
    LangPad::space();
    endComposition();
}

void KrPad::setCompleteText(QString strText)
{
    clear();
    m_strText = std::move(strText);
}

void KrPad::commit()
{
    m_strText += QChar(m_chComposing);
}

void KrPad::endComposition()
{
    m_chComposing = 0;
    initFlag();
    clearPhoneme();
}

void KrPad::clearPhoneme()
{
    m_nJong = noFinal;
    m_nJoong = none;
    m_nCho = none;
    m_nJoong1 = none;
    m_nJoong2 = none;
    m_nJong1 = none;
    m_nJong2 = none;
}

void KrPad::initFlag()
{
    m_nFlag = CHO;
}

// ---- letters

bool KrPad::isJaeum(int nCode) const
{
    return nCode <= lastConsonant;
}

int KrPad::getJongsungIndex(int nIndex) const
{
    return finalOf(nIndex);
}

int KrPad::getMoeumCode(int nIndex) const
{
    return nIndex == none ? none : vowelCode(nIndex);
}

int KrPad::getJaeumCode(int nIndex) const
{
    return nIndex == none ? none : consonantCode(nIndex);
}

int KrPad::combineMoeum()
{
    if (m_nJoong2 == none) {
        m_nJoong = m_nJoong1;
        return 1;
    }
    const int joined = joinVowels(m_nJoong1, m_nJoong2);
    if (joined == none)
        return 0;
    m_nJoong = joined;
    return 1;
}

int KrPad::combineJaeum()
{
    const int joined = m_nJong2 == none ? finalOf(m_nJong1) : joinFinals(m_nJong1, m_nJong2);
    if (joined == none)
        return 0;
    m_nJong = joined;
    return 1;
}

int KrPad::combineHangle() const
{
    return syllable(m_nCho, m_nJoong, m_nJong);
}

void KrPad::makeHangle(int nCode, int nIndex)
{
    switch (m_nFlag) {
    case CHO:
        return makeHangle_CHO(nCode, nIndex);
    case JOONG:
        return makeHangle_JOONG(nCode, nIndex);
    case JONG1:
        return makeHangle_JONG1(nCode, nIndex);
    case JONG2:
        return makeHangle_JONG2(nCode, nIndex);
    case JONG3:
        return makeHangle_JONG3(nCode, nIndex);
    default:
        return;
    }
}

void KrPad::makeHangle_CHO(int nCode, int nIndex)
{
    takeLetter(CHO, nCode, nIndex);
}

void KrPad::makeHangle_JOONG(int nCode, int nIndex)
{
    takeLetter(JOONG, nCode, nIndex);
}

void KrPad::makeHangle_JONG1(int nCode, int nIndex)
{
    takeLetter(JONG1, nCode, nIndex);
}

void KrPad::makeHangle_JONG2(int nCode, int nIndex)
{
    takeLetter(JONG2, nCode, nIndex);
}

void KrPad::makeHangle_JONG3(int nCode, int nIndex)
{
    takeLetter(JONG3, nCode, nIndex);
}

} // namespace PANFx::Resource
