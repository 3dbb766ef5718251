#pragma once

#include "common/Export.h"

#include <QString>

namespace PANFx::Resource {

/**
 * Text composer of an on-screen keyboard: holds the text typed so far and takes one key at a time.
 * This one appends characters as they come; composers of other scripts derive from it.
 */
class QTPANFX_EXPORT LangPad
{
public:
    static constexpr int backspaceKey = 8; ///< key that takes the last character back
    static constexpr int spaceKey = 0x20;  ///< key that appends a blank

    /** Holds no text. */
    LangPad();
    LangPad(const LangPad&) = default;
    LangPad& operator=(const LangPad&) = default;
    virtual ~LangPad();

    /** Drops the text; a null string is left. */
    virtual void clear();

    /**
     * Takes one key and returns the text after it.
     * @param nCode UTF-16 value of the key, of which the low 16 bits are appended; backspaceKey
     *        and spaceKey call backspace() and space()
     * @param nIndex place of the key in the tables of a composing script; not read here
     */
    virtual QString getCompleteText(int nCode, int nIndex);

    /** The text typed so far. */
    virtual QString getCompleteText();

    /** Takes back the last character; an empty text stays empty. */
    virtual void backspace();

    /** Appends one blank. */
    virtual void space();

    /** Replaces the text. */
    virtual void setCompleteText(QString strText);

protected:
    QString m_strText; ///< the text typed so far
};

} // namespace PANFx::Resource
