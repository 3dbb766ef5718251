#pragma once

#include "common/tamfx/Export.h"
#include "common/tamfx/String.h"

/** Exceptions, and files and texts as the foundation handles them. */
namespace TAMFx::Common {

/**
 * Base of the library's exceptions: a text for people and one number for programs.
 *
 * XmlException and ConfigurationException are thrown as pointers. The object behind such a
 * pointer belongs to the throwing thread and is used again by the next exception of its class on
 * that thread: nobody deletes it, and a catcher that wants to keep the text copies it.
 * DBException is thrown by value.
 */
class TAMFX_EXPORT Exception
{
public:
    /** Copies the text; null counts as "". */
    explicit Exception(const char* pszMessage = "", int nCode = 0);
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    virtual ~Exception();

    /** The text, never null. */
    const char* GetMessage() const { return m_strMessage.c_str(); }

    /** The number; each class says what it means. */
    int GetCode() const { return m_nCode; }

private:
    String m_strMessage;
    int m_nCode;
};

} // namespace TAMFx::Common
