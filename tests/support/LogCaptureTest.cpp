#include "support/LogCapture.h"

#include "common/SysLogger.h"
#include "support/SystemLogSocket.h"

#include <cstdarg>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <syslog.h>
#include <thread>

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

} // namespace

TEST(LogCapture, keepsIdentityOptionsPriorityAndText)
{
    SysLogger logger("QTPANFx", "ZELTab");
    logger.WriteDebug("[%s] %d", "setPage", 3);
    const std::vector<LogLine> lines = capture().lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].identity, "QTPANFx ZELTab         ");
    EXPECT_EQ(lines[0].className(), "ZELTab");
    EXPECT_EQ(lines[0].option, LOG_CONS | LOG_NDELAY);
    EXPECT_EQ(lines[0].facility, LOG_USER);
    EXPECT_EQ(lines[0].priority, LOG_DEBUG);
    EXPECT_EQ(lines[0].text, "[D] [setPage] 3");
    EXPECT_TRUE(lines[0].open);
}

TEST(LogCapture, keepsTheOrderOfCalls)
{
    SysLogger logger;
    logger.WriteInfo("a");
    EXPECT_EQ(capture().calls(),
              (std::vector<LogCall>{LogCall::Open, LogCall::Write, LogCall::Close}));
    syslog(LOG_DEBUG, "%s", "after closelog");
    EXPECT_FALSE(capture().lines().back().open);
}

TEST(LogCapture, seesTheTestProgramsOwnCallsWhateverTheirForm)
{
    const auto written = [](const char* format, ...) {
        va_list arguments;
        va_start(arguments, format);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
        vsyslog(LOG_INFO, format, arguments);
#pragma GCC diagnostic pop
        va_end(arguments);
    };
    openlog("own test", 0, LOG_LOCAL0);
    syslog(LOG_INFO, "%s %d", "plain", 1);
    written("%s %d", "list", 2);
    closelog();
    EXPECT_EQ(capture().texts("test"), (std::vector<std::string>{"plain 1", "list 2"}));
}

TEST(LogCapture, failsTheTestForALineThatNobodyAnnounced)
{
    SysLogger("QTPANFx", "ZELTab").WriteError("[%s] out of luck", "setPage");
    EXPECT_NONFATAL_FAILURE(capture().verify(),
                            "not announced, 1 times, of ZELTab: [E] [setPage] out of luck");
}

TEST(LogCapture, failsTheTestForALineThatDidNotCome)
{
    capture().expectError("[setPage] out of luck");
    EXPECT_NONFATAL_FAILURE(capture().verify(), "did not come, 1 times: [E] [setPage] out of luck");
}

TEST(LogCapture, countsAnnouncements)
{
    SysLogger logger("QTPANFx", "ZELTab");
    capture().expectError("twice", 2);
    logger.WriteError("twice");
    EXPECT_NONFATAL_FAILURE(capture().verify(), "did not come, 1 times");
    capture().expectError("once");
    logger.WriteError("once");
    logger.WriteError("once");
    EXPECT_NONFATAL_FAILURE(capture().verify(), "not announced, 1 times, of ZELTab: [E] once");
    logger.WriteError("many");
    logger.WriteError("many");
    EXPECT_NONFATAL_FAILURE(capture().verify(), "not announced, 2 times, of ZELTab: [E] many");
    logger.WriteError("exact");
    capture().expectError("exact");
    capture().verify();
}

TEST(LogCapture, comparesTheWholeTextAndTheClass)
{
    SysLogger("QTPANFx", "ZELTab").WriteError("whole text");
    capture().expectError("whole");
    EXPECT_NONFATAL_FAILURE(
        { // two failures: the line and the announcement
            EXPECT_NONFATAL_FAILURE(capture().verify(), "not announced");
        },
        "Actual: 2 failures");
    SysLogger("QTPANFx", "ZELTab").WriteError("of a class");
    capture().expectError("of a class", 1, "ZELLabel");
    EXPECT_NONFATAL_FAILURE({ EXPECT_NONFATAL_FAILURE(capture().verify(), "not announced"); },
                            "Actual: 2 failures");
}

TEST(LogCapture, givesALineToTheAnnouncementThatNamesItsClass)
{
    capture().expectError("same");
    capture().expectError("same", 1, "ZELTab");
    SysLogger("QTPANFx", "ZELTab").WriteError("same");
    SysLogger("QTPANFx", "ZELLabel").WriteError("same");
}

TEST(LogCapture, judgesErrorsThatStartHereHides)
{
    SysLogger("QTPANFx", "ZELTab").WriteError("early");
    capture().startHere();
    EXPECT_TRUE(capture().lines().empty());
    EXPECT_EQ(capture().countLevel('E'), 0);
    EXPECT_NONFATAL_FAILURE(capture().verify(), "early");
}

TEST(LogCapture, leavesOtherLevelsAlone)
{
    SysLogger logger;
    logger.WriteDebug("d");
    logger.WriteInfo("[E] looks like an error");
    EXPECT_EQ(capture().countLevel('D'), 1);
    EXPECT_EQ(capture().countLevel('I'), 1);
    EXPECT_EQ(capture().countLevel('E'), 0);
    capture().verify();
}

TEST(LogCapture, tellsTheOrderOfLines)
{
    SysLogger logger;
    for (const char* text : {"a", "b", "c"})
        logger.WriteDebug("%s", text);
    capture().expectInOrder({"[D] a", "[D] c"});
    EXPECT_NONFATAL_FAILURE(capture().expectInOrder({"[D] c", "[D] a"}), "came too early: [D] a");
    EXPECT_NONFATAL_FAILURE(capture().expectInOrder({"[D] x"}), "is missing: [D] x");
}

TEST(LogCapture, takesLinesOfSeveralThreads)
{
    constexpr int each = 500;
    const auto write = [] {
        SysLogger logger;
        for (int i = 0; i < each; ++i)
            logger.WriteDebug("line %d", i);
    };
    std::thread other(write);
    write();
    other.join();
    EXPECT_EQ(capture().countLevel('D'), 2 * each);
    EXPECT_EQ(capture().calls().size(), 2u * 3u * each);
}

TEST(LogCapture, handsLinesOnToTheRealSystemLogWhenAsked)
{
    SystemLogSocket socket;
    if (!socket.listening())
        GTEST_SKIP() << "another logger listens at /dev/log, or it can't be written";
    SysLogger logger("QTPANFx", "ZELTab");
    logger.WriteDebug("kept back");
    EXPECT_EQ(socket.receive(), "");
    capture().passThrough(true);
    logger.WriteDebug("%s", "100% handed on");
    capture().passThrough(false);
    const std::string line = socket.receive();
    EXPECT_EQ(line.rfind("<15>", 0), 0u) << line; // LOG_USER, LOG_DEBUG
    EXPECT_NE(line.find("QTPANFx ZELTab         : [D] 100% handed on"), std::string::npos) << line;
    EXPECT_EQ(capture().countLevel('D'), 2);
}

// Run on its own, and expected to fail: the program's own judgement at the end of a test.
TEST(JudgeOfErrorLines, DISABLED_writesALineThatNobodyAnnounced)
{
    SysLogger("QTPANFx", "ZELTab").WriteError("nobody announced this");
}
