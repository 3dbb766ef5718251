#include "common/SysLogger.h"

#include "support/LogCapture.h"
#include "support/SystemLogSocket.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <syslog.h>
#include <type_traits>
#include <unistd.h>

using PANFx::Common::SysLogger;
using PANFx::Testing::LogCall;
using PANFx::Testing::LogCapture;
using PANFx::Testing::LogLine;
using PANFx::Testing::SystemLogSocket;

namespace {

LogCapture& capture()
{
    return LogCapture::instance();
}

std::string identityFor(const std::string& program, const std::string& name, bool thread = false)
{
    SysLogger logger;
    logger.SetIdentity(program, name, thread);
    return logger.m_strIdentity;
}

std::string threadPart()
{
    char text[32];
    std::snprintf(text, sizeof text, " [0x%x]", static_cast<unsigned int>(pthread_self()));
    return text;
}

LogLine written()
{
    EXPECT_EQ(capture().lines().size(), 1u);
    return capture().lines().empty() ? LogLine() : capture().lines().front();
}

} // namespace

TEST(SysLogger, isUnknownUntilSomebodyNamesIt)
{
    EXPECT_EQ(SysLogger().m_strIdentity, "Unknown Unknown        ");
}

TEST(SysLogger, padsTheClassNameToFifteenCharacters)
{
    EXPECT_EQ(identityFor("QTPANFx", "ZELTab"), "QTPANFx ZELTab         ");
    EXPECT_EQ(identityFor("QTPANFx", "ZELImageEdit123"), "QTPANFx ZELImageEdit123");
    EXPECT_EQ(identityFor("QTPANFx", "ZELIconCheckButton"), "QTPANFx ZELIconCheckButton");
    EXPECT_EQ(identityFor("", ""), "                ");
}

TEST(SysLogger, countsTheWidthInBytes)
{
    EXPECT_EQ(identityFor("QTPANFx", "\xED\x99\x88"), "QTPANFx \xED\x99\x88            ");
}

TEST(SysLogger, addsTheThreadWhenAsked)
{
    EXPECT_EQ(identityFor("QTPANFx", "ZELTab", true), "QTPANFx ZELTab         " + threadPart());
    EXPECT_EQ(identityFor("QTPANFx", "ZELIconCheckButton", true),
              "QTPANFx ZELIconCheckButton" + threadPart());
}

TEST(SysLogger, cutsTheIdentityAt1023Bytes)
{
    const std::string longName(2000, 'x');
    EXPECT_EQ(identityFor("QTPANFx", longName), "QTPANFx " + longName.substr(0, 1023 - 8));
    EXPECT_EQ(identityFor(longName, "ZELTab"), longName.substr(0, 1023));
    const std::string shortOfTheEnd(1023 - 8 - 2, 'x');
    EXPECT_EQ(identityFor("QTPANFx", shortOfTheEnd, true), "QTPANFx " + shortOfTheEnd + " [");
    EXPECT_EQ(identityFor("QTPANFx", std::string(1023 - 8, 'x')).size(), 1023u);
    EXPECT_EQ(SysLogger("QTPANFx", longName.c_str()).m_strIdentity.size(), 1023u);
}

TEST(SysLogger, endsAWordOfTheIdentityAtItsFirstNul)
{
    EXPECT_EQ(identityFor(std::string("QTPANFx\0x", 9), std::string("ZELTab\0x", 8)),
              "QTPANFx ZELTab         ");
}

TEST(SysLogger, hasTheSameIdentityHoweverItIsSet)
{
    for (const char* name : {"", "ZELTab", "ZELImageEdit123", "ZELIconCheckButton"})
        EXPECT_EQ(SysLogger("QTPANFx", name).m_strIdentity, identityFor("QTPANFx", name)) << name;
}

