#pragma once

#include <string>
#include <vector>

namespace PANFx::Testing {

/** One line that went to the system log, with what openlog said before it. */
struct LogLine
{
    std::string identity; ///< as openlog got it, padding included: "QTPANFx ZELLabel       "
    int option = 0;       ///< as openlog got it
    int facility = 0;     ///< as openlog got it
    int priority = 0;     ///< as syslog got it
    std::string text;     ///< as it came out: "[E] [setLayout] ok pLayout == NULL"
    bool open = false;    ///< written between openlog and closelog

    /** The class that wrote it: the second word of the identity. */
    std::string className() const;
};

/** The calls into the system log in their order. */
enum class LogCall {
    Open,
    Write,
    Close,
};

/**
 * Stands in front of the system log for the whole test program and keeps what is written.
 *
 * Any "[E]" line that a test did not announce fails the test, and so does a line that was
 * announced and did not come; the judgement is made after the fixture is gone, so lines of
 * destructors count. Lines of other levels are free to be asked for or ignored. All operations
 * may be called from any thread.
 */
class LogCapture
{
public:
    static LogCapture& instance();

    /**
     * Announces error lines that the test expects, before or after they are written.
     * @param text the line behind "[E] ", exactly
     * @param times so many lines, neither more nor fewer
     * @param className only lines of this class count; "" for any class
     */
    void expectError(const std::string& text, int times = 1, const std::string& className = "");

    /**
     * Fails the running test for each error line that was not announced and each announcement
     * that was not met, and forgets both. The test program calls it at the end of each test; a
     * test calls it itself only where the point in time matters.
     */
    void verify();

    /** Forgets everything: lines, calls, announcements. Called at the start of each test. */
    void reset();

    /** Lines, calls and counts asked for below begin here. Errors stay to be judged. */
    void startHere();

    /** The lines so far, oldest first. */
    std::vector<LogLine> lines() const;

    /** The texts so far, of one class or of all, oldest first. */
    std::vector<std::string> texts(const std::string& className = "") const;

    /** How many lines with exactly this text, level included: "[D] [changeLocale] start". */
    int count(const std::string& text, const std::string& className = "") const;

    /** How many lines of a level: 'E', 'D' or 'I'. */
    int countLevel(char level) const;

    /** Fails the running test unless these texts were written in this order, others between. */
    void expectInOrder(const std::vector<std::string>& texts) const;

    /** The calls so far, oldest first. */
    std::vector<LogCall> calls() const;

    /** Hands each call on to the real system log too, while switched on. Off at each start. */
    void passThrough(bool on);

private:
    LogCapture() = default;
};

} // namespace PANFx::Testing
