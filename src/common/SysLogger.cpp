#include "common/SysLogger.h"

#include <cstdarg>
#include <cstdio>
#include <pthread.h>
#include <string_view>
#include <syslog.h>

namespace PANFx::Common {

namespace {

constexpr size_t identityLimit = 1024; // with the terminating NUL
constexpr size_t lineLimit = 4096;     // with the terminating NUL
constexpr size_t classWidth = 15;      // shorter class names are padded to this

// Hundreds of loggers are made for one page, so this does by hand what "%s %-15s" would do.
std::string identityOf(std::string_view program, std::string_view name, std::string_view thread)
{
    char identity[identityLimit - 1];
    size_t size = 0;
    const auto append = [&](std::string_view text) {
        size += text.copy(identity + size, sizeof identity - size);
    };
    append(program);
    append(" ");
    append(name);
    if (name.size() < classWidth)
        append(std::string_view("               ", classWidth - name.size()));
    append(thread);
    return {identity, size};
}

__attribute__((format(printf, 4, 0))) void writeLine(const std::string& identity, int priority,
                                                     const char* prefix, const char* format,
                                                     va_list arguments)
{
    char line[lineLimit];
    if (!format || vsnprintf(line, sizeof line, format, arguments) < 0)
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
    : m_strIdentity(identityOf(strProgram, strClass, {}))
{
}

SysLogger::~SysLogger() = default;

void SysLogger::SetIdentity(std::string strProgram, std::string strClass, bool bThread)
{
    char thread[32] = "";
    if (bThread)
        snprintf(thread, sizeof thread, " [0x%x]", static_cast<unsigned int>(pthread_self()));
    // as a printf argument each word would end at its first NUL
    m_strIdentity = identityOf(strProgram.c_str(), strClass.c_str(), thread);
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
