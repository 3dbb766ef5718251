#include "common/tamfx/PropertyLine.h"

namespace TAMFx::Data::Properties {

namespace {

constexpr const char* blanks = " \t";
constexpr const char* byteOrderMark = "\xEF\xBB\xBF";

std::string trimmed(const std::string& strText)
{
    const auto nFirst = strText.find_first_not_of(blanks);
    if (nFirst == std::string::npos)
        return {};
    return strText.substr(nFirst, strText.find_last_not_of(blanks) - nFirst + 1);
}

/** Length of the line without its line break. */
std::string::size_type bodyLength(const std::string& strLine)
{
    auto nLength = strLine.size();
    if (nLength > 0 && strLine[nLength - 1] == '\n') {
        --nLength;
        if (nLength > 0 && strLine[nLength - 1] == '\r')
            --nLength;
    }
    return nLength;
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

bool mustBeQuoted(const std::string& strValue)
{
    if (strValue.empty())
        return false;
    return isBlank(strValue.front()) || isBlank(strValue.back()) || strValue.front() == '"' ||
           strValue.find_first_of("\n\r") != std::string::npos;
}

std::string quoted(const std::string& strValue)
{
    if (!mustBeQuoted(strValue))
        return strValue;
    std::string strQuoted = "\"";
    for (const char character : strValue) {
        switch (character) {
        case '\n':
            strQuoted += "\\n";
            break;
        case '\r':
            strQuoted += "\\r";
            break;
        case '"':
        case '\\':
            strQuoted += '\\';
            [[fallthrough]];
        default:
            strQuoted += character;
        }
    }
    return strQuoted + '"';
}

char escaped(char character)
{
    switch (character) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    default:
        return character;
    }
}

/** What stands between the quotes; the text as it is when it is not one quoted text as a whole. */
std::string unquoted(const std::string& strWritten)
{
    const auto nSize = strWritten.size();
    if (nSize < 2 || strWritten.front() != '"' || strWritten.back() != '"')
        return strWritten;
    std::string strValue;
    for (std::string::size_type i = 1; i < nSize - 1; ++i) {
        const char next = strWritten[i + 1];
        if (strWritten[i] == '"' || (strWritten[i] == '\\' && i + 1 == nSize - 1))
            return strWritten;
        if (strWritten[i] == '\\' && (next == 'n' || next == 'r' || next == '"' || next == '\\')) {
            strValue += escaped(next);
            ++i;
        } else {
            strValue += strWritten[i];
        }
    }
    return strValue;
}

} // namespace

PropertyLine::PropertyLine(const std::string& strLine)
{
    const auto nBody = bodyLength(strLine);
    const std::string strBody = strLine.substr(0, nBody);
    m_strAfter = strLine.substr(nBody);
    m_strBefore = strBody;

    // Editors of other systems put the mark before the first line; it is no part of the key.
    const std::string::size_type nBegin = strBody.rfind(byteOrderMark, 0) == 0 ? 3 : 0;
    const auto nEqual = strBody.find('=');
    if (nEqual == std::string::npos)
        return;
    m_strKey = trimmed(strBody.substr(nBegin, nEqual - nBegin));
    if (!isKey(m_strKey)) {
        m_strKey.clear();
        return;
    }
    m_strWritten = trimmed(strBody.substr(nEqual + 1));
    m_strValue = unquoted(m_strWritten);
    const auto nValue = strBody.find_first_not_of(blanks, nEqual + 1);
    if (nValue != std::string::npos) {
        m_strBefore = strBody.substr(0, nValue);
        m_strAfter = strBody.substr(nValue + m_strWritten.size()) + m_strAfter;
    }
}

PropertyLine::PropertyLine(const std::string& strKey, const std::string& strValue,
                           const std::string& strLineBreak)
    : m_strBefore(strKey + " =")
    , m_strAfter(strLineBreak)
    , m_strKey(strKey)
{
    setValue(strValue);
}

bool PropertyLine::isKey(const std::string& strKey)
{
    return !strKey.empty() && strKey.front() != '#' && !isBlank(strKey.front()) &&
           !isBlank(strKey.back()) && strKey.find_first_of("=\n\r") == std::string::npos &&
           strKey.rfind(byteOrderMark, 0) != 0;
}

void PropertyLine::setValue(const std::string& strValue)
{
    if (strValue == m_strValue)
        return;
    // "key =" with nothing behind gets a blank, so that the value does not stick to the sign.
    const auto nSize = m_strBefore.size();
    if (nSize >= 2 && m_strBefore[nSize - 1] == '=' && isBlank(m_strBefore[nSize - 2]))
        m_strBefore += ' ';
    m_strWritten = quoted(strValue);
    m_strValue = strValue;
}

std::string PropertyLine::lineBreak() const
{
    return m_strAfter.substr(bodyLength(m_strAfter));
}

} // namespace TAMFx::Data::Properties
