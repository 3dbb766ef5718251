#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/HashTable.h"
#include "common/tamfx/Object.h"
#include "common/tamfx/String.h"

#include <QString>

namespace PANFx::Resource {

class LangPad;

/**
 * What an application's on-screen keyboard talks to: one text composer for each language, each
 * with a text of its own, the current language, and the length limit.
 *
 * Usual order: setMaxLength, changeLang, setCompleteText with the present text of the field, then
 * getCompleteText(nCode, nIndex) for each key, showing what it returns.
 *
 * Texts go in and come out in boundary form: each character of it is one byte of the real text in
 * UTF-8 (a Hangul syllable is three). An application feeds back what it was given. Lengths count
 * characters of the real text.
 */
class QTPANFX_EXPORT QwertyPadFactory : public TAMFx::Data::Object
{
public:
    /**
     * Holds the composers of "kr", "en", "esp", "fra", "ger", "ita", "por", "rus" and "chn", and
     * "NULL" for no or an unknown language, which is the current one at first.
     */
    QwertyPadFactory();
    ~QwertyPadFactory() override;

    QwertyPadFactory(const QwertyPadFactory&) = delete;
    QwertyPadFactory& operator=(const QwertyPadFactory&) = delete;

    /**
     * Sets how many characters the text may hold; 0 at first, so that every letter is refused. A
     * text that is longer is cut when it is next read with getCompleteText(). A negative limit
     * refuses every key and cuts nothing.
     */
    void setMaxLength(int nMaxLength) { m_nMaxLength = nMaxLength; }

    /** The limit as it was set, in characters; 0 at first. */
    int getMaxLength() const { return m_nMaxLength; }

    /**
     * Switches the language; the text moves with the user, a syllable under composition as plain
     * text. Naming the current language wipes the text, and applications rely on it.
     * @param pszLang "" selects "NULL"; with an unknown code the text stays where it is and "NULL"
     *        works on. Null changes nothing and is an error
     */
    void changeLang(const char* pszLang);

    /**
     * Feeds one key to the composer and returns the text after it, in boundary form. A key after
     * which the text is longer than the limit is refused, backspace too: the text is then the one
     * from before, and no part of it is under composition any more.
     * @param nCode UTF-16 value of the key; 8 is backspace, 0x20 is space
     * @param nIndex place of the key in the Hangul tables
     */
    QString getCompleteText(int nCode, int nIndex);

    /** Cuts the text to the limit and returns it in boundary form. */
    QString getCompleteText();

    /** Replaces the text, given in boundary form, and cuts it to the limit. */
    void setCompleteText(QString strText);

    /** Length of the text in characters, a syllable under composition included. */
    int getTextLength();

    /** Drops the current language's text. While that language is unknown it drops nothing. */
    void clearText();

protected:
    /**
     * Adds the composer of a language, in place of an earlier one. It is owned from now on; with a
     * null code it is freed at once.
     */
    void addPad(const char* pszLang, LangPad* pPad);

    /** The composer of that very language, still the table's; null when it has none. */
    LangPad* padOf(const char* pszLang) const;

    String m_strLang;                             ///< code of the current language
    TAMFx::Data::Collection::HashTable m_tblPads; ///< language code to an entry with its composer
    int m_nMaxLength = 0;                         ///< characters
    Common::SysLogger m_logger{"QTPANFx", "QwertyPadFactory"};

private:
    LangPad* currentPad() const;
};

} // namespace PANFx::Resource