TEST(SysLogger, takesANewIdentityForTheLinesThatFollow)
{
    SysLogger logger("QTPANFx", "ZELTab");
    logger.WriteDebug("before");
    logger.SetIdentity("QTPANFx", "ZELLabel", false);
    logger.WriteDebug("after");
    EXPECT_EQ(capture().texts("ZELTab"), std::vector<std::string>{"[D] before"});
    EXPECT_EQ(capture().texts("ZELLabel"), std::vector<std::string>{"[D] after"});
}

TEST(SysLogger, writesErrorsAtErrorPriority)
{
    capture().expectError("[setPage] 3 of 2");
    SysLogger("QTPANFx", "ZELTab").WriteError("[%s] %d of %d", "setPage", 3, 2);
    EXPECT_EQ(written().text, "[E] [setPage] 3 of 2");
    EXPECT_EQ(written().priority, 3);
}

TEST(SysLogger, writesDebugLinesAtDebugPriority)
{
    SysLogger("QTPANFx", "ZELTab").WriteDebug("[%s] %d of %d", "setPage", 1, 2);
    EXPECT_EQ(written().text, "[D] [setPage] 1 of 2");
    EXPECT_EQ(written().priority, 7);
}

TEST(SysLogger, writesInformationAtDebugPriorityToo)
{
    SysLogger("QTPANFx", "ZELTab").WriteInfo("[%s] %s", "setPage", "done");
    EXPECT_EQ(written().text, "[I] [setPage] done");
    EXPECT_EQ(written().priority, 7);
}

TEST(SysLogger, opensTheLogForUserProgramsWithTheConsoleAtHandAndAtOnce)
{
    SysLogger("QTPANFx", "ZELTab").WriteDebug("here");
    EXPECT_EQ(written().option, 10);  // LOG_CONS, LOG_NDELAY
    EXPECT_EQ(written().facility, 8); // LOG_USER
}

TEST(SysLogger, opensAndClosesTheLogAroundEveryLine)
{
    SysLogger tab("QTPANFx", "ZELTab");
    SysLogger label("QTPANFx", "ZELLabel");
    tab.WriteDebug("1");
    label.WriteInfo("2");
    tab.WriteDebug("3");
    const std::vector<LogCall> line = {LogCall::Open, LogCall::Write, LogCall::Close};
    std::vector<LogCall> expected;
    for (int i = 0; i < 3; ++i)
        expected.insert(expected.end(), line.begin(), line.end());
    EXPECT_EQ(capture().calls(), expected);
    EXPECT_EQ(capture().texts("ZELTab"), (std::vector<std::string>{"[D] 1", "[D] 3"}));
    EXPECT_EQ(capture().texts("ZELLabel"), std::vector<std::string>{"[I] 2"});
}

TEST(SysLogger, touchesTheLogOnlyToWrite)
{
    {
        SysLogger logger("QTPANFx", "ZELTab");
        logger.SetIdentity("QTPANFx", "ZELLabel", true);
        const SysLogger copy(logger);
        EXPECT_EQ(copy.m_strIdentity, logger.m_strIdentity);
    }
    EXPECT_TRUE(capture().calls().empty());
}

TEST(SysLogger, cutsALineAt4095Bytes)
{
    for (const size_t size : {size_t(4094), size_t(4095), size_t(4096), size_t(100000)}) {
        capture().reset();
        const std::string text(size, 'x');
        SysLogger().WriteDebug("%s", text.c_str());
        EXPECT_EQ(written().text, "[D] " + text.substr(0, 4095)) << size;
    }
}

TEST(SysLogger, cutsAWholeLineAndNotOneArgument)
{
    const std::string text(5000, 'x');
    SysLogger().WriteInfo("[%s] %s end", "setText", text.c_str());
    EXPECT_EQ(written().text, "[I] [setText] " + text.substr(0, 4095 - 10));
}

TEST(SysLogger, takesPercentSignsFromArgumentsAsTheyAre)
{
    SysLogger().WriteDebug("[%s] %s", "setText", "100%d %s %n");
    EXPECT_EQ(written().text, "[D] [setText] 100%d %s %n");
}

