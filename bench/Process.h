#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace bench {

/** What a child process left behind. */
struct ChildResult
{
    bool bGood = false;     ///< it ended with 0 and wrote something
    std::string output;     ///< its standard output
    double nanoseconds = 0; ///< from before its start until its first output
};

/** Runs @p command to its end. */
ChildResult runChild(const std::vector<std::string>& command);

/** What a child has written in lines of "name number"; nothing from a child that failed. */
std::map<std::string, double> figuresOf(const ChildResult& result);

/** An environment variable that has another value for as long as the object lives. */
class EnvironmentVariable
{
public:
    EnvironmentVariable(const char* name, const std::string& value);
    ~EnvironmentVariable();

    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* m_name;
    std::optional<std::string> m_before;
};

/** Path of the running program. */
std::string ownPath();

/** Path of a program in the directory of the running one. */
std::string besideOwnPath(const std::string& name);

/** Bytes that the process has allocated from the heap and not given back. */
double heapInUse();

/**
 * Runs @p work in a forked child that may make no system call at all.
 * @return 1 when the child came to its end, 0 when the system killed it for a call, -1 when the
 *         system cannot forbid calls here
 */
int runsWithoutSystemCalls(void (*work)());

} // namespace bench
