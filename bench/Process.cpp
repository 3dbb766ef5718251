#include "Process.h"

#include "Harness.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <malloc.h>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

pid_t spawn(const std::vector<std::string>& command, int output)
{
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t child = -1;
    const int error =
        posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        throw std::runtime_error("cannot start " + command[0]);
    return child;
}

bool forbidSystemCalls()
{
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_exit, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
    };
    const sock_fprog program = {sizeof rules / sizeof rules[0], rules};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace

ChildResult runChild(const std::vector<std::string>& command)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("cannot make a pipe");
    ChildResult result;
    const Clock::time_point start = Clock::now();
    const pid_t child = spawn(command, ends[1]);
    close(ends[1]);
    char text[4096];
    ssize_t count = 0;
    while ((count = read(ends[0], text, sizeof text)) > 0) {
        if (result.output.empty())
            result.nanoseconds =
                std::chrono::duration<double, std::nano>(Clock::now() - start).count();
        result.output.append(text, static_cast<std::size_t>(count));
    }
    close(ends[0]);
    int status = 0;
    while (waitpid(child, &status, 0) == -1 && errno == EINTR) {
    }
    result.bGood = WIFEXITED(status) && WEXITSTATUS(status) == 0 && !result.output.empty();
    return result;
}

std::map<std::string, double> figuresOf(const ChildResult& result)
{
    std::map<std::string, double> figures;
    std::istringstream lines(result.bGood ? result.output : std::string());
    std::string name;
    double value = 0;
    while (lines >> name >> value)
        figures[name] = value;
    return figures;
}

EnvironmentVariable::EnvironmentVariable(const char* name, const std::string& value)
    : m_name(name)
{
    if (const char* before = getenv(name))
        m_before = before;
    setenv(name, value.c_str(), 1);
}

EnvironmentVariable::~EnvironmentVariable()
{
    if (m_before)
        setenv(m_name, m_before->c_str(), 1);
    else
        unsetenv(m_name);
}

std::string ownPath()
{
    return std::filesystem::read_symlink("/proc/self/exe").string();
}

std::string besideOwnPath(const std::string& name)
{
    return (std::filesystem::path(ownPath()).parent_path() / name).string();
}

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

int runsWithoutSystemCalls(void (*work)())
{
    constexpr int notForbidden = 77;
    const pid_t child = fork();
    if (child == 0) {
        if (!forbidSystemCalls())
            _exit(notForbidden);
        work();
        syscall(SYS_exit, 0);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return -1;
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == 0 ? 1 : -1;
    return WTERMSIG(status) == SIGSYS ? 0 : -1;
}

} // namespace bench
