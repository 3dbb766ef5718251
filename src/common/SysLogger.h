#pragma once

#include "common/Export.h"

#include <string>

/** What every part of the library uses: the log, numbers, and paths of the system. */
namespace PANFx::Common {

/**
 * A small logger on top of the system log, held as a member by each class of the library.
 *
 * A line goes out under the identity "%s %-15s" of program word and class name, so that it says
 * which class spoke. The log is opened and closed around every line; a line of more than 4095
 * bytes is cut. The object has no lock of its own: lines of two threads can go out under each
 * other's identity.
 */
class QTPANFX_EXPORT SysLogger
{
public:
    /** A logger with the identity of "Unknown" and "Unknown". */
    SysLogger();

    /** A logger with the identity of @p strProgram and @p strClass, without the thread. */
    SysLogger(const char* strProgram, const char* strClass);

    virtual ~SysLogger();

    SysLogger(const SysLogger&) = default;
    SysLogger& operator=(const SysLogger&) = default;

    /**
     * Builds the identity, cut at 1023 bytes.
     * @param bThread adds " [0x%x]" with the value of pthread_self()
     */
    void SetIdentity(std::string strProgram, std::string strClass, bool bThread);

    /** Writes "[E] ..." at LOG_ERR. */
    void WriteError(const char* format, ...) __attribute__((format(printf, 2, 3)));

    /** Writes "[D] ..." at LOG_DEBUG. */
    void WriteDebug(const char* format, ...) __attribute__((format(printf, 2, 3)));

    /** Writes "[I] ..." at LOG_DEBUG too: the letter is the only difference, and is meant to be. */
    void WriteInfo(const char* format, ...) __attribute__((format(printf, 2, 3)));

    std::string m_strIdentity; ///< what openlog gets
};

} // namespace PANFx::Common
