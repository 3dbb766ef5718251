#include "LogSink.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <linux/filter.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr const char* logPath = "/dev/log";
constexpr const char* asidePath = "/dev/log.bench";

volatile std::sig_atomic_t ended = 0;

// The reader takes the socket away itself, so that it goes with the benchmark however that ends.
[[noreturn]] void swallow(int socket)
{
    struct sigaction action
    {
    };
    action.sa_handler = [](int) { ended = 1; };
    sigaction(SIGTERM, &action, nullptr);
    std::signal(SIGINT, SIG_IGN);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    char line[8192];
    while (!ended) {
        if (recv(socket, line, sizeof line, 0) < 0)
            continue;
    }
    unlink(logPath);
    unlink(asidePath);
    _exit(0);
}

// A filter that keeps no byte: the system forgets a line where it would queue it for the reader.
void setDropping(int socket, bool dropping)
{
    sock_filter keepNothing[] = {BPF_STMT(BPF_RET | BPF_K, 0)};
    const sock_fprog program = {1, keepNothing};
    int unused = 0;
    if (dropping)
        setsockopt(socket, SOL_SOCKET, SO_ATTACH_FILTER, &program, sizeof program);
    else
        setsockopt(socket, SOL_SOCKET, SO_DETACH_FILTER, &unused, sizeof unused);
}

bool isSocket(const char* path)
{
    struct stat status;
    return stat(path, &status) == 0 && S_ISSOCK(status.st_mode);
}

} // namespace

LogSink::LogSink()
{
    if (isSocket(logPath))
        m_description = "the machine's own log listens at /dev/log and gets the lines";
    else if (listen())
        m_description = "a socket of the benchmark listens at /dev/log and drops the lines";
    else
        m_description = "nothing listens at /dev/log, so lines go to the console or get lost";
}

LogSink::~LogSink()
{
    if (!isOurs())
        return;
    kill(m_reader, SIGTERM);
    waitpid(m_reader, nullptr, 0);
    close(m_socket);
}

void LogSink::setMode(Mode mode)
{
    if (!isOurs() || mode == m_mode)
        return;
    if (m_mode == Mode::Gone)
        rename(asidePath, logPath);
    if (mode == Mode::Gone)
        rename(logPath, asidePath);
    setDropping(m_socket, mode == Mode::Drop);
    m_mode = mode;
}

// The reader is a process and not a thread: the measured process keeps its single-threaded
// allocator.
bool LogSink::listen()
{
    m_socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (m_socket < 0)
        return false;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, logPath, sizeof address.sun_path - 1);
    if (bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(m_socket);
        return false;
    }
    m_reader = fork();
    if (m_reader == 0)
        swallow(m_socket);
    if (m_reader < 0) {
        unlink(logPath);
        close(m_socket);
    }
    setMode(Mode::Drop);
    return isOurs();
}

} // namespace bench
