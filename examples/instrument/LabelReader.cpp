#include "LabelReader.h"

#include "ApplicationEvents.h"

#include "common/systemPath.h"
#include "events/ZELStringEvent.h"

#include <QCoreApplication>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

const char port[] = "/dev/reader";
const int patience = 100;             // milliseconds between two looks for a reader
const std::size_t longestLine = 1000; // bytes; more than that is no label

// For writing too: a pipe that nobody else has open would be at its end all the time.
int openPort()
{
    return ::open(PANFx::Common::systemPath(port).c_str(),
                  O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

} // namespace

LabelReader::LabelReader(QObject& receiver)
    : m_receiver(receiver)
{
}

LabelReader::~LabelReader()
{
    stop();
}

void LabelReader::start()
{
    if (m_thread.joinable())
        return;
    m_nStop = ::eventfd(0, EFD_CLOEXEC);
    if (m_nStop < 0)
        return; // a thread that cannot be ended is not begun
    m_strLine.clear();
    m_thread = std::thread([this] { run(); });
}

void LabelReader::stop()
{
    if (!m_thread.joinable())
        return;
    ::eventfd_write(m_nStop, 1);
    m_thread.join();
    ::close(m_nStop);
    QCoreApplication::removePostedEvents(&m_receiver, EVENT_LABEL_READ);
}

// A reader that is pulled off ends like a file does, and is looked for again.
void LabelReader::run()
{
    int nPort = openPort();
    for (;;) {
        pollfd watched[] = {{m_nStop, POLLIN, 0}, {nPort, POLLIN, 0}}; // -1 is left out
        ::poll(watched, 2, nPort < 0 ? patience : -1);
        if (watched[0].revents != 0)
            break;
        char bytes[256];
        const ssize_t nCount = nPort < 0 ? 0 : ::read(nPort, bytes, sizeof bytes);
        if (nCount > 0) {
            take(bytes, static_cast<std::size_t>(nCount));
        } else if (nPort < 0) {
            nPort = openPort();
        } else if (nCount == 0 || errno != EAGAIN) {
            ::close(nPort);
            nPort = -1;
        }
    }
    if (nPort >= 0)
        ::close(nPort);
}

void LabelReader::take(const char* pBytes, std::size_t nCount)
{
    for (const char c : std::string(pBytes, nCount)) {
        if (c == '\n' || c == '\r') {
            if (!m_strLine.empty())
                post();
            m_strLine.clear();
        } else if (m_strLine.size() < longestLine) {
            m_strLine += c;
        }
    }
}

void LabelReader::post() const
{
    const std::size_t nEnd = m_strLine.find(';');
    const std::string strName = nEnd == std::string::npos ? "" : m_strLine.substr(nEnd + 1);
    QCoreApplication::postEvent(
        &m_receiver,
        new ZELStringEvent(EVENT_LABEL_READ, m_strLine.substr(0, nEnd), strName, "", ""));
}
