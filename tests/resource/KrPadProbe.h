#pragma once

#include "resource/HangulJudge.h"
#include "resource/KrPad.h"

namespace PANFx::Testing {

/** A Hangul composer whose fields lie open, and which can be set beside the judge. */
class KrPadProbe : public Resource::KrPad
{
public:
    using KrPad::m_chComposing;
    using KrPad::m_nCho;
    using KrPad::m_nFlag;
    using KrPad::m_nJong;
    using KrPad::m_nJong1;
    using KrPad::m_nJong2;
    using KrPad::m_nJoong;
    using KrPad::m_nJoong1;
    using KrPad::m_nJoong2;
    using KrPad::m_strText;
    using KrPad::State;

    /** Types characters as hangulKey() reads them; returns the text as the last key gave it. */
    std::u16string type(const std::u16string& characters)
    {
        QString shown = getCompleteText();
        for (const char16_t character : characters) {
            const HangulKey key = hangulKey(character);
            shown = getCompleteText(key.code, key.index);
        }
        return shown.toStdU16String();
    }

    /** The composer holds what the judge holds. */
    bool agrees(const HangulJudge& judge) const
    {
        return m_nFlag == judge.flag && m_chComposing == judge.composing && m_nCho == judge.cho &&
               m_nJoong1 == judge.joong1 && m_nJoong2 == judge.joong2 && m_nJong1 == judge.jong1 &&
               m_nJong2 == judge.jong2 && m_nJoong == judge.joong && m_nJong == judge.jong &&
               holds(m_strText, judge.text);
    }

    /** All fields, to be told in a message. */
    HangulJudge state() const
    {
        return {m_strText.toStdU16String(),
                m_nCho,
                m_nJoong1,
                m_nJoong2,
                m_nJong1,
                m_nJong2,
                m_nJoong,
                m_nJong,
                m_nFlag,
                m_chComposing};
    }

    /** Cheaper than a conversion: millions of texts are compared. */
    static bool holds(const QString& text, const std::u16string& expected)
    {
        return std::u16string_view(reinterpret_cast<const char16_t*>(text.utf16()),
                                   static_cast<std::size_t>(text.size())) == expected;
    }
};

} // namespace PANFx::Testing
