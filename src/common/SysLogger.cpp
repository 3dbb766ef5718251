#include "common/SysLogger.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <pthread.h>
#include <syslog.h>

namespace PANFx::Common {

namespace {

constexpr size_t identityLimit = 1024; // with the terminating NUL
constexpr size_t lineLimit = 4096;     // with the terminating NUL
constexpr size_t classWidth = 15;      // shorter class names are padded to this

// Hundreds of loggers are made for one page, so this does by hand what "%s %-15s" would do.
std::string identityOf(const char* program, size_t programSize, const char* name, size_t nameSize)
{
    const size_t padding = nameSize < classWidth ? classWidth - nameSize : 0;
    std::string identity;
    identity.reserve(programSize + 1 + nameSize + padding);
    identity.append(program, programSize).append(1, ' ');
    identity.append(name, nameSize).append(padding, ' ');
    return identity;
}

void cutIdentity(std::string& identity)
{
    if (identity.size() >= identityLimit)
        identity.resize(identityLimit - 1);
}

__attribute__((format(printf, 4, 0))) void writeLine(const std::string& identity, int priority,
                                                     const char* prefix, const char* format,
                                                     va_list arguments)
{
    char line[lineLimit];
    if (vsnprintf(line, sizeof line, format, arguments) < 0)
        line[0] = '\0';
    openlog(identity.c_str(), LOG_CONS | LOG_NDELAY, LOG_USER);
    // the prefix is one of three literals of this file
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    syslog(priority, prefix, line);
#pragma GCC diagnostic pop
    closelog();
}

} // namespace

SysLogger::SysLogger()
    : SysLogger("Unknown", "Unknown")
{
}

SysLogger::SysLogger(const char* strProgram, const char* strClass)
    : m_strIdentity(
          identityOf(strProgram, std::strlen(strProgram), strClass, std::strlen(strClass)))
{
    cutIdentity(m_strIdentity);
}

SysLogger::~SysLogger() = default;

void SysLogger::SetIdentity(std::string strProgram, std::string strClass, bool bThread)
{
    // as a printf argument each word would end at its first NUL
    m_strIdentity = identityOf(strProgram.c_str(), std::strlen(strProgram.c_str()),
                               strClass.c_str(), std::strlen(strClass.c_str()));
    if (bThread) {
        char thread[32];
        snprintf(thread, sizeof thread, " [0x%x]", static_cast<unsigned int>(pthread_self()));
        m_strIdentity += thread;
    }
    cutIdentity(m_strIdentity);
}

void SysLogger::WriteError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    writeLine(m_strIdentity, LOG_ERR, "[E] %s", format, arguments);
    va_end(arguments);
}

void SysLogger::WriteDebug(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    writeLine(m_strIdentity, LOG_DEBUG, "[D] %s", format, arguments);
    va_end(arguments);
}

void SysLogger::WriteInfo(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    writeLine(m_strIdentity, LOG_DEBUG, "[I] %s", format, arguments);
    va_end(arguments);
}

} // namespace PANFx::Common
