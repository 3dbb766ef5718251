#include "common/tamfx/String.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

namespace {

__attribute__((format(printf, 1, 0))) std::string formatted(const char* pszFormat,
                                                            va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int nLength = std::vsnprintf(nullptr, 0, pszFormat, measured);
    va_end(measured);
    if (nLength <= 0)
        return {};
    std::string strText(static_cast<std::size_t>(nLength), '\0');
    std::vsnprintf(strText.data(), strText.size() + 1, pszFormat, arguments);
    return strText;
}

} // namespace

String::String(const char* pszText)
    : m_strText(pszText ? pszText : "")
{
}

String::~String() = default;

String& String::operator=(const char* pszText)
{
    m_strText = std::string(pszText ? pszText : "");
    return *this;
}

void String::Format(const char* pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    // The old text must live until the new one stands: it may be among the arguments.
    std::string strText = formatted(pszFormat, arguments);
    va_end(arguments);
    m_strText = std::move(strText);
}
