#pragma once

/**
 * @file
 * A text buffer, and its comparison with texts.
 */

#include "common/tamfx/Export.h"

#include <string>

/** A text buffer with printf-style formatting. */
class TAMFX_EXPORT String
{
public:
    String() = default;
    /** Copies the text; null counts as "". */
    String(const char* pszText);
    String(const String&) = default;
    String& operator=(const String&) = default;
    virtual ~String();

    /** Copies the text; null counts as "". The text may lie inside this very buffer. */
    String& operator=(const char* pszText);

    /**
     * Replaces the text with the printf result; the arguments may refer to the present text.
     * A result that printf cannot make leaves "".
     */
    void Format(const char* pszFormat, ...) __attribute__((format(printf, 2, 3)));

    /** The text, never null; it stays readable until the next change of this object. */
    const char* c_str() const { return m_strText.c_str(); }

    /** As c_str(). */
    operator const char*() const { return m_strText.c_str(); }

    /** The buffer itself, NUL-terminated. */
    char* data() { return m_strText.data(); }

private:
    std::string m_strText;
};

/// @{
/**
 * Compares the texts; null differs from every text. Without these a comparison would compare
 * addresses, through the conversion to const char*.
 */
inline bool operator==(const String& left, const char* pszRight)
{
    return pszRight && std::string(left.c_str()) == pszRight;
}
inline bool operator==(const String& left, const String& right)
{
    return left == right.c_str();
}
inline bool operator!=(const String& left, const char* pszRight)
{
    return !(left == pszRight);
}
inline bool operator!=(const String& left, const String& right)
{
    return !(left == right);
}
/// @}