TEST(SysLogger, keepsLineBreaksAndBlanks)
{
    SysLogger().WriteDebug("[%s]  two, %s \n", "setText", " one ");
    EXPECT_EQ(written().text, "[D] [setText]  two,  one  \n");
}

TEST(SysLogger, writesALineThatCannotBeFormattedEmpty)
{
    const wchar_t bad[] = {0xd800, 0}; // half a character
    SysLogger().WriteDebug("before %ls", bad);
    EXPECT_EQ(written().text, "[D] ");
}

TEST(SysLogger, writesALineWithoutAFormatEmpty)
{
    const char* volatile none = nullptr; // as it comes from elsewhere, unknown to the compiler
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    SysLogger().WriteDebug(none);
#pragma GCC diagnostic pop
    EXPECT_EQ(written().text, "[D] ");
}

TEST(SysLogger, isDeletedThroughItsBaseAndCopied)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<SysLogger>);
    SysLogger copy;
    copy = SysLogger("QTPANFx", "ZELTab");
    EXPECT_EQ(copy.m_strIdentity, "QTPANFx ZELTab         ");
}

// ---- the real system log

namespace {

// one line of each level through the C library's syslog
std::vector<std::string> sentToTheSystem(SystemLogSocket& socket)
{
    capture().passThrough(true);
    SysLogger logger("QTPANFx", "ZELTab");
    capture().expectError("[setPage] 100%d");
    logger.WriteError("[%s] %s", "setPage", "100%d");
    logger.WriteDebug("[%s] %d", "setPage", 1);
    logger.WriteInfo("[%s] %d", "setPage", 2);
    capture().passThrough(false);
    return {socket.receive(), socket.receive(), socket.receive(), socket.receive()};
}

bool endsWith(const std::string& text, const std::string& ending)
{
    return text.size() >= ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

// the start is user * 8 + priority, then a time stamp
bool isSent(const std::string& line, const std::string& start, const std::string& end)
{
    return line.compare(0, start.size(), start) == 0 &&
           endsWith(line, " QTPANFx ZELTab         : " + end);
}

bool allSent(const std::vector<std::string>& lines)
{
    return isSent(lines[0], "<11>", "[E] [setPage] 100%d") &&
           isSent(lines[1], "<15>", "[D] [setPage] 1") &&
           isSent(lines[2], "<15>", "[I] [setPage] 2") && lines[3].empty();
}

// root may have mounts of its own; anybody else has to be root in a world of its own first
bool ownPlaces()
{
    if (unshare(CLONE_NEWNS) == 0)
        return true;
    const uid_t user = getuid();
    const gid_t group = getgid();
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
    std::ofstream("/proc/self/setgroups") << "deny"; // or the group is refused
    std::ofstream("/proc/self/gid_map") << "0 " << group << " 1";
    return getuid() == 0;
}

bool mountEmpty(const char* place)
{
    return mount("none", place, "tmpfs", 0, nullptr) == 0;
}

// In a child that sees a /dev of its own, and a /tmp, where the tests' lock for it lies: 0 when the
// lines came, 1 when not, 2 without such places.
int sentFromAPrivateDev()
{
    const pid_t child = fork();
    if (child == 0) {
        if (!ownPlaces() || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            !mountEmpty("/dev") || !mountEmpty("/tmp"))
            _exit(2);
        SystemLogSocket socket;
        _exit(!socket.listening() ? 2 : allSent(sentToTheSystem(socket)) ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

} // namespace

TEST(SysLogger, reachesTheRealSystemLog)
{
    SystemLogSocket socket;
    if (!socket.listening())
        GTEST_SKIP() << "a logger listens at /dev/log already, or it can't be written";
    const std::vector<std::string> lines = sentToTheSystem(socket);
    EXPECT_TRUE(allSent(lines)) << ::testing::PrintToString(lines);
}

TEST(SysLogger, reachesTheRealSystemLogOfAPlaceOfItsOwn)
{
    const int result = sentFromAPrivateDev();
    if (result == 2)
        GTEST_SKIP() << "this system gives the test no /dev of its own";
    EXPECT_EQ(result, 0);
}
