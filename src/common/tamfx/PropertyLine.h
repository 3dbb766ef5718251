#pragma once

#include <string>

namespace TAMFx::Data::Properties {

/**
 * One line of a configuration file. Every byte of it is in one of the texts before, written and
 * after, so that a line nobody changes goes back as it came.
 */
class PropertyLine
{
public:
    /** Takes a line apart; its line break, if it has one, belongs to it. */
    explicit PropertyLine(const std::string& strLine);

    /** Makes a new property with the given line break. */
    PropertyLine(const std::string& strKey, const std::string& strValue,
                 const std::string& strLineBreak);

    /** True if a line can hold this key. */
    static bool isKey(const std::string& strKey);

    /** The key, "" for a line that is no property. */
    const std::string& key() const { return m_strKey; }

    /** The value without quotes and escapes, "" for a line that is no property. */
    const std::string& value() const { return m_strValue; }

    /** Changes the value, and the line only if the value is another one. */
    void setValue(const std::string& strValue);

    /** The line break of this line, "" when it has none. */
    std::string lineBreak() const;

    /** Puts a line break behind a line, whether it has one already or not. */
    void appendLineBreak(const std::string& strLineBreak) { m_strAfter += strLineBreak; }

    /** The whole line as it stands in the file. */
    std::string text() const { return m_strBefore + m_strWritten + m_strAfter; }

private:
    std::string m_strBefore;  ///< up to the value; all of a line that is no property
    std::string m_strWritten; ///< the value as it stands in the file
    std::string m_strAfter;   ///< blanks behind the value, and the line break
    std::string m_strKey;
    std::string m_strValue;
};

} // namespace TAMFx::Data::Properties
